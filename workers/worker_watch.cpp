// SPDX-License-Identifier: MIT
#include "workers/worker_watch.h"

#include <sys/resource.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace workers {

namespace {

using std::chrono::nanoseconds;

// The letter of a thread's state: proc(5), /proc/pid/stat, the first field behind its name.
char stateOf(const std::filesystem::path& thread) {
  std::ifstream file(thread / "stat");
  std::string line;
  std::getline(file, line);
  const std::size_t nameEnd = line.rfind(')');
  return nameEnd == std::string::npos || nameEnd + 2 >= line.size() ? '?' : line[nameEnd + 2];
}

// The system counts whole seconds.
void limitProcessorTime(pid_t process, nanoseconds end) {
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(end).count() + 1;
  const rlimit limit{static_cast<rlim_t>(seconds), RLIM_INFINITY};
  prlimit(process, RLIMIT_CPU, &limit, nullptr);
}

}  // namespace

nanoseconds processorTimeOf(pid_t process) {
  clockid_t clock{};
  timespec time{};
  if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) return {};
  return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

bool isAsleep(pid_t process) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path threads = "/proc/" + std::to_string(process) + "/task";
  for (fs::directory_iterator thread(threads, error), end; !error && thread != end;
       thread.increment(error)) {
    constexpr std::string_view sleeping = "STt";
    if (sleeping.find(stateOf(thread->path())) == std::string_view::npos) return false;
  }
  return !error;
}

WorkerWatch::WorkerWatch(pid_t process, nanoseconds processorTime, int looks)
    : _process(process),
      _end(processorTimeOf(process) + processorTime),
      _seen(processorTimeOf(process)),
      _looks(looks) {
  limitProcessorTime(process, _end);
}

WorkerWatch::Finding WorkerWatch::look() {
  const nanoseconds now = processorTimeOf(_process);
  if (now > _end) return Finding::spent;
  const bool hasRun = now != _seen;
  _seen = now;
  _asleep = !hasRun && isAsleep(_process) ? _asleep + 1 : 0;
  return _asleep >= _looks ? Finding::asleep : Finding::atWork;
}

}  // namespace workers
