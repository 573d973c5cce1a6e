// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace tallyrig {

/// A field that mostly says the same as in the record before, as band and mode do. Its value is looked at
/// only where it is another.
class SteadyField {
  public:
    /// Adds `name` to `fields`.
    SteadyField(ContestFields& fields, std::string_view name) : field(fields.add(name)) {}

    /// Reads the record that `fields` stands at, and says whether its value may be another than before.
    bool turn(ContestFields& fields) {
        const std::string_view value = fields.valueOrEmpty(field);
        if (value.size() > sizeof lastWord) {
            lastSize = value.size();
        } else {
            const std::uint64_t word = text::shortWord(value);
            if (value.size() == lastSize && word == lastWord) {
                return false;
            }
            lastWord = word;
            lastSize = value.size();
        }
        take(fields);
        return true;
    }

    /// The value without blanks and tabs around it, in upper case.
    const std::string& name() const { return upperName; }
    /// The same as a part of a key.
    const std::string& key() const { return keyName; }
    /// That of the key among those met so far, counted from 0.
    std::size_t number() const { return entry.number; }
    /// Whether the key has come with this turn for the first time.
    bool isNew() const { return entry.isNew; }

  private:
    void take(ContestFields& fields) {
        upperName = fields.upper(field);
        keyName = fields.key(field);
        entry = numbers.add(keyName);
    }

    std::size_t field;
    // The value as it stands in the record; a long one is looked at each time.
    std::uint64_t lastWord = 0;
    std::size_t lastSize = std::numeric_limits<std::size_t>::max();
    std::string upperName;
    std::string keyName;
    KeyNumbers numbers;
    KeyNumbers::Entry entry{};
};

}  // namespace tallyrig
