// SPDX-License-Identifier: MIT
#include "workers/worker_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "workers/message.h"

namespace workers {

namespace {

// What the new process has of this one: what it was given, no signal blocked or ignored.
class SpawnSettings {
 public:
  SpawnSettings(int socket, int frame) {
    posix_spawn_file_actions_init(&_actions);
    // First, since what is given may have the number of a standard stream that was closed.
    posix_spawn_file_actions_adddup2(&_actions, socket, socketOfWorker);
    if (frame >= 0) posix_spawn_file_actions_adddup2(&_actions, frame, frameOfWorker);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
      posix_spawn_file_actions_addopen(&_actions, stream, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_addclosefrom_np(&_actions,
                                             frame >= 0 ? frameOfWorker + 1 : socketOfWorker + 1);
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

// A descriptor above those that a worker is given, so that none is overwritten before it is moved.
io::Descriptor above(io::Descriptor descriptor) {
  return io::Descriptor(fcntl(descriptor.number(), F_DUPFD_CLOEXEC, frameOfWorker + 1));
}

model::Error whyNot() {
  return {std::strerror(errno)};
}

}  // namespace

WorkerProcess::WorkerProcess(WorkerProcess&& other) noexcept
    : _process(std::exchange(other._process, 0)),
      _socket(std::move(other._socket)),
      _frame(std::move(other._frame)) {}

WorkerProcess& WorkerProcess::operator=(WorkerProcess&& other) noexcept {
  std::swap(_process, other._process);
  std::swap(_socket, other._socket);
  std::swap(_frame, other._frame);
  return *this;
}

std::optional<model::Error> WorkerProcess::start(const std::vector<std::string>& command,
                                                 Frame frame) {
  auto ends = socketPair();
  if (!ends) return whyNot();
  const io::Descriptor given = above(std::move(ends->second));
  io::Descriptor pixels;
  if (frame == Frame::given) pixels = above(io::Descriptor(memfd_create("frame", MFD_CLOEXEC)));
  if (!given || (frame == Frame::given && !pixels)) return whyNot();
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  std::array<char*, 1> environment = {nullptr};
  const SpawnSettings settings(given.number(), pixels.number());
  const int error = posix_spawn(&_process, arguments[0], settings.actions(), settings.attributes(),
                                arguments.data(), environment.data());
  if (error != 0) {
    _process = 0;
    return model::Error{std::strerror(error)};
  }
  _socket = std::move(ends->first);
  _frame = std::move(pixels);
  return std::nullopt;
}

void WorkerProcess::stop() {
  if (!isRunning()) return;
  // Until it is waited for, nobody else can have its number.
  kill(_process, SIGKILL);
  while (waitpid(_process, nullptr, 0) < 0 && errno == EINTR) continue;
  _process = 0;
  _socket.reset();
  _frame.reset();
}

void WorkerProcess::emptyFrame() const {
  // Where that fails the frame is as large as it was, which its worker's limits bound.
  [[maybe_unused]] const int ignored = ftruncate(frame(), 0);
}

}  // namespace workers
