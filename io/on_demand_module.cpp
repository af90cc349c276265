// SPDX-License-Identifier: MIT
#include "io/on_demand_module.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>
#include <vector>

namespace io {

namespace {

namespace fs = std::filesystem;

// How many folders above a program's the root of its tree is looked for: an installed program lies
// in "bin", one of the build tree deeper.
constexpr int longestWayUp = 4;

std::vector<fs::path> modulePlaces(const std::string& moduleName) {
  std::vector<fs::path> places;
  std::error_code error;
  fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  for (int step = 0; step < longestWayUp && folder.has_relative_path(); ++step) {
    folder = folder.parent_path();
    places.push_back(folder / MODULE_RELATIVE_DIR / moduleName);
  }
  places.push_back(fs::path(MODULE_INSTALL_DIR) / moduleName);
  return places;
}

}  // namespace

void* functionOfModule(const std::string& moduleName, const char* functionName) {
  for (const fs::path& place : modulePlaces(moduleName)) {
    // Never closed: the libraries behind modules are not made to be unmapped.
    void* module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) continue;
    if (void* function = dlsym(module, functionName)) return function;
  }
  return nullptr;
}

std::string fileBesideModules(const std::string& name) {
  std::error_code error;
  for (const fs::path& place : modulePlaces(name))
    if (fs::is_regular_file(place, error)) return place;
  return {};
}

}  // namespace io
