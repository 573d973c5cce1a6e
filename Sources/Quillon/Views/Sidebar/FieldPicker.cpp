#include "Quillon/Views/Sidebar/FieldPicker.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListView>
#include <QProxyStyle>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

/// Fields of the header, which no QSO has.
constexpr std::array<std::string_view, 5> headerFields = {"ADIF_VER", "CREATED_TIMESTAMP", "PROGRAMID",
                                                          "PROGRAMVERSION", "USERDEFN"};

struct Choice {
    QString text;
    QString name;
};

/// "Rufzeichen (CALL)", or the name alone where there is no German one.
QString choiceText(std::string_view name) {
    const QString label = toQString(ADIFFieldCatalog::label(name));
    const QString plainName = toQString(name);
    return label == plainName ? plainName : label + QStringLiteral(" (") + plainName + QLatin1Char(')');
}

/// The fields with a German name come first: they are the ones in daily use.
std::vector<Choice> choicesFor(const tallyrig::ADIFRecord& record) {
    std::vector<Choice> choices;
    for (const auto& row : tallyrig::ADIFSpec::fields()) {
        if (std::find(headerFields.begin(), headerFields.end(), row.name) == headerFields.end() &&
            !record.has(row.name)) {
            choices.push_back({choiceText(row.name), toQString(row.name)});
        }
    }
    std::sort(choices.begin(), choices.end(), [](const Choice& left, const Choice& right) {
        const bool leftIsPlain = left.text == left.name;
        const bool rightIsPlain = right.text == right.name;
        return leftIsPlain != rightIsPlain ? rightIsPlain
                                           : QString::localeAwareCompare(left.text, right.text) < 0;
    });
    return choices;
}

/// The list of the picker. Qt looks for what is typed at the beginning of the entries alone, where the ADIF
/// name is not.
class ChoiceList : public QListView {
  public:
    using QListView::QListView;

    void keyboardSearch(const QString& search) override {
        constexpr qint64 longestPauseMs = 1000;
        if (!sinceLastKey.isValid() || sinceLastKey.elapsed() > longestPauseMs) {
            typed.clear();
        }
        sinceLastKey.start();
        typed += search;
        // Best at the beginning of the entry, else of a word in it, else anywhere.
        for (const char* before : {"^", "[ (]", ""}) {
            const QString pattern = QLatin1String(before) + QRegularExpression::escape(typed);
            const QModelIndexList found = model()->match(model()->index(0, modelColumn()), Qt::DisplayRole,
                                                         pattern, 1, Qt::MatchRegularExpression);
            if (!found.isEmpty()) {
                setCurrentIndex(found.constFirst());
                return;
            }
        }
    }

  protected:
    void showEvent(QShowEvent* event) override {
        typed.clear();
        QListView::showEvent(event);
    }

  private:
    QString typed;
    QElapsedTimer sinceLastKey;
};

/// Lets the list open below the picker with a scroll bar: as a menu it covers the screen from top to bottom.
class ListStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

}  // namespace

FieldPicker::FieldPicker(const LogStore& logStore, QWidget* parent) : CalmComboBox(parent), store(logStore) {
    setPlaceholderText(QStringLiteral("Feld wählen …"));
    setMaxVisibleItems(20);
    auto* listStyle = new ListStyle(style()->name());
    listStyle->setParent(this);
    setStyle(listStyle);
    setView(new ChoiceList(this));
    connect(this, &QComboBox::activated, this, [this](int index) {
        const QString name = itemData(index).toString();
        setCurrentIndex(-1);
        emit picked(name);
    });
}

void FieldPicker::showPopup() {
    clear();
    if (const tallyrig::ADIFRecord* record = store.selectedRecord()) {
        for (const Choice& choice : choicesFor(*record)) {
            addItem(choice.text, choice.name);
        }
    }
    setCurrentIndex(-1);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 30);
    QComboBox::showPopup();
}

void FieldPicker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F4:
            showPopup();
            return;
        default:
            break;
    }
    const bool isTyping = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::ShiftModifier;
    if (isTyping && !event->text().isEmpty() && event->text().front().isPrint()) {
        showPopup();
        view()->keyboardSearch(event->text());
    } else {
        event->ignore();
    }
}

}  // namespace quillon
