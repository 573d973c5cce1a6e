// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

/// Lets Ctrl+Y, which brings back an edit of the log, bring back the typing where that is in a text field:
/// Qt knows the key for that on some desktops only, and the log would change instead, out of sight. The
/// fields whose text is the log's own leave the key to the log.
class RedoKey : public QObject {
    Q_OBJECT

  public:
    /// For all windows of the application.
    explicit RedoKey(QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quillon
