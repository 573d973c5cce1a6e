#pragma once

#include <QAbstractListModel>

namespace quillon {

class LogStore;

/// The findings of the last check as the rows of a list. Texts are made when a row is looked at, so that a
/// list of hundreds of thousands costs nothing.
class IssueListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// What a row tells besides its severity's icon (`Qt::DecorationRole`) and its whole text
    /// (`Qt::DisplayRole`).
    enum Role {
        lineRole = Qt::UserRole,  ///< Such as "Zeile 1".
        messageRole,
        recordIndexRole,  ///< The position of the record in the log, from zero.
    };

    /// `logStore` outlives the model.
    explicit IssueListModel(const LogStore& logStore, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The longest text of `lineRole`; empty without findings.
    QString longestLine() const;

  private:
    void follow();

    const LogStore& store;
    int count;
};

}  // namespace quillon
