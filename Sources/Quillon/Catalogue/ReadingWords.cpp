// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ReadingWords.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>

namespace quillon {

using tallyrig::FileLook;
using tallyrig::ReadingKind;
using tallyrig::ReadingNote;
using tallyrig::ReadingReport;
using tallyrig::ReadingSeverity;
using tallyrig::XMLFault;

namespace {

std::string counted(std::size_t number, std::string_view singular, std::string_view plural) {
    return fmt::format("{} {}", number, number == 1 ? singular : plural);
}

/// "An 3 Stellen", or "Hier" for the place alone.
std::string inPlaces(const ReadingNote& note) {
    return note.count == 1 ? "Hier" : fmt::format("An {} Stellen", note.count);
}

std::string_view noLogSentence(FileLook look) {
    switch (look) {
        case FileLook::unknown:
            break;
        case FileLook::text:
            return "Die Datei ist Text, aber kein Log in einem der Formate ADIF, ADX, Cabrillo und EDI.";
        case FileLook::table:
            return "Die Datei ist eine Tabelle (CSV) und kein Log; gebraucht wird der ADIF-Export des "
                   "Programms, "
                   "aus dem sie stammt.";
        case FileLook::webPage:
            return "Die Datei ist eine Webseite und kein Log; vermutlich wurde statt des Logs die Seite "
                   "gesichert, "
                   "auf der es steht.";
        case FileLook::xml:
            return "Die Datei ist XML, aber kein ADX.";
        case FileLook::json:
            return "Die Datei ist JSON und kein Log; gebraucht wird der ADIF-Export des Programms, aus dem "
                   "sie "
                   "stammt.";
        case FileLook::richText:
            return "Die Datei ist ein RTF-Dokument und kein Log; steht eines darin, muss es als reiner Text "
                   "gesichert werden.";
        case FileLook::pdf:
            return "Die Datei ist ein PDF-Dokument und kein Log.";
        case FileLook::picture:
            return "Die Datei ist ein Bild und kein Log.";
        case FileLook::zip:
            return "Die Datei ist ein ZIP-Archiv oder ein Office-Dokument und kein Log; ein Log darin muss "
                   "erst "
                   "ausgepackt werden.";
        case FileLook::compressed:
            return "Die Datei ist gepackt; ein Log darin muss erst ausgepackt werden.";
        case FileLook::database:
            return "Die Datei ist eine Datenbank und kein Log; gebraucht wird der ADIF-Export des Programms, "
                   "dem "
                   "sie gehört.";
        case FileLook::program:
            return "Die Datei ist ein Programm und kein Log.";
        case FileLook::utf16WithoutMark:
            return "Die Datei ist UTF-16 ohne Kennung (BOM) am Anfang; als UTF-8 gesichert wird sie gelesen.";
        case FileLook::cabrilloWithoutStart:
            return "Die Datei hat QSO-Zeilen wie Cabrillo; gelesen werden sie, wenn die erste Zeile "
                   "„START-OF-LOG: 3.0“ ist.";
    }
    return "Die Datei ist kein Log in einem der Formate ADIF, ADX, Cabrillo und EDI.";
}

std::string_view faultClause(XMLFault fault) {
    switch (fault) {
        case XMLFault::other:
            break;
        case XMLFault::fileEnds:
            return "Die Datei bricht mitten im Log ab";
        case XMLFault::ampersand:
            return "Hier steht „&“, wo „&amp;“ stehen müsste";
        case XMLFault::invalidCharacter:
            return "Hier steht ein Zeichen, das in XML oder in der Kodierung der Datei nicht vorkommt";
        case XMLFault::wrongClosingTag:
            return "Hier endet ein Element, das nicht das zuletzt begonnene ist";
        case XMLFault::unknownEntity:
            return "Hier steht zwischen „&“ und „;“ ein Name, den XML nicht kennt";
        case XMLFault::unknownEncoding:
            return "Die Datei nennt eine unbekannte Kodierung";
        case XMLFault::textBehindRoot:
            return "Hinter dem Ende des Logs geht die Datei weiter";
        case XMLFault::attributeTwice:
            return "Hier hat ein Element zwei gleichnamige Attribute";
        case XMLFault::tooMuchDeclared:
            return "Die Datei vereinbart zu viel und würde den Speicher füllen";
    }
    return "Hier ist das XML fehlerhaft";
}

std::string xmlEndedSentence(const ReadingNote& note) {
    const std::string lost =
        note.number == 0 ? "" : " " + counted(note.number, "QSO ging", "QSOs gingen") + " verloren.";
    return fmt::format("{}; weiter wurde nicht gelesen.{}", faultClause(note.fault), lost);
}

/// What the kind says about the place of the note.
std::string sentence(const ReadingNote& note) {
    const std::string& field = note.field;
    const std::string& value = note.value;
    switch (note.kind) {
        case ReadingKind::emptyFile:
            return "Die Datei ist leer.";
        case ReadingKind::noLog:
            return std::string(noLogSentence(note.look));
        case ReadingKind::noQSOs:
            return "Das Log hat keine QSOs.";
        case ReadingKind::cabrilloInside:
            return "Das Log steht in anderem Text, etwa einer Webseite oder einer E-Mail, und wurde als "
                   "Cabrillo "
                   "gelesen.";
        case ReadingKind::latin1:
            return inPlaces(note) + " stehen Bytes, die kein UTF-8 sind; sie wurden als ISO 8859-1 gelesen.";
        case ReadingKind::windowsCharacters:
            return inPlaces(note) +
                   " stehen Zeichen, die so nur Windows schreibt; im Log sind es unsichtbare Steuerzeichen. "
                   "Als "
                   "UTF-8 gesichert, wird die Datei richtig gelesen.";
        case ReadingKind::nulBytes:
            return fmt::format("Die Datei enthält {}; vermutlich wurde sie nicht vollständig geschrieben.",
                               counted(note.count, "Byte mit dem Wert 0", "Bytes mit dem Wert 0"));
        case ReadingKind::lostCharacters:
            return inPlaces(note) +
                   " steht U+FFFD an der Stelle eines Zeichens, das verloren ging, ehe die Datei geschrieben "
                   "war.";
        case ReadingKind::lengthsInCharacters:
            return fmt::format(
                "Die Längen zählen Zeichen statt Bytes und schneiden {} ab, hier {}: Gemeint ist „{}“.",
                counted(note.count, "Wert", "Werte"), field, value);
        case ReadingKind::lengthTooShort:
            return fmt::format(
                "{} ist abgeschnitten, denn die Länge ist zu klein: Bis zum nächsten Feld steht da „{}“.",
                field, value);
        case ReadingKind::lengthTooLong:
            return fmt::format(
                "{} verschluckt, was dahinter steht, denn die Länge ist zu groß: Davor steht „{}“.", field,
                value);
        case ReadingKind::tagInValue:
            return fmt::format("Im Wert von {} steht, was wie ein Feld aussieht: Davor steht „{}“.", field,
                               value);
        case ReadingKind::lengthMissing:
            return fmt::format("{} blieb leer, denn die Länge fehlt: Dahinter steht „{}“.", field, value);
        case ReadingKind::lengthNoNumber:
            return value.empty()
                       ? fmt::format("{} blieb leer, denn die Länge ist keine Zahl.", field)
                       : fmt::format("{} blieb leer, denn die Länge ist keine Zahl: Dahinter steht „{}“.",
                                     field, value);
        case ReadingKind::lengthPastEnd:
            return fmt::format(
                "{} reicht über das Ende der Datei hinaus: Sie ist abgeschnitten, oder die Länge ist "
                "zu groß.",
                field);
        case ReadingKind::tagWithoutEnd:
            return "Hinter diesem „<“ fehlt „>“; weiter wurde nicht gelesen.";
        case ReadingKind::tagInTag:
            return fmt::format(
                "In {} beginnt ein weiteres Feld, denn „>“ fehlt; eines von beiden ging verloren.", field);
        case ReadingKind::tagWithoutBegin:
            return fmt::format("Vor {} fehlt „<“, sodass das Feld nicht gelesen wurde.", field);
        case ReadingKind::callTwice:
            return "Das QSO hat zwei Rufzeichen; vermutlich fehlt dazwischen <EOR>, und zwei QSOs wurden zu "
                   "einem.";
        case ReadingKind::recordWithoutEnd:
            return "Hinter dem letzten QSO fehlt <EOR>; es steht trotzdem im Log.";
        case ReadingKind::fieldsBehindLastQSO:
            return "Hinter dem letzten QSO stehen Felder ohne Rufzeichen; sie bilden eine eigene Zeile im "
                   "Log.";
        case ReadingKind::emptyRecord:
            return fmt::format("Vor <EOR> stehen keine Felder; im Log {}.",
                               note.count == 1 ? "ist dafür eine leere Zeile"
                                               : fmt::format("sind dafür {} leere Zeilen", note.count));
        case ReadingKind::headerAgain:
            return "Hier endet ein weiterer Kopf und ersetzt den davor; vermutlich wurden Dateien "
                   "aneinandergehängt.";
        case ReadingKind::callInHeader:
            return "Vor <EOH> steht ein Rufzeichen: Ein QSO wurde zu einem Teil des Kopfes und fehlt im Log.";
        case ReadingKind::textInFront:
            return "Der Text am Anfang fehlt im Log, denn die Datei hat kein <EOH>.";
        case ReadingKind::textBetweenFields:
            return inPlaces(note) + " steht Text zwischen den Feldern, der im Log fehlt.";
        case ReadingKind::textBehindLastRecord:
            return "Hinter dem letzten QSO steht Text, der im Log fehlt.";
        case ReadingKind::tooFewColumns:
            return fmt::format("Das QSO fehlt im Log, denn die Zeile hat nur {} statt mindestens {}.",
                               counted(note.number, "Spalte", "Spalten"), note.expected);
        case ReadingKind::columnsDoubted:
            return fmt::format(
                "{} von {} QSOs fehlen im Log, denn ihre Zeilen haben zu wenige Spalten; vermutlich "
                "verlangt der Contest andere, etwa ohne Rapport.",
                note.number, note.expected);
        case ReadingKind::callMissing:
            return "Das QSO hat kein Rufzeichen.";
        case ReadingKind::callImplausible:
            return fmt::format(
                "Wo das Rufzeichen stehen müsste, steht „{}“; vermutlich hat die Zeile andere Spalten.",
                value);
        case ReadingKind::callColumnDoubted:
            return fmt::format(
                "Bei {} von {} QSOs steht kein Rufzeichen, wo es stehen müsste, hier „{}“; vermutlich "
                "verlangt der Contest andere Spalten, etwa einen Austausch aus zwei Wörtern.",
                note.number, note.expected, value);
        case ReadingKind::ignoredQSO:
            return fmt::format("{} im Log, wie es sein soll.",
                               counted(note.count, "X-QSO-Zeile fehlt", "X-QSO-Zeilen fehlen"));
        case ReadingKind::qtcLeftOut:
            return fmt::format("{} im Log; QTCs werden nicht gelesen.",
                               counted(note.count, "QTC-Zeile fehlt", "QTC-Zeilen fehlen"));
        case ReadingKind::unknownKey:
            return fmt::format("Cabrillo kennt kein „{}“ im Kopf{}.", field,
                               note.count == 1 ? "" : fmt::format("; solcher Zeilen sind es {}", note.count));
        case ReadingKind::lineLeftOut:
            return "Die Zeile sieht wie ein QSO aus, fehlt aber im Log: Sie beginnt nicht mit „QSO:“ "
                   "(Cabrillo) oder "
                   "steht nicht unter [QSORecords] (EDI).";
        case ReadingKind::textLeftOut:
            return fmt::format("{} im Log, denn das Format kennt sie nicht.",
                               counted(note.count, "Zeile fehlt", "Zeilen fehlen"));
        case ReadingKind::headerTwice:
            return fmt::format("{} steht noch einmal im Kopf und ersetzt „{}“.", field, value);
        case ReadingKind::fewerColumns:
            return fmt::format("Die Zeile hat nur {} statt {}; was dahinter käme, bleibt leer.",
                               counted(note.number, "Spalte", "Spalten"), note.expected);
        case ReadingKind::countDisagrees:
            return fmt::format("Die Datei kündigt {} an und hat {}.", counted(note.expected, "QSO", "QSOs"),
                               note.number);
        case ReadingKind::claimDisagrees:
            return fmt::format("{} nennt {}, die QSOs ergeben {}.", field, note.expected, note.number);
        case ReadingKind::xmlEnded:
            return xmlEndedSentence(note);
        case ReadingKind::unknownElement:
            return fmt::format("ADIF kennt kein Element „{}“; im Log ist es ein Feld.", field);
        case ReadingKind::elementOutside:
            return fmt::format("„{}“ steht außerhalb von Kopf und QSOs und fehlt im Log.", field);
        case ReadingKind::elementInside:
            return fmt::format("In „{}“ beginnt ein weiteres Element; der Text davor fehlt im Log.", field);
        case ReadingKind::recordInRecord:
            return "In einem QSO beginnt ein weiteres; die Felder davor fehlen im Log.";
    }
    return {};
}

}  // namespace

std::string_view ReadingWords::label(ReadingSeverity severity) {
    constexpr std::array<std::string_view, 3> labels = {"Fehler", "Warnung", "Hinweis"};
    return labels[static_cast<std::size_t>(severity)];
}

std::string ReadingWords::message(const ReadingNote& note) {
    const bool isOneOfMany = ReadingReport::mostNotes(note.kind) > 1 && note.count > 1;
    return sentence(note) + (isOneOfMany
                                 ? fmt::format(" Ebenso an {}.",
                                               counted(note.count - 1, "weiteren Stelle", "weiteren Stellen"))
                                 : "");
}

std::string ReadingWords::counts(const ReadingReport& report) {
    std::string text;
    const auto add = [&](ReadingSeverity severity, std::string_view singular, std::string_view plural) {
        if (const std::size_t count = report.noteCount(severity)) {
            text += (text.empty() ? "" : ", ") + counted(count, singular, plural);
        }
    };
    add(ReadingSeverity::error, "Fehler", "Fehler");
    add(ReadingSeverity::warning, "Warnung", "Warnungen");
    add(ReadingSeverity::note, "Hinweis", "Hinweise");
    return text;
}

}  // namespace quillon
