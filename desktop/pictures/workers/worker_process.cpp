// SPDX-License-Identifier: MIT
#include "desktop/pictures/workers/worker_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "desktop/pictures/workers/serve_decoder.h"

namespace desktop::pictures {

namespace {

// What the new process has of this one: the socket, no signal blocked or ignored.
class SpawnSettings {
 public:
  explicit SpawnSettings(int socket) {
    posix_spawn_file_actions_init(&_actions);
    // First, since the socket may have the number of a standard stream that was closed.
    posix_spawn_file_actions_adddup2(&_actions, socket, decoderSocket);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
      posix_spawn_file_actions_addopen(&_actions, stream, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_addclosefrom_np(&_actions, decoderSocket + 1);
    posix_spawnattr_init(&_attributes);
    sigset_t none{};
    sigset_t all{};
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&_attributes, &none);
    posix_spawnattr_setsigdefault(&_attributes, &all);
    posix_spawnattr_setflags(&_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  ~SpawnSettings() {
    posix_spawn_file_actions_destroy(&_actions);
    posix_spawnattr_destroy(&_attributes);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  const posix_spawn_file_actions_t* actions() const { return &_actions; }
  const posix_spawnattr_t* attributes() const { return &_attributes; }

 private:
  posix_spawn_file_actions_t _actions{};
  posix_spawnattr_t _attributes{};
};

}  // namespace

WorkerProcess::WorkerProcess(WorkerProcess&& other) noexcept
    : _process(std::exchange(other._process, 0)), _socket(std::move(other._socket)) {}

WorkerProcess& WorkerProcess::operator=(WorkerProcess&& other) noexcept {
  std::swap(_process, other._process);
  std::swap(_socket, other._socket);
  return *this;
}

std::optional<model::Error> WorkerProcess::start(const std::vector<std::string>& command) {
  auto ends = socketPair();
  if (!ends) return model::Error{std::strerror(errno)};
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  const SpawnSettings settings(ends->second.number());
  const int error = posix_spawn(&_process, arguments[0], settings.actions(), settings.attributes(),
                                arguments.data(), environ);
  if (error != 0) {
    _process = 0;
    return model::Error{std::strerror(error)};
  }
  _socket = std::move(ends->first);
  return std::nullopt;
}

void WorkerProcess::stop() {
  if (!isRunning()) return;
  // Until it is waited for, nobody else can have its number.
  kill(_process, SIGKILL);
  while (waitpid(_process, nullptr, 0) < 0 && errno == EINTR) continue;
  _process = 0;
  _socket.reset();
}

}  // namespace desktop::pictures
