// SPDX-License-Identifier: MIT
#include "desktop/loader/extension_loader.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "io/library_file.h"

namespace desktop::loader {
namespace {

namespace fs = std::filesystem;

// The filters of a folder, by name. Hidden files are none.
std::vector<fs::path> filtersIn(const std::string& folder, const LoadProblem& problem) {
  std::vector<fs::path> filters;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path& path = entry->path();
    if (path.extension() == ".plist" && path.filename().string().front() != '.')
      filters.push_back(path);
  }
  if (error && error != std::errc::no_such_file_or_directory) problem(folder, error.message());
  std::ranges::sort(filters);
  return filters;
}

// The loader's message begins with the path, which the caller states already.
std::string loadFailure(const std::string& library) {
  const char* message = dlerror();
  std::string reason = message ? message : "cannot be mapped";
  const std::string prefix = library + ": ";
  if (reason.starts_with(prefix)) reason.erase(0, prefix.size());
  return reason;
}

bool load(const fs::path& library, const LoadProblem& problem) {
  std::error_code error;
  if (!fs::is_regular_file(library, error)) {
    problem(library.string(), "no such library beside its filter");
    return false;
  }
  if (const auto facts = io::readLibraryFacts(library.string()); !facts) {
    problem(library.string(), facts.error().reason);
    return false;
  }
  if (dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL)) return true;
  problem(library.string(), loadFailure(library.string()));
  return false;
}

}  // namespace

std::vector<std::string> loadExtensions(const std::string& folder, const Host& host,
                                        const LoadProblem& problem) {
  std::vector<std::string> loaded;
  std::error_code error;
  const std::string base = fs::absolute(folder, error).string();
  for (const fs::path& path : filtersIn(base, problem)) {
    const model::Result<ExtensionFilter> filter = readFilter(path.string());
    if (!filter) {
      problem(path.string(), filter.error().reason);
      continue;
    }
    if (!filter->matches(host)) continue;
    fs::path library = path;
    library.replace_extension(".so");
    if (load(library, problem)) loaded.push_back(library.string());
  }
  return loaded;
}

}  // namespace desktop::loader
