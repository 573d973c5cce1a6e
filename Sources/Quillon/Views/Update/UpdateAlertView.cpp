// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Update/UpdateAlertView.h"

#include "Quillon/Updates/UpdateInstaller.h"
#include "Quillon/Updates/UpdateManager.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Update/InstallStatus.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <string>
#include <utility>

namespace quillon {

namespace {

using Kind = UpdateInstaller::Phase::Kind;

/// What a person reads of a message; to lay out a megabyte of one takes seconds.
constexpr std::size_t longestMessage = 20'000;
constexpr int shownLines = 8;
constexpr int widthInLetters = 64;

/// The front of `text` on one line, where nothing turns round what stands beside it.
QLabel* lineLabel(const QString& beforehand, const QString& text, QWidget* parent) {
    const std::string whole = text.toStdString();
    const std::string shown = tallyrig::text::visibleText(cutToShow(whole));
    auto* label = new ElidedLabel(Qt::ElideRight, parent);
    label->setText(beforehand + toQString(shown));
    label->setToolTip(plainToolTip(label->text()));
    // A text without end is no reason for a dialog as wide as the screen.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

}  // namespace

UpdateAlertView::UpdateAlertView(VersionInfo release, UpdateManager& updateManager,
                                 std::unique_ptr<UpdateInstaller> updateInstaller, QWidget* parent)
    : QDialog(parent),
      info(std::move(release)),
      manager(updateManager),
      installer(std::move(updateInstaller)) {
    setWindowTitle(QStringLiteral("Software-Update"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 18, 18, 18);
    // No least width of the dialog itself: that would take the place of the one that its buttons need, and a
    // small screen would cut them.
    column->addStrut(widthInLetters * fontMetrics().averageCharWidth());
    column->setSpacing(12);
    column->addWidget(heading());
    QTextEdit* const text = info.message && !info.message->isEmpty() ? message() : nullptr;
    if (text != nullptr) {
        column->addWidget(text);
    }
    status = new InstallStatus(this);
    column->addWidget(status);
    column->addStretch(1);
    column->addLayout(buttonRow());
    if (text != nullptr) {
        // At the width that it will have, so that the dialog comes up as high as it stays.
        const QMargins margins = column->contentsMargins();
        text->document()->setTextWidth(column->sizeHint().width() - margins.left() - margins.right() -
                                       2 * text->frameWidth());
    }
    connect(installer.get(), &UpdateInstaller::phaseChanged, this, &UpdateAlertView::follow);
    follow();
}

UpdateAlertView::~UpdateAlertView() = default;

bool UpdateAlertView::isClosable() const {
    const Kind kind = installer->phase().kind;
    return kind != Kind::verifying && kind != Kind::installing;
}

void UpdateAlertView::reject() {
    if (isClosable()) {
        QDialog::reject();
    }
}

bool UpdateAlertView::isInstalling() const {
    const Kind kind = installer->phase().kind;
    return kind != Kind::idle && kind != Kind::failed;
}

QWidget* UpdateAlertView::heading() {
    auto* area = new QWidget(this);
    const QIcon picture =
        info.critical ? severityIcon(tallyrig::ValidationSeverity::warning) : applicationIcon();
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(titleLabel(
        info.critical ? QStringLiteral("Wichtiges Update verfügbar") : QStringLiteral("Update verfügbar"),
        area));
    texts->addWidget(lineLabel(QStringLiteral("Version "), info.version, area));
    texts->addWidget(lineLabel(QStringLiteral("Veröffentlicht: "), info.releaseDay(), area));
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(pictureWidget(picture, 48, area), 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return area;
}

QTextEdit* UpdateAlertView::message() {
    auto* text = new QTextEdit(this);
    text->setAccessibleName(QStringLiteral("Nachricht zum Update"));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(
        text->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, text,
        [text](const QSizeF& size) {
            const double most =
                shownLines * text->fontMetrics().lineSpacing() + 2 * text->document()->documentMargin();
            text->setFixedHeight(static_cast<int>(std::min(size.height(), most)) + 2 * text->frameWidth());
        });
    const std::string whole = info.message->toStdString();
    text->setPlainText(toQString(cutToShow(whole, longestMessage)));
    return text;
}

QBoxLayout* UpdateAlertView::buttonRow() {
    auto* row = new QHBoxLayout;
    if (info.releaseNotesUrl) {
        addButton(*row, QStringLiteral("&Release Notes"), &UpdateManager::openReleaseNotes);
    }
    row->addStretch(1);
    if (!info.critical) {
        addButton(*row, QStringLiteral("&Überspringen"), &UpdateManager::skipThisVersion);
    }
    addButton(*row, QStringLiteral("&Später"), &UpdateManager::postpone);
    QPushButton* preferred = nullptr;
    if (info.canAutoInstall()) {
        addButton(*row, QStringLiteral("Im &Browser laden"), &UpdateManager::openDownload);
        installButton = new QPushButton(QStringLiteral("&Laden && installieren"), this);
        connect(installButton, &QPushButton::clicked, this, &UpdateAlertView::install);
        row->addWidget(installButton);
        preferred = installButton;
    } else {
        preferred = addButton(*row, QStringLiteral("&Download"), &UpdateManager::openDownload);
    }
    preferred->setDefault(true);
    preferred->setFocus();
    return row;
}

QPushButton* UpdateAlertView::addButton(QBoxLayout& row, const QString& text,
                                        void (UpdateManager::*action)()) {
    auto* button = new QPushButton(text, this);
    connect(button, &QPushButton::clicked, &manager, action);
    row.addWidget(button);
    otherButtons.push_back(button);
    return button;
}

void UpdateAlertView::install() {
    // Return, held down, must not reach the button beside this one.
    setFocus();
    installer->downloadAndInstall(info.downloadUrl, info.sha256);
}

void UpdateAlertView::follow() {
    const UpdateInstaller::Phase& phase = installer->phase();
    status->show(phase);
    for (QPushButton* const button : otherButtons) {
        button->setEnabled(!isInstalling() || phase.kind == Kind::downloading);
    }
    if (installButton != nullptr) {
        installButton->setEnabled(!isInstalling());
        if (phase.kind == Kind::failed) {
            installButton->setFocus();
        }
    }
    growToFit();
}

void UpdateAlertView::growToFit() {
    // By itself a dialog grows no further than to the lines that its texts have when none of them wraps.
    if (isVisible()) {
        status->layout()->activate();
        layout()->activate();
        resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    }
}

}  // namespace quillon
