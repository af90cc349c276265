// SPDX-License-Identifier: MIT
//
// The test program is also its own worker process. Names of files tell its decoder to misbehave.
#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <fstream>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/pictures/decoders/decode_picture.h"
#include "desktop/pictures/workers/serve_decoder.h"

namespace desktop::pictures {

namespace {

// Takes memory until there is none, without touching it.
void takeMemory() {
  std::vector<void*> pieces;
  while (true) pieces.push_back(::operator new (std::size_t{64} << 20));
}

void work(std::chrono::milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) continue;
}

// Waits for a lock that nobody opens.
void sleepForEver() {
  std::atomic<int> lock = 0;
  lock.wait(0);
}

model::Result<Picture> misbehave(const std::string& name, io::ByteSource& source,
                                 const Request& request) {
  if (name.starts_with("hang")) sleepForEver();
  if (name.starts_with("spin")) work(std::chrono::hours(1));
  if (name.starts_with("crash")) std::raise(SIGSEGV);
  if (name.starts_with("exit")) _exit(0);
  if (name.starts_with("throw")) throw std::runtime_error("thrown");
  if (name.starts_with("memory")) takeMemory();
  if (name.starts_with("open"))
    return model::Error{std::ifstream("/etc/passwd") ? "opened" : "refused"};
  if (name.starts_with("slow")) work(std::chrono::milliseconds(400));
  return decodeSource(name, source, request);
}

}  // namespace

}  // namespace desktop::pictures

// libx265, which writes the HEIC files of the tests, never frees a few of its tables.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libx265\n";
}
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
  return "print_suppressions=0";
}

int main(int argc, char** argv) {
  using namespace desktop::pictures;
  const std::string_view argument = argc > 1 ? argv[1] : "";
  if (argument == "--decode-pictures") return serveDecoder(decoderSocket, misbehave);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
