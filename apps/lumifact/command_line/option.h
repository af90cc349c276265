// SPDX-License-Identifier: MIT
//
// An option of the command line: one constant row, which parsing, help and refusals read.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/lumifact/command_line/options.h"
#include "model/result.h"

namespace lumifact::tool {

struct Given;

// Puts what was given into the options of a run, or answers what is wrong with it; made by
// option_store.h.
using Store = std::optional<model::Error> (*)(const Given& given, Options& options);

// The title under which the help shows an option.
enum class Section { own, files, settings, general };

struct Option {
  Section section = Section::own;
  char letter = '\0';            // of "-j"; zero for none
  std::string_view name;         // of "--jobs"
  std::string_view values = {};  // what stands behind it, a word a value; empty for a flag
  std::string_view help;         // a line break stays, what is longer than a line is wrapped
  Store store;
};

// How many values stand behind the option.
constexpr std::size_t valueCount(const Option& option) {
  if (option.values.empty()) return 0;
  return 1 + static_cast<std::size_t>(std::ranges::count(option.values, ' '));
}

// An option as it stands on a command line.
struct Given {
  const Option* option;
  std::string written;              // "--jobs" or "-j"
  std::vector<std::string> values;  // as many as valueCount says
};

}  // namespace lumifact::tool
