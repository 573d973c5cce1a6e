// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Help/HandbookWindow.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/Tone.h"
#include "Quillon/Views/Help/HandbookDocument.h"
#include "Quillon/Views/Help/HandbookView.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>

#include <algorithm>

namespace quillon {

namespace {

const QString geometryKey = QStringLiteral("handbook.geometry");
const QString splitterKey = QStringLiteral("handbook.splitter");
const QString zoomKey = QStringLiteral("handbook.zoom");

constexpr int zoomStepPercent = 10;

bool isOfTheWeb(const QUrl& address) {
    return QStringList{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")}.contains(
        address.scheme());
}

}  // namespace

HandbookWindow::HandbookWindow(const QString& markdown, Settings& userSettings, QWidget* parent)
    : QMainWindow(parent),
      settings(userSettings),
      view(new HandbookView(new HandbookDocument(markdown, palette()), this)),
      contents(new QTreeWidget(this)),
      splitter(new QSplitter(this)) {
    setWindowTitle(appName() + QStringLiteral(" – Handbuch"));
    // The program ends with its main window.
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    buildContents();
    splitter->addWidget(contents);
    splitter->addWidget(view);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    addToolBar(buildTools());
    buildKeys();
    connect(view, &HandbookView::headingChanged, this, &HandbookWindow::showHeading);
    connect(view, &HandbookView::addressWanted, this, [this](const QUrl& address) {
        if (isOfTheWeb(address)) {
            emit addressWanted(address);
        }
    });
    restore();
    showHeading(0);
    view->setFocus();
}

HandbookWindow::~HandbookWindow() {
    remember();
}

void HandbookWindow::showPart(const QString& anchor) {
    // A window that was made smaller comes back as it was.
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (const auto index = view->handbook().headingAt(anchor)) {
        view->goToHeading(*index);
    }
    view->setFocus();
}

QToolBar* HandbookWindow::buildTools() {
    auto* bar = new QToolBar(QStringLiteral("Werkzeuge"), this);
    bar->setMovable(false);
    QAction* const back = addTool(*bar, QStringLiteral("Zurück"), QStringLiteral("go-previous"),
                                  {Qt::ALT | Qt::Key_Left, Qt::Key_Back});
    QAction* const forward = addTool(*bar, QStringLiteral("Vorwärts"), QStringLiteral("go-next"),
                                     {Qt::ALT | Qt::Key_Right, Qt::Key_Forward});
    bar->addSeparator();
    QAction* const smaller = addTool(*bar, QStringLiteral("Schrift kleiner"),
                                     QStringLiteral("format-font-size-less"), {Qt::CTRL | Qt::Key_Minus});
    QAction* const larger =
        addTool(*bar, QStringLiteral("Schrift größer"), QStringLiteral("format-font-size-more"),
                {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    QAction* const ordinary = addTool(*bar, QStringLiteral("Schrift wie üblich"),
                                      QStringLiteral("zoom-original"), {Qt::CTRL | Qt::Key_0});
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, view, &HandbookView::backward);
    connect(forward, &QAction::triggered, view, &HandbookView::forward);
    connect(view, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(view, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(smaller, &QAction::triggered, view, [this] { view->setZoom(view->zoom() - zoomStepPercent); });
    connect(larger, &QAction::triggered, view, [this] { view->setZoom(view->zoom() + zoomStepPercent); });
    connect(ordinary, &QAction::triggered, view, [this] { view->setZoom(100); });
    auto* gap = new QWidget(bar);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    buildSearch(*bar);
    return bar;
}

void HandbookWindow::buildSearch(QToolBar& bar) {
    hitCount = new QLabel(&bar);
    hitCount->setContentsMargins(6, 0, 6, 0);
    bar.addWidget(hitCount);
    searchField = new QLineEdit(&bar);
    searchField->setPlaceholderText(QStringLiteral("Im Handbuch suchen"));
    searchField->setAccessibleName(QStringLiteral("Im Handbuch suchen"));
    searchField->setToolTip(QStringLiteral("Im Handbuch suchen (Strg+F)"));
    searchField->setClearButtonEnabled(true);
    searchField->setMaximumWidth(24 * fontMetrics().averageCharWidth() + 2 * fontMetrics().height());
    bar.addWidget(searchField);
    QAction* const previous =
        addTool(bar, QStringLiteral("Voriger Treffer"), QStringLiteral("go-up"), {Qt::SHIFT | Qt::Key_F3});
    QAction* const next =
        addTool(bar, QStringLiteral("Nächster Treffer"), QStringLiteral("go-down"), {Qt::Key_F3});
    connect(searchField, &QLineEdit::textChanged, this, [this, previous, next](const QString& text) {
        view->search(text);
        previous->setEnabled(view->hitCount() > 0);
        next->setEnabled(view->hitCount() > 0);
        showHitCount();
    });
    const auto step = [this](void (HandbookView::*showHit)()) {
        return [this, showHit] {
            (view->*showHit)();
            showHitCount();
        };
    };
    connect(previous, &QAction::triggered, this, step(&HandbookView::showPreviousHit));
    connect(next, &QAction::triggered, this, step(&HandbookView::showNextHit));
    connect(searchField, &QLineEdit::returnPressed, next, &QAction::trigger);
    previous->setEnabled(false);
    next->setEnabled(false);
}

QAction* HandbookWindow::addTool(QToolBar& bar, const QString& text, const QString& iconName,
                                 const QList<QKeySequence>& keys) {
    auto* action = new QAction(icon(iconName), text, this);
    action->setShortcuts(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) +
                       QLatin1Char(')'));
    bar.addAction(action);
    // Buttons of a tool bar are passed over by the Tab key otherwise.
    bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void HandbookWindow::buildContents() {
    contents->setAccessibleName(QStringLiteral("Inhalt"));
    contents->setHeaderHidden(true);
    contents->setFrameShape(QFrame::NoFrame);
    contents->header()->setStretchLastSection(true);
    // The chapters stand beside the title of the whole, what belongs to one below it.
    for (const HandbookHeading& heading : view->handbook().headings()) {
        constexpr int chapterLevel = 2;
        QTreeWidgetItem* const above = heading.level > chapterLevel && contents->topLevelItemCount() > 0
                                           ? contents->topLevelItem(contents->topLevelItemCount() - 1)
                                           : contents->invisibleRootItem();
        auto* item = new QTreeWidgetItem(above, {heading.title});
        item->setToolTip(0, heading.title);
        item->setSizeHint(0, {0, fontMetrics().height() + fontMetrics().height() / 3});
        item->setData(0, Qt::UserRole, static_cast<qulonglong>(items.size()));
        items.push_back(item);
    }
    contents->expandAll();
    const bool isFlat = std::ranges::all_of(items, [](auto* item) { return item->parent() == nullptr; });
    contents->setRootIsDecorated(!isFlat);
    connect(contents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) {
            view->goToHeading(item->data(0, Qt::UserRole).toULongLong());
        }
    });
    // The part whose line is current already may have been left by scrolling within it.
    connect(contents, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { view->goToHeading(item->data(0, Qt::UserRole).toULongLong()); });
    connect(contents, &QTreeWidget::itemActivated, view, [this] { view->setFocus(); });
}

void HandbookWindow::buildKeys() {
    auto* find = new QShortcut(Qt::CTRL | Qt::Key_F, this);
    connect(find, &QShortcut::activated, this, &HandbookWindow::startSearching);
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, &HandbookWindow::leave);
    auto* closing = new QShortcut(Qt::CTRL | Qt::Key_W, this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
}

void HandbookWindow::startSearching() {
    searchField->setFocus(Qt::ShortcutFocusReason);
    searchField->selectAll();
}

/// First the search ends, then the window closes.
void HandbookWindow::leave() {
    if (searchField->hasFocus() && !searchField->text().isEmpty()) {
        searchField->clear();
        view->setFocus();
        return;
    }
    close();
}

void HandbookWindow::showHeading(std::size_t index) {
    if (index < items.size()) {
        const QSignalBlocker quietly(contents);
        contents->setCurrentItem(items[index]);
        contents->scrollToItem(items[index]);
    }
}

void HandbookWindow::showHitCount() {
    const bool isMissing = !searchField->text().isEmpty() && view->hitCount() == 0;
    hitCount->setText(searchField->text().isEmpty() ? QString()
                      : isMissing
                          ? QStringLiteral("Nicht gefunden")
                          : QStringLiteral("%1 von %2")
                                .arg(numberText(view->currentHit() + 1), numberText(view->hitCount())));
    // For those who hear the field and do not see what stands beside it.
    searchField->setAccessibleDescription(hitCount->text());
    QPalette colors = palette();
    if (isMissing) {
        colors.setColor(hitCount->foregroundRole(),
                        toneColor(Tone::error, colors, colors.color(QPalette::Window)));
    }
    hitCount->setPalette(colors);
}

void HandbookWindow::restore() {
    const int letter = fontMetrics().averageCharWidth();
    // Beside the frame of the window on a small screen.
    constexpr QSize frame(16, 48);
    resize(QSize(156 * letter, 45 * fontMetrics().height()).boundedTo(screen()->availableSize() - frame));
    splitter->setSizes({42 * letter, 114 * letter});
    restoreGeometry(settings.bytes(geometryKey));
    splitter->restoreState(settings.bytes(splitterKey));
    view->setZoom(settings.number(zoomKey, view->zoom()));
}

void HandbookWindow::remember() {
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(splitterKey, splitter->saveState());
    settings.setValue(zoomKey, view->zoom());
}

}  // namespace quillon
