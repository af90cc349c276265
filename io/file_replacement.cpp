// SPDX-License-Identifier: MIT
//
// The bytes are written into a file beside the old one, which is then renamed over it.
#include "io/file_replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "io/descriptor.h"

namespace io {
namespace {

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

model::Error whyNot() {
  return {std::generic_category().message(errno)};
}

}  // namespace

std::optional<model::Error> replaceFile(const std::filesystem::path& path, std::string_view bytes) {
  const std::string name = "." + path.filename().native() + "." + std::to_string(::getpid());
  const std::filesystem::path temporary = path.parent_path() / name;
  constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
  ::unlink(temporary.c_str());  // of a run with our number that was cut off
  const Descriptor file(::open(temporary.c_str(), flags, 0644));
  if (!file) return whyNot();
  const bool isWritten = takeOverAttributes(file.number(), path) &&
                         writeAll(file.number(), bytes) && ::fsync(file.number()) == 0 &&
                         ::rename(temporary.c_str(), path.c_str()) == 0;
  if (isWritten) return std::nullopt;
  const model::Error error = whyNot();
  ::unlink(temporary.c_str());
  return error;
}

}  // namespace io
