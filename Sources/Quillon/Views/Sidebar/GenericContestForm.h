// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/GenericContest.h"

#include <QString>
#include <QWidget>

#include <string>

namespace quillon {

class ContestStore;
class SidebarSection;

/// The sections of the sidebar in which the user makes a contest of his own: points, duplicates and required
/// fields, a multiplier. What the choices made leave without a meaning is hidden.
class GenericContestForm : public QWidget {
    Q_OBJECT

  public:
    /// `contestStore` outlives the form.
    explicit GenericContestForm(ContestStore& contestStore, QWidget* parent = nullptr);

  private:
    SidebarSection* rules();
    SidebarSection* duplicates();
    SidebarSection* multiplier();
    void addText(SidebarSection& section, const QString& label, std::string GenericContest::*member,
                 const QString& toolTip, const QString& meaning);
    template <typename Value>
    void set(Value GenericContest::*member, Value value);

    ContestStore& store;
};

}  // namespace quillon
