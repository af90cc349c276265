// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "foundation/property_lists/property_list.h"
#include "tests/apps/lumifact/tool_runner.h"
#include "tests/support/temporary_folder.h"

namespace lumifact::tool {
namespace {

using support::TemporaryFolder;

TEST(Parse, AnswersEveryLine) {
  const ToolResult result = runTool(
      ToolRun{.arguments = {"parse", "image"}, .input = "{\"Depth\": 8}\n{\"Depth\": 8.0}"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, R"({"text":"\nDepth = 8","table":{"Depth":8},"coordinates":null})"
                           "\n"
                           R"({"text":"\nDepth = 8","table":{"Depth":8.0},"coordinates":null})"
                           "\n");
}

TEST(Parse, ALineThatCannotBeReadIsAnsweredAndTheRestGoesOn) {
  const ToolResult result =
      runTool(ToolRun{.arguments = {"parse", "video"}, .input = "nonsense\n\nnull\n5\nnull\n"});
  const auto lines = linesOf(result.output);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_TRUE(lines[0].starts_with(R"({"error":"parse error)")) << lines[0];
  EXPECT_TRUE(lines[1].starts_with(R"({"error":"parse error)")) << lines[1];
  EXPECT_EQ(lines[2], R"({"text":"","coordinates":null})");
  EXPECT_EQ(lines[3], R"({"error":"asset is no object"})");
  EXPECT_EQ(lines[4], lines[2]);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.messages, "");
}

TEST(Parse, NoInputHasNoAnswer) {
  const ToolResult result = runTool({"parse", "image"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "");
}

TEST(Parse, ALineThatIsTooLongIsAnsweredAndTheRestGoesOn) {
  const ToolResult result = runTool(
      ToolRun{.arguments = {"parse", "video"}, .input = std::string(17 << 20, ' ') + "null\nnull"});
  EXPECT_EQ(result.output, "{\"error\":\"line too long\"}\n{\"text\":\"\",\"coordinates\":null}\n");
}

TEST(Parse, AnswersBeforeItWaitsForMore) {
  const ToolResult result = runShell(
      "dir=$(mktemp -d) && mkfifo $dir/in $dir/out && { $TOOL parse video <$dir/in >$dir/out & } &&"
      " exec 3>$dir/in 4<$dir/out && echo null >&3 && read line <&4 && echo \"$line\";"
      " exec 3>&-; wait; rm -r $dir");
  EXPECT_EQ(result.output, "{\"text\":\"\",\"coordinates\":null}\n");
}

TEST(Parse, ReadsAPropertyList) {
  const TemporaryFolder folder;
  for (const auto format :
       {foundation::PropertyListFormat::xml, foundation::PropertyListFormat::binary}) {
    const auto bytes = foundation::serializePropertyList(
        model::Dictionary{{"Orientation", 3}, {"Width", 72.5}}, format);
    ASSERT_TRUE(bytes);
    const ToolResult result =
        runTool({"parse", "image", "--plist", folder.write("list.plist", *bytes)});
    EXPECT_EQ(result.output,
              "{\"text\":\"\\nOrientation = 0° - Landscape (3)\\nWidth = 72.5\","
              "\"table\":{\"Orientation\":\"0° - Landscape (3)\",\"Width\":72.5},"
              "\"coordinates\":null}\n");
  }
  const ToolResult missing = runTool({"parse", "image", "--plist", folder.file("none")});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.messages, "lumifact: " + folder.file("none") + ": No such file or directory\n");
}

}  // namespace
}  // namespace lumifact::tool
