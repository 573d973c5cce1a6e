#include "Quillon/Views/CrossCheck/Quota.h"

#include <QLocale>

namespace quillon {

QString Quota::text() const {
    return share ? QLocale(QLocale::German).toString(*share * 100, 'f', 1) + QStringLiteral(" %")
                 : QStringLiteral("–");
}

Tone Quota::tone() const {
    if (!share) {
        return Tone::plain;
    }
    return *share >= 0.95 ? Tone::good : *share >= 0.85 ? Tone::warning : Tone::error;
}

}  // namespace quillon
