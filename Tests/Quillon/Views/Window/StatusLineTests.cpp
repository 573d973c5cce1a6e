#include "Quillon/Views/Window/StatusLine.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

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
    openLog({"CALL=DL1ABC", "CALL=DL2ABC"});
    EXPECT_EQ(texts(), "2 QSOs");
    store.setSearchText(QStringLiteral("nowhere"));
    EXPECT_EQ(texts(), "2 QSOs\n0 gefiltert");
    select({0, 1});
    EXPECT_EQ(texts(), "2 QSOs\n0 gefiltert\n2 ausgewählt");
    store.setSearchText(QString());
    EXPECT_EQ(texts(), "2 QSOs\n2 ausgewählt");
    store.deleteSelected();
    EXPECT_EQ(texts(), "0 QSOs");
}

TEST_F(StatusLineOfALog, NamesTheFileByItsFullPath) {
    EXPECT_EQ(statusTexts(store).path, QString());
    openLog({"CALL=DL1ABC"});
    EXPECT_EQ(statusTexts(store).path, folder.path(QStringLiteral("log.adi")));
    store.newLog();
    EXPECT_EQ(testing::shownTexts(line), "0 QSOs");
}

}  // namespace
}  // namespace quillon
