#include "Quillon/Views/Controls/CalmComboBox.h"

#include <QWheelEvent>

namespace quillon {

CalmComboBox::CalmComboBox(QWidget* parent) : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void CalmComboBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace quillon
