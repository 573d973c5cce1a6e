// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/StoreState.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <new>
#include <span>
#include <string>
#include <utility>

namespace quillon {
namespace {

struct Values {
    int left = 0;
    int right = 0;
};

struct Numbers {
    using State = StoreState<Numbers, Values>;

    static std::span<const State::Property> properties();

    void leftChanged() {
        told += "left ";
        onLeft();
    }
    void rightChanged() { told += "right "; }
    void setLeft(int left) {
        const State::Operation operation(state);
        values.left = left;
    }
    void set(int left, int right) {
        const State::Operation operation(state);
        setLeft(left);
        values.right = right;
    }

    Values values;
    State state{*this, values, properties()};
    std::function<void()> onLeft = [] {};
    std::string told;
};

std::span<const Numbers::State::Property> Numbers::properties() {
    using Property = State::Property;
    static const std::array all = {Property{State::differ<&Values::left>, &Numbers::leftChanged},
                                   Property{State::differ<&Values::right>, &Numbers::rightChanged}};
    return all;
}

TEST(StoreState, TellsWhatDiffersOnceTheOutermostOperationIsDone) {
    Numbers numbers;
    numbers.onLeft = [&] { EXPECT_EQ(numbers.values.right, 2); };
    numbers.set(1, 2);
    numbers.set(1, 2);
    EXPECT_EQ(numbers.told, "left right ");
}

TEST(StoreState, HasDecidedWhatToTellBeforeTheFirstIsTold) {
    Numbers numbers;
    numbers.onLeft = [&] { numbers.set(1, 0); };
    numbers.set(1, 2);
    EXPECT_EQ(numbers.told, "left right right ");
}

TEST(StoreState, GoesBackWhereAnExceptionEndsTheOperation) {
    Numbers numbers;
    const auto fail = [&] {
        const Numbers::State::Operation operation(numbers.state);
        numbers.setLeft(1);
        throw std::bad_alloc();
    };
    EXPECT_THROW(fail(), std::bad_alloc);
    EXPECT_EQ(numbers.values.left, 0);
    EXPECT_EQ(numbers.told, "");
    numbers.onLeft = [] { throw std::bad_alloc(); };
    EXPECT_THROW(numbers.set(1, 2), std::bad_alloc);
    EXPECT_EQ(numbers.values.left, 1);
    EXPECT_EQ(numbers.told, "left right ");
}

}  // namespace
}  // namespace quillon
