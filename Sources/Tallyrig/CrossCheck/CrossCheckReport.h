// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckFinding.h"
#include "Tallyrig/CrossCheck/CrossCheckSummary.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace tallyrig {

/// The findings of several logs as one range, log after log. Refers to the lists that it was made of.
class AllFindings {
  public:
    using Lists = std::vector<std::vector<CrossCheckFinding>>;

    class Iterator {
      public:
        using value_type = CrossCheckFinding;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        Iterator(const Lists& findingLists, std::size_t firstList) : lists(&findingLists), list(firstList) {
            passEmptyLists();
        }
        const CrossCheckFinding& operator*() const { return (*lists)[list][place]; }
        Iterator& operator++() {
            ++place;
            passEmptyLists();
            return *this;
        }
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

      private:
        void passEmptyLists() {
            while (list < lists->size() && place == (*lists)[list].size()) {
                ++list;
                place = 0;
            }
        }

        const Lists* lists = nullptr;
        std::size_t list = 0;
        std::size_t place = 0;
    };

    explicit AllFindings(const Lists& findingLists) : lists(findingLists) {}

    Iterator begin() const { return {lists, 0}; }
    Iterator end() const { return {lists, lists.size()}; }
    bool empty() const { return begin() == end(); }

  private:
    const Lists& lists;
};

/// The result of a cross-check. A value that copies in constant time and is never changed.
class CrossCheckReport {
  public:
    using Findings = std::vector<CrossCheckFinding>;

    /// Of no logs.
    CrossCheckReport();
    /// One summary and one list of findings, in the order of its records, for each log. The ids of the logs
    /// are all different.
    CrossCheckReport(std::vector<CrossCheckSummary> summaries, std::vector<Findings> findings);

    /// In the order of the logs.
    const std::vector<CrossCheckSummary>& summaries() const { return contents->summaries; }
    /// All findings, log after log.
    AllFindings findings() const { return AllFindings(contents->findings); }
    /// Those of one log, by its id; empty if it took no part. Good as long as this report or a copy lives.
    std::span<const CrossCheckFinding> findings(UUID logID) const;

    /// Whether both are copies of one report: true only if they are equal, and at once.
    bool isSameAs(const CrossCheckReport& other) const { return contents == other.contents; }
    friend bool operator==(const CrossCheckReport& left, const CrossCheckReport& right) {
        return left.isSameAs(right) || (left.contents->summaries == right.contents->summaries &&
                                        left.contents->findings == right.contents->findings);
    }

  private:
    struct Contents {
        std::vector<CrossCheckSummary> summaries;
        std::vector<Findings> findings;
        std::unordered_map<UUID, std::size_t> positions;
    };

    std::shared_ptr<const Contents> contents;
};

}  // namespace tallyrig
