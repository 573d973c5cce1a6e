// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <string_view>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QVBoxLayout;

namespace quillon {

/// A text field that holds so much text and no more, for to lay out a text of megabytes takes minutes. Where
/// it left something out it says so below itself, until the text is shorter again.
class BoundedField : public QWidget {
    Q_OBJECT

  protected:
    /// `longestText` counts UTF-16 units.
    BoundedField(int longestText, QWidget* parent);

    /// To be called once; `editor` takes the focus.
    void setEditor(QWidget* editor);
    void tellThatCut(bool isCut);

    const int longest;

  private:
    QLabel* remark = nullptr;  ///< Null until there is something to say.
};

/// A bounded field on one line.
class BoundedLine : public BoundedField {
    Q_OBJECT

  public:
    explicit BoundedLine(int longestText, QWidget* parent = nullptr);

    /// The front of `text`, UTF-8, as far as it goes in.
    void setText(std::string_view text);
    QLineEdit& editor() const { return *line; }

  private:
    QLineEdit* line;
};

/// A bounded field of several lines, each of which wraps; Tab leaves it.
class BoundedText : public BoundedField {
    Q_OBJECT

  public:
    explicit BoundedText(int longestText, int shownLines, QWidget* parent = nullptr);

    QPlainTextEdit& editor() const { return *area; }

  private:
    QPlainTextEdit* area;
};

}  // namespace quillon
