// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFDocument.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <string>
#include <thread>
#include <vector>

namespace tallyrig {
namespace {

std::size_t sizeOfValues(const ADIFDocument& document) {
    std::size_t size = document.headerComment().size();
    for (const ADIFRecord& record : document.records()) {
        for (const ADIFFieldView& field : record.fields()) {
            size += field.value.size();
        }
    }
    return size;
}

void edit(ADIFDocument& document, std::size_t round) {
    document.setHeaderComment(std::to_string(round % 10));
    document.records().modify(round % document.records().size(),
                              [](ADIFRecord& record) { record.set("CALL", "DL2CD"); });
    document.setColumn("MODE", round % 2 == 0 ? "CW" : "FM", ColumnTarget::allRecords);
    document.records().replace(0, document.records()[1]);
}

// What makes this fail is the thread sanitizer. The threads tell each other that they are done without
// ordering anything: that an editor may write in place has to follow from the document alone.
TEST(CopiesOnThreads, MayBeReadAndEditedWhileAnotherIsEdited) {
    ADIFDocument document =
        testing::document(std::vector<testing::Pairs>(300, {{"CALL", "DL1AB"}, {"MODE", "CW"}}));
    document.setHeaderComment("c");
    const std::size_t size = sizeOfValues(document);
    for (std::size_t round = 0; round < 30; ++round) {
        std::atomic<std::size_t> readersLeft = 2;
        std::array<std::size_t, 2> read{};
        std::vector<std::thread> readers;
        for (std::size_t& result : read) {
            readers.emplace_back([&result, &readersLeft, copy = document, round]() mutable {
                result = sizeOfValues(copy);
                edit(copy, round + 1);
                copy = ADIFDocument();
                readersLeft.fetch_sub(1, std::memory_order_relaxed);
            });
        }
        do {
            edit(document, round);
        } while (readersLeft.load(std::memory_order_relaxed) > 0);
        edit(document, round);
        for (std::thread& reader : readers) {
            reader.join();
        }
        EXPECT_EQ(read, (std::array{size, size}));
    }
}

}  // namespace
}  // namespace tallyrig
