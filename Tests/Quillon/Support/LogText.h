// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFParser.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quillon::testing {

/// ADI text of records written as "CALL=DL1ABC BAND=20m"; a value ends at a blank, and "_" stands for one.
inline std::string adi(const std::vector<std::string>& records) {
    std::string text = "\n<EOH>\n";
    for (std::string rest : records) {
        while (!rest.empty()) {
            const std::string field = rest.substr(0, rest.find(' '));
            rest.erase(0, field.size() + 1);
            std::string value = field.substr(field.find('=') + 1);
            std::replace(value.begin(), value.end(), '_', ' ');
            text += "<" + field.substr(0, field.find('=')) + ":" + std::to_string(value.size()) + ">" + value;
        }
        text += "<EOR>\n";
    }
    return text;
}

/// The records, written in the same way.
inline tallyrig::ADIFRecordList recordsOf(const std::vector<std::string>& records) {
    return tallyrig::ADIFParser::parse(adi(records)).records();
}

inline std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) {
        result += (result.empty() ? "" : " ") + text;
    }
    return result;
}

}  // namespace quillon::testing
