// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/BackgroundWork.h"

#include "Tallyrig/CrossCheck/LogWork.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <atomic>
#include <string>
#include <thread>

namespace quillon {
namespace {

/// Tasks that end when the test lets them, and the results taken over.
class Background : public testing::Test {
  protected:
    using Task = std::function<BackgroundWork::TakeOver(tallyrig::LogWork&)>;
    Task task(const std::string& name) {
        return [this, name](tallyrig::LogWork& work) -> BackgroundWork::TakeOver {
            while (!isReleased && !work.isCancelled()) {
                std::this_thread::yield();
            }
            ++ended;
            return [this, name] { taken += name; };
        };
    }
    void waitUntilIdle() {
        QSignalSpy changed(&background, &BackgroundWork::runningChanged);
        while (background.isRunning()) {
            ASSERT_TRUE(changed.wait());
        }
    }

    std::atomic<bool> isReleased = false;
    std::atomic<int> ended = 0;
    std::string taken;
    BackgroundWork background;
};

TEST_F(Background, TakesTheResultOverOnTheMainThread) {
    background.start<tallyrig::LogWork>(task("a"));
    EXPECT_TRUE(background.isRunning());
    isReleased = true;
    EXPECT_EQ(taken, "");
    waitUntilIdle();
    EXPECT_EQ(taken, "a");
}

TEST_F(Background, DropsWhatIsNoLongerWanted) {
    background.start<tallyrig::LogWork>(task("a"));
    background.start<tallyrig::LogWork>(task("b"));
    background.start<tallyrig::LogWork>(task("c"));
    isReleased = true;
    waitUntilIdle();
    EXPECT_EQ(taken, "c") << "a was cancelled, b never began";
    EXPECT_EQ(ended, 2);
    isReleased = false;
    background.start<tallyrig::LogWork>(task("d"));
    background.cancel();
    waitUntilIdle();
    EXPECT_EQ(taken, "c");
}

TEST_F(Background, EndsWithItsOwner) {
    {
        BackgroundWork other;
        other.start<tallyrig::LogWork>(task("a"));
    }
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(taken, "");
}

}  // namespace
}  // namespace quillon
