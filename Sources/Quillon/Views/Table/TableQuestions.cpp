// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/TableQuestions.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int fieldWidthPx = 300;

/// A dialog that asks for one line of text.
class LineDialog : public QDialog {
  public:
    LineDialog(const QString& title, const QString& question, const QString& consent)
        : QDialog(QApplication::activeWindow()), line(new QLineEdit(this)) {
        setWindowTitle(title);
        auto* text = new QLabel(question, this);
        text->setBuddy(line);
        line->setMinimumWidth(fieldWidthPx);

        auto* buttons = new QDialogButtonBox(this);
        agree = buttons->addButton(consent, QDialogButtonBox::AcceptRole);
        agree->setDefault(true);
        buttons->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

        auto* layout = new QVBoxLayout(this);
        layout->addWidget(text);
        layout->addWidget(line);
        layout->addWidget(buttons);
        layout->setSizeConstraint(QLayout::SetFixedSize);
    }

    QLineEdit& field() const { return *line; }
    void setCanAgree(bool can) { agree->setEnabled(can); }

  private:
    QLineEdit* line;
    QPushButton* agree;
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

std::optional<QString> TableDialogs::newColumnName(const QString& proposed) {
    LineDialog dialog(QStringLiteral("Neue Spalte"),
                      QStringLiteral("Name des ADIF-Felds für die neue Spalte."),
                      QStringLiteral("Hinzufügen"));
    dialog.field().setPlaceholderText(QStringLiteral("ADIF-Feldname (z. B. SOTA_REF)"));
    dialog.field().setAccessibleName(QStringLiteral("ADIF-Feldname"));
    dialog.field().setText(proposed);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.field().text()) : std::nullopt;
}

std::optional<std::size_t> TableDialogs::rowNumber(std::size_t count, std::size_t current) {
    const QString question = QStringLiteral("Nummer der Zeile (1 bis %1):").arg(number(count));
    LineDialog dialog(QStringLiteral("Gehe zu Zeile"), question, QStringLiteral("Gehe zu"));
    dialog.field().setAccessibleName(question);
    const auto typed = [&dialog, count]() -> std::optional<std::size_t> {
        // With the dots of thousands or without.
        const qulonglong value = QLocale(QLocale::German).toULongLong(dialog.field().text().trimmed());
        return value >= 1 && value <= count ? std::optional<std::size_t>(value) : std::nullopt;
    };
    QObject::connect(&dialog.field(), &QLineEdit::textChanged, &dialog,
                     [&] { dialog.setCanAgree(typed().has_value()); });
    dialog.field().setText(number(current));
    dialog.field().selectAll();
    return dialog.exec() == QDialog::Accepted ? typed() : std::nullopt;
}

}  // namespace quillon
