// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/FieldPicker.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <QKeyEvent>

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

}  // namespace

FieldPicker::FieldPicker(const LogStore& logStore, QWidget* parent)
    : SearchedComboBox(parent), store(logStore) {
    setPlaceholderText(QStringLiteral("Feld wählen …"));
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
    SearchedComboBox::showPopup();
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
    if (!search(*event)) {
        event->ignore();
    }
}

}  // namespace quillon
