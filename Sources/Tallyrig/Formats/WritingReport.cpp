// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/WritingReport.h"

#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Formats/WrittenFormats.h"
#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <oneapi/tbb/parallel_for.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <utility>

namespace tallyrig {

namespace {

using written::ADIText;
using written::ADXText;
using written::Comparison;
using written::unstamped;

constexpr std::string_view stamp = "20000101 000000";

/// An ADI text cut behind ends of records, so that each piece and what comes of it stay near at hand. What
/// stands in a value is cut at as well, and then the pieces hold another number of records than the text.
std::vector<std::string_view> piecesOf(std::string_view text) {
    constexpr std::size_t pieceSize = 262'144;
    constexpr std::string_view end = "<EOR>\n";
    std::vector<std::string_view> pieces;
    while (!text.empty()) {
        const std::size_t at = text.size() <= pieceSize ? std::string_view::npos : text.find(end, pieceSize);
        const std::size_t size = at == std::string_view::npos ? text.size() : at + end.size();
        pieces.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return pieces;
}

template <typename Writer, typename Format>
class Examination {
  public:
    Examination(const Writer& logWriter, const ADIFDocument& log) : writer(logWriter), document(log) {}

    WritingReport reportOn(std::string_view text) {
        if (Format::format == LogFormat::adif && isSameInPieces(text)) {
            return {};
        }
        const LogReader::Log read = LogReader::readWithoutReport(text);
        if (read.format == Format::format && isSame(read.document)) {
            return {};
        }
        if (read.format != Format::format) {
            add({.kind = LossKind::otherFormat, .format = read.format});
        } else {
            const std::size_t count = document.records().size();
            report.unreadCount = count - std::min(count, read.document.records().size());
        }
        examineHeader();
        examineRecords();
        if (report.isEmpty()) {
            add({.kind = LossKind::log});
        }
        return std::move(report);
    }

  private:
    enum class Verdict { good, typeLost, fieldLost };

    bool isSame(const ADIFDocument& read) const {
        return isSameHead(read) && document.records().size() == read.records().size() &&
               std::equal(document.records().begin(), document.records().end(), read.records().begin(),
                          Comparison<Format>());
    }

    bool isSameHead(const ADIFDocument& read) const {
        const bool hasOtherComment = Format::hasComment(writer) && !document.headerComment().empty() &&
                                     !text::equal(document.headerComment(), read.headerComment());
        return !hasOtherComment &&
               (!Format::hasHeader(writer) || isSameHeader(document.headerFields(), read.headerFields()));
    }

    /// Reads piece by piece, on all cores, what is a log of ADI text beyond doubt. Where each piece gives the
    /// next records, and all of them together, the whole does: a record that one left open would be one more
    /// in the next.
    bool isSameInPieces(std::string_view text) const {
        const bool hasCall = std::ranges::any_of(document.records(), [](const ADIFRecord& record) {
            return !record.valueOrEmpty("CALL").empty();
        });
        if (!hasCall || LogFormatDetector::detect(text) != LogFormat::adif ||
            text::withoutByteOrderMark(text).size() < text.size()) {
            return false;
        }
        constexpr std::size_t piecesAtOnce = 16;
        const std::vector<std::string_view> pieces = piecesOf(text);
        std::size_t count = 0;
        for (std::size_t first = 0; first < pieces.size(); first += piecesAtOnce) {
            const std::size_t size = std::min(piecesAtOnce, pieces.size() - first);
            std::vector<ADIFDocument> read(size);
            tbb::parallel_for(std::size_t{0}, size,
                              [&](std::size_t piece) { read[piece] = Format::parse(pieces[first + piece]); });
            std::vector<std::size_t> begins;
            for (std::size_t piece = 0; piece < size; ++piece) {
                if (first + piece == 0 ? !isSameHead(read[piece]) : hasHead(read[piece])) {
                    return false;
                }
                begins.push_back(count);
                count += read[piece].records().size();
            }
            if (count > document.records().size()) {
                return false;
            }
            std::atomic<bool> isSame = true;
            tbb::parallel_for(std::size_t{0}, size, [&](std::size_t piece) {
                const ADIFRecordList& back = read[piece].records();
                if (!std::equal(back.begin(), back.end(), document.records().at(begins[piece]),
                                [isSameRecord = Comparison<Format>()](const ADIFRecord& other,
                                                                      const ADIFRecord& record) mutable {
                                    return isSameRecord(record, other);
                                })) {
                    isSame = false;
                }
            });
            if (!isSame) {
                return false;
            }
        }
        return count == document.records().size();
    }

    static bool hasHead(const ADIFDocument& read) {
        return !read.headerComment().empty() || !read.headerFields().empty();
    }

    static bool isSameHeader(const std::vector<ADIFField>& header, const std::vector<ADIFField>& read) {
        return std::ranges::equal(
            unstamped(header), unstamped(read), [](const ADIFField& field, const ADIFField& back) {
                return text::equal(field.name, back.name) &&
                       Format::isSameType(field.type.value_or(""), back.type.value_or("")) &&
                       (Format::isSameValue(field.value, back.value) ||
                        Format::isSameDefinition(field, back));
            });
    }

    /// These records behind a header that comes back, written and read.
    ADIFDocument writtenAndRead(std::vector<ADIFRecord> records) const {
        const ADIFDocument part("", goodHeader, ADIFRecordList(std::move(records)));
        return Format::parse(writer.write(part, stamp));
    }

    /// Of one field that stands alone in a log: what is read there, absent if that is no single field.
    std::optional<ADIFField> readAlone(const ADIFFieldView& field) const {
        const ADIFField alone(field.name, std::string(field.value),
                              field.type ? std::optional(std::string(*field.type)) : std::nullopt);
        const ADIFDocument read = writtenAndRead({ADIFRecord(std::array{alone})});
        if (read.records().size() != 1 || read.records()[0].fields().size() != 1) {
            return std::nullopt;
        }
        return read.records()[0].fields()[0].field();
    }

    void examineHeader() {
        if (Format::hasComment(writer) && !document.headerComment().empty()) {
            const ADIFDocument read = Format::parse(writer.write({document.headerComment(), {}, {}}, stamp));
            if (!text::equal(read.headerComment(), document.headerComment()) ||
                !isSameHeader({}, read.headerFields())) {
                add({.kind = LossKind::comment,
                     .value = document.headerComment(),
                     .readBack = read.headerComment()});
            }
        }
        if (!Format::hasHeader(writer)) {
            return;
        }
        for (const ADIFField& field : document.headerFields()) {
            const std::vector<ADIFField> back = headerReadAlone(field);
            if (isSameHeader({field}, back)) {
                goodHeader.push_back(field);
                continue;
            }
            ADIFField other = field;
            other.value = "1";
            const std::vector<ADIFField> otherBack = headerReadAlone(other);
            const bool hasName = otherBack.size() == 1 && text::equal(otherBack.front().name, field.name) &&
                                 otherBack.front().value == other.value;
            if (!hasName) {
                add({.kind = LossKind::field, .field = field.name, .value = field.value});
            } else if (back.size() == 1 && Format::isSameValue(field.value, back.front().value)) {
                add({.kind = LossKind::type, .field = field.name, .value = field.type.value_or("")});
            } else {
                add({.kind = LossKind::value,
                     .field = field.name,
                     .value = field.value,
                     .readBack = back.size() == 1 ? back.front().value : ""});
            }
        }
    }

    std::vector<ADIFField> headerReadAlone(const ADIFField& field) const {
        return unstamped(Format::parse(writer.write({"", {field}, {}}, stamp)).headerFields());
    }

    /// What names and types cost is found for each of them once. Whether values come back is tried with what
    /// is left then.
    void examineRecords() {
        PerTag<Verdict> verdicts;
        ADIFDocument rest = document;
        std::size_t index = 0;
        for (const ADIFRecord& record : document.records()) {
            examineTags(record, index, verdicts);
            ++index;
        }
        for (const auto& [nameAndType, verdict] : verdictByTag) {
            if (verdict == Verdict::fieldLost) {
                rest.removeColumn(nameAndType.first);
            }
        }
        examineValues(rest.records());
        // Values were looked at last, but belong to their records.
        std::ranges::stable_sort(report.losses, {}, &WritingLoss::recordIndex);
    }

    void examineTags(const ADIFRecord& record, std::size_t index, PerTag<Verdict>& verdicts) {
        const RecordStorage& stored = record.stored();
        const Verdict* const byTag =
            verdicts.of(stored.tags(), [this](const FieldTag& tag) { return verdictOn(tag); });
        bool hasLoss = false;
        for (std::size_t field = 0; field < stored.fieldCount(); ++field) {
            const Verdict verdict = byTag[stored.tagNumber(field)];
            if (verdict == Verdict::good) {
                continue;
            }
            const FieldTag& tag = stored.tag(field);
            const bool isType = verdict == Verdict::typeLost;
            add({.kind = isType ? LossKind::type : LossKind::field,
                 .recordIndex = index,
                 .field = tag.name,
                 .value = isType ? tag.type.value_or("") : std::string(stored.value(field))});
            hasLoss = true;
        }
        if (hasLoss) {
            ++report.recordCount;
            lossy.resize(index + 1);
            lossy[index] = true;
        }
    }

    Verdict verdictOn(const FieldTag& tag) {
        const auto [entry, isNew] =
            verdictByTag.try_emplace({tag.name, tag.type.value_or("")}, Verdict::good);
        if (isNew) {
            constexpr std::string_view anyValue = "1";
            const auto back = readAlone({UUID(), tag.name, anyValue, tag.type});
            if (!back || !text::equal(back->name, tag.name) || back->value != anyValue) {
                entry->second = Verdict::fieldLost;
            } else if (!Format::isSameType(tag.type.value_or(""), back->type.value_or(""))) {
                entry->second = Verdict::typeLost;
            }
        }
        return entry->second;
    }

    void examineValues(const ADIFRecordList& records) {
        constexpr std::size_t recordsAtOnce = 256;
        auto next = records.begin();
        for (std::size_t first = 0; first < records.size() && report.isComplete; first += recordsAtOnce) {
            std::vector<ADIFRecord> some;
            while (some.size() < recordsAtOnce && next != records.end()) {
                some.push_back(*next++);
            }
            if (!doComeBack(some)) {
                for (std::size_t index = 0; index < some.size() && report.isComplete; ++index) {
                    examineValues(some[index], first + index);
                }
            }
        }
    }

    /// But for their types, of which the tags have told.
    bool doComeBack(const std::vector<ADIFRecord>& records) const {
        const ADIFDocument read = writtenAndRead(records);
        return std::equal(records.begin(), records.end(), read.records().begin(), read.records().end(),
                          [](const ADIFRecord& record, const ADIFRecord& back) {
                              const ADIFFields fields = record.fields();
                              const ADIFFields backFields = back.fields();
                              return std::equal(fields.begin(), fields.end(), backFields.begin(),
                                                backFields.end(),
                                                [](const ADIFFieldView& field, const ADIFFieldView& other) {
                                                    return text::equal(field.name, other.name) &&
                                                           Format::isSameValue(field.value, other.value);
                                                });
                          });
    }

    void examineValues(const ADIFRecord& record, std::size_t index) {
        constexpr std::size_t mostExamined = 10'000;
        if (doComeBack({record})) {
            return;
        }
        const std::size_t before = report.lossCount;
        for (const ADIFFieldView& field : record.fields()) {
            const auto back = readAlone(field);
            if (!back || !Format::isSameValue(field.value, back->value)) {
                add({.kind = LossKind::value,
                     .recordIndex = index,
                     .field = std::string(field.name),
                     .value = std::string(field.value),
                     .readBack = back ? back->value : ""});
            }
        }
        if (report.lossCount == before) {
            add({.kind = LossKind::record, .recordIndex = index});
        }
        if (index >= lossy.size() || !lossy[index]) {
            ++report.recordCount;
        }
        report.isComplete = ++examined < mostExamined;
    }

    void add(WritingLoss loss) {
        ++report.lossCount;
        if (report.losses.size() < WritingReport::mostLosses) {
            report.losses.push_back(std::move(loss));
        }
    }

    const Writer& writer;
    const ADIFDocument& document;
    WritingReport report;
    std::vector<ADIFField> goodHeader;
    std::map<std::pair<std::string, std::string>, Verdict> verdictByTag;  ///< By name and type.
    std::vector<bool> lossy;  ///< Records whose tags are lost, by index.
    std::size_t examined = 0;
};

}  // namespace

WritingReport readBack(const ADIFWriter& writer, const ADIFDocument& document, std::string_view text) {
    return Examination<ADIFWriter, ADIText>(writer, document).reportOn(text);
}

WritingReport readBack(const ADXWriter& writer, const ADIFDocument& document, std::string_view text) {
    return Examination<ADXWriter, ADXText>(writer, document).reportOn(text);
}

}  // namespace tallyrig
