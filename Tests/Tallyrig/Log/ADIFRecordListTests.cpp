// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFRecordList.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace tallyrig {
namespace {

using testing::recordOf;

ADIFRecord numbered(std::size_t number) {
    return recordOf("STX=" + std::to_string(number));
}

ADIFRecordList numberedList(std::size_t count) {
    ADIFRecordList list;
    for (std::size_t number = 0; number < count; ++number) {
        list.append(numbered(number));
    }
    return list;
}

// More than one branch of 128 leaves of 128 records.
constexpr std::size_t severalBranches = 128 * 128 * 2 + 77;

TEST(RecordList, KeepsItsOrderAtEverySize) {
    for (const std::size_t count :
         {0UL, 1UL, 127UL, 128UL, 129UL, 128UL * 128, 128UL * 128 + 1, severalBranches}) {
        const ADIFRecordList list = numberedList(count);
        const ADIFRecordList built(std::vector<ADIFRecord>(list.begin(), list.end()));
        ASSERT_EQ(list.size(), count);
        ASSERT_EQ(built.size(), count);
        std::size_t number = 0;
        for (const ADIFRecord& record : list) {
            ASSERT_EQ(record.valueOrEmpty("STX"), std::to_string(number));
            ASSERT_TRUE(list[number].isSameAs(record));
            ASSERT_TRUE(built[number].isSameAs(record));
            ASSERT_TRUE(list.at(number)->isSameAs(record));
            ++number;
        }
        EXPECT_EQ(number, count);
        EXPECT_EQ(list.at(count), list.end());
    }
}

TEST(RecordList, BehavesAsAPlainVectorUnderRandomChanges) {
    std::mt19937 random(2);
    ADIFRecordList list = numberedList(700);
    std::vector<ADIFRecord> plain(list.begin(), list.end());
    std::vector<std::pair<ADIFRecordList, std::vector<ADIFRecord>>> snapshots;
    for (std::size_t step = 0; step < 400; ++step) {
        if (step % 10 == 0) {
            snapshots.emplace_back(list, plain);
        }
        const std::size_t index = random() % plain.size();
        const ADIFRecord other = numbered(10'000 + step);
        const auto isGone = [id = plain[index].id()](const ADIFRecord& record) { return record.id() == id; };
        switch (random() % 4) {
            case 0:
                list.append(other);
                plain.push_back(other);
                break;
            case 1:
                plain[index].set("STX", "x" + std::to_string(step));
                list.modify(index, [&](ADIFRecord& record) { record = plain[index]; });
                break;
            case 2:
                EXPECT_EQ(list.removeIf(isGone), 1U);
                std::erase_if(plain, isGone);
                break;
            default:
                list.replace(index, other);
                plain[index] = other;
                break;
        }
        ASSERT_EQ(list.size(), plain.size());
        const std::size_t probe = random() % plain.size();
        ASSERT_TRUE(list[probe].isSameAs(plain[probe]));
        ASSERT_EQ(list.indexOf(plain[probe].id()), probe);
    }
    snapshots.emplace_back(list, plain);
    for (const auto& [copy, expected] : snapshots) {
        ASSERT_TRUE(std::ranges::equal(copy, expected, &ADIFRecord::isSameAs))
            << "a copy is not touched by later changes";
    }
}

TEST(RecordList, FindsRecordsByIdWhateverTheOrderOfIds) {
    ADIFRecordList ascending = numberedList(severalBranches);
    EXPECT_EQ(ascending.indexOf(ascending[20'000].id()), 20'000U);
    EXPECT_EQ(ascending.indexOf(UUID::fresh()), std::nullopt);
    EXPECT_EQ(ascending.indexOf(UUID{}), std::nullopt);
    ascending.removeIf([](const ADIFRecord& record) { return record.valueOrEmpty("STX").ends_with('7'); });
    EXPECT_EQ(ascending.indexOf(ascending[9'000].id()), 9'000U);

    std::vector<ADIFRecord> backwards(ascending.begin(), ascending.end());
    std::ranges::reverse(backwards);
    const ADIFRecordList descending(backwards);
    EXPECT_EQ(descending.indexOf(backwards[5].id()), 5U);
    EXPECT_EQ(descending.indexOf(UUID::fresh()), std::nullopt);
    EXPECT_EQ(ADIFRecordList().indexOf(UUID::fresh()), std::nullopt);
}

TEST(RecordList, TransformAndRemoveLeaveCopiesAlone) {
    const ADIFRecordList original = numberedList(300);
    ADIFRecordList changed = original;
    EXPECT_EQ(changed.transform([](const ADIFRecord& record) {
        return record.valueOrEmpty("STX").size() < 3 ? std::nullopt : std::optional(numbered(7));
    }),
              200U);
    EXPECT_EQ(changed[99].valueOrEmpty("STX"), "99");
    EXPECT_EQ(changed[100].valueOrEmpty("STX"), "7");
    EXPECT_EQ(changed.removeIf([](const ADIFRecord&) { return true; }), 300U);
    EXPECT_EQ(changed.begin(), changed.end());
    changed.append(numbered(1));
    EXPECT_EQ(changed.size(), 1U);
    EXPECT_EQ(original, numberedList(300));
}

}  // namespace
}  // namespace tallyrig
