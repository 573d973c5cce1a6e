// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/BandColors.h"
#include "Quillon/Views/Controls/CopyableList.h"

#include <QRect>
#include <QString>

#include <string>
#include <vector>

namespace quillon {

/// A word on a ground of its colour.
struct Badge {
    QString text;
    SystemColor color = SystemColor::gray;
};

/// What is told of one QSO in a list of findings. What is empty takes no room.
struct FindingRow {
    QString number;    ///< Such as "#12".
    QString time;      ///< Such as "14:05".
    QString call;      ///< As it is shown.
    std::string band;  ///< As the log writes it.
    Badge badge;
    QString text;         ///< In as many lines as it has.
    QString counterpart;  ///< The other station's QSO.
    bool leads = true;    ///< Whether pressing the row leads to the QSO.
};

/// The findings about single QSOs in a pane of figures, each a button that leads to its QSO: by a click, by
/// Return or by the space bar.
class FindingList : public CopyableList {
    Q_OBJECT

  public:
    enum class Height {
        ofRows,  ///< The list is as high as its rows; the pane around it scrolls.
        ofPane,  ///< The list takes what room it gets, and scrolls itself.
    };

    /// `rowToolTip` says what pressing a row does.
    FindingList(QString rowToolTip, Height listHeight, QWidget* parent = nullptr);
    ~FindingList() override;

    /// All rows are laid out: some hundred at most.
    void setFindings(std::vector<FindingRow> findings);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// The user wants to see the QSO of this row.
    void pressed(int row);
    /// The keyboard has come or gone to a row, which stands there in the list.
    void currentRowMoved(const QRect& place);

  protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    class Model;
    class Delegate;

    void tellCurrentRow();

    Model* findingModel;
    Height height;
};

}  // namespace quillon
