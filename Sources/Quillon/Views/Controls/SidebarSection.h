// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <string_view>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace quillon {

/// A group of controls in the sidebar, one under the other, under a heading.
class SidebarSection : public QWidget {
    Q_OBJECT

  public:
    /// An empty `title` gives no heading.
    explicit SidebarSection(const QString& title, QWidget* parent = nullptr);

    // `meaning` answers the user who asks what the control is for (Shift+F1).

    void add(QWidget* control);
    void add(QWidget* control, const QString& meaning);
    /// Named by the heading, as the one control that the section is about.
    void addUnderHeading(QWidget* control);
    /// Under its own label, which belongs to it for the keyboard and for assistive technology.
    void addLabelled(const QString& label, QWidget* control, const QString& meaning);
    /// A text field for `text` (UTF-8), with a tool tip, under its label.
    QLineEdit& addText(const QString& label, std::string_view text, const QString& toolTip,
                       const QString& meaning);
    QLabel* addNote(const QString& text);

  private:
    QVBoxLayout* column;
    QLabel* heading;
};

}  // namespace quillon
