// SPDX-License-Identifier: MIT
#include "samples/library/file_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace samples {

namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) : _number(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (_number >= 0) close(_number);
  }
  int number() const { return _number; }

 private:
  int _number;
};

bool writeAll(int file, const Bytes& bytes, std::uint64_t offset) {
  for (std::size_t done = 0; done < bytes.size();) {
    const ssize_t count =
        pwrite(file, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
    if (count <= 0) return false;
    done += static_cast<std::size_t>(count);
  }
  return true;
}

bool setModified(int file, model::Date modified) {
  const timespec time{.tv_sec = static_cast<time_t>(modified.secondsSince1970), .tv_nsec = 0};
  const timespec both[2] = {time, time};
  return futimens(file, both) == 0;
}

}  // namespace

std::optional<model::Error> writeFile(const std::string& path, const FileContent& content,
                                      model::Date modified) {
  const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
  const bool written = file.number() >= 0 && writeAll(file.number(), content.head, 0) &&
                       writeAll(file.number(), content.tail, content.tailOffset) &&
                       setModified(file.number(), modified);
  if (written) return std::nullopt;
  return model::Error{path + ": " + std::generic_category().message(errno)};
}

}  // namespace samples
