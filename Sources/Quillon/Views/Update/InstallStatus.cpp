// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Update/InstallStatus.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

using Kind = UpdateInstaller::Phase::Kind;

QString headingFor(Kind kind) {
    switch (kind) {
        case Kind::idle:
            break;
        case Kind::downloading:
            return QStringLiteral("Lade Update herunter…");
        case Kind::verifying:
            return QStringLiteral("Prüfe SHA-256-Prüfsumme…");
        case Kind::installing:
            return QStringLiteral("Installiere Update…");
        case Kind::relaunching:
            return QStringLiteral("Starte neu…");
        case Kind::failed:
            return QStringLiteral("Installation fehlgeschlagen");
    }
    return {};
}

}  // namespace

InstallStatus::InstallStatus(QWidget* parent)
    : QWidget(parent),
      heading(new QLabel(this)),
      bar(new QProgressBar(this)),
      percent(new QLabel(this)),
      reason(new QLabel(this)),
      wayOut(new QLabel(this)) {
    warning = pictureWidget(severityIcon(tallyrig::ValidationSeverity::error), fontMetrics().height(), this);
    for (QLabel* const label : {heading, percent, reason, wayOut}) {
        label->setTextFormat(Qt::PlainText);
    }
    makeCopyable(*reason);
    bar->setTextVisible(false);
    bar->setAccessibleName(headingFor(Kind::downloading));
    percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    percent->setMinimumWidth(percent->fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    setWrappedText(*wayOut, QStringLiteral("Du kannst das Archiv stattdessen im Browser laden."));

    auto* top = new QHBoxLayout;
    top->addWidget(warning);
    top->addWidget(heading, 1);
    auto* progress = new QHBoxLayout;
    progress->addWidget(bar, 1);
    progress->addWidget(percent);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(top);
    column->addLayout(progress);
    column->addWidget(reason);
    column->addWidget(wayOut);
    show({});
}

void InstallStatus::show(const UpdateInstaller::Phase& phase) {
    const bool hasFailed = phase.kind == Kind::failed;
    setVisible(phase.kind != Kind::idle);
    heading->setText(headingFor(phase.kind));
    bar->setVisible(phase.kind == Kind::downloading);
    percent->setVisible(phase.kind == Kind::downloading && phase.progress >= 0);
    showProgress(phase.progress);
    warning->setVisible(hasFailed);
    reason->setVisible(hasFailed);
    wayOut->setVisible(hasFailed);
    if (hasFailed) {
        setWrappedText(*reason, phase.message);
    }
}

void InstallStatus::showProgress(double progress) {
    constexpr int whole = 100;
    if (progress < 0) {
        bar->setRange(0, 0);  // How much there is to load nobody knows.
        return;
    }
    const int loaded = static_cast<int>(std::floor(std::clamp(progress, 0.0, 1.0) * whole));
    bar->setRange(0, whole);
    bar->setValue(loaded);
    percent->setText(QStringLiteral("%1 %").arg(loaded));
}

}  // namespace quillon
