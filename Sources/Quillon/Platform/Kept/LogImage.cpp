// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Kept/LogImage.h"

#include "Quillon/Platform/Kept/ImageBytes.h"
#include "Tallyrig/Log/ADIFRecordBuilder.h"

#include <cstdint>
#include <limits>
#include <unordered_map>
#include <utility>

namespace quillon {

namespace {

using tallyrig::ADIFDocument;
using tallyrig::ADIFField;
using tallyrig::ADIFRecord;
using tallyrig::ADIFRecordList;
using tallyrig::FieldTag;
using tallyrig::FieldTags;
using tallyrig::RecordStorage;

void writeType(const std::optional<std::string>& type, ImageSink& sink) {
    sink.number(type ? 1 : 0);
    if (type) {
        sink.text(*type);
    }
}

/// A field's type, which it may lack. (An optional of an optional, with which g++ 12 sees things under the
/// address sanitizer that are not there, would say the same.)
struct ReadType {
    std::optional<std::string> text;
};

/// Absent if the bytes end.
std::optional<ReadType> readType(ImageSource& source) {
    const auto has = source.number();
    if (!has) {
        return std::nullopt;
    }
    ReadType type;
    if (*has != 0) {
        const auto text = source.text();
        if (!text) {
            return std::nullopt;
        }
        type.text = std::string(*text);
    }
    return type;
}

void writeHeader(const ADIFDocument& document, ImageSink& sink) {
    sink.text(document.headerComment());
    sink.number(document.headerFields().size());
    for (const ADIFField& field : document.headerFields()) {
        sink.text(field.name);
        writeType(field.type, sink);
        sink.text(field.value);
    }
}

/// Writes records, each tag in full where it first occurs and with its number from then on.
class RecordWriter {
  public:
    explicit RecordWriter(ImageSink& imageSink) : sink(imageSink) {}

    void write(const ADIFRecord& record) {
        const RecordStorage& stored = record.stored();
        std::vector<std::uint64_t>& ofTags = placesOf(stored.tags());
        sink.number(stored.fieldCount());
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            writeTag(stored.tag(index), ofTags[stored.tagNumber(index)]);
            // Empty where the tag has the value.
            sink.text(stored.ownValue(index));
        }
    }

  private:
    std::vector<std::uint64_t>& placesOf(const FieldTags& tags) {
        if (&tags != lastTags) {
            lastTags = &tags;
            lastPlaces = &places[&tags];
            lastPlaces->resize(tags.size());
        }
        return *lastPlaces;
    }

    void writeTag(const FieldTag& tag, std::uint64_t& place) {
        if (place != 0) {
            sink.number(place);
            return;
        }
        place = ++tagCount;
        sink.number(0);
        sink.text(tag.name);
        writeType(tag.type, sink);
        sink.text(tag.sharedValue ? std::string_view(*tag.sharedValue) : std::string_view());
    }

    ImageSink& sink;
    /// From one on; 0 for a tag that was not written yet.
    std::unordered_map<const FieldTags*, std::vector<std::uint64_t>> places;
    const FieldTags* lastTags = nullptr;
    std::vector<std::uint64_t>* lastPlaces = nullptr;
    std::uint64_t tagCount = 0;
};

/// The counterpart. A builder takes no names but in upper case and no texts but well-formed ones, which is
/// what all records are made of.
class RecordReader {
  public:
    explicit RecordReader(ImageSource& imageSource) : source(imageSource) {}

    std::optional<ADIFRecord> read() {
        const auto fields = source.number();
        if (!fields) {
            return std::nullopt;
        }
        for (std::uint64_t index = 0; index < *fields; ++index) {
            const auto place = source.number();
            if (!place || *place > tags.size() || (*place == 0 && !readTag())) {
                return std::nullopt;
            }
            const Tag& tag = tags[*place == 0 ? tags.size() - 1 : *place - 1];
            const auto own = source.text();
            if (!own) {
                return std::nullopt;
            }
            builder.addField(tag.number, own->empty() ? tag.sharedValue : *own);
        }
        return builder.takeRecord();
    }

  private:
    struct Tag {
        FieldTags::Number number = 0;
        std::string_view sharedValue;
    };

    bool readTag() {
        const auto name = source.text();
        const auto type = name ? readType(source) : std::nullopt;
        const auto shared = type ? source.text() : std::nullopt;
        if (!shared) {
            return false;
        }
        tags.push_back({builder.tag(*name, type->text), *shared});
        return true;
    }

