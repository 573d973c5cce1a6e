// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>

#include <cstddef>
#include <memory>
#include <vector>

namespace quillon {

/// A layout whose height follows from its width: what all such have in common, the keeping of their items.
class ItemLayout : public QLayout {
    Q_OBJECT

  public:
    explicit ItemLayout(QWidget* parent = nullptr);
    ~ItemLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }

  protected:
    /// As large as the largest of the items wants to be, in each direction.
    QSize largestItem() const;

    std::vector<std::unique_ptr<QLayoutItem>> items;
};

}  // namespace quillon
