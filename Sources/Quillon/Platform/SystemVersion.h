// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The version of the running operating system as "major.minor.patch": that of its kernel. Distributions
/// count each for itself, so that theirs say nothing across them.
QString systemVersion();

/// The same of a kernel that calls itself `release`, such as "6.1.0-18-amd64"; what it does not say is 0.
QString systemVersionOf(const QString& release);

}  // namespace quillon
