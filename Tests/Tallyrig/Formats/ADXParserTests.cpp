// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXParser.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

using testing::Pairs;
using testing::pairs;

using Fields = std::vector<ADIFField>;

/// The document of an ADX file with this between the tags of its root.
ADIFDocument read(const std::string& content) {
    return ADXParser::parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n" + content + "\n</ADX>\n");
}

/// The fields of the only record of such a file.
Fields fieldsOfRecord(const std::string& content) {
    const ADIFDocument log = read("<RECORDS><RECORD>" + content + "</RECORD></RECORDS>");
    EXPECT_EQ(log.records().size(), 1U) << content;
    Fields fields;
    for (const ADIFFieldView field : log.records()[0].fields()) {
        fields.push_back(field.field());
    }
    return fields;
}

TEST(ADXFile, IsReadIntoHeaderAndRecords) {
    const ADIFDocument log = read(
        "<!-- c --><HEADER>\n  <ADIF_VER>3.1.7</ADIF_VER>\n</HEADER>\n<RECORDS>\n"
        "  <RECORD><CALL>DL1ABC</CALL><NAME>J&#246;rg</NAME></RECORD>\n"
        "  <RECORD></RECORD><record><Qso_Date type=\"D\">20240115</Qso_Date><NOTES/></record>\n</RECORDS>");
    EXPECT_EQ(log.headerComment(), "");
    EXPECT_EQ(log.headerFields(), Fields({ADIFField("ADIF_VER", "3.1.7")}));
    ASSERT_EQ(log.records().size(), 3U);
    EXPECT_EQ(pairs(log.records()[0]), Pairs({{"CALL", "DL1ABC"}, {"NAME", "Jörg"}}));
    EXPECT_EQ(pairs(log.records()[1]), Pairs());
    EXPECT_EQ(log.records()[2],
              ADIFRecord(Fields({ADIFField("QSO_DATE", "20240115", "D"), ADIFField("NOTES", "")})));
}

TEST(ADXElement, BecomesAField) {
    const std::pair<std::string, Fields> cases[] = {
        {"<CALL>dl1abc</CALL>", {ADIFField("CALL", "dl1abc")}},
        {"<straße> a\n b\t</straße>", {ADIFField("STRASSE", " a\n b\t")}},
        {"<X TYPE=\"\">1</X><X>2</X>", {ADIFField("X", "1", ""), ADIFField("X", "2")}},
        {"<NOTES>a<![CDATA[<b> &amp; ]]>&lt;c&#62;</NOTES>", {ADIFField("NOTES", "a<b> &amp; <c>")}},
        {"<APP PROGRAMID=\"X\" FIELDNAME=\"Y\" TYPE=\"S\"> v </APP>", {ADIFField("APP_X_Y", " v ", "S")}},
        {"<app programid=\"x\" FieldName=\"y_z\">v</app>", {ADIFField("APP_X_Y_Z", "v")}},
        {"<APP TYPE=\"S\" type=\"N\">v</APP>", {ADIFField("APP__", "v", "S")}},
        {"<USERDEF FIELDNAME=\"epc\" TYPE=\"S\"> 7 </USERDEF>", {ADIFField("EPC", " 7 ")}},
        {"<USERDEF>7</USERDEF>", {ADIFField("", "7")}}};
    for (const auto& [content, fields] : cases) {
        EXPECT_EQ(fieldsOfRecord(content), fields) << content;
    }
}

