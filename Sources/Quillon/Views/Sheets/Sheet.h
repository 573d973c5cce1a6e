// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillon {

/// A dialog over the window that asks for something and then acts: a title, what it asks for, and at its foot
/// a remark and the buttons, in the order of the desktop. Return in a field acts, Escape cancels; where a
/// button has the focus, Return triggers that one.
class Sheet : public QDialog {
    Q_OBJECT

  protected:
    Sheet(const QString& title, const QString& actionText, QWidget* parent);

    /// What is asked for, from top to bottom.
    QVBoxLayout* content() const { return body; }
    void setRemark(const QString& text);
    void setComplete(bool isComplete);
    /// What the sheet is for; it closes afterwards.
    virtual void act() = 0;

  private:
    QVBoxLayout* body;
    QLabel* remark;
    QPushButton* actionButton;
};

}  // namespace quillon
