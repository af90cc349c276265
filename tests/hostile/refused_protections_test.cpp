// SPDX-License-Identifier: MIT
//
// A kernel that refuses to confine workers: one line says so, and everything else holds.
#include <gmock/gmock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>

#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

// Makes the system one without landlock.
void refuseLandlock() {
  ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
  seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), 444, 0);  // landlock_create_ruleset
  if (seccomp_load(filter) != 0) ::_exit(126);
}

RunEnd runRefused(const std::string& line) {
  return ProgramRun(line, refuseLandlock).finish();
}

TEST(RefusedProtections, AreToldByTheToolOnce) {
  const std::string line = "exec $TOOL caption $FILES/pairs/avi*";
  const RunEnd end = runRefused(line);
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(end.output, runLine(line).output);
  EXPECT_EQ(end.messages,
            "lumifact: readers of other containers: this system refuses them: landlock\n");
  EXPECT_EQ(runRefused("exec $TOOL caption $FILES/pairs/jpg*").messages, "") << "no reader ran";
}

TEST(RefusedProtections, AreToldByThePhotoApplicationOnce) {
  std::string script;
  for (int item = 0; item < 10; ++item) script += "open item " + std::to_string(item) + "\nback\n";
  const RunEnd end = runRefused(showing(hostileFile("pairs"), script));
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(end.messages,
            "photohost: decoders and readers of other containers: this system refuses them: "
            "landlock\n");
}

}  // namespace

}  // namespace hostile
