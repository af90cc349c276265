// SPDX-License-Identifier: MIT
#include "media/image/tiff/tiff_container.h"

#include <gtest/gtest.h>

#include "model/description.h"
#include "tests/support/kept_seed.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using model::Dictionary;
using model::Value;
using Fields = std::vector<FieldToWrite>;

// The properties of a file, and the error where there is one as their "error".
Dictionary readFile(const Bytes& bytes) {
  support::keepSeed(bytes);
  io::MemorySource source(bytes);
  io::SourceReader reader(source);
  Dictionary properties;
  const auto error = readTiffFile(reader, properties);
  return error ? Dictionary{{"error", error->reason}} : properties;
}

Value propertyOf(const std::vector<Fields>& ifds, std::string_view key) {
  const Dictionary properties = readFile(buildTiff(io::ByteOrder::little, ifds));
  const Value* value = model::find(properties, key);
  return value ? *value : Value();
}

Fields sized(std::int64_t width, std::int64_t height, Fields more = {}) {
  more.push_back(longs(0x0100, {width}));
  more.push_back(longs(0x0101, {height}));
  return more;
}

TEST(TiffFile, hasThePropertiesOfItsImage) {
  const Fields fields =
      sized(640, 480,
            {shorts(0x0102, {16, 16, 16}), shorts(0x0103, {5}), shorts(0x0106, {2}),
             shorts(0x0112, {3}), rationals(0x011A, {{100, 1}}), rationals(0x011B, {{200, 1}}),
             shorts(0x0128, {3}), longs(0x0142, {256}), longs(0x0143, {128})});
  const Dictionary tiff{{"Compression", 5},     {"PhotometricInterpretation", 2},
                        {"Orientation", 3},     {"XResolution", 100.0},
                        {"YResolution", 200.0}, {"ResolutionUnit", 3},
                        {"TileWidth", 256},     {"TileLength", 128}};
  for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
    const Dictionary properties = readFile(buildTiff(order, {fields}));
    EXPECT_EQ(properties, (Dictionary{{"PixelWidth", 640},
                                      {"PixelHeight", 480},
                                      {"Depth", 16},
                                      {"ColorModel", "RGB"},
                                      {"DPIWidth", 254.0},
                                      {"DPIHeight", 508.0},
                                      {"Orientation", 3},
                                      {"{TIFF}", tiff}}))
        << model::description(properties);
  }
}

struct ModelCase {
  Fields fields;
  const char* colorModel;
};

TEST(TiffFile, theColourModelFollowsThePhotometricInterpretation) {
  const ModelCase cases[] = {
      {{shorts(0x0106, {0})}, "Gray"},    {{shorts(0x0106, {1})}, "Gray"},
      {{shorts(0x0106, {2})}, "RGB"},     {{shorts(0x0106, {3})}, "RGB"},
      {{shorts(0x0106, {4})}, "Gray"},    {{shorts(0x0106, {5})}, "CMYK"},
      {{shorts(0x0106, {6})}, "RGB"},     {{shorts(0x0106, {8})}, "Lab"},
      {{shorts(0x0106, {32803})}, "RGB"}, {{shorts(0x0115, {3})}, "RGB"},
      {{shorts(0x0115, {1})}, "Gray"},    {{}, "Gray"},
  };
  for (const ModelCase& one : cases) {
    EXPECT_EQ(propertyOf({sized(8, 8, one.fields)}, "ColorModel"), Value(one.colorModel))
        << (one.fields.empty() ? 0 : one.fields[0].numbers[0]);
  }
}

TEST(TiffFile, alphaAndFloatsAreSaidWhereTheyAre) {
  EXPECT_EQ(propertyOf({sized(8, 8, {shorts(0x0152, {1})})}, "HasAlpha"), Value(true));
  EXPECT_EQ(propertyOf({sized(8, 8, {shorts(0x0152, {2})})}, "HasAlpha"), Value(true));
  EXPECT_EQ(propertyOf({sized(8, 8, {shorts(0x0152, {0})})}, "HasAlpha"), Value());
  EXPECT_EQ(propertyOf({sized(8, 8)}, "HasAlpha"), Value());
  EXPECT_EQ(propertyOf({sized(8, 8, {shorts(0x0153, {3, 3, 3})})}, "IsFloat"), Value(true));
  EXPECT_EQ(propertyOf({sized(8, 8, {shorts(0x0153, {1})})}, "IsFloat"), Value());
}

TEST(TiffFile, bilevelImagesHaveADepthOfOne) {
  EXPECT_EQ(propertyOf({sized(8, 8)}, "Depth"), Value(1));
}

struct SizeCase {
  const char* name;
  std::vector<Fields> ifds;
  std::int64_t width;
};

