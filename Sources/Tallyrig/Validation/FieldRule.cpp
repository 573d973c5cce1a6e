// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/FieldRule.h"

#include "Tallyrig/Validation/ADIFSpec317.h"

namespace tallyrig {

namespace {

struct FormOfType {
    std::string_view dataType;
    ValueForm form;
};

constexpr FormOfType forms[] = {
    {"Date", ValueForm::date},
    {"Time", ValueForm::time},
    {"GridSquare", ValueForm::gridsquare},
    {"GridSquareExt", ValueForm::gridsquare},
    {"GridSquareList", ValueForm::gridsquareList},
    {"Number", ValueForm::number},
    {"PositiveInteger", ValueForm::positiveInteger},
    {"Digit", ValueForm::digit},
    {"Integer", ValueForm::integer},
    {"Boolean", ValueForm::boolean},
};

ValueForm formOf(std::string_view dataType) {
    for (const FormOfType& row : forms) {
        if (row.dataType == dataType) {
            return row.form;
        }
    }
    return ValueForm::any;
}

}  // namespace

FieldRule ruleFor(const FieldTag& tag) {
    const std::string_view name = tag.name;
    const FieldDef* const definition = ADIFSpec::fields().find(name);
    if (definition == nullptr) {
        const bool isExtension = name.starts_with("APP_") || name.starts_with("USERDEF");
        return {.name = name, .standing = isExtension ? FieldStanding::ownExtension : FieldStanding::unknown};
    }
    // Some fields of type String name an enumeration that only suggests values.
    const bool isEnumerated = definition->dataType == "Enumeration" && definition->enumKey;
    return {.name = name,
            .standing = FieldStanding::inStandard,
            .form = formOf(definition->dataType),
            .dataType = definition->dataType,
            .values = isEnumerated ? ADIFSpec::enumerations().find(*definition->enumKey) : nullptr};
}

}  // namespace tallyrig
