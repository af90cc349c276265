// SPDX-License-Identifier: MIT
//
// Bounded, windowed reading of a byte source: what container readers walk a file with.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "io/byte_source.h"
#include "io/byte_view.h"
#include "model/result.h"

namespace io {

// Reads a source through two windows: the head of the source, kept for good, since most metadata
// lies there; and one that follows the reads elsewhere. The head is read in two steps, as many
// files need its beginning only. A failed read is remembered, so that a walk can simply end at the
// first missing byte and its caller asks failure() once.
class SourceReader {
 public:
  static constexpr std::size_t firstRead = 16384;         // bytes read at once from the front
  static constexpr std::size_t headSize = 65536;          // bytes that the second read completes
  static constexpr std::size_t windowSize = 4096;         // bytes read at once elsewhere, at least
  static constexpr std::size_t largestView = 33'554'432;  // bytes; a longer view is refused

  // REQUIRES: the source outlives the reader.
  explicit SourceReader(ByteSource& source) : _source(source) {}

  std::uint64_t size() const { return _source.size(); }

  // Whether a read outside the head brings a whole window, for what follows it, or only what was
  // asked for: a walk that jumps from header to header over coded data wants the latter.
  enum class ReadAhead { window, none };

  // The bytes [offset, offset + length), or none where they do not all lie in the source, are
  // more than largestView, or cannot be read. Borrowed: valid until the next call of view().
  std::optional<ByteView> view(std::uint64_t offset, std::uint64_t length,
                               ReadAhead ahead = ReadAhead::window);

  // As view(), but fewer bytes where the source ends earlier.
  ByteView upTo(std::uint64_t offset, std::uint64_t length, ReadAhead ahead = ReadAhead::window);

  // As view(), copied, to be kept.
  std::optional<std::vector<std::uint8_t>> copy(std::uint64_t offset, std::uint64_t length);

  // No more bytes than these are read, those read so far included; what would take more cannot be
  // viewed.
  void limitReads(std::uint64_t mostBytes) { _mostBytes = mostBytes; }

  // What the system said of the first read that failed, or "truncated while it was read" where the
  // source came back shorter than its size.
  const std::optional<model::Error>& failure() const { return _failure; }

 private:
  // Bytes of the source in memory that nobody fills with zeros first.
  struct Window {
    std::uint64_t offset = 0;
    std::size_t size = 0;
    std::size_t capacity = 0;
    std::unique_ptr<std::uint8_t[]> memory;

    ByteView view() const { return ByteView(std::span(memory.get(), size)); }
    std::optional<ByteView> sub(std::uint64_t at, std::uint64_t length) const;
    ByteView from(std::uint64_t at) const;
    // Makes room; what the window held is gone where there was none.
    void reserve(std::size_t wanted);
  };
  void fillHead(std::size_t end);
  void fillWindow(std::uint64_t offset, std::size_t length);
  // Reads behind the window's bytes up to the end, or as far as the source goes.
  void read(Window& window, std::size_t end);

  ByteSource& _source;
  Window _head;
  std::uint64_t _mostBytes = ~std::uint64_t{0};
  std::uint64_t _bytesRead = 0;
  std::size_t _headAsked = 0;  // how far the head was read, or could not be; not tried again
  Window _window;
  std::optional<model::Error> _failure;
};

}  // namespace io
