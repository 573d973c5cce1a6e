// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ExchangeCheck.h"

#include "Tallyrig/CrossCheck/ExchangeWord.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using Lines = std::vector<std::string>;

/// What is found in two records; whether their words agree is entered in `agrees`.
Lines mismatches(std::string_view received, std::string_view sent, bool checkRST = false,
                 bool* agrees = nullptr) {
    const auto read = [](const ADIFRecord& record, QSOValues& values) {
        QSOFields::Tables tables;
        QSOFields(record.stored().tags(), tables).read(record.stored(), values);
    };
    const ADIFRecord left = testing::recordOf(received);
    const ADIFRecord right = testing::recordOf(sent);
    QSOValues leftValues;
    QSOValues rightValues;
    read(left, leftValues);
    read(right, rightValues);
    if (agrees != nullptr) {
        *agrees = exchangeWord::agree(exchangeWord::ofReceived(leftValues, checkRST),
                                      exchangeWord::ofSent(rightValues, checkRST));
    }
    return exchangeMismatches(leftValues, rightValues, checkRST);
}

TEST(Exchange, IsComparedWordByWordWithoutReport) {
    const std::tuple<std::string_view, std::string_view, bool> cases[] = {
        {"007", "7", true},
        {"0", "000", true},
        {" dok\tf12 ", "DOK F12", true},
        {"59 123", "0123", true},
        {"59A 123", "599 123", true},
        {"599 JO62", "59 JO62", true},
        {"69 123", "123", false},
        {"59AB 123", "123", false},
        {"5999 123", "123", false},
        {"59", "", false},
        {"59", "599", false},
        {"12 34", "34 12", false},
        {"1 2 3", "1 2", false},
        {"0099999999999999999999", "99999999999999999999", false},
        {"٣", "3", false},
        {"F\u0301", "f\u0301", true},
        {"Å1", "A\u030A1", true},
    };
    for (const auto& [left, right, isEqual] : cases) {
        EXPECT_EQ(exchangeEqual(left, right), isEqual) << left << " and " << right;
        EXPECT_EQ(exchangeEqual(right, left), isEqual) << right << " and " << left;
    }
}

TEST(ExchangeMismatches, ComeInTheOrderOfTheFields) {
    EXPECT_EQ(mismatches("RST_RCVD=599 | GRIDSQUARE=jo62 | SRX=2 | SRX_STRING= B ",
                         "RST_SENT=579 | MY_GRIDSQUARE=JN58td | STX=1 | STX_STRING=A", true),
              (Lines{"Austausch: empfangen B, gesendet A", "Nummer: empfangen 2, gesendet 1",
                     "RST: empfangen 599, gesendet 579", "Locator: empfangen JO62, gesendet JN58TD"}));
}

TEST(ExchangeMismatches, LookAcrossTextAndNumberOnlyIfNothingElseWasCompared) {
    EXPECT_EQ(mismatches("SRX_STRING=8 ", "STX=9"), Lines{"Austausch: empfangen 8 , gesendet 9"});
    EXPECT_EQ(mismatches("SRX_STRING=009", "STX=9"), Lines());
    EXPECT_EQ(mismatches("SRX_STRING=8 | SRX=9", "STX=9"), Lines());
    EXPECT_EQ(mismatches("SRX=8 | RST_RCVD=599", "STX_STRING=59 9 | RST_SENT=599", true),
              Lines{"Austausch: empfangen 8, gesendet 59 9"});
    EXPECT_EQ(mismatches("SRX_STRING= \t | SRX=8", "STX_STRING=9"),
              Lines{"Austausch: empfangen  \t, gesendet 9"});
    EXPECT_EQ(mismatches("SRX=8", "RST_SENT=59"), Lines());
}

TEST(ExchangeWord, AgreesWhereNothingIsToBeFound) {
    const std::pair<std::string_view, std::string_view> usual[] = {
        {"SRX_STRING=0012 | SRX=12", "STX_STRING=012"},
        {"SRX=7 | GRIDSQUARE=JO62", "STX=007"},
        {"SRX=7", "STX=7 | MY_GRIDSQUARE=JO62"},
        {"SRX_STRING=dok f12", "STX_STRING= DOK F12"},
        {"SRX_STRING=ABCDEFGHIJ", "STX_STRING=ABCDEFGHIJ"},
    };
    bool agrees = false;
    for (const auto& [received, sent] : usual) {
        EXPECT_EQ(mismatches(received, sent, false, &agrees), Lines());
        EXPECT_TRUE(agrees) << received;
    }
    mismatches("SRX=7 | RST_RCVD=599", "STX=7 | RST_SENT=599", true, &agrees);
    EXPECT_TRUE(agrees);

    const std::string_view values[] = {"", " ", "7", "07", "8", "7_5", "a", "A", "59 7", "ABCDEFGHIJK"};
    for (const std::string_view text : values) {
        for (const std::string_view number : values) {
            for (const std::string_view otherText : values) {
                for (const std::string_view otherNumber : values) {
                    for (const std::string_view more : {"", "5", "JO62"}) {
                        const std::string received = "SRX_STRING=" + std::string(text) +
                                                     " | SRX=" + std::string(number) +
                                                     " | GRIDSQUARE=JN58 | RST_RCVD=5";
                        const std::string sent =
                            "STX_STRING=" + std::string(otherText) + " | STX=" + std::string(otherNumber) +
                            " | MY_GRIDSQUARE=" + std::string(more) + " | RST_SENT=" + std::string(more);
                        for (const bool checkRST : {false, true}) {
                            const Lines found = mismatches(received, sent, checkRST, &agrees);
                            ASSERT_TRUE(!agrees || found.empty()) << received << " and " << sent;
                        }
                    }
                }
            }
        }
    }
}

TEST(ExchangeMismatches, TakeTheShorterLocatorForTheBeginningOfTheLonger) {
    const std::pair<std::string_view, std::string_view> equal[] = {
        {"JO62", " jo62qm\t"}, {"JO62QMAB", "JO62QM"}, {"JO6", "JN5"}, {"JO62", "JN5"}};
    for (const auto& [left, right] : equal) {
        EXPECT_EQ(mismatches("GRIDSQUARE=" + std::string(left), "MY_GRIDSQUARE=" + std::string(right)),
                  Lines())
            << left;
    }
    EXPECT_EQ(mismatches("GRIDSQUARE=JO62QN", "MY_GRIDSQUARE=JO62QMAA"),
              Lines{"Locator: empfangen JO62QN, gesendet JO62QMAA"});
}

}  // namespace
}  // namespace tallyrig
