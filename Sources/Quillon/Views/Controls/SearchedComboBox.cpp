// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/SearchedComboBox.h"

#include "Quillon/Views/Controls/FocusMarkStyle.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListView>
#include <QRegularExpression>

#include <vector>

namespace quillon {

namespace {

/// The list of the picker. Qt looks for what is typed at the beginning of the entries alone.
class SearchedList : public QListView {
  public:
    using QListView::QListView;

    void keyboardSearch(const QString& search) override {
        constexpr qint64 longestPauseMs = 1000;
        if (!sinceLastKey.isValid() || sinceLastKey.elapsed() > longestPauseMs) {
            typed.clear();
        }
        sinceLastKey.start();
        typed += search;
        findTyped();
    }

  protected:
    void showEvent(QShowEvent* event) override {
        typed.clear();
        chosen = currentIndex();
        QListView::showEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Backspace) {
            typed.chop(1);
            findTyped();
        } else {
            QListView::keyPressEvent(event);
        }
    }

  private:
    /// Goes back to what is chosen where nothing holds what is typed.
    void findTyped() {
        // Best at the beginning of the entry, else of a word in it, else anywhere.
        for (const char* before : typed.isEmpty() ? Places{} : Places{"^", "[ (/]", ""}) {
            const QString pattern = QLatin1String(before) + QRegularExpression::escape(typed);
            const QModelIndexList found = model()->match(model()->index(0, modelColumn()), Qt::DisplayRole,
                                                         pattern, 1, Qt::MatchRegularExpression);
            if (!found.isEmpty()) {
                setCurrentIndex(found.constFirst());
                return;
            }
        }
        setCurrentIndex(chosen);
    }

    using Places = std::vector<const char*>;

    QPersistentModelIndex chosen;  ///< When the list opened.
    QString typed;
    QElapsedTimer sinceLastKey;
};

/// Lets the list open below the picker with a scroll bar: as a menu it covers the screen from top to bottom.
class ListStyle : public FocusMarkStyle {
  public:
    using FocusMarkStyle::FocusMarkStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0 : FocusMarkStyle::styleHint(hint, option, widget, returned);
    }
};

}  // namespace

SearchedComboBox::SearchedComboBox(QWidget* parent) : CalmComboBox(parent) {
    setMaxVisibleItems(20);
    auto* listStyle = new ListStyle(FocusMarkStyle::drawingStyleOf(*style()));
    listStyle->setParent(this);
    setStyle(listStyle);
    setView(new SearchedList(this));
}

void SearchedComboBox::showPopup() {
    constexpr int scrollBarAndMarginsPx = 30;
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + scrollBarAndMarginsPx);
    QComboBox::showPopup();
}

void SearchedComboBox::keyPressEvent(QKeyEvent* event) {
    if (!search(*event)) {
        CalmComboBox::keyPressEvent(event);
    }
}

bool SearchedComboBox::search(const QKeyEvent& event) {
    const bool isTyping = event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::ShiftModifier;
    // A blank opens the list, as it does for any picker.
    if (!isTyping || event.text().isEmpty() || !event.text().front().isPrint() ||
        event.key() == Qt::Key_Space) {
        return false;
    }
    showPopup();
    view()->keyboardSearch(event.text());
    return true;
}

}  // namespace quillon
