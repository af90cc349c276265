// SPDX-License-Identifier: MIT
//
// A command of the tool, and the tool as the commands it has: constant records. Parsing, help and
// refusals are made from them, so what is not in a record is not in the tool.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "apps/lumifact/command_line/common_options.h"
#include "apps/lumifact/command_line/option.h"

namespace lumifact::tool {

class Console;

struct Command {
  std::string_view name;
  std::string_view summary;        // for the list of all commands; no line of its own
  std::string_view usage;          // what stands behind the name; a line for each way of use
  std::string_view description;    // paragraphs, with an empty line between two
  std::string_view examples = {};  // lines of the shell
  std::span<const Option* const> options;
  // Whether the options make sense together; answers what is wrong.
  std::optional<model::Error> (*check)(const Options& options);
  // Does what checked options ask for. Results go to the console; a file that fails is reported
  // there and the others go on.
  void (*run)(const Options& options, Console& console);
};

struct Tool {
  std::string_view name;
  std::string_view version;
  std::string_view summary;
  std::string_view usage;
  std::string_view examples;
  std::string_view closing;  // paragraphs, as a command's description
  std::span<const Command* const> commands;
};

// The command of that name, or null.
const Command* findCommand(const Tool& tool, std::string_view name);

// The options that a command takes, and those that any command does, each once.
std::vector<const Option*> optionsOf(const Command& command);
std::vector<const Option*> optionsOf(const Tool& tool);

// The first option of which `isMeant` is true among those that the command takes, or any command
// does; null for none. Of the same name are only options with as many values.
template <typename Predicate>
const Option* findOption(const Command& command, const Predicate& isMeant) {
  for (const std::span<const Option* const> options :
       {command.options, std::span<const Option* const>(option::everywhere)}) {
    for (const Option* option : options) {
      if (isMeant(*option)) return option;
    }
  }
  return nullptr;
}

template <typename Predicate>
const Option* findOption(const Tool& tool, const Predicate& isMeant) {
  for (const Command* command : tool.commands) {
    if (const Option* option = findOption(*command, isMeant)) return option;
  }
  return nullptr;
}

}  // namespace lumifact::tool
