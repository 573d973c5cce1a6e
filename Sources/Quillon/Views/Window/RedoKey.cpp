// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/RedoKey.h"

#include "Quillon/Views/Detail/FieldRow.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace quillon {

namespace {

/// The text field that has a mind of its own about undoing; null for anything else.
QLineEdit* typingIn(QObject* watched) {
    if (qobject_cast<LogTextField*>(watched) != nullptr) {
        return nullptr;
    }
    if (auto* stepper = qobject_cast<QAbstractSpinBox*>(watched)) {
        return stepper->findChild<QLineEdit*>();
    }
    return qobject_cast<QLineEdit*>(watched);
}

}  // namespace

RedoKey::RedoKey(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool RedoKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    QLineEdit* const field =
        key->key() == Qt::Key_Y && key->modifiers() == Qt::ControlModifier ? typingIn(watched) : nullptr;
    if (field == nullptr) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        field->redo();
    }
    event->accept();
    return true;
}

}  // namespace quillon
