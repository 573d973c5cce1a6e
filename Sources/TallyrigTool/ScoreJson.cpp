// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ScoreJson.h"

#include "TallyrigTool/JsonList.h"

#include <nlohmann/json.hpp>

namespace tallyrig::tool {

namespace {

nlohmann::ordered_json jsonOf(const ContestQSOResult& qso) {
    nlohmann::ordered_json json = {{"index", qso.index},       {"points", qso.points},
                                   {"isDupe", qso.isDupe},     {"newMultipliers", qso.newMultipliers},
                                   {"problems", qso.problems}, {"crossCheckRemoval", nullptr}};
    if (qso.crossCheckRemoval) {
        json["crossCheckRemoval"] = nameOf(*qso.crossCheckRemoval);
    }
    return json;
}

}  // namespace

void writeJson(Output& output, const ContestScore& score) {
    auto breakdown = nlohmann::ordered_json::array();
    for (const ContestScore::Breakdown& multiplier : score.multiplierBreakdown) {
        breakdown.push_back({{"name", multiplier.name}, {"count", multiplier.count}});
    }
    const nlohmann::ordered_json head = {
        {"contestName", score.contestName},         {"totalQSOs", score.totalQSOs},
        {"countedQSOs", score.countedQSOs},         {"dupeQSOs", score.dupeQSOs},
        {"invalidQSOs", score.invalidQSOs},         {"qsoPoints", score.qsoPoints},
        {"multiplierCount", score.multiplierCount}, {"total", score.total},
        {"multiplierBreakdown", breakdown},         {"removedQSOs", score.removedQSOs},
        {"penaltyPoints", score.penaltyPoints}};
    JsonList results(output, head.dump(), "results");
    for (const ContestQSOResult& qso : score.results) {
        results.add(jsonOf(qso).dump());
    }
    results.finish();
}

}  // namespace tallyrig::tool
