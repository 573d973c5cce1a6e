#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader makes of the program, beside what the tool says of the same logs.

    AccessibilityTests.py QUILLON TALLYRIG EXAMPLES
"""

import json
import subprocess
import sys
import unittest

from ScreenReader import Desk, State, act, children, find, has, label, shown, tableTexts, waitFor

TAB, DOWN, RETURN = 0xFF09, 0xFF54, 0xFF0D


def number(text):
    """A figure as the window writes it, with points between the thousands."""
    return int(text.replace(".", ""))


def shownValue(field, value):
    if field == "QSO_DATE" and len(value) == 8:
        return f"{value[6:8]}.{value[4:6]}.{value[:4]}"
    if field.startswith("TIME_O") and len(value) >= 4:
        return ":".join(value[at : at + 2] for at in range(0, 6 if len(value) >= 6 else 4, 2))
    return value


class Window(unittest.TestCase):
    def open(self, *arguments):
        self.root = desk.run(quillon, *[str(argument) for argument in arguments])
        self.addCleanup(desk.end, self.root)

    def tool(self, *arguments):
        said = subprocess.run([tallyrig, *arguments, "--json"], cwd=examples, stdout=subprocess.PIPE, check=False)
        return json.loads(said.stdout)

    def shown(self, **wanted):
        return waitFor(lambda: find(self.root, **wanted), wanted)

    def names(self, role, beneath=None):
        return [label(node) for node in shown(beneath or self.root) if node.get_role_name() == role]

    def tab(self):
        """To the next stop of the keyboard; what is there."""
        desk.focused = None
        desk.press(TAB)
        return waitFor(lambda: desk.focused, "the tab key leads nowhere")

    def tabTo(self, name):
        stops = []
        while not stops or stops[-1] != name:
            self.assertLess(len(stops), 60, f"no way to {name}, but {stops}")
            stops.append(label(self.tab()))
        return desk.focused

    def choose(self, box, value):
        """Goes down in the box that is called so until it shows `value`."""
        node = self.tabTo(box)
        while node.get_name() != value:
            before = node.get_name()
            desk.press(DOWN)
            waitFor(lambda: node.get_name() != before, f"{box} stays at {before}")

    def expectNames(self):
        """All that can be used has a name, and the keyboard comes past each pane and back to where it was."""
        for node in shown(self.root):
            # A mere frame hands the keyboard on to what it is around, or is met on the walk below; of scroll bars
            # Qt says where they lead to.
            if has(node, State.FOCUSABLE) and node.get_role_name() not in ("filler", "scroll bar"):
                self.assertTrue(label(node), f"a {node.get_role_name()} in {label(node.get_parent())} has no name")
        first = self.tabTo("Ansicht")
        stops = ["Ansicht"]
        while len(stops) == 1 or desk.focused != first:
            stop = self.tab()
            self.assertTrue(label(stop), f"behind {stops} a {stop.get_role_name()} has no name")
            stops.append(label(stop))
            self.assertLess(len(stops), 80, "the keyboard does not come back")
        self.assertIn("Suchen", stops)

    def expectTable(self, name, rows):
        table = self.shown(role="table", name=name)
        self.assertEqual((table.get_n_rows(), table.get_n_columns()), (len(rows), len(rows[0])))
        self.assertEqual(tableTexts(table), rows)
        return table


class LogTable(Window):
    def testIsReadCellByCell(self):
        self.open(examples + "/befunde.adi")
        records = [{field["name"]: field["value"] for field in record["fields"]}
                   for record in self.tool("dump", "befunde.adi")["records"]]
        columns = list(dict.fromkeys(field for record in records for field in record))
        table = self.expectTable("QSO-Tabelle", [
            [shownValue(column, record.get(column, "")) for column in columns] for record in records])
        heads = [table.get_column_header(column) for column in range(len(columns))]
        self.assertEqual([head.get_description() for head in heads], columns)
        self.assertEqual([head.get_name() for head in heads[:4]], ["Rufzeichen", "Datum", "Zeit (Anfang)", "Band"])

        desk.press(DOWN)
        desk.press(DOWN)
        cell = table.get_accessible_at(1, 0)
        waitFor(lambda: has(cell, State.FOCUSED), "the second row has not got the keyboard")
        self.assertTrue(has(cell, State.SELECTED) and has(cell, State.EDITABLE))
        self.assertEqual(list(table.get_selected_rows()), [1])
        self.assertFalse(has(table.get_accessible_at(0, 0), State.SELECTED))
        details = self.shown(role="filler", name="QSO-Details")
        fields = [node for node in shown(details) if node.get_role_name() == "text"]
        self.assertEqual({label(node): node.get_text(0, -1) for node in fields}["Bemerkung"], records[1]["COMMENT"])
        self.expectNames()

    def testFindingsFollowTheSwitches(self):
        self.open(examples + "/befunde.adi")

        def expectFindings(*switches):
            act(self.shown(role="push button", name="Jetzt prüfen"), "Press")
            issues = self.tool("check", "befunde.adi", *switches)[0]["issues"]
            words = {"error": "Fehler", "warning": "Warnung"}
            expected = [f"{words[issue['severity']]}, Zeile {issue['recordIndex'] + 1}: {issue['message']}"
                        for issue in issues]
            findings = self.shown(role="list", name="Befunde")
            waitFor(lambda: findings.get_n_rows() == len(expected), f"{len(expected)} findings")
            # Errors stand before warnings here, the tool keeps the order of the log.
            self.assertEqual(sorted(row[0] for row in tableTexts(findings)), sorted(expected))
            for severity, word in (("error", "Fehler"), ("warning", "Warnungen")):
                count = sum(issue["severity"] == severity for issue in issues)
                self.shown(role="check box", name=f"{count} {word}")

        expectFindings()
        switch = self.shown(role="check box", name="Dubletten")
        self.assertTrue(has(switch, State.CHECKED))
        act(switch, "Toggle")
        waitFor(lambda: not has(switch, State.CHECKED), "the switch stays on")
        expectFindings("--no-duplicates")
        self.expectNames()


class Statistics(Window):
    def testChartsAreReadBarByBar(self):
        self.open(examples + "/jahreslog.adi")
        self.choose("Ansicht", "Statistik")
        figures = self.tool("stats", "jahreslog.adi")
        for title, key in (("QSOs pro Band", "byBand"), ("QSOs pro Modus", "byMode"), ("Verlauf pro Tag", "byDay")):
            bars = [bar.get_name() for bar in children(self.shown(role="chart", name=title))]
            self.assertEqual(bars, [
                f"{shownValue('QSO_DATE', row['label']) if key == 'byDay' else row['label']}: {row['count']} QSO"
                + "s" * (row["count"] != 1) for row in figures[key]])
        tiles = dict(name.split(": ") for name in self.names("label") if ": " in name)
        self.assertEqual(number(tiles["QSOs"]), figures["total"])
        self.assertEqual(number(tiles["Rufzeichen"]), figures["uniqueCalls"])
        self.expectNames()


class Score(Window):
    def testIsReadFigureByFigure(self):
        self.open(examples + "/maerzcontest.adi")
        self.choose("Ansicht", "Contest")
        self.choose("Contest", "DARC UKW-Contest")
        score = self.tool("score", "maerzcontest.adi", "--contest", "darcUKW")
        pane = self.shown(role="filler", name="Wertung")
        waitFor(lambda: find(pane, role="label", name="DARC UKW-Contest"), "the contest's name")
        tiles = {name: number(value) for name, _, value in (text.partition(": ") for text in self.names("label", pane))
                 if value}
        for name, key in (("QSOs gesamt", "totalQSOs"), ("gewertet", "countedQSOs"), ("Dubletten", "dupeQSOs"),
                          ("ungültig", "invalidQSOs"), ("QSO-Punkte", "qsoPoints"),
                          ("Multiplikatoren", "multiplierCount")):
            self.assertEqual(tiles[name], score[key], name)
        for multiplier in score["multiplierBreakdown"]:
            self.assertEqual(tiles[multiplier["name"]], multiplier["count"])
        self.assertIn(score["total"], [number(name.split()[0]) for name in self.names("label", pane)
                                       if name.endswith(" Punkte")])
        troubled = [row for row in score["results"] if row["problems"] or row["isDupe"]]
        findings = tableTexts(find(pane, role="list", name="Auffälligkeiten"))
        self.assertEqual([row[0].split(",")[0] for row in findings], [f"#{row['index'] + 1}" for row in troubled])
        self.expectNames()


class CrossCheck(Window):
    def testRankingAndFindingsAreRead(self):
        self.open("--crosscheck", examples + "/crosscheck")
        self.choose("Contest", "DARC UKW-Contest")
        result = self.tool("crosscheck", "crosscheck", "--contest", "darcUKW")
        names = [log["name"] for log in result["logs"]]
        keys = ["confirmed", "notInLog", "bustedCall", "bustedExchange"]

        def row(place, log):
            summary, score = result["summaries"][log], result["scores"][log]
            quota = f"{summary['accuracy'] * 100:.1f} %".replace(".", ",")
            counts = summary["counts"]
            figures = [summary["total"], quota, score["claimed"]["total"], score["checked"]["total"],
                       *(counts.get(key, 0) for key in keys),
                       counts.get("timeMismatch", 0) + counts.get("bandModeMismatch", 0), counts.get("unique", 0),
                       counts.get("notCheckable", 0)]
            return [f"{place + 1}.", summary["owner"]] + [str(figure) for figure in figures]

        table = self.shown(role="table", name="Rangliste")

        def values():
            """Each cell says its heading before its value."""
            rows = tableTexts(table)
            return [[text.partition(": ")[2].replace(".", "") if column in (2, 4, 5) else text.partition(": ")[2]
                     for column, text in enumerate(texts)] for texts in rows]

        # The window ranks logs by their points alone.
        ranked = sorted(range(len(names)), key=lambda log: -result["scores"][log]["checked"]["total"])
        expected = [row(place, log) for place, log in enumerate(ranked)]
        waitFor(lambda: values() == expected, f"{expected}, not {values()}")
        self.assertEqual([table.get_column_header(column).get_name() for column in (0, 2, 5)],
                         ["Rang", "QSOs", "Punkte\ngeprüft"])

        self.tabTo("Rangliste")
        for place, log in enumerate(ranked[:2]):
            card = self.shown(role="filler", name=f"Befunde {names[log]}")
            expectedFindings = [(f"#{finding['index'] + 1}", finding["call"]) for finding in result["findings"]
                                if finding["log"] == log]
            findings = tableTexts(find(card, role="list", name="Befunde"))
            parts = [finding[0].split(", ") for finding in findings]
            self.assertTrue(parts)
            for part in parts:
                self.assertTrue(any(head == part[0] and call in part for head, call in expectedFindings), part)
            self.assertTrue(has(table.get_accessible_at(place, 1), State.SELECTED))
            desk.press(DOWN)
        self.expectNames()


class Comparison(Window):
    def testBothSidesAreRead(self):
        self.open(examples + "/vereinsabend.adi")
        self.choose("Ansicht", "Vergleichen")
        act(self.shown(role="push button", name="Rechts laden"), "Press")
        dialog = self.shown(role="dialog")
        find(dialog, role="text").set_text_contents(examples + "/vereinsabend-abschrift.adi")
        desk.press(RETURN)
        compared = self.tool("compare", "vereinsabend.adi", "vereinsabend-abschrift.adi")
        right = self.shown(role="table", name="Rechtes Log")
        rows = compared["rows"]
        waitFor(lambda: right.get_n_rows() == len(rows), "the file is not compared")
        words = {"equal": "gleich", "differs": "abweichend", "onlyLeft": "nur links", "onlyRight": "nur rechts"}
        for side, name, file in (("left", "Linkes Log", "vereinsabend.adi"),
                                 ("right", "Rechtes Log", "vereinsabend-abschrift.adi")):
            records = [{field["name"]: field["value"] for field in record["fields"]}
                       for record in self.tool("dump", file)["records"]]
            table = self.expectTable(name, [
                [records[row[side]].get(column, "") if row[side] is not None else "" for column in compared["columns"]]
                for row in rows])
            for number_, row in enumerate(rows):
                said = table.get_accessible_at(number_, 0).get_description()
                self.assertIn(words[row["status"]], said)
        for status, word in words.items():
            self.shown(role="label", name=f"{sum(row['status'] == status for row in rows)} {word}")
        self.expectNames()


if __name__ == "__main__":
    quillon, tallyrig, examples = sys.argv[1:4]
    desk = Desk()
    try:
        unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)
    finally:
        desk.close()