TEST(ADXDefinition, HasTheFormOfADI) {
    const std::pair<std::string, ADIFField> cases[] = {
        {"<USERDEF FIELDID=\"1\" TYPE=\"E\" ENUM=\"A,B\"> EPC\n</USERDEF>",
         ADIFField("USERDEF1", "EPC,{A,B}", "E")},
        {"<USERDEF FIELDID=\"2\" ENUM=\"\" RANGE=\"0:100\">EPC</USERDEF>",
         ADIFField("USERDEF2", "EPC,{0:100}")},
        {"<USERDEF FIELDID=\"3\" RANGE=\"{0:9}\" ENUM=\"{A}\">EPC</USERDEF>",
         ADIFField("USERDEF3", "EPC,{A}")},
        {"<userdef ENUM=\"\">\u00A0EPC\u2028</userdef>", ADIFField("USERDEF", "EPC")}};
    for (const auto& [element, field] : cases) {
        EXPECT_EQ(read("<HEADER>" + element + "</HEADER>").headerFields(), Fields({field})) << element;
    }
}

TEST(ADXNesting, IsNotChecked) {
    const ADIFDocument inHeader = read(
        "<HEADER><A>1</A><RECORD><B>2</B><USERDEF FIELDNAME=\"C\">3</USERDEF></RECORD><D>4</D></HEADER>"
        "<E>dropped</E>");
    EXPECT_EQ(inHeader.headerFields(), Fields({ADIFField("A", "1"), ADIFField("D", "4")}));
    ASSERT_EQ(inHeader.records().size(), 1U);
    EXPECT_EQ(pairs(inHeader.records()[0]), Pairs({{"B", "2"}, {"C", "3"}}));

    const ADIFDocument inRecord = read("<RECORD><A>1</A><RECORD><B>2</B></RECORD><C>3</C></RECORD>");
    ASSERT_EQ(inRecord.records().size(), 2U);
    EXPECT_EQ(pairs(inRecord.records()[0]), Pairs({{"B", "2"}}));
    EXPECT_EQ(pairs(inRecord.records()[1]), Pairs()) << "the inner record has closed the outer";

    EXPECT_EQ(fieldsOfRecord("x<A TYPE=\"S\">1<B TYPE=\"N\">2</B>3</A>y"),
              Fields({ADIFField("B", "2", "N"), ADIFField("A", "23")}))
        << "text counts from the last opening tag, attributes until a tag closes";
}

TEST(BrokenADX, KeepsTheRecordsBeforeTheBreak) {
    const std::string head = "<ADX><HEADER><P>1</P></HEADER><RECORDS><RECORD><CALL>A</CALL></RECORD>";
    const std::vector<std::string> tails = {"",
                                            "<RECORD><CALL>B</CALL>",
                                            "<RECORD><CALL>B</CALL></RECORDS>",
                                            "</RECORDS></ADX>text<RECORD><CALL>B</CALL></RECORD>",
                                            "<RECORD TYPE><CALL>B</CALL></RECORD>",
                                            "<RECORD x=1></RECORD>",
                                            "<RECORD><1A>B</1A></RECORD>",
                                            "<RECORD><CALL>B & C</CALL></RECORD>",
                                            "<RECORD><CALL>&unknown;</CALL></RECORD>",
                                            "<RECORD><CALL>\xFF</CALL></RECORD>",
                                            std::string("<RECORD><CALL>\0</CALL></RECORD>", 31)};
    for (const std::string& tail : tails) {
        const ADIFDocument log = ADXParser::parse(head + tail);
        EXPECT_EQ(log.headerFields(), Fields({ADIFField("P", "1")})) << tail;
        ASSERT_EQ(log.records().size(), 1U) << tail;
        EXPECT_EQ(pairs(log.records()[0]), Pairs({{"CALL", "A"}})) << tail;
    }
    for (const std::string_view none : {"", "CALL", " <?xml version=\"1.0\"?><ADX/>", "<", "\xEF\xBB\xBF"}) {
        EXPECT_EQ(ADXParser::parse(none), ADIFDocument()) << none;
    }
}

