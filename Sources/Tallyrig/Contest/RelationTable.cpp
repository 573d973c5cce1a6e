// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/RelationTable.h"

#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Text/ByteWords.h"

#include <variant>

namespace tallyrig {

namespace {

/// What conditions ask for besides entity and continent.
struct FurtherFields {
    bool cqZone = false;
    bool ituZone = false;
    bool call = false;

    void addThoseOf(const RelationCondition& condition) {
        std::visit([this](const auto& test) { add(test); }, condition);
    }

  private:
    void add(const relation::And& all) {
        for (const RelationCondition& condition : all.conditions) {
            addThoseOf(condition);
        }
    }
    void add(const relation::SameCqZone&) { cqZone = true; }
    void add(const relation::SameItuZone&) { ituZone = true; }
    void add(const relation::IsPortable&) { call = true; }
    template <typename Test>
    void add(const Test&) {}
};

}  // namespace

RelationTable::RelationTable(const ContestRules& contestRules, ContestFields& fields) : rules(contestRules) {
    const auto* const table = std::get_if<points::ByRelation>(&rules.points);
    if (!rules.validRelation && table == nullptr) {
        return;
    }
    FurtherFields further;
    if (rules.validRelation) {
        further.addThoseOf(*rules.validRelation);
    }
    if (table != nullptr) {
        for (const RelationRule& rule : table->rules) {
            further.addThoseOf(rule.condition);
        }
    }
    const auto add = [&](std::string_view name, bool isRead) {
        const std::size_t field = fields.add(name);
        if (isRead) {
            readFields.push_back(field);
        }
        return field;
    };
    dxccField = add("DXCC", true);
    continentField = add("CONT", true);
    cqZoneField = add("CQZ", further.cqZone);
    ituZoneField = add("ITUZ", further.ituZone);
    callField = add("CALL", further.call);
    slots.resize(slotCount);
}

const RelationTable::Verdict& RelationTable::read(ContestFields& fields) {
    if (readFields.empty()) {
        return longVerdict;
    }
    Key key{};
    std::uint64_t hash = 0;
    for (std::size_t index = 0; index < readFields.size(); ++index) {
        const std::string_view value = fields.valueOrEmpty(readFields[index]);
        if (value.size() > sizeof(std::uint64_t)) {
            longVerdict = verdictOf(fields);
            return longVerdict;
        }
        key[index] = text::shortWord(value);
        key.back() = key.back() << 4U | value.size();
        hash = (hash ^ key[index]) * 0x9E3779B97F4A7C15U;
    }
    Slot& slot = slots[hash >> 56U];
    if (!slot.isUsed || slot.key != key) {
        slot = {key, true, verdictOf(fields)};
    }
    return slot.verdict;
}

RelationTable::Verdict RelationTable::verdictOf(ContestFields& fields) const {
    WorkedStation worked;
    worked.call = fields.upper(callField);
    worked.dxcc = fields.trimmed(dxccField);
    worked.cqZone = fields.trimmed(cqZoneField);
    worked.ituZone = fields.trimmed(ituZoneField);
    const std::string_view continent = fields.upper(continentField);
    worked.continent = continent.empty() ? DXCCInfo::continentOfEntity(worked.dxcc) : continent;

    Verdict verdict;
    if (rules.validRelation) {
        verdict.validity = rules.validRelation->matches(worked, rules.station);
    }
    if (const auto* const table = std::get_if<points::ByRelation>(&rules.points)) {
        for (const RelationRule& rule : table->rules) {
            if (rule.condition.matches(worked, rules.station) == RelationAnswer::holds) {
                verdict.rule = &rule;
                break;
            }
        }
    }
    return verdict;
}

}  // namespace tallyrig
