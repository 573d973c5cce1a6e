// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>
#include <QTextEdit>
#include <QWidget>

#include <stdexcept>
#include <string>
#include <vector>

namespace quillon::testing {

/// Whether a person would see the child if its window were on screen.
inline bool isShown(const QWidget& child, const QWidget& inside) {
    return child.isVisibleTo(&inside);
}

/// The texts of the labels and of the longer texts that are shown, in the order in which they were made, with
/// a line break between.
inline std::string shownTexts(const QWidget& inside) {
    std::string texts;
    for (const QWidget* child : inside.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(child);
        const auto* longer = qobject_cast<const QTextEdit*>(child);
        const QString text = label != nullptr    ? label->text()
                             : longer != nullptr ? longer->toPlainText()
                                                 : QString();
        if (isShown(*child, inside) && !text.isEmpty()) {
            texts += (texts.empty() ? "" : "\n") + text.toStdString();
        }
    }
    return texts;
}

/// The button with this text or, for one that shows an icon alone, this tool tip; null if none is shown.
inline QAbstractButton* shownButton(const QWidget& inside, const QString& text) {
    for (QAbstractButton* button : inside.findChildren<QAbstractButton*>()) {
        if (isShown(*button, inside) && (button->text() == text || button->toolTip() == text)) {
            return button;
        }
    }
    return nullptr;
}

/// The child of this type that assistive technology knows by this name; throws if there is none.
template <typename Child>
Child& namedChild(const QWidget& inside, const char* name) {
    for (Child* child : inside.findChildren<Child*>()) {
        if (child->accessibleName() == QString::fromUtf8(name)) {
            return *child;
        }
    }
    throw std::runtime_error(std::string("no child ") + name);
}

/// The first child of this type that is shown, null if there is none.
template <typename Child>
Child* shownChild(const QWidget& inside) {
    for (Child* child : inside.findChildren<Child*>()) {
        if (isShown(*child, inside)) {
            return child;
        }
    }
    return nullptr;
}

}  // namespace quillon::testing
