// SPDX-License-Identifier: MIT
//
// Whether a worker that has an order gets on with it. No clock on the wall is asked: a loaded
// machine, a slow disk or a suspended one make a worker late, and late is no fault.
#pragma once

#include <sys/types.h>

#include <chrono>

namespace workers {

class WorkerWatch {
 public:
  enum class Finding {
    atWork,  // it computes, waits for a processor or for a disk, or began to sleep just now
    spent,   // it has had the processor for as long as it may
    asleep,  // it waits for nothing that can come
  };

  // How often look() is to be called. Rarely enough to cost nothing.
  static constexpr std::chrono::milliseconds interval{20};
  // How often in a row a worker may be seen asleep: ten seconds' worth. Some file systems put to
  // sleep whoever waits for them.
  static constexpr int sleepyLooks = 500;

  WorkerWatch() = default;
  // From now on the process may have the processor for so long. The system ends it a second or two
  // after that by itself, should nobody look.
  WorkerWatch(pid_t process, std::chrono::nanoseconds processorTime, int looks = sleepyLooks);

  Finding look();

 private:
  pid_t _process = 0;
  std::chrono::nanoseconds _end{};   // of the process's processor time
  std::chrono::nanoseconds _seen{};  // its processor time when it was looked at last
  int _looks = sleepyLooks;
  int _asleep = 0;  // looks in a row
};

// How long a process has had the processor; zero where it has ended.
std::chrono::nanoseconds processorTimeOf(pid_t process);

// Whether every thread of the process sleeps or was stopped. One that waits for a disk does not
// sleep.
bool isAsleep(pid_t process);

}  // namespace workers
