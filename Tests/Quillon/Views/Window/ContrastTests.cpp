// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/PaintedTexts.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/FocusMarkStyle.h"
#include "Quillon/Views/Window/ContentView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace quillon {
namespace {

/// The colours of a desktop: window, base, alternate base, text, accent.
struct Desktop {
    const char* name;
    QColor window, base, alternate, text, accent;
};

const Desktop desktops[] = {
    {"light", "#efefef", "#ffffff", "#f7f7f7", "#000000", "#308cc6"},
    {"dark", "#2a2e32", "#1b1e20", "#232629", "#fcfcfc", "#3daee9"},
    {"darker", "#222020", "#3d3d3d", "#5c5b5a", "#ffffff", "#0f61a8"},
};

QString example(const char* name) {
    return QStringLiteral(EXAMPLES_FOLDER "/") + QLatin1String(name);
}

class Contrasts : public testing::LogStoreTest, public ::testing::WithParamInterface<Desktop> {
  protected:
    void SetUp() override {
        const auto& [name, ground, base, alternate, text, accent] = GetParam();
        QPalette palette(text, ground, ground.lighter(130), ground.darker(150), ground.darker(120), text,
                         Qt::white, base, ground);
        palette.setColor(QPalette::AlternateBase, alternate);
        palette.setColor(QPalette::Highlight, accent);
        QApplication::setStyle(new FocusMarkStyle(QStringLiteral("Fusion")));
        QApplication::setPalette(palette);
        makePaletteReadable();
    }
    void TearDown() override {
        window.reset();
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(QPalette());
    }

    void show(const QStringList& arguments) {
        window =
            std::make_unique<ContentView>(AppStores{store, compare, contest, cross}, settings, arguments);
        QSignalSpy up(window.get(), &ContentView::cameUp);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(up.wait());
    }
    static void settle() {
        // A pane within a pane is laid out a turn later than what it stands in.
        for (int turn = 0; turn < 4; ++turn) {
            QApplication::processEvents();
        }
    }
    static QImage pictureOf(QWidget& widget) { return widget.grab().toImage(); }

    /// What is greyed out is meant to be pale.
    static bool isUsable(const QWidget& widget, QPoint place) {
        if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
            const QAction* const action = menu->actionAt(place);
            return action != nullptr && action->isEnabled();
        }
        const QWidget* const at = widget.childAt(place);
        return at == nullptr || at->isEnabled();
    }

    static void expectReadable(QWidget& widget, std::size_t leastTexts) {
        settle();
        const QImage picture = pictureOf(widget);
        testing::TextNotes notes(widget.size());
        widget.render(&notes);
        std::size_t seen = 0;
        for (const testing::PaintedText& painted : notes.texts()) {
            if (painted.text.trimmed().isEmpty() || !picture.rect().intersects(painted.place) ||
                !isUsable(widget, painted.place.center())) {
                continue;
            }
            ++seen;
            EXPECT_GE(testing::contrastOf(painted, picture), textContrast)
                << painted.text.toStdString() << " in " << painted.ink.name().toStdString() << " on "
                << testing::groundIn(picture, painted.place).name().toStdString();
        }
        EXPECT_GE(seen, leastTexts);
    }

    CompareStore compare{settings, panels};
    ContestStore contest;
    CrossCheckStore cross{panels, fileManager};
    std::unique_ptr<ContentView> window;
};

TEST_P(Contrasts, OfAllTextsAreEnough) {
    show({example("befunde.adi")});
    expectReadable(*window, 100);
    store.runCheck();
    store.selectRecord(1);
    for (auto* list : window->findChildren<QListView*>()) {
        if (list->isVisible()) {
            list->setFocus();
            list->setCurrentIndex(list->model()->index(0, 0));
        }
    }
    expectReadable(*window, 150);
    for (QMenu* menu : window->findChildren<QMenu*>()) {
        SCOPED_TRACE(menu->title().toStdString());
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        menu->setActiveAction(menu->actions().value(0));
        expectReadable(*menu, 0);
    }
    store.setMode(AppMode::outdoor);
    store.runOutdoorCheck();
    expectReadable(*window, 100);
    compare.load(CompareStore::Side::left, example("vereinsabend.adi"));
    compare.load(CompareStore::Side::right, example("vereinsabend-abschrift.adi"));
    store.setMode(AppMode::compare);
    expectReadable(*window, 100);
    store.setMode(AppMode::stats);
    expectReadable(*window, 30);
    store.setMode(AppMode::contest);
    expectReadable(*window, 50);
}

TEST_P(Contrasts, OfRankingAndFindingsAreEnough) {
    show({QStringLiteral("--crosscheck"), example("crosscheck")});
    while (window->isWorking()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    expectReadable(*window, 100);
}

TEST_P(Contrasts, ShowWhereTheKeyboardIs) {
    show({example("befunde.adi")});
    store.runCheck();
    store.selectRecord(1);
    settle();
    QWidget* const first = QApplication::focusWidget();
    int stops = 0;
    do {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
        QWidget* const at = QApplication::focusWidget();
        const QImage with = pictureOf(*at);
        at->clearFocus();
        settle();
        const QImage without = pictureOf(*at);
        at->setFocus(Qt::TabFocusReason);
        int changed = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x) {
                changed += contrast(with.pixelColor(x, y), without.pixelColor(x, y)) >= shapeContrast;
            }
        }
        // More than the text cursor, which comes and goes.
        EXPECT_GE(changed, 2 * at->fontMetrics().height())
            << at->metaObject()->className() << " "
            << QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name).toStdString();
        ++stops;
    } while (QApplication::focusWidget() != first && stops < 60);
    EXPECT_GE(stops, 15);
}

INSTANTIATE_TEST_SUITE_P(OnADesktop, Contrasts, ::testing::ValuesIn(desktops),
                         [](const auto& desktop) { return std::string(desktop.param.name); });

}  // namespace
}  // namespace quillon
