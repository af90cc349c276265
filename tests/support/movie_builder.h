// SPDX-License-Identifier: MIT
//
// Movies for tests, made box by box.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace media::movie {

using Bytes = std::vector<std::uint8_t>;

// Bytes put together field by field, big-endian.
class Writer {
 public:
  Writer& u8(std::uint64_t value) { return number(value, 1); }
  Writer& u16(std::uint64_t value) { return number(value, 2); }
  Writer& u24(std::uint64_t value) { return number(value, 3); }
  Writer& u32(std::uint64_t value) { return number(value, 4); }
  Writer& u64(std::uint64_t value) { return number(value, 8); }
  Writer& fixed(double value) {
    return u32(static_cast<std::uint32_t>(static_cast<std::int64_t>(value * 65536)));
  }
  Writer& text(std::string_view text);
  Writer& zeros(std::size_t count);
  Writer& bytes(const Bytes& bytes);

  operator Bytes() const { return _bytes; }  // NOLINT: a writer stands for what it wrote

 private:
  Writer& number(std::uint64_t value, int size);

  Bytes _bytes;
};

// A box with its 32-bit size, around parts that follow each other.
Bytes box(std::string_view type, std::initializer_list<Bytes> parts);
Bytes box(std::string_view type, const Bytes& payload);
// A box with a version, flags and what follows them.
Bytes fullBox(std::string_view type, std::uint32_t versionAndFlags, const Bytes& rest);
// The parts in their order.
Bytes joined(std::initializer_list<Bytes> parts);

// The numbers a, b, c, d, tx, ty of a transform.
using Matrix = std::initializer_list<double>;

Bytes fileType(std::string_view majorBrand);
Bytes movieHeader(std::uint32_t timeScale, std::uint32_t duration, std::uint32_t creationTime = 0);
Bytes trackHeader(std::uint32_t trackID, std::uint32_t duration, Matrix matrix, double width,
                  double height);
Bytes mediaHeader(std::uint32_t timeScale, std::uint32_t duration);
Bytes handler(std::string_view type);
Bytes editList(std::uint32_t duration);

// Pairs of a sample count and a delta.
Bytes timeToSample(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& runs);
Bytes sampleSizes(const std::vector<std::uint32_t>& sizes);
Bytes constantSampleSize(std::uint32_t size, std::uint32_t count);
Bytes sampleDescriptions(const std::vector<Bytes>& entries, std::uint32_t version = 0);

// What a track is made of; the boxes are complete.
struct TrackParts {
  Bytes header = {};
  Bytes edits = {};
  Bytes mediaHeader = {};
  std::string_view handlerType = {};
  Bytes descriptions = {};
  Bytes times = {};
  Bytes sizes = {};
  Bytes more = {};  // boxes at the end of the track: metadata
};
Bytes track(const TrackParts& parts);

// A video sample entry.
struct VideoEntry {
  std::string_view code = "avc1";
  std::uint16_t width = 1920;
  std::uint16_t height = 1080;
  std::uint32_t quality = 0;     // spatial and temporal
  std::string_view vendor = {};  // empty: zeros
  std::string_view compressorName = {};
  std::uint16_t depth = 24;
  Bytes boxes = {};
};
Bytes videoEntry(const VideoEntry& entry);

// A sound sample entry of version 0, and of version 2.
Bytes soundEntry(std::string_view code, std::uint16_t channels, std::uint16_t bits,
                 std::uint32_t sampleRate, const Bytes& boxes = {}, std::uint16_t version = 0);
Bytes linearEntry(double sampleRate, std::uint32_t channels, std::uint32_t bits,
                  std::uint32_t flags);
// An "esds" box around an AudioSpecificConfig.
Bytes elementaryStreamBox(std::uint8_t objectType, const Bytes& configuration);

// QuickTime metadata: keys with UTF-8 values.
Bytes quickTimeMetadata(const std::vector<std::pair<std::string_view, std::string_view>>& items);
// A "data" box.
Bytes dataBox(std::uint32_t type, const Bytes& value);
// A QuickTime user data text.
Bytes userDataText(std::string_view type, std::uint16_t language, std::string_view text);

// Coded samples that no reader may touch.
Bytes codedSamples(std::size_t count);

// A portrait camera movie: 'qt  ', header behind the samples, H.264 turned by 90 degrees, AAC, a
// metadata track, and the metadata of a phone.
Bytes phoneMovie();
// A movie as an editor saves it for the web: header first, H.264 and AAC, iTunes metadata.
Bytes webMovie();

}  // namespace media::movie
