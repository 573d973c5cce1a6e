#include "Quillon/Views/Table/TableQuestions.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace quillon {
namespace {

constexpr int fieldWidthPx = 300;

/// The dialog "Neue Spalte".
class NewColumnDialog : public QDialog {
  public:
    explicit NewColumnDialog(QWidget* parent) : QDialog(parent), nameField(new QLineEdit(this)) {
        setWindowTitle(QStringLiteral("Neue Spalte"));
        auto* text = new QLabel(QStringLiteral("Name des ADIF-Felds für die neue Spalte."), this);
        text->setBuddy(nameField);
        nameField->setPlaceholderText(QStringLiteral("ADIF-Feldname (z. B. SOTA_REF)"));
        nameField->setAccessibleName(QStringLiteral("ADIF-Feldname"));
        nameField->setMinimumWidth(fieldWidthPx);

        auto* buttons = new QDialogButtonBox(this);
        QPushButton* add = buttons->addButton(QStringLiteral("Hinzufügen"), QDialogButtonBox::AcceptRole);
        add->setDefault(true);
        buttons->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

        auto* layout = new QVBoxLayout(this);
        layout->addWidget(text);
        layout->addWidget(nameField);
        layout->addWidget(buttons);
        layout->setSizeConstraint(QLayout::SetFixedSize);
    }

    QString name() const { return nameField->text(); }

  private:
    QLineEdit* nameField;
};

QString number(std::size_t value) {
    return QLocale(QLocale::German).toString(static_cast<qulonglong>(value));
}

/// Asks for something that cannot be meant by accident: the safe answer is the one that Return gives.
bool consents(const QString& question, const QString& text, const QString& consent) {
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    box.setInformativeText(text);
    QPushButton* cancel = box.addButton(QStringLiteral("Abbrechen"), QMessageBox::RejectRole);
    const QPushButton* agree = box.addButton(consent, QMessageBox::AcceptRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == agree;
}

}  // namespace

bool TableDialogs::confirmRename(const QString& from, const QString& to, std::size_t recordCount) {
    return consents(QStringLiteral("%1 in %2 umbenennen?").arg(from, to),
                    QStringLiteral("%1 ist ein offizielles ADIF-Feld. Es wird in %2 QSO(s) umbenannt "
                                   "und von anderen Programmen danach nicht mehr erkannt. "
                                   "(Rückgängig mit Strg+Z.)")
                        .arg(from, QString::number(recordCount)),
                    QStringLiteral("Umbenennen"));
}

bool TableDialogs::confirmDeletion(std::size_t count, std::size_t hiddenCount) {
    const QString hidden = hiddenCount == count ? QStringLiteral("Die Suche blendet die ganze Auswahl aus.")
                           : hiddenCount == 1
                               ? QStringLiteral("Eines davon blendet die Suche aus. Es wird mit gelöscht.")
                               : QStringLiteral("%1 davon blendet die Suche aus. Sie werden mit gelöscht.")
                                     .arg(number(hiddenCount));
    return consents(
        count == 1 ? QStringLiteral("1 QSO löschen?") : QStringLiteral("%1 QSOs löschen?").arg(number(count)),
        hidden + QStringLiteral(" (Rückgängig mit Strg+Z.)"), QStringLiteral("Löschen"));
}

std::optional<QString> TableDialogs::newColumnName() {
    NewColumnDialog dialog(QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.name()) : std::nullopt;
}

std::optional<std::size_t> TableDialogs::rowNumber(std::size_t count) {
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Gehe zu Zeile"));
    dialog.setLabelText(QStringLiteral("Nummer der Zeile (1 bis %1):").arg(number(count)));
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setIntRange(1, static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max())));
    dialog.setOkButtonText(QStringLiteral("Gehe zu"));
    dialog.setCancelButtonText(QStringLiteral("Abbrechen"));
    return dialog.exec() == QDialog::Accepted ? std::optional(static_cast<std::size_t>(dialog.intValue()))
                                              : std::nullopt;
}

}  // namespace quillon
