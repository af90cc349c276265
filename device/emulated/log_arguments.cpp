// SPDX-License-Identifier: MIT
#include "device/emulated/log_arguments.h"

#include <algorithm>

#include "device/loading/byte_cursor.h"

namespace device::emulated {
namespace {

using loading::ByteCursor;

// Of the first byte: whether some argument is private, and whether some is no number.
constexpr std::uint8_t hasPrivate = 1;
constexpr std::uint8_t hasObjects = 2;
constexpr std::uint8_t isPublic = 2;  // of an argument's own byte, the lower half

std::uint64_t number(ByteCursor& buffer, std::uint8_t size) {
  std::uint64_t value = 0;
  for (unsigned byte = 0; byte < size; ++byte) value |= std::uint64_t{buffer.u8()} << (8 * byte);
  return value;
}

bool isKnown(LogArgument::Kind kind) {
  using enum LogArgument::Kind;
  return kind == number || kind == text || kind == object;
}

}  // namespace

model::Result<std::vector<LogArgument>> readLogArguments(io::ByteView buffer) {
  ByteCursor cursor(buffer);
  const std::uint8_t summary = cursor.u8();
  std::vector<LogArgument> arguments(cursor.u8());
  for (LogArgument& argument : arguments) {
    const std::uint8_t description = cursor.u8();
    const std::uint8_t size = cursor.u8();
    if (size > sizeof argument.value) return model::Error{"an argument is too large"};
    argument.kind = static_cast<LogArgument::Kind>(description >> 4);
    argument.value = number(cursor, size);
    if ((description & 0x0F) != isPublic) return model::Error{"an argument is not public"};
    if (!isKnown(argument.kind)) return model::Error{"an argument is of an unknown kind"};
  }
  if (cursor.ranOut() || !cursor.isAtEnd()) return model::Error{"a buffer of another size"};
  const bool anyObjects = std::ranges::any_of(arguments, [](const LogArgument& argument) {
    return argument.kind != LogArgument::Kind::number;
  });
  if (summary & hasPrivate || ((summary & hasObjects) != 0) != anyObjects)
    return model::Error{"a head that does not fit"};
  return arguments;
}

}  // namespace device::emulated
