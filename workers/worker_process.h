// SPDX-License-Identifier: MIT
//
// One worker process, as the program that started it sees it.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "io/descriptor.h"
#include "model/result.h"

namespace workers {

// Where a worker finds what it was given.
inline constexpr int socketOfWorker = 3;  // to the program that started it
inline constexpr int frameOfWorker = 4;   // a file without a name, for answers that are large

// Whether a worker is given a frame.
enum class Frame { none, given };

class WorkerProcess {
 public:
  WorkerProcess() = default;
  // Ends the process.
  ~WorkerProcess() { stop(); }
  WorkerProcess(WorkerProcess&& other) noexcept;
  WorkerProcess& operator=(WorkerProcess&& other) noexcept;

  // Starts the command, its first word a path, with its socket and its frame, its standard streams
  // at /dev/null, an empty environment, and nothing else of this process's. None on success; an
  // error says what the system says. REQUIRES: it is not running.
  std::optional<model::Error> start(const std::vector<std::string>& command, Frame frame);
  // Kills the process, if there is one, and waits for its end.
  void stop();

  bool isRunning() const { return _process > 0; }
  // 0 where there is none.
  pid_t number() const { return _process; }
  // Readable when it says something, and when it has ended.
  int socket() const { return _socket.number(); }
  // What the worker wrote: read by position and never mapped, since the worker may cut it
  // meanwhile. -1 without one.
  int frame() const { return _frame.number(); }
  // Gives the memory of the frame back.
  void emptyFrame() const;

 private:
  pid_t _process = 0;
  io::Descriptor _socket;
  io::Descriptor _frame;
};

}  // namespace workers
