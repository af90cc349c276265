// SPDX-License-Identifier: MIT
//
// Bytes that are read by position: what every metadata reader stands on. One interface; a file, an
// in-memory form, and one that fails on demand for tests.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "io/descriptor.h"
#include "model/result.h"

namespace io {

// Positioned reads. Implementations are used from one thread at a time.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  // The size in bytes when the source was opened.
  virtual std::uint64_t size() const = 0;

  // Fills `into` from `offset` on. Returns how many bytes were read: fewer than asked for only
  // where the source ends (a file may have shrunk since it was opened), 0 at or behind its end.
  // Errors: what the system says of a failed read.
  model::Result<std::size_t> readAt(std::uint64_t offset, std::span<std::uint8_t> into);

  // How many bytes have been read so far, for tests of how little a reader touches.
  std::uint64_t bytesRead() const { return _bytesRead; }

 protected:
  ByteSource() = default;
  ByteSource(const ByteSource&) = default;
  ByteSource& operator=(const ByteSource&) = default;

 private:
  virtual model::Result<std::size_t> doReadAt(std::uint64_t offset,
                                              std::span<std::uint8_t> into) = 0;

  std::uint64_t _bytesRead = 0;
};

// A regular file. Links are followed when it is opened; it is never mapped, so a file that shrinks
// while it is read gives short reads and no signal.
class FileSource : public ByteSource {
 public:
  // Opens for reading. Errors: what the system says ("No such file or directory"); "Is a
  // directory"; "not a regular file" for FIFOs, sockets and devices, which are never
  // opened.
  static model::Result<std::unique_ptr<FileSource>> open(const std::string& path);
  // The file that somebody else has opened so. It asks nothing of it but its size, since a process
  // that was handed a file may be allowed no more; its modification time is 0.
  explicit FileSource(Descriptor descriptor);

  std::uint64_t size() const override { return _size; }
  // The modification time in seconds since 1970, as of opening.
  double modificationTime() const { return _modificationTime; }
  // To be handed to another process; owned by the source.
  int descriptor() const { return _descriptor.number(); }

 private:
  FileSource(Descriptor descriptor, std::uint64_t size, double modificationTime)
      : _descriptor(std::move(descriptor)), _size(size), _modificationTime(modificationTime) {}
  model::Result<std::size_t> doReadAt(std::uint64_t offset, std::span<std::uint8_t> into) override;

  Descriptor _descriptor;
  std::uint64_t _size;
  double _modificationTime = 0;
};

// Bytes in memory, owned.
class MemorySource : public ByteSource {
 public:
  explicit MemorySource(std::vector<std::uint8_t> bytes) : _bytes(std::move(bytes)) {}
  std::uint64_t size() const override { return _bytes.size(); }

 private:
  model::Result<std::size_t> doReadAt(std::uint64_t offset, std::span<std::uint8_t> into) override;

  std::vector<std::uint8_t> _bytes;
};

// Bytes in memory that stop being readable: claims its whole size, but any read that reaches
// `failingOffset` fails or comes back short, as a bad disk or a shrinking file would do.
class FailingSource : public ByteSource {
 public:
  enum class Failure { error, shortRead };

  FailingSource(std::vector<std::uint8_t> bytes, std::uint64_t failingOffset, Failure failure)
      : _bytes(std::move(bytes)), _failingOffset(failingOffset), _failure(failure) {}
  std::uint64_t size() const override { return _bytes.size(); }

 private:
  model::Result<std::size_t> doReadAt(std::uint64_t offset, std::span<std::uint8_t> into) override;

  std::vector<std::uint8_t> _bytes;
  std::uint64_t _failingOffset;
  Failure _failure;
};

}  // namespace io
