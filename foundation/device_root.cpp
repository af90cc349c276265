// SPDX-License-Identifier: MIT
#include "foundation/device_root.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "foundation/paths.h"

namespace foundation {

namespace {

constexpr std::string_view redirected = "/var/mobile";

// Whether a path is the folder or lies below it.
bool isAtOrBelow(std::string_view path, std::string_view folder) {
  if (!path.starts_with(folder)) return false;
  return path.size() == folder.size() || path[folder.size()] == '/';
}

std::string withoutTrailingSlashes(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

std::string absolute(const std::string& path) {
  if (path.starts_with('/')) return path;
  std::error_code error;
  const std::filesystem::path current = std::filesystem::current_path(error);
  return (current / path).lexically_normal().string();
}

// An environment variable that holds an absolute path, or nothing.
std::string pathFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? value : "";
}

std::string homeFolder() {
  std::string home = pathFromEnvironment("HOME");
  if (!home.empty()) return home;
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
  return found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "/";
}

}  // namespace

DeviceRoot::DeviceRoot(const std::string& folder)
    : _folder(resolvedPath(withoutTrailingSlashes(absolute(folder)))) {}

DeviceRoot DeviceRoot::ofUser() {
  const std::string dataFolder = pathFromEnvironment("XDG_DATA_HOME");
  return DeviceRoot((dataFolder.empty() ? homeFolder() + "/.local/share" : dataFolder) +
                    "/photohost");
}

std::string DeviceRoot::onDisk(std::string_view path) const {
  if (_folder == "/" || !isAtOrBelow(path, redirected)) return std::string(path);
  return std::string(_folder).append(path);
}

std::string DeviceRoot::onDevice(std::string_view path) const {
  if (_folder != "/" && isAtOrBelow(path, _folder + std::string(redirected))) {
    path.remove_prefix(_folder.size());
  }
  return std::string(path);
}

}  // namespace foundation
