// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/WindowPicture.h"

#include "Quillon/App/QuillonApp.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QTimer>

#include <algorithm>

namespace quillon {

namespace {

bool takeSwitch(QStringList& arguments, const QString& name) {
    return arguments.removeAll(name) > 0;
}

/// The argument behind `name`, taken out with it; null if there is none.
QString takeValue(QStringList& arguments, const QString& name) {
    const qsizetype position = arguments.indexOf(name);
    if (position < 0 || position + 1 >= arguments.size()) {
        return {};
    }
    arguments.removeAt(position);
    return arguments.takeAt(position);
}

std::optional<QSize> sizeFrom(const QString& text) {
    const QStringList sides = text.split(QLatin1Char('x'));
    return sides.size() == 2 ? std::optional(QSize(sides[0].toInt(), sides[1].toInt())) : std::nullopt;
}

std::optional<AppMode> modeFrom(const QString& text) {
    const auto* const mode = std::ranges::find(allAppModes, text, storedValue);
    return mode != allAppModes.end() ? std::optional(*mode) : std::nullopt;
}

std::optional<tallyrig::OutdoorProgram> programFrom(const QString& name) {
    const auto* const found =
        std::ranges::find(tallyrig::outdoorPrograms, name.toStdString(),
                          [](tallyrig::OutdoorProgram program) { return rawValue(program); });
    return found == tallyrig::outdoorPrograms.end() ? std::nullopt : std::optional(*found);
}

QPalette darkPalette() {
    const QColor ground(0x2a, 0x2e, 0x32);
    const QColor text(0xfc, 0xfc, 0xfc);
    QPalette palette(text, QColor(0x31, 0x36, 0x3b), QColor(0x4d, 0x53, 0x59), QColor(0x1b, 0x1e, 0x20),
                     QColor(0x3f, 0x44, 0x49), text, Qt::white, QColor(0x1b, 0x1e, 0x20), ground);
    palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, QColor(0x1d, 0x99, 0xf3));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7c, 0x80, 0x83));
    }
    return palette;
}

}  // namespace

std::optional<WindowPicture> WindowPicture::takenFrom(QStringList& arguments) {
    WindowPicture picture;
    picture.path = takeValue(arguments, QStringLiteral("--grab"));
    picture.withCheck = takeSwitch(arguments, QStringLiteral("--grab-check"));
    picture.withReading = takeSwitch(arguments, QStringLiteral("--grab-reading"));
    picture.isDark = takeSwitch(arguments, QStringLiteral("--grab-dark"));
    picture.comparedFile = takeValue(arguments, QStringLiteral("--grab-compare"));
    picture.contest = contestNamed(takeValue(arguments, QStringLiteral("--grab-contest")).toStdString());
    picture.mode = modeFrom(takeValue(arguments, QStringLiteral("--grab-mode")));
    picture.outdoorProgram = programFrom(takeValue(arguments, QStringLiteral("--grab-outdoor")));
    picture.size = sizeFrom(takeValue(arguments, QStringLiteral("--grab-size")));
    if (const uint number = takeValue(arguments, QStringLiteral("--grab-select")).toUInt(); number > 0) {
        picture.selectedRecord = number - 1;
    }
    return picture.path.isNull() ? std::nullopt : std::optional(picture);
}

void WindowPicture::prepare() const {
    if (isDark) {
        QApplication::setPalette(darkPalette());
    }
}

void WindowPicture::takeOf(QuillonApp& app) const {
    if (size) {
        app.window().resize(*size);
    }
    QObject::connect(&app.window(), &ContentView::cameUp, &app.window(), [picture = *this, &app] {
        if (picture.withCheck) {
            app.store().runCheck();
        }
        if (picture.withReading) {
            app.window().showReadingNotes();
        }
        if (picture.outdoorProgram) {
            app.store().setMode(AppMode::outdoor);
            app.store().setOutdoorProgram(*picture.outdoorProgram);
            app.store().runOutdoorCheck();
        }
        if (picture.selectedRecord) {
            app.store().selectRecord(*picture.selectedRecord);
        }
        if (!picture.comparedFile.isNull()) {
            app.compare().load(CompareStore::Side::right, picture.comparedFile);
            app.store().setMode(AppMode::compare);
        }
        if (picture.contest) {
            app.contest().setContest(*picture.contest);
            app.store().setMode(AppMode::contest);
        }
        if (picture.mode) {
            app.store().setMode(*picture.mode);
        }
        QTimer::singleShot(0, &app.window(), [picture, &app] {
            while (app.window().isWorking()) {
                QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
            // A pane within a pane is laid out a turn later than what it stands in.
            constexpr int layoutTurns = 4;
            for (int turn = 0; turn < layoutTurns; ++turn) {
                QApplication::processEvents();
            }
            QApplication::exit(app.window().grab().save(picture.path) ? 0 : 1);
        });
    });
}

}  // namespace quillon
