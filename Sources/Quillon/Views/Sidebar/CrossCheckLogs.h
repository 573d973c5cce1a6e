#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace quillon {

class CrossCheckStore;

/// The list of the logs that take part in a cross-check, with the owner of the chosen one to be corrected.
/// The list draws what is seen of it: there may be ten thousand logs.
class CrossCheckLogs : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the list.
    explicit CrossCheckLogs(CrossCheckStore& crossStore, QWidget* parent = nullptr);

  private:
    class Model;

    void refresh();
    void showChosen();
    std::optional<tallyrig::UUID> chosen() const;

    CrossCheckStore& store;
    Model* model;
    QListView* list;
    QWidget* details;
    QLineEdit* owner;
    QPushButton* removeAll;
};

}  // namespace quillon
