// SPDX-License-Identifier: MIT
#include "tests/support/crowded_containers.h"

#include <algorithm>

#include "tests/support/webm_builder.h"

namespace media::movie {

namespace {

constexpr std::size_t packetSize = 188;

// ISO/IEC 13818-1, annex A.
std::uint32_t checksum(const Bytes& bytes) {
  std::uint32_t value = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) {
    value ^= std::uint32_t{byte} << 24;
    for (int bit = 0; bit < 8; ++bit)
      value = (value & 0x80000000) != 0 ? (value << 1) ^ 0x04C11DB7 : value << 1;
  }
  return value;
}

// The payload in packets of that number, the first of them marked.
Bytes packets(std::uint32_t number, const Bytes& payload) {
  Bytes all;
  std::uint32_t counter = 0;
  constexpr std::size_t room = packetSize - 4;
  for (std::size_t offset = 0; offset < payload.size(); offset += room) {
    const std::size_t size = std::min(room, payload.size() - offset);
    const auto from = payload.begin() + static_cast<std::ptrdiff_t>(offset);
    Writer packet;
    packet.u8(0x47).u16((offset == 0 ? 0x4000U : 0U) | number).u8(0x10 | (counter++ & 15));
    packet.bytes(Bytes(from, from + static_cast<std::ptrdiff_t>(size)));
    packet.bytes(Bytes(room - size, 0xFF));
    const Bytes bytes = packet;
    all.insert(all.end(), bytes.begin(), bytes.end());
  }
  return all;
}

// A table of programs or of streams: ISO/IEC 13818-1, 2.4.4.
Bytes section(std::uint8_t table, std::uint32_t number, const Bytes& content) {
  Writer writer;
  writer.u8(table).u16(0xB000 | (content.size() + 9)).u16(number).u8(0xC1).u8(0).u8(0);
  const Bytes bytes = writer.bytes(content);
  return Writer().u8(0).bytes(bytes).u32(checksum(bytes));
}

Bytes little(std::uint32_t value) {
  return Writer()
      .u8(static_cast<std::uint8_t>(value))
      .u8(static_cast<std::uint8_t>(value >> 8))
      .u8(static_cast<std::uint8_t>(value >> 16))
      .u8(static_cast<std::uint8_t>(value >> 24));
}

Bytes aviChunk(std::string_view type, const Bytes& content) {
  return Writer()
      .text(type)
      .bytes(little(static_cast<std::uint32_t>(content.size())))
      .bytes(content);
}

}  // namespace

Bytes crowdedTransportStream(int streams) {
  constexpr int streamsOfProgram = 100;
  constexpr std::uint32_t firstTable = 0x100;
  constexpr std::uint32_t firstStream = 0x200;
  Writer programs;
  Bytes tables;
  Bytes samples;
  const auto add = [](Bytes& all, const Bytes& more) {
    all.insert(all.end(), more.begin(), more.end());
  };
  for (int first = 0; first < streams; first += streamsOfProgram) {
    const auto program = static_cast<std::uint32_t>(first / streamsOfProgram + 1);
    programs.u16(program).u16(0xE000 | (firstTable + program));
    Writer list;
    list.u16(0xE000 | firstStream).u16(0xF000);
    for (int index = first; index < std::min(streams, first + streamsOfProgram); ++index) {
      const std::uint32_t number = firstStream + static_cast<std::uint32_t>(index);
      const bool isSound = index % 2 == 1;
      list.u8(isSound ? 0x0F : 0x1B).u16(0xE000 | number).u16(0xF000);
      const Bytes start = Writer().u24(1).u8(isSound ? 0xC0 : 0xE0).u16(0).u8(0x80).u8(0).u8(0);
      const Bytes unit = Writer().u32(1).u8(0x67).bytes(Bytes(150, 0x42));
      add(samples, packets(number, Writer().bytes(start).bytes(unit)));
    }
    add(tables, packets(firstTable + program, section(2, program, list)));
  }
  Bytes all = packets(0, section(0, 1, programs));
  add(all, tables);
  for (int round = 0; round < 3; ++round) add(all, samples);
  return all;
}

Bytes crowdedMatroska(int tracks) {
  Writer entries;
  for (int index = 1; index <= tracks; ++index) {
    const Bytes number = Writer().u16(static_cast<std::uint32_t>(index));
    const Bytes size = Writer().u32(0x7FFFFFFF);
    entries.bytes(ebmlElement(
        0xAE,
        joined({ebmlElement(0xD7, number), ebmlElement(0x73C5, number), ebmlElement(0x83, {1}),
                ebmlElement(0x86, Writer().text("V_MPEG4/ISO/AVC")),
                ebmlElement(0x63A2, Bytes(64, 1)),
                ebmlElement(0xE0, joined({ebmlElement(0xB0, size), ebmlElement(0xBA, size)}))})));
  }
  const Bytes head = ebmlElement(0x1A45DFA3, ebmlElement(0x4282, Writer().text("matroska")));
  const Bytes information = ebmlElement(0x1549A966, ebmlElement(0x2AD7B1, Writer().u32(1'000'000)));
  const Bytes block = ebmlElement(0xA3, Writer().u8(0x81).u16(0).u8(0x80).bytes(Bytes(64, 0x65)));
  const Bytes cluster = ebmlElement(0x1F43B675, joined({ebmlElement(0xE7, {0}), block}));
  const Bytes name = ebmlElement(0x45A3, Writer().text("LOCATION"));
  const Bytes place = ebmlElement(0x4487, Writer().text("+51.4169-000.0806/"));
  const Bytes tag = ebmlElement(
      0x7373, joined({ebmlElement(0x63C0, {}), ebmlElement(0x67C8, joined({name, place}))}));
  return joined(
      {head, ebmlElement(0x18538067, joined({information, ebmlElement(0x1654AE6B, entries),
                                             ebmlElement(0x1254C367, tag), cluster}))});
}

Bytes crowdedAvi(int streams) {
  Writer lists;
  lists.text("hdrl").bytes(aviChunk("avih", Bytes(56, 1)));
  for (int index = 0; index < streams; ++index) {
    const Bytes header = Writer().text("vidsH264").bytes(Bytes(48, 1));
    // The size that the format states of itself is far beyond the chunk.
    const Bytes format = joined({little(0x40000000), Bytes(36, 0x7F)});
    const Bytes stream =
        joined({Writer().text("strl"), aviChunk("strh", header), aviChunk("strf", format)});
    lists.bytes(aviChunk("LIST", stream));
  }
  const Bytes movie =
      aviChunk("LIST", Writer().text("movi").bytes(aviChunk("00dc", Bytes(64, 0x65))));
  return aviChunk("RIFF", joined({Writer().text("AVI "), aviChunk("LIST", lists), movie}));
}

}  // namespace media::movie
