// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/FileInfoBar.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/CopyableList.h"
#include "Quillon/Views/Controls/DisclosureButton.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/FileInfoModel.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QHBoxLayout>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>
#include <string_view>

namespace quillon {
namespace {

constexpr int largestDetailsHeightPx = 160;

QString headerValue(const tallyrig::ADIFDocument& document, std::string_view name) {
    const auto& fields = document.headerFields();
    const auto field = std::find_if(
        fields.begin(), fields.end(),
        [name](const tallyrig::ADIFField& candidate) { return tallyrig::text::equal(candidate.name, name); });
    return field == fields.end() ? QString()
                                 : toQString(tallyrig::text::visibleText(cutToShow(field->value)));
}

}  // namespace

QString fileInfoSummary(const tallyrig::ADIFDocument& document) {
    QStringList parts;
    const QString program = headerValue(document, "PROGRAMID");
    if (!program.isEmpty()) {
        const QString version = headerValue(document, "PROGRAMVERSION");
        parts.append(version.isEmpty() ? program : program + QLatin1Char(' ') + version);
    }
    const QString adifVersion = headerValue(document, "ADIF_VER");
    if (!adifVersion.isEmpty()) {
        parts.append(QStringLiteral("ADIF ") + adifVersion);
    }
    return parts.join(QStringLiteral(" · "));
}

FileInfoBar::FileInfoBar(const LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      disclosure(new DisclosureButton(QStringLiteral("Datei-Info"), this)),
      summary(new ElidedLabel(Qt::ElideRight, this)),
      model(new FileInfoModel(this)),
      details(new CopyableList(FileInfoModel::wholeRole, this)),
      nothing(noteLabel(QStringLiteral("Keine Angaben in der Datei"), this)) {
    setAccessibleName(QStringLiteral("Datei-Info"));
    summary->setForegroundRole(QPalette::PlaceholderText);
    summary->setAccessibleName(QStringLiteral("Zusammenfassung der Datei-Info"));
    details->setAccessibleName(QStringLiteral("Kopf der Datei"));
    details->setModel(model);
    details->setItemDelegate(new FileInfoDelegate(details));
    nothing->setContentsMargins(12, 2, 12, 6);

    auto* line = new QHBoxLayout;
    line->setContentsMargins(4, 2, 8, 2);
    line->setSpacing(8);
    line->addWidget(disclosure);
    line->addWidget(summary, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(line);
    layout->addWidget(details);
    layout->addWidget(nothing);

    connect(disclosure, &DisclosureButton::expandedChanged, this, &FileInfoBar::refresh);
    connect(&store, &LogStore::documentChanged, this, &FileInfoBar::refresh);
    refresh();
}

bool FileInfoBar::isExpanded() const {
    return disclosure->isExpanded();
}

void FileInfoBar::setExpanded(bool isOpen) {
    disclosure->setExpanded(isOpen);
}

void FileInfoBar::refresh() {
    summary->setText(fileInfoSummary(store.document()));
    if (isExpanded()) {
        model->setDocument(store.document());
        fitDetails();
    }
    details->setVisible(isExpanded() && model->rowCount() > 0);
    nothing->setVisible(isExpanded() && model->rowCount() == 0);
}

void FileInfoBar::fitDetails() {
    const int rowHeight = details->sizeHintForRow(0);
    const int mostRows = largestDetailsHeightPx / std::max(rowHeight, 1) + 1;
    details->setFixedHeight(
        std::min(largestDetailsHeightPx, std::min(model->rowCount(), mostRows) * rowHeight + 4));
}

}  // namespace quillon
