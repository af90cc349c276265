// SPDX-License-Identifier: MIT
#include "media/movie/tracks/video_usability.h"

#include <gtest/gtest.h>

#include "tests/media/movie/bit_writer.h"
#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

// What the usability information below says.
const VideoUsability everything = {true, ColourCodes{9, 16, 9}, 2, 3, 4, 3};

// An extended aspect ratio, overscan, full range, colours 9 16 9, chroma locations 2 and 3.
void writeUsability(BitWriter& writer) {
  writer.bits(1, 1).bits(8, 255).bits(16, 4).bits(16, 3);
  writer.bits(2, 3);
  writer.bits(1, 1).bits(3, 5).bits(1, 1).bits(1, 1).bits(8, 9).bits(8, 16).bits(8, 9);
  writer.bits(1, 1).golomb(2).golomb(3).bits(8, 0x80);
}

// With emulation prevention, as units stand in files.
Bytes unit(const Bytes& header, const Bytes& raw) {
  Bytes bytes = header;
  int zeros = 0;
  for (const std::uint8_t byte : raw) {
    if (zeros >= 2 && byte <= 3) {
      bytes.push_back(3);
      zeros = 0;
    }
    zeros = byte == 0 ? zeros + 1 : 0;
    bytes.push_back(byte);
  }
  return bytes;
}

struct AvcOptions {
  int chromaFormat = 1;
  int orderType = 0;
  std::uint8_t profile = 100;
  bool hasScalingLists = false;
  bool hasCropping = true;
};

Bytes avcConfiguration(const AvcOptions& options) {
  BitWriter writer;
  writer.bits(8, options.profile).bits(8, 0).bits(8, 40).golomb(0);
  if (options.profile >= 100) {
    writer.golomb(static_cast<std::uint64_t>(options.chromaFormat));
    if (options.chromaFormat == 3) writer.bits(1, 0);
    writer.golomb(0).golomb(0).bits(1, 0).bits(1, options.hasScalingLists);
    for (int list = 0; options.hasScalingLists && list < (options.chromaFormat == 3 ? 12 : 8);
         ++list) {
      writer.bits(1, list % 2);
      if (list == 1) writer.golomb(16);  // -8: the next scale is 0, so the list ends
      if (list % 2 == 1 && list > 1) {
        for (int index = 0; index < (list < 6 ? 16 : 64); ++index) writer.golomb(index % 2 + 1);
      }
    }
  }
  writer.golomb(4).golomb(static_cast<std::uint64_t>(options.orderType));
  if (options.orderType == 0) writer.golomb(6);
  if (options.orderType == 1) writer.bits(1, 0).golomb(3).golomb(4).golomb(2).golomb(9).golomb(8);
  writer.golomb(4).bits(1, 0).golomb(119).golomb(67).bits(1, 0).bits(1, 1).bits(1, 1);
  writer.bits(1, options.hasCropping);
  for (int side = 0; options.hasCropping && side < 4; ++side) writer.golomb(side == 3 ? 4 : 0);
  writer.bits(1, 1);
  writeUsability(writer);
  const Bytes set = unit({0x67}, writer.bytes());
  return Writer()
      .u8(1)
      .u8(options.profile)
      .u8(0)
      .u8(40)
      .u8(0xFF)
      .u8(0xE1)
      .u16(set.size())
      .bytes(set)
      .u8(0);
}

// The parameter set that begins there in a configuration, behind another unit and its mark.
Bytes bareStream(const Bytes& configuration, std::size_t begin) {
  const auto place = configuration.begin() + static_cast<std::ptrdiff_t>(begin);
  return Writer().u32(1).u8(9).u8(0xF0).u32(1).bytes(Bytes(place, configuration.end()));
}

TEST(VideoUsability, IsFoundBehindEveryShapeOfAnAvcParameterSet) {
  const AvcOptions cases[] = {
      {},
      {.profile = 66},
      {.orderType = 2, .profile = 77, .hasCropping = false},
      {.orderType = 1},
      {.chromaFormat = 3, .profile = 244, .hasScalingLists = true},
      {.hasScalingLists = true},
  };
  for (std::size_t index = 0; index < std::size(cases); ++index) {
    const Bytes configuration = avcConfiguration(cases[index]);
    EXPECT_EQ(usabilityOfAvcConfiguration(io::ByteView(configuration)), everything) << index;
    const Bytes stream = bareStream(configuration, 8);
    EXPECT_EQ(usabilityOfAvcStream(io::ByteView(stream)), everything) << index;
  }
}

struct HevcOptions {
  std::uint32_t subLayers = 0;
  bool hasScalingLists = false;
  bool hasPcm = false;
  bool hasPictureSets = false;
};

void writeProfile(BitWriter& writer, std::uint32_t subLayers) {
  writer.bits(32, 0x01600000).bits(32, 0x90000000).bits(32, 0x0000005D);
  if (subLayers == 0) return;
  for (std::uint32_t layer = 0; layer < subLayers; ++layer) writer.bits(1, layer == 0).bits(1, 1);
  for (std::uint32_t layer = subLayers; layer < 8; ++layer) writer.bits(2, 0);
  writer.bits(64, ~std::uint64_t{0}).bits(24, 0xFFFFFF);
  for (std::uint32_t layer = 0; layer < subLayers; ++layer) writer.bits(8, 0xFF);
}

void writeScalingLists(BitWriter& writer) {
  for (int size = 0; size < 4; ++size) {
    for (int matrix = 0; matrix < 6; matrix += size == 3 ? 3 : 1) {
      writer.bits(1, matrix % 2);
      if (matrix % 2 == 0) {
        writer.golomb(0);
        continue;
      }
      if (size > 1) writer.golomb(4);
      for (int index = 0; index < (size == 0 ? 16 : 64); ++index) writer.golomb(2);
    }
  }
}

