// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/UnseenCharacters.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAction>
#include <QLineEdit>

#include <string>

namespace quillon {

void markUnseenCharacters(QLineEdit& field) {
    QAction* const mark = field.addAction(icon(QStringLiteral("view-hidden")), QLineEdit::TrailingPosition);
    mark->setVisible(false);
    QObject::connect(&field, &QLineEdit::textChanged, mark, [mark](const QString& text) {
        const std::string value = text.toStdString();
        const bool holdsUnseen = tallyrig::text::holdsUnseen(value);
        mark->setVisible(holdsUnseen);
        mark->setToolTip(holdsUnseen
                             ? plainToolTip(QStringLiteral("Enthält Zeichen, die man hier nicht sieht:\n") +
                                            toQString(tallyrig::text::visibleText(cutToShow(value))))
                             : QString());
    });
}

}  // namespace quillon
