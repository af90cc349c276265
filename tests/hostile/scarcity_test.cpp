// SPDX-License-Identifier: MIT
//
// Programs that have too little of everything: descriptors, stack, memory, disk.
#include <gmock/gmock.h>

#include "tests/hostile/limits.h"
#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr char reportAll[] = "$TOOL report --jobs 4 -r $FILES/pairs; true";

class EnoughTest : public testing::TestWithParam<const char*> {
 protected:
  const std::string _limit = std::string("ulimit ") + GetParam() + "; ";
};

TEST_P(EnoughTest, ForTheToolToSayTheSame) {
  const std::string line = "exec 2>&1; cd $FILES/pairs; $TOOL report --jobs 4 *";
  const std::vector<std::string> full = linesOf(runLine(line).output);
  EXPECT_EQ(linesOf(runLine(_limit + line).output), full);
  EXPECT_GT(full.size(), 1000U);
}

// Where the last descriptor went elsewhere when the decoder was started, the photo says so.
TEST_P(EnoughTest, ForThePhotoApplicationToShowAPhotoOrSayWhyNot) {
  const RunEnd end = runLine(_limit + showing(hostileFile("large"), "open item 0\ndump\n"));
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_THAT(end.output, HasSubstr("PUOneUpPhotoView"));
  EXPECT_THAT(end.output, testing::AnyOf(testing::Not(HasSubstr("cannot be shown")),
                                         HasSubstr("cannot be started: Too many open files")));
  for (const std::string& message : linesOf(end.messages))
    EXPECT_THAT(message, EndsWith("Too many open files"));
}

INSTANTIATE_TEST_SUITE_P(Of, EnoughTest, testing::Values("-n 16", "-s 256"));

// With less than that every file that needs a reader is named, and all others are reported.
TEST(Scarcity, OfMemoryOrDescriptorsCostsOtherContainersOnly) {
  if (workers::isSanitized) GTEST_SKIP() << "memory cannot be limited under a sanitizer";
  for (const char* limit : {"ulimit -v 60000; ", "ulimit -n 6; "}) {
    const RunEnd end =
        runLine(limit + std::string("cd $FILES/pairs; exec $TOOL caption --jobs 2 'avi as avi.avi' "
                                    "'png as png.png' 'mkv as jpg.jpg' 'mov as mov.mov'"));
    EXPECT_EQ(end.status, 1) << limit;
    EXPECT_EQ(end.output, "64x48, png\n1080x1920, mov\n") << limit;
    EXPECT_EQ(end.messages,
              "lumifact: avi as avi.avi: its reader does not start\n"
              "lumifact: mkv as jpg.jpg: its reader does not start\n")
        << limit;
  }
}

TEST(Scarcity, OfWhatWorkersMayHaveIsNoRefusal) {
  if (workers::isSanitized) GTEST_SKIP() << "memory cannot be limited under a sanitizer";
  for (const char* limit : {"ulimit -n 12; ", "ulimit -f 0; ", "ulimit -v 500000; "}) {
    const RunEnd end = runLine("(" + std::string(limit) +
                               "$TOOL caption $FILES/pairs/avi\\ as\\ avi.avi) 2>&1 | cat");
    EXPECT_EQ(end.output, "16x8, \n") << limit;
  }
}

TEST(Scarcity, OfDiskFailsARunAndLeavesNothing) {
  const RunEnd full = runLine("$TOOL report -r $FILES/pairs >/dev/full");
  EXPECT_EQ(full.status, 1);
  EXPECT_THAT(full.messages, HasSubstr("lumifact: standard output: No space left on device\n"));
  const RunEnd set =
      runLine("(ulimit -f 0; $TOOL settings --settings s set fontSize 14) 2>&1 | cat; ls -A");
  EXPECT_EQ(set.output, "lumifact: s: File too large\nmessages\noutput\n");
  const RunEnd host = runLine("mkdir empty; (ulimit -f 1; " +
                              showing("empty", "screenshot s.png\n") + ") 2>&1 | cat; ls -A");
  EXPECT_THAT(host.output, HasSubstr("photohost: script:1: s.png: File too large\n"));
  EXPECT_THAT(host.output, testing::Not(HasSubstr(".new")));
}

}  // namespace

}  // namespace hostile
