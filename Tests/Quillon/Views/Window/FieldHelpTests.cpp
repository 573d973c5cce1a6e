// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Views/Check/CheckResultsView.h"
#include "Quillon/Views/Compare/CompareView.h"
#include "Quillon/Views/CrossCheck/FindingsCard.h"
#include "Quillon/Views/Sheets/BulkEditSheet.h"
#include "Quillon/Views/Sheets/CabrilloExportSheet.h"
#include "Quillon/Views/Sheets/EDIExportSheet.h"
#include "Quillon/Views/Sidebar/SidebarPane.h"
#include "Quillon/Views/Window/SearchField.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace quillon {
namespace {

/// The fields inside `pane` of which nobody can ask what they are for.
std::string unexplained(const QWidget& pane) {
    std::string names;
    for (const QWidget* field : pane.findChildren<QWidget*>()) {
        const bool isInput =
            qobject_cast<const QLineEdit*>(field) || qobject_cast<const QComboBox*>(field) ||
            qobject_cast<const QAbstractSpinBox*>(field) || qobject_cast<const QCheckBox*>(field) ||
            qobject_cast<const QRadioButton*>(field) || qobject_cast<const QPlainTextEdit*>(field);
        const QWidget* explained = field;
        while (explained != &pane && explained->whatsThis().isEmpty()) {
            explained = explained->parentWidget();
        }
        if (isInput && explained->whatsThis().isEmpty() &&
            qobject_cast<const QAbstractItemView*>(field->parent()) == nullptr) {
            names += field->accessibleName().toStdString() + "; ";
        }
    }
    return names;
}

using FieldHelp = testing::LogStoreTest;

TEST_F(FieldHelp, IsThereForEveryField) {
    openLog({"CALL=DL1ABC"});
    select({0});
    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    const SidebarPane sidebar(AppStores{store, compare, contest, cross}, settings);
    EXPECT_FALSE(SearchField(store).whatsThis().isEmpty());
    // Beside it there are the editors of cells, whose fields ADIF explains.
    EXPECT_FALSE(CompareView(store, compare).findChild<QCheckBox*>()->whatsThis().isEmpty());
    for (const AppMode mode : allAppModes) {
        store.setMode(mode);
        EXPECT_EQ(unexplained(sidebar), "") << static_cast<int>(mode);
    }
    EXPECT_EQ(unexplained(CheckResultsView(store)), "");
    EXPECT_EQ(unexplained(FindingsCard(cross, 1)), "");
    EXPECT_EQ(unexplained(BulkEditSheet(store, "BAND")), "");
    EXPECT_EQ(unexplained(CabrilloExportSheet(store)), "");
    EXPECT_EQ(unexplained(EDIExportSheet(store)), "");
}

}  // namespace
}  // namespace quillon
