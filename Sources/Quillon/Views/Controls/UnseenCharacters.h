// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;

namespace quillon {

/// Puts a mark at the end of `field` whenever its text holds characters that it does not show, and that may
/// turn round what it does show. The mark's tool tip has the text with a sign for each of them.
void markUnseenCharacters(QLineEdit& field);

}  // namespace quillon
