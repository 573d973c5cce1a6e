#pragma once

#include "Quillon/Stores/LogStore.h"

#include <optional>

namespace quillon {

/// Brackets what belongs together as one change of the store: when the outermost of them ends, the signals of
/// the properties that differ from before are sent, each once.
class LogStore::Operation {
  public:
    explicit Operation(LogStore& logStore);
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;
    ~Operation();

  private:
    LogStore& store;
    std::optional<Observed> before;  ///< Absent inside another operation.
};

}  // namespace quillon
