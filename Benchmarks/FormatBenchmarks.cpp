// Reading and writing the other formats. Reading ADX stands beside expat with handlers that do nothing
// ("expats"), all else beside a pass of memchr over the bytes of the file ("passes"); both are made in turns
// with the work in one run.

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Formats/CabrilloHeader.h"
#include "Tallyrig/Formats/CabrilloParser.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Timing.h"

#include <benchmark/benchmark.h>
#include <expat.h>

#include <cstddef>
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

/// The generated log as a contest log with a serial number in each exchange, the case of most contests.
ADIFDocument contestLog(std::size_t count) {
    ADIFDocument document = ADIFParser::parse(logOf(count));
    document.setColumn("STX_STRING", "0042", ColumnTarget::allRecords);
    document.setColumn("SRX_STRING", "0815", ColumnTarget::allRecords);
    return document;
}

CabrilloWriter cabrilloWriter(const ADIFDocument& document) {
    return {CabrilloHeader::suggested(document)};
}

void readingCabrillo(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const std::string text = cabrilloWriter(document).write(document);
    besideThePass(state, text, count, [&] { benchmark::DoNotOptimize(CabrilloParser::parse(text)); });
}
BENCHMARK(readingCabrillo)->Arg(1'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void writingCabrillo(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const ADIFDocument document = contestLog(count);
    const CabrilloWriter writer = cabrilloWriter(document);
    const std::string text = writer.write(document);
    besideThePass(state, text, count, [&] { benchmark::DoNotOptimize(writer.write(document)); });
}
BENCHMARK(writingCabrillo)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyrig::benchmarks

BENCHMARK_MAIN();
