// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QWidget>

class QAbstractButton;
class QLabel;
class QVBoxLayout;

namespace quillon {

/// What a pane shows in place of content that is not there: an icon, a title and a sentence, in the middle.
class EmptyState : public QWidget {
    Q_OBJECT

  public:
    EmptyState(const QIcon& picture, const QString& title, const QString& text, QWidget* parent = nullptr);
    /// With an icon of the theme.
    EmptyState(const QString& iconName, const QString& title, const QString& text, QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& text);
    /// Puts a button under the sentence, by which the user can bring content.
    void addButton(QAbstractButton* button);

  private:
    QVBoxLayout* column;
    QLabel* titleLabel;
    QLabel* textLabel;
};

}  // namespace quillon
