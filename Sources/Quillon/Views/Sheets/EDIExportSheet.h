// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Sheets/ExportSheet.h"
#include "Tallyrig/Formats/EDIHeader.h"

namespace quillon {

/// Asks for the header of an EDI file and exports the log.
class EDIExportSheet : public ExportSheet {
    Q_OBJECT

  public:
    /// What the log itself tells of contest, days, station, band and operator stands in the form already.
    explicit EDIExportSheet(LogStore& logStore, QWidget* parent = nullptr);

  protected:
    bool isComplete() const override;
    void act() override;

  private:
    void addPoints();

    tallyrig::EDIHeader header;
};

}  // namespace quillon
