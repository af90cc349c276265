// SPDX-License-Identifier: MIT
#include "tests/support/avi_builder.h"

namespace media::movie {

namespace {

// Fields of AVI are little-endian.
class LittleWriter {
 public:
  LittleWriter& u16(std::uint32_t value) { return number(value, 2); }
  LittleWriter& u32(std::uint32_t value) { return number(value, 4); }
  LittleWriter& text(std::string_view text) {
    _bytes.insert(_bytes.end(), text.begin(), text.end());
    return *this;
  }
  LittleWriter& bytes(const Bytes& bytes) {
    _bytes.insert(_bytes.end(), bytes.begin(), bytes.end());
    return *this;
  }
  LittleWriter& zeros(std::size_t count) {
    _bytes.insert(_bytes.end(), count, 0);
    return *this;
  }
  operator Bytes() const { return _bytes; }  // NOLINT: a writer stands for what it wrote

 private:
  LittleWriter& number(std::uint32_t value, int size) {
    for (int shift = 0; shift < 8 * size; shift += 8)
      _bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    return *this;
  }

  Bytes _bytes;
};

Bytes chunk(std::string_view type, const Bytes& content) {
  return LittleWriter()
      .text(type)
      .u32(static_cast<std::uint32_t>(content.size()))
      .bytes(content)
      .zeros(content.size() % 2);
}

Bytes list(std::string_view type, std::initializer_list<Bytes> parts) {
  return chunk("LIST", joined({LittleWriter().text(type), joined(parts)}));
}

constexpr std::uint32_t pictures = 10;
constexpr std::uint32_t pictureBytes = 16 * 8 * 3;
constexpr std::uint32_t soundBytes = 8000 / 25 * 4;  // beside one picture

Bytes streamHeader(std::string_view type, std::uint32_t scale, std::uint32_t rate,
                   std::uint32_t length, std::uint32_t sampleSize) {
  return chunk("strh", LittleWriter()
                           .text(type)
                           .zeros(16)
                           .u32(scale)
                           .u32(rate)
                           .u32(0)
                           .u32(length)
                           .u32(100000)
                           .u32(0xFFFFFFFF)
                           .u32(sampleSize)
                           .zeros(8));
}

Bytes videoStream() {
  const Bytes format =
      LittleWriter().u32(40).u32(16).u32(8).u16(1).u16(24).u32(0).u32(pictureBytes).zeros(16);
  return list("strl", {streamHeader("vids", 1, 25, pictures, 0), chunk("strf", format)});
}

Bytes soundStream() {
  const Bytes format = LittleWriter().u16(1).u16(2).u32(8000).u32(32000).u16(4).u16(16).u16(0);
  return list("strl", {streamHeader("auds", 4, 32000, pictures * soundBytes / 4, 4),
                       chunk("strf", format)});
}

}  // namespace

Bytes smallAvi() {
  const Bytes header = chunk("avih", LittleWriter()
                                         .u32(40000)
                                         .u32(0)
                                         .u32(0)
                                         .u32(0x100)
                                         .u32(pictures)
                                         .u32(0)
                                         .u32(2)
                                         .u32(100000)
                                         .u32(16)
                                         .u32(8)
                                         .zeros(16));
  Bytes content;
  for (std::uint32_t picture = 0; picture < pictures; ++picture)
    content = joined(
        {content, chunk("00db", Bytes(pictureBytes, 0x40)), chunk("01wb", Bytes(soundBytes, 0))});
  const Bytes information = list("INFO", {chunk("INAM", Writer().text("A small film"))});
  return chunk("RIFF", joined({LittleWriter().text("AVI "),
                               list("hdrl", {header, videoStream(), soundStream()}), information,
                               list("movi", {content})}));
}

}  // namespace media::movie
