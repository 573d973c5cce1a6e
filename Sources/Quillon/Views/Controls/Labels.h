// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QIcon>
#include <QLabel>

#include <cstddef>
#include <string_view>

namespace quillon {

/// A label on one line that takes what room there is and leaves out the part of its text that does not fit.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode elide;
};

/// The heading of a sheet: bold, a step larger than running text.
QLabel* titleLabel(const QString& text, QWidget* parent = nullptr);

/// The heading of a section: bold, in the small size.
QLabel* headingLabel(const QString& text, QWidget* parent = nullptr);

/// A figure that strikes the eye: bold, `factor` times as large as running text. It can be selected and
/// copied.
QLabel* figureLabel(double factor, QWidget* parent = nullptr);

/// The monospaced font of the system for what stands in a file, as large as `text`.
QFont fixedFontBeside(const QFont& text);

/// Lets `label`, which wraps, be as narrow as its pane: a word that is too long is cut off at the end, and
/// the whole is its tool tip.
void setWrappedText(QLabel& label, const QString& text);

/// Lets the user select and copy what `label` says.
void makeCopyable(QLabel& label);

/// A remark that explains what stands above it: small, in the secondary colour, on as many lines as it needs.
QLabel* noteLabel(const QString& text, QWidget* parent = nullptr);

/// Lets `label` name `control`, for the keyboard and for assistive technology.
void nameBy(QLabel& label, QWidget& control);

/// Lets the user ask what `control` is for (Shift+F1): of itself and of the editor in it.
void explain(QWidget& control, const QString& meaning);

/// A thin line between two parts of a window, from left to right.
QWidget* horizontalLine(QWidget* parent = nullptr);

/// A picture of this size on both sides, painted anew each time, so that it is crisp on any screen and
/// follows the palette.
QWidget* pictureWidget(const QIcon& picture, int sizePx, QWidget* parent = nullptr);

/// Why a text field cannot take `value` (UTF-8) for editing, empty if it can: it is too long, or one of its
/// letters carries so many accents that laying it out takes seconds.
QString whyNotEditable(std::string_view value);

/// `text` as a tool tip: taken letter by letter, also where it looks like markup, and without markup of its
/// own, for a tool tip is what a screen reader tells as well. Its line breaks are kept; a line of more than
/// 90 letters or so goes on in the next.
QString plainToolTip(const QString& text);

}  // namespace quillon
