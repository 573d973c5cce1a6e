// SPDX-License-Identifier: GPL-3.0-or-later
#include "GeneratedLog.h"

#include "RandomNumbers.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>
#include <string_view>

namespace tallyrig::benchmarks {

namespace {

void append(std::string& text, std::string_view name, std::string_view value) {
    fmt::format_to(std::back_inserter(text), "<{}:{}>{} ", name, value.size(), value);
}

struct BandPlace {
    std::string_view band;
    double frequency;
};

constexpr std::array<BandPlace, 8> bands = {{{"80M", 3.5},
                                             {"40M", 7.0},
                                             {"30M", 10.1},
                                             {"20M", 14.0},
                                             {"17M", 18.07},
                                             {"15M", 21.0},
                                             {"10M", 28.0},
                                             {"2M", 144.2}}};
constexpr std::array<std::string_view, 5> modes = {"CW", "SSB", "FT8", "RTTY", "FT8"};
constexpr std::array<std::string_view, 10> prefixes = {"DL", "OE", "HB9", "F",  "I",
                                                       "G",  "SP", "K",   "JA", "UA3"};
constexpr std::array<std::string_view, 10> countries = {
    "Fed. Rep. of Germany", "Austria", "Switzerland",    "France", "Italy", "England", "Poland",
    "United States",        "Japan",   "European Russia"};
constexpr std::array<std::string_view, 10> operators = {"Jörg", "Anna", "Peter", "Karl", "Maria",
                                                        "Hans", "Eva",  "Paul",  "Otto", "Klaus"};

std::string randomCall(RandomNumbers& random, std::uint32_t country) {
    const std::uint32_t digit = random.below(10);
    std::string call = fmt::format("{}{}", prefixes[country], digit);
    for (int letter = 0; letter < 3; ++letter) {
        call += static_cast<char>('A' + random.below(26));
    }
    return call;
}

}  // namespace

std::string generatedLog(std::size_t count) {
    RandomNumbers random;
    std::string text = "Logbuch\n<ADIF_VER:5>3.1.7 <PROGRAMID:7>Example <EOH>\n\n";
    text.reserve(text.size() + count * 340);
    for (std::size_t qso = 0; qso < count; ++qso) {
        const std::uint32_t country = random.below(10);
        const BandPlace& place = bands[random.below(8)];
        const std::string call = randomCall(random, country);
        const std::string time =
            fmt::format("{:02}{:02}{:02}", random.below(24), random.below(60), random.below(60));
        append(text, "CALL", call);
        append(
            text, "QSO_DATE",
            fmt::format("{}{:02}{:02}", 2000 + random.below(24), 1 + random.below(12), 1 + random.below(28)));
        append(text, "TIME_ON", time);
        append(text, "TIME_OFF", time);
        append(text, "BAND", place.band);
        append(text, "FREQ", fmt::format("{:.4f}", place.frequency + random.below(90) / 1000.0));
        append(text, "MODE", modes[random.below(5)]);
        append(text, "RST_SENT", "599");
        append(text, "RST_RCVD", "579");
        append(text, "GRIDSQUARE", fmt::format("JO{}{}qm", random.below(10), random.below(10)));
        append(text, "NAME", operators[random.below(10)]);
        append(text, "COUNTRY", countries[country]);
        append(text, "DXCC", fmt::format("{}", 200 + random.below(80)));
        append(text, "CQZ", fmt::format("{}", 1 + random.below(40)));
        append(text, "TX_PWR", "100");
        append(text, "OPERATOR", "DL1ABC");
        append(text, "STATION_CALLSIGN", "DL1ABC");
        append(text, "MY_GRIDSQUARE", "JO62qm");
        append(text, "QSL_SENT", "N");
        text += "<EOR>\n";
    }
    return text;
}

std::string generatedContestLog(std::size_t count) {
    constexpr std::size_t secondsOfDay = 86400;
    RandomNumbers random;
    std::string text = "<ADIF_VER:5>3.1.7 <EOH>\n";
    const BandPlace* place = nullptr;
    std::string frequency;
    std::string_view mode;
    for (std::size_t qso = 0; qso < count; ++qso) {
        if (place == nullptr || random.below(8) == 0) {
            place = &bands[random.below(bands.size())];
            frequency = fmt::format("{:.3f}", place->frequency + random.below(90) / 1000.0);
            mode = random.below(4) == 0 ? "SSB" : "CW";
        }
        const std::string_view report = mode == "CW" ? "599" : "59";
        const std::string sent = fmt::format("{:04}", qso + 1);
        const std::string received = fmt::format("{:04}", 1 + random.below(3000));
        const std::size_t second = qso * 2 * secondsOfDay / count;
        append(text, "CALL", randomCall(random, random.below(10)));
        append(text, "QSO_DATE", second < secondsOfDay ? "20240323" : "20240324");
        append(text, "TIME_ON",
               fmt::format("{:02}{:02}{:02}", second / 3600 % 24, second / 60 % 60, second % 60));
        append(text, "BAND", place->band);
        append(text, "FREQ", frequency);
        append(text, "MODE", mode);
        append(text, "RST_SENT", report);
        append(text, "STX", std::to_string(qso + 1));
        append(text, "STX_STRING", sent);
        append(text, "RST_RCVD", report);
        append(text, "SRX", std::to_string(std::stoi(received)));
        append(text, "SRX_STRING", received);
        append(text, "GRIDSQUARE", fmt::format("JO{}{}qm", random.below(10), random.below(10)));
        append(text, "CONTEST_ID", "EXAMPLE-CONTEST");
        append(text, "OPERATOR", "DL1ABC");
        append(text, "STATION_CALLSIGN", "DL0ABC");
        append(text, "MY_GRIDSQUARE", "JO62qm");
        text += "<EOR>\n";
    }
    return text;
}

std::string generatedScoredLog(std::size_t count, std::string_view band) {
    constexpr std::array<std::string_view, 5> shortWave = {"80M", "40M", "20M", "15M", "10M"};
    constexpr std::size_t secondsOfDay = 86400;
    RandomNumbers random;
    std::string text = "<ADIF_VER:5>3.1.7 <EOH>\n";
    std::string_view place = band;
    std::string_view mode;
    for (std::size_t qso = 0; qso < count; ++qso) {
        if (mode.empty() || random.below(8) == 0) {
            place = band.empty() ? shortWave[random.below(5)] : band;
            mode = random.below(4) == 0 ? "SSB" : "CW";
        }
        const std::size_t second = qso * 2 * secondsOfDay / count;
        append(text, "CALL", randomCall(random, random.below(10)));
        append(text, "QSO_DATE", second < secondsOfDay ? "20240323" : "20240324");
        append(text, "TIME_ON",
               fmt::format("{:02}{:02}{:02}", second / 3600 % 24, second / 60 % 60, second % 60));
        append(text, "BAND", place);
        append(text, "MODE", mode);
        append(text, "RST_SENT", "599");
        append(text, "RST_RCVD", "599");
        append(text, "STX", std::to_string(qso + 1));
        append(text, "SRX", std::to_string(1 + random.below(3000)));
        append(text, "CQZ", std::to_string(1 + random.below(40)));
        append(text, "GRIDSQUARE",
               fmt::format("J{}{}{}{}{}", static_cast<char>('M' + random.below(4)), random.below(10),
                           random.below(10), static_cast<char>('A' + random.below(24)),
                           static_cast<char>('A' + random.below(24))));
        append(text, "MY_GRIDSQUARE", "JO62QM");
        text += "<EOR>\n";
    }
    return text;
}

}  // namespace tallyrig::benchmarks
