#include "Quillon/Views/Controls/SidebarSection.h"

#include "Quillon/Views/Controls/Labels.h"

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

void SidebarSection::addUnderHeading(QWidget* control) {
    nameBy(*heading, *control);
    column->addWidget(control);
}

void SidebarSection::addLabelled(const QString& label, QWidget* control) {
    auto* caption = new QLabel(label, this);
    nameBy(*caption, *control);
    column->addWidget(caption);
    column->addWidget(control);
}

QLabel* SidebarSection::addNote(const QString& text) {
    QLabel* note = noteLabel(text, this);
    column->addWidget(note);
    return note;
}

}  // namespace quillon
