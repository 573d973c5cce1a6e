// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Kept/KeptLogs.h"

#include "Quillon/Support/LogText.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Tallyrig/Formats/LogReader.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <memory>
#include <string>

namespace quillon {
namespace {

using tallyrig::ADIFDocument;
using tallyrig::ADIFField;
using tallyrig::ADIFRecord;

ADIFDocument logOf(const std::vector<std::string>& records) {
    return {"", {}, testing::recordsOf(records)};
}

/// Everything that a log says, and nothing of how it lies in memory.
std::string toldBy(const ADIFDocument& document) {
    std::string told = document.headerComment() + '\n';
    const auto tell = [&told](const auto& field) {
        told += '<' + std::string(field.name) + ':' + std::string(field.type.value_or("-")) + '>' +
                std::string(field.value);
    };
    for (const ADIFField& field : document.headerFields()) {
        tell(field);
    }
    for (const ADIFRecord& record : document.records()) {
        told += '\n';
        for (const tallyrig::ADIFFieldView field : record.fields()) {
            tell(field);
        }
    }
    return told;
}

class Kept : public ::testing::Test {
  protected:
    KeptLogs logs() const {
        return KeptLogs(folder.path(QStringLiteral("a/kept")).toStdString(), [this] { return timeMs; });
    }
    /// Keeps the log and lets it go.
    void keep(const std::string& path, const ADIFDocument& document = logOf({"CALL=DL1ABC"})) {
        KeptInHand hand(kept);
        EXPECT_FALSE(hand.keep(document, path));
        hand.letGo(KeptReason::newLog);
    }
    /// The paths of the entries, the latest first.
    std::string listed() const {
        std::vector<std::string> paths;
        for (const KeptEntry& entry : kept.entries()) {
            paths.push_back(entry.note.path);
        }
        return testing::joined(paths);
    }
    std::string told(const KeptEntry& entry) const {
        const auto read = kept.read(entry);
        const auto* const document = std::get_if<ADIFDocument>(&read);
        return document != nullptr ? toldBy(*document) : std::get<FileError>(read).message;
    }
    /// Cuts the entry's file, or lets one byte of it be another.
    static void cut(const KeptEntry& entry, std::uintmax_t bytes) {
        std::filesystem::resize_file(entry.file, bytes);
    }
    static void damage(const KeptEntry& entry, long offset) {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(entry.file.c_str(), "r+b"),
                                                             std::fclose);
        std::fseek(file.get(), offset, SEEK_SET);
        std::fputc('\xFF', file.get());
    }

