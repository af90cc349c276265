// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/command_line.h"

#include <utility>

#include "apps/lumifact/command_line/arguments.h"
#include "apps/lumifact/command_line/help_text.h"

namespace lumifact::tool {

namespace {

// Takes the command, the first of the words.
std::optional<model::Error> takeCommand(const Tool& tool, std::vector<std::string>& words,
                                        CommandLine& line) {
  if (words.empty()) return model::Error{"no command given"};
  const std::string name = std::move(words.front());
  words.erase(words.begin());
  line.command = findCommand(tool, name);
  if (line.command != nullptr) return std::nullopt;
  return model::Error{"unknown command \"" + name + "\""};
}

// Takes an option as the command has it; without a command, as any has it.
std::optional<model::Error> takeOption(const Given& given, CommandLine& line) {
  const auto isNamed = [&](const Option& option) { return option.name == given.option->name; };
  const Option* option =
      line.command == nullptr ? given.option : findOption(*line.command, isNamed);
  if (option == nullptr) return model::Error{"does not take " + given.written};
  return option->store(given, line.options);
}

// Takes everything, whatever is wrong with some of it, as help may be asked for at the end; answers
// the first thing that is wrong.
std::optional<model::Error> takeAll(const Tool& tool, Arguments given, CommandLine& line) {
  std::optional<model::Error> first = std::move(given.error);
  const auto note = [&](std::optional<model::Error> error) {
    if (!first) first = std::move(error);
  };
  note(takeCommand(tool, given.words, line));
  for (const Given& option : given.options) note(takeOption(option, line));
  line.options.words = std::move(given.words);
  if (!first) note(line.command->check(line.options));
  return first;
}

std::string usageErrorText(const Tool& tool, const Command* command, const std::string& reason) {
  const std::string see = " (see " + std::string(tool.name) + " ";
  if (command == nullptr) return reason + see + "--help)";
  const std::string name(command->name);
  return name + ": " + reason + see + name + " --help)";
}

}  // namespace

CommandLine readCommandLine(const Tool& tool, const std::vector<std::string>& arguments) {
  CommandLine line;
  const auto error = takeAll(tool, readArguments(tool, arguments), line);
  if (line.options.wantsVersion) {
    line.text = std::string(tool.name).append(" ").append(tool.version).append("\n");
  } else if (line.options.wantsHelp) {
    line.text = line.command == nullptr ? helpText(tool) : helpText(tool, *line.command);
  } else if (error) {
    line.usageError = usageErrorText(tool, line.command, error->reason);
  }
  return line;
}

}  // namespace lumifact::tool
