// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ValidationRun.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "Tallyrig/Validation/DuplicateGroups.h"

#include <algorithm>
#include <string>

namespace tallyrig {

namespace {

/// Empty pieces do not count, so that a list of commas is a good one.
bool isGridsquareList(std::string_view text) {
    return std::ranges::all_of(text::split(text, ','), [](std::string_view piece) {
        return piece.empty() || ADIFValidator::isValidGridsquare(text::trimmedOfBlanks(piece));
    });
}

bool isInteger(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return !text.empty() && text::isAllNumeric(text);
}

bool isBoolean(std::string_view text) {
    return text == "Y" || text == "N" || text == "y" || text == "n";
}

bool hasForm(ValueForm form, std::string_view value) {
    switch (form) {
        case ValueForm::any:
            return true;
        case ValueForm::date:
            return ADIFValidator::isValidDate(value);
        case ValueForm::time:
            return ADIFValidator::isValidTime(value);
        case ValueForm::gridsquare:
            return ADIFValidator::isValidGridsquare(value);
        case ValueForm::gridsquareList:
            return isGridsquareList(value);
        case ValueForm::number:
            return text::number(value).has_value();
        case ValueForm::positiveInteger:
            return text::isAllNumeric(value);
        case ValueForm::digit:
            return text::characterCount(value) == 1 && text::isAllNumeric(value);
        case ValueForm::integer:
            return isInteger(value);
        case ValueForm::boolean:
            return isBoolean(value);
    }
    return true;
}

}  // namespace

ValidationRun::ValidationRun(const ADIFValidator& settings, const ADIFRecordList& log)
    : validator(settings),
      records(log),
      duplicateKeyFields(settings.duplicateKeyFields),
      callColumn(values.add("CALL")),
      bandColumn(values.add("BAND")),
      frequencyColumn(values.add("FREQ")) {
    for (const std::string& field : validator.requiredFields) {
        requiredColumns.push_back(values.add(field));
        missingRequired.push_back(Shared<ValidationKind>::make(finding::MissingRequiredField{field}));
    }
}

std::vector<ValidationIssue> ValidationRun::issues() {
    if (validator.checksDuplicates) {
        findDuplicates();
    }
    for (const ADIFRecord& record : records) {
        const std::size_t begin = found.size();
        values.read(record);
        if (validator.checksRequiredFields) {
            checkRequiredFields();
        }
        if (validator.checksFormats) {
            checkFields(record);
            checkCallsign();
            checkFrequency();
        }
        addDuplicate();
        putErrorsFirst(begin);
        ++recordIndex;
    }
    return std::move(found);
}

void ValidationRun::checkRequiredFields() {
    for (std::size_t position = 0; position < requiredColumns.size(); ++position) {
        if (values.trimmed(requiredColumns[position]).empty()) {
            add(missingRequired[position]);
        }
    }
}

void ValidationRun::checkFields(const ADIFRecord& record) {
    const RecordStorage& stored = record.stored();
    const FieldRule* const ruleByTag = rules.of(stored.tags(), ruleFor);
    for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
        const FieldRule& rule = ruleByTag[stored.tagNumber(index)];
        if (const std::string_view own = stored.ownValue(index); !own.empty()) {
            checkValue(rule, own);
        } else if (const FieldTag& tag = stored.tag(index); tag.sharedValue) {
            checkSharedValue(rule, tag);
        }
    }
}

void ValidationRun::checkValue(const FieldRule& rule, std::string_view storedValue) {
    const std::string_view value = text::trimmed(storedValue);
    if (value.empty()) {
        return;
    }
    if (rule.standing == FieldStanding::inStandard) {
        checkForm(rule, value);
        checkMembership(rule, value);
    } else if (rule.standing == FieldStanding::unknown && validator.checksUnknownFields) {
        add(finding::UnknownField{std::string(rule.name)});
    }
}

/// A value that many records share may be of any length: it is checked, and said in a finding, once.
void ValidationRun::checkSharedValue(const FieldRule& rule, const FieldTag& tag) {
    const auto [entry, isNew] = sharedValueKinds.try_emplace(&tag);
    if (!isNew) {
        for (const Shared<ValidationKind>& kind : entry->second) {
            add(kind);
        }
        return;
    }
    const std::size_t begin = found.size();
    checkValue(rule, *tag.sharedValue);
    for (std::size_t index = begin; index < found.size(); ++index) {
        entry->second.push_back(found[index].sharedKind());
    }
}

