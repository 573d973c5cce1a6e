// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/SpotTime.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tallyrig {

/// Many QSOs of which the nearest in time is asked for again and again, while one after the other is used up.
class Candidates {
  public:
    using Number = std::uint32_t;

    struct Candidate {
        SpotTime spotTime;
        Number number = 0;
    };
    struct Hit {
        Number number = 0;
        std::int64_t minutesApart = 0;
    };
    using IsUsed = std::function<bool(Number)>;

    /// Of equally near ones the first in this order counts.
    explicit Candidates(std::vector<Candidate> inOrderOfPreference) : all(std::move(inOrderOfPreference)) {}

    /// The nearest to `minutes` that is not used, on the spot or, without one, on any. A QSO that is used
    /// once is so for good. Cost: a few binary searches; the first time sorting.
    std::optional<Hit> nearest(std::optional<SpotTime::Spot> spot, std::int64_t minutes,
                               const IsUsed& isUsed);

  private:
    /// They in one of the orders in which they are searched: with or without heed to the spot and the time.
    class Line {
      public:
        Line(const std::vector<Candidate>& candidates, bool hasSpots, bool hasTimes);

        std::optional<Hit> nearest(SpotTime::Spot spot, std::int64_t minutes, const IsUsed& isUsed);

      private:
        struct Item {
            SpotTime spotTime;
            Number preference;
            Number number;
        };

        std::size_t firstFrom(SpotTime spotTime) const;
        std::optional<std::size_t> nearestLeft(SpotTime::Spot spot, std::int64_t minutes);
        void takeOut(std::size_t place);
        /// The first place from `place` on that was not taken out; behind the last if there is none.
        std::size_t leftFrom(std::size_t place);
        /// One more than the last place before `place` that was not taken out; 0 if there is none.
        std::size_t leftBefore(std::size_t place);

        std::vector<Item> items;
        std::vector<Number> next;      ///< Where to look on for what is left, itself where it is left.
        std::vector<Number> previous;  ///< The same for what lies before.
    };

    std::vector<Candidate> all;
    std::array<std::optional<Line>, 4> lines;  ///< Made when they are first asked for.
};

}  // namespace tallyrig
