// SPDX-License-Identifier: MIT
//
// The upper half of a byte is the opcode, the lower half a small number; further numbers and texts
// follow it. A reader that has gone wrong answers zeros, and is asked for that once, at the end.
#include "device/loading/fixups.h"

namespace device::loading {
namespace {

constexpr std::size_t pointerSize = 8;
constexpr std::size_t mostPlaces = 1 << 20;

class OpcodeReader {
 public:
  explicit OpcodeReader(io::ByteView bytes) : _bytes(bytes) {}

  bool isAtEnd() const { return _at >= _bytes.size(); }
  bool isCut() const { return _isCut; }

  std::uint8_t byte() {
    const auto next = _bytes.u8(_at++);
    _isCut |= !next;
    return next.value_or(0);
  }

  // Seven bits a byte, the lowest first; the eighth says that more follow.
  std::uint64_t number() { return bits().value; }

  std::int64_t signedNumber() {
    const auto [value, width] = bits();
    const bool isNegative = width < 64 && (value >> (width - 1) & 1) != 0;
    return static_cast<std::int64_t>(isNegative ? value | ~std::uint64_t{0} << width : value);
  }

  std::string text() {
    const std::string_view rest = _bytes.from(_at).text();
    const std::size_t length = rest.find('\0');
    _isCut |= length == std::string_view::npos;
    const std::string_view text = rest.substr(0, length);
    _at += text.size() + 1;
    return std::string(text);
  }

 private:
  struct Bits {
    std::uint64_t value;
    unsigned width;
  };

  Bits bits() {
    std::uint64_t value = 0;
    unsigned width = 0;
    std::uint8_t next = 0;
    do {
      next = byte();
      if (width < 64) value |= std::uint64_t{next & 0x7FU} << width;
      width += 7;
    } while ((next & 0x80) != 0);
    return {value, width};
  }

  io::ByteView _bytes;
  std::size_t _at = 0;
  bool _isCut = false;
};

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

Run readRun(OpcodeReader& reader) {
  const std::uint64_t count = reader.number();
  return {count, reader.number()};
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
  OpcodeReader reader(opcodes);
  Place place;
  bool isDone = false;
  while (!isDone && !reader.isAtEnd()) {
    const std::uint8_t byte = reader.byte();
    const std::uint8_t small = byte & 0x0F;
    Run run{.count = 0};
    switch (byte & 0xF0) {
      case 0x00:
        isDone = true;
        break;
      case 0x10:
        break;  // what is written: a pointer, in all that we link
      case 0x20:
        place = {small, reader.number()};
        break;
      case 0x30:
        place.offset += reader.number();
        break;
      case 0x40:
        place.offset += small * pointerSize;
        break;
      case 0x50:
        run = {.count = small};
        break;
      case 0x60:
        run = {.count = reader.number()};
        break;
      case 0x70:
        run = {.gap = reader.number()};
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
  if (reader.isCut()) return cutShort();
  return places;
}

model::Result<std::vector<Bind>> readBinds(io::ByteView opcodes, BindTime time) {
  std::vector<Bind> binds;
  OpcodeReader reader(opcodes);
  Bind next;
  bool isDone = false;
  while (!isDone && !reader.isAtEnd()) {
    const std::uint8_t byte = reader.byte();
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
        next.ordinal = static_cast<std::int64_t>(reader.number());
        break;
      case 0x30:
        next.ordinal = small == 0 ? 0 : small - 16;
        break;
      case 0x40:
        next.isWeak = (small & 1) != 0, next.symbol = reader.text();
        break;
      case 0x50:
        break;  // what is written, as above
      case 0x60:
        next.addend = reader.signedNumber();
        break;
      case 0x70:
        next.place = {small, reader.number()};
        break;
      case 0x80:
        next.place.offset += reader.number();
        break;
      case 0x90:
        run = {};
        break;
      case 0xA0:
        run = {.gap = reader.number()};
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
  if (reader.isCut()) return cutShort();
  return binds;
}

}  // namespace device::loading
