// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What a note means for the log that was read.
enum class ReadingSeverity {
    error,    ///< Something that stands in the file is not in the log, or not whole.
    warning,  ///< All of it was read, but probably not as it was meant.
    note,     ///< Nothing is wrong with the QSOs; worth knowing.
};

/// What a reader may have met. A field, a value or a number in brackets is what a note of the kind carries.
enum class ReadingKind : std::uint8_t {
    // Any format.
    emptyFile,          ///< Nothing but white space.
    noLog,              ///< No log of any format; [look] is what it seems to be instead.
    noQSOs,             ///< A log as it should be, without a QSO.
    cabrilloInside,     ///< The log was taken out of other text, a web page or a mail.
    latin1,             ///< Bytes that are no UTF-8 and were taken as ISO 8859-1.
    windowsCharacters,  ///< The same with bytes that only Windows gives letters to: control characters now.
    nulBytes,           ///< Bytes of value 0.
    lostCharacters,  ///< U+FFFD in the place of a character, lost in half a letter of UTF-16 or long before.
    // ADI text.
    lengthsInCharacters,   ///< Lengths that count characters instead of bytes, so that values are cut.
    lengthTooShort,        ///< Text goes on behind the end of [field]; [value] is what it would be.
    lengthTooLong,         ///< [field] ends amid a tag that it takes in; [value] is what stands before that.
    tagInValue,            ///< [field] holds what looks like a tag, but ends where it should.
    lengthMissing,         ///< [field] has no length, and text behind it: [value].
    lengthNoNumber,        ///< The same with a length that is none.
    lengthPastEnd,         ///< [field] would end behind the end of the file; [value] as in `lengthTooLong`.
    tagWithoutEnd,         ///< A "<" without ">" behind it, where reading ended.
    tagInTag,              ///< A "<" within a tag, which became part of a name.
    tagWithoutBegin,       ///< Text that would be the tag of [field], had it a "<".
    callTwice,             ///< A QSO with two calls: the end of the first was probably lost.
    recordWithoutEnd,      ///< Behind the last <EOR> stands one more QSO.
    fieldsBehindLastQSO,   ///< The same with fields that make no QSO; they are a record all the same.
    emptyRecord,           ///< <EOR> with no field in front of it, which gave an empty record.
    headerAgain,           ///< Another <EOH>, whose fields took the place of the first header.
    callInHeader,          ///< A QSO in front of <EOH>, which is now part of the header.
    textInFront,           ///< Text in front of a log without header.
    textBetweenFields,     ///< Text between two tags, apart from any value.
    textBehindLastRecord,  ///< Text behind the last tag.
    // Cabrillo and EDI.
    tooFewColumns,      ///< A QSO left out: [number] columns of at least [expected].
    columnsDoubted,     ///< The same for most QSOs: [number] of [expected] QSOs were left out.
    callMissing,        ///< A QSO without a call.
    callImplausible,    ///< A QSO whose call, [value], looks like none.
    callColumnDoubted,  ///< The same for most QSOs: [number] of [expected].
    ignoredQSO,         ///< An X-QSO line, which is left out as it asks to be.
    qtcLeftOut,         ///< A QTC line; QTCs are not read.
    unknownKey,         ///< A line of the header with a key that no table knows, [field].
    lineLeftOut,        ///< A line that looks like a QSO, but has no place in the format as one.
    textLeftOut,        ///< Any other line that has none.
    headerTwice,        ///< [field] of the header stands here again; the [value] before it was given up.
    fewerColumns,       ///< A QSO with [number] columns instead of [expected]; the others are empty.
    countDisagrees,     ///< The file says that it has [expected] QSOs and has [number].
    claimDisagrees,     ///< Under [field] the file claims [expected], while its QSOs give [number].
    // ADX.
    xmlEnded,        ///< Not well-formed from here on; [fault] says why. Behind it stand [number] records.
    unknownElement,  ///< An element that no table knows, [field]; it was kept as a field.
    elementOutside,  ///< An element outside of header and record, [field], which was left out.
    elementInside,   ///< An element within [field], whose text in front of it was left out.
    recordInRecord,  ///< A record within another, whose fields so far were left out.
};

