// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ADIFFieldCatalog.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <unordered_map>
#include <variant>
#include <vector>

namespace quillon {

namespace {

namespace finding = tallyrig::finding;
namespace text = tallyrig::text;

const std::unordered_map<std::string_view, std::string_view>& germanLabels() {
    static const std::unordered_map<std::string_view, std::string_view> labels = {
        {"CALL", "Rufzeichen"},
        {"QSO_DATE", "Datum"},
        {"TIME_ON", "Zeit (Anfang)"},
        {"TIME_OFF", "Zeit (Ende)"},
        {"BAND", "Band"},
        {"BAND_RX", "Band (RX)"},
        {"MODE", "Modus"},
        {"SUBMODE", "Submodus"},
        {"FREQ", "Frequenz (MHz)"},
        {"FREQ_RX", "Frequenz RX (MHz)"},
        {"RST_SENT", "RST gesendet"},
        {"RST_RCVD", "RST empfangen"},
        {"GRIDSQUARE", "Locator"},
        {"MY_GRIDSQUARE", "Eigener Locator"},
        {"NAME", "Name"},
        {"QTH", "QTH"},
        {"COMMENT", "Bemerkung"},
        {"NOTES", "Notizen"},
        {"TX_PWR", "Sendeleistung (W)"},
        {"OPERATOR", "Operator"},
        {"STATION_CALLSIGN", "Stationsrufzeichen"},
        {"OWNER_CALLSIGN", "Besitzer-Rufzeichen"},
        {"DXCC", "DXCC"},
        {"COUNTRY", "Land"},
        {"CONT", "Kontinent"},
        {"CQZ", "CQ-Zone"},
        {"ITUZ", "ITU-Zone"},
        {"STATE", "Bundesstaat/Region"},
        {"CNTY", "County"},
        {"IOTA", "IOTA"},
        {"SAT_NAME", "Satellit"},
        {"PROP_MODE", "Ausbreitung"},
        {"QSL_SENT", "QSL gesendet"},
        {"QSL_RCVD", "QSL empfangen"},
        {"LOTW_QSL_SENT", "LoTW gesendet"},
        {"LOTW_QSL_RCVD", "LoTW empfangen"},
        {"EQSL_QSL_SENT", "eQSL gesendet"},
        {"EQSL_QSL_RCVD", "eQSL empfangen"},
        {"CONTEST_ID", "Contest"},
        {"SRX", "Laufende Nr. (RX)"},
        {"STX", "Laufende Nr. (TX)"},
        {"SRX_STRING", "Austausch (RX)"},
        {"STX_STRING", "Austausch (TX)"},
    };
    return labels;
}

/// What values of a data type look like. Of those that are not here there is nothing to tell.
const std::unordered_map<std::string_view, std::string_view>& germanForms() {
    static const std::unordered_map<std::string_view, std::string_view> forms = {
        {"Date", "Ein Datum mit acht Ziffern, Jahr, Monat und Tag: 20240315."},
        {"Time", "Eine Uhrzeit in UTC mit vier oder sechs Ziffern: 1802 oder 180230."},
        {"GridSquare", "Ein Locator: JO62QM."},
        {"GridSquareList", "Locatoren mit Kommas dazwischen: JO62,JO63."},
        {"Number", "Eine Zahl mit Punkt statt Komma: 14.250."},
        {"PositiveInteger", "Eine ganze Zahl über 0."},
        {"Integer", "Eine ganze Zahl."},
        {"Boolean", "Y für Ja oder N für Nein."},
        {"Location", "Himmelsrichtung, drei Stellen Grad und Minuten: N052 31.200."},
        {"IOTARefNo", "Eine IOTA-Referenz: EU-005."},
        {"SOTARef", "Eine SOTA-Referenz: DL/AL-001."},
        {"POTARefList", "POTA-Referenzen mit Kommas dazwischen: DE-0001,DE-0002."},
        {"WWFFRef", "Eine WWFF-Referenz: DLFF-0001."},
        {"String", "Text auf einer Zeile."},
        {"IntlString", "Text auf einer Zeile, mit Buchstaben aller Schriften."},
        {"MultilineString", "Text, auch über mehrere Zeilen."},
        {"IntlMultilineString", "Text, auch über mehrere Zeilen, mit Buchstaben aller Schriften."},
    };
    return forms;
}

/// A sentence about the values of a field.
std::string askedOf(const tallyrig::FieldDef& definition) {
    constexpr std::size_t mostValues = 40;
    if (definition.dataType == "Enumeration" && definition.enumKey) {
        const tallyrig::SpecSet* const values = tallyrig::ADIFSpec::enumerations().find(*definition.enumKey);
        return values != nullptr && values->size() <= mostValues
                   ? fmt::format("Einer dieser Werte: {}.", fmt::join(*values, ", "))
                   : "Ein Wert aus einer Liste, die ADIF vorgibt.";
    }
    const auto form = germanForms().find(definition.dataType);
    return form == germanForms().end() ? fmt::format("Seine Form heißt in ADIF {}.", definition.dataType)
                                       : std::string(form->second);
}

std::string label(std::string_view name) {
    return ADIFFieldCatalog::label(name);
}

std::string labels(const std::vector<std::string>& names) {
    std::vector<std::string> texts;
    texts.reserve(names.size());
    for (const std::string& name : names) {
        texts.push_back(label(name));
    }
    return fmt::format("{}", fmt::join(texts, ", "));
}

/// The message for each kind. Those about dates, locators and references leave the field out on purpose: the
/// value tells which it is.
struct Message {
    std::string operator()(const finding::MissingRequiredField& kind) const {
        return fmt::format("Pflichtfeld fehlt: {}", label(kind.field));
    }
    std::string operator()(const finding::InvalidDate& kind) const {
        return fmt::format("Ungültiges Datum: {}", kind.value);
    }
    std::string operator()(const finding::InvalidTime& kind) const {
        return fmt::format("Ungültige Zeit ({}): {}", label(kind.field), kind.value);
    }
    std::string operator()(const finding::UnknownBand& kind) const {
        return fmt::format("Unbekanntes Band: {}", kind.value);
    }
    std::string operator()(const finding::UnknownMode& kind) const {
        return fmt::format("Unbekannter Modus: {}", kind.value);
    }
    std::string operator()(const finding::InvalidGridsquare& kind) const {
        return fmt::format("Ungültiger Locator: {}", kind.value);
    }
    std::string operator()(const finding::NonNumericFrequency& kind) const {
        return fmt::format("{} ist keine Zahl: {}", label(kind.field), kind.value);
    }
    std::string operator()(const finding::ImplausibleCallsign& kind) const {
        return fmt::format("Unplausibles Rufzeichen: {}", kind.value);
    }
    std::string operator()(const finding::Duplicate& kind) const {
        return fmt::format("Mögliche Dublette ({}) – auch in Zeile {}", labels(kind.keyFields),
                           fmt::join(kind.otherRecordNumbers.begin(), kind.otherRecordNumbers.end(), ", "));
    }
    std::string operator()(const finding::UnknownField& kind) const {
        return fmt::format("Unbekanntes Feld (nicht in ADIF {}): {}", tallyrig::ADIFSpec::version,
                           kind.field);
    }
    std::string operator()(const finding::InvalidEnumeration& kind) const {
        return fmt::format("Ungültiger Wert für {}: {} (nicht in ADIF-Liste)", label(kind.field), kind.value);
    }
    std::string operator()(const finding::InvalidValue& kind) const {
        return fmt::format("{}: \"{}\" passt nicht zum Typ {}", label(kind.field), kind.value, kind.dataType);
    }
    std::string operator()(const finding::FrequencyOutsideBand& kind) const {
        return fmt::format("Frequenz {} MHz liegt außerhalb von Band {}", kind.freq, kind.band);
    }
    std::string operator()(const finding::OutdoorMissingField& kind) const {
        return fmt::format("{}: Pflichtfeld fehlt: {}", kind.program, label(kind.field));
    }
    std::string operator()(const finding::OutdoorInvalidReference& kind) const {
        return fmt::format("{}: ungültige Referenz: {}", kind.program, kind.value);
    }
    std::string operator()(const finding::OutdoorInconsistentStationCallsign& kind) const {
        return fmt::format(
            "POTA: uneinheitliches STATION_CALLSIGN im Log ({}) – pota.app erlaubt nur eines pro Datei",
            fmt::join(kind.values, ", "));
    }
    std::string operator()(const finding::OutdoorWrongSig& kind) const {
        return fmt::format(
            "{0}: MY_SIG ist {1}, erwartet {0} – gehört das QSO zu einem anderen Programm? "
            "(Export setzt es auf {0})",
            kind.program, kind.value);
    }
};

}  // namespace

std::string ADIFFieldCatalog::label(std::string_view name) {
    std::string upperName = text::upper(name);
    const auto found = germanLabels().find(upperName);
    return found == germanLabels().end() ? upperName : std::string(found->second);
}

std::string ADIFFieldCatalog::explanation(std::string_view name) {
    const std::string upperName = text::upper(name);
    const std::string heading = fmt::format("ADIF-Feld {}. ", upperName);
    if (const tallyrig::FieldDef* const definition = tallyrig::ADIFSpec::fields().find(upperName)) {
        return heading + askedOf(*definition);
    }
    return upperName.starts_with("APP_")
               ? heading + "Ein Programm hat es sich ausgedacht; was darin steht, weiß nur dieses."
           : upperName.starts_with("USERDEF")
               ? heading +
                     "Ein Benutzer hat es für sich festgelegt; im Kopf der Datei kann stehen, wie es heißt."
               : fmt::format("{} ist kein Feld von ADIF {}. Andere Programme übergehen es vielleicht.",
                             upperName, tallyrig::ADIFSpec::version);
}

std::string ADIFFieldCatalog::germanMessage(const tallyrig::ValidationIssue& issue) {
    return std::visit(Message(), issue.kind());
}

std::string ADIFFieldCatalog::displayValue(std::optional<std::string_view> value, std::string_view name) {
    const std::string upperName = text::upper(name);
    if (upperName == "QSO_DATE" || upperName == "QSO_DATE_OFF") {
        return formatDate(value);
    }
    if (upperName == "TIME_ON" || upperName == "TIME_OFF") {
        return formatTime(value);
    }
    return std::string(value.value_or(""));
}

std::string ADIFFieldCatalog::formatDate(std::optional<std::string_view> value) {
    const std::vector<std::string_view> c = text::characters(value.value_or(""));
    if (c.size() != 8) {
        return std::string(value.value_or(""));
    }
    return fmt::format("{}{}.{}{}.{}{}{}{}", c[6], c[7], c[4], c[5], c[0], c[1], c[2], c[3]);
}

std::string ADIFFieldCatalog::formatTime(std::optional<std::string_view> value) {
    const std::vector<std::string_view> c = text::characters(value.value_or(""));
    if (c.size() < 4) {
        return std::string(value.value_or(""));
    }
    std::string time = fmt::format("{}{}:{}{}", c[0], c[1], c[2], c[3]);
    if (c.size() >= 6) {
        time += fmt::format(":{}{}", c[4], c[5]);
    }
    return time;
}

}  // namespace quillon
