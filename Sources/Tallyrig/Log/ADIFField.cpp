// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFField.h"

#include "Tallyrig/Text/Text.h"

#include <utility>

namespace tallyrig {

ADIFField::ADIFField(std::string_view fieldName, std::string fieldValue, std::optional<std::string> fieldType,
                     UUID fieldID)
    : id(fieldID), name(text::upper(fieldName)), value(std::move(fieldValue)), type(std::move(fieldType)) {}

bool operator==(const ADIFField& left, const ADIFField& right) {
    return text::equal(left.name, right.name) && text::equal(left.value, right.value) &&
           left.type.has_value() == right.type.has_value() &&
           (!left.type || text::equal(*left.type, *right.type));
}

ADIFField ADIFFieldView::field() const {
    ADIFField result(std::string_view(), std::string(value),
                     type ? std::optional(std::string(*type)) : std::nullopt, id);
    // As stored: a name is upper-cased once, when it comes in.
    result.name = name;
    return result;
}

bool operator==(const ADIFFieldView& left, const ADIFFieldView& right) {
    return text::equal(left.name, right.name) && text::equal(left.value, right.value) &&
           left.type.has_value() == right.type.has_value() &&
           (!left.type || text::equal(*left.type, *right.type));
}

}  // namespace tallyrig
