// SPDX-License-Identifier: MIT
#include "io/byte_source.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

namespace io {

namespace {

model::Error systemError(int code) {
  return {std::generic_category().message(code)};
}

// Why a file is not read; none for a regular one.
std::optional<model::Error> refusal(const struct stat& status) {
  if (S_ISREG(status.st_mode)) return std::nullopt;
  if (S_ISDIR(status.st_mode)) return systemError(EISDIR);
  return model::Error{"not a regular file"};
}

// Copies what lies between `offset` and `end` of the bytes.
std::size_t copyRange(const std::vector<std::uint8_t>& bytes, std::uint64_t offset,
                      std::uint64_t end, std::span<std::uint8_t> into) {
  if (offset >= end) return 0;
  const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(end - offset, into.size()));
  std::memcpy(into.data(), bytes.data() + offset, count);
  return count;
}

}  // namespace

model::Result<std::size_t> ByteSource::readAt(std::uint64_t offset, std::span<std::uint8_t> into) {
  if (into.empty()) return std::size_t{0};
  auto count = doReadAt(offset, into);
  if (count) _bytesRead += *count;
  return count;
}

model::Result<std::unique_ptr<FileSource>> FileSource::open(const std::string& path) {
  struct stat status {};
  // Opening a FIFO lets its writer go on, and a device may do anything.
  if (::stat(path.c_str(), &status) != 0) return systemError(errno);
  if (auto refused = refusal(status)) return *std::move(refused);
  // The file may be another one by now: nothing is waited for, and its kind is looked at again.
  Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!file || ::fstat(file.number(), &status) != 0) return systemError(errno);
  if (auto refused = refusal(status)) return *std::move(refused);
  const double modified = static_cast<double>(status.st_mtim.tv_sec) +
                          static_cast<double>(status.st_mtim.tv_nsec) / 1e9;
  return std::unique_ptr<FileSource>(
      new FileSource(std::move(file), static_cast<std::uint64_t>(status.st_size), modified));
}

FileSource::FileSource(Descriptor descriptor) : _descriptor(std::move(descriptor)) {
  const off_t end = ::lseek(_descriptor.number(), 0, SEEK_END);
  _size = end < 0 ? 0 : static_cast<std::uint64_t>(end);
}

model::Result<std::size_t> FileSource::doReadAt(std::uint64_t offset,
                                                std::span<std::uint8_t> into) {
  std::size_t done = 0;
  while (done < into.size()) {
    const std::uint64_t position = offset + done;
    if (position > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max())) break;
    const ssize_t count = ::pread(_descriptor.number(), into.data() + done, into.size() - done,
                                  static_cast<off_t>(position));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemError(errno);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return done;
}

model::Result<std::size_t> MemorySource::doReadAt(std::uint64_t offset,
                                                  std::span<std::uint8_t> into) {
  return copyRange(_bytes, offset, _bytes.size(), into);
}

model::Result<std::size_t> FailingSource::doReadAt(std::uint64_t offset,
                                                   std::span<std::uint8_t> into) {
  const bool reaches = offset >= _failingOffset || into.size() > _failingOffset - offset;
  if (reaches && _failure == Failure::error) return systemError(EIO);
  const std::uint64_t end = _failure == Failure::shortRead
                                ? std::min<std::uint64_t>(_failingOffset, _bytes.size())
                                : _bytes.size();
  return copyRange(_bytes, offset, end, into);
}

}  // namespace io
