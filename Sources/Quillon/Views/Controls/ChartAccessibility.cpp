// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartAccessibility.h"

#include "Quillon/Views/Controls/Chart.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <unordered_map>

namespace quillon {

namespace {

class BarInterface : public QAccessibleInterface {
  public:
    BarInterface(Chart& barChart, int barIndex) : chart(&barChart), index(barIndex) {}

    int indexInChart() const { return index; }

    bool isValid() const override { return chart && bar() < chart->data().barCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return chart ? QAccessible::queryAccessibleInterface(chart) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.readOnly = true;
        state.focusable = true;
        state.focused = chart->hasFocus() && chart->currentBar() == bar();
        state.offscreen = chart->places().barOf(bar()).isEmpty();
        return state;
    }
    QRect rect() const override {
        const QRect area = isValid() ? chart->places().barOf(bar()) : QRect();
        return area.isEmpty() ? QRect() : QRect(chart->mapToGlobal(area.topLeft()), area.size());
    }
    QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? chart->data().sentence(bar()) : QString();
    }

  private:
    std::size_t bar() const { return static_cast<std::size_t>(index); }

    QPointer<Chart> chart;
    int index;
};

class ChartInterface : public QAccessibleWidget {
  public:
    explicit ChartInterface(Chart& barChart) : QAccessibleWidget(&barChart, QAccessible::Chart) {}
    ~ChartInterface() override {
        for (const auto& [index, id] : bars) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return static_cast<int>(chart().data().barCount()); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        const auto known = bars.find(index);
        if (known != bars.end()) {
            return QAccessible::accessibleInterface(known->second);
        }
        auto* bar = new BarInterface(chart(), index);
        // The registry of interfaces owns it from here on.
        bars.emplace(index, QAccessible::registerAccessibleInterface(bar));
        return bar;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* bar = dynamic_cast<const BarInterface*>(child);
        return bar != nullptr ? bar->indexInChart() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const auto bar = chart().places().entryAt(chart().mapFromGlobal(QPoint(x, y)));
        return bar ? child(static_cast<int>(*bar)) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const auto& current = chart().currentBar();
        return current && chart().hasFocus() ? child(static_cast<int>(*current))
                                             : QAccessibleWidget::focusChild();
    }

  private:
    Chart& chart() const { return *static_cast<Chart*>(widget()); }

    mutable std::unordered_map<int, QAccessible::Id> bars;  ///< Those that were asked for.
};

QAccessibleInterface* chartInterface(const QString&, QObject* object) {
    auto* chart = qobject_cast<Chart*>(object);
    return chart != nullptr ? new ChartInterface(*chart) : nullptr;
}

}  // namespace

void registerChartAccessibility() {
    QAccessible::installFactory(chartInterface);
}

void announceBar(Chart& chart, std::size_t bar) {
    if (QAccessible::isActive() && chart.hasFocus()) {
        QAccessibleEvent event(&chart, QAccessible::Focus);
        event.setChild(static_cast<int>(bar));
        QAccessible::updateAccessibility(&event);
    }
}

void announceOtherBars(Chart& chart) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&chart, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace quillon
