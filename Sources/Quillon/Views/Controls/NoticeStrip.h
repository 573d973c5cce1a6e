// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace quillon {

/// Something that the user is told without being held up, and what can be done about it.
struct Notice {
    enum class Kind { information, warning };
    struct Action {
        QString text;
        /// Called when the notice is gone from the strip.
        std::function<void()> run;
    };

    QString topic;  ///< There is one notice of a topic at most.
    QString text;   ///< One or two sentences. What it quotes can be read as it stands.
    Kind kind = Kind::information;
    static constexpr std::size_t mostActions = 3;
    std::vector<Action> actions;
    /// Called when the user closes the notice without any of the actions; may be empty.
    std::function<void()> dismissed;
};

/// A strip over what the window shows, with one notice after the other: its text, a button for each of its
/// actions, and one that closes it. Takes no room when there is nothing to tell, and never the keyboard.
class NoticeStrip : public QWidget {
    Q_OBJECT

  public:
    explicit NoticeStrip(QWidget* parent = nullptr);

    /// Shows the notice when those before it are closed; one of the same topic gives it its place. A warning
    /// goes before mere information, unless that has the keyboard.
    void tell(Notice notice);
    /// Shows the notice at once, in front of the others: what the user has just asked for waits for it.
    void tellAtOnce(Notice notice);
    /// Shows the notice of this topic and lets its first action have the keyboard. False, and nothing
    /// happens, if there is none.
    bool enter(const QString& topic);
    /// The notice of this topic is told no more. False if there is none.
    bool withdraw(const QString& topic);

  signals:
    /// The notice that had the keyboard is closed.
    void left();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void showFirst();
    bool hasKeyboard() const;
    /// Takes the notice that is shown away and then calls `run`, if any.
    void close(const std::function<void()>& run);

    std::vector<Notice> notices;  ///< The first is shown.
    QWidget* picture = nullptr;
    QLabel* message;
    QLabel* count;
    std::array<QPushButton*, Notice::mostActions> buttons = {};
};

}  // namespace quillon
