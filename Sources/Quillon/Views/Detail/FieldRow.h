// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QWidget>

#include <string_view>

class QToolButton;

namespace quillon {

class ElidedLabel;

/// A text field that shows a text of the log and writes each change to it at once. Undo and redo are the
/// log's, not its own: there is one history, whatever way a text was changed.
class LogTextField : public QLineEdit {
    Q_OBJECT

  public:
    explicit LogTextField(QWidget* parent = nullptr);

    /// Shows `text` without moving the cursor of someone who is typing just that.
    void showText(const QString& text);

  signals:
    /// By Ctrl+Delete or from the context menu.
    void removeRequested();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

/// One field of a QSO in the detail pane: its name, its value to be edited, and a button to remove it. Such a
/// button is not where the tab key goes from one value to the next: a space meant for a text would press it.
class FieldRow : public QWidget {
    Q_OBJECT

  public:
    explicit FieldRow(QWidget* parent = nullptr);

    /// `name` and `value` in UTF-8. A value that cannot be edited here is shown in part.
    void show(std::string_view name, std::string_view value);
    /// Offers a field that the QSO does not have: it is there as soon as something is typed.
    void offer(std::string_view name);
    /// Whether the row stands out from the others.
    void setMarked(bool mark);
    bool isMarked() const { return marked; }
    LogTextField& valueField() const { return *valueEdit; }
    QToolButton& removeButton() const { return *remove; }

  signals:
    void valueEdited(const QString& text);
    void removeClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void showName(std::string_view name);
    void setOffered(bool offers);

    QString fieldName;
    bool marked = false;
    ElidedLabel* label;
    LogTextField* valueEdit;
    QToolButton* remove;
};

}  // namespace quillon
