// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/BulkEditSheet.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>
#include <tuple>

namespace quillon {
namespace {

using Mode = BulkEditSheet::Mode;

class BulkEdit : public testing::LogStoreTest {
  protected:
    void openSheet(const std::string& column) {
        sheet = std::make_unique<BulkEditSheet>(store, column);
        sheet->open();
    }
    void choose(Mode mode) { sheet->findChild<QComboBox*>()->setCurrentIndex(static_cast<int>(mode)); }
    void enter(const char* field, const char* text) {
        testing::namedChild<QLineEdit>(*sheet, field).setText(QString::fromUtf8(text));
    }
    /// What is said of the QSOs, and of what an empty value does to them.
    std::string said() const {
        const std::string texts = testing::shownTexts(*sheet);
        const std::size_t begin = texts.find("Betrifft");
        return texts.substr(begin, texts.find("\nAktion") - begin);
    }
    QPushButton& apply() const {
        return *static_cast<QPushButton*>(testing::shownButton(*sheet, QStringLiteral("Anwenden")));
    }
    std::string values(std::string_view column) const {
        std::vector<std::string> texts;
        for (const tallyrig::ADIFRecord& record : store.document().records()) {
            texts.emplace_back(record[column].value_or("-"));
        }
        return joined(texts);
    }

    std::unique_ptr<BulkEditSheet> sheet;
};

TEST_F(BulkEdit, TellsTheFormOfDatesAndTimes) {
    const std::tuple<const char*, const char*, const char*> columns[] = {
        {"QSO_DATE", "Neuer Wert (JJJJMMTT, z. B. 20240115)", "ADIF-Datumsformat: 8 Ziffern."},
        {"TIME_OFF", "Neuer Wert (HHMM oder HHMMSS)", "ADIF-Zeitformat: 4 oder 6 Ziffern."},
        {"QSO_DATE_OFF", "Neuer Wert (leer = Feld entfernen)", ""},
    };
    for (const auto& [column, placeholder, hint] : columns) {
        openSheet(column);
        const auto& value = testing::namedChild<QLineEdit>(*sheet, "Neuer Wert");
        EXPECT_EQ(value.placeholderText().toStdString(), placeholder);
        const std::string texts = testing::shownTexts(*sheet);
        EXPECT_NE(texts.find("  (" + std::string(column) + ")"), std::string::npos) << texts;
        EXPECT_EQ(texts.find("ADIF-") != std::string::npos, *hint != 0) << texts;
        EXPECT_NE(texts.find(hint), std::string::npos) << texts;
    }
}

TEST_F(BulkEdit, TellsHowManyItConcernsAndWhatAnEmptyValueDoes) {
    openLog({"CALL=DL1ABC COMMENT=tnx", "CALL=DL2ABC COMMENT=", "CALL=DL3ABC"});
    openSheet("COMMENT");
    EXPECT_EQ(said(), "Betrifft 3 von 3 QSOs.\nEin leerer Wert entfernt das Feld aus 1 QSO.");
    enter("Neuer Wert", "x");
    EXPECT_EQ(said(), "Betrifft 3 von 3 QSOs.");
    choose(Mode::empty);
    EXPECT_EQ(said(), "Betrifft 2 von 3 QSOs.");
    enter("Neuer Wert", "");
    EXPECT_EQ(said(), "Betrifft 2 von 3 QSOs.\nEin leerer Wert ändert nichts.");
    choose(Mode::replace);
    EXPECT_EQ(said(), "Betrifft 0 von 3 QSOs.");
    EXPECT_FALSE(apply().isEnabled()) << "nothing to find";
    enter("Suchen", "n");
    EXPECT_EQ(said(), "Betrifft 1 von 3 QSOs.");
    EXPECT_TRUE(apply().isEnabled());
    store.setCell(id(1), "COMMENT", "now");
    EXPECT_EQ(said(), "Betrifft 2 von 3 QSOs.");
}

TEST_F(BulkEdit, CountsALongLogWhenTypingPauses) {
    openLog(std::vector<std::string>(20'001, "CALL=DL1ABC"));
    openSheet("CALL");
    choose(Mode::replace);
    QSignalSpy paused(sheet->findChild<QTimer*>(), &QTimer::timeout);
    enter("Suchen", "D");
    enter("Suchen", "DL");
    EXPECT_EQ(said(), "Betrifft … von 20.001 QSOs.");
    ASSERT_TRUE(paused.wait());
    EXPECT_EQ(said(), "Betrifft 20.001 von 20.001 QSOs.");
    EXPECT_EQ(paused.size(), 1);
}

TEST_F(BulkEdit, ChangesTheColumnAsChosen) {
    const std::tuple<Mode, const char*, const char*> changes[] = {
        {Mode::all, "CW", "CW CW CW"},
        {Mode::all, "", "-  -"},
        {Mode::empty, "CW", "SSB CW CW"},
        {Mode::replace, "L", "LLB  -"},
    };
    for (const auto& [mode, text, result] : changes) {
        openLog({"MODE=SSB", "MODE=", "CALL=DL1ABC"});
        openSheet("MODE");
        choose(mode);
        enter("Suchen", "S");
        enter(mode == Mode::replace ? "Ersetzen durch" : "Neuer Wert", text);
        apply().click();
        EXPECT_EQ(values("MODE"), result);
        EXPECT_FALSE(sheet->isVisible());
    }
}

TEST_F(BulkEdit, TakesReturnForTheButtonInFocusAndEscapeForCancel) {
    openLog({"MODE=SSB"});
    const QString cancel = QStringLiteral("Abbrechen");
    openSheet("MODE");
    EXPECT_EQ(sheet->focusWidget(), &testing::namedChild<QLineEdit>(*sheet, "Neuer Wert"));
    EXPECT_TRUE(apply().isDefault());
    enter("Neuer Wert", "CW");
    QTest::keyClick(testing::shownButton(*sheet, cancel), Qt::Key_Return);
    EXPECT_FALSE(sheet->isVisible());
    openSheet("MODE");
    QTest::keyClick(sheet->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_EQ(values("MODE"), "SSB");
    openSheet("MODE");
    enter("Neuer Wert", "CW");
    QTest::keyClick(sheet->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(values("MODE"), "CW");
}

}  // namespace
}  // namespace quillon
