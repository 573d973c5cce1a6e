// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ReadingWords.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

namespace quillon {
namespace {

using tallyrig::FileLook;
using tallyrig::ReadingKind;
using tallyrig::ReadingNote;
using tallyrig::ReadingReport;
using tallyrig::XMLFault;

TEST(ReadingWords, HaveALineOfTheirOwnForEachThing) {
    std::set<std::string> messages;
    std::size_t count = 0;
    const auto expectSentence = [&](const ReadingNote& note) {
        const std::string message = ReadingWords::message(note);
        EXPECT_TRUE(message.ends_with('.')) << message;
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
        messages.insert(message);
        EXPECT_EQ(messages.size(), ++count) << message;
    };
    for (int kind = 0; kind <= static_cast<int>(ReadingKind::recordInRecord); ++kind) {
        if (const auto other = static_cast<ReadingKind>(kind);
            other != ReadingKind::noLog && other != ReadingKind::xmlEnded) {
            expectSentence({.kind = other, .field = "F", .value = "V", .number = 2, .expected = 3});
        }
    }
    for (int look = 0; look <= static_cast<int>(FileLook::cabrilloWithoutStart); ++look) {
        expectSentence({.kind = ReadingKind::noLog, .look = static_cast<FileLook>(look)});
    }
    for (int fault = 0; fault <= static_cast<int>(XMLFault::tooMuchDeclared); ++fault) {
        expectSentence({.kind = ReadingKind::xmlEnded, .fault = static_cast<XMLFault>(fault)});
    }
}

TEST(ReadingWords, CountInGerman) {
    const std::pair<ReadingNote, const char*> cases[] = {
        {{.kind = ReadingKind::lengthsInCharacters, .field = "NAME", .value = "Müller"},
         "Die Längen zählen Zeichen statt Bytes und schneiden 1 Wert ab, hier NAME: Gemeint ist „Müller“."},
        {{.kind = ReadingKind::lengthsInCharacters, .count = 3, .field = "NAME", .value = "Müller"},
         "Die Längen zählen Zeichen statt Bytes und schneiden 3 Werte ab, hier NAME: Gemeint ist „Müller“."},
        {{.kind = ReadingKind::tooFewColumns, .number = 1, .expected = 4},
         "Das QSO fehlt im Log, denn die Zeile hat nur 1 Spalte statt mindestens 4."},
        {{.kind = ReadingKind::callMissing, .count = 2},
         "Das QSO hat kein Rufzeichen. Ebenso an 1 weiteren Stelle."},
        {{.kind = ReadingKind::textBetweenFields, .count = 2},
         "An 2 Stellen steht Text zwischen den Feldern, der im Log fehlt."},
        {{.kind = ReadingKind::emptyRecord},
         "Vor <EOR> stehen keine Felder; im Log ist dafür eine leere Zeile."},
        {{.kind = ReadingKind::xmlEnded, .number = 1, .fault = XMLFault::fileEnds},
         "Die Datei bricht mitten im Log ab; weiter wurde nicht gelesen. 1 QSO ging verloren."},
        {{.kind = ReadingKind::xmlEnded, .number = 7},
         "Hier ist das XML fehlerhaft; weiter wurde nicht gelesen. 7 QSOs gingen verloren."}};
    for (const auto& [note, message] : cases) {
        EXPECT_EQ(ReadingWords::message(note), message);
    }
    // What is told once for the file is one note, of whatever is met in each place there are as many.
    EXPECT_EQ(ReadingWords::counts(ReadingReport({{.kind = ReadingKind::callMissing, .count = 4},
                                                  {.kind = ReadingKind::lengthsInCharacters, .count = 9},
                                                  {.kind = ReadingKind::latin1, .count = 30},
                                                  {.kind = ReadingKind::noQSOs}})),
              "1 Fehler, 4 Warnungen, 2 Hinweise");
    EXPECT_EQ(ReadingWords::counts(ReadingReport()), "");
}

}  // namespace
}  // namespace quillon
