// SPDX-License-Identifier: MIT
#include "media/image/tiff/tiff_sections.h"

#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"
#include "model/description.h"
#include "tests/media/image/container_builder.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;
using model::Dictionary;
using model::Value;

constexpr std::uint16_t exifPointer = 0x8769;
constexpr std::uint16_t gpsPointer = 0x8825;

Dictionary readBlock(const Bytes& block) {
  Dictionary properties;
  readExifBlock(io::ByteView(block), properties);
  return properties;
}

// A block with every section in it.
Bytes wholeBlock(io::ByteOrder order) {
  const Bytes note = buildAppleNote(io::ByteOrder::big, {integers(1, FieldType::signedLong, {10})});
  return buildTiff(order,
                   {{ascii(0x010F, "Maker"), shorts(0x0112, {6}), rationals(0x011A, {{72, 1}}),
                     pointerTo(exifPointer, 1), pointerTo(gpsPointer, 2)},
                    {rationals(0x829A, {{1, 50}}), undefined(0x927C, asText(note))},
                    {ascii(1, "N"), rationals(2, {{10, 1}, {30, 1}, {0, 1}})}});
}

const Dictionary wholeProperties{
    {"Orientation", 6},
    {"{TIFF}", Dictionary{{"Make", "Maker"}, {"Orientation", 6}, {"XResolution", 72.0}}},
    {"{Exif}", Dictionary{{"ExposureTime", 0.02}}},
    {"{GPS}", Dictionary{{"LatitudeRef", "N"}, {"Latitude", 10.5}}},
    {"{MakerApple}", Dictionary{{"1", 10}}}};

TEST(ExifBlock, fillsItsSections) {
  for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
    const Dictionary properties = readBlock(wholeBlock(order));
    EXPECT_EQ(properties, wholeProperties) << model::description(properties);
  }
}

TEST(ExifBlock, aGpsDirectoryBelowTheExifDirectoryIsFound) {
  const Bytes block =
      buildTiff(io::ByteOrder::big,
                {{pointerTo(exifPointer, 1)}, {pointerTo(gpsPointer, 2)}, {ascii(1, "S")}});
  EXPECT_EQ(readBlock(block), (Dictionary{{"{GPS}", Dictionary{{"LatitudeRef", "S"}}}}));
}

TEST(ExifBlock, pointersMayHaveTheTypeOfDirectories) {
  FieldToWrite pointer = pointerTo(exifPointer, 1);
  pointer.type = FieldType::ifd;
  const Bytes block = buildTiff(io::ByteOrder::big, {{pointer}, {shorts(0x9209, {1})}});
  EXPECT_EQ(readBlock(block), (Dictionary{{"{Exif}", Dictionary{{"Flash", 1}}}}));
}

TEST(ExifBlock, goesBeforeWhatOtherBlocksSaid) {
  Dictionary properties{
      {"{Exif}", Dictionary{{"ExposureTime", 4.0}, {"LensModel", "from a packet"}}}};
  const Bytes block = wholeBlock(io::ByteOrder::big);
  readExifBlock(io::ByteView(block), properties);
  EXPECT_EQ(properties.at("{Exif}"),
            Value(Dictionary{{"ExposureTime", 0.02}, {"LensModel", "from a packet"}}));
}

TEST(ExifBlock, theFirstFieldOfATagCounts) {
  const Bytes block = buildTiff(io::ByteOrder::big, {{ascii(0x010F, "one"), ascii(0x010F, "two")}});
  EXPECT_EQ(readBlock(block), (Dictionary{{"{TIFF}", Dictionary{{"Make", "one"}}}}));
}

TEST(ExifBlock, aDirectoryOfUnknownTagsMakesNoSection) {
  const Bytes block = buildTiff(
      io::ByteOrder::big,
      {{pointerTo(exifPointer, 1), longs(0x0100, {640})}, {undefined(0xEA1C, "padding")}});
  EXPECT_TRUE(readBlock(block).empty());
}

TEST(ExifBlock, damagedBlocksGiveWhatCanBeRead) {
  const Bytes whole = wholeBlock(io::ByteOrder::little);
  int read = 0;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Dictionary properties =
        readBlock(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    for (const auto& [key, value] : properties) EXPECT_TRUE(wholeProperties.contains(key)) << key;
    if (!properties.empty()) ++read;
  }
  EXPECT_GT(read, 0);
}

TEST(ExifBlock, anyByteMayBeWrong) {
  const Bytes whole = wholeBlock(io::ByteOrder::big);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const int wrong : {0x00, 0x01, 0x7F, 0x80, 0xFF}) {
      Bytes damaged = whole;
      damaged[at] = static_cast<std::uint8_t>(wrong);
      EXPECT_LE(readBlock(damaged).size(), wholeProperties.size() + 1) << at;
    }
  }
}

TEST(ExifBlock, directoriesInACircleAreReadOnce) {
  const Bytes block =
      buildTiff(io::ByteOrder::big,
                {{ascii(0x010F, "Maker"), pointerTo(exifPointer, 0), pointerTo(gpsPointer, 1)},
                 {pointerTo(gpsPointer, 1), pointerTo(exifPointer, 0)}});
  EXPECT_EQ(readBlock(block), (Dictionary{{"{TIFF}", Dictionary{{"Make", "Maker"}}}}));
}

TEST(ExifBlock, sharedBytesCostLittle) {
  // Every tag claims the whole block as its text or array.
  std::vector<FieldToWrite> fields;
  for (std::uint32_t tag = 0; tag < 0x10000; ++tag) {
    const bool isText = tag % 2 == 0;
    fields.push_back(FieldToWrite{.tag = static_cast<std::uint16_t>(tag),
                                  .type = isText ? FieldType::ascii : FieldType::unsignedShort,
                                  .count = isText ? 0xFFFFu : 0x1000u,
                                  .claimedOffset = 16});
  }
  fields.resize(0xFFFF);
  const Bytes block = buildTiff(io::ByteOrder::big, {fields});
  const Dictionary properties = readBlock(block);
  EXPECT_LT(model::description(model::Value(properties)).size(), 16 * block.size());
}

TEST(ExifBlock, photoshopsDatasetsFillWhatTheOthersLeaveEmpty) {
  const std::string empty = iptcDataset(2, 90, "");
  const std::string filled = photoshopResource(0x0404, iptcDataset(2, 90, "Kingston"));
  const Bytes block =
      buildTiff(io::ByteOrder::big, {{undefined(0x8649, filled), undefined(0x83BB, empty)}});
  EXPECT_EQ(readBlock(block), (Dictionary{{"{IPTC}", Dictionary{{"City", "Kingston"}}}}));
}

TEST(ExifBlock, otherBytesAreNoBlock) {
  for (const std::string_view text : {""sv, "II*\0"sv, "Exif\0\0MM\0*"sv, "\xFF\xD8\xFF\xE1"sv}) {
    EXPECT_TRUE(readBlock(Bytes(text.begin(), text.end())).empty()) << text;
  }
}

}  // namespace
}  // namespace media::image
