// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Stores/AppMode.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>

namespace quillon {

class QuillonApp;

/// A picture of the window for the documentation, asked for by arguments that are no part of the program's
/// interface:
///
///     --grab FILE         opens what the other arguments ask for, writes a picture of the window and quits
///     --grab-check        with the results of the check
///     --grab-reading      with the reading report and the first place of it in the file
///     --grab-select N     with record N selected, counted from 1
///     --grab-compare F    compared with the file F
///     --grab-contest C    with the score by the contest of this raw value
///     --grab-mode M       in this mode, such as "stats"
///     --grab-outdoor P    with the results of the check for this outdoor program
///     --grab-size WxH     with a window of this size in logical pixels
///     --grab-dark         with a dark palette
///
/// Works without a screen too (`QT_QPA_PLATFORM=offscreen`); `QT_SCALE_FACTOR=2` gives twice the pixels.
struct WindowPicture {
    QString path;
    bool withCheck = false;
    bool withReading = false;
    std::optional<std::size_t> selectedRecord;  ///< From zero.
    QString comparedFile;                       ///< Null for none.
    std::optional<Contest> contest;
    std::optional<AppMode> mode;
    std::optional<tallyrig::OutdoorProgram> outdoorProgram;
    std::optional<QSize> size;
    bool isDark = false;

    /// Takes the arguments of this kind out of `arguments`; absent without `--grab`.
    static std::optional<WindowPicture> takenFrom(QStringList& arguments);

    /// Before the window is made.
    void prepare() const;
    /// Takes the picture when the window is up, then quits: with 0 if it is written, otherwise with 1.
    void takeOf(QuillonApp& app) const;
};

}  // namespace quillon
