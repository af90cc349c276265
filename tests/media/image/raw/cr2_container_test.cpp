// SPDX-License-Identifier: MIT
#include "media/image/raw/cr2_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

// A lossless JPEG with that depth.
std::string sensorJpeg(char depth) {
  std::string frame = jpegFrame(1752, 2336, 2, 0xC3);
  frame[4] = depth;
  return jpegFile(jpegSegment(0xC4, std::string(32, 'h')) + frame);
}

std::vector<FieldToWrite> preview(std::int64_t width, std::int64_t height) {
  return {longs(0x0100, {width}), longs(0x0101, {height}), shorts(0x0102, {8, 8, 8}),
          shorts(0x0103, {6}),    ascii(0x010F, "Canon"),  pointerTo(0x8769, 1)};
}

std::string cr2Of(const std::string& sensor) {
  return cr2File(preview(1536, 1024), {longs(0xA002, {3504}), longs(0xA003, {2336})}, sensor);
}

TEST(Cr2Container, hasTheSizeOfTheExifDirectoryAndTheDepthOfTheSensor) {
  const auto properties = propertiesOf(cr2Of(sensorJpeg(14)));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 3504);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 2336);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(*entry(properties, "", "Depth"), 14);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Canon");
}

TEST(Cr2Container, aLargerPreviewIsTheSize) {
  const std::string larger = cr2File(preview(5472, 3648), {longs(0xA002, {160})}, sensorJpeg(14));
  EXPECT_EQ(*entry(propertiesOf(larger), "", "PixelWidth"), 5472);
}

TEST(Cr2Container, theDepthOfThePreviewIsNotThePictures) {
  for (const std::string& sensor : {std::string(), std::string("no JPEG"), sensorJpeg(0),
                                    sensorJpeg(14).substr(0, 30), sensorJpeg('\x7F')}) {
    EXPECT_FALSE(entry(propertiesOf(cr2Of(sensor)), "", "Depth"));
  }
}

TEST(Cr2Container, saysWhyThereIsNoSize) {
  EXPECT_EQ(errorOf(cr2Of("").substr(0, 17)), "truncated CR2");
  EXPECT_EQ(errorOf(cr2File({ascii(0x010F, "Canon")}, {}, "")), "damaged CR2");
}

}  // namespace
}  // namespace media::image
