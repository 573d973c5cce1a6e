// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Labels.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/KeptFont.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

class PictureWidget : public QWidget {
  public:
    PictureWidget(QIcon icon, int sizePx, QWidget* parent) : QWidget(parent), picture(std::move(icon)) {
        setFixedSize(sizePx, sizePx);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        picture.paint(&painter, rect());
    }

  private:
    QIcon picture;
};

class HorizontalLine : public QWidget {
  public:
    explicit HorizontalLine(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(QRectF(0, 0, width(), hairlineWidth(painter)), palette().color(QPalette::Mid));
    }
};

/// The application's font, bold and so many times as large.
QFont boldFont(double factor) {
    QFont font = QGuiApplication::font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

/// The text in lines of at most 90 letters of middle width.
QStringList wrapped(const QString& text) {
    constexpr int lettersInLine = 90;
    const QFont font = QToolTip::font();
    const int lineWidth = lettersInLine * QFontMetrics(font).averageCharWidth();
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(lineWidth);
        lines.append(text.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines.size() > 1 ? lines : QStringList(text);
}

}  // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent) : QLabel(parent), elide(elideMode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 1, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    const int readable = fontMetrics().horizontalAdvance(QStringLiteral("mmm…"));
    return {std::min(readable, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const int flags =
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
    style()->drawItemText(&painter, area, flags, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), elide, area.width()), foregroundRole());
}

QLabel* titleLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    keepFont(*label, [] { return boldFont(1.2); });
    return label;
}

QFont fixedFontBeside(const QFont& text) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QFontInfo(text).pointSizeF());
    return font;
}

QLabel* headingLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    keepFont(*label, [] { return fontFor(MeasuredFont::label); });
    return label;
}

QLabel* figureLabel(double factor, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    keepFont(*label, [factor] { return boldFont(factor); });
    makeCopyable(*label);
    return label;
}

void setWrappedText(QLabel& label, const QString& text) {
    label.setWordWrap(true);
    label.setMinimumWidth(1);
    label.setText(text);
    label.setToolTip(plainToolTip(text));
}

void makeCopyable(QLabel& label) {
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QLabel* noteLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    keepFont(*label, smallFont);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    return label;
}

void nameBy(QLabel& label, QWidget& control) {
    QWidget& named = control.focusProxy() != nullptr ? *control.focusProxy() : control;
    label.setBuddy(&named);
    named.setAccessibleName(label.text());
}

void explain(QWidget& control, const QString& meaning) {
    control.setWhatsThis(meaning);
    if (QWidget* const editor = control.focusProxy()) {
        editor->setWhatsThis(meaning);
    }
}

QWidget* horizontalLine(QWidget* parent) {
    return new HorizontalLine(parent);
}

QWidget* pictureWidget(const QIcon& picture, int sizePx, QWidget* parent) {
    return new PictureWidget(picture, sizePx, parent);
}

QString whyNotEditable(std::string_view value) {
    // The time for the accents of one letter grows with the square of their number.
    constexpr std::size_t largestCharacter = 200;
    if (value.size() > longestEditableValue) {
        return QStringLiteral("Der Wert ist mit %1 Bytes zu lang, um ihn hier zu bearbeiten.")
            .arg(numberText(value.size()));
    }
    if (tallyrig::text::isASCII(value)) {
        return {};
    }
    const auto characters = tallyrig::text::characters(value);
    const bool isLaidOutFast = std::ranges::all_of(
        characters, [](std::string_view character) { return character.size() <= largestCharacter; });
    return isLaidOutFast ? QString()
                         : QStringLiteral(
                               "Der Wert hat ein Zeichen mit zu vielen Akzenten, um ihn hier zu bearbeiten.");
}

QString plainToolTip(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        lines += wrapped(line);
    }
    QString result = lines.join(QLatin1Char('\n'));
    if (Qt::mightBeRichText(result)) {
        // Qt guesses by what a tag begins with: a sign that nobody sees leads it away.
        constexpr QChar wordJoiner(0x2060);
        result.replace(QLatin1Char('<'), QLatin1Char('<') + QString(wordJoiner));
        result.replace(QLatin1Char('&'), QLatin1Char('&') + QString(wordJoiner));
    }
    return result;
}

}  // namespace quillon
