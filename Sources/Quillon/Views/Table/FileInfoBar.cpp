#include "Quillon/Views/Table/FileInfoBar.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Text.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStringList>
#include <QToolButton>

#include <algorithm>
#include <string_view>

namespace quillon {
namespace {

constexpr int nameWidthPx = 160;
constexpr int largestDetailsHeightPx = 160;
/// A header can hold a whole book, or a file that is no log at all.
constexpr int longestTextShown = 20'000;

QString headerValue(const tallyrig::ADIFDocument& document, std::string_view name) {
    const auto& fields = document.headerFields();
    const auto field = std::find_if(
        fields.begin(), fields.end(),
        [name](const tallyrig::ADIFField& candidate) { return tallyrig::text::equal(candidate.name, name); });
    return field == fields.end() ? QString() : toQString(cutToShow(field->value));
}

QLabel* detailLabel(const QString& text) {
    const bool isCut = text.size() > longestTextShown;
    auto* label = new QLabel(isCut ? text.left(longestTextShown) + QStringLiteral(" …") : text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);
    return label;
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
      disclosure(new QToolButton(this)),
      summary(new ElidedLabel(Qt::ElideRight, this)),
      details(new QScrollArea(this)) {
    disclosure->setText(QStringLiteral("Datei-Info"));
    disclosure->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    disclosure->setAutoRaise(true);
    disclosure->setFocusPolicy(Qt::TabFocus);
    summary->setForegroundRole(QPalette::PlaceholderText);
    summary->setAccessibleName(QStringLiteral("Zusammenfassung der Datei-Info"));
    details->setAccessibleName(QStringLiteral("Kopf der Datei"));
    details->setFrameShape(QFrame::NoFrame);
    details->setWidgetResizable(true);
    details->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    details->setMaximumHeight(largestDetailsHeightPx);

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

    connect(disclosure, &QToolButton::clicked, this, [this] { setExpanded(!expanded); });
    connect(&store, &LogStore::documentChanged, this, &FileInfoBar::refresh);
    refresh();
}

void FileInfoBar::setExpanded(bool isOpen) {
    expanded = isOpen;
    refresh();
}

void FileInfoBar::refresh() {
    disclosure->setAccessibleDescription(expanded ? QStringLiteral("geöffnet")
                                                  : QStringLiteral("geschlossen"));
    disclosure->setArrowType(expanded ? Qt::DownArrow : Qt::RightArrow);
    summary->setText(fileInfoSummary(store.document()));
    details->setVisible(expanded);
    if (expanded) {
        fillDetails();
    }
}

void FileInfoBar::fillDetails() {
    const tallyrig::ADIFDocument& document = store.document();
    if (details->widget() != nullptr && document.headerComment() == shownComment &&
        document.headerFields() == shownFields) {
        return;
    }
    shownComment = document.headerComment();
    shownFields = document.headerFields();
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(12, 4, 12, 8);
    grid->setVerticalSpacing(3);
    grid->setColumnMinimumWidth(0, nameWidthPx);
    grid->setColumnStretch(1, 1);
    int row = 0;
    const std::string_view comment = tallyrig::text::trimmed(shownComment);
    if (!comment.empty()) {
        grid->addWidget(detailLabel(toQString(comment)), row++, 0, 1, 2);
    }
    for (const tallyrig::ADIFField& field : shownFields) {
        QLabel* name = detailLabel(toQString(cutToShow(field.name)));
        name->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        name->setFixedWidth(nameWidthPx);
        grid->addWidget(name, row, 0);
        grid->addWidget(detailLabel(toQString(field.value)), row++, 1);
    }
    grid->setRowStretch(row, 1);
    details->setWidget(content);
}

}  // namespace quillon
