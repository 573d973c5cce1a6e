// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/FileInfoBar.h"

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/CopyableList.h"
#include "Quillon/Views/Controls/DisclosureButton.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>

#include <memory>

namespace quillon {
namespace {

class FileInfo : public testing::LogStoreTest {};

TEST_F(FileInfo, SumsUpTheHeader) {
    struct Case {
        const char* header;
        const char* summary;
    };
    const Case cases[] = {
        {"<PROGRAMID:4>Prog<PROGRAMVERSION:3>1.2<ADIF_VER:5>3.1.7", "Prog 1.2 · ADIF 3.1.7"},
        {"<PROGRAMID:4>Prog", "Prog"},
        {"<PROGRAMVERSION:3>1.2<ADIF_VER:5>3.1.7", "ADIF 3.1.7"},
        {"<CREATED_TIMESTAMP:3>now", ""},
    };
    for (const Case& c : cases) {
        store.open(
            folder.write(QStringLiteral("log.adi"), std::string("x") + c.header + "<EOH><CALL:1>A<EOR>"));
        EXPECT_EQ(fileInfoSummary(store.document()).toStdString(), c.summary) << c.header;
    }
}

TEST_F(FileInfo, ListsTheWholeHeaderWhenItIsOpened) {
    FileInfoBar bar(store);
    bar.setExpanded(true);
    EXPECT_EQ(testing::shownTexts(bar), "Keine Angaben in der Datei");
    store.open(folder.write(QStringLiteral("log.adi"),
                            "from\r\n a program\n<PROGRAMID:4>Prog<X:3>a\nb<EOH><CALL:1>A<EOR>"));
    EXPECT_EQ(testing::shownTexts(bar), "Prog");
    auto& list = *bar.findChild<CopyableList*>();
    EXPECT_EQ(list.model()->index(3, 0).data().toString().toStdString(), "X: a⏎b");
    list.selectAll();
    EXPECT_EQ(list.chosenText().toStdString(), "from\na program\nPROGRAMID: Prog\nX: a\nb");
    store.open(folder.write(QStringLiteral("book.adi"), std::string(2500, '\n').insert(0, "a") + "b<EOH>"));
    EXPECT_EQ(list.model()->index(1000, 0).data().toString().toStdString(), "… (1.501 weitere Zeilen)");
}

TEST_F(FileInfo, TellsWhetherItIsOpenToThoseWhoDoNotSeeIt) {
    FileInfoBar bar(store);
    QAccessibleInterface* const button =
        QAccessible::queryAccessibleInterface(bar.findChild<DisclosureButton*>());
    EXPECT_TRUE(button->state().expandable);
    EXPECT_FALSE(button->state().expanded);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(bar.isExpanded());
    EXPECT_TRUE(button->state().expanded);
}

}  // namespace
}  // namespace quillon
