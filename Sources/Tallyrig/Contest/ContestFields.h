// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The fields of one record after the other as scoring reads them: by number, with the entity of the call in
/// `DXCC` where the record does not name one. The texts are good until the next record.
class ContestFields {
  public:
    ContestFields() : call(add("CALL")) {}

    /// Adds a name, before the first record is read; the number by which its value is known.
    std::size_t add(std::string_view name);

    /// Turns to `record`, which has to stay for as long as its values are asked for.
    void read(const ADIFRecord& record) {
        values.read(record);
        ++recordNumber;
        if (dxcc != none) {
            deriveEntity();
        }
    }

    std::string_view valueOrEmpty(std::size_t field) const {
        return field == dxcc && !derivedDXCC.empty() ? derivedDXCC : values.valueOrEmpty(field);
    }
    /// The value without blanks and tabs around it.
    std::string_view trimmed(std::size_t field) const { return text::trimmedOfBlanks(valueOrEmpty(field)); }
    /// Whether there is nothing else in it.
    bool isBlank(std::size_t field) const {
        const std::string_view value = valueOrEmpty(field);
        return value.empty() || (!isPrintable(value.front()) && text::trimmedOfBlanks(value).empty());
    }
    /// The same in upper case.
    std::string_view upper(std::size_t field) {
        const std::string_view value = valueOrEmpty(field);
        return isPlain(value) ? value : foldedOf(field, value).text;
    }
    /// The same as a part of a key: values that are equal in upper case have the same bytes.
    std::string_view key(std::size_t field) {
        const std::string_view value = valueOrEmpty(field);
        return isPlain(value) ? value : foldedOf(field, value).key;
    }

  private:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    /// A value that is not in upper case as it stands, folded when that is first asked for.
    struct Folded {
        std::size_t record = 0;  ///< The number of the record that it is of.
        std::string text;
        std::string key;
    };

    static bool isPrintable(char c) { return c > 0x20 && c < 0x7F; }
    /// Whether `value` is all that there is to be had from it.
    static bool isPlain(std::string_view value) {
        return value.empty() ||
               (isPrintable(value.front()) && isPrintable(value.back()) && text::isUpperASCII(value));
    }
    void deriveEntity();
    const Folded& foldedOf(std::size_t field, std::string_view value);

    RecordValues values;
    std::vector<Folded> folded;
    std::size_t call;
    std::size_t dxcc = none;
    std::string_view derivedDXCC;  ///< Empty if the record names an entity or its call tells none.
    std::size_t recordNumber = 0;
};

}  // namespace tallyrig
