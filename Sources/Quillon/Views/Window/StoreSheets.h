// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QDialog;
class QWidget;

namespace quillon {

class LogStore;

/// The sheets of a window that the store asks for: each is open as long as the store says so.
class StoreSheets : public QObject {
    Q_OBJECT

  public:
    /// The sheets open over `sheetWindow`, which with the store outlives the object.
    StoreSheets(LogStore& logStore, QWidget& sheetWindow);

  private:
    void showBulkEdit();
    void showCabrilloExport();
    void showEDIExport();
    /// Opens `sheet` and keeps it in `place`, a member, until it is closed; then calls `ended`.
    void open(QPointer<QDialog>& place, QDialog* sheet, const std::function<void()>& ended);
    /// Closes the sheet that is open there, if any, as if it had never been.
    void close(QPointer<QDialog>& place);

    LogStore& store;
    QWidget& window;
    QPointer<QDialog> bulkEdit;
    QPointer<QDialog> cabrilloExport;
    QPointer<QDialog> ediExport;
};

}  // namespace quillon
