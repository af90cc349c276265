// SPDX-License-Identifier: MIT
//
// What the records of the commands say is what the tool does: each row is tried with each command.
#include "apps/lumifact/commands/commands.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "apps/lumifact/command_line/command_line.h"
#include "apps/lumifact/command_line/help_text.h"
#include "tests/apps/lumifact/tool_runner.h"

namespace lumifact::tool {
namespace {

using Words = std::vector<std::string>;

// Something that an option takes, by what its row says stands behind it.
Words valuesFor(const Option& option) {
  static const std::map<std::string_view, Words> values = {
      {"", {}},          {"FILE", {"x"}}, {"FOLDER", {"x"}},     {"LIST", {"x"}},
      {"NAME", {"UTC"}}, {"N", {"1"}},    {"LAT,LON", {"-1,2"}}, {"LAT LON", {"-1", "2"}}};
  if (option.name == "locale") return {"de_DE"};
  const auto found = values.find(option.values);
  EXPECT_NE(found, values.end()) << option.name << " takes " << option.values;
  return found == values.end() ? Words() : found->second;
}

// Words with which the command makes sense beside the option.
Words wordsFor(const Command& command, const Option& option) {
  const std::string_view name = option.name;
  if (name == "coordinates" || name == "location") return {};
  if (name == "null") return {"--files-from", "x"};
  if (name == "unset") return {"set", "fontSize"};
  if (&command == &parseCommand) return {"image"};
  if (&command == &browseCommand || &command == &settingsCommand) return {};
  return {"x"};
}

bool takes(const Command& command, const Option& option) {
  return findOption(command, [&](const Option& taken) { return &taken == &option; }) != nullptr;
}

// The ways in which an option may be written.
Words waysToWrite(const Option& option) {
  Words ways{"--" + std::string(option.name)};
  if (option.letter != '\0') ways.push_back(std::string("-") + option.letter);
  return ways;
}

Words lineWith(const Command& command, const Option& option, const std::string& written) {
  Words line{std::string(command.name), written};
  for (const Words& more : {valuesFor(option), wordsFor(command, option)})
    line.insert(line.end(), more.begin(), more.end());
  return line;
}

std::string refusal(const Command& command, const std::string& written) {
  const std::string name(command.name);
  return name + ": does not take " + written + " (see lumifact " + name + " --help)";
}

template <typename Function>
void forEachCommandAndOption(const Function& function) {
  for (const Command* command : lumifactTool.commands) {
    for (const Option* option : optionsOf(lumifactTool)) function(*command, *option);
  }
}

TEST(Commands, TakeEachOptionOfTheirRecord) {
  forEachCommandAndOption([](const Command& command, const Option& option) {
    if (!takes(command, option)) return;
    for (const std::string& written : waysToWrite(option)) {
      const CommandLine line = readCommandLine(lumifactTool, lineWith(command, option, written));
      EXPECT_EQ(line.usageError, "") << command.name << " " << written;
      EXPECT_EQ(line.command, &command);
    }
  });
}

TEST(Commands, RefuseEveryOtherOption) {
  forEachCommandAndOption([](const Command& command, const Option& option) {
    if (takes(command, option)) return;
    for (const std::string& written : waysToWrite(option)) {
      const CommandLine line = readCommandLine(lumifactTool, lineWith(command, option, written));
      EXPECT_EQ(line.usageError, refusal(command, written));
    }
  });
}

TEST(Commands, TheToolItselfRefusesWithStatusTwo) {
  for (const Command* command : lumifactTool.commands) {
    for (const Option* option : optionsOf(lumifactTool)) {
      if (takes(*command, *option)) continue;
      const std::string written = "--" + std::string(option->name);
      const ToolResult result = runTool(lineWith(*command, *option, written));
      EXPECT_EQ(result.status, 2);
      EXPECT_EQ(result.output, "");
      EXPECT_EQ(result.messages, "lumifact: " + refusal(*command, written) + "\n");
      break;  // one for each command
    }
  }
}

// What the lines of the help begin with that tell of options.
std::set<std::string> optionsToldIn(const std::string& help) {
  std::set<std::string> told;
  for (const std::string& line : linesOf(help)) {
    const std::size_t start = line.find("--");
    if (start == 6 && line.starts_with("  "))
      told.insert(line.substr(start, line.find(' ', start) - start));
  }
  return told;
}

std::set<std::string> namesOf(const std::vector<const Option*>& options) {
  std::set<std::string> names;
  for (const Option* option : options) names.insert("--" + std::string(option->name));
  return names;
}

TEST(Commands, TellOfTheirOptionsAndNoOthers) {
  for (const Command* command : lumifactTool.commands) {
    const std::string help = helpText(lumifactTool, *command);
    EXPECT_TRUE(help.starts_with("Usage: lumifact " + std::string(command->name) + " "));
    EXPECT_EQ(optionsToldIn(help), namesOf(optionsOf(*command))) << command->name;
  }
}

TEST(Commands, TheToolTellsOfThemAllAndOfTheOptionsThatSeveralTake) {
  const std::string help = helpText(lumifactTool);
  for (const Command* command : lumifactTool.commands) {
    EXPECT_NE(help.find("\n  " + std::string(command->name) + " "), std::string::npos)
        << command->name;
    EXPECT_NE(help.find(command->summary), std::string::npos) << command->name;
  }
  std::vector<const Option*> common;
  for (const Option* option : optionsOf(lumifactTool)) {
    if (option->section != Section::own) common.push_back(option);
  }
  EXPECT_EQ(optionsToldIn(help), namesOf(common));
}

TEST(Commands, HelpFitsAnOrdinaryTerminal) {
  std::vector<std::string> texts{helpText(lumifactTool)};
  for (const Command* command : lumifactTool.commands)
    texts.push_back(helpText(lumifactTool, *command));
  for (const std::string& text : texts) {
    EXPECT_TRUE(text.ends_with("\n"));
    for (const std::string& line : linesOf(text)) {
      EXPECT_LE(line.size(), 80U) << line;
      EXPECT_FALSE(line.ends_with(' ')) << line;
      for (const char letter : line) EXPECT_TRUE(letter >= ' ' && letter <= '~') << line;
    }
  }
}

// An option is looked up before the command is known.
TEST(Commands, OptionsOfOneNameHaveOneLetterAndAsManyValues) {
  const auto options = optionsOf(lumifactTool);
  for (const Option* option : options) {
    for (const Option* other : options) {
      const bool isSameName = option->name == other->name;
      if (isSameName) {
        EXPECT_EQ(valueCount(*option), valueCount(*other)) << option->name;
      }
      if (option->letter != '\0') {
        EXPECT_EQ(option->letter == other->letter, isSameName) << option->name << other->name;
      }
    }
  }
}

}  // namespace
}  // namespace lumifact::tool
