// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/StoreSheets.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Sheets/BulkEditSheet.h"
#include "Quillon/Views/Sheets/CabrilloExportSheet.h"
#include "Quillon/Views/Sheets/EDIExportSheet.h"

#include <QDialog>

namespace quillon {

StoreSheets::StoreSheets(LogStore& logStore, QWidget& sheetWindow)
    : QObject(&sheetWindow), store(logStore), window(sheetWindow) {
    connect(&store, &LogStore::bulkEditColumnChanged, this, &StoreSheets::showBulkEdit);
    connect(&store, &LogStore::showCabrilloExportChanged, this, &StoreSheets::showCabrilloExport);
    connect(&store, &LogStore::showEDIExportChanged, this, &StoreSheets::showEDIExport);
    showBulkEdit();
    showCabrilloExport();
    showEDIExport();
}

void StoreSheets::showBulkEdit() {
    close(bulkEdit);
    if (store.bulkEditColumn()) {
        open(bulkEdit, new BulkEditSheet(store, *store.bulkEditColumn(), &window),
             [this] { store.setBulkEditColumn(std::nullopt); });
    }
}

void StoreSheets::showCabrilloExport() {
    close(cabrilloExport);
    if (store.showCabrilloExport()) {
        open(cabrilloExport, new CabrilloExportSheet(store, &window),
             [this] { store.setShowCabrilloExport(false); });
    }
}

void StoreSheets::showEDIExport() {
    close(ediExport);
    if (store.showEDIExport()) {
        open(ediExport, new EDIExportSheet(store, &window), [this] { store.setShowEDIExport(false); });
    }
}

void StoreSheets::open(QPointer<QDialog>& place, QDialog* sheet, const std::function<void()>& ended) {
    place = sheet;
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::finished, this, [&place, ended] {
        place.clear();
        ended();
    });
    sheet->open();
}

void StoreSheets::close(QPointer<QDialog>& place) {
    if (place) {
        disconnect(place, nullptr, this, nullptr);
        place->close();
        place.clear();
    }
}

}  // namespace quillon
