// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/LogFileTypes.h"

namespace quillon {

const QList<FileType>& adifContentTypes() {
    static const QList<FileType> types = {
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adi")}},
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adif")}},
        {QStringLiteral("ADX-Dateien"), {QStringLiteral("adx")}},
        {QStringLiteral("EDI-Dateien"), {QStringLiteral("edi")}},
        {QStringLiteral("Cabrillo-Dateien"), {QStringLiteral("cbr")}},
        {QStringLiteral("Cabrillo-Dateien"), {QStringLiteral("cabrillo")}},
        {QStringLiteral("Log-Dateien"), {QStringLiteral("log")}},
        {QStringLiteral("Textdateien"), {QStringLiteral("txt")}},
    };
    return types;
}

}  // namespace quillon
