// SPDX-License-Identifier: MIT
#include "media/image/blocks/inflate.h"

#include <zlib.h>

#include <algorithm>
#include <limits>

namespace media::image {

namespace {

// Owns zlib's state.
class Inflater {
 public:
  explicit Inflater(io::ByteView stream) {
    _stream.next_in = const_cast<Bytef*>(stream.bytes().data());  // zlib only reads it
    _stream.avail_in = static_cast<uInt>(stream.size());
    _isReady = inflateInit(&_stream) == Z_OK;
  }
  ~Inflater() {
    if (_isReady) inflateEnd(&_stream);
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  bool isReady() const { return _isReady; }
  bool isAtEnd() const { return _isAtEnd; }

  // Appends at most `largest` bytes; says whether the stream was in order so far.
  bool append(std::vector<std::uint8_t>& bytes, std::size_t largest) {
    const std::size_t known = bytes.size();
    bytes.resize(known + largest);
    _stream.next_out = bytes.data() + known;
    _stream.avail_out = static_cast<uInt>(largest);
    const int state = inflate(&_stream, Z_NO_FLUSH);
    bytes.resize(known + largest - _stream.avail_out);
    _isAtEnd = state == Z_STREAM_END;
    return _isAtEnd || (state == Z_OK && bytes.size() > known);
  }

 private:
  z_stream _stream{};
  bool _isReady = false;
  bool _isAtEnd = false;
};

}  // namespace

std::optional<std::vector<std::uint8_t>> inflateBytes(io::ByteView stream, std::size_t& budget) {
  if (stream.size() > std::numeric_limits<uInt>::max()) return std::nullopt;
  Inflater inflater(stream);
  if (!inflater.isReady()) return std::nullopt;
  constexpr std::size_t step = 65536;
  std::vector<std::uint8_t> bytes;
  while (!inflater.isAtEnd()) {
    const std::size_t known = bytes.size();
    const bool isInOrder = budget > 0 && inflater.append(bytes, std::min(step, budget));
    budget -= bytes.size() - known;
    if (!isInOrder) return std::nullopt;
  }
  return bytes;
}

}  // namespace media::image
