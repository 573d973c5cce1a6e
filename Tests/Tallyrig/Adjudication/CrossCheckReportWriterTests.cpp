// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using Status = CrossCheckStatus;

/// Logs with what is said of their QSOs.
struct Evaluation {
    std::vector<CrossCheckLog> logs;
    std::vector<CrossCheckReport::Findings> findings;
    CrossCheckScores scores;
    CrossCheckExportInfo info = {"Probe|Test", "DL0EV", 5, "Quillon 1.0", "2026-03-29"};

    /// Adds a log of QSOs and returns its position.
    std::size_t add(std::string_view owner, const std::vector<testing::Pairs>& records) {
        logs.emplace_back(UUID::fresh(), std::string(owner) + ".cbr", testing::document(records), owner);
        findings.emplace_back();
        return logs.size() - 1;
    }
    /// Says something of the next QSO of a log.
    void find(std::size_t log, std::string_view call, Status status, std::vector<std::string> notes = {},
              std::optional<std::size_t> counterpartLog = std::nullopt) {
        CrossCheckFinding finding;
        finding.logID = logs[log].id;
        finding.index = findings[log].size();
        finding.call = call;
        finding.status = status;
        finding.notes = std::move(notes);
        if (counterpartLog) {
            finding.counterpartLogID = logs[*counterpartLog].id;
            finding.counterpartIndex = 0;
        }
        findings[log].push_back(finding);
    }
    void find(std::size_t log, Status status, std::size_t count) {
        for (; count > 0; --count) {
            find(log, "X", status);
        }
    }
    void score(std::size_t log, std::int64_t claimed, std::int64_t checked) {
        CrossCheckScore score;
        score.claimed.total = claimed;
        score.checked.total = checked;
        score.checked.removedQSOs = 2;
        score.checked.penaltyPoints = 3;
        scores[logs[log].id] = score;
    }
    template <typename Ask>
    auto ask(Ask question) const {
        std::vector<CrossCheckSummary> summaries;
        for (std::size_t log = 0; log < logs.size(); ++log) {
            CrossCheckSummary& summary = summaries.emplace_back();
            summary.logID = logs[log].id;
            for (const CrossCheckFinding& finding : findings[log]) {
                summary.counts.add(finding.status);
            }
        }
        const CrossCheckReport report(summaries, findings);
        return question(CrossCheckReportWriter(report, logs, scores, info));
    }
    std::string text(std::string_view owner) const {
        return ask([&](const CrossCheckReportWriter& writer) { return writer.text(owner); });
    }
    std::string markdown(std::string_view owner) const {
        return ask([&](const CrossCheckReportWriter& writer) { return writer.markdown(owner); });
    }
    std::string csv() const {
        return ask([](const CrossCheckReportWriter& writer) { return writer.rankingCSV(); });
    }
    /// The owners from the first to the last place.
    std::vector<std::string> ranking() const {
        std::vector<std::string> owners;
        for (const CrossCheckEntry& entry :
             ask([](const CrossCheckReportWriter& writer) { return writer.ranking(); })) {
            owners.push_back(entry.owner);
            EXPECT_EQ(entry.rank, owners.size());
        }
        return owners;
    }
};

Evaluation twoLogsAndAnother() {
    Evaluation evaluation;
    const std::vector<testing::Pairs> own = {
        testing::fields("QSO_DATE=20260328 | TIME_ON=120130 | BAND=20M | MODE=ssb"),
        testing::fields("QSO_DATE=2026032 | TIME_ON=121 | BAND=70CM | MODE=digitalvoice")};
    const std::size_t first = evaluation.add("DL1ABC/P", own);
    const std::size_t second = evaluation.add("DL1ABC", own);
    const std::size_t other = evaluation.add("OZ9X", own);
    evaluation.find(first, "F5A", Status::notInLog);
    evaluation.find(first, "F5B|C", Status::bustedExchange, {"Nummer: a|b", "Locator: c"}, other);
    evaluation.find(second, "K1A", Status::unique);
    evaluation.find(second, "LONGERCALL/QRP", Status::bandModeMismatch, {"bei Gegenstation auf 2m"}, other);
    evaluation.find(other, "DL1ABD", Status::bustedCall, {"vermutlich DL1ABC"}, first);
    evaluation.find(other, "DL1ABC", Status::bustedExchange, {"Nummer: d", "RST: e"}, second);
    evaluation.find(other, "DL1ABC", Status::confirmed, {}, second);
    return evaluation;
}

