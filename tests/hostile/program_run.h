// SPDX-License-Identifier: MIT
//
// Runs the built programs as a shell does, and tells what they and all that they started took.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace hostile {

struct RunEnd {
  int status = -1;  // the exit status; 1000 and the signal where one ended it
  std::string output;
  std::string messages;
  // Of the program and every process that it left, each of which has ended by itself.
  long peakKilobytes = 0;       // memory of the largest
  double processorSeconds = 0;  // of all together
};

class ProgramRun {
 public:
  // Starts a line of the shell in a folder of its own, in which $TOOL is the tool, $HOST the photo
  // application without a display, $EXTENSIONS a folder for it, and $FILES the hostile files.
  // `prepare` runs in the new process before.
  explicit ProgramRun(const std::string& line, const std::function<void()>& prepare = {});
  // REQUIRES: finish() was called.
  ~ProgramRun() = default;
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  bool isRunning() const;
  // The processes that the program has started and that have become workers. Whoever stops one
  // before stops the program too, which waits for it.
  std::vector<pid_t> workers() const;
  RunEnd finish();

 private:
  support::TemporaryFolder _folder;
  pid_t _process = 0;
};

RunEnd runLine(const std::string& line);

// The part of a line that runs a script of the photo application over a folder; texts in the script
// stand in double quotes.
std::string showing(const std::string& library, const std::string& script);

// A file made by make_hostile_files, or a folder of them.
std::string hostileFile(const std::string& name);

// The names in a folder, sorted.
std::vector<std::string> namesIn(const std::string& folder);

std::vector<std::string> linesOf(const std::string& text);

}  // namespace hostile
