// SPDX-License-Identifier: MIT
#include "io/own_files.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace io {

namespace {

namespace fs = std::filesystem;

bool isBelow(const std::string& path, std::string_view folder) {
  return path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

// The places of the file, the best first.
std::vector<fs::path> placesOf(std::string_view built, std::string_view installed) {
  std::error_code error;
  const std::string folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (isBelow(folder, BUILD_FOLDER)) return {fs::path(BUILD_FOLDER) / built};
  std::vector<fs::path> places;
  constexpr std::string_view programs = "/" PROGRAM_FOLDER;
  if (folder.ends_with(programs))
    places.push_back(folder.substr(0, folder.size() - programs.size()) / fs::path(installed));
  places.push_back(fs::path(INSTALL_FOLDER) / installed);
  return places;
}

}  // namespace

std::string ownFile(std::string_view built, std::string_view installed) {
  std::error_code error;
  for (const fs::path& place : placesOf(built, installed))
    if (fs::is_regular_file(place, error)) return place;
  return {};
}

}  // namespace io
