// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

#include <QFile>

namespace quillon {
namespace {

using tallyrig::ReadingKind;

class ReadingOfAFile : public testing::LogStoreTest {
  protected:
    void open(std::string_view content) {
        store.open(folder.write("log.adi", content));
        told.sent();
    }
    FilePlace place(std::size_t note) const { return store.reading()->placeOf(note); }
    /// The calls of the notes' records as they are now.
    std::string calls() const {
        std::vector<std::string> texts;
        for (std::size_t note = 0; note < store.readingReport().notes().size(); ++note) {
            const auto record = store.reading()->recordOf(note);
            const auto index = record ? store.indexOf(*record) : std::nullopt;
            texts.push_back(!record ? "none" : index ? cell(*index, "CALL") : "gone");
        }
        return joined(texts);
    }

    static constexpr std::string_view cut =
        "<EOH><CALL:1>A<NAME:6>Müller<EOR><CALL:1>B<QTH:4>Köln<EOR><CALL:1>C<EOR>";
};

TEST_F(ReadingOfAFile, KnowsTheQSOsOfItsNotesWhateverBecomesOfTheLog) {
    open("<EOH><CALL:1>A<BAND:2>20m<EOR><CALL:1>B<BAND:2>40m<EOR><CALL:1>C<BAND:2>80m<EOR> rest");
    EXPECT_EQ(calls(), "A B C none");
    store.toggleSort("BAND");
    store.addRecord();
    type(2, "CALL", "X");
    select({1});
    store.deleteSelected();
    EXPECT_EQ(calls(), "A gone X none");
    store.undo();
    EXPECT_EQ(calls(), "A B X none");
}

TEST_F(ReadingOfAFile, IsRepairedInOneStep) {
    open(cut);
    type(0, "CALL", "X");
    EXPECT_TRUE(store.hasUnsavedChanges());
    select({0});
    store.readAgainRepaired();
    EXPECT_EQ(told.sent(), "displayedRecords document readingReport selection");
    EXPECT_EQ(cell(0, "CALL") + cell(0, "NAME") + cell(1, "QTH"), "AMüllerKöln");
    EXPECT_TRUE(store.isDirty());
    EXPECT_TRUE(store.readingReport().isEmpty());
    EXPECT_EQ(store.savingConcern(), std::nullopt);
    store.undo();
    EXPECT_EQ(store.savingConcern(), SavingConcern::notWhole);
    EXPECT_EQ(cell(0, "CALL") + cell(0, "NAME"), "XMülle");
    ASSERT_EQ(store.readingReport().notes().size(), 1U);
    EXPECT_EQ(calls(), "X");
    store.undo();
    EXPECT_FALSE(store.isDirty());
    store.redo();
    store.redo();
    EXPECT_EQ(cell(0, "NAME"), "Müller");
    EXPECT_TRUE(store.readingReport().isEmpty());
    store.readAgainRepaired();
    EXPECT_EQ(cell(0, "NAME"), "Müller");
    store.undo();
    EXPECT_EQ(cell(0, "NAME"), "Mülle") << "without a repair there is no step";
}

TEST_F(ReadingOfAFile, IsRepairedWithTheBytesThatWereOpenedOnly) {
    open(cut);
    store.saveAsADI();  // Cancelled.
    const std::string prefix = "Die Datei konnte nicht neu gelesen werden:\n„log.adi“: ";
    std::string other(cut);
    other[6] = 'c';
    folder.write("log.adi", other);
    store.readAgainRepaired();
    EXPECT_EQ(error(), prefix + "Sie ist nicht mehr so, wie sie geöffnet wurde. Das Log bleibt, wie es ist.");
    EXPECT_TRUE(QFile::remove(folder.path("log.adi")));
    store.readAgainRepaired();
    EXPECT_EQ(error(), prefix + "Die Datei existiert nicht.");
    EXPECT_EQ(told.sent(), "errorMessage2");
    EXPECT_EQ(cell(0, "NAME"), "Mülle");
    folder.write("log.adi", cut);
    panels.answers = {folder.path("other.adi")};
    store.saveWithPanel();
    store.readAgainRepaired();
    EXPECT_EQ(cell(0, "NAME"), "Müller") << "the file that was opened, not the one saved since";
}

TEST_F(ReadingOfAFile, KeepsWhatStandsAroundItsNotesAndNoMore) {
    // Letters of two bytes, of which the cut meets the second.
    std::string letters;
    for (std::size_t count = 0; count < FilePieces::widestSide; ++count) {
        letters += "ä";
    }
    const std::string tag = "<NAME:0>x";
    open("c<EOH><CALL:1>A\n" + letters + 'y' + tag + letters + "<EOR>" + std::string(100'000, ' ') +
         "<X:>1<Y:0>2<EOR>");
    const FilePlace name = place(1);
    EXPECT_EQ(name.line, 2U);
    EXPECT_TRUE(name.isCutBefore && name.isCutBehind);
    EXPECT_TRUE(name.before.starts_with("ä") && name.before.ends_with("äy"));
    EXPECT_TRUE(name.behind.starts_with(tag + "ä") && name.behind.ends_with("ä"));
    EXPECT_EQ(name.before.size() + name.behind.size(), 2 * FilePieces::widestSide - 2);
    const std::size_t last = store.readingReport().notes().size() - 1;
    EXPECT_TRUE(place(last).before.ends_with("  <X:>1"));
    EXPECT_EQ(place(last).behind, "<Y:0>2<EOR>");
    EXPECT_FALSE(place(last).isCutBehind);
}

TEST_F(ReadingOfAFile, ShowsUTF16AsText) {
    const std::u16string text = u"<EOH><CALL:1>Ä<NAME:1>XY<EOR>";
    std::string bytes = "\xFE\xFF";
    for (const char16_t unit : text) {
        bytes += {static_cast<char>(unit >> 8U), static_cast<char>(unit & 0xFFU)};
    }
    open(bytes);
    const std::size_t last = store.readingReport().notes().size() - 1;
    EXPECT_EQ(place(last).behind, "<NAME:1>XY<EOR>");
    EXPECT_TRUE(place(last).before.starts_with("<EOH>")) << place(last).before;
}

TEST(FilePieces, StaySmallHoweverManyNotesThereAre) {
    const std::string file(20'000'000, 'x');
    std::vector<tallyrig::ReadingNote> notes(10'000);
    for (std::size_t index = 0; index < notes.size(); ++index) {
        notes[index].offset = index * (file.size() / notes.size());
    }
    const FilePlace place = FilePieces(file, notes).around(notes[1000]);
    EXPECT_EQ(place.before.size(), FilePieces::mostBytes / (2 * notes.size()) / 2 * 2);
}

}  // namespace
}  // namespace quillon
