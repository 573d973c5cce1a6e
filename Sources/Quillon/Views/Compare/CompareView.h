// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QStackedLayout;
class QTextEdit;
class QToolButton;

namespace quillon {

class CompareStore;
class CompareTable;
class LogStore;

/// Two logs side by side, their QSOs paired, with the differences marked and everything open for editing;
/// above them what they are and in which header fields they differ, below them how many rows are of which
/// kind and the way from one difference to the next. Compares while it is visible only.
class CompareView : public QWidget {
    Q_OBJECT

  public:
    /// Both outlive the view. What stands in an open editor when it ends is dropped: whoever ends it by a
    /// command of the user commits first.
    CompareView(LogStore& logStore, CompareStore& compareStore, QWidget* parent = nullptr);
    ~CompareView() override;

    const ComparisonModel& model() const { return *comparison; }
    CompareTable& table() const { return *tables; }

    /// The half that lies at `point` of the screen; absent outside of the view.
    std::optional<ComparisonModel::Side> sideAt(QPoint point) const;
    void goToNextDifference();
    void goToPreviousDifference();
    /// Writes what stands in an open cell editor and closes it.
    void commitEditing();

  signals:
    /// Something happened, or could not, that cannot be seen in the tables; `text` says so.
    void noticed(const QString& text);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* emptyPage();
    QWidget* comparisonPage();
    QWidget* headerBar();
    QWidget* summaryBar();
    QWidget* wayThroughDifferences(QWidget* parent);
    QToolButton* stepButton(const QString& text, const QString& iconName, void (CompareView::*step)(),
                            Qt::KeyboardModifiers keys);
    void showComparison();
    void showCounts();
    void showHeaderDifferences();
    void fitHeaderBar();
    void finishStep(bool isThere);

    CompareStore& store;
    ComparisonModel* comparison;
    CompareTable* tables = nullptr;
    QStackedLayout* pages;
    QWidget* headerArea = nullptr;  ///< Of the header differences.
    QTextEdit* headerText = nullptr;
    QWidget* noDifferences = nullptr;  ///< In the place of the tables where nothing is left to show.
    std::array<QLabel*, 4> counts{};   ///< By status.
    QLabel* rowCount = nullptr;
    QCheckBox* differencesOnly = nullptr;
};

}  // namespace quillon
