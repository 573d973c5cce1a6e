// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordStorage.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// The name of a field as it is looked up: any text, brought to upper case once and without a copy where it
/// is in upper case already. Refers to that text.
class FieldName {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): every text is a name.
    FieldName(std::string_view name);
    FieldName(const FieldName&) = delete;
    FieldName& operator=(const FieldName&) = delete;

    std::string_view upper() const { return upperName; }

    /// Whether the stored name of `tag` is canonically equivalent to this one.
    bool isNameOf(const FieldTag& tag) const {
        // Of two names in ASCII none is another spelling of the other.
        return tag.name == upperName || (!(isASCII && tag.hasASCIIName) && text::equal(tag.name, upperName));
    }

  private:
    std::string text;  ///< Where the name given is not in upper case.
    std::string_view upperName;
    bool isASCII = true;
};

/// Whether a field with this tag is called `name`.
inline bool isNamed(const FieldTag& tag, const FieldName& name) {
    return name.isNameOf(tag);
}

/// The index of the first field called `name`; absent if there is none.
inline std::optional<std::size_t> indexOfField(const RecordStorage& record, const FieldName& name) {
    const FieldTags& tags = record.tags();
    for (std::size_t index = 0; index < record.fieldCount(); ++index) {
        if (name.isNameOf(tags[record.tagNumber(index)])) {
            return index;
        }
    }
    return std::nullopt;
}

}  // namespace tallyrig
