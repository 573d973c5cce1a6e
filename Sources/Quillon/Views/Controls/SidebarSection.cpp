// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/SidebarSection.h"

#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace quillon {

SidebarSection::SidebarSection(const QString& title, QWidget* parent)
    : QWidget(parent), column(new QVBoxLayout(this)), heading(headingLabel(title, this)) {
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(heading);
    heading->setVisible(!title.isEmpty());
}

void SidebarSection::add(QWidget* control) {
    column->addWidget(control);
}

void SidebarSection::add(QWidget* control, const QString& meaning) {
    explain(*control, meaning);
    add(control);
}

void SidebarSection::addUnderHeading(QWidget* control) {
    nameBy(*heading, *control);
    column->addWidget(control);
}

void SidebarSection::addLabelled(const QString& label, QWidget* control, const QString& meaning) {
    auto* caption = new QLabel(label, this);
    nameBy(*caption, *control);
    explain(*control, meaning);
    caption->setWhatsThis(meaning);
    column->addWidget(caption);
    column->addWidget(control);
}

QLineEdit& SidebarSection::addText(const QString& label, std::string_view text, const QString& toolTip,
                                   const QString& meaning) {
    constexpr int longestText = 1000;
    auto* field = new BoundedLine(longestText, this);
    field->setText(text);
    field->editor().setToolTip(toolTip);
    addLabelled(label, field, meaning);
    return field->editor();
}

QLabel* SidebarSection::addNote(const QString& text) {
    QLabel* note = noteLabel(text, this);
    column->addWidget(note);
    return note;
}

}  // namespace quillon
