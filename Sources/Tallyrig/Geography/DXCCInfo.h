// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// What a small built-in table knows of countries: to which DXCC entity a call belongs and on which continent
/// an entity lies. It does not try to be the DXCC list: it knows prefixes, no single calls and, but for a few
/// islands and enclaves, no call areas.
class DXCCInfo {
  public:
    /// The entity code, such as "230", of a call in any case with additions before or behind it. Of its parts
    /// between slashes the shortest that is known decides, so that "DL/W1XYZ" and "W1XYZ/DL" are both in
    /// Germany; additions such as "/P" do not count. Absent if no part is known.
    static std::optional<std::string_view> dxccCode(std::string_view call);

    /// The continent of an entity, such as "EU"; absent if the code, exactly as it stands, is not known.
    static std::optional<std::string_view> continentOfEntity(std::string_view dxcc);

    /// The fields `DXCC`, `CQZ` and `ITUZ` without blanks around them, empty if they are missing. Nothing is
    /// worked out from the call. They refer to `record`.
    static std::string_view country(const ADIFRecord& record);
    static std::string_view cqZone(const ADIFRecord& record);
    static std::string_view ituZone(const ADIFRecord& record);

    /// `CONT` in upper case, whatever it says, or else the continent of the entity in `DXCC`; absent if
    /// neither tells.
    static std::optional<std::string> continent(const ADIFRecord& record);
};

}  // namespace tallyrig
