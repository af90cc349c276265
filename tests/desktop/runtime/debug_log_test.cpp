// SPDX-License-Identifier: MIT
#include "desktop/runtime/debug_log.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "bridge/guard.h"
#include "bridge/log.h"
#include "desktop/platform.h"

namespace desktop::runtime {
namespace {

class DebugLogTest : public testing::Test {
 protected:
  DebugLogTest() {
    setDebugLogSink([this](const DebugLogLine& line) { lines.push_back(line); });
  }
  ~DebugLogTest() override { setDebugLogSink({}); }

  std::vector<DebugLogLine> lines;
};

TEST_F(DebugLogTest, HandsOnFormatSourceLineAndText) {
  logDebug("Source", 12, "couldn't find it");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0],
            (DebugLogLine{"[%{public}s:%{public}d] %{public}@", "Source", 12, "couldn't find it"}));
  EXPECT_EQ(lines[0].message(), "[Source:12] couldn't find it");
}

TEST_F(DebugLogTest, TellsOfExceptionsThatAGuardCaught) {
  guarded([] { throw std::runtime_error("out of luck"); });
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].text, "out of luck");
}

TEST_F(DebugLogTest, DropsLinesWithoutASink) {
  setDebugLogSink({});
  logDebug("Source", 12, "unheard");
  EXPECT_TRUE(lines.empty());
}

}  // namespace
}  // namespace desktop::runtime
