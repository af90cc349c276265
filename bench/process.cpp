// SPDX-License-Identifier: MIT
#include "bench/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

extern char** environ;

namespace bench {

Run runProcess(const std::vector<std::string>& command) {
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  std::vector<char*> pointers;
  pointers.reserve(command.size() + 1);
  for (const auto& argument : command) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  if (::posix_spawnp(&child, pointers[0], &actions, nullptr, pointers.data(), environ) != 0) {
    std::fprintf(stderr, "cannot start %s\n", command.front().c_str());
    std::exit(1);
  }
  ::posix_spawn_file_actions_destroy(&actions);
  struct rusage usage {};
  ::wait4(child, nullptr, 0, &usage);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return {.seconds = taken.count(), .peakMemory = static_cast<double>(usage.ru_maxrss) / 1024.0};
}

}  // namespace bench
