// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogText.h"

#include "Quillon/Catalogue/LossWords.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFileInfo>

namespace quillon {

namespace {

std::string written(const LogWriter& writer, const tallyrig::ADIFDocument& document) {
    return std::visit([&](const auto& each) { return each.write(document); }, writer);
}

tallyrig::WritingReport reportOn(const LogWriter& writer, const tallyrig::ADIFDocument& document,
                                 const std::string& text) {
    return std::visit([&](const auto& each) { return tallyrig::readBack(each, document, text); }, writer);
}

bool holdsAll(const LogWriter& writer, const tallyrig::ADIFDocument& document) {
    return reportOn(writer, document, written(writer, document)).isEmpty();
}

QString formatOf(const LogWriter& writer) {
    return std::holds_alternative<tallyrig::ADXWriter>(writer) ? QStringLiteral("ADX")
                                                               : QStringLiteral("ADIF");
}

}  // namespace

LogText textToSave(const tallyrig::ADIFDocument& document, const LogWriter& writer, const LogWriter* other,
                   const QString& path, Panels& panels) {
    constexpr std::size_t mostLines = 50;
    LogText result{written(writer, document)};
    const tallyrig::WritingReport report = reportOn(writer, document, result.text);
    if (report.isEmpty()) {
        return result;
    }
    result.isWhole = false;
    const std::string name = tallyrig::text::visibleText(QFileInfo(path).fileName().toStdString());
    LossQuestion question;
    question.text =
        QStringLiteral("„%1“ wird als %2 geschrieben. ").arg(QString::fromStdString(name), formatOf(writer)) +
        QString::fromStdString(LossWords::summary(report));
    for (const std::string& line : LossWords::lines(report, document, mostLines)) {
        question.losses.append(QString::fromStdString(line));
    }
    if (other != nullptr && holdsAll(*other, document)) {
        question.otherFormat = formatOf(*other);
    }
    result.answer = panels.answerTo(question);
    return result;
}

}  // namespace quillon
