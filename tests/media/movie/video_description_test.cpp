// SPDX-License-Identifier: MIT
#include "media/movie/tracks/video_description.h"

#include <gtest/gtest.h>

#include "tests/media/movie/reading.h"

namespace media::movie {
namespace {

using model::Dictionary;
using model::Value;

// The extension of that key of an entry with these boxes; null where there is none.
Value extension(const Bytes& boxes, std::string_view key, std::string_view brand = "isom",
                std::string_view code = "avc1") {
  const auto description = readEntry(brand, "vide", videoEntry({.code = code, .boxes = boxes}));
  const Value* value = find(description.extensions, key);
  return value == nullptr ? Value() : *value;
}

TEST(VideoDescription, NamesTheFormat) {
  const struct {
    std::string_view name;
    std::string expected;
  } cases[] = {
      {"", "'avc1'"},
      {"H.264", "H.264"},
      {"Gro\xC3\x9F", "Gro\xC3\x9F"},         // UTF-8
      {"Gro\xA7", "Gro\xC3\x9F"},             // Mac OS Roman
      {std::string_view("AB\0CD", 5), "AB"},  // ends at a zero
  };
  for (const auto& row : cases) {
    const auto description = readEntry("qt  ", "vide", videoEntry({.compressorName = row.name}));
    EXPECT_EQ(*find(description.extensions, "FormatName"), Value(row.expected));
  }
}

TEST(VideoDescription, TakesTheNameWithoutItsLength) {
  Bytes entry = videoEntry({});
  const std::string_view name = "compressed without a length";
  std::copy(name.begin(), name.end(), entry.begin() + 50);
  EXPECT_EQ(*find(readEntry("isom", "vide", entry).extensions, "FormatName"), Value(name));
}

TEST(VideoDescription, KeepsTheEntryAsItIsUnderTheFormatsKey) {
  const Bytes entry = videoEntry({.boxes = Bytes(4, 0)});
  for (const auto& [brand, key, other] :
       {std::tuple("qt  ", "VerbatimSampleDescription", "VerbatimISOSampleEntry"),
        std::tuple("mp42", "VerbatimISOSampleEntry", "VerbatimSampleDescription")}) {
    const auto description = readEntry(brand, "vide", entry);
    ASSERT_NE(find(description.extensions, key), nullptr) << brand;
    EXPECT_EQ(*find(description.extensions, key), Value(entry)) << brand;
    EXPECT_EQ(find(description.extensions, other), nullptr) << brand;
  }
}

TEST(VideoDescription, KeepsUnknownBoxesAsAtoms) {
  const Bytes boxes = joined({box("esds", {1, 2}), box("btrt", {3}), box("uuid", {4}),
                              box("uuid", {5, 6}), box("pasp", Writer().u32(1).u32(1))});
  const Dictionary expected = {
      {"esds", model::Data{1, 2}},
      {"btrt", model::Data{3}},
      {"uuid", model::Array{model::Data{4}, model::Data{5, 6}}},
  };
  EXPECT_EQ(extension(boxes, "SampleDescriptionExtensionAtoms"), Value(expected));
  EXPECT_TRUE(extension({}, "SampleDescriptionExtensionAtoms").isNull());
}

TEST(VideoDescription, ReadsPixelAspectAndCleanAperture) {
  EXPECT_EQ(extension(box("pasp", Writer().u32(10).u32(11)), "CVPixelAspectRatio"),
            Value(Dictionary{{"HorizontalSpacing", 10}, {"VerticalSpacing", 11}}));
  const Bytes whole =
      box("clap", Writer().u32(1920).u32(1).u32(2160).u32(2).u32(0).u32(1).u32(0).u32(1));
  EXPECT_EQ(
      extension(whole, "CVCleanAperture"),
      Value(Dictionary{
          {"Width", 1920}, {"Height", 1080}, {"HorizontalOffset", 0}, {"VerticalOffset", 0}}));
  const Bytes broken = box(
      "clap", Writer().u32(703).u32(2).u32(480).u32(1).u32(std::uint32_t(-1)).u32(4).u32(0).u32(1));
  EXPECT_EQ(extension(broken, "CVCleanAperture"),
            Value(Dictionary{{"Width", 351.5},
                             {"Height", 480},
                             {"HorizontalOffset", -0.25},
                             {"VerticalOffset", 0},
                             {"WidthRational", model::Array{703, 2}},
                             {"HeightRational", model::Array{480, 1}},
                             {"HorizontalOffsetRational", model::Array{-1, 4}},
                             {"VerticalOffsetRational", model::Array{0, 1}}}));
  const Bytes divided =
      box("clap", Writer().u32(703).u32(0).u32(480).u32(1).u32(0).u32(1).u32(0).u32(1));
  EXPECT_TRUE(extension(divided, "CVCleanAperture").isNull());
  EXPECT_TRUE(extension(box("clap", Bytes(31, 1)), "CVCleanAperture").isNull());
  EXPECT_TRUE(extension(box("pasp", Bytes(7, 1)), "CVPixelAspectRatio").isNull());
}

TEST(VideoDescription, ReadsFields) {
  const struct {
    Bytes fields;
    int count;
    Value detail;
  } cases[] = {
      {{1, 0}, 1, {}},
      {{2, 1}, 2, "TemporalTopFirst"},
      {{2, 6}, 2, "TemporalBottomFirst"},
      {{2, 9}, 2, "SpatialFirstLineEarly"},
      {{2, 14}, 2, "SpatialFirstLineLate"},
      {{2, 77}, 2, {}},
      {{0, 1}, 1, {}},
      {{2}, 1, {}},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(extension(box("fiel", row.fields), "CVFieldCount"), Value(row.count));
    EXPECT_EQ(extension(box("fiel", row.fields), "CVFieldDetail"), row.detail);
  }
}

TEST(VideoDescription, NamesColours) {
  const struct {
    std::string_view key;
    int code;
    Value name;
  } cases[] = {
      {"CVImageBufferColorPrimaries", 1, "ITU_R_709_2"},
      {"CVImageBufferColorPrimaries", 2, {}},
      {"CVImageBufferColorPrimaries", 5, "EBU_3213"},
      {"CVImageBufferColorPrimaries", 6, "SMPTE_C"},
      {"CVImageBufferColorPrimaries", 9, "ITU_R_2020"},
      {"CVImageBufferColorPrimaries", 11, "DCI_P3"},
      {"CVImageBufferColorPrimaries", 12, "P3_D65"},
      {"CVImageBufferTransferFunction", 1, "ITU_R_709_2"},
      {"CVImageBufferTransferFunction", 2, {}},
      {"CVImageBufferTransferFunction", 4, "UseGamma"},
      {"CVImageBufferTransferFunction", 5, "UseGamma"},
      {"CVImageBufferTransferFunction", 6, "ITU_R_709_2"},
      {"CVImageBufferTransferFunction", 7, "SMPTE_240M_1995"},
      {"CVImageBufferTransferFunction", 16, "SMPTE_ST_2084_PQ"},
      {"CVImageBufferTransferFunction", 18, "ITU_R_2100_HLG"},
      {"CVImageBufferGammaLevel", 4, 2.2},
      {"CVImageBufferGammaLevel", 5, 2.8},
      {"CVImageBufferYCbCrMatrix", 1, "ITU_R_709_2"},
      {"CVImageBufferYCbCrMatrix", 2, {}},
      {"CVImageBufferYCbCrMatrix", 5, "ITU_R_601_4"},
      {"CVImageBufferYCbCrMatrix", 6, "ITU_R_601_4"},
      {"CVImageBufferYCbCrMatrix", 7, "SMPTE_240M_1995"},
      {"CVImageBufferYCbCrMatrix", 9, "ITU_R_2020"},
      {"CVImageBufferYCbCrMatrix", 65535, {}},
  };
  for (const auto& row : cases) {
    const auto code = static_cast<std::uint64_t>(row.code);
    const Bytes colour = box("colr", Writer().text("nclc").u16(code).u16(code).u16(code));
    EXPECT_EQ(extension(colour, row.key), row.name) << row.key << " " << row.code;
  }
}

TEST(VideoDescription, TellsTheRangeOnlyWhereItIsStated) {
  const auto colour = [](std::string_view kind, const Bytes& flags) {
    return box("colr", {Writer().text(kind).u16(1).u16(1).u16(1), flags});
  };
  EXPECT_EQ(extension(colour("nclx", {0x80}), "FullRangeVideo"), Value(true));
  EXPECT_EQ(extension(colour("nclx", {0x00}), "FullRangeVideo"), Value(false));
  EXPECT_TRUE(extension(colour("nclc", {}), "FullRangeVideo").isNull());
  EXPECT_TRUE(extension(box("colr", Writer().text("prof").zeros(9)), "CVImageBufferColorPrimaries")
                  .isNull());
}

TEST(VideoDescription, SkipsAColourTable) {
  Writer table;
  table.u32(0).u16(0x8000).u16(3).zeros(32);
  Bytes entry = videoEntry(
      {.code = "rle ", .depth = 8, .boxes = joined({table, box("pasp", Writer().u32(2).u32(1))})});
  entry[84] = entry[85] = 0;  // the table stands in the entry
  EXPECT_NE(find(readEntry("qt  ", "vide", entry).extensions, "CVPixelAspectRatio"), nullptr);
}

TEST(VideoDescription, ReadsAShortEntryAsFarAsItGoes) {
  const Bytes whole = videoEntry({.boxes = box("pasp", Writer().u32(2).u32(1))});
  for (std::uint32_t size = 8; size < whole.size(); ++size) {
    Bytes entry(whole.begin(), whole.begin() + size);
    entry[3] = static_cast<std::uint8_t>(size);
    const auto description = readEntry("isom", "vide", entry);
    EXPECT_EQ(description.mediaSubType, model::fourCharCode("avc1")) << size;
    EXPECT_EQ(description.width, size >= 34 ? 1920 : 0) << size;
  }
}

TEST(VideoDescription, MakesTheNaturalSizeWhereTheTrackHasNone) {
  const Bytes clap =
      box("clap", Writer().u32(704).u32(1).u32(480).u32(1).u32(0).u32(1).u32(0).u32(1));
  const auto sizeWith = [](const Bytes& boxes) {
    return readTrackOf({.entry = videoEntry({.width = 720, .height = 480, .boxes = boxes}),
                        .header = trackHeader(1, 1, {1, 0, 0, 1, 0, 0}, 0, 0)})
        .naturalSize;
  };
  EXPECT_EQ(sizeWith({}), (model::Size{720, 480}));
  EXPECT_EQ(sizeWith(clap), (model::Size{704, 480}));
  EXPECT_EQ(sizeWith(box("pasp", Writer().u32(3).u32(2))), (model::Size{1080, 480}));
  EXPECT_EQ(sizeWith(box("pasp", Writer().u32(3).u32(0))), (model::Size{720, 480}));
}

}  // namespace
}  // namespace media::movie
