// SPDX-License-Identifier: MIT
#include "media/image/maker/nikon_cipher.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace media::image {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes countedTo16() {
  Bytes bytes(16);
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  return bytes;
}

TEST(NikonCipher, agreesWithAnotherProgram) {
  struct Case {
    std::uint8_t serial;
    std::uint32_t shutterCount;
    Bytes decoded;
  };
  const Case cases[] = {
      {6001440 & 0xFF,
       8458,
       {0x94, 0x12, 0x73, 0xAD, 0xCE, 0xC0, 0x99, 0x5F, 0xF8, 0x6E, 0xB7, 0xF9, 0x0A, 0xF4, 0xC5,
        0x73}},
      {0x60,
       4000000123,
       {0xB0, 0xAC, 0xC5, 0xFD, 0x56, 0xC6, 0x57, 0xFB, 0xCC, 0xA0, 0xA1, 0xC1, 0x0A, 0x52, 0xDB,
        0x67}},
  };
  for (const Case& each : cases) {
    Bytes bytes = countedTo16();
    decodeNikon(bytes, each.serial, each.shutterCount);
    EXPECT_EQ(bytes, each.decoded);
    decodeNikon(bytes, each.serial, each.shutterCount);
    EXPECT_EQ(bytes, countedTo16());
  }
}

}  // namespace
}  // namespace media::image
