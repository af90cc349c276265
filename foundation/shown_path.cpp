// SPDX-License-Identifier: MIT
#include "foundation/shown_path.h"

#include <filesystem>
#include <system_error>

#include "model/utf8.h"

namespace foundation {

namespace {

constexpr std::string_view replacement = "\uFFFD";

// The name in the folder that is shown so; empty where there is none.
std::string nameShownAs(const std::string& folder, std::string_view shown) {
  std::string found;
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::string name = entry->path().filename().native();
    if (model::replacingInvalidUtf8(name) != shown) continue;
    if (found.empty() || name < found) found = std::move(name);
  }
  return found;
}

}  // namespace

std::optional<std::string> fileOfShownPath(std::string_view shownPath) {
  if (shownPath.find(replacement) == std::string_view::npos) return std::nullopt;
  std::string path;
  for (std::size_t start = 0; start < shownPath.size();) {
    const std::size_t end = std::min(shownPath.find('/', start), shownPath.size());
    const std::string_view component = shownPath.substr(start, end - start);
    start = end + 1;
    if (component.empty()) continue;
    const bool isReplaced = component.find(replacement) != std::string_view::npos;
    const std::string name =
        isReplaced ? nameShownAs(path + "/", component) : std::string(component);
    if (name.empty()) return std::nullopt;
    path.append("/").append(name);
  }
  std::error_code error;
  if (!std::filesystem::exists(std::filesystem::symlink_status(path, error))) return std::nullopt;
  return path;
}

}  // namespace foundation
