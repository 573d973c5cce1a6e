// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/ReadingNotices.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Check/CheckResultsView.h"
#include "Quillon/Views/Controls/CopyableList.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Reading/RawPlaceView.h"
#include "Quillon/Views/Reading/ReadingNotesView.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Window/CommandActions.h"
#include "Quillon/Views/Window/ContentView.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTest>

#include <tuple>

namespace quillon {
namespace {

class NoticesOfReading : public testing::LogStoreTest {
  protected:
    NoticesOfReading() {
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    void open(std::string_view content) { store.open(folder.write("log.adi", content)); }
    std::string strip() const {
        const auto& notices = *window.findChild<NoticeStrip*>();
        return notices.isHidden() ? "(nothing)" : testing::shownTexts(notices);
    }
    void press(const char* text) { testing::shownButton(window, QString::fromUtf8(text))->click(); }
    template <typename View>
    bool isShown() const {
        return testing::shownChild<View>(window) != nullptr;
    }
    CopyableList& list() const { return testing::namedChild<CopyableList>(window, "Stellen der Datei"); }
    std::string marked() const { return window.findChild<RawPlaceView*>()->markedText().toStdString(); }
    /// The selected call and what is marked in the file.
    std::string chosen() const { return selected() + ' ' + marked(); }
    void key(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, keys);
    }

    static constexpr std::string_view cut = "<EOH><CALL:1>A<NAME:6>Müller<EOR>\n<CALL:1>B<QTH:4>Köln<EOR>\n";
    static constexpr std::string_view damaged =
        "<EOH><CALL:1>A<BAND:2>20m<EOR>\n<CALL:1>B<BAND:2>40m<EOR>\n<CALL:1>C<EOR>\nrest\n";

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    ContentView window{AppStores{store, compare, contest, cross}, settings, {}};
};

TEST_F(NoticesOfReading, TellOfPlacesThatWereNotReadAsTheyWereMeant) {
    const std::tuple<std::string, std::string> cases[] = {
        {damaged.data(), "3 Stellen der Datei konnten nicht oder nur zum Teil gelesen werden."},
        {"<EOH><CALL:1>AB<EOR>", "1 Stelle der Datei konnte nicht oder nur zum Teil gelesen werden."},
        {"<EOH><CALL:1>A<EOR> b",
         "1 Stelle der Datei wurde vermutlich nicht so gelesen, wie sie gemeint ist."},
        {"", "Die Datei ist leer."},
        {"<EOH><CALL:1>A<EOR><EOR>", "(nothing)"},
        {"<EOH><CALL:1>A<EOR>", "(nothing)"},
    };
    const QAction& command = *window.actions().action(CommandID::readingNotes);
    for (const auto& [file, sentence] : cases) {
        open(file);
        EXPECT_EQ(strip(), sentence) << file;
        EXPECT_EQ(command.isEnabled(), !store.readingReport().isEmpty());
    }
    open(damaged);
    type(0, "CALL", "X");
    press("Meldung schließen");
    store.undo();
    EXPECT_EQ(strip(), "(nothing)") << "told once";
    open(damaged);
    store.newLog();
    EXPECT_EQ(strip(), "(nothing)");
}

TEST_F(NoticesOfReading, LeadFromEachPlaceToItsQSOAndIntoTheFile) {
    open(damaged);
    store.setMode(AppMode::stats);
    press("Ansehen");
    EXPECT_EQ(store.mode(), AppMode::check);
    EXPECT_EQ(chosen(), "A <BAND:2>");
    select({0});
    store.deleteSelected();
    store.setSearchText("xyz");
    list().setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(chosen(), "B <BAND:2>");
    EXPECT_TRUE(store.searchText().isEmpty());
    key(Qt::Key_Down);
    EXPECT_EQ(chosen(), " rest") << "no QSO";
    key(Qt::Key_Home);
    EXPECT_EQ(chosen(), " <BAND:2>") << "deleted by now";
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Zeile 1\tFehler\tBAND ist abgeschnitten, denn die Länge ist zu klein: Bis zum nächsten Feld "
              "steht da „20m“.\t<BAND:2>20m<EOR>");
    key(Qt::Key_Tab);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), damaged.substr(0, damaged.size() - 1));
    EXPECT_EQ(selected(), "");
    key(Qt::Key_Escape);
    EXPECT_TRUE(window.table().body().hasFocus());
}

TEST_F(NoticesOfReading, ShareTheirPlaceWithTheFindings) {
    open(damaged);
    store.runCheck();
    press("Ansehen");
    EXPECT_FALSE(isShown<CheckResultsView>());
    press("Lesebericht schließen");
    EXPECT_TRUE(isShown<CheckResultsView>());
    window.actions().action(CommandID::readingNotes)->trigger();
    EXPECT_TRUE(isShown<ReadingNotesView>());
    window.actions().action(CommandID::check)->trigger();
    EXPECT_FALSE(isShown<ReadingNotesView>());
    EXPECT_TRUE(isShown<CheckResultsView>());
    window.actions().action(CommandID::readingNotes)->trigger();
    open("<EOH><CALL:1>AB<EOR>");
    EXPECT_FALSE(isShown<ReadingNotesView>()) << "of another log";
    window.actions().action(CommandID::readingNotes)->trigger();
    EXPECT_EQ(strip(), "(nothing)") << "seen";
}

TEST_F(NoticesOfReading, OfferTheRepairAndAskWhereEditsWouldGo) {
    open("<EOH><CALL:1>A<EOR> rest");
    press("Ansehen");
    EXPECT_EQ(testing::shownButton(window, "So lesen"), nullptr) << "nobody knows what is meant";
    open(cut);
    press("Ansehen");
    press("So lesen");
    EXPECT_EQ(cell(0, "NAME"), "Müller");
    EXPECT_NE(testing::shownTexts(window).find("Vollständig gelesen"), std::string::npos);
    store.undo();
    EXPECT_EQ(list().model()->rowCount(), 1);
    type(1, "CALL", "X");
    press("So lesen");
    auto& question = *window.findChild<QMessageBox*>();
    EXPECT_EQ(cell(0, "NAME"), "Mülle");
    testing::shownButton(question, "&Abbrechen")->click();
    EXPECT_EQ(cell(1, "CALL"), "X");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press("So lesen");
    testing::shownButton(*window.findChild<QMessageBox*>(), "&So lesen")->click();
    EXPECT_EQ(cell(0, "NAME") + cell(1, "CALL"), "MüllerB");
    store.undo();
    EXPECT_EQ(cell(1, "CALL"), "X");
}

}  // namespace
}  // namespace quillon
