// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The columns of a table from left to right and their widths in logical pixels.
///
/// Names are fields in upper case, none twice. Those given to the functions may be of any case. A width
/// belongs to a name, whether there is such a column or not.
class ColumnLayout {
  public:
    using Names = std::vector<std::string>;
    using Widths = std::map<std::string, double, std::less<>>;  ///< By canonical key of the name.

    /// The columns in which to show a log at first: its fields, or the usual ones for a log without any.
    static Names namesFor(const tallyrig::ADIFDocument& document);
    /// A name as the user typed it, made ready to be a column's: trimmed, without "<", ">" and ":", in upper
    /// case.
    static std::string cleanedName(std::string_view typed);
    /// Whether a cleaned name begins with A to Z and holds A to Z, 0 to 9 and "_" only.
    static bool isValidName(std::string_view cleanedName);
    /// The width of a column that nobody has set, 70 to 180.
    static double defaultWidth(std::string_view name);

    const Names& names() const { return columns; }
    void setNames(Names names) { columns = std::move(names); }
    bool contains(std::string_view name) const;

    // Changes. Where the answer is false or none, nothing has changed.
    /// Appends a column of the name as typed; false if that is no valid name or there is such a column.
    bool add(std::string_view typed);
    /// Appends a column of any name if there is none.
    void append(std::string name);
    enum class Renaming { refused, needless, done };
    /// Gives the column `old` the name as typed. Its width goes with it. Needless if it is so called already;
    /// refused if there is no such column, or the new one is no valid name or taken.
    Renaming rename(std::string_view old, std::string_view typed);
    /// Inserts a column directly behind `name`, with its width, and gives its name: the first free one of
    /// `name`, "_" and a number from 2 on. None if there is no column `name`.
    std::optional<std::string> duplicate(std::string_view name);
    /// Removes the column and the width kept for this name; false if there was no such column.
    bool remove(std::string_view name);
    /// Swaps the column with the one `offset` places further on; false if there are not both.
    bool moveBy(std::string_view name, int offset);
    /// Moves the column in front of `target`, to the end if there is no such column; false if there is no
    /// column `name` or the two are one.
    bool moveBefore(std::string_view name, std::string_view target);

    const Widths& widths() const { return widthsSet; }
    double width(std::string_view name) const;
    /// Sets the width, at least 48 and at most 600.
    void setWidth(double width, std::string_view name);

  private:
    Names::iterator find(std::string_view upperName);

    Names columns;
    Widths widthsSet;
};

}  // namespace quillon
