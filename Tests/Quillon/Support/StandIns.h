// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/FileManager.h"
#include "Quillon/Platform/Panels.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/TextMeasurer.h"

#include <QStringList>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace quillon::testing {

using MemorySettings = PassingSettings;

/// Panels that answer from a list; with none left, as a user who cancels.
class ScriptedPanels : public Panels {
  public:
    std::optional<QString> fileToOpen(PanelUse, const QList<FileType>& types) override {
        offeredTypes = types;
        return nextAnswer();
    }
    std::optional<QString> fileToSave(PanelUse, const QString& proposedName,
                                      const QList<FileType>& types) override {
        offeredTypes = types;
        proposedNames.append(proposedName);
        return nextAnswer();
    }

    QStringList filesAndFoldersToOpen(PanelUse, const QString& message) override {
        messages.append(message);
        return std::exchange(answers, {});
    }
    std::optional<QString> folderToWriteTo(PanelUse, const QString& message, const QString& button) override {
        messages.append(message + QLatin1Char('|') + button);
        return nextAnswer();
    }
    LossAnswer answerTo(const LossQuestion& question) override {
        lossQuestions.push_back(question);
        return lossAnswer;
    }

    QStringList answers;  ///< One for each question; all of them for the one that takes several.
    QStringList messages;
    QStringList proposedNames;     ///< One for each question where to save.
    QList<FileType> offeredTypes;  ///< In the last question.
    std::vector<LossQuestion> lossQuestions;
    LossAnswer lossAnswer = LossAnswer::cancel;  ///< To each of them.

  private:
    std::optional<QString> nextAnswer() {
        return answers.isEmpty() ? std::nullopt : std::optional(answers.takeFirst());
    }
};

/// A file manager that notes what it is asked for.
class NotingFileManager : public FileManager {
  public:
    void show(const QString& folder) override { shown.append(folder); }
    void select(const QStringList& paths) override { shown += paths; }

    QStringList shown;
};

/// Fonts in which each byte has the same width.
class FixedMeasurer : public TextMeasurer {
  public:
    double width(MeasuredFont font, std::string_view text) const override {
        if (font == MeasuredFont::cell) {
            measuredCells.emplace_back(text);
        }
        return bytes.at(font) * static_cast<double>(text.size());
    }
    double height(MeasuredFont) const override { return 16; }

    std::map<MeasuredFont, double> bytes = {
        {MeasuredFont::cell, 7.3}, {MeasuredFont::label, 6}, {MeasuredFont::tag, 5}};
    mutable std::vector<std::string> measuredCells;
};

}  // namespace quillon::testing
