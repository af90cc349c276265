// SPDX-License-Identifier: MIT
//
// `.ci/lint_text`, which finds loops over what dies before their first turn, and unused names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "tests/rooms/source_tree.h"
#include "tests/support/temporary_folder.h"

namespace rooms {
namespace {

struct LintRun {
  int status = -1;
  std::vector<std::string> findings;  // without the folder
};

// Of sources named "0.cpp", "1.cpp" and so on.
LintRun lint(const std::vector<std::string>& sources) {
  const support::TemporaryFolder folder;
  std::string command = "cd " + folder.path() + " && " SOURCE_FOLDER "/.ci/lint_text";
  for (std::size_t index = 0; index < sources.size(); ++index) {
    const std::string name = std::to_string(index) + ".cpp";
    folder.write(name, sources[index]);
    command += " " + name;
  }
  const int status = std::system((command + " >findings 2>&1").c_str());
  return {WEXITSTATUS(status), linesOf(support::contentsOf(folder.file("findings")))};
}

// The third line has a loop over this, the only one.
std::string sourceWithLoopOver(const std::string& range) {
  return "void use(int);\nvoid useAll() {\n  for (const int part : " + range + ") use(part);\n}\n";
}

TEST(LintText, FindsLoopsOverWhatATemporaryOwns) {
  const std::string owned[] = {"made()->parts",  "made(first, of(second))->parts",
                               "*made()",        "*room::made()",
                               "made().value()", "room::made()->parts()"};
  for (const std::string& range : owned) {
    const LintRun run = lint({sourceWithLoopOver(range)});
    EXPECT_EQ(run.status, 1) << range;
    EXPECT_THAT(run.findings,
                testing::ElementsAre("0.cpp:3: a loop over what a temporary owns: for "
                                     "(const int part : " +
                                     range + ")"));
  }
}

TEST(LintText, FindsEveryLoopOfEveryFile) {
  const std::string loop = sourceWithLoopOver("made()->parts");
  const LintRun run = lint({loop + loop, sourceWithLoopOver("parts"), loop});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.findings, testing::ElementsAre(testing::StartsWith("0.cpp:3: "),
                                                 testing::StartsWith("0.cpp:7: "),
                                                 testing::StartsWith("2.cpp:3: ")));
}

TEST(LintText, LetsLoopsOverWhatStaysBe) {
  const std::string kept[] = {"made()",      "made().parts",  "made",
                              "made->parts", "made->parts()", "*made"};
  for (const std::string& range : kept) {
    const LintRun run = lint({sourceWithLoopOver(range)});
    EXPECT_EQ(run.status, 0) << range;
    EXPECT_THAT(run.findings, testing::IsEmpty());
  }
}

TEST(LintText, FindsNamesThatNobodyUses) {
  const std::string taken = "using room::Used;\nusing room::part::Unused;\nUsed made();\n";
  const LintRun run = lint({taken + "// Unused otherwise.\nconst char* text = \"Unused\";\n"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.findings, testing::ElementsAre("0.cpp:2: nobody uses Unused"));
}

TEST(LintText, LetsNamesThatAreUsedBe) {
  const LintRun run = lint({"using room::Used;\nvoid use(Used*);\nusing Own = int;\n"});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.findings, testing::IsEmpty());
}

}  // namespace
}  // namespace rooms
