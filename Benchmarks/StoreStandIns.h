// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/FileManager.h"
#include "Quillon/Platform/Panels.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/TextMeasurer.h"
#include "Quillon/Stores/LogStore.h"
#include "Timing.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

class NoSettings : public Settings {
  public:
    QVariant value(const QString&) const override { return {}; }
    void setValue(const QString&, const QVariant&) override {}
};

class NoPanels : public Panels {
  public:
    std::optional<QString> fileToOpen(PanelUse, const QList<FileType>&) override { return std::nullopt; }
    std::optional<QString> fileToSave(PanelUse, const QString&, const QList<FileType>&) override {
        return std::nullopt;
    }
    QStringList filesAndFoldersToOpen(PanelUse, const QString&) override { return {}; }
    std::optional<QString> folderToWriteTo(PanelUse, const QString&, const QString&) override {
        return std::nullopt;
    }
    LossAnswer answerTo(const LossQuestion&) override { return LossAnswer::cancel; }
};

class NoFileManager : public FileManager {
  public:
    void show(const QString&) override {}
    void select(const QStringList&) override {}
};

class FixedWidths : public TextMeasurer {
  public:
    double width(MeasuredFont, std::string_view text) const override {
        return 7.0 * static_cast<double>(text.size());
    }
    double height(MeasuredFont) const override { return 16; }
};

/// A store with a log of `count` QSOs in it.
class OpenLog {
  public:
    explicit OpenLog(std::size_t count) : store(settings, panels, measurer, fileManager) {
        const QString path = folder.filePath(QStringLiteral("log.adi"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            const std::string& text = tallyrig::benchmarks::logOf(count);
            file.write(text.data(), static_cast<qint64>(text.size()));
            file.close();
        }
        store.open(path);
    }

    LogStore& log() { return store; }

  private:
    QTemporaryDir folder;
    NoSettings settings;
    NoPanels panels;
    FixedWidths measurer;
    NoFileManager fileManager;
    LogStore store;
};

}  // namespace quillon
