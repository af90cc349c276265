// SPDX-License-Identifier: MIT
#include "media/movie/other/other_containers.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "io/byte_view.h"

namespace media::movie {

namespace {

using namespace std::string_view_literals;

struct Mark {
  std::string_view bytes;
  std::uint64_t offset = 0;
};

// All marks of a row must be there; an empty mark always is.
struct Container {
  Mark first;
  Mark second = {};
  Mark third = {};
};

constexpr Container containers[] = {
    {{"\x1A\x45\xDF\xA3"sv}},                           // Matroska, WebM: an EBML header
    {{"RIFF"sv}, {"AVI "sv, 8}},                        //
    {{"FLV\x01"sv}},                                    //
    {{"\0\0\x01\xBA"sv}},                               // MPEG program stream: a pack
    {{"\0\0\x01\xB3"sv}},                               // MPEG video: a sequence
    {{"\x47"sv}, {"\x47"sv, 188}, {"\x47"sv, 376}},     // MPEG transport stream
    {{"\x47"sv, 4}, {"\x47"sv, 196}, {"\x47"sv, 388}},  // with time stamps: camcorders
    {{"\x30\x26\xB2\x75\x8E\x66\xCF\x11"sv}},           // ASF: WMV
    {{"OggS"sv}},                                       //
    {{".RMF"sv}},                                       // RealMedia
    {{"\x06\x0E\x2B\x34"sv}},                           // MXF: a universal label
    {{"nut/multimedia container"sv}},                   //
};

bool has(io::ByteView bytes, const Mark& mark) {
  const auto found = bytes.sub(mark.offset, mark.bytes.size());
  return found && found->text() == mark.bytes;
}

}  // namespace

model::Result<bool> isOtherContainer(io::ByteSource& source) {
  std::array<std::uint8_t, 1024> head{};
  const auto count = source.readAt(0, head);
  if (!count) return count.error();
  const io::ByteView bytes(std::span<const std::uint8_t>(head).first(*count));
  return std::ranges::any_of(containers, [&](const Container& row) {
    return has(bytes, row.first) && has(bytes, row.second) && has(bytes, row.third);
  });
}

}  // namespace media::movie
