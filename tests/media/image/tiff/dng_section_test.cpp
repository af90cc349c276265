// SPDX-License-Identifier: MIT
#include "media/image/tiff/dng_section.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/tag_rows.h"

namespace media::image {
namespace {

using model::Array;
using model::Dictionary;
using model::Value;

// A field alone makes no digital negative: the version is read with it, and taken out again.
void readOne(TiffStructure& structure, const Ifd& ifd, Dictionary& properties) {
  Ifd first = ifd;
  if (!first.find(0xC612)) {
    first.entries.push_back({.tag = 0xC612, .type = FieldType::byte, .count = 1});
    readDngSection(structure, first, first, properties);
    properties.at("{DNG}").asDictionary()->erase("DNGVersion");
  } else {
    readDngSection(structure, first, first, properties);
  }
}

// A value of its row's kind: texts, reals, numbers in arrays, numbers.
TagCase caseOf(const TagRow& row) {
  if (row.valueOf == textValue) return {row.key, ascii(row.tag, "text"), "text"};
  if (row.valueOf == realValue) {
    return {row.key, rationals(row.tag, {{1, 2}, {3, 4}}), Array{0.5, 0.75}};
  }
  if (row.valueOf == integerArray) {
    return {row.key, integers(row.tag, FieldType::byte, {1, 4, 0, 0}), Array{1, 4, 0, 0}};
  }
  return {row.key, longs(row.tag, {4032, 3024}), Array{4032, 3024}};
}

TEST(DngSection, showsEveryTag) {
  std::vector<TagCase> cases;
  for (const TagRow& row : dngTags()) cases.push_back(caseOf(row));
  expectShown(cases, readOne, "{DNG}");
}

TEST(DngSection, keysAreThoseOfTheFormat) {
  const TagCase cases[] = {
      {"DNGVersion", integers(0xC612, FieldType::byte, {1, 4, 0, 0}), Array{1, 4, 0, 0}},
      {"UniqueCameraModel", ascii(0xC614, "Maker X1"), "Maker X1"},
      {"BlackLevel", rationals(0xC61A, {{256, 1}}), 256.0},
      {"WhiteLevel", shorts(0xC61D, {16383}), 16383},
      {"ColorMatrix1", signedRationals(0xC621, {{1, 2}, {-1, 4}}), Array{0.5, -0.25}},
      {"AsShotNeutral", rationals(0xC628, {{1, 2}, {1, 1}, {3, 4}}), Array{0.5, 1.0, 0.75}},
      {"BaselineExposure", signedRationals(0xC62A, {{-1, 2}}), -0.5},
      {"CameraSerialNumber", ascii(0xC62F, "77"), "77"},
      {"LensInfo", rationals(0xC630, {{18, 1}, {55, 1}, {0, 0}, {0, 0}}),
       Array{18.0, 55.0, 0.0, 0.0}},
      {"CalibrationIlluminant1", shorts(0xC65A, {17}), 17},
      {"OriginalRawFileName", ascii(0xC68B, "IMG_1.CR2"), "IMG_1.CR2"},
  };
  expectShown(cases, readOne, "{DNG}");
}

TEST(DngSection, digitalNegativesAloneHaveIt) {
  const auto fileWith = [](std::vector<FieldToWrite> fields) {
    fields.insert(fields.begin(), {shorts(0x0100, {8}), shorts(0x0101, {6})});
    return std::string(asText(buildTiff(io::ByteOrder::little, {fields})));
  };
  const FieldToWrite model = ascii(0xC614, "Maker X1");
  const FieldToWrite version = integers(0xC612, FieldType::byte, {1, 4, 0, 0});
  EXPECT_FALSE(propertiesOf(fileWith({model})).contains("{DNG}"));
  EXPECT_EQ(
      propertiesOf(fileWith({version, model})).at("{DNG}"),
      Value(Dictionary{{"DNGVersion", Array{1, 4, 0, 0}}, {"UniqueCameraModel", "Maker X1"}}));
}

TEST(DngSection, theMainImagesTagsCountToo) {
  FieldToWrite subIfd = pointerTo(0x014A, 1);
  const Bytes file =
      buildTiff(io::ByteOrder::little,
                {{longs(0x00FE, {1}), shorts(0x0100, {8}), shorts(0x0101, {6}), subIfd,
                  integers(0xC612, FieldType::byte, {1, 4, 0, 0}), ascii(0xC614, "Maker X1")},
                 {longs(0x00FE, {0}), shorts(0x0100, {80}), shorts(0x0101, {60}),
                  shorts(0xC61D, {4095}), ascii(0xC614, "hidden")}});
  EXPECT_EQ(propertiesOf(asText(file)).at("{DNG}"),
            Value(Dictionary{{"DNGVersion", Array{1, 4, 0, 0}},
                             {"UniqueCameraModel", "Maker X1"},
                             {"WhiteLevel", 4095}}));
}

}  // namespace
}  // namespace media::image
