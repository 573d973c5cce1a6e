#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestMultiplier.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What a QSO shows of one multiplier. Refers to the multiplier.
class MultiplierKey {
  public:
    /// Adds the fields that it reads.
    MultiplierKey(const ContestMultiplier& multiplier, ContestFields& fields);

    /// The key of the record that `fields` stands at, empty if it has none. Good until the next call. Keys
    /// that mean the same are the same bytes.
    std::string_view read(ContestFields& fields, std::string_view band, std::string_view mode);

  private:
    std::string_view rawValue(ContestFields& fields);
    std::string_view allowedValue(ContestFields& fields) const;
    std::string_view firstValue(ContestFields& fields) const;
    std::string_view callArea(ContestFields& fields);
    bool counts(std::string_view value) const;

    const ContestMultiplier& multiplier;
    std::size_t call;
    std::size_t dxcc = 0;
    std::vector<std::size_t> candidates;  ///< The field and its fallbacks.
    std::string held;                     ///< A raw value that stands in no field.
    std::string key;
};

}  // namespace tallyrig
