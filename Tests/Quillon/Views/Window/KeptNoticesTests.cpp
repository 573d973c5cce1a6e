// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/KeptNotices.h"

#include "Quillon/Keeping/LogKeeper.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/NoticeStrip.h"
#include "Quillon/Views/Sheets/KeptLogsSheet.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTreeWidget>

#include <memory>
#include <string>

namespace quillon {
namespace {

class KeptLogNotices : public testing::LogStoreTest {
  protected:
    void start() {
        notices.reset();
        keeper.reset();
        strip = std::make_unique<NoticeStrip>(&window);
        store.newLog();
        keeper =
            std::make_unique<LogKeeper>(store, compare, folder.path("kept").toStdString(), LogKeeper::Pace());
        notices = std::make_unique<KeptNotices>(AppStores{store, compare, contest, cross}, *keeper, *strip,
                                                window, [this] { ++brought; });
        notices->tellOfLeftBehind();
    }
    /// A log of this call, which its file has not, is open when the program ends.
    void endWith(const std::string& call, KeptReason reason = KeptReason::windowClosed) {
        openLog({"CALL=A"});
        type(0, "CALL", call);
        keeper->end(reason);
    }
    void press(const QWidget& inside, const QString& text) { testing::shownButton(inside, text)->click(); }
    std::string told() const { return strip->isHidden() ? "(nothing)" : testing::shownTexts(*strip); }
    KeptLogsSheet& sheet() const { return *window.findChild<KeptLogsSheet*>(); }
    QTreeWidget& list() const { return *sheet().findChild<QTreeWidget*>(); }
    std::string row(int index) const {
        const QTreeWidgetItem& item = *list().topLevelItem(index);
        return (item.text(0) + '|' + item.text(2) + '|' + item.text(4)).toStdString();
    }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    QWidget window;
    std::unique_ptr<NoticeStrip> strip;
    std::unique_ptr<LogKeeper> keeper;
    std::unique_ptr<KeptNotices> notices;
    int brought = 0;
};

TEST_F(KeptLogNotices, OfferWhatTheLastProgramHadInHand) {
    start();
    EXPECT_EQ(told(), "(nothing)");
    endWith("B");
    start();
    EXPECT_EQ(told(), "Die ungesicherten Änderungen an „log.adi“ wurden aufgehoben.");
    press(*strip, "Zurückholen");
    EXPECT_EQ(cell(0, "CALL"), "B");
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_EQ(brought, 1);
    EXPECT_EQ(told(), "(nothing)");
    store.save();
    endWith("C", KeptReason::inHand);
    start();
    EXPECT_EQ(told().substr(0, 42), "Quillon wurde nicht ordentlich beendet. Di");
    press(*strip, "Meldung schließen");
    start();
    EXPECT_EQ(told(), "(nothing)") << "told once";
}

TEST_F(KeptLogNotices, ShowAListOfAll) {
    start();
    endWith("B");
    start();
    endWith("C", KeptReason::terminated);
    start();
    EXPECT_EQ(told(), "Die ungesicherten Änderungen an 2 Logbüchern wurden aufgehoben.");
    press(*strip, "Ansehen");
    EXPECT_EQ(row(0), "log.adi|1|Von außen beendet");
    EXPECT_EQ(row(1), "log.adi|1|Fenster geschlossen");
    EXPECT_FALSE(list().whatsThis().isEmpty());
    press(sheet(), "&Löschen …");
    press(*sheet().findChild<QMessageBox*>(), "&Löschen");
    EXPECT_EQ(list().topLevelItemCount(), 1);
    list().topLevelItem(0)->setSelected(true);
    press(sheet(), "&Zurückholen");
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_EQ(cell(0, "CALL"), "B");
    notices->showList();
    EXPECT_NE(testing::shownTexts(sheet()).find("Es ist nichts aufgehoben."), std::string::npos);
    EXPECT_FALSE(testing::shownButton(sheet(), "&Zurückholen")->isEnabled());
}

TEST_F(KeptLogNotices, ShowAKeptLogBesideTheOpenOne) {
    start();
    endWith("B");
    start();
    openLog({"CALL=A"});
    notices->showList();
    press(sheet(), "&Vergleichen");
    EXPECT_EQ(store.mode(), AppMode::compare);
    EXPECT_EQ(compare.rightName(), "log.adi (aufgehoben)");
    EXPECT_EQ(compare.rightDoc().records()[0]["CALL"], "B");
    EXPECT_FALSE(compare.rightURL()) << "nothing is saved over the file by mistake";
    EXPECT_EQ(cell(0, "CALL"), "A");
    EXPECT_EQ(keeper->entries().size(), 1U);
}

TEST_F(KeptLogNotices, SayWhyALogDoesNotComeBack) {
    start();
    endWith("B");
    start();
    EXPECT_FALSE(keeper->remove(keeper->leftBehind().at(0)));
    press(*strip, "Zurückholen");
    EXPECT_EQ(
        error(),
        "Zurückholen fehlgeschlagen:\n„log.adi“: Es ist nicht mehr da, oder ein anderes Programm hat es "
        "geöffnet.");
    EXPECT_EQ(brought, 0);
}

}  // namespace
}  // namespace quillon
