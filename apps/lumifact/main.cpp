// SPDX-License-Identifier: MIT
//
// The command-line tool: reads its arguments, runs the command and tells how it went.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <exception>
#include <string>
#include <vector>

#include "apps/lumifact/command_line/command_line.h"
#include "apps/lumifact/command_line/time_zone.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/terminal/console.h"
#include "io/on_demand_module.h"
#include "workers/greeting.h"

namespace {

using lumifact::tool::CommandLine;
using lumifact::tool::Console;
using lumifact::tool::ExitStatus;

// A standard descriptor that the caller closed would be given to the first file that is opened.
// What takes its place can be read (nothing is in it) and fails to be written.
void openStandardDescriptors() {
  int descriptor = 0;
  do {
    descriptor = ::open("/dev/null", O_RDONLY);
  } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
  if (descriptor >= 0) ::close(descriptor);
}

ExitStatus run(const std::vector<std::string>& arguments) {
  Console console;
  const CommandLine line = lumifact::tool::readCommandLine(lumifact::tool::lumifactTool, arguments);
  if (!line.usageError.empty()) {
    console.failUsage(line.usageError);
  } else if (!line.text.empty()) {
    console.write(line.text);
  } else {
    if (line.options.timeZone) lumifact::tool::setTimeZone(*line.options.timeZone);
    line.command->run(line.options, console);
    for (const std::string& problem : io::takeModuleProblems()) console.note(problem);
    if (const auto refused = workers::takeRefusedProtections())
      console.note("readers of other containers", "this system refuses them: " + *refused);
  }
  console.flush();
  return console.status();
}

}  // namespace

int main(int count, char** arguments) {
  // A reader that goes away and a file that may not grow are seen by the write that fails.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  openStandardDescriptors();
  try {
    return static_cast<int>(run({arguments + 1, arguments + count}));
  } catch (const std::exception& exception) {
    Console().fail(exception.what());
    return static_cast<int>(ExitStatus::failed);
  }
}
