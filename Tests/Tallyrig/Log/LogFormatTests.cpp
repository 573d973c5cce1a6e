// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/LogFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tallyrig {
namespace {

TEST(Detection, GoesByTheContentAlone) {
    const std::pair<std::string, LogFormat> cases[] = {
        {"", LogFormat::adif},
        {"\xFF\xFE\x00", LogFormat::adif},
        {"<ADIF_VER:5>3.1.7", LogFormat::adif},
        {"\n\r\n  START-OF-LOG: 3.0\n", LogFormat::cabrillo},
        {"start-of-log: 2.0", LogFormat::cabrillo},
        {"x START-OF-LOG: 3.0", LogFormat::adif},
        {"[REG1TEST;1]\nTName=", LogFormat::edi},
        {"text [reg1test;1]", LogFormat::edi},
        {"START-OF-LOG: 3.0\n[REG1TEST;1]", LogFormat::edi},
        {"<?xml version=\"1.0\"?><html>", LogFormat::adx},
        {"comment <adx><EOH>", LogFormat::adx},
        {"Stra\xDF"
         "e <ADX",
         LogFormat::adx},
        {std::string(3'000, 'x') + "[REG1TEST;1]", LogFormat::adif},
        {std::string(2'047, '\xC3') + "\xB6[REG1TEST;1]", LogFormat::adif},
        {std::string(2'040, ' ') + "<ADX", LogFormat::adx},
        {std::string(2'045, ' ') + "<ADX", LogFormat::adif}};
    for (const auto& [data, format] : cases) {
        EXPECT_EQ(LogFormatDetector::detect(data), format) << data.substr(0, 40);
    }
}

}  // namespace
}  // namespace tallyrig