    testing::TemporaryFolder folder;
    std::int64_t timeMs = 1'000'000;
    KeptLogs kept = logs();
};

TEST_F(Kept, LogComesBackExactly) {
    const std::array fields = {ADIFField("call", "DL1ABC"),
                               ADIFField("COMMENT", std::string("a\0<EOR>\r\n", 9)),
                               ADIFField("CALL", "", "S"), ADIFField("X:Y Ä", "Grüße", "")};
    ADIFDocument document = tallyrig::LogReader::read(R"(START-OF-LOG: 3.0
CONTEST: CQ-WW-CW
SOAPBOX: a long line that stands in each QSO of the log, where the reader stores it once for all of them
QSO: 14000 CW 2024-01-01 0000 DL1ABC 599 14 K1ABC 599 05
QSO: 14000 CW 2024-01-01 0001 DL1ABC 599 14 K1ABD 599 05
END-OF-LOG:)")
                                .document;
    document.setHeaderComment("\nnot\x01trimmed ");
    document.setHeaderFields({ADIFField("ADIF_VER", "3.1.7"), ADIFField("USERDEF1", "A,{B}", "E")});
    document.records().append(ADIFRecord(fields));
    document.records().append(ADIFRecord());
    keep("a.cbr", document);
    const KeptEntry entry = kept.entries().at(0);
    EXPECT_EQ(told(entry), toldBy(document));
    EXPECT_EQ(entry.note.records, 4U);
    EXPECT_EQ(entry.note.reason, KeptReason::newLog);
    EXPECT_EQ(entry.note.timeMs, timeMs);
}

TEST_F(Kept, ChangesFollowOnTheWholeLog) {
    KeptInHand hand(kept);
    ADIFDocument document;
    for (int number = 0; number < 1000; ++number) {
        document.records().append(ADIFRecord(std::array{ADIFField("CALL", std::to_string(number))}));
    }
    EXPECT_FALSE(hand.keep(document, ""));
    const std::uint64_t whole = hand.bytesWritten();
    const auto set = [](const char* value) {
        return [value](ADIFRecord& record) { record.set("CALL", value); };
    };
    const ADIFDocument before = document;
    document.records().modify(0, set("first"));
    document.records().modify(999, set("last"));
    EXPECT_FALSE(hand.keep(document, ""));
    document.records().removeIf([](const ADIFRecord& record) { return *record["CALL"] == "500"; });
    document.records().modify(500, set("behind what is gone"));
    document.records().append(ADIFRecord());
    document.setHeaderComment("new");
    EXPECT_FALSE(hand.keep(document, ""));
    EXPECT_LT(hand.bytesWritten() - whole, whole / 4);
    // An undo brings records back whose ids are in the middle of the others.
    document = before;
    document.records().append(before.records()[3]);
    EXPECT_FALSE(hand.keep(document, ""));
    hand.letGo(KeptReason::otherLog);
    EXPECT_EQ(told(kept.entries().at(0)), toldBy(document));
}

TEST_F(Kept, ManyChangesBecomeAWholeLogAgain) {
    KeptInHand hand(kept);
    ADIFDocument document = logOf({"CALL=DL1ABC"});
    for (int round = 0; round < 300; ++round) {
        document.records().modify(0, [&](ADIFRecord& record) { record.set("CALL", std::to_string(round)); });
        EXPECT_FALSE(hand.keep(document, ""));
    }
    const KeptEntry entry = *hand.letGo(KeptReason::otherLog);
    EXPECT_LT(entry.bytes, 250U * 120);
    EXPECT_EQ(told(entry), toldBy(document));
    EXPECT_EQ(kept.entries().size(), 1U);
}

TEST_F(Kept, ProgramThatDiesAnywhereLeavesTheStateBefore) {
    KeptInHand hand(kept);
    EXPECT_FALSE(hand.keep(logOf({"CALL=A"}), "x.adi"));
    EXPECT_FALSE(hand.keep(logOf({"CALL=A", "CALL=B"}), "x.adi"));
    const KeptEntry whole = *hand.letGo(KeptReason::newLog);
    const std::string first = toldBy(logOf({"CALL=A"}));
    std::string states;
    for (std::uintmax_t bytes = whole.bytes; bytes-- > 0;) {
        cut(whole, bytes);
        const auto entries = kept.entries();
        const std::string state = entries.empty() ? "nothing" : told(entries[0]) == first ? "first" : "both";
        states += states.ends_with(state) ? "" : ' ' + state;
    }
    EXPECT_EQ(states, " both first nothing");
}

TEST_F(Kept, DamagedEndIsNotBuiltUpon) {
    auto hand = std::make_unique<KeptInHand>(kept);
    EXPECT_FALSE(hand->keep(logOf({"CALL=A"}), ""));
    ADIFDocument document = logOf({"CALL=A"});
    document.setHeaderComment(std::string(500, 'x'));
    EXPECT_FALSE(hand->keep(document, ""));
    hand.reset();
    const KeptEntry entry = kept.entries().at(0);
    damage(entry, static_cast<long>(entry.bytes) - 250);
    KeptInHand next(kept);
    const auto taken = next.takeUp(entry);
    ASSERT_EQ(toldBy(std::get<ADIFDocument>(taken)), toldBy(logOf({"CALL=A"})));
    document = std::get<ADIFDocument>(taken);
    document.setHeaderComment("y");
    EXPECT_FALSE(next.keep(document, ""));
    next.letGo(KeptReason::newLog);
    EXPECT_EQ(told(kept.entries().at(0)), toldBy(document));
}

TEST_F(Kept, DamagedAndForeignFilesArePassedOver) {
    keep("damaged", logOf({"COMMENT=" + std::string(500, 'x')}));
    keep("whole");
    const KeptEntry damaged = kept.entries().at(1);
    damage(damaged, static_cast<long>(damaged.bytes / 2));
    EXPECT_EQ(told(damaged), "Die aufgehobene Datei ist beschädigt.");
    folder.write(QStringLiteral("a/kept/99.kept"), "foreign");
    folder.write(QStringLiteral("a/kept/notes.txt"), "foreign");
    std::filesystem::create_directory(folder.path(QStringLiteral("a/kept/7.kept")).toStdString());
    for (int count = 0; count < 40; ++count) {
        keep(std::to_string(count));
    }
    EXPECT_EQ(kept.entries().size(), 30U);
    EXPECT_EQ(folder.read(QStringLiteral("a/kept/99.kept")), "foreign");
    EXPECT_EQ(folder.read(QStringLiteral("a/kept/notes.txt")), "foreign");
    EXPECT_EQ(told(damaged), "Es ist nicht mehr da, oder ein anderes Programm hat es geöffnet.");
}

TEST_F(Kept, OldestGoFirstWhateverTheClockSays) {
    for (int count = 0; count < 30; ++count) {
        keep(std::to_string(count));
    }
    timeMs = 5;
    keep("x");
    keep("y");
    const std::string paths = listed();
    EXPECT_TRUE(paths.starts_with("y x 29 28 ")) << paths;
    EXPECT_TRUE(paths.ends_with(" 3 2")) << paths;
    EXPECT_EQ(kept.entries()[0].note.timeMs, 5);
}

TEST_F(Kept, LogInHandIsNobodyElses) {
    auto hand = std::make_unique<KeptInHand>(kept);
    EXPECT_FALSE(hand->keep(logOf({"CALL=A"}), "in hand"));
    const KeptLogs other = logs();
    EXPECT_TRUE(other.entries().empty());
    for (int count = 0; count < 40; ++count) {
        keep("x");
    }
    hand.reset();  // As a process that dies lets go of it.
    const auto entries = other.entries();
    ASSERT_EQ(entries.size(), 31U);
    EXPECT_EQ(entries.back().note.path, "in hand");
    EXPECT_EQ(entries.back().note.reason, KeptReason::inHand);

    KeptInHand first(kept);
    KeptInHand second(other);
    EXPECT_EQ(toldBy(std::get<ADIFDocument>(first.takeUp(entries.back()))), toldBy(logOf({"CALL=A"})));
    EXPECT_TRUE(std::holds_alternative<FileError>(second.takeUp(entries.back())));
    EXPECT_TRUE(kept.remove(entries.back())) << "no running program loses what it works on";
    first.discard();
    EXPECT_EQ(kept.entries().size(), 30U);
}

TEST_F(Kept, FormerFileKeepsItsBytes) {
    const std::string path = folder.write(QStringLiteral("a.adi"), "<CALL:6>DL1ABC<EOR>rest").toStdString();
    EXPECT_FALSE(kept.keepFormerFile(path, 1));
    EXPECT_FALSE(kept.keepFormerFile(path + ".none", 0)) << "nothing to keep is no failure";
    EXPECT_EQ(listed(), path);
    const KeptEntry entry = kept.entries()[0];
    EXPECT_EQ(KeptFile::open(entry.file, KeptFile::Access::read)->readBytes(), "<CALL:6>DL1ABC<EOR>rest");
    EXPECT_EQ(told(entry), toldBy(logOf({"CALL=DL1ABC"})));
    struct stat file = {};
    struct stat place = {};
    ASSERT_EQ(::stat(entry.file.c_str(), &file), 0);
    ASSERT_EQ(::stat(folder.path(QStringLiteral("a/kept")).toStdString().c_str(), &place), 0);
    EXPECT_EQ(file.st_mode & 0777U, 0600U);
    EXPECT_EQ(place.st_mode & 0777U, 0700U);
    kept.dismiss(entry);
    EXPECT_TRUE(kept.entries()[0].note.isDismissed);
    EXPECT_FALSE(kept.remove(entry));
    EXPECT_EQ(listed(), "");
}

TEST_F(Kept, FolderThatCannotBeMadeIsAnError) {
    folder.write(QStringLiteral("a"), "a file where the folder should be");
    KeptInHand hand(kept);
    const auto error = hand.keep(logOf({"CALL=A"}), "");
    EXPECT_EQ(error.value_or(FileError{}).message, "Ein Teil des Pfads ist kein Ordner.");
    EXPECT_FALSE(hand.letGo(KeptReason::newLog));
    EXPECT_TRUE(kept.entries().empty());
}

}  // namespace
}  // namespace quillon
