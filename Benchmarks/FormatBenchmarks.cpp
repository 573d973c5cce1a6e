// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing the other formats. Reading ADX stands beside expat with handlers that do nothing
// ("expats"), writing it beside a pass of memchr from tag to tag ("passes"), Cabrillo and EDI beside one from
// line to line ("linePasses"); each is made in turns with the work in one run.

#include "GeneratedLog.h"
#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Formats/CabrilloHeader.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Formats/EDIParser.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Formats/WritingReport.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>
#include <expat.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

namespace tallyrig::benchmarks {
namespace {

const ADXWriter adxWriter{"Quillon", "1", "3.1.7", true};

void expatPass(const std::string& text) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              XML_ParserFree);
    XML_SetElementHandler(
        parser.get(), [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser.get(), [](void*, const XML_Char*, int) {});
    benchmark::DoNotOptimize(XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE));
}

void readingADX(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string text = adxWriter.write(ADIFParser::parse(logOf(count)));
    inTurns(
        state, "expats", [&] { benchmark::DoNotOptimize(ADXParser::parse(text)); }, [&] { expatPass(text); });
}
BENCHMARK(readingADX)->Arg(1'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void writingADX(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = ADIFParser::parse(logOf(count));
    const std::string text = adxWriter.write(document);
    besideThePass(state, text, count, [&] { benchmark::DoNotOptimize(adxWriter.write(document)); });
}
BENCHMARK(writingADX)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Looks at every line feed of `text`: the least that a reader of lines can do.
void linePass(const std::string& text) {
    std::size_t found = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while ((at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) !=
           nullptr) {
        ++found;
        ++at;
    }
    benchmark::DoNotOptimize(found);
}

void besideTheLinePass(benchmark::State& state, const std::string& text, std::size_t count,
                       const std::function<void()>& work) {
    inTurns(state, "linePasses", work, [&] { linePass(text); });
    state.counters["nsPerQSO"] = state.counters["bestMs"] * 1e6 / static_cast<double>(count);
    state.counters["megabytes"] = static_cast<double>(text.size()) / 1e6;
}

ADIFDocument contestLog(std::size_t count) {
    return ADIFParser::parse(generatedContestLog(count));
}

CabrilloWriter cabrilloWriter(const ADIFDocument& document) {
    return {CabrilloHeader::suggested(document)};
}

void readingCabrillo(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const std::string text = cabrilloWriter(document).write(document);
    besideTheLinePass(state, text, count, [&] { benchmark::DoNotOptimize(CabrilloParser::parse(text)); });
}
BENCHMARK(readingCabrillo)->Arg(1'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void writingCabrillo(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const CabrilloWriter writer = cabrilloWriter(document);
    const std::string text = writer.write(document);
    besideTheLinePass(state, text, count, [&] { benchmark::DoNotOptimize(writer.write(document)); });
}
BENCHMARK(writingCabrillo)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void readingEDI(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const std::string text = EDIWriter{EDIHeader::suggested(document)}.write(document);
    besideTheLinePass(state, text, count, [&] { benchmark::DoNotOptimize(EDIParser::parse(text)); });
}
BENCHMARK(readingEDI)->Arg(1'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void writingEDI(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const EDIWriter writer{EDIHeader::suggested(document)};
    const std::string text = writer.write(document);
    besideTheLinePass(state, text, count, [&] { benchmark::DoNotOptimize(writer.write(document)); });
}
BENCHMARK(writingEDI)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Reading with a report, beside reading without one ("readings").
template <typename Parser>
void besideReading(benchmark::State& state, const std::string& text) {
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(Parser::read(text)); },
        [&] { benchmark::DoNotOptimize(Parser::parse(text)); });
}

void reportingOnADX(benchmark::State& state) {
    besideReading<ADXParser>(state, adxWriter.write(ADIFParser::parse(logOf(100'000))));
}
BENCHMARK(reportingOnADX)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Reading back what is about to be saved, beside reading it as a log that is opened ("readings").
void readingBackADX(benchmark::State& state) {
    const ADIFDocument document = ADIFParser::parse(logOf(100'000));
    const std::string text = adxWriter.write(document);
    inTurns(
        state, "readings", [&] { benchmark::DoNotOptimize(readBack(adxWriter, document, text)); },
        [&] { benchmark::DoNotOptimize(LogReader::read(text)); });
}
BENCHMARK(readingBackADX)->UseManualTime()->Unit(benchmark::kMillisecond);

void reportingOnCabrillo(benchmark::State& state) {
    const ADIFDocument document = contestLog(100'000);
    besideReading<CabrilloParser>(state, cabrilloWriter(document).write(document));
}
BENCHMARK(reportingOnCabrillo)->UseManualTime()->Unit(benchmark::kMillisecond);

void reportingOnEDI(benchmark::State& state) {
    const ADIFDocument document = contestLog(100'000);
    besideReading<EDIParser>(state, EDIWriter{EDIHeader::suggested(document)}.write(document));
}
BENCHMARK(reportingOnEDI)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyrig::benchmarks

BENCHMARK_MAIN();
