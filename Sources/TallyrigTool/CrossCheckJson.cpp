// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/CrossCheckJson.h"

#include "TallyrigTool/JsonText.h"
#include "TallyrigTool/RulesJson.h"
#include "TallyrigTool/ScoreJson.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

namespace tallyrig::tool {

namespace {

using Json = nlohmann::ordered_json;
using Positions = std::unordered_map<UUID, std::size_t>;

template <typename Value>
Json orNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

/// The members that counts give; a status that does not occur has no entry.
void addCounts(Json& json, const CrossCheckCounts& counts) {
    json["counts"] = Json::object();
    for (const CrossCheckStatus status : crossCheckStatuses) {
        if (counts.count(status) > 0) {
            json["counts"][nameOf(status)] = counts.count(status);
        }
    }
    json["total"] = counts.total();
    json["checkable"] = counts.checkable();
    json["accuracy"] = orNull(counts.accuracy());
}

/// There may be millions.
std::string jsonOf(const CrossCheckFinding& finding, const Positions& positions) {
    std::string json = "{\"log\":" + std::to_string(positions.at(finding.logID)) +
                       ",\"index\":" + std::to_string(finding.index) + ",\"call\":";
    appendJson(json, finding.call);
    json.append(",\"status\":\"").append(nameOf(finding.status)).append("\",\"notes\":[");
    for (const std::string& note : finding.notes) {
        json += json.back() == '[' ? "" : ",";
        appendJson(json, note);
    }
    json += "],\"counterpartLog\":";
    json += finding.counterpartLogID ? std::to_string(positions.at(*finding.counterpartLogID)) : "null";
    json += ",\"counterpartIndex\":";
    json += finding.counterpartIndex ? std::to_string(*finding.counterpartIndex) : "null";
    return json + "}";
}

/// Writes a list as the member `name`, behind others; `add` writes one item.
template <typename Items, typename Add>
void writeList(Output& output, std::string_view name, const Items& items, Add add) {
    output.write(",\n\"");
    output.write(name);
    output.write("\":[");
    bool isFirst = true;
    for (const auto& item : items) {
        output.write(isFirst ? "\n" : ",\n");
        isFirst = false;
        add(item);
    }
    output.write("]");
}

}  // namespace

void writeJson(Output& output, std::string_view contestName, std::span<const CrossCheckLog> logs,
               const CrossCheckReport& report, const CrossCheckScores& scores,
               const std::vector<CrossCheckEntry>& ranking) {
    Positions positions;
    for (const CrossCheckLog& log : logs) {
        positions.emplace(log.id, positions.size());
    }
    output.write("{\"contestName\":" + Json(contestName).dump());
    writeList(output, "logs", logs, [&](const CrossCheckLog& log) {
        output.write(Json({{"name", log.name}, {"owner", log.owner}}).dump());
    });
    writeList(output, "summaries", report.summaries(), [&](const CrossCheckSummary& summary) {
        Json json = {{"log", positions.at(summary.logID)}, {"name", summary.name}, {"owner", summary.owner}};
        addCounts(json, summary.counts);
        output.write(json.dump());
    });
    writeList(output, "findings", report.findings(),
              [&](const CrossCheckFinding& finding) { output.write(jsonOf(finding, positions)); });
    std::vector<const CrossCheckScore*> inOrder;
    for (const CrossCheckLog& log : logs) {
        if (const auto score = scores.find(log.id); score != scores.end()) {
            inOrder.push_back(&score->second);
        }
    }
    writeList(output, "scores", inOrder, [&](const CrossCheckScore* score) {
        output.write("{\"log\":" + std::to_string(positions.at(score->logID)) +
                     ",\"station\":" + jsonOf(score->station).dump() + ",\"claimed\":");
        writeJson(output, score->claimed);
        output.write(",\"checked\":");
        writeJson(output, score->checked);
        output.write(",\"difference\":" + std::to_string(score->difference()) + "}");
    });
    writeList(output, "ranking", ranking, [&](const CrossCheckEntry& entry) {
        Json json = {{"rank", entry.rank}, {"owner", entry.owner}, {"logs", Json::array()}};
        for (const UUID id : entry.logIDs) {
            json["logs"].push_back(positions.at(id));
        }
        addCounts(json, entry.counts);
        json["errors"] = entry.counts.errors();
        json["claimed"] = orNull(entry.claimed);
        json["checked"] = orNull(entry.checked);
        output.write(json.dump());
    });
    output.write("}\n");
}

}  // namespace tallyrig::tool
