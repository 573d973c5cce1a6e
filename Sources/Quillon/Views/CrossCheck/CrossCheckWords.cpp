#include "Quillon/Views/CrossCheck/CrossCheckWords.h"

#include <QLocale>

namespace quillon {

using tallyrig::CrossCheckStatus;

QString CrossCheckWords::label(CrossCheckStatus status) {
    switch (status) {
        case CrossCheckStatus::confirmed:
            return QStringLiteral("bestätigt");
        case CrossCheckStatus::bustedExchange:
            return QStringLiteral("Busted Exchange");
        case CrossCheckStatus::timeMismatch:
            return QStringLiteral("Zeit abweichend");
        case CrossCheckStatus::bandModeMismatch:
            return QStringLiteral("Band/Modus abweichend");
        case CrossCheckStatus::bustedCall:
            return QStringLiteral("Busted Call");
        case CrossCheckStatus::notInLog:
            return QStringLiteral("NIL");
        case CrossCheckStatus::unique:
            return QStringLiteral("Unique");
        case CrossCheckStatus::notCheckable:
            return QStringLiteral("nicht prüfbar");
    }
    return {};
}

SystemColor CrossCheckWords::color(CrossCheckStatus status) {
    switch (status) {
        case CrossCheckStatus::confirmed:
            return SystemColor::green;
        case CrossCheckStatus::bustedExchange:
        case CrossCheckStatus::timeMismatch:
        case CrossCheckStatus::bandModeMismatch:
            return SystemColor::orange;
        case CrossCheckStatus::bustedCall:
        case CrossCheckStatus::notInLog:
            return SystemColor::red;
        case CrossCheckStatus::unique:
            return SystemColor::purple;
        case CrossCheckStatus::notCheckable:
            break;
    }
    return SystemColor::gray;
}

QString CrossCheckWords::quota(std::optional<double> share) {
    return share ? QLocale(QLocale::German).toString(*share * 100, 'f', 1) + QStringLiteral(" %")
                 : QStringLiteral("–");
}

Tone CrossCheckWords::tone(std::optional<double> share) {
    if (!share) {
        return Tone::plain;
    }
    return *share >= 0.95 ? Tone::good : *share >= 0.85 ? Tone::warning : Tone::error;
}

}  // namespace quillon
