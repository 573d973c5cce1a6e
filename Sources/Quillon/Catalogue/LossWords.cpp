// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/LossWords.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/VisibleText.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace quillon {

using tallyrig::LogFormat;
using tallyrig::LossKind;
using tallyrig::WritingLoss;
using tallyrig::WritingReport;

namespace {

std::string quoted(std::string_view text) {
    constexpr std::size_t mostCharacters = 60;
    const std::string_view front = tallyrig::text::firstCharacters(text, mostCharacters);
    return "„" + tallyrig::text::visibleText(front) + (front.size() < text.size() ? "…“" : "“");
}

std::string_view titleOf(LogFormat format) {
    switch (format) {
        case LogFormat::adif:
            break;
        case LogFormat::adx:
            return "ADX";
        case LogFormat::cabrillo:
            return "Cabrillo";
        case LogFormat::edi:
            return "EDI";
    }
    return "ADIF";
}

std::string readBack(const WritingLoss& loss) {
    return loss.readBack.empty() ? "ginge verloren" : "käme als " + quoted(loss.readBack) + " wieder";
}

std::string what(const WritingLoss& loss) {
    switch (loss.kind) {
        case LossKind::otherFormat:
            return fmt::format("Die Datei würde als {}-Log gelesen.", titleOf(loss.format));
        case LossKind::comment:
            return fmt::format("Der Kommentar {} {}.", quoted(loss.value), readBack(loss));
        case LossKind::field:
            return fmt::format(
                "Das Feld {} mit dem Wert {} ginge verloren: Das Format kann den Namen nicht "
                "schreiben.",
                quoted(loss.field), quoted(loss.value));
        case LossKind::value:
            return fmt::format("{}: Der Wert {} {}.", quoted(loss.field), quoted(loss.value), readBack(loss));
        case LossKind::type:
            return fmt::format("{}: Der Datentyp {} {}.", quoted(loss.field), quoted(loss.value),
                               readBack(loss));
        case LossKind::record:
            return "Das QSO käme anders wieder.";
        case LossKind::log:
            break;
    }
    return "Das Log käme anders wieder.";
}

std::string place(const WritingLoss& loss, const tallyrig::ADIFDocument& document) {
    if (!loss.recordIndex) {
        return loss.field.empty() ? "" : "Kopf: ";
    }
    const std::string_view call = document.records()[*loss.recordIndex].valueOrEmpty("CALL");
    return fmt::format("QSO {}{}: ", *loss.recordIndex + 1, call.empty() ? "" : " mit " + quoted(call));
}

std::string counted(std::size_t number, std::string_view singular, std::string_view plural) {
    return fmt::format("{} {}", number, number == 1 ? singular : plural);
}

}  // namespace

std::string LossWords::summary(const WritingReport& report) {
    std::string text = "Nicht alles käme beim Lesen wieder: ";
    text += (report.isComplete ? "" : "mindestens ") + counted(report.lossCount, "Angabe", "Angaben");
    if (report.recordCount > 0) {
        text += " in " + counted(report.recordCount, "QSO", "QSOs");
    }
    if (report.unreadCount == 1) {
        text += "; das letzte QSO würde gar nicht gelesen";
    } else if (report.unreadCount > 1) {
        text += fmt::format("; die letzten {} QSOs würden gar nicht gelesen", report.unreadCount);
    }
    return text + ".";
}

std::vector<std::string> LossWords::lines(const WritingReport& report, const tallyrig::ADIFDocument& document,
                                          std::size_t most) {
    const std::size_t shown = std::min(most, report.losses.size());
    std::vector<std::string> lines;
    for (std::size_t index = 0; index < shown; ++index) {
        lines.push_back(place(report.losses[index], document) + what(report.losses[index]));
    }
    if (shown < report.lossCount) {
        lines.push_back(fmt::format("und {}{} weitere", report.isComplete ? "" : "mindestens ",
                                    report.lossCount - shown));
    }
    return lines;
}

}  // namespace quillon