/// What a file that is no log looks like.
enum class FileLook : std::uint8_t {
    unknown,
    text,
    table,  ///< Lines of columns between commas, semicolons or tabs.
    webPage,
    xml,
    json,
    richText,
    pdf,
    picture,
    zip,
    compressed,
    database,
    program,
    utf16WithoutMark,
    cabrilloWithoutStart,
};

/// Why an XML file is no more one from some place on.
enum class XMLFault : std::uint8_t {
    other,
    fileEnds,
    ampersand,  ///< A "&" that begins no entity.
    invalidCharacter,
    wrongClosingTag,
    unknownEntity,
    unknownEncoding,
    textBehindRoot,
    attributeTwice,
    tooMuchDeclared,  ///< Entities that swell the file, or too many declarations.
};

/// One thing that a reader met.
struct ReadingNote {
    ReadingKind kind = ReadingKind::noLog;
    std::size_t offset = 0;  ///< Where it stands: bytes from the start of the file, not behind its end.
    std::size_t line = 1;    ///< The line of that place, from 1, as an editor counts: LF, CR LF or CR.
    std::optional<std::size_t> recordIndex = {};  ///< The record that it is about, from 0, if there is one.
    /// In how many places it was met: here and further behind, where no other note speaks of them.
    std::size_t count = 1;
    std::string excerpt = {};  ///< The file's text from `offset` on, cut at the end of the line.
    std::string field = {};    ///< Upper case as in the log; a key of a header; an element.
    std::string value = {};    ///< As the kind says.
    std::size_t number = 0;
    std::size_t expected = 0;
    FileLook look = FileLook::unknown;
    XMLFault fault = XMLFault::other;
    bool isRepairable = false;  ///< The report's repair would put this right.

    ReadingSeverity severity() const;
};

/// Ways of reading an ADI file whose lengths are wrong as its writer meant them.
enum class ReadingRepair : std::uint8_t {
    lengthsInCharacters,  ///< All lengths count characters; where only bytes fit, bytes.
    lengthsThatFit,       ///< Lengths count bytes, but for values that end at a tag only otherwise.
};

/// What a reader says about a file besides the log in it. A value without the file's bytes.
///
/// Offsets are those of the file as it stands on disk, byte order mark included, whatever its encoding: in
/// UTF-16 they count bytes too, two or four for a letter. `excerpt`, `field` and `value` are well-formed
/// UTF-8 ready for a screen: at most `mostCharacters` code points of the file, "…" where there were more, and
/// all of it as `text::visibleText` shows it.
///
/// However damaged a file is, the report stays small: of each kind it keeps `mostNotes(kind)`, of which the
/// last counts the places behind it too. Things that are told once for the file have one.
class ReadingReport {
  public:
    static constexpr std::size_t mostCharacters = 80;

    ReadingReport() = default;
    /// `notes` as below.
    explicit ReadingReport(std::vector<ReadingNote> notes, std::optional<ReadingRepair> repair = {});

    /// Ascending by offset; those of one place in the order of the kinds.
    std::span<const ReadingNote> notes() const { return allNotes; }
    bool isEmpty() const { return allNotes.empty(); }
    /// How many places the notes of this severity stand for.
    std::size_t placeCount(ReadingSeverity severity) const;
    /// How many notes of this severity there would be without a limit: what is told once for the file is one.
    std::size_t noteCount(ReadingSeverity severity) const;

    /// The reading that would put damage right with certainty, absent if there is no such damage.
    std::optional<ReadingRepair> repair() const { return certainRepair; }

    /// The severity of all notes of a kind.
    static ReadingSeverity severityOf(ReadingKind kind);
    /// How many notes of a kind a report has at most, 1 or more.
    static std::size_t mostNotes(ReadingKind kind);

  private:
    std::vector<ReadingNote> allNotes;
    std::optional<ReadingRepair> certainRepair;
};

/// The name of the case, such as "lengthTooShort".
std::string_view nameOf(ReadingKind kind);
/// The name of the case, such as "warning".
std::string_view nameOf(ReadingSeverity severity);

}  // namespace tallyrig
