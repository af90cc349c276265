// SPDX-License-Identifier: MIT
#include "foundation/property_lists/property_list_edit.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "foundation/property_lists/property_list.h"
#include "io/descriptor.h"
#include "io/file_replacement.h"

namespace foundation {
namespace {

model::Error lastError() {
  return {std::generic_category().message(errno)};
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
  return path.has_parent_path() ? path.parent_path() : ".";
}

// What the file holds; an empty dictionary where there is none.
model::Result<PropertyList> readDictionary(const std::filesystem::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno != ENOENT) return lastError();
    return PropertyList{.root = model::Dictionary(), .format = PropertyListFormat::xml};
  }
  if (::access(path.c_str(), W_OK) != 0) return lastError();
  auto list = readPropertyList(path);
  if (!list) {
    return model::Error{"left as it is, since it cannot be read: " + list.error().reason};
  }
  if (list->root.asDictionary() == nullptr) {
    return model::Error{"left as it is, since it holds no dictionary"};
  }
  return list;
}

std::optional<model::Error> removeFile(const std::filesystem::path& path) {
  if (::unlink(path.c_str()) == 0 || errno == ENOENT) return std::nullopt;
  return lastError();
}

std::optional<model::Error> editInFolder(const std::filesystem::path& path,
                                         const std::function<void(model::Dictionary&)>& edit,
                                         AfterEdit after) {
  auto list = readDictionary(path);
  if (!list) return list.error();
  model::Dictionary& settings = *list->root.asDictionary();
  edit(settings);
  // An empty file is not the same as none: a missing file has defaults of its own.
  std::error_code error;
  const bool mayBeMissing =
      after == AfterEdit::removeIfEmpty || !std::filesystem::exists(path, error);
  if (settings.empty() && mayBeMissing) return removeFile(path);
  const auto bytes = serializePropertyList(list->root, list->format);
  if (!bytes) return bytes.error();
  return io::replaceFile(path, *bytes);
}

}  // namespace

std::optional<model::Error> editPropertyListFile(
    const std::string& path, const std::function<void(model::Dictionary&)>& edit, AfterEdit after) {
  const std::filesystem::path target = io::targetOfLinks(path);
  const std::filesystem::path folder = folderOf(target);
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return model::Error{error.message()};
  // The folder itself is the lock, so that no lock file is left behind.
  const io::Descriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock || ::flock(lock.number(), LOCK_EX) != 0) return lastError();
  auto failure = editInFolder(target, edit, after);
  if (!failure) ::fsync(lock.number());
  return failure;
}

}  // namespace foundation
