// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFParser.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tallyrig {
namespace {

using namespace std::string_literals;
using testing::fields;
using testing::logOf;
using testing::pairs;
using testing::Pairs;

std::vector<Pairs> recordsOf(std::string_view bytes) {
    return pairs(ADIFParser::parse(bytes));
}

Pairs fieldsOf(std::string_view bytes) {
    const std::vector<Pairs> records = recordsOf(bytes);
    EXPECT_EQ(records.size(), 1U) << bytes;
    return records.empty() ? Pairs() : records[0];
}

TEST(Reading, KeepsHeaderAndRecordsApartByTheEndOfHeader) {
    const ADIFDocument log = ADIFParser::parse("Logbuch\n<ADIF_VER:5>3.1.7<EOH>\n<CALL:5>DL1AB<eor>");
    EXPECT_EQ(log.headerComment(), "Logbuch");
    ASSERT_EQ(log.headerFields().size(), 1U);
    EXPECT_EQ(log.headerFields()[0], ADIFField("ADIF_VER", "3.1.7"));
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records()[0]["CALL"], "DL1AB");

    const ADIFDocument headless = ADIFParser::parse("Logbuch\n<CALL:5>DL1AB<EOR>");
    EXPECT_EQ(headless.headerComment(), "") << "without a header, the text in front is lost";
    EXPECT_EQ(headless.records().size(), 1U);

    const ADIFDocument twice =
        ADIFParser::parse("c<A:1>1<EOH><CALL:1>X<EOR><B:1>2<EOH><CALL:1>Y<EOR><C:1>3<EOH>");
    ASSERT_EQ(twice.headerFields().size(), 1U) << "a later header replaces the fields read so far";
    EXPECT_EQ(twice.headerFields()[0].name, "C");
    EXPECT_EQ(twice.headerComment(), "c");
    EXPECT_EQ(twice.records().size(), 2U);
}

TEST(Reading, GivesTheEmptyDocumentWhereThereIsNoTag) {
    for (const std::string& text : {""s, "no tag"s, "text <"s, "text <CALL:5"s}) {
        EXPECT_EQ(ADIFParser::parse(text), ADIFDocument()) << text;
    }
}

TEST(Tags, GiveNameLengthAndType) {
    // Each tag stands in front of "12345"; then the name, the value and the type of its field.
    const Pairs cases = fields(
        "CALL:5=CALL/12345/- |  call : 5 =CALL/12345/- | Call:3:s=CALL/123/s | CALL:3: S \n=CALL/123/S | "
        "CALL:3:=CALL/123/ | CALL:=CALL//- | CALL:abc=CALL//- | CALL:-3:S=CALL//S | CALL::S=CALL//S | "
        "CALL:+2=CALL/12/- | CALL:002=CALL/12/- | CALL:1e0=CALL//- | CALL:9223372036854775808=CALL//- | "
        "=//- | :2=/12/- | A<B:2=A<B/12/- | stra\xC3\x9F:2=STRASS/12/- | stra\xDF:2=STRASS/12/- | "
        "n:2:\xF6=N/12/\u00F6 | CALL\u00A0:2=CALL/12/-");
    for (const auto& [tag, field] : cases) {
        // Once by itself and once where a record before it has taught the reader what to expect.
        for (const std::string& before : {""s, "<" + tag + ">12345<EOR>", "<CALL:5>DL1AB<EOR>"s}) {
            const ADIFDocument log = ADIFParser::parse(before + "<" + tag + ">12345 <EOR><X:1>1<EOR>");
            ASSERT_GE(log.records().size(), 2U) << tag;
            const ADIFRecord& record = log.records()[log.records().size() - 2];
            ASSERT_EQ(record.fields().size(), 1U) << tag;
            const auto& [id, name, value, type] = record.fields()[0];
            const std::string found = std::string(name) + "/" + std::string(value) + "/";
            EXPECT_EQ(found + std::string(type.value_or("-")), field) << tag;
        }
    }
}

