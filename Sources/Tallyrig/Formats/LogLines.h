#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Text/Characters.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the readers and writers of the line-by-line contest formats, Cabrillo and EDI, have in common.
namespace tallyrig {

/// The bytes of a file as text: UTF-8 if they are that throughout, otherwise ISO 8859-1. A UTF-8 byte order
/// mark at the head is passed over.
class FileText {
  public:
    /// `bytes` are referred to.
    explicit FileText(std::string_view bytes);
    FileText(const FileText&) = delete;
    FileText& operator=(const FileText&) = delete;

    std::string_view text() const { return view; }

  private:
    std::string decoded;  ///< Where the bytes are not the text themselves.
    std::string_view view;
};

/// Takes the next line off the front of `rest`, without its line break; empty when none is left. Lines end at
/// LF, VT, FF, CR, U+0085, U+2028 and U+2029. Empty lines are passed over, and with them the LF of a CR LF.
std::string_view takeLine(std::string_view& rest);

/// Finds the first pieces of `line` between blanks (U+0020) and tabs, as many as there is room for in
/// `pieces`. False if there are fewer.
bool splitAtBlanks(std::string_view line, std::span<std::string_view> pieces);

/// Whether `text` is `count` characters long.
bool hasLength(std::string_view text, std::size_t count);

/// The numeric characters of `text`, of any script, without all others.
std::string numericCharacters(std::string_view text);

/// The digits of a time column, with the seconds "00" behind four.
std::string timeOfColumn(std::string_view column);

using text::firstCharacters;

/// Appends `text` as a column of exactly `width` characters: cut, or filled up with blanks behind.
void appendColumn(std::string& line, std::string_view text, std::size_t width);

/// The records by the text of `QSO_DATE` and `TIME_ON` together, an absent field counting as empty. Those of
/// one moment keep the order of the log.
std::vector<ADIFRecord> inTimeOrder(const ADIFRecordList& records);

/// The first value in the log that is not empty: record by record, in each `record[name]` for one name after
/// the other. Empty if there is none. Refers to the document.
std::string_view firstValue(const ADIFDocument& document, std::initializer_list<std::string_view> names);

}  // namespace tallyrig
