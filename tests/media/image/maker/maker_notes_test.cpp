// SPDX-License-Identifier: MIT
#include "media/image/maker/maker_notes.h"

#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"
#include "model/description.h"
#include "tests/media/image/container_builder.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using io::ByteOrder;
using model::Dictionary;

std::string nikonNote() {
  return "Nikon\0\2\x10\0\0"s +
         std::string(asText(buildTiff(ByteOrder::big, {{ascii(0x001D, "6001440")}})));
}

std::string appleNote() {
  return std::string(
      asText(buildAppleNote(ByteOrder::big, {integers(1, FieldType::signedLong, {10})})));
}

std::string canonNote(ByteOrder order) {
  return std::string(asText(buildIfd(order, {ascii(0x0009, "Ada Example")}, 0)));
}

Dictionary read(std::string_view note, std::string_view make, ByteOrder order) {
  const Bytes bytes(note.begin(), note.end());
  Dictionary properties = {{"{TIFF}", Dictionary{{"Make", make}}}};
  readMakerNote({io::ByteView(bytes), 0, order}, properties);
  properties.erase("{TIFF}");
  return properties;
}

TEST(MakerNotes, isReadByItsMaker) {
  struct Case {
    std::string note;
    const char* make;
    Dictionary shown;
  };
  const Case cases[] = {
      {appleNote(), "Apple", {{"{MakerApple}", Dictionary{{"1", 10}}}}},
      {appleNote(), "", {{"{MakerApple}", Dictionary{{"1", 10}}}}},
      {nikonNote(), "NIKON CORPORATION", {{"{ExifAux}", Dictionary{{"SerialNumber", "6001440"}}}}},
      {canonNote(ByteOrder::big),
       "Canon",
       {{"{ExifAux}", Dictionary{{"OwnerName", "Ada Example"}}}}},
      {canonNote(ByteOrder::big), "FUJIFILM", {}},
      {nikonNote(), "Canon", {}},
      {"", "Canon", {}},
  };
  for (const Case& each : cases) {
    const Dictionary shown = read(each.note, each.make, ByteOrder::big);
    EXPECT_EQ(shown, each.shown) << each.make << model::description(shown);
  }
}

// Canon's offsets count from the structure around the note.
TEST(MakerNotes, liesInAnExifBlock) {
  constexpr std::uint16_t exifPointer = 0x8769;
  constexpr std::uint16_t makerNote = 0x927C;
  for (const ByteOrder order : {ByteOrder::big, ByteOrder::little}) {
    const auto blockWith = [&](const std::string& note) {
      return buildTiff(order, {{ascii(0x010F, "Canon"), pointerTo(exifPointer, 1)},
                               {undefined(makerNote, note)}});
    };
    const std::string marked(canonNote(order).size(), '#');
    const Bytes around = blockWith(marked);
    const std::size_t offset = asText(around).find(marked);
    const Bytes note = buildIfd(order, {ascii(0x0009, "Ada Example")}, offset);
    Dictionary properties;
    const Bytes block = blockWith(std::string(asText(note)));
    readExifBlock(io::ByteView(block), properties);
    ASSERT_TRUE(entry(properties, "{ExifAux}", "OwnerName"));
    EXPECT_EQ(*entry(properties, "{ExifAux}", "OwnerName"), "Ada Example");
  }
}

}  // namespace
}  // namespace media::image
