#include "Quillon/Platform/Desktop/DesktopFileManager.h"

#include <QDesktopServices>
#include <QUrl>

namespace quillon {

void DesktopFileManager::show(const QString& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

}  // namespace quillon
