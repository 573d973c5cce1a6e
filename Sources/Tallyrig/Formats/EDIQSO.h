// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Geography/Locator.h"
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

    /// The code of a mode, as `EDIWriter::ediMode` explains, and the number in an exchange, as its
    /// `serialFromExchange` does.
    static std::string_view modeCode(std::optional<std::string_view> mode);
    static std::string_view serialIn(std::optional<std::string_view> exchange);

    /// The kilometres that the QSO counts from `myPlace`, as `EDIWriter::qrbKm` explains.
    std::int64_t km(const std::optional<Coordinate>& myPlace) const;
    /// Appends the line of the QSO, as `EDIWriter::qsoLine` explains.
    void appendLine(std::string& text, std::string_view rcvdWWL, std::string_view points,
                    std::string_view dupl) const;

  private:
    RecordValues values;
};

}  // namespace tallyrig
