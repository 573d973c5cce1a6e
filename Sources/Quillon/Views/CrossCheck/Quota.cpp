// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/Quota.h"

#include "Quillon/Catalogue/CrossCheckWords.h"
#include "Quillon/Views/Controls/Strings.h"

namespace quillon {

QString Quota::text() const {
    return toQString(quotaText(share));
}

Tone Quota::tone() const {
    if (!share) {
        return Tone::plain;
    }
    return *share >= 0.95 ? Tone::good : *share >= 0.85 ? Tone::warning : Tone::error;
}

}  // namespace quillon
