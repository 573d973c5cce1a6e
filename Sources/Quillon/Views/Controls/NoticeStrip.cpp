// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/NoticeStrip.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/IconButton.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace quillon {

NoticeStrip::NoticeStrip(QWidget* parent)
    : QWidget(parent), message(new QLabel(this)), count(new QLabel(this)) {
    message->setTextFormat(Qt::PlainText);
    message->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    makeCopyable(*message);
    count->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 6, 4);
    layout->addWidget(message, 1);
    layout->addWidget(count);
    // All are made now, so that the tab key comes to them on its way from the left to the right.
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        buttons[index] = new QPushButton(this);
        buttons[index]->setAutoDefault(false);
        connect(buttons[index], &QPushButton::clicked, this,
                [this, index] { close(std::function(notices.front().actions[index].run)); });
        layout->addWidget(buttons[index]);
    }
    QToolButton* const closing =
        iconButton(QStringLiteral(":/Icons/close.svg"), QStringLiteral("Meldung schließen"), this);
    layout->addWidget(closing);

    const auto dismiss = [this] { close(std::function(notices.front().dismissed)); };
    connect(closing, &QToolButton::clicked, this, dismiss);
    new QShortcut(Qt::Key_Escape, this, this, dismiss, Qt::WidgetWithChildrenShortcut);
    showFirst();
}

void NoticeStrip::tell(Notice notice) {
    const auto same = std::ranges::find(notices, notice.topic, &Notice::topic);
    if (same != notices.end()) {
        *same = std::move(notice);
    } else if (notice.kind == Notice::Kind::warning) {
        // The keys of someone who is about to press a button are not to meet another.
        const auto first = notices.begin() + (hasKeyboard() && !notices.empty() ? 1 : 0);
        const auto behind = std::ranges::find(first, notices.end(), Notice::Kind::information, &Notice::kind);
        notices.insert(behind, std::move(notice));
    } else {
        notices.push_back(std::move(notice));
    }
    showFirst();
}

void NoticeStrip::tellAtOnce(Notice notice) {
    std::erase_if(notices, [&notice](const Notice& other) { return other.topic == notice.topic; });
    notices.insert(notices.begin(), std::move(notice));
    showFirst();
}

bool NoticeStrip::enter(const QString& topic) {
    const auto found = std::ranges::find(notices, topic, &Notice::topic);
    if (found == notices.end()) {
        return false;
    }
    tellAtOnce(Notice(*found));
    buttons.front()->setFocus(Qt::ShortcutFocusReason);
    return true;
}

bool NoticeStrip::withdraw(const QString& topic) {
    const bool wasThere =
        std::erase_if(notices, [&topic](const Notice& notice) { return notice.topic == topic; }) > 0;
    if (wasThere) {
        showFirst();
    }
    return wasThere;
}

bool NoticeStrip::hasKeyboard() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus != nullptr && isAncestorOf(focus);
}

void NoticeStrip::close(const std::function<void()>& run) {
    const bool hadKeyboard = hasKeyboard();
    notices.erase(notices.begin());
    showFirst();
    if (hadKeyboard) {
        emit left();
    }
    if (run) {
        run();
    }
}

void NoticeStrip::showFirst() {
    setVisible(!notices.empty());
    if (notices.empty()) {
        return;
    }
    const Notice& notice = notices.front();
    delete picture;
    picture = pictureWidget(notice.kind == Notice::Kind::warning
                                ? severityIcon(tallyrig::ValidationSeverity::warning)
                                : icon(QStringLiteral("help-about")),
                            16, this);
    static_cast<QHBoxLayout*>(layout())->insertWidget(0, picture);
    const bool isOther = message->text() != notice.text;
    setWrappedText(*message, notice.text);
    count->setText(QStringLiteral("1 von %1").arg(notices.size()));
    count->setVisible(notices.size() > 1);
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        const bool isUsed = index < notice.actions.size();
        buttons[index]->setText(isUsed ? notice.actions[index].text : QString());
        buttons[index]->setVisible(isUsed);
    }
    setAccessibleName(notice.text);
    if (isOther) {
        // What appears without being asked for is read out.
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    update();
}

void NoticeStrip::paintEvent(QPaintEvent*) {
    constexpr double tint = 0.16;
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Window);
    const bool isWarning = !notices.empty() && notices.front().kind == Notice::Kind::warning;
    const QColor color = isWarning ? screenColor(SystemColor::orange) : palette().color(QPalette::Highlight);
    painter.fillRect(rect(), blended(color, tint, ground));
    painter.fillRect(QRect(0, height() - 1, width(), 1), palette().color(QPalette::Mid));
}

}  // namespace quillon
