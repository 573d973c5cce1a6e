// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Sheets/ExportSheet.h"
#include "Tallyrig/Formats/CabrilloHeader.h"

namespace quillon {

/// Asks for the header of a Cabrillo file and exports the log.
class CabrilloExportSheet : public ExportSheet {
    Q_OBJECT

  public:
    /// The call and the contest that the log itself tells stand in the form already.
    explicit CabrilloExportSheet(LogStore& logStore, QWidget* parent = nullptr);

  protected:
    bool isComplete() const override;
    void act() override;

  private:
    tallyrig::CabrilloHeader header;
};

}  // namespace quillon
