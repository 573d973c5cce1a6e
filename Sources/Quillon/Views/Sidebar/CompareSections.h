// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Analysis/ADIFComparison.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace quillon {

class CompareStore;
class SidebarSection;

/// The sections of the sidebar for comparing two logs: which stand on the two sides, and by which fields
/// their QSOs are paired.
class CompareSections : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the sections.
    explicit CompareSections(CompareStore& compareStore, QWidget* parent = nullptr);

  private:
    using Side = tallyrig::ADIFComparison::Side;

    struct SideControls {
        QLabel* name;
        QPushButton* save;
    };

    SidebarSection* files();
    SideControls addSide(SidebarSection& section, Side side);
    void refresh();

    CompareStore& store;
    SideControls left{};
    SideControls right{};
    QPushButton* currentLog = nullptr;  ///< Puts the open log on the left.
};

}  // namespace quillon
