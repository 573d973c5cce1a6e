// Validates any document. The findings must be those that the rules give when they are applied one after the
// other, without any of the validator's short cuts.

#include "Fuzz/Require.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "Tallyrig/Validation/ADIFValidator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace tallyrig;

using Kinds = std::vector<std::pair<std::size_t, ValidationKind>>;

bool isWholeNumber(std::string_view value) {
    if (value.starts_with('-') || value.starts_with('+')) {
        value.remove_prefix(1);
    }
    return !value.empty() && text::isAllNumeric(value);
}

bool areGridsquares(std::string_view list) {
    for (const std::string_view piece : text::split(list, ',')) {
        if (!piece.empty() && !ADIFValidator::isValidGridsquare(text::trimmedOfBlanks(piece))) {
            return false;
        }
    }
    return true;
}

std::optional<ValidationKind> formatFinding(const std::string& name, const std::string& value,
                                            const std::string& dataType) {
    const std::string upper = text::upper(value);
    if (dataType == "Date" && !ADIFValidator::isValidDate(value)) {
        return finding::InvalidDate{name, value};
    }
    if (dataType == "Time" && !ADIFValidator::isValidTime(value)) {
        return finding::InvalidTime{name, value};
    }
    if (((dataType == "GridSquare" || dataType == "GridSquareExt") &&
         !ADIFValidator::isValidGridsquare(value)) ||
        (dataType == "GridSquareList" && !areGridsquares(value))) {
        return finding::InvalidGridsquare{name, value};
    }
    if (dataType == "Number" && !text::number(value)) {
        if (name == "FREQ" || name == "FREQ_RX") {
            return finding::NonNumericFrequency{name, value};
        }
        return finding::InvalidValue{name, value, dataType};
    }
    if ((dataType == "PositiveInteger" && !text::isAllNumeric(value)) ||
        (dataType == "Integer" && !isWholeNumber(value)) ||
        (dataType == "Boolean" && upper != "Y" && upper != "N")) {
        return finding::InvalidValue{name, value, dataType};
    }
    return std::nullopt;
}

std::optional<ValidationKind> enumerationFinding(const std::string& name, const std::string& value,
                                                 const FieldDef& definition) {
    if (definition.dataType != "Enumeration" || !definition.enumKey) {
        return std::nullopt;
    }
    const SpecSet* const members = ADIFSpec::enumerations().find(*definition.enumKey);
    if (members == nullptr || members->contains(text::upper(value))) {
        return std::nullopt;
    }
    if (name == "BAND" || name == "BAND_RX") {
        return finding::UnknownBand{value};
    }
    if (name == "MODE") {
        return finding::UnknownMode{value};
    }
    return finding::InvalidEnumeration{name, value};
}

void checkFields(Kinds& found, std::size_t index, const ADIFRecord& record, const ADIFValidator& validator) {
    for (const ADIFFieldView field : record.fields()) {
        const std::string name(field.name);
        const std::string value(text::trimmed(field.value));
        if (value.empty()) {
            continue;
        }
        const FieldDef* const definition = ADIFSpec::fields().find(name);
        if (definition == nullptr) {
            if (validator.checksUnknownFields && !name.starts_with("APP_") && !name.starts_with("USERDEF")) {
                found.emplace_back(index, finding::UnknownField{name});
            }
            continue;
        }
        if (const auto kind = formatFinding(name, value, std::string(definition->dataType))) {
            found.emplace_back(index, *kind);
        }
        if (const auto kind = enumerationFinding(name, value, *definition)) {
            found.emplace_back(index, *kind);
        }
    }
}

void checkStation(Kinds& found, std::size_t index, const ADIFRecord& record) {
    const std::string call(text::trimmed(record.valueOrEmpty("CALL")));
    if (!call.empty() && !ADIFValidator::isPlausibleCallsign(call)) {
        found.emplace_back(index, finding::ImplausibleCallsign{call});
    }
    const std::string band(text::trimmed(record.valueOrEmpty("BAND")));
    const std::string frequency(text::trimmed(record.valueOrEmpty("FREQ")));
    const auto megahertz = text::number(frequency);
    const BandRange* const range = ADIFSpec::bandFrequencies().find(text::upper(band));
    if (megahertz && range != nullptr && (*megahertz < range->lower || *megahertz > range->upper)) {
        found.emplace_back(index, finding::FrequencyOutsideBand{frequency, band});
    }
}

void checkDuplicates(Kinds& found, const ADIFDocument& document, const std::vector<std::string>& keyFields) {
    std::map<std::string, std::vector<std::size_t>> groups;
    std::size_t index = 0;
    for (const ADIFRecord& record : document.records()) {
        std::string key;
        bool isComplete = true;
        for (const std::string& field : keyFields) {
            const std::string value = text::upper(text::trimmed(record.valueOrEmpty(field)));
            isComplete = isComplete && !value.empty();
            key += value + '\x1F';
        }
        if (isComplete) {
            groups[text::canonicalKey(key)].push_back(index + 1);
        }
        ++index;
    }
    for (const auto& [key, numbers] : groups) {
        const auto shared = std::make_shared<const std::vector<std::size_t>>(numbers);
        for (std::size_t own = 0; own < numbers.size() && numbers.size() > 1; ++own) {
            found.emplace_back(numbers[own] - 1,
                               finding::Duplicate{keyFields, OtherRecordNumbers(shared, own)});
        }
    }
}

Kinds plainFindings(const ADIFValidator& validator, const ADIFDocument& document) {
    Kinds found;
    std::size_t index = 0;
    for (const ADIFRecord& record : document.records()) {
        for (const std::string& field : validator.requiredFields) {
            if (validator.checksRequiredFields && text::trimmed(record.valueOrEmpty(field)).empty()) {
                found.emplace_back(index, finding::MissingRequiredField{field});
            }
        }
        if (validator.checksFormats) {
            checkFields(found, index, record, validator);
            checkStation(found, index, record);
        }
        ++index;
    }
    if (validator.checksDuplicates) {
        checkDuplicates(found, document, validator.duplicateKeyFields);
    }
    std::ranges::stable_sort(found, {}, [](const auto& issue) {
        return std::pair(issue.first, severityOf(issue.second) == ValidationSeverity::error ? 0 : 1);
    });
    return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::uint8_t switches = size == 0 ? 0 : bytes[0];
    const std::vector<std::string> keys = (switches & 16U) != 0
                                              ? std::vector<std::string>{"CALL", "BAND", "MODE"}
                                              : std::vector<std::string>{"CALL"};
    const ADIFValidator validator(ADIFValidator::usualRequiredFields(), keys, (switches & 1U) != 0,
                                  (switches & 2U) != 0, (switches & 4U) != 0, (switches & 8U) != 0);
    const ADIFDocument document = ADIFParser::parse({reinterpret_cast<const char*>(bytes), size});

    Kinds found;
    for (const ValidationIssue& issue : validator.issues(document)) {
        found.emplace_back(issue.recordIndex, issue.kind);
    }
    require(found == plainFindings(validator, document), "the findings are those of the plain rules");
    return 0;
}
