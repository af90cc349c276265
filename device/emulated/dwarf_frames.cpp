// SPDX-License-Identifier: MIT
//
// A common entry (CIE) says what is alike in many functions: here one for each personality, and one
// without. An entry a function (FDE) refers to it and says where the function and its handlers lie
// and how its registers are found. All functions that call others keep a frame pointer: the
// caller's frame is 16 bytes above it, the two words there are the caller's x29 and x30, and saved
// registers lie below in pairs, in the order of the encoding's bits. (DWARF 5, section 6.4; the ABI
// supplement for AArch64 numbers x0 to x30 as 0 to 30, the stack pointer 31, d0 to d31 64 to 95.)
#include "device/emulated/dwarf_frames.h"

#include <cstring>

namespace device::emulated {
namespace {

constexpr std::uint8_t framePointer = 29;
constexpr std::uint8_t returnAddress = 30;
constexpr std::uint8_t stackPointer = 31;
constexpr std::uint64_t wordSize = 8;  // bytes

enum FrameInstruction : std::uint8_t {
  nothing = 0x00,
  offsetExtended = 0x05,
  defineFrame = 0x0C,
  offset = 0x80,  // with the register in the lower bits
};

struct SavedPair {
  std::uint32_t bit;
  std::uint8_t first;  // the other register is the next one
};
constexpr SavedPair savedPairs[] = {{0x001, 19}, {0x002, 21}, {0x004, 23}, {0x008, 25}, {0x010, 27},
                                    {0x100, 72}, {0x200, 74}, {0x400, 76}, {0x800, 78}};

class FrameWriter {
 public:
  explicit FrameWriter(std::uint64_t imageAddress) : _imageAddress(imageAddress) {}

  // A common entry; 0 is no personality.
  void beginCommon(std::uint64_t personality) {
    _common.push_back(_bytes.size());
    begin();
    u32(0);  // marks a common entry
    u8(1);   // version
    text(personality != 0 ? "zPLR" : "zR");
    leb(1);    // code is counted in bytes
    u8(0x78);  // data in words downwards: -8 as LEB128
    leb(returnAddress);
    leb(personality != 0 ? 1 + wordSize + 1 + 1 : 1);
    if (personality != 0) {
      u8(0);  // addresses are absolute: the personality's,
      u64(personality);
      u8(0);  // the handlers'
    }
    u8(0);  // and the functions'
    frameAt(stackPointer, 0);
    end();
  }

  void add(const UnwindFunction& function, std::size_t common) {
    begin();
    u32(static_cast<std::uint32_t>(_bytes.size() - _common[common]));
    u64(_imageAddress + function.begin);
    u64(function.end - function.begin);
    leb(common != 0 ? wordSize : 0);
    if (common != 0) u64(function.handlers != 0 ? _imageAddress + function.handlers : 0);
    frameAt(framePointer, 2 * wordSize);
    std::uint8_t slot = 1;
    savedAt(returnAddress, slot++);
    savedAt(framePointer, slot++);
    for (const SavedPair& pair : savedPairs) {
      if (!(function.encoding & pair.bit)) continue;
      savedAt(pair.first, slot++);
      savedAt(static_cast<std::uint8_t>(pair.first + 1), slot++);
    }
    end();
  }

  std::vector<std::uint8_t> finish() && {
    u32(0);
    return std::move(_bytes);
  }

 private:
  // An entry's length stands before it and counts what is behind; entries are whole words.
  void begin() {
    _begin = _bytes.size();
    u32(0);
  }
  void end() {
    while ((_bytes.size() - _begin) % wordSize != 0) u8(nothing);
    const auto length = static_cast<std::uint32_t>(_bytes.size() - _begin - sizeof(std::uint32_t));
    std::memcpy(_bytes.data() + _begin, &length, sizeof length);
  }

  void frameAt(std::uint8_t reg, std::uint64_t distance) {
    u8(defineFrame);
    leb(reg);
    leb(distance);
  }
  // So many words below the caller's frame.
  void savedAt(std::uint8_t reg, std::uint8_t slot) {
    if (reg < 64) {
      u8(static_cast<std::uint8_t>(offset | reg));
    } else {
      u8(offsetExtended);
      leb(reg);
    }
    leb(slot);
  }

  void u8(std::uint8_t value) { _bytes.push_back(value); }
  void u32(std::uint32_t value) { put(value); }
  void u64(std::uint64_t value) { put(value); }
  void leb(std::uint64_t value) {
    for (; value > 0x7F; value >>= 7) u8(static_cast<std::uint8_t>(value | 0x80));
    u8(static_cast<std::uint8_t>(value));
  }
  void text(const char* characters) {
    do u8(static_cast<std::uint8_t>(*characters));
    while (*characters++ != '\0');
  }
  template <typename Integer>
  void put(Integer value) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&value);
    _bytes.insert(_bytes.end(), bytes, bytes + sizeof value);
  }

  std::uint64_t _imageAddress;
  std::vector<std::uint8_t> _bytes;
  std::vector<std::size_t> _common;  // where the common entries begin
  std::size_t _begin = 0;            // of the entry that is being written
};

}  // namespace

model::Result<std::vector<std::uint8_t>> dwarfFrames(const CompactUnwind& unwind,
                                                     std::uint64_t imageAddress,
                                                     std::span<const std::uint64_t> personalities) {
  FrameWriter writer(imageAddress);
  writer.beginCommon(0);
  for (const std::uint64_t personality : personalities) writer.beginCommon(personality);
  for (const UnwindFunction& function : unwind.functions) {
    const FrameKind kind = frameKind(function.encoding);
    if (kind == FrameKind::none || kind == FrameKind::leaf) continue;
    if (kind != FrameKind::framePointer)
      return model::Error{"a function's frame is described elsewhere"};
    const std::uint32_t personality = personalityOf(function.encoding);
    if (personality > personalities.size()) return model::Error{"a function names no personality"};
    writer.add(function, personality);
  }
  return std::move(writer).finish();
}

}  // namespace device::emulated
