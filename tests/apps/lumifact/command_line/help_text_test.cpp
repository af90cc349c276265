// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/help_text.h"

#include <gtest/gtest.h>

#include "apps/lumifact/command_line/command_line.h"
#include "model/utf8.h"
#include "tests/apps/lumifact/tool_runner.h"

namespace lumifact::tool {
namespace {

constexpr const char* commands[] = {"report", "properties", "table", "quick-info", "caption",
                                    "size",   "map-link",   "parse", "browse",     "settings"};

// Every option with an argument that it takes; the command that it belongs to, or all.
struct OptionCase {
  const char* command;
  std::vector<std::string> words;
};

const OptionCase optionCases[] = {
    {"", {"--recursive"}},
    {"", {"-r"}},
    {"", {"--files-from", "-"}},
    {"", {"--jobs", "2"}},
    {"", {"-j", "2"}},
    {"", {"--settings", "x"}},
    {"", {"--map-type", "1"}},
    {"", {"--map-zoom", "1.5"}},
    {"", {"--map-view", "-1"}},
    {"", {"--locale", "de_DE"}},
    {"", {"--time-zone", "UTC"}},
    {"", {"--root", "x"}},
    {"report", {"--json"}},
    {"quick-info", {"--compact"}},
    {"caption", {"--display", "3"}},
    {"parse", {"--plist", "x"}},
    {"map-link", {"--coordinates", "-1,2"}},
    {"map-link", {"--location", "-1", "2.5"}},
};

TEST(HelpText, FitsAnOrdinaryTerminal) {
  std::vector<std::string> texts{helpText("")};
  for (const char* command : commands) texts.push_back(helpText(command));
  for (const std::string& text : texts) {
    EXPECT_TRUE(text.ends_with("\n"));
    for (const std::string& line : linesOf(text)) EXPECT_LE(line.size(), 80U) << line;
  }
}

TEST(HelpText, OfTheToolNamesEveryCommand) {
  for (const char* command : commands) {
    EXPECT_NE(helpText("").find(std::string("\n  ") + command + " "), std::string::npos) << command;
    EXPECT_TRUE(helpText(command).starts_with(std::string("Usage: lumifact ") + command))
        << command;
  }
}

TEST(HelpText, TellsOfEveryOptionThatIsUnderstood) {
  for (const OptionCase& item : optionCases) {
    const bool isCommon = *item.command == '\0';
    const std::string command = isCommon ? "report" : item.command;
    EXPECT_NE(helpText(command).find(item.words[0]), std::string::npos) << item.words[0];
    if (isCommon) {
      EXPECT_NE(helpText("").find(item.words[0]), std::string::npos) << item.words[0];
    }
    std::vector<std::string> arguments{command};
    arguments.insert(arguments.end(), item.words.begin(), item.words.end());
    const std::string error = readCommandLine(arguments).usageError;
    EXPECT_EQ(error.find("unknown"), std::string::npos) << item.words[0] << ": " << error;
  }
}

}  // namespace
}  // namespace lumifact::tool
