// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Why an installation failed, in words for the user.
struct InstallError {
    QString text;

    static InstallError badURL();
    static InstallError httpStatus(int code);
    static InstallError truncated();
    static InstallError noChecksum();
    static InstallError checksumMismatch();
    static InstallError notAnAppBundle(const QString& path);
    static InstallError targetNotWritable(const QString& directory);
    static InstallError mountFailed();
    static InstallError appNotFoundInDMG();
    /// A tool that began its work and gave it up. Of what it said last 300 characters are shown, without
    /// blanks and line ends around them.
    static InstallError processFailed(const QString& tool, int code, const QString& said);

    /// What an error number of the system means.
    static InstallError ofSystem(int error);

    friend bool operator==(const InstallError&, const InstallError&) = default;
};

}  // namespace quillon
