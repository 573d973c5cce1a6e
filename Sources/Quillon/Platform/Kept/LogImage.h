// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

class ImageSink;

// A log in a form of its own from which it comes back exactly: comment, header fields and records with all
// their names, types and values in their order, which no format of logs can promise. Only the ids are others
// afterwards. The form is not for other programs, nor for long.

/// The whole of a log.
void writeImage(const tallyrig::ADIFDocument& document, ImageSink& sink);

/// A stretch of records that a log has in common with an earlier state, and the records behind it that are
/// its own.
struct ImageStep {
    std::size_t commonBegin = 0;  ///< In the earlier state.
    std::size_t commonCount = 0;
    std::size_t ownBegin = 0;  ///< In the log.
    std::size_t ownCount = 0;
};
/// How `now` comes about from `before`. Right for any two logs, and short where `now` was made from a copy of
/// `before`. Cost: a walk along the records.
std::vector<ImageStep> stepsBetween(const tallyrig::ADIFRecordList& before,
                                    const tallyrig::ADIFRecordList& now);
/// What makes a log out of the state before, by these steps. The header is written anew.
void writeChange(const tallyrig::ADIFDocument& now, const std::vector<ImageStep>& steps, ImageSink& sink);

/// Puts a log together again from an image and the changes that followed it.
class ImageReader {
  public:
    /// False, and the reader is good for nothing more, if the bytes are no image or no change of what was
    /// read before.
    bool readImage(std::string_view bytes);
    bool readChange(std::string_view bytes);

    /// The log that was read; the reader is empty then.
    tallyrig::ADIFDocument takeDocument();

  private:
    std::string comment;
    std::vector<tallyrig::ADIFField> headerFields;
    std::vector<tallyrig::ADIFRecord> records;
};

}  // namespace quillon
