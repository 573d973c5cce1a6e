// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace tallyrig {
namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

ADIFDocument logOf(std::string_view text, LogFormat format) {
    LogReader::Log log = LogReader::read(text);
    EXPECT_EQ(log.format, format);
    return std::move(log.document);
}

/// Day, minute, call and numbers of each QSO: what every format has.
std::string contactsOf(const ADIFDocument& log) {
    std::string contacts;
    for (const ADIFRecord& record : log.records()) {
        contacts += record.valueOrEmpty("QSO_DATE");
        contacts += record.valueOrEmpty("TIME_ON").substr(0, 4);
        for (const std::string_view name : {"CALL", "SRX", "STATION_CALLSIGN", "CONTEST_ID"}) {
            contacts += ' ';
            contacts += record.valueOrEmpty(name);
        }
        contacts += '\n';
    }
    return contacts;
}

TEST(ExampleLogs, OutliveEachFormatAsFarAsItReaches) {
    std::size_t count = 0;
    for (const auto& example : std::filesystem::directory_iterator(EXAMPLES_FOLDER)) {
        if (example.is_directory()) {
            continue;  // logs that are to be compared with each other, and lack a time on purpose
        }
        SCOPED_TRACE(example.path());
        const ADIFDocument log = LogReader::read(contentOf(example.path())).document;
        EXPECT_FALSE(log.records().empty());
        ++count;

        EXPECT_EQ(logOf(ADIFWriter{}.write(log), LogFormat::adif).records(), log.records());
        EXPECT_EQ(logOf(ADXWriter{}.write(log), LogFormat::adx).records(), log.records());

        CabrilloWriter cabrillo{CabrilloHeader::suggested(log)};
        if (!cabrillo.header.callsign.empty()) {
            // Without call and reports, columns are missing that hold the others in their places.
            const ADIFDocument fromCabrillo = logOf(cabrillo.write(log), LogFormat::cabrillo);
            EXPECT_EQ(fromCabrillo.records().size(), log.records().size());
            const ADIFDocument again = logOf(cabrillo.write(fromCabrillo), LogFormat::cabrillo);
            EXPECT_EQ(again.records(), fromCabrillo.records());
        }

        const EDIWriter edi{EDIHeader::suggested(log)};
        const std::string ediText = edi.write(log);
        const ADIFDocument fromEDI = logOf(ediText, LogFormat::edi);
        EXPECT_EQ(fromEDI.records().size(), log.records().size());
        const ADIFDocument again = logOf(edi.write(fromEDI), LogFormat::edi);
        EXPECT_EQ(again.records(), fromEDI.records());
    }
    EXPECT_GE(count, 7U);
}

TEST(ExampleLogs, TellOfOneContestInFourFormats) {
    const std::filesystem::path folder = EXAMPLES_FOLDER;
    const std::string contacts = contactsOf(logOf(contentOf(folder / "maerzcontest.adi"), LogFormat::adif));
    EXPECT_EQ(contactsOf(logOf(contentOf(folder / "maerzcontest.adx"), LogFormat::adx)), contacts);
    EXPECT_EQ(contactsOf(logOf(contentOf(folder / "maerzcontest.cbr"), LogFormat::cabrillo)), contacts);
    EXPECT_EQ(contactsOf(logOf(contentOf(folder / "maerzcontest.edi"), LogFormat::edi)), contacts);
}

}  // namespace
}  // namespace tallyrig