TEST(Tags, AreExpectedAsTheLastRecordHadThemAndReadAsTheyStand) {
    // Names that begin alike, types that come and go, records of other shape: none may be taken for the
    // expected one.
    EXPECT_EQ(pairs(ADIFParser::parse("<CALL:2>AB<BAND:3>20m<EOR>"
                                      "<CALL:2>CD<BAND_RX:3>40m<BAND:3>80m<EOR>"
                                      "<CALL:2:S>EF<BAND:3:E>15m<EOR>"
                                      "<BAND:3>10m<CALL:2>GH<EOR>"
                                      "<CAL:2>IJ<CALLX:2>KL<EOR>")),
              pairs(logOf({"CALL=AB | BAND=20m", "CALL=CD | BAND_RX=40m | BAND=80m", "CALL=EF | BAND=15m",
                           "BAND=10m | CALL=GH", "CAL=IJ | CALLX=KL"})));
    const ADIFDocument log = ADIFParser::parse("<CALL:2>AB<EOR><CALL:2:S>EF<EOR><CALL:2>AB<EOR>");
    EXPECT_EQ(log.records()[1].fields()[0].type, "S");
    EXPECT_EQ(log.records()[2].fields()[0].type, std::nullopt);
}

TEST(EndOfRecord, IsTakenInAnyCaseAndWithAnything) {
    EXPECT_EQ(recordsOf("<A:1>1<EOR><A:1>2<eor><A:1>3< Eor ><A:1>4<EOR:7:x><A:1>5").size(), 5U)
        << "a last record without its mark is kept";
    EXPECT_EQ(recordsOf("<EOR><EOR>"), (std::vector<Pairs>{{}, {}}));
    EXPECT_EQ(fieldsOf("<EORX:1>1<EOR>"), fields("EORX=1"));
    EXPECT_EQ(ADIFParser::parse("c<EOH:3>").headerComment(), "c");
}

TEST(Values, AreTakenByTheirLengthInBytes) {
    EXPECT_EQ(fieldsOf("<CALL:20>DL1AB"), fields("CALL=DL1AB"));
    EXPECT_EQ(fieldsOf("<CALL:9223372036854775807>DL1AB<EOR>"), fields("CALL=DL1AB<EOR>"));
    EXPECT_EQ(fieldsOf("<N:9><A:1>x<b><EOR>"), fields("N=<A:1>x<b>"));
    EXPECT_EQ(fieldsOf("<N:2>12345 rest<M:1>x<EOR>"), fields("N=12 | M=x"))
        << "what a length leaves behind is skipped";
    EXPECT_EQ(fieldsOf("<N:3> 1 <M:0><O:2>\r\n<EOR>"), fields("N= 1  | M= | O=\r\n"));
    EXPECT_EQ(fieldsOf("<N:3>a\0b<EOR>"s), fields("N=a\0b"s));
}

TEST(Values, AreDecodedOneByOne) {
    EXPECT_EQ(fieldsOf("<NAME:5>J\xC3\xB6rg<QTH:4>K\xF6ln<NAME:4>J\xF6rg<EOR>"),
              fields("NAME=Jörg | QTH=Köln | NAME=Jörg"));
    EXPECT_EQ(fieldsOf("<NAME:2>J\xC3\xB6rg<EOR>"), fields("NAME=JÃ"))
        << "a length that cuts a sequence in two";
    EXPECT_EQ(ADIFParser::parse("Gr\xFC\xDF <PROGRAMID:1>\xE4<EOH>").headerComment(), "Grüß");
}

TEST(Identities, AreFreshForEveryRecordAndField) {
    const ADIFDocument log = ADIFParser::parse("<A:1>1<B:1>2<EOR><A:1>3<EOR>");
    std::vector<UUID> ids;
    for (const ADIFRecord& record : log.records()) {
        ids.push_back(record.id());
        for (const ADIFFieldView& field : record.fields()) {
            ids.push_back(field.id);
        }
    }
    std::ranges::sort(ids);
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end());
    EXPECT_EQ(log, ADIFParser::parse("<A:1>1<B:1>2<EOR><A:1>3<EOR>"));
}

TEST(Reading, SurvivesWhateverItIsGiven) {
    EXPECT_EQ(recordsOf(std::string(1'000'000, '<')).size(), 0U);
    EXPECT_EQ(recordsOf(std::string(1'000'000, '<') + ">").size(), 1U);
    std::string manyNames;
    for (int number = 0; number < 30'000; ++number) {
        manyNames += "<N" + std::to_string(number) + ":1>v";
    }
    const ADIFDocument wide = ADIFParser::parse(manyNames + "<EOR>" + manyNames);
    ASSERT_EQ(wide.records().size(), 2U);
    EXPECT_EQ(wide.records()[1].fields().size(), 30'000U);
    EXPECT_EQ(wide.fieldNames().size(), 30'000U);
}

}  // namespace
}  // namespace tallyrig
