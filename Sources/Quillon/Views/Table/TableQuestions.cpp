#include "Quillon/Views/Table/TableQuestions.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

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

}  // namespace

bool TableDialogs::confirmRename(const QString& from, const QString& to, std::size_t recordCount) {
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("%1 in %2 umbenennen?").arg(from, to));
    box.setInformativeText(QStringLiteral("%1 ist ein offizielles ADIF-Feld. Es wird in %2 QSO(s) umbenannt "
                                          "und von anderen Programmen danach nicht mehr erkannt. "
                                          "(Rückgängig mit Strg+Z.)")
                               .arg(from, QString::number(recordCount)));
    QPushButton* cancel = box.addButton(QStringLiteral("Abbrechen"), QMessageBox::RejectRole);
    const QPushButton* rename = box.addButton(QStringLiteral("Umbenennen"), QMessageBox::AcceptRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == rename;
}

std::optional<QString> TableDialogs::newColumnName() {
    NewColumnDialog dialog(QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.name()) : std::nullopt;
}

}  // namespace quillon
