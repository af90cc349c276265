// SPDX-License-Identifier: MIT
#include "media/image/ifd/tiff_field.h"

#include <gtest/gtest.h>

#include <vector>

namespace media::image {
namespace {

struct NumberCase {
  FieldType type;
  std::vector<std::uint8_t> bytes;  // big-endian, one value
  std::optional<std::int64_t> integer;
  std::optional<double> real;
};

TEST(TiffField, readsANumberOfEveryType) {
  const NumberCase cases[] = {
      {FieldType::byte, {0xFE}, 254, 254.0},
      {FieldType::undefined, {0x07}, 7, 7.0},
      {FieldType::signedByte, {0xFE}, -2, -2.0},
      {FieldType::ascii, {0x41}, std::nullopt, std::nullopt},
      {FieldType::unsignedShort, {0xFF, 0xFE}, 65534, 65534.0},
      {FieldType::signedShort, {0xFF, 0xFE}, -2, -2.0},
      {FieldType::unsignedLong, {0xFF, 0xFF, 0xFF, 0xFE}, 4294967294, 4294967294.0},
      {FieldType::signedLong, {0xFF, 0xFF, 0xFF, 0xFE}, -2, -2.0},
      {FieldType::ifd, {0, 0, 1, 0}, 256, 256.0},
      {FieldType::rational, {0xFF, 0xFF, 0xFF, 0xFE, 0, 0, 0, 2}, std::nullopt, 2147483647.0},
      {FieldType::signedRational, {0xFF, 0xFF, 0xFF, 0xFE, 0, 0, 0, 4}, std::nullopt, -0.5},
      {FieldType::rational, {0, 0, 0, 1, 0, 0, 0, 0}, std::nullopt, std::nullopt},
      {FieldType::singleFloat, {0x3D, 0xCC, 0xCC, 0xCD}, std::nullopt, 0.1},
      {FieldType::doubleFloat, {0x3F, 0xE0, 0, 0, 0, 0, 0, 0}, std::nullopt, 0.5},
      {FieldType::unsignedLong64, {0, 0, 0, 1, 0, 0, 0, 0}, 4294967296, 4294967296.0},
      {FieldType::signedLong64, std::vector<std::uint8_t>(8, 0xFF), -1, -1.0},
  };
  for (const NumberCase& one : cases) {
    const TiffField big{one.type, io::ByteOrder::big, 1, io::ByteView(one.bytes)};
    EXPECT_EQ(big.integer(0), one.integer) << static_cast<int>(one.type);
    EXPECT_EQ(big.real(0), one.real) << static_cast<int>(one.type);
    EXPECT_EQ(big.integer(1), std::nullopt) << static_cast<int>(one.type);
    EXPECT_EQ(big.real(1), std::nullopt) << static_cast<int>(one.type);
    EXPECT_EQ(sizeOf(one.type), one.bytes.size());
  }
}

TEST(TiffField, typesThatDoNotExistHaveNoSize) {
  for (const int type : {0, 14, 15, 19, 255, 65535}) {
    EXPECT_EQ(sizeOf(static_cast<FieldType>(type)), 0u) << type;
  }
}

TEST(TiffField, readsLittleEndianNumbers) {
  const std::vector<std::uint8_t> bytes = {1, 2, 3, 4};
  const TiffField field{FieldType::unsignedShort, io::ByteOrder::little, 2, io::ByteView(bytes)};
  EXPECT_EQ(field.integer(0), 0x0201);
  EXPECT_EQ(field.integer(1), 0x0403);
}

TEST(TiffField, textEndsAtTheFirstNul) {
  const std::vector<std::uint8_t> bytes = {'a', ' ', 0, 'b'};
  EXPECT_EQ((TiffField{FieldType::ascii, io::ByteOrder::big, 4, io::ByteView(bytes)}.text()), "a ");
  EXPECT_EQ((TiffField{FieldType::unsignedLong, io::ByteOrder::big, 1, io::ByteView(bytes)}.text()),
            "");
}

}  // namespace
}  // namespace media::image
