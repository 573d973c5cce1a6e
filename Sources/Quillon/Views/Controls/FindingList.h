#pragma once

#include "Quillon/Views/Controls/CopyableList.h"

#include <QRect>
#include <QString>

#include <string>
#include <vector>

namespace quillon {

/// What is told of one QSO in a list of findings.
struct FindingRow {
    QString number;    ///< Such as "#12".
    QString call;      ///< As it is shown.
    std::string band;  ///< As the log writes it; empty if it says none.
    QString text;
};

/// The findings about single QSOs in a pane of figures, each a button that leads to its QSO: by a click, by
/// Return or by the space bar. The list is as high as its rows; the pane around it scrolls.
class FindingList : public CopyableList {
    Q_OBJECT

  public:
    /// `rowToolTip` says what pressing a row does.
    explicit FindingList(QString rowToolTip, QWidget* parent = nullptr);
    ~FindingList() override;

    /// All rows are shown and laid out: some hundred at most.
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
};

}  // namespace quillon
