// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/OwnStation.h"

#include <QString>
#include <QWidget>

#include <string>

namespace quillon {

class ContestStore;
class SidebarSection;

/// The sections of the sidebar for scoring the log: the contest and the own station's data. Each change goes
/// to the store at once.
class ContestSections : public QWidget {
    Q_OBJECT

  public:
    /// `contestStore` outlives the sections.
    explicit ContestSections(ContestStore& contestStore, QWidget* parent = nullptr);

  private:
    SidebarSection* contest();
    SidebarSection* ownStation();
    void addText(SidebarSection& section, const QString& label, std::string OwnStation::*member,
                 const QString& toolTip, const QString& meaning);

    ContestStore& store;
};

}  // namespace quillon
