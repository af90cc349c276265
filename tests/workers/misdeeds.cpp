// SPDX-License-Identifier: MIT
//
// Each order is a row of one table. The calls are made by number where the C library would choose
// another one, or look first.
#include "tests/workers/misdeeds.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/futex.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "workers/confinement/confinement.h"
#include "workers/greeting.h"
#include "workers/message.h"
#include "workers/worker_process.h"

namespace workers {

namespace {

using namespace std::string_literals;

pid_t parent = 0;
int received = -1;  // the descriptor that came with the order

std::string doneIf(bool isDone) {
  return isDone ? "done" : "refused";
}

void say(std::string_view text) {
  sendMessage(socketOfWorker, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::string firstBytes() {
  std::array<char, 4> bytes{};
  const ssize_t count = pread(received, bytes.data(), bytes.size(), 0);
  return {bytes.data(), static_cast<std::size_t>(count > 0 ? count : 0)};
}

std::string openFile() {
  return doneIf(open("/etc/passwd", O_RDONLY) >= 0 || open("/tmp", O_RDONLY) >= 0);
}

std::string writeFile() {
  return doneIf(open("/tmp/left-by-a-worker", O_WRONLY | O_CREAT, 0600) >= 0);
}

std::string removeFile() {
  return doneIf(unlink("/tmp/left-by-a-worker") == 0);
}

std::string connectSomewhere() {
  const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(1);
  connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address);
  return doneIf(socket >= 0);
}

std::string makeProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  return doneIf(child > 0);
}

std::string makeThread() {
  std::string result = "refused";
  try {
    std::thread([&result] { result = "done"; }).join();
  } catch (const std::system_error&) {
  }
  return result;
}

std::string runProgram() {
  std::array<char*, 1> none = {nullptr};
  execve("/bin/true", none.data(), none.data());
  return "refused";
}

std::string mapExecutable() {
  void* const memory =
      mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return doneIf(memory != MAP_FAILED);
}

std::string makeExecutable() {
  void* const memory =
      mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return doneIf(mprotect(memory, 4096, PROT_READ | PROT_EXEC) == 0);
}

std::string signalParent() {
  return doneIf(kill(parent, SIGURG) == 0);
}

std::string lookIntoParent() {
  iovec none{};
  return doneIf(process_vm_readv(parent, &none, 1, &none, 1, 0) >= 0);
}

std::string traceParent() {
  return doneIf(ptrace(PTRACE_ATTACH, parent, nullptr, nullptr) == 0);
}

std::string limitParent() {
  const rlimit none{0, 0};
  return doneIf(prlimit(parent, RLIMIT_CPU, &none, nullptr) == 0);
}

std::string raiseLimits() {
  const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
  return doneIf(setrlimit(RLIMIT_AS, &all) == 0 || setrlimit(RLIMIT_FSIZE, &all) == 0);
}

std::string makeMemoryFile() {
  return doneIf(memfd_create("hidden", 0) >= 0);
}

std::string writeFrame() {
  char byte = 1;
  return doneIf(pwrite(frameOfWorker, &byte, 1, 0) == 1);
}

std::string writeBeyondFrame() {
  char byte = 1;
  return doneIf(pwrite(frameOfWorker, &byte, 1, std::int64_t{1} << 40) == 1);
}

std::string writeFileOfOrder() {
  char byte = 1;
  return doneIf(pwrite(received, &byte, 1, 0) == 1);
}

// As many megabytes as the system gives.
std::string takeMemory() {
  constexpr std::size_t megabyte = 1 << 20;
  int count = 0;
  while (count < 10'000) {
    void* const memory =
        mmap(nullptr, megabyte, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) break;
    *static_cast<char*>(memory) = 1;
    ++count;
  }
  return std::to_string(count);
}

std::string sleepLong() {
  timespec hour{3600, 0};
  return doneIf(nanosleep(&hour, nullptr) == 0);
}

// Waits for a lock that nobody opens.
std::string doze() {
  int lock = 0;
  syscall(SYS_futex, &lock, FUTEX_WAIT_PRIVATE, 0, nullptr, nullptr, 0);
  return "done";
}

// Waits for an order while it has one.
std::string turnAway() {
  receiveMessage(socketOfWorker, 64, Guests::taken);
  return "done";
}

std::string spin() {
  for (std::atomic<unsigned> turn = 0;; ++turn) continue;
}

std::string sayTooMuch() {
  say(std::string(100'000, 'x'));
  return "done";
}

std::string sayNothing() {
  say("");
  return "done";
}

std::string lie() {
  return "\x01lie";
}

// Answers with a descriptor that nobody wants.
std::string slipDescriptor() {
  const std::uint8_t byte = 'x';
  sendMessage(socketOfWorker, {&byte, 1}, received);
  return {};
}

std::string crash() {
  raise(SIGSEGV);
  return "done";
}

std::string leave() {
  _exit(0);
}

struct Misdeed {
  std::string_view order;
  std::string (*act)();
};

constexpr Misdeed misdeeds[] = {
    {"read", firstBytes},
    {"open", openFile},
    {"create", writeFile},
    {"remove", removeFile},
    {"connect", connectSomewhere},
    {"fork", makeProcess},
    {"thread", makeThread},
    {"exec", runProgram},
    {"map executable", mapExecutable},
    {"make executable", makeExecutable},
    {"signal parent", signalParent},
    {"look into parent", lookIntoParent},
    {"trace parent", traceParent},
    {"limit parent", limitParent},
    {"raise limits", raiseLimits},
    {"memory file", makeMemoryFile},
    {"frame", writeFrame},
    {"beyond frame", writeBeyondFrame},
    {"write file", writeFileOfOrder},
    {"memory", takeMemory},
    {"sleep", sleepLong},
    {"doze", doze},
    {"turn away", turnAway},
    {"spin", spin},
    {"too much", sayTooMuch},
    {"nothing", sayNothing},
    {"lie", lie},
    {"descriptor", slipDescriptor},
    {"crash", crash},
    {"exit", leave},
};

std::string answerTo(const std::string& order) {
  for (const Misdeed& misdeed : misdeeds)
    if (misdeed.order == order) return misdeed.act();
  return "unknown";
}

}  // namespace

void serveMisdeeds(bool hasThreads) {
  parent = getppid();
  const std::string refused = confine({.memory = std::size_t{mostMegabytes} << 20,
                                       .frameBytes = 1 << 20,
                                       .hasThreads = hasThreads});
  bool isConnected = sendMessage(socketOfWorker, greetingOf(refused));
  while (isConnected) {
    const auto order = receiveMessage(socketOfWorker, 64, Guests::taken);
    if (!order) break;
    received = order->descriptor.number();
    const std::string answer = answerTo({order->bytes.begin(), order->bytes.end()});
    if (!answer.empty()) say(answer);
  }
  _exit(0);
}

}  // namespace workers
