// SPDX-License-Identifier: MIT
//
// The test program is also its own worker process. Names of files tell its decoder to misbehave.
#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <new>
#include <string_view>
#include <thread>
#include <vector>

#include "desktop/pictures/decoders/decode_picture.h"
#include "desktop/pictures/workers/serve_decoder.h"

namespace desktop::pictures {

namespace {

// Dies at the first try only.
void dieOnce(const std::string& path) {
  const std::string mark = path + ".tried";
  if (std::filesystem::exists(mark)) return;
  std::ofstream(mark).put('x');
  raise(SIGKILL);
}

// Takes memory until there is none, without touching it.
void takeMemory() {
  std::vector<void*> pieces;
  while (true) pieces.push_back(::operator new (std::size_t{64} << 20));
}

model::Result<Picture> misbehave(const std::string& path, const Request& request) {
  const std::string name = std::filesystem::path(path).filename();
  if (name.starts_with("hang")) {
    while (true) pause();
  }
  if (name.starts_with("spin")) {
    for (std::atomic<unsigned> turn = 0;; ++turn) continue;
  }
  if (name.starts_with("die-once")) dieOnce(path);
  if (name.starts_with("crash")) std::raise(SIGSEGV);
  if (name.starts_with("exit")) _exit(0);
  if (name.starts_with("throw")) throw std::runtime_error("thrown");
  if (name.starts_with("memory")) takeMemory();
  if (name.starts_with("slow")) std::this_thread::sleep_for(std::chrono::milliseconds(400));
  return decodePicture(path, request);
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
