// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckStatus.h"
#include "Tallyrig/Log/UUID.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace tallyrig {

/// How many QSOs have come out how.
class CrossCheckCounts {
  public:
    void add(CrossCheckStatus status) { ++counts[static_cast<std::size_t>(status)]; }
    CrossCheckCounts& operator+=(const CrossCheckCounts& other) {
        for (const CrossCheckStatus status : crossCheckStatuses) {
            counts[static_cast<std::size_t>(status)] += other.count(status);
        }
        return *this;
    }

    std::size_t count(CrossCheckStatus status) const { return counts[static_cast<std::size_t>(status)]; }
    std::size_t total() const {
        std::size_t sum = 0;
        for (const std::size_t number : counts) {
            sum += number;
        }
        return sum;
    }
    /// Those in which the operator logged something wrong (`isError`).
    std::size_t errors() const {
        std::size_t sum = 0;
        for (const CrossCheckStatus status : crossCheckStatuses) {
            sum += isError(status) ? count(status) : 0;
        }
        return sum;
    }
    /// Those for which there is a log to tell.
    std::size_t checkable() const {
        return total() - count(CrossCheckStatus::unique) - count(CrossCheckStatus::notCheckable);
    }
    /// The share of the checkable QSOs without an error, from 0 to 1; absent if none is checkable.
    std::optional<double> accuracy() const {
        const auto all = static_cast<double>(checkable());
        return all < 1 ? std::nullopt : std::optional((all - static_cast<double>(errors())) / all);
    }

    friend bool operator==(const CrossCheckCounts&, const CrossCheckCounts&) = default;

  private:
    std::array<std::size_t, crossCheckStatuses.size()> counts{};
};

/// What a cross-check says of one log.
struct CrossCheckSummary {
    UUID logID;
    std::string name;
    std::string owner;
    CrossCheckCounts counts;

    friend bool operator==(const CrossCheckSummary&, const CrossCheckSummary&) = default;
};

}  // namespace tallyrig
