// SPDX-License-Identifier: MIT
//
// What reaches a terminal.
#include <gtest/gtest.h>

#include "foundation/terminal_text.h"
#include "tests/apps/lumifact/sample_folder.h"
#include "tests/apps/lumifact/tool_runner.h"
#include "tests/support/sample_photo.h"

namespace lumifact::tool {
namespace {

constexpr const char* hostileName = "in/\x1b]0;title\x07\n\x9b.jpg";

// A photo that tries to command the terminal by its name and by its metadata.
std::string writeHostilePhoto(const SampleFolder& samples) {
  const auto bytes =
      media::facts::sampleJpeg({.make = "evil\x1b[2J\x7f", .city = "\xe2\x80\xaemoc.elpmaxe"});
  return samples.write(hostileName, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

TEST(Terminal, SeesNoCommandsOfAFile) {
  const SampleFolder samples;
  const std::string path = writeHostilePhoto(samples);
  for (const char* command : {"report", "table", "quick-info", "caption", "properties"}) {
    std::string output = runToolOnTerminal({.arguments = {command, path}}).output;
    std::erase(output, '\r');  // the terminal's own line ends
    EXPECT_NE(output, "");
    EXPECT_EQ(output, terminalSafe(output, foundation::Keep::lineBreaks)) << command;
  }
}

TEST(Terminal, ANameStaysOnItsLine) {
  const SampleFolder samples;
  const std::string output =
      runToolOnTerminal({.arguments = {"report", writeHostilePhoto(samples)}}).output;
  EXPECT_TRUE(output.starts_with(samples.path() + "/in/\\u001b]0;title\\u0007\\u000a\\x9b.jpg\r\n"))
      << output;
  EXPECT_NE(output.find("Make = evil\\u001b[2J\\u007f"), std::string::npos) << output;
}

TEST(Terminal, AFileOrAPipeGetsTheResultsAsTheyAre) {
  const SampleFolder samples;
  const std::string path = writeHostilePhoto(samples);
  const ToolResult result = runTool({"report", path});
  EXPECT_TRUE(result.output.starts_with(path + "\n")) << result.output;
  EXPECT_NE(result.output.find("Make = evil\x1b[2J\x7f"), std::string::npos);
}

}  // namespace
}  // namespace lumifact::tool
