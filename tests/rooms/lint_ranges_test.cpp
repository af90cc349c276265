// SPDX-License-Identifier: MIT
//
// `.ci/lint_ranges`, which finds loops over what dies before their first turn.
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
  std::string command = "cd " + folder.path() + " && " SOURCE_FOLDER "/.ci/lint_ranges";
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

TEST(LintRanges, FindsLoopsOverWhatATemporaryOwns) {
  for (const std::string range : {"made()->parts", "made(first, of(second))->parts", "*made()",
                                  "*room::made()", "made().value()", "room::made()->parts()"}) {
    const LintRun run = lint({sourceWithLoopOver(range)});
    EXPECT_EQ(run.status, 1) << range;
    EXPECT_THAT(run.findings,
                testing::ElementsAre("0.cpp:3: a loop over what a temporary owns: for "
                                     "(const int part : " +
                                     range + ")"));
  }
}

TEST(LintRanges, FindsEveryLoopOfEveryFile) {
  const std::string loop = sourceWithLoopOver("made()->parts");
  const LintRun run = lint({loop + loop, sourceWithLoopOver("parts"), loop});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.findings, testing::ElementsAre(testing::StartsWith("0.cpp:3: "),
                                                 testing::StartsWith("0.cpp:7: "),
                                                 testing::StartsWith("2.cpp:3: ")));
}

TEST(LintRanges, LetsLoopsOverWhatStaysBe) {
  for (const std::string range :
       {"made()", "made().parts", "made", "made->parts", "made->parts()", "*made"}) {
    const LintRun run = lint({sourceWithLoopOver(range)});
    EXPECT_EQ(run.status, 0) << range;
    EXPECT_THAT(run.findings, testing::IsEmpty());
  }
}

}  // namespace
}  // namespace rooms
