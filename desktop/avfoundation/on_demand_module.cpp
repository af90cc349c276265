// SPDX-License-Identifier: MIT
#include "desktop/avfoundation/on_demand_module.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>
#include <vector>

namespace desktop::avfoundation {

namespace {

std::vector<std::filesystem::path> modulePlaces(const std::string& moduleName) {
  std::vector<std::filesystem::path> places;
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) {
    const auto folder = program.parent_path();
    places.push_back(folder / moduleName);
    places.push_back(folder.parent_path() / FFMPEG_READER_RELATIVE_DIR / moduleName);
  }
  places.push_back(std::filesystem::path(FFMPEG_READER_INSTALL_DIR) / moduleName);
  return places;
}

}  // namespace

void* functionOfModule(const std::string& moduleName, const char* functionName) {
  for (const auto& place : modulePlaces(moduleName)) {
    // Never closed: FFmpeg's libraries are not made to be unmapped.
    void* module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) continue;
    if (void* function = dlsym(module, functionName)) return function;
  }
  return nullptr;
}

}  // namespace desktop::avfoundation
