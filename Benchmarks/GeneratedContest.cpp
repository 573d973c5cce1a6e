// SPDX-License-Identifier: GPL-3.0-or-later
#include "GeneratedContest.h"

#include "RandomNumbers.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <unordered_set>

namespace tallyrig::benchmarks {

namespace {

constexpr std::uint32_t minutesOfDay = 1440;
constexpr std::array<std::uint32_t, 5> bandsKHz = {3520, 7020, 14030, 21025, 28040};

struct Station {
    std::string call;
    bool sendsLog = true;
    std::uint32_t serial = 0;
    std::int32_t clockErrorMinutes = 0;
    std::string log;
};

struct Event {
    std::uint32_t minute = 0;
    std::uint32_t left = 0;
    std::uint32_t right = 0;
    std::uint8_t band = 0;
    bool isPhone = false;
};

class Contest {
  public:
    Contest(std::size_t logCount, std::size_t qsoCount) {
        addStations(logCount);
        addEvents(qsoCount);
        for (const Event& event : events) {
            const std::uint32_t leftSerial = ++stations[event.left].serial;
            const std::uint32_t rightSerial = ++stations[event.right].serial;
            // Who does not know that the other has not logged it, has it alone.
            const bool isLost = oneIn(100);
            write(event, stations[event.left], leftSerial, stations[event.right], rightSerial);
            if (!isLost) {
                write(event, stations[event.right], rightSerial, stations[event.left], leftSerial);
            }
        }
    }

    std::vector<std::string> takeLogs() {
        std::vector<std::string> logs;
        for (Station& station : stations) {
            if (station.sendsLog) {
                logs.push_back(
                    fmt::format("START-OF-LOG: 3.0\nCALLSIGN: {}\nCONTEST: EXAMPLE\n", station.call) +
                    std::move(station.log) + "END-OF-LOG:\n");
            }
        }
        return logs;
    }

  private:
    void addStations(std::size_t logCount) {
        constexpr std::size_t otherStations = 4;  // for each that sends a log
        std::unordered_set<std::string> calls;
        while (stations.size() < logCount * (1 + otherStations)) {
            std::string call = newCall();
            if (calls.insert(call).second) {
                Station& station = stations.emplace_back();
                station.call = std::move(call);
                station.sendsLog = stations.size() <= logCount;
                if (oneIn(40)) {
                    station.clockErrorMinutes = static_cast<std::int32_t>(random.below(80)) - 40;
                }
            }
        }
        // The first are the busiest by far.
        double sum = 0;
        for (std::size_t number = 0; number < logCount; ++number) {
            sum += 1 / std::sqrt(static_cast<double>(number) + 5);
            activity.push_back(sum);
        }
    }

    void addEvents(std::size_t qsoCount) {
        constexpr std::uint32_t mostTries = 20;
        const auto loggers = static_cast<std::uint32_t>(activity.size());
        std::unordered_set<std::uint64_t> worked;
        std::size_t logged = 0;
        while (logged < qsoCount) {
            Event event;
            event.minute = random.below(2 * minutesOfDay);
            event.isPhone = oneIn(4);
            // Both sides log what two of them work, so fewer QSOs are with others than entries are.
            const bool isWithOther = random.below(1000) < 195;
            for (std::uint32_t tries = 0; tries < mostTries; ++tries) {
                event.band = static_cast<std::uint8_t>(random.below(bandsKHz.size()));
                event.left = activeStation();
                event.right = isWithOther ? loggers + random.below(4 * loggers) : activeStation();
                const std::uint64_t pair = std::uint64_t{std::min(event.left, event.right)} << 32U |
                                           std::max(event.left, event.right);
                if (event.left != event.right && worked.insert(pair * bandsKHz.size() + event.band).second) {
                    break;
                }
            }
            logged += isWithOther ? 1 : 2;
            if (event.left != event.right) {
                events.push_back(event);
            }
        }
        std::ranges::stable_sort(events, {}, &Event::minute);
    }

    void write(const Event& event, Station& station, std::uint32_t sent, const Station& other,
               std::uint32_t received) {
        if (!station.sendsLog) {
            return;
        }
        std::string call = other.call;
        if (oneIn(66)) {
            mistype(call);
        } else if (oneIn(200)) {
            call = newCall();
        }
        const std::uint32_t number = oneIn(100) ? received + 1 + random.below(9) : received;
        const auto minute = static_cast<std::uint32_t>(std::max(
            0, static_cast<std::int32_t>(event.minute + random.below(3)) + station.clockErrorMinutes));
        const std::string_view report = event.isPhone ? "59" : "599";
        fmt::format_to(std::back_inserter(station.log),
                       "QSO: {:5} {} 2024-11-{:02} {:02}{:02} {:<13} {:<3} {:04}   {:<13} {:<3} {:04}\n",
                       bandsKHz[event.band], event.isPhone ? "PH" : "CW", 23 + minute / minutesOfDay,
                       minute / 60 % 24, minute % 60, station.call, report, sent, call, report, number);
    }

    void mistype(std::string& call) {
        const std::uint32_t place = random.below(static_cast<std::uint32_t>(call.size()));
        switch (random.below(4)) {
            case 0:
                call.erase(place, 1);
                break;
            case 1:
                call.insert(place, 1, letter());
                break;
            default:
                call[place] = letter();
        }
    }

    std::string newCall() {
        constexpr std::array<std::string_view, 12> prefixes = {"DL", "OE", "HB9", "F", "I",  "G",
                                                               "SP", "K",  "JA",  "W", "LU", "UA"};
        std::string call(prefixes[random.below(prefixes.size())]);
        call += static_cast<char>('0' + random.below(10));
        for (std::uint32_t letters = 2 + random.below(2); letters > 0; --letters) {
            call += letter();
        }
        return call;
    }

    std::uint32_t activeStation() {
        const double place = activity.back() * random.below(1U << 30U) / double{1U << 30U};
        return static_cast<std::uint32_t>(std::ranges::upper_bound(activity, place) - activity.begin());
    }

    char letter() { return static_cast<char>('A' + random.below(26)); }
    bool oneIn(std::uint32_t count) { return random.below(count) == 0; }

    RandomNumbers random;
    std::vector<Station> stations;  ///< First those that send a log.
    std::vector<double> activity;   ///< Of those and all before them.
    std::vector<Event> events;
};

}  // namespace

std::vector<std::string> generatedContest(std::size_t logCount, std::size_t qsoCount) {
    return Contest(logCount, qsoCount).takeLogs();
}

}  // namespace tallyrig::benchmarks