TEST(ADXEncoding, IsWhatTheFileDeclares) {
    const std::string record = "<ADX><RECORD><NAME>J\xF6</NAME></RECORD></ADX>";
    const ADIFDocument latin1 = ADXParser::parse("<?xml version='1.0' encoding='ISO-8859-1'?>" + record);
    ASSERT_EQ(latin1.records().size(), 1U);
    EXPECT_EQ(latin1.records()[0]["NAME"], "Jö");
    EXPECT_TRUE(ADXParser::parse(record).records().empty()) << "without a declaration it is UTF-8";
    for (const std::string wrong : {"EBCDIC", "UTF-16", "", "UTF-8"}) {
        const std::string declaration = "<?xml version='1.0' encoding='" + wrong + "'?>";
        EXPECT_TRUE(ADXParser::parse(declaration + record).records().empty()) << wrong;
    }
    const std::u16string utf16 = u"\uFEFF<ADX><RECORD><A>\u00F6</A></RECORD></ADX>";
    EXPECT_EQ(pairs(ADXParser::parse({reinterpret_cast<const char*>(utf16.data()), 2 * utf16.size()})),
              (std::vector<Pairs>{{{"A", "\u00F6"}}}));
}

TEST(ADXEntities, AreReplacedOnlyFromWithin) {
    const ADIFDocument log = ADXParser::parse(
        "<!DOCTYPE ADX [<!ENTITY me \"DL1ABC\"><!ENTITY file SYSTEM \"file:///etc/hostname\">]>"
        "<ADX><RECORD><CALL>&me;</CALL><NOTES>a&file;b</NOTES></RECORD></ADX>");
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(pairs(log.records()[0]), Pairs({{"CALL", "DL1ABC"}, {"NOTES", "ab"}}));
}

TEST(ADXEntities, EndTheReadingWhereTheyAreUndefined) {
    EXPECT_EQ(pairs(ADXParser::parse("<!DOCTYPE ADX SYSTEM \"adx.dtd\"><ADX><RECORD><A>1</A></RECORD>"
                                     "<RECORD><A>a&foo;b</A></RECORD></ADX>")),
              (std::vector<Pairs>{{{"A", "1"}}}));
}

/// The values of a log whose second record holds an entity made of `times` of another one, which is made of
/// `times` of a third one, and so on.
std::vector<Pairs> withNestedEntities(int depth, int times) {
    std::string declarations = "<!ENTITY e0 \"x\">";
    for (int level = 1; level <= depth; ++level) {
        declarations += "<!ENTITY e" + std::to_string(level) + " \"";
        for (int time = 0; time < times; ++time) {
            declarations += "&e" + std::to_string(level - 1) + ";";
        }
        declarations += "\">";
    }
    return pairs(ADXParser::parse("<!DOCTYPE ADX [" + declarations +
                                  "]><ADX><RECORD><A>1</A></RECORD><RECORD><A>&e" + std::to_string(depth) +
                                  ";</A></RECORD></ADX>"));
}

TEST(ADXEntities, DoNotSwellWithoutBound) {
    EXPECT_EQ(withNestedEntities(100, 1), (std::vector<Pairs>{{{"A", "1"}}, {{"A", "x"}}}));
    EXPECT_EQ(withNestedEntities(12, 10), (std::vector<Pairs>{{{"A", "1"}}}));
    EXPECT_EQ(withNestedEntities(100'000, 1), std::vector<Pairs>()) << "would exhaust the stack";
}

TEST(ADXAttributes, MayBeDeclaredInReasonableNumber) {
    const auto read = [](const std::string& attributes) {
        return ADXParser::parse("<!DOCTYPE ADX [<!ATTLIST A" + attributes +
                                ">]><ADX><RECORD><A x=\"y\">1</A></RECORD></ADX>")
            .records();
    };
    ASSERT_EQ(read(" TYPE CDATA \"S\"").size(), 1U);
    EXPECT_EQ(read(" TYPE CDATA \"S\"")[0], ADIFRecord(Fields({ADIFField("A", "1")})));
    std::string many;
    for (int number = 0; number < 1000; ++number) {
        many += " a" + std::to_string(number) + " CDATA \"x\"";
    }
    EXPECT_TRUE(read(many).empty());
}

}  // namespace
}  // namespace tallyrig