// Two sets: three pictures, then one predicted from it that uses two and drops the last two.
void writePictureSets(BitWriter& writer) {
  writer.golomb(2).golomb(2).golomb(1);
  for (int picture = 0; picture < 3; ++picture) writer.golomb(0).bits(1, 1);
  writer.bits(1, 1).bits(1, 0).golomb(0);
  writer.bits(1, 1).bits(1, 1).bits(1, 0).bits(1, 0).bits(1, 0).bits(1, 0);
}

Bytes hevcConfiguration(const HevcOptions& options) {
  BitWriter writer;
  writer.bits(4, 0).bits(3, options.subLayers).bits(1, 1);
  writeProfile(writer, options.subLayers);
  writer.golomb(0).golomb(1).golomb(1920).golomb(1088).bits(1, 1);
  writer.golomb(0).golomb(0).golomb(0).golomb(4).golomb(2).golomb(2).golomb(4);
  writer.bits(1, 1);
  for (std::uint32_t layer = 0; layer <= options.subLayers; ++layer)
    writer.golomb(4).golomb(2).golomb(0);
  for (int field = 0; field < 6; ++field) writer.golomb(static_cast<std::uint64_t>(field));
  writer.bits(1, options.hasScalingLists);
  if (options.hasScalingLists) {
    writer.bits(1, 1);
    writeScalingLists(writer);
  }
  writer.bits(2, 3).bits(1, options.hasPcm);
  if (options.hasPcm) writer.bits(8, 0x77).golomb(0).golomb(2).bits(1, 1);
  if (options.hasPictureSets)
    writePictureSets(writer);
  else
    writer.golomb(0);
  writer.bits(1, 1).golomb(1).bits(8, 5).bits(1, 1);  // a long-term picture, its order in 8 bits
  writer.bits(2, 3).bits(1, 1);
  writeUsability(writer);
  const Bytes set = unit({0x42, 0x01}, writer.bytes());
  Writer configuration;
  configuration.u8(1).zeros(16).u8(0xFA).zeros(4).u8(2);
  configuration.u8(0x20).u16(1).u16(3).u24(0x400102);
  return configuration.u8(0xA1).u16(1).u16(set.size()).bytes(set);
}

TEST(VideoUsability, IsFoundBehindEveryShapeOfAnHevcParameterSet) {
  const HevcOptions cases[] = {
      {},
      {.subLayers = 3},
      {.hasScalingLists = true},
      {.hasPcm = true},
      {.hasPictureSets = true},
      {.subLayers = 6, .hasScalingLists = true, .hasPcm = true, .hasPictureSets = true},
  };
  for (std::size_t index = 0; index < std::size(cases); ++index) {
    const Bytes configuration = hevcConfiguration(cases[index]);
    EXPECT_EQ(usabilityOfHevcConfiguration(io::ByteView(configuration)), everything) << index;
    const Bytes stream = bareStream(configuration, 36);
    EXPECT_EQ(usabilityOfHevcStream(io::ByteView(stream)), everything) << index;
  }
}

TEST(VideoUsability, IsTheDefaultWhereASetIsCut) {
  for (const bool isHevc : {false, true}) {
    const Bytes whole = isHevc ? hevcConfiguration({.subLayers = 2, .hasPictureSets = true})
                               : avcConfiguration({.hasScalingLists = true});
    const auto read = isHevc ? usabilityOfHevcConfiguration : usabilityOfAvcConfiguration;
    for (std::size_t length = 0; length + 1 < whole.size(); ++length)
      EXPECT_EQ(read(io::ByteView(whole).sub(0, length).value()), VideoUsability()) << length;
  }
}

TEST(VideoUsability, SurvivesAnyBytes) {
  for (int fill = 0; fill < 256; ++fill) {
    Bytes bytes(3000, static_cast<std::uint8_t>(fill));
    usabilityOfAvcConfiguration(io::ByteView(bytes));
    usabilityOfHevcConfiguration(io::ByteView(bytes));
    bytes[5] = 1;
    bytes[6] = 0x0B;
    usabilityOfAvcConfiguration(io::ByteView(bytes));
    bytes[22] = 1;
    bytes[23] = 33;
    usabilityOfHevcConfiguration(io::ByteView(bytes));
  }
}

TEST(VideoUsability, SetsTheExtensions) {
  const Bytes boxes = joined({box("colr", Writer().text("nclc").u16(1).u16(1).u16(1)),
                              box("hvcC", hevcConfiguration({}))});
  const auto description = readEntry("qt  ", "vide", videoEntry({.code = "hvc1", .boxes = boxes}));
  const auto at = [&](std::string_view key) { return *find(description.extensions, key); };
  EXPECT_EQ(at("FullRangeVideo"), model::Value(true));
  EXPECT_EQ(at("BitsPerComponent"), model::Value(10));
  EXPECT_EQ(at("CVImageBufferChromaLocationTopField"), model::Value("TopLeft"));
  EXPECT_EQ(at("CVImageBufferChromaLocationBottomField"), model::Value("Top"));
  EXPECT_EQ(at("CVImageBufferColorPrimaries"), model::Value("ITU_R_709_2")) << "the box wins";
  const auto bare =
      readEntry("qt  ", "vide", videoEntry({.boxes = box("avcC", avcConfiguration({}))}));
  EXPECT_EQ(*find(bare.extensions, "CVImageBufferColorPrimaries"), model::Value("ITU_R_2020"));
  EXPECT_EQ(*find(bare.extensions, "CVImageBufferTransferFunction"),
            model::Value("SMPTE_ST_2084_PQ"));
  EXPECT_EQ(find(bare.extensions, "BitsPerComponent"), nullptr);
}

}  // namespace
}  // namespace media::movie
