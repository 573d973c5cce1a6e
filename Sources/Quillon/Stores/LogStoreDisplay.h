#pragma once

#include "Quillon/Stores/LogStore.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Which records stand in which row, kept for as long as the log, the search and the sort stay the same. It
/// notices by itself when they do not.
class LogStore::Display {
  public:
    using Rows = std::vector<std::uint32_t>;  ///< Positions in the document.

    /// The records that the search keeps, in the order of the document; null for all of them.
    const Rows* filtered(const Observed& now);
    /// The records on screen in their order; null for all of them in the order of the document.
    const Rows* displayed(const Observed& now);

  private:
    struct Filter {
        tallyrig::ADIFRecordList records;
        QString searchText;
        Rows rows;
    };
    struct Order {
        tallyrig::ADIFRecordList records;
        QString searchText;
        std::string column;
        bool ascending = true;
        Rows rows;
    };

    std::optional<Filter> filter;
    std::optional<Order> order;
};

}  // namespace quillon
