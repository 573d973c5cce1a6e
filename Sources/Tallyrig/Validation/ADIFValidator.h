// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Validation/ValidationIssue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Checks logs against the tables of ADIF 3.1.7 and a few rules of its own. A plain value: it holds what is
/// to be checked and nothing of what was.
struct ADIFValidator {
    std::vector<std::string> requiredFields;      ///< In upper case, as `duplicateKeyFields`.
    std::vector<std::string> duplicateKeyFields;  ///< Where empty, all records are duplicates.
    bool checksRequiredFields;
    bool checksFormats;
    bool checksDuplicates;
    bool checksUnknownFields;  ///< Counts only together with `checksFormats`.

    /// Both lists are stored in upper case.
    ADIFValidator(std::vector<std::string> requiredFields, std::vector<std::string> duplicateKeyFields,
                  bool checksRequiredFields, bool checksFormats, bool checksDuplicates,
                  bool checksUnknownFields);

    /// The fields without which a QSO says too little, as a check asks for them: `CALL`, `QSO_DATE`,
    /// `TIME_ON`, `BAND`, `MODE`.
    static std::vector<std::string> usualRequiredFields();

    /// The findings about the records, in the order of `sortIssues`; the header is not checked. Of findings
    /// of one severity in one record, missing fields come first, then the values in the order of the fields,
    /// the call sign, the frequency and last the duplicate. Cost: one pass, and a second one for duplicates.
    std::vector<ValidationIssue> issues(const ADIFDocument& document) const;

    /// The positions of records that agree in all of `duplicateKeyFields`, trimmed and in upper case: groups
    /// of two or more, each ascending, in the order of their first records. A record that lacks one of the
    /// fields is in no group. `checksDuplicates` is not asked.
    std::vector<std::vector<std::size_t>> duplicateGroups(const ADIFDocument& document) const;

    /// A day of the Gregorian calendar as YYYYMMDD in ASCII digits, from the year 1930 to 2100. Here and
    /// below nothing may stand around the text, and empty text is not valid.
    static bool isValidDate(std::string_view text);
    /// HHMM or HHMMSS in ASCII digits, up to 2359 or 235959.
    static bool isValidTime(std::string_view text);
    /// A Maidenhead locator of 2, 4, 6 or 8 characters, in any case.
    static bool isValidGridsquare(std::string_view text);
    /// 3 to 12 letters, digits and "/", with at least one letter and one digit.
    static bool isPlausibleCallsign(std::string_view text);
};

}  // namespace tallyrig
