// SPDX-License-Identifier: MIT
//
// The upper half of a byte is the opcode, the lower half a small number; further numbers and texts
// follow it. A reader that has gone wrong answers zeros, and is asked for that once, at the end.
#include "device/loading/fixups.h"

#include "device/loading/byte_cursor.h"

namespace device::loading {
namespace {

constexpr std::size_t pointerSize = 8;
constexpr std::size_t mostPlaces = 1 << 20;

// Places one behind another: `count` pointers, each followed by `gap` bytes that stay as they are.
struct Run {
  std::uint64_t count = 1;
  std::uint64_t gap = 0;
};

// Calls `write` at each place, and moves the place behind them. Answers whether they are few
// enough.
bool writeRun(Place& place, Run run, std::size_t before, const auto& write) {
  if (run.count > mostPlaces - before) return false;
  for (std::uint64_t index = 0; index < run.count; ++index) {
    write(place);
    place.offset += pointerSize + run.gap;
  }
  return true;
}

Run readRun(ByteCursor& reader) {
  const std::uint64_t count = reader.unsignedLeb();
  return {count, reader.unsignedLeb()};
}

model::Error cutShort() {
  return model::Error{"the opcodes are cut short"};
}

model::Error unknown() {
  return model::Error{"an opcode is unknown"};
}

model::Error tooMany() {
  return model::Error{"there are too many places"};
}

}  // namespace

model::Result<std::vector<Place>> readRebases(io::ByteView opcodes) {
  std::vector<Place> places;
  ByteCursor reader(opcodes);
  Place place;
  bool isDone = false;
  while (!isDone && !reader.isAtEnd()) {
    const std::uint8_t byte = reader.u8();
    const std::uint8_t small = byte & 0x0F;
    Run run{.count = 0};
    switch (byte & 0xF0) {
      case 0x00:
        isDone = true;
        break;
      case 0x10:
        break;  // what is written: a pointer, in all that we link
      case 0x20:
        place = {small, reader.unsignedLeb()};
        break;
      case 0x30:
        place.offset += reader.unsignedLeb();
        break;
      case 0x40:
        place.offset += small * pointerSize;
        break;
      case 0x50:
        run = {.count = small};
        break;
      case 0x60:
        run = {.count = reader.unsignedLeb()};
        break;
      case 0x70:
        run = {.gap = reader.unsignedLeb()};
        break;
      case 0x80:
        run = readRun(reader);
        break;
      default:
        return unknown();
    }
    if (!writeRun(place, run, places.size(), [&](Place at) { places.push_back(at); }))
      return tooMany();
  }
  if (reader.ranOut()) return cutShort();
  return places;
}

model::Result<std::vector<Bind>> readBinds(io::ByteView opcodes, BindTime time) {
  std::vector<Bind> binds;
  ByteCursor reader(opcodes);
  Bind next;
  bool isDone = false;
  while (!isDone && !reader.isAtEnd()) {
    const std::uint8_t byte = reader.u8();
    const std::uint8_t small = byte & 0x0F;
    Run run{.count = 0};
    switch (byte & 0xF0) {
      case 0x00:
        isDone = time == BindTime::atOnce;
        break;
      case 0x10:
        next.ordinal = small;
        break;
      case 0x20:
        next.ordinal = static_cast<std::int64_t>(reader.unsignedLeb());
        break;
      case 0x30:
        next.ordinal = small == 0 ? 0 : small - 16;
        break;
      case 0x40:
        next.isWeak = (small & 1) != 0, next.symbol = std::string(reader.terminatedText());
        break;
      case 0x50:
        break;  // what is written, as above
      case 0x60:
        next.addend = reader.signedLeb();
        break;
      case 0x70:
        next.place = {small, reader.unsignedLeb()};
        break;
      case 0x80:
        next.place.offset += reader.unsignedLeb();
        break;
      case 0x90:
        run = {};
        break;
      case 0xA0:
        run = {.gap = reader.unsignedLeb()};
        break;
      case 0xB0:
        run = {.gap = small * pointerSize};
        break;
      case 0xC0:
        run = readRun(reader);
        break;
      default:
        return unknown();
    }
    const auto bind = [&](Place at) {
      binds.push_back(next);
      binds.back().place = at;
    };
    if (!writeRun(next.place, run, binds.size(), bind)) return tooMany();
  }
  if (reader.ranOut()) return cutShort();
  return binds;
}

}  // namespace device::loading
