// SPDX-License-Identifier: MIT
//
// One worker process, as the loader's thread sees it.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "desktop/pictures/workers/decoder_messages.h"

namespace desktop::pictures {

class WorkerProcess {
 public:
  WorkerProcess() = default;
  // Ends the process.
  ~WorkerProcess() { stop(); }
  WorkerProcess(WorkerProcess&& other) noexcept;
  WorkerProcess& operator=(WorkerProcess&& other) noexcept;

  // Starts the command, its first word a path, with decoderSocket open, its standard streams at
  // /dev/null, and nothing else of this process's. None on success; an error says what the system
  // says. REQUIRES: it is not running.
  std::optional<model::Error> start(const std::vector<std::string>& command);
  // Kills the process, if there is one, and waits for its end.
  void stop();

  bool isRunning() const { return _process > 0; }
  // Readable when it says something, and when it has ended.
  int socket() const { return _socket.number(); }

 private:
  pid_t _process = 0;
  io::Descriptor _socket;
};

}  // namespace desktop::pictures
