// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ValidationSettings.h"

namespace quillon {

DuplicateCriterion currentDuplicateCriterion(const Settings& settings) {
    return duplicateCriterionOrDefault(settings.string(setting::duplicateCriterion).toStdString());
}

tallyrig::ADIFValidator validatorFor(const Settings& settings) {
    return {tallyrig::ADIFValidator::usualRequiredFields(),
            keyFields(currentDuplicateCriterion(settings)),
            settings.boolean(setting::checkRequired, true),
            settings.boolean(setting::checkFormat, true),
            settings.boolean(setting::checkDuplicates, true),
            settings.boolean(setting::checkUnknownFields, true)};
}

}  // namespace quillon
