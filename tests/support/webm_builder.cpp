// SPDX-License-Identifier: MIT
#include "tests/support/webm_builder.h"

namespace media::movie {

namespace {

Bytes textElement(std::uint32_t id, std::string_view text) {
  return ebmlElement(id, Writer().text(text));
}

Bytes tracks() {
  const Bytes size =
      joined({ebmlElement(0xB0, Writer().u16(320)), ebmlElement(0xBA, Writer().u16(240))});
  const Bytes rate = Writer().u64(0x40E7700000000000);  // 48,000 as a real
  const Bytes video =
      joined({ebmlElement(0xD7, {1}), ebmlElement(0x73C5, {1}), ebmlElement(0x83, {1}),
              textElement(0x86, "V_VP8"), ebmlElement(0xE0, size)});
  const Bytes sound =
      joined({ebmlElement(0xD7, {2}), ebmlElement(0x73C5, {2}), ebmlElement(0x83, {2}),
              textElement(0x86, "A_VORBIS"),
              ebmlElement(0xE1, joined({ebmlElement(0xB5, rate), ebmlElement(0x9F, {1})}))});
  return ebmlElement(0x1654AE6B, joined({ebmlElement(0xAE, video), ebmlElement(0xAE, sound)}));
}

Bytes tagsOf(const std::vector<WebmTag>& tags) {
  Writer list;
  list.bytes(ebmlElement(0x63C0, ebmlElement(0x63C5, {1})));
  for (const WebmTag& tag : tags)
    list.bytes(ebmlElement(
        0x67C8, joined({textElement(0x45A3, tag.name), textElement(0x4487, tag.value)})));
  return ebmlElement(0x1254C367, ebmlElement(0x7373, list));
}

}  // namespace

Bytes ebmlElement(std::uint32_t id, const Bytes& content) {
  Writer writer;
  for (int shift = 24; shift >= 0; shift -= 8)
    if ((id >> shift) != 0) writer.u8(static_cast<std::uint8_t>(id >> shift));
  return writer.u8(1)
      .u24(static_cast<std::uint32_t>(content.size() >> 32))
      .u32(content.size())
      .bytes(content);
}

Bytes webmMovie(const std::vector<WebmPacket>& packets, const std::vector<WebmTag>& tags) {
  constexpr std::uint32_t nanoseconds = 1'000'000;  // of a tick
  const Bytes head = ebmlElement(0x1A45DFA3, textElement(0x4282, "webm"));
  const Bytes information =
      ebmlElement(0x1549A966, ebmlElement(0x2AD7B1, Writer().u32(nanoseconds)));
  Writer blocks;
  blocks.bytes(ebmlElement(0xE7, {0}));
  for (const WebmPacket& packet : packets)
    blocks.bytes(ebmlElement(0xA3, Writer()
                                       .u8(0x80U | packet.track)
                                       .u16(packet.milliseconds)
                                       .u8(0x80)
                                       .bytes(Bytes(packet.size, 1))));
  Writer segment;
  segment.bytes(information).bytes(tracks());
  if (!tags.empty()) segment.bytes(tagsOf(tags));
  segment.bytes(ebmlElement(0x1F43B675, blocks));
  return joined({head, ebmlElement(0x18538067, segment)});
}

}  // namespace media::movie