TEST(Report, IsPlainText) {
    Evaluation evaluation = twoLogsAndAnother();
    evaluation.score(0, 100, 90);
    evaluation.score(1, 7, 7);
    evaluation.score(2, 200, 200);
    EXPECT_EQ(evaluation.text("dl1abc/m"), R"(CROSS-CHECK-BERICHT DL1ABC/P
============================

Contest:      Probe|Test
Log:          DL1ABC/P.cbr, DL1ABC.cbr
Ausgewertet:  2026-03-29 · von DL0EV · 3 Logs, Toleranz ±5 min · Rang 2

ZUSAMMENFASSUNG
  QSOs im Log:             4
  bestätigt:               0
  NIL:                     1
  Busted Call:             0
  Busted Exchange:         1
  Zeit/Band abweichend:    1
  Unique:                  1
  Gegenstation ohne Log:   0
  Quote:                   33.3 %

PUNKTE
  DL1ABC/P.cbr: gemeldet 100 → geprüft 90 (-10)
  2 QSO(s) gestrichen, 3 Strafpunkte
  DL1ABC.cbr: gemeldet 7 → geprüft 7 (0)
  2 QSO(s) gestrichen, 3 Strafpunkte

NIL – NICHT IM LOG DER GEGENSTATION
  2026-03-28  12:01  20m    SSB    F5A

BUSTED CALL – RUFZEICHEN FALSCH AUFGENOMMEN
  – keine –

BUSTED EXCHANGE – AUSTAUSCH FALSCH AUFGENOMMEN
  2026032  121    70cm   DIGITALVOICE  F5B|C        Nummer: a|b · Locator: c

ZEIT ODER BAND/MODUS ABWEICHEND (NICHT GESTRICHEN)
  2026032  121    70cm   DIGITALVOICE  LONGERCALL/QRP  bei Gegenstation auf 2m

UNIQUE – GEGENSTATION IN KEINEM ANDEREN LOG (ZUR INFO)
  2026-03-28  12:01  20m    SSB    K1A

FEHLER DER GEGENSTATIONEN BEI DEINEN QSOS (ZUR INFO)
  2026-03-28  12:01  20m    SSB    OZ9X         loggte dich als DL1ABD
  2026032  121    70cm   DIGITALVOICE  OZ9X         Austausch falsch aufgenommen (Nummer: d · RST: e)

Ausgewertet mit Quillon 1.0 – https://quillon.example

73 de DL0EV
)");
}

