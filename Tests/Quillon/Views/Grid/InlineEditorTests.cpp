// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/InlineEditor.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

namespace quillon {
namespace {

TEST(PasteIntoACell, StandsOnOneLineAndLeavesTheValueItself) {
    QWidget parent;
    auto* editor = new InlineEditor(InlineEditor::Escape::commits, &parent);
    parent.show();
    QGuiApplication::clipboard()->setText(QStringLiteral("A\tB\r\nC\u2028D\r\n\r\n"));
    const QString old = QStringLiteral("x\ny\t");
    editor->begin(old);
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), old + QStringLiteral("A B C D"));
    QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(), editor->mapToGlobal(QPoint()));
    QApplication::sendEvent(editor, &wish);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* const action : menu->actions()) {
        if (action->text().startsWith(QStringLiteral("&Paste"))) {
            action->trigger();
        }
    }
    EXPECT_EQ(editor->text(), old + QStringLiteral("A B C DA B C D"));
    menu->close();
    EXPECT_TRUE(editor->isOpen());
}

}  // namespace
}  // namespace quillon
