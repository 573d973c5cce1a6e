// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/ReadDocument.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// Reads Cabrillo contest logs (Cabrillo 3.0) into ADIF fields. Lenient: what can be read of each QSO line is
/// kept. The columns are taken by position: frequency, mode, date, time, sent call, sent report, sent
/// exchange, received call, received report, received exchange. No state; each call is by itself.
class CabrilloParser {
  public:
    /// What the first column says; either text may be empty.
    struct FrequencyAndBand {
        std::string freq;       ///< In MHz.
        std::string_view band;  ///< As ADIF names it.
    };

    /// The document in `data`, UTF-8 or ISO 8859-1: its QSO lines in file order. Of the header only the call,
    /// the contest, the operators and the locator are kept, as fields of each record, and wherever they
    /// stand. A QSO line of fewer than ten columns is dropped.
    static ADIFDocument parse(std::string_view data);
    /// The same document, and what of the file is not in it or probably not as it was meant. That the header
    /// is kept in part only goes without saying. Offsets are those of `data`.
    static ReadDocument read(std::string_view data);

    /// The QSO of one line beginning with "QSO:"; absent if it has fewer than ten columns. Those behind the
    /// tenth and the sent call are not read. No field has an empty value.
    static std::optional<ADIFRecord> record(std::string_view line, std::string_view myCall,
                                            std::string_view contest, std::string_view operators,
                                            std::string_view grid);

    /// The band that holds this frequency, edges included; absent between the bands and above 1300 MHz, where
    /// logs name the band.
    static std::optional<std::string_view> bandForFrequency(std::int64_t kHz);

    /// A frequency in kHz, or the designator of a band: whole MHz below 1000, or GHz with a "G" behind, which
    /// gives no frequency. Blanks around it do not count. A number in no band has a frequency alone; what is
    /// none of these gives neither.
    static FrequencyAndBand frequencyAndBand(std::string_view column);

    /// `mhz` with six decimals at most and no zeros behind.
    static std::string trimFreq(double mhz);

    /// The ADIF mode of a mode code in any case, FT8 for all digital ones and for FM; anything else in upper
    /// case.
    static std::string adifMode(std::string_view column);
    /// Eight digits where the column has eight, whatever stands between them; otherwise the column.
    static std::string adifDate(std::string_view column);
    /// The digits of the column, with the seconds "00" behind four.
    static std::string adifTime(std::string_view column);
};

}  // namespace tallyrig
