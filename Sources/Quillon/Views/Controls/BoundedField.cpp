// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/BoundedField.h"

#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/UnseenCharacters.h"

#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <utility>

namespace quillon {

namespace {

/// The front of `text`, no letter cut in two halves.
QString front(const QString& text, qsizetype length) {
    const bool cutsLetter = length > 0 && length < text.size() && text[length - 1].isHighSurrogate();
    return text.left(cutsLetter ? length - 1 : length);
}

/// Takes from a paste or a drop what there is room for.
class Area : public QPlainTextEdit {
  public:
    Area(int longestText, std::function<void()> whenCut, QWidget* parent)
        : QPlainTextEdit(parent), longest(longestText), cut(std::move(whenCut)) {}

  protected:
    void insertFromMimeData(const QMimeData* source) override {
        const QString text = source->text();
        // The document counts the end of its last line, too.
        const qsizetype kept = document()->characterCount() - 1 - textCursor().selectedText().size();
        const qsizetype room = std::max<qsizetype>(0, longest - kept);
        textCursor().insertText(front(text, room));
        ensureCursorVisible();
        if (text.size() > room) {
            cut();
        }
    }

  private:
    int longest;
    std::function<void()> cut;
};

}  // namespace

BoundedField::BoundedField(int longestText, QWidget* parent) : QWidget(parent), longest(longestText) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
}

void BoundedField::setEditor(QWidget* editor) {
    layout()->addWidget(editor);
    setFocusProxy(editor);
    // What takes no focus has no place in the order of the tab key.
    setFocusPolicy(editor->focusPolicy());
}

void BoundedField::tellThatCut(bool isCut) {
    if (isCut && remark == nullptr) {
        remark = noteLabel(QStringLiteral("Gekürzt: Das Feld fasst höchstens %1 Zeichen.")
                               .arg(numberText(static_cast<std::size_t>(longest))),
                           this);
        layout()->addWidget(remark);
    }
    if (remark != nullptr) {
        remark->setVisible(isCut);
    }
}

BoundedLine::BoundedLine(int longestText, QWidget* parent)
    : BoundedField(longestText, parent), line(new QLineEdit(this)) {
    line->setMaxLength(longest);
    markUnseenCharacters(*line);
    setEditor(line);
    connect(line, &QLineEdit::inputRejected, this, [this] { tellThatCut(true); });
    connect(line, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.size() < longest) {
            tellThatCut(false);
        }
    });
}

void BoundedLine::setText(std::string_view text) {
    const std::string_view taken = cutToShow(text, static_cast<std::size_t>(longest));
    line->setText(toQString(taken));
    tellThatCut(taken.size() < text.size());
}

BoundedText::BoundedText(int longestText, int shownLines, QWidget* parent)
    : BoundedField(longestText, parent),
      area(new Area(
          longest, [this] { tellThatCut(true); }, this)) {
    area->setTabChangesFocus(true);
    const int margins = 2 * (area->frameWidth() + static_cast<int>(area->document()->documentMargin()));
    area->setFixedHeight(shownLines * area->fontMetrics().lineSpacing() + margins);
    setEditor(area);
    connect(area, &QPlainTextEdit::textChanged, this, [this] {
        if (area->document()->characterCount() - 1 < longest) {
            tellThatCut(false);
        }
    });
}

}  // namespace quillon
