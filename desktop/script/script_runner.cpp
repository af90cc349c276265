// SPDX-License-Identifier: MIT
#include "desktop/script/script_runner.h"

#include <fstream>
#include <iostream>
#include <sstream>

#include "bridge/runtime/autorelease_pool.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::script {

void ScriptRunner::add(std::string name, Command command) {
  _commands[std::move(name)] = std::move(command);
}

ScriptRunner::Command ScriptRunner::command(std::string_view name) const {
  const auto found = _commands.find(name);
  return found == _commands.end() ? Command() : found->second;
}

ScriptRunner::Outcome ScriptRunner::runLine(std::string_view line) {
  const AutoreleasePool pool;
  const auto words = wordsOf(line);
  if (!words) return words.error();
  if (words->empty()) return std::nullopt;
  const Command found = command(words->front().text);
  if (!found) return model::Error{"unknown command '" + words->front().text + "'"};
  if (turn) turn();
  Outcome outcome = found(Arguments(*words).subspan(1));
  if (turn) turn();
  return outcome;
}

ScriptRunner::Outcome ScriptRunner::runText(std::string_view text, std::string_view name) {
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    ++number;
    if (const Outcome failed = runLine(line))
      return model::Error{std::string(name) + ":" + std::to_string(number) + ": " + failed->reason};
  }
  return std::nullopt;
}

ScriptRunner::Outcome ScriptRunner::runFile(const std::string& path) {
  std::ostringstream text;
  if (path == "-") {
    text << std::cin.rdbuf();
    return runText(text.str(), "standard input");
  }
  std::ifstream file(path);
  if (!file || !(text << file.rdbuf())) return model::Error{path + ": cannot be read"};
  file.close();
  return runText(text.str(), path);
}

void settle() {
  constexpr uikit::Seconds longest = 2;
  constexpr uikit::Seconds step = 0.05;
  uikit::application().prepareFrame();
  for (uikit::Seconds waited = 0; waited < longest && !uikit::animator().isIdle(); waited += step)
    uikit::application().advance(step);
}

}  // namespace desktop::script
