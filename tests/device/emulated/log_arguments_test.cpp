// SPDX-License-Identifier: MIT
#include "device/emulated/log_arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace device::emulated {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string refusal(const Bytes& buffer) {
  const auto arguments = readLogArguments(io::ByteView(buffer));
  return arguments ? "" : arguments.error().reason;
}

TEST(LogArguments, AreKindsAndValues) {
  const Bytes buffer = {2,    3,                          // something is no number; three arguments
                        0x22, 8, 1, 2, 0, 0, 0, 0, 0, 0,  // a text
                        0x02, 4, 7, 0, 0, 0,              // a number
                        0x42, 8, 0, 0, 0, 0, 0, 0, 0, 1};  // an object
  const auto arguments = readLogArguments(io::ByteView(buffer));
  ASSERT_TRUE(arguments) << arguments.error().reason;
  ASSERT_EQ(arguments->size(), 3U);
  EXPECT_EQ((*arguments)[0].kind, LogArgument::Kind::text);
  EXPECT_EQ((*arguments)[0].value, 0x201U);
  EXPECT_EQ((*arguments)[1].kind, LogArgument::Kind::number);
  EXPECT_EQ((*arguments)[1].value, 7U);
  EXPECT_EQ((*arguments)[2].kind, LogArgument::Kind::object);
  EXPECT_EQ((*arguments)[2].value, 1ULL << 56);
}

TEST(LogArguments, ABufferThatTheLogWouldMisreadIsRefused) {
  const struct {
    Bytes buffer;
    const char* refusal;
  } cases[] = {
      {{}, "a buffer of another size"},
      {{0, 1}, "an argument is not public"},
      {{0, 1, 0x02, 4, 7, 0, 0}, "a buffer of another size"},
      {{0, 1, 0x02, 4, 7, 0, 0, 0, 0}, "a buffer of another size"},
      {{0, 1, 0x02, 9}, "an argument is too large"},
      {{0, 1, 0x01, 1, 7}, "an argument is not public"},
      {{0, 1, 0x00, 1, 7}, "an argument is not public"},
      {{0, 1, 0x12, 1, 7}, "an argument is of an unknown kind"},
      {{2, 1, 0x02, 1, 7}, "a head that does not fit"},
      {{0, 1, 0x22, 1, 7}, "a head that does not fit"},
      {{3, 1, 0x22, 1, 7}, "a head that does not fit"},
  };
  for (const auto& [buffer, expected] : cases)
    EXPECT_EQ(refusal(buffer), expected) << buffer.size() << " bytes";
}

}  // namespace
}  // namespace device::emulated
