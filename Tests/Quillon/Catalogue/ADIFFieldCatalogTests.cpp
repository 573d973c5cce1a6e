#include "Quillon/Catalogue/ADIFFieldCatalog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace quillon {
namespace {

namespace finding = tallyrig::finding;

TEST(FieldLabels, AreGermanWhereThereIsAWord) {
    const std::pair<const char*, const char*> cases[] = {
        {"call", "Rufzeichen"},
        {"Time_On", "Zeit (Anfang)"},
        {"FREQ_RX", "Frequenz RX (MHz)"},
        {"OWNER_CALLSIGN", "Besitzer-Rufzeichen"},
        {"STATE", "Bundesstaat/Region"},
        {"STX_STRING", "Austausch (TX)"},
        {"EQSL_QSL_RCVD", "eQSL empfangen"},
        {"app_foo", "APP_FOO"},
        {"my_rig", "MY_RIG"},
        {"straße", "STRASSE"},
        {"", ""},
    };
    for (const auto& [name, label] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::label(name), label) << name;
    }
}

TEST(Messages, SayInGermanWhatWasFound) {
    const std::pair<tallyrig::ValidationKind, const char*> cases[] = {
        {finding::MissingRequiredField{"CALL"}, "Pflichtfeld fehlt: Rufzeichen"},
        {finding::InvalidDate{"QSLRDATE", "2024"}, "Ungültiges Datum: 2024"},
        {finding::InvalidTime{"TIME_ON", "2400"}, "Ungültige Zeit (Zeit (Anfang)): 2400"},
        {finding::UnknownBand{"20 m"}, "Unbekanntes Band: 20 m"},
        {finding::UnknownMode{"Morse"}, "Unbekannter Modus: Morse"},
        {finding::InvalidGridsquare{"GRIDSQUARE", "ZZ"}, "Ungültiger Locator: ZZ"},
        {finding::NonNumericFrequency{"FREQ", "14,074"}, "Frequenz (MHz) ist keine Zahl: 14,074"},
        {finding::ImplausibleCallsign{"DL"}, "Unplausibles Rufzeichen: DL"},
        {finding::Duplicate{{"CALL", "BAND", "MODE"}, {3, 7}},
         "Mögliche Dublette (Rufzeichen, Band, Modus) – auch in Zeile 3, 7"},
        {finding::Duplicate{{"my_rig"}, {12}}, "Mögliche Dublette (MY_RIG) – auch in Zeile 12"},
        {finding::UnknownField{"XYZ"}, "Unbekanntes Feld (nicht in ADIF 3.1.7): XYZ"},
        {finding::InvalidEnumeration{"QSL_RCVD", "Z"},
         "Ungültiger Wert für QSL empfangen: Z (nicht in ADIF-Liste)"},
        {finding::InvalidValue{"TX_PWR", "abc", "Number"},
         "Sendeleistung (W): \"abc\" passt nicht zum Typ Number"},
        {finding::FrequencyOutsideBand{"14.3501", "20m"},
         "Frequenz 14.3501 MHz liegt außerhalb von Band 20m"},
        {finding::OutdoorMissingField{"WWFF", "STATION_CALLSIGN"},
         "WWFF: Pflichtfeld fehlt: Stationsrufzeichen"},
        {finding::OutdoorInvalidReference{"POTA", "MY_SIG_INFO", "DE-1"}, "POTA: ungültige Referenz: DE-1"},
        {finding::OutdoorInconsistentStationCallsign{{"DL1ABC", "DL1ABC/P"}},
         "POTA: uneinheitliches STATION_CALLSIGN im Log (DL1ABC, DL1ABC/P) – pota.app erlaubt nur eines pro "
         "Datei"},
        {finding::OutdoorWrongSig{"BOTA", "POTA"},
         "BOTA: MY_SIG ist POTA, erwartet BOTA – gehört das QSO zu einem anderen Programm? (Export setzt es "
         "auf "
         "BOTA)"},
    };
    for (const auto& [kind, message] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::germanMessage({0, kind}), message);
    }
}

TEST(Dates, AreShownDayFirst) {
    const std::pair<std::optional<std::string_view>, const char*> cases[] = {
        {"20240115", "15.01.2024"},
        {"2024", "2024"},
        {"202401155", "202401155"},
        {"abcdefgh", "gh.ef.abcd"},
        {"", ""},
        {std::nullopt, ""},
        {"äöüßÄÖÜé", "Üé.ÄÖ.äöüß"},
        // A letter with a combining mark is one character, CR LF too.
        {"2024011e\xCC\x81", "1e\xCC\x81.01.2024"},
        {"2024011\r\n", "1\r\n.01.2024"},
    };
    for (const auto& [value, shown] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::formatDate(value), shown) << value.value_or("absent");
    }
}

TEST(Times, AreShownWithColons) {
    const std::pair<std::optional<std::string_view>, const char*> cases[] = {
        {"1234", "12:34"},      {"12345", "12:34"},
        {"123456", "12:34:56"}, {"12345678", "12:34:56"},
        {"123", "123"},         {"", ""},
        {std::nullopt, ""},     {"12e\xCC\x81", "12e\xCC\x81"},
        {"äöüß", "äö:üß"},      {"ab c d", "ab: c: d"},
    };
    for (const auto& [value, shown] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::formatTime(value), shown) << value.value_or("absent");
    }
}

TEST(Cells, ShowTheDatesAndTimesOfTheQSOReadably) {
    const std::tuple<const char*, std::optional<std::string_view>, const char*> cases[] = {
        {"qso_date", "20240115", "15.01.2024"},
        {"QSO_DATE_OFF", "20240115", "15.01.2024"},
        {"TIME_ON", "1234", "12:34"},
        {"time_off", "123456", "12:34:56"},
        {"QSLRDATE", "20240115", "20240115"},
        {"CALL", " dl1abc", " dl1abc"},
        {"CALL", std::nullopt, ""},
        {"QSO_DATE", std::nullopt, ""},
    };
    for (const auto& [name, value, shown] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::displayValue(value, name), shown) << name;
    }
}

}  // namespace
}  // namespace quillon
