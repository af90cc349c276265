// SPDX-License-Identifier: MIT
//
// Runs scripts: a command a line, on the virtual clock.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "desktop/script/finger.h"
#include "desktop/script/script_line.h"

namespace desktop::script {

class ScriptRunner {
 public:
  using Arguments = std::span<const Word>;  // what stands behind the command's name
  using Outcome = std::optional<model::Error>;
  using Command = std::function<Outcome(Arguments)>;

  // A runner that knows no commands.
  ScriptRunner() = default;
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  // What a line that begins with this word does; the last that was added counts. A command that is
  // not the application's matter can be handed on to the one that was there before.
  void add(std::string name, Command command);
  // The command of this name so far; empty where there is none.
  Command command(std::string_view name) const;

  // Called before every line and after it: the application's own chores.
  std::function<void()> turn;

  // For the commands: there is one on the screen.
  Finger finger;

  // Runs one line. An error tells what is wrong without naming the line.
  Outcome runLine(std::string_view line);
  // Runs a whole script and stops at the first error, which begins with "NAME:LINE: ".
  Outcome runText(std::string_view text, std::string_view name);
  // Runs a file, or standard input for "-".
  Outcome runFile(const std::string& path);

 private:
  std::map<std::string, Command, std::less<>> _commands;
};

// Lets what is moving come to rest, as a user would wait for it: at most two seconds.
void settle();

// The commands that every application has.
void addTouchCommands(
    ScriptRunner& runner);  // tap, long-press, slide, touch-..., menu, type, scroll, wait
void addScreenCommands(ScriptRunner& runner);  // dump, screenshot, expect, expect-not

}  // namespace desktop::script