void ValidationRun::checkForm(const FieldRule& rule, std::string_view value) {
    if (hasForm(rule.form, value)) {
        return;
    }
    std::string field(rule.name);
    std::string text(value);
    switch (rule.form) {
        case ValueForm::date:
            add(finding::InvalidDate{std::move(field), std::move(text)});
            return;
        case ValueForm::time:
            add(finding::InvalidTime{std::move(field), std::move(text)});
            return;
        case ValueForm::gridsquare:
        case ValueForm::gridsquareList:
            add(finding::InvalidGridsquare{std::move(field), std::move(text)});
            return;
        case ValueForm::number:
            if (field == "FREQ" || field == "FREQ_RX") {
                add(finding::NonNumericFrequency{std::move(field), std::move(text)});
                return;
            }
            break;
        default:
            break;
    }
    add(finding::InvalidValue{std::move(field), std::move(text), rule.dataType});
}

void ValidationRun::checkMembership(const FieldRule& rule, std::string_view value) {
    if (rule.values == nullptr || rule.values->contains(text::upper(value))) {
        return;
    }
    std::string text(value);
    if (rule.name == "BAND" || rule.name == "BAND_RX") {
        add(finding::UnknownBand{std::move(text)});
    } else if (rule.name == "MODE") {
        add(finding::UnknownMode{std::move(text)});
    } else {
        add(finding::InvalidEnumeration{std::string(rule.name), std::move(text)});
    }
}

void ValidationRun::checkCallsign() {
    const std::string_view call = values.trimmed(callColumn);
    if (!call.empty() && !ADIFValidator::isPlausibleCallsign(call)) {
        add(finding::ImplausibleCallsign{std::string(call)});
    }
}

void ValidationRun::checkFrequency() {
    const std::string_view frequency = values.trimmed(frequencyColumn);
    const auto megahertz = text::number(frequency);
    if (!megahertz) {
        return;
    }
    const std::string_view band = values.trimmed(bandColumn);
    const BandRange* const range = ADIFSpec::bandFrequencies().find(text::upper(band));
    // Not a number is neither below nor above a band.
    if (range != nullptr && (*megahertz < range->lower || *megahertz > range->upper)) {
        add(finding::FrequencyOutsideBand{std::string(frequency), std::string(band)});
    }
}

void ValidationRun::findDuplicates() {
    for (std::vector<std::size_t>& group : duplicateGroups(records, validator.duplicateKeyFields)) {
        memberships.resize(records.size());
        auto numbers = std::make_shared<std::vector<std::size_t>>(std::move(group));
        for (std::size_t position = 0; position < numbers->size(); ++position) {
            std::size_t& number = (*numbers)[position];
            memberships[number] = {numbers, position};
            ++number;
        }
    }
}

void ValidationRun::addDuplicate() {
    if (recordIndex >= memberships.size()) {
        return;
    }
    Membership& membership = memberships[recordIndex];
    if (membership.numbers != nullptr) {
        add(finding::Duplicate{duplicateKeyFields,
                               OtherRecordNumbers(std::move(membership.numbers), membership.position)});
    }
}

void ValidationRun::add(Shared<ValidationKind> kind) {
    if (found.size() == found.capacity()) {
        // Room for as many findings in the records to come as there were in those behind, at most eight times
        // as many as there are: a list that grows by copying needs twice its memory.
        const std::size_t atThisRate = found.size() / (recordIndex + 1) * records.size();
        found.reserve(std::clamp(atThisRate, found.size() + found.size() / 2, found.size() * 8) + 64);
    }
    found.emplace_back(recordIndex, std::move(kind));
}

void ValidationRun::putErrorsFirst(std::size_t begin) {
    const auto isError = [](const ValidationIssue& issue) {
        return issue.severity() == ValidationSeverity::error;
    };
    const auto first = found.begin() + static_cast<std::ptrdiff_t>(begin);
    if (!std::is_partitioned(first, found.end(), isError)) {
        std::stable_partition(first, found.end(), isError);
    }
}

}  // namespace tallyrig
