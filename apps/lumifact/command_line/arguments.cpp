// SPDX-License-Identifier: MIT
//
// Which options there are is all that is asked of the tool here, not which of them the command at
// hand takes: so an option may stand before the command, and one that the command does not take is
// still known, with its values, when it is refused.
#include "apps/lumifact/command_line/arguments.h"

#include <string_view>
#include <utility>

namespace lumifact::tool {

namespace {

// "-5", "-.5x"
bool beginsLikeNumber(std::string_view argument) {
  return argument.size() > 1 && argument[0] == '-' &&
         (argument[1] == '.' || (argument[1] >= '0' && argument[1] <= '9'));
}

class ArgumentReader {
 public:
  ArgumentReader(const Tool& tool, const std::vector<std::string>& arguments)
      : _tool(tool), _next(arguments.begin()), _end(arguments.end()) {}

  Arguments read() {
    while (_next != _end) {
      const std::string& argument = *_next++;
      if (argument == "--") {
        _read.words.insert(_read.words.end(), _next, _end);
        break;
      }
      if (!isOption(argument)) {
        _read.words.push_back(argument);
      } else if (argument.starts_with("--")) {
        readName(argument);
      } else {
        readLetters(argument);
      }
    }
    return std::move(_read);
  }

 private:
  const Option* optionOfName(std::string_view name) const {
    return findOption(_tool, [&](const Option& option) { return option.name == name; });
  }
  const Option* optionOfLetter(char letter) const {
    return findOption(_tool, [&](const Option& option) { return option.letter == letter; });
  }

  // Whether an argument reads as letters, the last one perhaps with its value.
  bool isLetters(std::string_view argument) const {
    for (const char letter : argument.substr(1)) {
      const Option* option = optionOfLetter(letter);
      if (option == nullptr) return false;
      if (valueCount(*option) > 0) return true;
    }
    return true;
  }
  bool isOption(std::string_view argument) const {
    if (argument.size() < 2 || argument[0] != '-') return false;
    return !beginsLikeNumber(argument) || isLetters(argument);
  }

  void fail(std::string reason) {
    if (!_read.error) _read.error = model::Error{std::move(reason)};
  }
  void failUnknown(const std::string& argument) { fail("unknown option \"" + argument + "\""); }

  void readName(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    Given given{.option = optionOfName(std::string_view(argument).substr(2, equals - 2)),
                .written = argument.substr(0, equals),
                .values = {}};
    if (given.option == nullptr) return failUnknown(argument);
    if (equals != std::string::npos) {
      if (valueCount(*given.option) == 0) return fail(given.written + " takes no value");
      given.values.push_back(argument.substr(equals + 1));
    }
    add(std::move(given));
  }

  void readLetters(const std::string& argument) {
    for (std::size_t index = 1; index < argument.size(); ++index) {
      Given given{.option = optionOfLetter(argument[index]),
                  .written = std::string("-") + argument[index],
                  .values = {}};
      if (given.option == nullptr) return failUnknown(argument);
      const bool takesRest = valueCount(*given.option) > 0;
      if (takesRest && index + 1 < argument.size())
        given.values.push_back(argument.substr(index + 1));
      add(std::move(given));
      if (takesRest) return;
    }
  }

  // Adds an option with the values that are still missing.
  void add(Given given) {
    const Option& option = *given.option;
    while (given.values.size() < valueCount(option)) {
      if (_next == _end) return fail(given.written + " takes " + std::string(option.values));
      given.values.push_back(*_next++);
    }
    _read.options.push_back(std::move(given));
  }

  const Tool& _tool;
  std::vector<std::string>::const_iterator _next;
  std::vector<std::string>::const_iterator _end;
  Arguments _read;
};

}  // namespace

Arguments readArguments(const Tool& tool, const std::vector<std::string>& arguments) {
  return ArgumentReader(tool, arguments).read();
}

}  // namespace lumifact::tool