TEST(TiffFile, theMainImageOfARawFileIsItsFullOne) {
  const Fields preview = {longs(0x00FE, {1}), pointerTo(0x014A, 1), pointerTo(0x8769, 2)};
  const SizeCase cases[] = {
      {"a full image below a preview",
       {sized(160, 120, {longs(0x00FE, {1}), pointerTo(0x014A, 1)}), sized(4352, 2868)},
       4352},
      {"a reduced image below a full one",
       {sized(4000, 3000, {pointerTo(0x014A, 1)}), sized(5000, 4000, {longs(0x00FE, {1})})},
       4000},
      {"nothing but a preview", {sized(160, 120, {longs(0x00FE, {1})})}, 160},
      {"the default crop of DNG",
       {sized(160, 120, {longs(0x00FE, {1}), pointerTo(0x014A, 1)}),
        sized(4352, 2868, {rationals(0xC620, {{4288, 1}, {2844, 1}})})},
       4288},
      {"the picture that the Exif directory describes",
       {sized(160, 120, preview),
        sized(6048, 4024),
        {longs(0xA002, {6000}), longs(0xA003, {4000})}},
       6000},
      {"an Exif directory that describes something smaller",
       {sized(160, 120, preview),
        sized(6048, 4024),
        {longs(0xA002, {1600}), longs(0xA003, {1200})}},
       6048},
      {"an Exif directory in a file that is no raw file",
       {sized(640, 480, {pointerTo(0x8769, 1)}), {longs(0xA002, {639}), longs(0xA003, {479})}},
       640},
  };
  for (const SizeCase& one : cases) {
    EXPECT_EQ(propertyOf(one.ifds, "PixelWidth"), Value(one.width)) << one.name;
  }
}

TEST(TiffFile, anImageThatOnlyTheExifDirectoryDescribesIsASensors) {
  const std::vector<Fields> ifds = {{shorts(0x0103, {6}), pointerTo(0x8769, 1)},
                                    {longs(0xA002, {3872}), longs(0xA003, {2592})}};
  EXPECT_EQ(propertyOf(ifds, "PixelWidth"), Value(3872));
  EXPECT_EQ(propertyOf(ifds, "ColorModel"), Value("RGB"));
  EXPECT_EQ(propertyOf(ifds, "Depth"), Value());
}

TEST(TiffFile, aSensorInBlackAndWhiteIsInColour) {
  Bytes orf = buildTiff(io::ByteOrder::little,
                        {sized(4100, 3084, {shorts(0x0102, {16}), shorts(0x0106, {1})})});
  for (const char last : {'O', 'S'}) {
    orf[2] = 'R';
    orf[3] = static_cast<std::uint8_t>(last);
    EXPECT_EQ(readFile(orf).at("ColorModel"), Value("RGB"));
    EXPECT_EQ(readFile(orf).at("Depth"), Value(16));
  }
}

TEST(TiffFile, whatHasNoSizeIsAnError) {
  Bytes cut = buildTiff(io::ByteOrder::big, {sized(8, 8)});
  cut.resize(9);
  EXPECT_EQ(readFile(cut), (Dictionary{{"error", "truncated TIFF"}}));
  EXPECT_EQ(readFile(buildTiff(io::ByteOrder::big, {{shorts(0x0112, {1})}})),
            (Dictionary{{"error", "TIFF without an image"}}));
  EXPECT_EQ(readFile(buildTiff(io::ByteOrder::big, {sized(0, 8)})),
            (Dictionary{{"error", "TIFF without an image"}}));
}

TEST(TiffFile, isKnownByItsHeader) {
  const Bytes tiff = buildTiff(io::ByteOrder::big, {});
  EXPECT_TRUE(isTiffFile(io::ByteView(tiff)));
  const Bytes other = {'G', 'I', 'F', '8', '9', 'a', 0, 0};
  EXPECT_FALSE(isTiffFile(io::ByteView(other)));
}

TEST(TiffFile, pixelsAreNotRead) {
  Bytes bytes =
      buildTiff(io::ByteOrder::big,
                {sized(4000, 3000, {longs(0x0111, {0x10000}), longs(0x0117, {36'000'000})})});
  bytes.resize(36'000'000);
  io::MemorySource source(std::move(bytes));
  io::SourceReader reader(source);
  Dictionary properties;
  EXPECT_FALSE(readTiffFile(reader, properties));
  EXPECT_LE(source.bytesRead(), io::SourceReader::headSize);
}

TEST(TiffFile, directoriesInACircleEnd) {
  FieldToWrite below = longs(0x014A, std::vector<std::int64_t>(1000, 8));
  EXPECT_EQ(propertyOf({sized(8, 9, {below})}, "PixelHeight"), Value(9));
}

}  // namespace
}  // namespace media::image
