// SPDX-License-Identifier: MIT
#include "apps/lumifact/terminal/console.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "foundation/terminal_text.h"

namespace lumifact::tool {

namespace {

constexpr std::size_t bufferSize = std::size_t{64} * 1024;  // bytes

// Writes it all. Returns 0 or the system's error.
int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(descriptor, text.data(), text.size());
    if (count >= 0) {
      text.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno == EAGAIN) {
      pollfd writable{.fd = descriptor, .events = POLLOUT, .revents = 0};
      ::poll(&writable, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

bool isTerminal(int descriptor) {
  return ::isatty(descriptor) == 1;
}

// A terminal that cannot erase a line says so.
bool terminalIsDumb() {
  const char* name = std::getenv("TERM");
  return name == nullptr || std::strcmp(name, "dumb") == 0;
}

}  // namespace

Console::Console(int results, int messages)
    : _results(results),
      _messages(messages),
      _resultsAreOnTerminal(isTerminal(results)),
      _canShowStatus(!_resultsAreOnTerminal && isTerminal(messages) && !terminalIsDumb()) {
  _buffer.reserve(bufferSize);
}

Console::~Console() {
  showStatus({});
  flush();
}

void Console::write(std::string_view text) {
  if (!_isOpen) return;
  _buffer += text;
  if (_resultsAreOnTerminal || _buffer.size() >= bufferSize) flush();
}

void Console::flush() {
  if (!_isOpen || _buffer.empty()) return;
  const int error = writeAll(_results, _buffer);
  _buffer.clear();
  if (error == 0) return;
  _isOpen = false;
  if (error != EPIPE) fail("standard output", std::generic_category().message(error));
}

void Console::fail(std::string_view reason) {
  noteFailure();
  report(reason);
}

void Console::failUsage(std::string_view reason) {
  _status = ExitStatus::wrongUsage;
  report(reason);
}

void Console::report(std::string_view reason) {
  flush();  // so that results and messages stand in their order where both are seen
  showStatus({});
  writeMessage("lumifact: " + terminalSafe(reason, foundation::Keep::nothing) + "\n");
}

void Console::fail(std::string_view file, std::string_view reason) {
  fail(std::string(file).append(": ").append(reason));
}

void Console::note(std::string_view file, std::string_view text) {
  report(std::string(file).append(": ").append(text));
}

void Console::showStatus(std::string_view line) {
  if (!_statusIsShown && line.empty()) return;
  _statusIsShown = !line.empty();
  writeMessage("\r\x1b[K" + std::string(line));
}

void Console::writeMessage(const std::string& text) const {
  // Nobody is left to tell where this fails.
  writeAll(_messages, text);
}

}  // namespace lumifact::tool
