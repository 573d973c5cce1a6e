// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Kept/KeptNote.h"

#include <QString>

namespace quillon {

// What is said of a kept thing, in German. Names are shown so that every character is seen.

/// The name of its file; "Unbenanntes Logbuch" without one.
QString nameOf(const KeptNote& note);
/// The folder of its file; empty without one.
QString folderOf(const KeptNote& note);
/// Why it was kept, in two or three words.
QString reasonFor(const KeptNote& note);
/// One or two sentences that tell what was kept.
QString keptSentence(const KeptNote& note);

}  // namespace quillon
