#pragma once

#include "Tallyrig/Formats/Locator.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/RecordValues.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// What an EDI file takes from a QSO, for one record after the other.
class EDIQSO {
  public:
    EDIQSO();

    /// Turns to `record`, which has to stay for as long as it is asked about.
    void read(const ADIFRecord& record) { values.read(record); }

    /// As stored, empty where the record has none.
    std::string_view call() const;
    std::string_view band() const;
    std::string_view gridsquare() const;
    std::string_view country() const;

    /// `EDIWriter::qrbKm`.
    std::int64_t km(const std::optional<Coordinate>& myPlace) const;
    /// Appends `EDIWriter::qsoLine`.
    void appendLine(std::string& text, std::string_view rcvdWWL, std::string_view points,
                    std::string_view dupl) const;

  private:
    RecordValues values;
};

/// `whole`, which has no fraction, in 64 bits; absent for infinity, not-a-number and what lies beyond.
std::optional<std::int64_t> wholeNumber(double whole);

}  // namespace tallyrig
