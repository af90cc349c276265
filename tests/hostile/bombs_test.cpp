// SPDX-License-Identifier: MIT
#include "tests/hostile/bombs.h"

#include <gmock/gmock.h>

#include "tests/hostile/limits.h"
#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

using testing::HasSubstr;
using testing::Not;

class BombsTest : public testing::TestWithParam<const char*> {
 protected:
  const std::string _folder = hostileFile(GetParam());
};

TEST_P(BombsTest, TakeNoMoreOfTheToolThanOtherFiles) {
  const std::vector<std::string> names = namesIn(_folder);
  double seconds = 0;
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const RunEnd end = runLine("cd '" + _folder + "'; exec $TOOL report '" + name + "'");
    EXPECT_THAT(end.status, testing::AnyOf(0, 1));
    EXPECT_THAT(end.messages, Not(HasSubstr("its reader")));
    EXPECT_EQ(end.output.empty(), end.status == 1);
    expectWithin(end, toolKilobytes);
    seconds += end.processorSeconds;
  }
  expectToolSeconds(seconds, names.size());
}

TEST_P(BombsTest, AreRefusedByDecodersOrShown) {
  const std::size_t count = namesIn(_folder).size();
  std::string script = "wait 1\n";
  for (std::size_t item = 0; item + 2 < count; item += 3) {
    script += "open item " + std::to_string(item) + "\n";
    for (const char* failure : {"the decoder", "its reader", "too long"})
      script += "expect-not \"" + std::string(failure) + "\"\n";
    script += "back\n";
  }
  const RunEnd end = runLine(showing(_folder, script));
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_EQ(end.messages, "");
  expectWithin(end, hostKilobytes);
}

INSTANTIATE_TEST_SUITE_P(All, BombsTest, testing::Values("pictures", "movies"),
                         [](const auto& each) { return std::string(each.param); });

TEST(CutFiles, SayWhatWasCutInEveryCommand) {
  for (const char* command : {"report", "properties", "quick-info", "caption", "map-link"}) {
    const std::string file = hostileFile("movies/some streams.mkv");
    const RunEnd end = runLine(std::string("exec $TOOL ") + command + " '" + file + "'");
    EXPECT_EQ(end.status, 0) << command;
    EXPECT_EQ(end.messages, "lumifact: " + file + ": some of its tracks are left out\n") << command;
  }
}

}  // namespace

}  // namespace hostile
