#include "Quillon/Views/Window/ErrorAlert.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"

#include <QMessageBox>

namespace quillon {

ErrorAlert::ErrorAlert(LogStore& logStore, QWidget& overWindow)
    : QObject(&overWindow), store(logStore), window(overWindow) {
    connect(&store, &LogStore::errorMessageChanged, this, &ErrorAlert::refresh);
    refresh();
}

void ErrorAlert::refresh() {
    const std::optional<QString>& message = store.errorMessage();
    if (!message) {
        if (box && box->isVisible()) {
            box->close();
        }
        return;
    }
    if (!box) {
        box = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("Fehler"), QString(), QMessageBox::NoButton,
                              &window);
        box->setIconPixmap(severityIcon(tallyrig::ValidationSeverity::error)
                               .pixmap(QSize(48, 48), window.devicePixelRatioF()));
        box->setTextFormat(Qt::PlainText);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse);
        box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        connect(box, &QDialog::finished, this, [this] { store.setErrorMessage(std::nullopt); });
    }
    box->setText(*message);
    if (!box->isVisible()) {
        box->open();
    }
}

}  // namespace quillon
