// SPDX-License-Identifier: MIT
//
// Where results and messages go: standard output, buffered, and standard error.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace lumifact::tool {

// How a run ends; the numbers are the process's exit status.
enum class ExitStatus { done = 0, failed = 1, wrongUsage = 2 };

// Results and messages of one run. Used from one thread.
class Console {
 public:
  // File descriptors, borrowed; by default the process's own.
  explicit Console(int results = 1, int messages = 2);
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  // Whether results are seen on a terminal; what a file says must then be made safe.
  bool resultsAreOnTerminal() const { return _resultsAreOnTerminal; }
  // Whether a status line has a place: messages on a terminal, results elsewhere.
  bool canShowStatus() const { return _canShowStatus; }

  // Writes a result. It is ignored once results cannot be written any more.
  void write(std::string_view text);
  // Hands everything written so far to whoever reads it.
  void flush();
  // False once the reader is gone (which is no failure) or writing failed (which is one, and has
  // been reported): nothing more needs doing.
  bool isOpen() const { return _isOpen; }

  // Reports a failure: "lumifact: reason", or "lumifact: FILE: reason", always safe.
  void fail(std::string_view reason);
  void fail(std::string_view file, std::string_view reason);
  // Tells what does not change how the run ends, in the same form.
  void note(std::string_view text) { report(text); }
  void note(std::string_view file, std::string_view text);
  // Counts as a failure what the results themselves tell.
  void noteFailure() { _status = std::max(_status, ExitStatus::failed); }
  // Reports that the command line asks for something that does not exist.
  void failUsage(std::string_view reason);

  ExitStatus status() const { return _status; }

  // Shows a line that the next one or the next message replaces; empty for none.
  void showStatus(std::string_view line);

 private:
  void report(std::string_view reason);
  void writeMessage(const std::string& text) const;

  int _results;
  int _messages;
  bool _resultsAreOnTerminal;
  bool _canShowStatus;
  bool _isOpen = true;
  ExitStatus _status = ExitStatus::done;
  bool _statusIsShown = false;
  std::string _buffer;
};

}  // namespace lumifact::tool
