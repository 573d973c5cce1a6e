#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/RecordValues.h"

#include <cstddef>
#include <optional>
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
    void read(const ADIFRecord& record);

    /// Absent if the record has no such field.
    std::optional<std::string_view> operator[](std::size_t field) const {
        return field == dxcc && derivedDXCC ? derivedDXCC : values[field];
    }
    std::string_view valueOrEmpty(std::size_t field) const {
        return (*this)[field].value_or(std::string_view());
    }
    /// The value without blanks and tabs around it.
    std::string_view trimmed(std::size_t field) const;
    /// The same in upper case.
    std::string_view upper(std::size_t field);

  private:
    /// A value in upper case, made when it is first asked for.
    struct Folded {
        std::size_t record = 0;  ///< The number of the record that it is of.
        std::string_view text;
        std::string buffer;
    };

    RecordValues values;
    std::vector<Folded> folded;
    std::size_t call;
    std::optional<std::size_t> dxcc;
    std::optional<std::string_view> derivedDXCC;
    std::size_t recordNumber = 0;
};

}  // namespace tallyrig
