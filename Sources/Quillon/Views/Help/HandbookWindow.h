// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include <cstddef>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QSplitter;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillon {

class HandbookView;
class Settings;

/// The handbook in a window of its own, beside the others: the table of contents at its left, which follows
/// what is read, and above both the way back, the size of the letters and the search. Its size, the width of
/// the contents and the size of the letters outlast it.
class HandbookWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// Shows `markdown`. The settings outlive the window.
    HandbookWindow(const QString& markdown, Settings& userSettings, QWidget* parent = nullptr);
    ~HandbookWindow() override;

    /// Comes to the front with the part of this anchor at the top; an unknown one leaves the reader where he
    /// is.
    void showPart(const QString& anchor);

  signals:
    /// The reader wants to see an address of the web, which is one of http, https or mailto.
    void addressWanted(const QUrl& address);

  private:
    QToolBar* buildTools();
    void buildSearch(QToolBar& bar);
    void buildContents();
    void buildKeys();
    QAction* addTool(QToolBar& bar, const QString& text, const QString& iconName,
                     const QList<QKeySequence>& keys);
    void showHeading(std::size_t index);
    void showHitCount();
    void startSearching();
    void leave();
    void restore();
    void remember();

    Settings& settings;
    HandbookView* view;
    QTreeWidget* contents;
    QSplitter* splitter;
    QLineEdit* searchField = nullptr;
    QLabel* hitCount = nullptr;
    std::vector<QTreeWidgetItem*> items;  ///< By heading.
};

}  // namespace quillon
