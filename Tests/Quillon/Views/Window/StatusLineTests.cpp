// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/StatusLine.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLayout>

namespace quillon {
namespace {

class StatusLineOfALog : public testing::LogStoreTest {
  protected:
    /// Without the path, which is another one in each run.
    std::string texts() const {
        const std::string all = testing::shownTexts(line);
        const std::string path = store.fileURL().value_or(QString()).toStdString();
        return path.empty() ? all : all.substr(0, all.find("\n" + path));
    }

    StatusLine line{store};
};

TEST_F(StatusLineOfALog, CountsWhatIsThereFilteredAndSelected) {
    EXPECT_EQ(texts(), "0 QSOs");
    openLog({"CALL=DL1ABC"});
    EXPECT_EQ(texts(), "1 QSO");
    openLog(std::vector<std::string>(1234, "CALL=DL1ABC"));
    store.setSearchText(QStringLiteral("nowhere"));
    EXPECT_EQ(texts(), "1.234 QSOs\n0 gefiltert");
    store.setSearchText(QString());
    store.selectAllDisplayed();
    EXPECT_EQ(texts(), "1.234 QSOs\n1.234 ausgewählt");
    EXPECT_EQ(statusTexts(store).path, folder.path(QStringLiteral("log.adi")));
}

TEST_F(StatusLineOfALog, TellsWhatWasDoneUntilSomethingChanges) {
    openLog({"CALL=DL1ABC"});
    line.resize(3000, 30);
    line.show();
    line.showNotice(QStringLiteral("1.234 QSOs nach „log.edi“ exportiert"));
    line.layout()->activate();
    for (const QLabel* label : line.findChildren<QLabel*>()) {
        EXPECT_TRUE(label->isHidden() || label->width() >= label->sizeHint().width()) << "of a wide line";
    }
    EXPECT_EQ(texts(), "1 QSO\n1.234 QSOs nach „log.edi“ exportiert");
    type(0, "CALL", "DL2ABC");
    EXPECT_EQ(texts(), "1 QSO");
    line.showNotice(QStringLiteral("1 QSO nach „log.edi“ exportiert"));
    store.setErrorMessage(QStringLiteral("EDI-Export fehlgeschlagen:"));
    EXPECT_EQ(texts(), "1 QSO");
}

}  // namespace
}  // namespace quillon
