// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace quillon {

struct FilePlace;

/// A place in a file as a person sees it: a few lines of the file, byte by byte, with a sign for what is not
/// seen, and the part of one of them that the place is about.
struct RawPlace {
    struct Line {
        std::size_t number = 1;  ///< In the file, from 1.
        QString text;            ///< With "…" where it was cut.
    };

    std::vector<Line> lines;     ///< One or more.
    std::size_t markedLine = 0;  ///< The position in `lines`.
    qsizetype markBegin = 0;     ///< In the text of that line, as `markLength`.
    qsizetype markLength = 0;    ///< 0 at the end of the line.

    static constexpr std::size_t linesAbove = 4;
    static constexpr std::size_t linesBelow = 6;

    /// Lines end as the notes count them: at LF, CR LF or CR. Cost: that of the bytes around the place.
    static RawPlace of(const FilePlace& place);
};

}  // namespace quillon
