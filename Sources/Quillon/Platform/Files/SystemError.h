// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillon {

/// What an error number of the system means for a file or a stream, as one German sentence.
std::string systemErrorSentence(int error);

}  // namespace quillon
