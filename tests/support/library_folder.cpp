// SPDX-License-Identifier: MIT
#include "tests/support/library_folder.h"

#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <stdexcept>

#include "tests/support/sample_photo.h"

namespace desktop::library {

std::string LibraryFolder::photo(std::string_view name, double date) const {
  std::string path = write(name, media::facts::sampleJpeg({}));
  setFileDate(path, date);
  return path;
}

std::string LibraryFolder::broken(std::string_view name, double date) const {
  std::string path = write(name, "x");
  setFileDate(path, date);
  return path;
}

std::string LibraryFolder::below(std::string_view fullPath) const {
  return std::string(fullPath.substr(path().size() + 1));
}

std::vector<std::string> LibraryFolder::names(const std::vector<ItemPointer>& items) const {
  std::vector<std::string> names;
  names.reserve(items.size());
  for (const ItemPointer& item : items) names.push_back(below(item->path));
  return names;
}

void setFileDate(const std::string& path, double date) {
  const double whole = std::floor(date);
  const timespec time{.tv_sec = static_cast<time_t>(whole),
                      .tv_nsec = static_cast<long>((date - whole) * 1e9)};
  const timespec both[] = {time, time};
  if (::utimensat(AT_FDCWD, path.c_str(), both, 0) != 0) {
    throw std::runtime_error("cannot date " + path);
  }
}

// The superuser's right to read everything goes with the file system's user, in this thread only.
StrangersRights::StrangersRights() {
  if (::geteuid() == 0) ::setfsuid(65534);
}

StrangersRights::~StrangersRights() {
  if (::geteuid() == 0) ::setfsuid(0);
}

}  // namespace desktop::library