TEST(Report, IsMarkdownWithoutPointsAndSignature) {
    Evaluation evaluation = twoLogsAndAnother();
    evaluation.info.evaluator = "";
    evaluation.findings[1].clear();
    EXPECT_EQ(evaluation.markdown("DL1ABC"), R"(# Cross-Check-Bericht DL1ABC/P

| | |
|---|---|
| Contest | Probe\|Test |
| Log | DL1ABC/P.cbr, DL1ABC.cbr |
| Ausgewertet | 2026-03-29 · 3 Logs, Toleranz ±5 min |

## Zusammenfassung

| Befund | Anzahl |
|---|---:|
| QSOs im Log | 2 |
| bestätigt | 0 |
| NIL | 1 |
| Busted Call | 0 |
| Busted Exchange | 1 |
| Zeit/Band abweichend | 0 |
| Unique | 0 |
| Gegenstation ohne Log | 0 |
| Quote | 0.0 % |

## NIL – nicht im Log der Gegenstation

| Datum | Zeit | Band | Modus | Rufzeichen | Hinweis |
|---|---|---|---|---|---|
| 2026-03-28 | 12:01 | 20m | SSB | F5A |  |

## Busted Call – Rufzeichen falsch aufgenommen

_keine_

## Busted Exchange – Austausch falsch aufgenommen

| Datum | Zeit | Band | Modus | Rufzeichen | Hinweis |
|---|---|---|---|---|---|
| 2026032 | 121 | 70cm | DIGITALVOICE | F5B\|C | Nummer: a\|b · Locator: c |

## Fehler der Gegenstationen bei deinen QSOs (zur Info)

| Datum | Zeit | Band | Modus | Rufzeichen | Hinweis |
|---|---|---|---|---|---|
| 2026-03-28 | 12:01 | 20m | SSB | OZ9X | loggte dich als DL1ABD |
| 2026032 | 121 | 70cm | DIGITALVOICE | OZ9X | Austausch falsch aufgenommen (Nummer: d · RST: e) |

---

Ausgewertet mit Quillon 1.0 – https://quillon.example
)");
    evaluation.score(0, 3, 1);
    const std::string scored = evaluation.markdown("DL1ABC");
    EXPECT_NE(scored.find(R"(
## Punkte

| Log | gemeldet | geprüft | Differenz | gestrichen | Strafpunkte |
|---|---:|---:|---:|---:|---:|
| DL1ABC/P.cbr | 3 | 1 | -2 | 2 | 3 |

## NIL)"),
              std::string::npos);
    EXPECT_NE(evaluation.text("DL1ABC").find("\n  gemeldet 3 → geprüft 1 (-2)\n"), std::string::npos);
}

TEST(Report, IsEmptyForAStationThatIsNotThere) {
    const Evaluation evaluation = twoLogsAndAnother();
    EXPECT_EQ(evaluation.text("DL1AB"), "");
    EXPECT_EQ(evaluation.markdown(""), "");
}

TEST(Report, LeavesOutWhatItCannotKnow) {
    Evaluation evaluation;
    const std::size_t nobody = evaluation.add("", {});
    const std::size_t other = evaluation.add("", {testing::fields("TIME_ON=1200")});
    evaluation.logs[other].owner = "OZ9X";
    evaluation.find(nobody, "K1A", Status::unique);
    evaluation.find(nobody, "K1B", Status::bustedCall, {}, other);
    const std::string text = evaluation.text("");
    EXPECT_NE(text.find("Quote:                   0.0 %\n"), std::string::npos);
    EXPECT_NE(text.find("\n" + std::string(25, ' ') + "K1A\n"), std::string::npos) << text;
    EXPECT_NE(evaluation.text("OZ9X").find("?            loggte dich als K1B\n"), std::string::npos);
    EXPECT_NE(evaluation.text("OZ9X").find("Quote:                   –\n"), std::string::npos);
}

TEST(Ranking, GoesByPointsThenByQuotaThenByCall) {
    Evaluation evaluation;
    const std::size_t b = evaluation.add("DL1B", {});
    const std::size_t a = evaluation.add("DL1A", {});
    const std::size_t only = evaluation.add("DL1C", {});
    const std::size_t good = evaluation.add("DL1D", {});
    evaluation.add("DL1B/P", {});
    for (const std::size_t log : {a, b}) {
        evaluation.find(log, Status::confirmed, 1);
        evaluation.find(log, Status::notInLog, 1);
    }
    evaluation.find(only, Status::unique, 9);
    evaluation.find(good, Status::timeMismatch, 1);
    EXPECT_EQ(evaluation.ranking(), (std::vector<std::string>{"DL1D", "DL1A", "DL1B", "DL1C"}));
    EXPECT_EQ(evaluation.csv(),
              "Rang,Rufzeichen,Logs,QSOs,bestätigt,NIL,Busted Call,Busted Exchange,Zeit/Band "
              "abweichend,Unique,ohne Log,Quote %\r\n"
              "1,DL1D,1,1,0,0,0,0,1,0,0,100.0\r\n"
              "2,DL1A,1,2,1,1,0,0,0,0,0,50.0\r\n"
              "3,DL1B,2,2,1,1,0,0,0,0,0,50.0\r\n"
              "4,DL1C,1,9,0,0,0,0,0,9,0,\r\n");
    evaluation.score(b, 10, 9);
    evaluation.score(4, 10, 9);
    evaluation.score(a, 30, 17);
    EXPECT_EQ(evaluation.ranking(), (std::vector<std::string>{"DL1D", "DL1B", "DL1A", "DL1C"}));
}

TEST(RankingCSV, QuotesWhatWouldBreakIt) {
    Evaluation evaluation;
    for (const std::string_view owner : {"A1,B", "B1\"C", "C1\nD", "D1\r\nE", "E1\rF", ""}) {
        evaluation.add(owner, {});
    }
    evaluation.score(0, 5, 3);
    const std::string csv = evaluation.csv();
    const std::string_view rows[] = {",Quote %,Punkte gemeldet,Punkte geprüft,Differenz\r\n",
                                     "\r\n2,\"A1,B\",1,0,0,0,0,0,0,0,0,,5,3,-2\r\n",
                                     "\r\n3,\"B1\"\"C\",1,0,0,0,0,0,0,0,0,,,,\r\n",
                                     "\"C1\nD\"",
                                     "\"D1\r\nE\"",
                                     ",E1\rF,",
                                     "\r\n1,,1,0,0,0,0,0,0,0,0,,,,\r\n"};
    for (const std::string_view row : rows) {
        EXPECT_NE(csv.find(row), std::string::npos) << row << " in " << csv;
    }
}

TEST(FileName, IsTheCallWithoutWhatAFolderCannotHold) {
    EXPECT_EQ(CrossCheckReportWriter::fileName("ea8/dl1ä_p"), "EA8-DL1Ä-P");
    EXPECT_EQ(CrossCheckReportWriter::fileName("../x\r\n"), "---X-");
    EXPECT_EQ(CrossCheckReportWriter::fileName(""), "UNBEKANNT");
}

}  // namespace
}  // namespace tallyrig
