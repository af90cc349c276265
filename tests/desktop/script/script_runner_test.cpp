// SPDX-License-Identifier: MIT
#include "desktop/script/script_runner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace desktop::script {
namespace {

class ScriptRunnerTest : public testing::Test {
 protected:
  ScriptRunnerTest() {
    runner.add("say", [this](ScriptRunner::Arguments words) -> ScriptRunner::Outcome {
      for (const Word& word : words) said.push_back(word.text);
      return std::nullopt;
    });
    runner.add("fail", [](ScriptRunner::Arguments) -> ScriptRunner::Outcome {
      return model::Error{"as asked"};
    });
  }

  ScriptRunner runner;
  std::vector<std::string> said;
};

TEST_F(ScriptRunnerTest, RunsLineByLine) {
  EXPECT_FALSE(runner.runText("say a \"b c\"\n\n# nothing\nsay d", "script"));
  EXPECT_EQ(said, (std::vector<std::string>{"a", "b c", "d"}));
}

TEST_F(ScriptRunnerTest, StopsAtTheFirstErrorAndNamesItsLine) {
  const auto failed = runner.runText("say a\nfail\nsay b\n", "script");
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->reason, "script:2: as asked");
  EXPECT_EQ(said, (std::vector<std::string>{"a"}));
}

TEST_F(ScriptRunnerTest, AnUnknownCommandIsAnError) {
  EXPECT_EQ(runner.runLine("dance now")->reason, "unknown command 'dance'");
}

TEST_F(ScriptRunnerTest, TheLastCommandOfANameCounts) {
  const auto before = runner.command("say");
  runner.add("say", [before](ScriptRunner::Arguments words) { return before(words.first(1)); });
  EXPECT_FALSE(runner.runLine("say a b"));
  EXPECT_EQ(said, (std::vector<std::string>{"a"}));
}

TEST_F(ScriptRunnerTest, TheApplicationTakesATurnAroundEachCommand) {
  int turns = 0;
  runner.turn = [&] { ++turns; };
  EXPECT_FALSE(runner.runText("say a\nsay b\n# no\n", "script"));
  EXPECT_EQ(turns, 4);
}

TEST_F(ScriptRunnerTest, AFileThatIsMissingIsNamed) {
  EXPECT_EQ(runner.runFile("/does/not/exist")->reason, "/does/not/exist: cannot be read");
}

}  // namespace
}  // namespace desktop::script
