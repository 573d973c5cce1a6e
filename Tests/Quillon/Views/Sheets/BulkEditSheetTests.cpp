#include "Quillon/Views/Sheets/BulkEditSheet.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

namespace quillon {
namespace {

class BulkEdit : public testing::LogStoreTest {
  protected:
    void openSheet(const std::string& column) {
        sheet = std::make_unique<BulkEditSheet>(store, column);
        sheet->open();
    }
    void choose(BulkEditSheet::Mode mode) {
        sheet->findChild<QComboBox*>()->setCurrentIndex(static_cast<int>(mode));
    }
    /// The text fields on screen, from top to bottom.
    std::vector<QLineEdit*> inputs() const {
        std::vector<QLineEdit*> shown;
        for (QLineEdit* edit : sheet->findChildren<QLineEdit*>()) {
            if (testing::isShown(*edit, *sheet)) {
                shown.push_back(edit);
            }
        }
        return shown;
    }
    void enter(std::size_t input, const QString& text) { inputs().at(input)->setText(text); }
    /// Such as "1 von 3".
    std::string affected() const {
        const std::string texts = testing::shownTexts(*sheet);
        const std::size_t begin = texts.find("Betrifft ") + 9;
        return texts.substr(begin, texts.find(" QSOs.", begin) - begin);
    }
    QAbstractButton& button(const QString& text) const { return *testing::shownButton(*sheet, text); }
    std::string values(std::string_view column) const {
        std::vector<std::string> texts;
        for (const tallyrig::ADIFRecord& record : store.document().records()) {
            texts.emplace_back(record[column].value_or("-"));
        }
        return joined(texts);
    }

    std::unique_ptr<BulkEditSheet> sheet;
};

TEST_F(BulkEdit, NamesColumnAndForm) {
    struct Case {
        const char* column;
        const char* line;
        const char* placeholder;
        const char* hint;
    };
    const Case cases[] = {
        {"QSO_DATE", "Spalte: Datum  (QSO_DATE)", "Neuer Wert (JJJJMMTT, z. B. 20240115)",
         "ADIF-Datumsformat: 8 Ziffern."},
        {"TIME_ON", "Spalte: Zeit (Anfang)  (TIME_ON)", "Neuer Wert (HHMM oder HHMMSS)",
         "ADIF-Zeitformat: 4 oder 6 Ziffern."},
        {"TIME_OFF", "Spalte: Zeit (Ende)  (TIME_OFF)", "Neuer Wert (HHMM oder HHMMSS)",
         "ADIF-Zeitformat: 4 oder 6 Ziffern."},
        {"QSO_DATE_OFF", "Spalte: QSO_DATE_OFF  (QSO_DATE_OFF)", "Neuer Wert (leer = Feld entfernen)",
         nullptr},
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.column);
        openSheet(expected.column);
        const std::string texts = testing::shownTexts(*sheet);
        EXPECT_NE(texts.find("Massen-Änderung\n" + std::string(expected.line)), std::string::npos) << texts;
        EXPECT_EQ(inputs().at(0)->placeholderText().toStdString(), expected.placeholder);
        EXPECT_EQ(texts.find("ADIF-") != std::string::npos, expected.hint != nullptr) << texts;
        EXPECT_NE(texts.find(expected.hint != nullptr ? expected.hint : "Betrifft"), std::string::npos)
            << texts;
    }
}

TEST_F(BulkEdit, TellsHowManyItConcerns) {
    openLog({"CALL=DL1ABC COMMENT=tnx", "CALL=DL2ABC COMMENT=", "CALL=DL3ABC"});
    openSheet("COMMENT");
    EXPECT_EQ(sheet->focusWidget(), inputs()[0]) << "what is typed at once is the value";
    EXPECT_EQ(affected(), "3 von 3");
    choose(BulkEditSheet::Mode::empty);
    EXPECT_EQ(affected(), "2 von 3");
    choose(BulkEditSheet::Mode::replace);
    EXPECT_EQ(affected(), "0 von 3");
    enter(0, QStringLiteral("n"));
    EXPECT_EQ(affected(), "1 von 3");
    enter(0, QStringLiteral("N"));
    EXPECT_EQ(affected(), "0 von 3");
}

TEST_F(BulkEdit, AsksForATextToFindAndNothingElse) {
    openLog({"CALL=DL1ABC"});
    openSheet("CALL");
    EXPECT_TRUE(button(QStringLiteral("Anwenden")).isEnabled());
    EXPECT_TRUE(static_cast<QPushButton&>(button(QStringLiteral("Anwenden"))).isDefault());
    choose(BulkEditSheet::Mode::replace);
    EXPECT_EQ(inputs().size(), 2U);
    EXPECT_FALSE(button(QStringLiteral("Anwenden")).isEnabled());
    enter(0, QStringLiteral("x"));
    EXPECT_TRUE(button(QStringLiteral("Anwenden")).isEnabled());
}

TEST_F(BulkEdit, ChangesTheColumnAsChosen) {
    struct Case {
        BulkEditSheet::Mode mode;
        std::vector<const char*> texts;
        const char* result;
    };
    const Case cases[] = {
        {BulkEditSheet::Mode::all, {"CW"}, "CW CW CW"},
        {BulkEditSheet::Mode::all, {""}, "-  -"},
        {BulkEditSheet::Mode::empty, {"CW"}, "SSB CW CW"},
        {BulkEditSheet::Mode::replace, {"S", "L"}, "LLB  -"},
    };
    for (const Case& change : cases) {
        SCOPED_TRACE(change.result);
        openLog({"MODE=SSB", "MODE=", "CALL=DL1ABC"});
        openSheet("MODE");
        choose(change.mode);
        for (std::size_t input = 0; input < change.texts.size(); ++input) {
            enter(input, QString::fromUtf8(change.texts[input]));
        }
        button(QStringLiteral("Anwenden")).click();
        EXPECT_EQ(values("MODE"), change.result);
        EXPECT_FALSE(sheet->isVisible());
    }
}

TEST_F(BulkEdit, ChangesNothingWhenCancelled) {
    openLog({"MODE=SSB"});
    openSheet("MODE");
    enter(0, QStringLiteral("CW"));
    button(QStringLiteral("Abbrechen")).click();
    EXPECT_EQ(values("MODE"), "SSB");
    EXPECT_FALSE(sheet->isVisible());
}

}  // namespace
}  // namespace quillon
