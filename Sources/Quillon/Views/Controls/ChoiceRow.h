// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QRadioButton;

namespace quillon {

/// A few short choices side by side, of which one holds: all are seen at once, and one click takes another.
/// Where there is no room for one row they stand in several. Tab stops at the choice that holds; the arrow
/// keys take the next or the one before in their order, over the ends of rows, Home and End the first and the
/// last.
class ChoiceRow : public QWidget {
    Q_OBJECT

  public:
    /// At first the one at `current` holds.
    ChoiceRow(const QStringList& labels, int current, QWidget* parent = nullptr);

    void setCurrent(int index);

  signals:
    /// The user took another choice.
    void chosen(int index);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::vector<QRadioButton*> choices;
};

}  // namespace quillon
