// SPDX-License-Identifier: MIT
#include "tests/apps/lumifact/tool_runner.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <sstream>

#include "tests/support/kept_seed.h"
#include "tests/support/temporary_folder.h"

namespace lumifact::tool {

namespace {

using support::contentsOf;
using support::TemporaryFolder;

struct Descriptors {
  int input = -1;
  int output = -1;
  int messages = -1;
};

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

[[noreturn]] void execute(const std::vector<std::string>& command, const ToolRun& run,
                          const std::string& home, const Descriptors& descriptors) {
  ::dup2(descriptors.input, STDIN_FILENO);
  ::dup2(descriptors.output, STDOUT_FILENO);
  ::dup2(descriptors.messages, STDERR_FILENO);
  std::vector<std::string> environment;
  for (const auto& [name, value] : run.variables) {
    environment.push_back(std::string(name).append("=").append(value));
  }
  // Of a variable that is there twice the first counts.
  environment.insert(environment.end(), {"TZ=UTC", "HOME=" + home, "PATH=/usr/bin:/bin",
                                         "TERM=xterm", std::string("TOOL=") + TOOL_PATH});
  std::vector<std::string> words = command;
  if (::chdir(run.folder.c_str()) == 0) {
    ::execve(words[0].c_str(), pointersTo(words).data(), pointersTo(environment).data());
  }
  ::_exit(127);
}

int statusOf(pid_t process) {
  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

ToolResult runCommand(const std::vector<std::string>& command, const ToolRun& run) {
  support::keepSeed(run.input);
  const TemporaryFolder folder;
  const Descriptors descriptors{
      .input = ::open(folder.write("input", run.input).c_str(), O_RDONLY | O_CLOEXEC),
      .output = ::open(folder.file("output").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600),
      .messages = ::open(folder.file("messages").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600)};
  const pid_t process = ::fork();
  if (process == 0) execute(command, run, folder.path(), descriptors);
  ToolResult result;
  result.status = statusOf(process);
  for (const int descriptor : {descriptors.input, descriptors.output, descriptors.messages}) {
    ::close(descriptor);
  }
  result.output = contentsOf(folder.file("output"));
  result.messages = contentsOf(folder.file("messages"));
  return result;
}

std::vector<std::string> commandOf(const ToolRun& run) {
  std::vector<std::string> command{TOOL_PATH};
  command.insert(command.end(), run.arguments.begin(), run.arguments.end());
  return command;
}

// Everything that the other end writes until it is closed.
std::string drained(int terminal) {
  std::string text;
  std::array<char, 4096> part{};
  for (;;) {
    const ssize_t count = ::read(terminal, part.data(), part.size());
    if (count <= 0) return text;
    text.append(part.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace

ToolResult runTool(const ToolRun& run) {
  return runCommand(commandOf(run), run);
}

ToolResult runTool(const std::vector<std::string>& arguments) {
  return runTool(ToolRun{.arguments = arguments});
}

ToolResult runToolOnTerminal(const ToolRun& run) {
  const TemporaryFolder folder;
  int terminal = -1;
  const pid_t process = ::forkpty(&terminal, nullptr, nullptr, nullptr);
  if (process == 0) {
    execute(commandOf(run), run, folder.path(), {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO});
  }
  ToolResult result;
  result.output = drained(terminal);
  result.status = statusOf(process);
  ::close(terminal);
  return result;
}

ToolResult runShell(const std::string& line) {
  return runCommand({"/bin/sh", "-c", line}, {.arguments = {}});
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace lumifact::tool
