// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/FileInfoBar.h"
#include "Quillon/Views/Table/QSOTableView.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"
#include "Quillon/Views/Table/TableQuestions.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QtTest>

#include <optional>
#include <string>

namespace quillon::testing {

/// A user who answers from what the test set.
class ScriptedQuestions : public TableQuestions {
  public:
    bool confirmRename(const QString& from, const QString& to, std::size_t recordCount) override {
        asked += QStringLiteral("%1>%2 (%3)").arg(from, to, QString::number(recordCount)).toStdString();
        return consents;
    }
    bool confirmDeletion(std::size_t count, std::size_t hiddenCount) override {
        asked += std::to_string(hiddenCount) + " of " + std::to_string(count);
        return consents;
    }
    std::optional<QString> newColumnName(const QString& proposed) override {
        asked += "[" + proposed.toStdString() + "]";
        return newName;
    }
    std::optional<std::size_t> rowNumber(std::size_t count, std::size_t current) override {
        asked += std::to_string(current) + " of " + std::to_string(count);
        return row;
    }

    bool consents = false;
    std::optional<QString> newName;
    std::optional<std::size_t> row;
    std::string asked;
};

/// A table on a screen that is not there, and few words to use it as a person does.
class TableViewTest : public LogStoreTest {
  protected:
    void SetUp() override {
        view.resize(800, 400);
        view.show();
        QApplication::setActiveWindow(&view);
        QApplication::processEvents();
    }

    /// Opens a log, makes its columns 100 wide and gives the keyboard to the table.
    void showLog(const std::vector<std::string>& records) {
        openLog(records);
        for (const std::string& column : store.columns()) {
            store.setWidth(100, column);
        }
        body.setFocus();
        QApplication::processEvents();
    }

    /// Records for `showLog` that are told apart by the call: DL1A, DL2A and so on.
    static std::vector<std::string> manyRecords(int count) {
        std::vector<std::string> records;
        for (int number = 1; number <= count; ++number) {
            records.push_back("CALL=DL" + std::to_string(number) + "A BAND=20m");
        }
        return records;
    }

    QPoint at(std::size_t row, std::size_t column) const {
        return body.cellArea({row, column}).center().toPoint();
    }
    void click(std::size_t row, std::size_t column, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(&body, Qt::LeftButton, keys, at(row, column));
    }
    /// The event of a double click follows on that of a press; what the press did stays under the pointer.
    void doubleClick(std::size_t row, std::size_t column) {
        const QPoint place = at(row, column);
        QTest::mouseClick(&body, Qt::LeftButton, {}, place);
        QTest::mouseDClick(&body, Qt::LeftButton, {}, place);
    }
    /// To whatever has the focus.
    void key(Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), pressed, keys);
    }
    void typeText(const std::string& text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
    }

    static void drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButtons buttons = Qt::LeftButton) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, buttons, {});
        QApplication::sendEvent(&widget, &move);
    }
    static void drop(QWidget& widget, QPoint at) { QTest::mouseRelease(&widget, Qt::LeftButton, {}, at); }

    std::string editorText() const {
        return body.editor().isOpen() ? body.editor().text().toStdString() : "(closed)";
    }
    std::string current() const { return described(body.currentCell()); }
    std::string framed() const { return described(body.framedCell()); }
    static std::string described(const std::optional<CellPosition>& cell) {
        return cell ? std::to_string(cell->row) + "/" + std::to_string(cell->column) : "(none)";
    }
    /// The titles of the menu that pops up; the menu is closed.
    static std::string popupTitles() {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return menu == nullptr ? "(none)" : titles(*menu, true);
    }
    static std::string titles(QMenu& menu, bool closes = false) {
        std::string text;
        for (const QAction* action : menu.actions()) {
            text += (action->isSeparator() ? "-" : action->text().toStdString()) + "\n";
        }
        if (closes) {
            menu.close();
        }
        return text;
    }

    ScriptedQuestions questions;
    QSOTableView view{store, questions};
    TableBody& body = view.body();
    TableHeader& header = view.header();
};

}  // namespace quillon::testing
