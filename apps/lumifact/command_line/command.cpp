// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/command.h"

#include <algorithm>

namespace lumifact::tool {

const Command* findCommand(const Tool& tool, std::string_view name) {
  const auto found = std::ranges::find(tool.commands, name, &Command::name);
  return found == tool.commands.end() ? nullptr : *found;
}

std::vector<const Option*> optionsOf(const Command& command) {
  std::vector<const Option*> options(command.options.begin(), command.options.end());
  options.insert(options.end(), option::everywhere.begin(), option::everywhere.end());
  return options;
}

std::vector<const Option*> optionsOf(const Tool& tool) {
  std::vector<const Option*> options;
  for (const Command* command : tool.commands) {
    for (const Option* option : optionsOf(*command)) {
      if (std::ranges::find(options, option) == options.end()) options.push_back(option);
    }
  }
  return options;
}

}  // namespace lumifact::tool