    ImageSource& source;
    tallyrig::ADIFRecordBuilder builder;
    std::vector<Tag> tags;
};

struct Header {
    std::string comment;
    std::vector<ADIFField> fields;
};

std::optional<Header> readHeader(ImageSource& source) {
    Header header;
    const auto comment = source.text();
    const auto count = comment ? source.number() : std::nullopt;
    if (!count) {
        return std::nullopt;
    }
    header.comment = *comment;
    for (std::uint64_t index = 0; index < *count; ++index) {
        const auto name = source.text();
        auto type = name ? readType(source) : std::nullopt;
        const auto value = type ? source.text() : std::nullopt;
        if (!value) {
            return std::nullopt;
        }
        header.fields.emplace_back(*name, std::string(*value), std::move(type->text));
    }
    return header;
}

bool readRecords(std::uint64_t count, RecordReader& reader, std::vector<ADIFRecord>& records) {
    for (std::uint64_t index = 0; index < count; ++index) {
        auto record = reader.read();
        if (!record) {
            return false;
        }
        records.push_back(*std::move(record));
    }
    return true;
}

}  // namespace

void writeImage(const ADIFDocument& document, ImageSink& sink) {
    writeHeader(document, sink);
    sink.number(document.records().size());
    RecordWriter writer(sink);
    for (const ADIFRecord& record : document.records()) {
        writer.write(record);
    }
}

std::vector<ImageStep> stepsBetween(const ADIFRecordList& before, const ADIFRecordList& now) {
    std::vector<ImageStep> steps;
    ImageStep step;
    auto old = before.begin();
    auto own = now.begin();
    std::size_t oldIndex = 0;
    std::size_t ownIndex = 0;
    const auto finishStep = [&] {
        if (step.commonCount + step.ownCount > 0) {
            steps.push_back(step);
        }
        step = {oldIndex, 0, ownIndex, 0};
    };
    // Ids ascend in nearly every log, so that the smaller of two is one that the other side does not have.
    // Where they do not, the steps are more than they need to be.
    while (own != now.end()) {
        const bool hasOld = old != before.end();
        if (hasOld && old->isSameAs(*own)) {
            if (step.ownCount > 0 || step.commonBegin + step.commonCount != oldIndex) {
                finishStep();
            }
            ++step.commonCount;
            step.ownBegin = ownIndex + 1;
            ++old, ++oldIndex, ++own, ++ownIndex;
        } else if (hasOld && old->id() < own->id()) {
            ++old, ++oldIndex;
        } else {
            if (hasOld && old->id() == own->id()) {
                ++old, ++oldIndex;
            }
            ++step.ownCount;
            ++own, ++ownIndex;
        }
    }
    finishStep();
    return steps;
}

void writeChange(const ADIFDocument& now, const std::vector<ImageStep>& steps, ImageSink& sink) {
    writeHeader(now, sink);
    sink.number(steps.size());
    RecordWriter writer(sink);
    for (const ImageStep& step : steps) {
        sink.number(step.commonBegin);
        sink.number(step.commonCount);
        sink.number(step.ownCount);
        auto record = now.records().at(step.ownBegin);
        for (std::size_t count = 0; count < step.ownCount; ++count, ++record) {
            writer.write(*record);
        }
    }
}

bool ImageReader::readImage(std::string_view bytes) {
    ImageSource source(bytes);
    auto header = readHeader(source);
    const auto count = header ? source.number() : std::nullopt;
    RecordReader reader(source);
    records.clear();
    if (!count || !readRecords(*count, reader, records)) {
        return false;
    }
    comment = std::move(header->comment);
    headerFields = std::move(header->fields);
    return source.isAtEnd();
}

bool ImageReader::readChange(std::string_view bytes) {
    ImageSource source(bytes);
    auto header = readHeader(source);
    const auto count = header ? source.number() : std::nullopt;
    if (!count) {
        return false;
    }
    RecordReader reader(source);
    const std::vector<ADIFRecord> before = std::exchange(records, {});
    records.reserve(before.size());
    for (std::uint64_t index = 0; index < *count; ++index) {
        const auto begin = source.number();
        const auto common = begin ? source.number() : std::nullopt;
        const auto own = common ? source.number() : std::nullopt;
        if (!own || *begin > before.size() || *common > before.size() - *begin) {
            return false;
        }
        const auto first = before.begin() + static_cast<std::ptrdiff_t>(*begin);
        records.insert(records.end(), first, first + static_cast<std::ptrdiff_t>(*common));
        if (!readRecords(*own, reader, records)) {
            return false;
        }
    }
    comment = std::move(header->comment);
    headerFields = std::move(header->fields);
    return source.isAtEnd();
}

ADIFDocument ImageReader::takeDocument() {
    return {std::exchange(comment, {}), std::exchange(headerFields, {}),
            ADIFRecordList(std::exchange(records, {}))};
}

}  // namespace quillon
