// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/WritingReport.h"

#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace tallyrig {
namespace {

using testing::document;

const ADIFWriter adi{"Quillon", "1.2", "3.1.7", true};
const ADXWriter adx{"Quillon", "1.2", "3.1.7", true};

template <typename Writer>
WritingReport lossesOf(const Writer& writer, const ADIFDocument& log) {
    return readBack(writer, log, writer.write(log));
}

/// "2 field A:B=1" for a field of the record at 2, "- value …" for one of the header.
std::string shown(const WritingReport& report) {
    constexpr const char* names[] = {"otherFormat", "comment", "field", "value", "type", "record", "log"};
    std::string text;
    for (const WritingLoss& loss : report.losses) {
        text += text.empty() ? "" : "; ";
        text += (loss.recordIndex ? std::to_string(*loss.recordIndex) : "-") + " " +
                names[static_cast<std::size_t>(loss.kind)];
        text += loss.field.empty() && loss.value.empty() ? "" : " " + loss.field + "=" + loss.value;
        text += loss.readBack.empty() ? "" : ">" + loss.readBack;
    }
    return text + (report.unreadCount > 0 ? " !" + std::to_string(report.unreadCount) : "");
}

ADIFDocument logWith(std::vector<ADIFField> header, std::vector<ADIFField> fields = {}) {
    const std::vector<ADIFField> good = {ADIFField("CALL", "DL1AB")};
    fields.insert(fields.begin(), good.front());
    return {"", std::move(header), ADIFRecordList({ADIFRecord(good), ADIFRecord(fields), ADIFRecord(good)})};
}

TEST(WritingLosses, AreNamedWithTheirFields) {
    const std::tuple<ADIFDocument, std::string, std::string> cases[] = {
        {logWith({}, {{"A:B", "1"}, {"NAME", "Jörg"}}), "1 field A:B=1", ""},
        {logWith({}, {{"EOR", "1"}}), "1 field EOR=1", ""},
        {logWith({}, {{"eoh", "1"}}), "1 field EOH=1", ""},
        {logWith({}, {{"A>", ""}}), "1 field A>=", "1 field A>="},
        {logWith({}, {{" A", "1", "S"}}), "1 field  A=1", "1 field  A=1 !2"},
        {logWith({}, {{"A B", "1"}}), "", "1 field A B=1 !2"},
        {logWith({}, {{"1ST", "x"}}), "", "1 field 1ST=x !2"},
        {logWith({}, {{"APP", "1"}}), "", "1 field APP=1"},
        {logWith({}, {{"RECORD", "1"}}), "", "1 field RECORD=1"},
        {logWith({}, {{"A", "1", " S"}}), "1 type A= S", ""},
        {logWith({}, {{"A", "b\x01"}, {"C", "d"}}), "", "1 value A=b\x01 !2"},
        {logWith({}, {{"A", "\xEF\xBF\xBF"}}), "", "1 value A=\xEF\xBF\xBF !2"},
        {logWith({{"X:Y", "1"}}), "- field X:Y=1", ""},
        {logWith({{"X", "\x1B"}}), "", "- value X=\x1B !3"},
        {logWith({{"USERDEF1", "EPC,1:2,{3:4}"}}), "", ""},
        {{"a <b>c", {}, {}}, "- comment =a <b>c>a", ""},
        {{"START-OF-LOG: 3.0", {}, {}}, "- otherFormat", ""},
    };
    for (const auto& [log, inADI, inADX] : cases) {
        EXPECT_EQ(shown(lossesOf(adi, log)), inADI) << adi.write(log);
        EXPECT_EQ(shown(lossesOf(adx, log)), inADX) << adx.write(log);
    }
}

TEST(WritingLosses, AreNoneInWhatWritersDoOnPurposeAndInOtherSpellings) {
    const ADIFDocument logs[] = {
        {},
        {"Kommentar", {{"PROGRAMID", "Other"}, {"ADIF_VER", "3.0", "S"}}, {}},
        logWith({{"USERDEF1", " EPC,A,B", "E"}}, {{"EPC", "A", "E"}, {"EMPTY", ""}, {"T", "x", ""}}),
        logWith({}, {{"NOTES", "a\r\nb <EOR> &c;\n"}, {"NAME", "Jo\xCC\x88rg "}, {"NAME", "zweimal"}}),
        logWith({}, {{"APP_X_Y", "1", "S"}, {"APP_X", "1"}, {"APP__Y", "1"}, {"ÄÖ", "1"}}),
        {"", {}, ADIFRecordList({ADIFRecord(), ADIFRecord()})},
    };
    for (const ADIFDocument& log : logs) {
        EXPECT_EQ(shown(lossesOf(adi, log)), "") << adi.write(log);
        EXPECT_EQ(shown(lossesOf(adx, log)), "") << adx.write(log);
        const ADIFWriter withoutHeader{"Quillon", "1.2", "3.1.7", false};
        EXPECT_EQ(shown(lossesOf(withoutHeader, log)), "") << withoutHeader.write(log);
    }
}

TEST(WritingLosses, AreCountedBeyondThoseThatAreNamed) {
    std::vector<testing::Pairs> records(30'000, {{"CALL", "DL1AB"}, {"A B", "1"}});
    records[700].emplace_back("NOTES", "\x02");
    const WritingReport report = lossesOf(adx, document(records));
    EXPECT_EQ(report.losses.size(), WritingReport::mostLosses);
    EXPECT_EQ(report.lossCount, 30'001U);
    EXPECT_EQ(report.recordCount, 30'000U);
    EXPECT_TRUE(report.isComplete);
    std::vector<testing::Pairs> values(10'100, {{"NOTES", "\x02"}});
    EXPECT_FALSE(lossesOf(adx, document(values)).isComplete);
}

/// Logs of names, values and types that come near to what a format cannot carry.
class RandomLogs {
  public:
    ADIFDocument next() {
        std::vector<ADIFRecord> records;
        for (std::size_t count = below(6); count > 0; --count) {
            std::vector<ADIFField> fields = {{"CALL", "DL1AB"}};
            for (std::size_t field = below(4); field > 0; --field) {
                fields.push_back(this->field());
            }
            records.emplace_back(fields);
        }
        std::vector<ADIFField> header;
        for (std::size_t count = below(3); count > 0; --count) {
            header.push_back(field());
        }
        return {"", std::move(header), ADIFRecordList(std::move(records))};
    }

  private:
    std::size_t below(std::size_t limit) { return random() % limit; }
    std::string text(const std::vector<std::string>& pieces, std::size_t least) {
        std::string result;
        for (std::size_t count = least + below(3); count > 0; --count) {
            result += pieces[below(pieces.size())];
        }
        return result;
    }
    ADIFField field() {
        static const std::vector<std::string> names = {"A", "B1", "APP_", "X_Y", "É", "QSO", "N-", "R.",
                                                       ":", ">",  "<",    " ",   "1", "&",   "\t", "EOR"};
        static const std::vector<std::string> values = {
            "x", "<EOR>", "ö", " ", "&amp;", "\n", "<A:3>", "]]>", "\"", "\x03", "", "\xEF\xBF\xBE"};
        static const std::vector<std::string> types = {"S", "N", " ", ":", ">", "\""};
        const std::vector<std::string> plain(names.begin(), names.begin() + 8);
        const std::vector<std::string> harmless(values.begin(), values.begin() + 9);
        ADIFField field(text(below(4) == 0 ? names : plain, 1), text(below(4) == 0 ? values : harmless, 0));
        if (below(4) == 0) {
            field.type = text(types, 1);
        }
        return field;
    }

    std::mt19937 random{20260711};
};

/// The log without the fields of which the report tells.
ADIFDocument withoutLosses(const ADIFDocument& log, const WritingReport& report) {
    const auto isLost = [&](std::optional<std::size_t> index, const ADIFField& field) {
        return std::ranges::any_of(report.losses, [&](const WritingLoss& loss) {
            return loss.recordIndex == index && loss.field == field.name &&
                   loss.value == (loss.kind == LossKind::type ? field.type.value_or("") : field.value);
        });
    };
    std::vector<ADIFField> header = log.headerFields();
    std::erase_if(header, [&](const ADIFField& field) { return isLost(std::nullopt, field); });
    std::vector<ADIFRecord> records;
    for (const ADIFRecord& record : log.records()) {
        std::vector<ADIFField> fields;
        for (const ADIFFieldView& field : record.fields()) {
            if (!isLost(records.size(), field.field())) {
                fields.push_back(field.field());
            }
        }
        records.emplace_back(fields);
    }
    return {"", std::move(header), ADIFRecordList(std::move(records))};
}

template <typename Writer>
void expectTruth(const Writer& writer, const ADIFDocument& log) {
    const std::string text = writer.write(log);
    const WritingReport report = readBack(writer, log, text);
    const bool isSame = LogReader::readWithoutReport(text).document.records() == log.records();
    EXPECT_TRUE(isSame || !report.isEmpty()) << text;
    const ADIFDocument rest = withoutLosses(log, report);
    EXPECT_EQ(shown(lossesOf(writer, rest)), "") << text << "\nnamed: " << shown(report);
    for (const WritingLoss& loss : report.losses) {
        EXPECT_NE(loss.kind, LossKind::log) << text;
        if (loss.kind == LossKind::value && loss.recordIndex) {
            const ADIFDocument alone = testing::document({{{loss.field, loss.value}}});
            EXPECT_NE(LogReader::readWithoutReport(writer.write(alone)).document.records(), alone.records());
        }
    }
}

TEST(WritingLosses, AreAllAndNoneIsInventedInAnyLog) {
    RandomLogs logs;
    for (int round = 0; round < 3'000 && !HasFailure(); ++round) {
        const ADIFDocument log = logs.next();
        expectTruth(adi, log);
        expectTruth(adx, log);
    }
}

}  // namespace
}  // namespace tallyrig
