// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/DisclosureButton.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>

namespace quillon {

namespace {

class DisclosureInterface : public QAccessibleWidget {
  public:
    explicit DisclosureInterface(DisclosureButton& button)
        : QAccessibleWidget(&button, QAccessible::Button, button.text()) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = button().isExpanded();
        state.collapsed = !button().isExpanded();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            button().click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    DisclosureButton& button() const { return *static_cast<DisclosureButton*>(widget()); }
};

QAccessibleInterface* disclosureInterface(const QString&, QObject* object) {
    auto* button = qobject_cast<DisclosureButton*>(object);
    return button != nullptr ? new DisclosureInterface(*button) : nullptr;
}

}  // namespace

DisclosureButton::DisclosureButton(const QString& text, QWidget* parent) : QToolButton(parent) {
    // A factory that is there already is not installed twice.
    QAccessible::installFactory(disclosureInterface);
    setText(text);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setArrowType(Qt::RightArrow);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QToolButton::clicked, this, [this] { setExpanded(!expanded); });
}

void DisclosureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QToolButton::keyPressEvent(event);
    }
}

void DisclosureButton::setExpanded(bool isOpen) {
    if (expanded == isOpen) {
        return;
    }
    expanded = isOpen;
    setArrowType(expanded ? Qt::DownArrow : Qt::RightArrow);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    emit expandedChanged();
}

}  // namespace quillon
