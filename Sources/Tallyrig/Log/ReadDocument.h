// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ReadingReport.h"

namespace tallyrig {

/// A document as it was read, with what the reader has to say about the file.
struct ReadDocument {
    ADIFDocument document;
    ReadingReport report;
};

}  // namespace tallyrig
