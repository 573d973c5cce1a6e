// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXWriter.h"

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::document;

using Fields = std::vector<ADIFField>;

const std::string moment = "20240115 120000";

ADXWriter writer(bool writeHeader) {
    return {"Quillon", "1.2", "3.1.7", writeHeader};
}

/// What stands between the tags of the only record, or of the header where there is one.
std::string inside(const std::string& text, const std::string& name) {
    const std::size_t begin = text.find("<" + name + ">\n") + name.size() + 3;
    return text.substr(begin, text.find("</" + name + ">") - begin);
}

TEST(ADXHeader, HoldsTheFourFieldsOfTheWriter) {
    const ADIFDocument log("Kommentar", {ADIFField("PROGRAMID", "Other", "S"), ADIFField("X", "<1>")}, {});
    EXPECT_EQ(writer(true).write(log, moment),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n  <HEADER>\n"
              "    <PROGRAMID TYPE=\"S\">Quillon</PROGRAMID>\n"
              "    <X>&lt;1&gt;</X>\n"
              "    <ADIF_VER>3.1.7</ADIF_VER>\n"
              "    <PROGRAMVERSION>1.2</PROGRAMVERSION>\n"
              "    <CREATED_TIMESTAMP>20240115 120000</CREATED_TIMESTAMP>\n"
              "  </HEADER>\n  <RECORDS>\n  </RECORDS>\n</ADX>\n");
}

TEST(ADXHeader, IsTheDocumentsOwnWhereTheWriterPutsInNone) {
    EXPECT_EQ(writer(false).write(ADIFDocument("Kommentar", {ADIFField("PROGRAMID", "Other")}, {}), moment),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n  <HEADER>\n"
              "    <PROGRAMID>Other</PROGRAMID>\n"
              "  </HEADER>\n  <RECORDS>\n  </RECORDS>\n</ADX>\n");
    EXPECT_EQ(writer(false).write({}, moment),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n  <RECORDS>\n  </RECORDS>\n</ADX>\n");
}

TEST(ADXDefinition, IsWrittenInItsParts) {
    const std::pair<ADIFField, std::string> cases[] = {
        {ADIFField("USERDEF1", "EPC,{A,B}", "E"),
         "<USERDEF FIELDID=\"1\" TYPE=\"E\" ENUM=\"{A,B}\">EPC</USERDEF>"},
        {ADIFField("USERDEF22", "EPC,0:100", ""), "<USERDEF FIELDID=\"22\" RANGE=\"{0:100}\">EPC</USERDEF>"},
        {ADIFField("USERDEF3", " E<C ,\"&\""),
         "<USERDEF FIELDID=\"3\" ENUM=\"{&quot;&amp;&quot;}\"> E&lt;C </USERDEF>"},
        {ADIFField("USERDEF٣", "EPC,"), "<USERDEF FIELDID=\"٣\" ENUM=\"{}\">EPC</USERDEF>"},
        {ADIFField("USERDEF", "EPC,{A}"), "<USERDEF>EPC,{A}</USERDEF>"},
        {ADIFField("USERDEF1A", "EPC"), "<USERDEF1A>EPC</USERDEF1A>"},
        {ADIFField("APP_X_Y", "1"), "<APP_X_Y>1</APP_X_Y>"}};
    for (const auto& [field, line] : cases) {
        const std::string text = writer(false).write(ADIFDocument("", {field}, {}), moment);
        EXPECT_EQ(inside(text, "HEADER"), "    " + line + "\n  ") << field.name;
    }
}

TEST(ADXField, IsWrittenAsTheElementOfItsKind) {
    const std::pair<ADIFField, std::string> cases[] = {
        {ADIFField("CALL", "DL1ABC"), "<CALL>DL1ABC</CALL>"},
        {ADIFField("NOTES", "a \"<b>\" & &amp;\n", "M"),
         "<NOTES TYPE=\"M\">a \"&lt;b&gt;\" &amp; &amp;amp;\n</NOTES>"},
        {ADIFField("NOTES", "", ""), "<NOTES></NOTES>"},
        {ADIFField("NOTES", "1", "\"<&>"), "<NOTES TYPE=\"&quot;&lt;&amp;&gt;\">1</NOTES>"},
        {ADIFField("APP_X_Y_Z", "&", "S"), "<APP PROGRAMID=\"X\" FIELDNAME=\"Y_Z\" TYPE=\"S\">&amp;</APP>"},
        {ADIFField("APP_X_", "1"), "<APP PROGRAMID=\"X\" FIELDNAME=\"\">1</APP>"},
        {ADIFField("APP_X", "1"), "<APP_X>1</APP_X>"},
        {ADIFField("APP__Y", "1"), "<APP__Y>1</APP__Y>"},
        {ADIFField("ÉPC", "<", "N"), "<USERDEF FIELDNAME=\"ÉPC\">&lt;</USERDEF>"},
        {ADIFField("RANGED", "5"), "<USERDEF FIELDNAME=\"RANGED\">5</USERDEF>"},
        {ADIFField("UNDEFINED", "5"), "<UNDEFINED>5</UNDEFINED>"},
        {ADIFField("2 M", "5"), "<2 M>5</2 M>"}};
    const Fields header = {ADIFField("USERDEF1", " e\u0301pc ,{A}"), ADIFField("USERDEF2", "ranged,0:5"),
                           ADIFField("USERDEFX", "UNDEFINED"), ADIFField("USERDEF3", " ,{A}")};
    for (const auto& [field, line] : cases) {
        const ADIFDocument log("", header, ADIFRecordList({ADIFRecord(Fields({field}))}));
        EXPECT_EQ(inside(writer(false).write(log, moment), "RECORD"), "      " + line + "\n    ");
    }
}

TEST(WrittenADX, IsNotMendedWhereTheFormatCannotCarryIt) {
    for (const std::string name : {"2M", "A B", "", "A<", "A>B<C", "/A", "!--"}) {
        const std::string text = writer(false).write(document({{{"A", "1"}}, {{name, "2"}}}), moment);
        const ADIFRecordList records = ADXParser::parse(text).records();
        ASSERT_FALSE(records.empty()) << name;
        EXPECT_EQ(records[0]["A"], "1") << name;
    }
}

}  // namespace
}  // namespace tallyrig
