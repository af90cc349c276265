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

namespace foundation {
namespace {

constexpr int mostLinks = 40;  // as the system follows them

model::Error lastError() {
  return {std::generic_category().message(errno)};
}

// An open file, closed at its end.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : _descriptor(descriptor) {}
  ~Descriptor() {
    if (_descriptor >= 0) ::close(_descriptor);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return _descriptor; }
  bool isOpen() const { return _descriptor >= 0; }

 private:
  int _descriptor;
};

// Where the links of the path lead, whether or not a file is there.
std::filesystem::path followingLinks(std::filesystem::path path) {
  std::error_code error;
  for (int links = 0; links < mostLinks && std::filesystem::is_symlink(path, error); ++links) {
    path = path.parent_path() / std::filesystem::read_symlink(path, error);
  }
  return path;
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

// Gives the new file what the old one had beside its bytes.
bool takeOverAttributes(int descriptor, const std::filesystem::path& old) {
  struct stat status {};
  if (::stat(old.c_str(), &status) != 0) return true;
  // Only a privileged user may give files away; the file is then the writer's own.
  [[maybe_unused]] const int ignored = ::fchown(descriptor, status.st_uid, status.st_gid);
  return ::fchmod(descriptor, status.st_mode & 07777U) == 0;
}

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::optional<model::Error> replaceFile(const std::filesystem::path& path, std::string_view bytes) {
  const std::string name = "." + path.filename().native() + "." + std::to_string(::getpid());
  const std::filesystem::path temporary = folderOf(path) / name;
  constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
  ::unlink(temporary.c_str());  // of a run with our number that was cut off
  const Descriptor file(::open(temporary.c_str(), flags, 0644));
  if (!file.isOpen()) return lastError();
  const bool isWritten = takeOverAttributes(file.get(), path) && writeAll(file.get(), bytes) &&
                         ::fsync(file.get()) == 0 && ::rename(temporary.c_str(), path.c_str()) == 0;
  if (isWritten) return std::nullopt;
  const model::Error error = lastError();
  ::unlink(temporary.c_str());
  return error;
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
  return replaceFile(path, *bytes);
}

}  // namespace

std::optional<model::Error> editPropertyListFile(
    const std::string& path, const std::function<void(model::Dictionary&)>& edit, AfterEdit after) {
  const std::filesystem::path target = followingLinks(path);
  const std::filesystem::path folder = folderOf(target);
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return model::Error{error.message()};
  // The folder itself is the lock, so that no lock file is left behind.
  const Descriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock.isOpen() || ::flock(lock.get(), LOCK_EX) != 0) return lastError();
  auto failure = editInFolder(target, edit, after);
  if (!failure) ::fsync(lock.get());
  return failure;
}

}  // namespace foundation
