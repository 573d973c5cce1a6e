// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/RelationCondition.h"

#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tallyrig {

namespace {

RelationAnswer answer(bool holds) {
    return holds ? RelationAnswer::holds : RelationAnswer::doesNotHold;
}

/// Whether the last characters of `call` are those of `suffix`, which is ASCII.
bool endsIn(std::string_view call, std::string_view suffix) {
    if (!call.ends_with(suffix) || text::isASCII(call)) {
        return call.ends_with(suffix);
    }
    // The slash may be part of a longer character.
    const std::vector<std::string_view> characters = text::characters(call);
    const std::string_view slash = characters.size() < suffix.size()
                                       ? std::string_view()
                                       : characters[characters.size() - suffix.size()];
    return slash.size() == 1;
}

bool isPortable(std::string_view call) {
    constexpr std::array<std::string_view, 4> suffixes = {"/P", "/M", "/MM", "/AM"};
    return std::ranges::any_of(suffixes, [&](std::string_view suffix) { return endsIn(call, suffix); });
}

bool isContinent(std::string_view continent, std::string_view inAnyCase) {
    std::string buffer;
    return text::equal(continent, text::upper(inAnyCase, buffer));
}

/// Answers one case of a condition after the other.
struct Answering {
    const WorkedStation& worked;
    const ContestStation& own;

    RelationAnswer operator()(const relation::WorkedCountryIs& test) const {
        return isSame(worked.dxcc, test.code);
    }
    RelationAnswer operator()(const relation::WorkedCountryIn& test) const {
        return answer(!worked.dxcc.empty() && test.codes.contains(worked.dxcc));
    }
    RelationAnswer operator()(const relation::WorkedCountryNotIn& test) const {
        return worked.dxcc.empty() ? RelationAnswer::unknown : answer(!test.codes.contains(worked.dxcc));
    }
    RelationAnswer operator()(const relation::BothInContinent& test) const {
        return isUnknown() ? RelationAnswer::unknown
                           : answer(isContinent(*worked.continent, test.continent) &&
                                    isContinent(own.continent, test.continent));
    }
    RelationAnswer operator()(const relation::WorkedContinentIs& test) const {
        return !worked.continent ? RelationAnswer::unknown
                                 : answer(isContinent(*worked.continent, test.continent));
    }
    RelationAnswer operator()(const relation::And& all) const {
        RelationAnswer result = RelationAnswer::holds;
        for (const RelationCondition& condition : all.conditions) {
            const RelationAnswer one = condition.matches(worked, own);
            if (one == RelationAnswer::doesNotHold) {
                return one;
            }
            result = one == RelationAnswer::unknown ? one : result;
        }
        return result;
    }
    RelationAnswer operator()(const relation::SameCountry&) const { return isSame(worked.dxcc, own.dxcc); }
    RelationAnswer operator()(const relation::SameCqZone&) const { return isSame(worked.cqZone, own.cqZone); }
    RelationAnswer operator()(const relation::SameItuZone&) const {
        return isSame(worked.ituZone, own.ituZone);
    }
    RelationAnswer operator()(const relation::SameContinent&) const {
        return isUnknown() ? RelationAnswer::unknown : answer(text::equal(*worked.continent, own.continent));
    }
    RelationAnswer operator()(const relation::DifferentContinent&) const {
        return isUnknown() ? RelationAnswer::unknown : answer(!text::equal(*worked.continent, own.continent));
    }
    RelationAnswer operator()(const relation::IsPortable&) const { return answer(isPortable(worked.call)); }
    RelationAnswer operator()(const relation::Any&) const { return RelationAnswer::holds; }

    /// Whether one of the continents is.
    bool isUnknown() const { return !worked.continent || own.continent.empty(); }

    static RelationAnswer isSame(std::string_view worked, std::string_view own) {
        return answer(!worked.empty() && text::equal(worked, own));
    }
};

}  // namespace

RelationAnswer RelationCondition::matches(const WorkedStation& worked, const ContestStation& own) const {
    return std::visit(Answering{worked, own}, *this);
}

RelationAnswer RelationCondition::matches(const ADIFRecord& record, const ContestStation& own) const {
    const std::string call = text::upper(text::trimmedOfBlanks(record.valueOrEmpty("CALL")));
    const std::optional<std::string> continent = DXCCInfo::continent(record);
    return matches({call, DXCCInfo::country(record), DXCCInfo::cqZone(record), DXCCInfo::ituZone(record),
                    continent ? std::optional<std::string_view>(*continent) : std::nullopt},
                   own);
}

std::string_view nameOf(const RelationCondition& condition) {
    return std::visit([](const auto& test) { return test.name; }, condition);
}

}  // namespace tallyrig
