// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Validation/SpecTable.h"

#include <string_view>

namespace tallyrig {

/// The form that a data type gives its values, where there is one that can be checked.
enum class ValueForm {
    any,
    date,
    time,
    gridsquare,
    gridsquareList,
    number,
    positiveInteger,
    digit,
    integer,
    boolean,
};

/// Whether a field is one that may stand in a log.
enum class FieldStanding {
    inStandard,
    ownExtension,  ///< `APP_` and `USERDEF` fields, which anyone may make up.
    unknown,
};

/// What the values of a field are checked against.
struct FieldRule {
    std::string_view name = {};
    FieldStanding standing = FieldStanding::unknown;
    ValueForm form = ValueForm::any;
    std::string_view dataType = {};
    const SpecSet* values = nullptr;  ///< Null where any value will do.
};

/// The rule for fields of this name as it stands. It refers to the tag's name.
FieldRule ruleFor(const FieldTag& tag);

}  // namespace tallyrig
