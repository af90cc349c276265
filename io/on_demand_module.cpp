// SPDX-License-Identifier: MIT
#include "io/on_demand_module.h"

#include <dlfcn.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include "io/library_file.h"
#include "io/own_files.h"

namespace io {

namespace {

struct Problems {
  std::mutex mutex;
  std::vector<std::string> told;
  std::vector<std::string> untold;
};

Problems& problems() {
  static auto& kept = *new Problems;
  return kept;
}

void note(const std::string& problem) {
  const std::lock_guard lock(problems().mutex);
  if (std::ranges::count(problems().told, problem) != 0) return;
  problems().told.push_back(problem);
  problems().untold.push_back(problem);
}

// The loader's message begins with the path, which the caller states already.
model::Error loaderError(const std::string& path) {
  const char* message = ::dlerror();
  std::string reason = message == nullptr ? "cannot be mapped" : message;
  if (reason.starts_with(path + ": ")) reason.erase(0, path.size() + 2);
  return {std::move(reason)};
}

std::optional<model::Error> refusal(const std::string& path) {
  const auto facts = readLibraryFacts(path);
  if (!facts) return facts.error();
  if (!facts->moduleVersion) return model::Error{"no module of ours"};
  if (*facts->moduleVersion == MODULE_VERSION) return std::nullopt;
  return model::Error{"a module of version " + *facts->moduleVersion + ", not " MODULE_VERSION};
}

}  // namespace

model::Result<void*> functionOfModuleAt(const std::string& path, const char* functionName) {
  if (auto refused = refusal(path)) return *std::move(refused);
  // Never closed: the libraries behind modules are not made to be unmapped.
  void* const module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const function = module == nullptr ? nullptr : ::dlsym(module, functionName);
  if (function == nullptr) return loaderError(path);
  return function;
}

std::string fileBesideModules(const std::string& name) {
  const std::string inTree = MODULE_FOLDER "/" + name;
  return ownFile(inTree, inTree);
}

void* functionOfModule(const std::string& moduleName, const char* functionName) {
  const std::string path = fileBesideModules(moduleName);
  if (path.empty()) {
    note(moduleName + ": not installed");
    return nullptr;
  }
  const auto function = functionOfModuleAt(path, functionName);
  if (!function) note(path + ": " + function.error().reason);
  return function ? *function : nullptr;
}

std::vector<std::string> takeModuleProblems() {
  const std::lock_guard lock(problems().mutex);
  return std::exchange(problems().untold, {});
}

}  // namespace io
