// SPDX-License-Identifier: MIT
//
// The bytes are written into a file beside the old one, which is then renamed over it. Its writer
// holds a lock on that file, which ends with the process however that ends: a file of such a name
// without a lock was left behind.
#include "io/file_replacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <string>
#include <system_error>

#include "io/descriptor.h"

namespace io {
namespace {

namespace fs = std::filesystem;

constexpr int mostLinks = 40;               // as the system follows them
constexpr std::size_t longestPrefix = 200;  // bytes of the file's name; the system takes 255 in all
constexpr std::string_view suffix = ".new";

model::Error whyNot(int code = errno) {
  return {std::generic_category().message(code)};
}

// Why this may not be replaced; none for a file, and for what is not there.
std::optional<model::Error> refusalOf(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0)
    return errno == ENOENT ? std::nullopt : std::optional(whyNot());
  if (S_ISREG(status.st_mode)) return std::nullopt;
  return S_ISDIR(status.st_mode) ? whyNot(EISDIR) : model::Error{"not a regular file"};
}

fs::path folderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : ".";
}

// What all files begin with that are written to replace this one.
std::string prefixOf(const fs::path& path) {
  return "." + path.filename().native().substr(0, longestPrefix) + ".";
}

bool isOneOf(const std::string& name, const std::string& prefix) {
  if (!name.starts_with(prefix) || !name.ends_with(suffix)) return false;
  const std::size_t digits = name.find_first_not_of("0123456789-", prefix.size());
  return digits > prefix.size() && digits == name.size() - suffix.size();
}

// A lock is held until its descriptor is closed.
void removeUnlessLocked(const fs::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (file && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
}

void removeWhatWasLeftBehind(const fs::path& path) {
  const std::string prefix = prefixOf(path);
  std::error_code error;
  for (fs::directory_iterator entry(folderOf(path), error), end; !error && entry != end;
       entry.increment(error)) {
    if (isOneOf(entry->path().filename(), prefix)) removeUnlessLocked(entry->path());
  }
}

// Whether the new file is still there: another process may have taken it for one that was left
// behind before it was locked.
bool isLockedInPlace(int file) {
  struct stat status {};
  ::flock(file, LOCK_EX);
  return ::fstat(file, &status) == 0 && status.st_nlink > 0;
}

// A new file beside another, which is gone at its end unless it took the other's place.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& path) {
    static std::atomic<unsigned> files;
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
    do {
      const std::string number = std::to_string(::getpid()) + "-" + std::to_string(files++);
      _path = folderOf(path) / (prefixOf(path) + number).append(suffix);
      _file.reset(::open(_path.c_str(), flags, 0644));
    } while (_file ? !isLockedInPlace(_file.number()) : errno == EEXIST);
  }
  ~FileBeside() {
    if (_file) ::unlink(_path.c_str());
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  bool isOpen() const { return static_cast<bool>(_file); }
  int number() const { return _file.number(); }
  bool replace(const fs::path& path) {
    if (::rename(_path.c_str(), path.c_str()) != 0) return false;
    _file.reset();
    return true;
  }

 private:
  fs::path _path;
  Descriptor _file;
};

// Gives the new file what the old one had beside its bytes.
bool takeOverAttributes(int descriptor, const fs::path& old) {
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

}  // namespace

fs::path targetOfLinks(fs::path path) {
  std::error_code error;
  for (int links = 0; links < mostLinks && fs::is_symlink(path, error); ++links) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

std::optional<model::Error> replaceFile(const fs::path& path, std::string_view bytes) {
  const fs::path target = targetOfLinks(path);
  if (auto refusal = refusalOf(target)) return refusal;
  removeWhatWasLeftBehind(target);
  FileBeside file(target);
  if (!file.isOpen()) return whyNot();
  const bool isReplaced = takeOverAttributes(file.number(), target) &&
                          writeAll(file.number(), bytes) && ::fsync(file.number()) == 0 &&
                          file.replace(target);
  return isReplaced ? std::nullopt : std::optional(whyNot());
}

std::optional<model::Error> writeOutput(const fs::path& path, std::string_view bytes) {
  std::error_code error;
  const fs::file_type type = fs::status(path, error).type();
  if (type != fs::file_type::fifo && type != fs::file_type::character)
    return replaceFile(path, bytes);
  const Descriptor output(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
  return output && writeAll(output.number(), bytes) ? std::nullopt : std::optional(whyNot());
}

}  // namespace io
