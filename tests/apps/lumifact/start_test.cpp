// SPDX-License-Identifier: MIT
//
// What the tool needs before it can start, and how it does without what is mapped later.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/apps/lumifact/sample_folder.h"
#include "tests/apps/lumifact/tool_runner.h"

namespace lumifact::tool {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// The dynamic loader lists a program's libraries instead of running it.
TEST(Start, MapsNoLibraryThatOnlySomeRunsNeed) {
  const ToolResult listed =
      runTool(ToolRun{.arguments = {}, .variables = {{"LD_TRACE_LOADED_OBJECTS", "1"}}});
  ASSERT_THAT(listed.output, HasSubstr("libc.so")) << listed.messages;
  for (const char* library : {"libicu", "libav", "libobjc", "libgnustep", "libQt"}) {
    EXPECT_THAT(listed.output, Not(HasSubstr(library)));
  }
}

TEST(Start, WithoutTheModuleOfLocalesTextsAreAmerican) {
  const SampleFolder samples;
  const ToolResult result =
      runShell("cp \"$TOOL\" " + samples.path() + "/alone && " + samples.path() +
               "/alone report --locale de_DE " + samples.plain);
  EXPECT_EQ(result.status, 0) << result.messages;
  EXPECT_EQ(result.output, runTool({"report", samples.plain}).output);
}

}  // namespace
}  // namespace lumifact::tool
