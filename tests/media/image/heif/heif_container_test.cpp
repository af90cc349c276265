// SPDX-License-Identifier: MIT
#include "media/image/heif/heif_container.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"
#include "tests/media/image/heif_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

constexpr std::string_view hevcConfiguration =
    "\1\1\x60\0\0\0\0\0\0\0\0\0\x5A\xF0\0\xFC\xFD\xFA\xFA\0\0\0\0";

// One coded image with an Exif and an XMP item.
HeifToWrite single() {
  HeifToWrite heif;
  heif.items = {
      {.id = 1, .type = "hvc1", .bytes = "coded", .properties = {1, 2, 3}},
      {.id = 2, .type = "Exif", .bytes = heifExifItem(exifBlock("Maker", 6))},
      {.id = 3,
       .type = "mime",
       .contentType = "application/rdf+xml",
       .bytes = xmpPacket("<photoshop:City>Kingston</photoshop:City>")},
  };
  heif.properties = {heifExtents(4032, 3024), heifPixelInformation({8, 8, 8}),
                     heifIccColors(iccProfile("Display P3"))};
  heif.references = {{"cdsc", 2, {1}}, {"cdsc", 3, {1}}};
  return heif;
}

// A grid of two tiles.
HeifToWrite grid(const std::string& gridBytes) {
  HeifToWrite heif;
  heif.primary = 10;
  heif.items = {
      {.id = 1, .type = "hvc1", .bytes = "coded", .properties = {1, 3}},
      {.id = 2, .type = "hvc1", .bytes = "coded", .properties = {1, 3}},
      {.id = 10, .type = "grid", .bytes = gridBytes, .properties = {2}, .isInItemData = true},
  };
  heif.properties = {heifExtents(512, 256), heifExtents(1000, 250),
                     heifPixelInformation({10, 10, 10})};
  heif.references = {{"dimg", 10, {1, 2}}};
  return heif;
}

TEST(HeifContainer, readsThePrimaryImageAndItsBlocks) {
  for (const int locationVersion : {0, 1, 2}) {
    for (const int itemVersion : {2, 3}) {
      for (const bool isMetaAtEnd : {false, true}) {
        HeifToWrite heif = single();
        heif.locationVersion = locationVersion;
        heif.itemVersion = itemVersion;
        heif.hasMetaAtEnd = isMetaAtEnd;
        const auto properties = propertiesOf(heifFile(heif));
        const model::Dictionary expected = {{"ColorModel", "RGB"},
                                            {"DPIHeight", 300.0},
                                            {"DPIWidth", 300.0},
                                            {"Depth", 8},
                                            {"Orientation", 6},
                                            {"PixelHeight", 3024},
                                            {"PixelWidth", 4032},
                                            {"PrimaryImage", true},
                                            {"ProfileName", "Display P3"},
                                            {"{IPTC}", model::Dictionary{{"City", "Kingston"}}},
                                            {"{TIFF}", model::Dictionary{{"Make", "Maker"},
                                                                         {"Orientation", 6},
                                                                         {"ResolutionUnit", 2},
                                                                         {"XResolution", 300.0},
                                                                         {"YResolution", 300.0}}}};
        EXPECT_EQ(properties, expected) << locationVersion << itemVersion << isMetaAtEnd;
      }
    }
  }
}

TEST(HeifContainer, aGridHasTilesAndSharesTheirProperties) {
  const auto properties = propertiesOf(heifFile(grid("")));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 1000);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 250);
  EXPECT_EQ(*entry(properties, "", "Depth"), 10);
  EXPECT_EQ(*entry(properties, "{TIFF}", "TileWidth"), 512);
  EXPECT_EQ(*entry(properties, "{TIFF}", "TileLength"), 256);
}

TEST(HeifContainer, aGridWithoutExtentsSaysItsSizeItself) {
  for (const std::string& bytes : {"\0\0\0\1"s + bigEndian(1000, 2) + bigEndian(250, 2),
                                   "\0\1\0\1"s + bigEndian(1000, 4) + bigEndian(250, 4)}) {
    for (const bool isInItemData : {true, false}) {
      HeifToWrite heif = grid(bytes);
      heif.items.back().properties.clear();
      heif.items.back().isInItemData = isInItemData;
      const auto properties = propertiesOf(heifFile(heif));
      EXPECT_EQ(*entry(properties, "", "PixelWidth"), 1000);
      EXPECT_EQ(*entry(properties, "", "PixelHeight"), 250);
    }
  }
}

TEST(HeifContainer, turnsAndMirroringsBecomeAnOrientation) {
  struct Case {
    std::vector<std::string> transforms;
    int orientation;
  };
  const auto turn = [](char quarters) { return isoBox("irot", std::string(1, quarters)); };
  const auto mirror = [](char axis) { return isoBox("imir", std::string(1, axis)); };
  const Case cases[] = {
      {{turn(0)}, 1},
      {{turn(1)}, 8},
      {{turn(2)}, 3},
      {{turn(3)}, 6},
      {{mirror(0)}, 4},
      {{mirror(1)}, 2},
      {{turn(1), mirror(0)}, 5},
      {{turn(1), mirror(1)}, 7},
      {{turn(3), mirror(1)}, 5},
      {{turn(2), mirror(1)}, 4},
      {{mirror(1), turn(3)}, 7},
  };
  for (const Case& each : cases) {
    HeifToWrite heif = single();
    heif.items.resize(1);
    heif.references.clear();
    for (const std::string& transform : each.transforms) {
      heif.properties.push_back(transform);
      heif.items[0].properties.push_back(static_cast<int>(heif.properties.size()));
    }
    const auto properties = propertiesOf(heifFile(heif));
    ASSERT_TRUE(entry(properties, "", "Orientation"));
    EXPECT_EQ(*entry(properties, "", "Orientation"), each.orientation);
    EXPECT_EQ(*entry(properties, "{TIFF}", "Orientation"), each.orientation);
    EXPECT_EQ(*entry(properties, "", "PixelWidth"), 4032);
  }
}

TEST(HeifContainer, turnsOfTheImageGoBeforeTheOrientationOfExif) {
  const struct {
    std::string property;
    int orientation;
  } cases[] = {{isoBox("irot", "\2"), 3},
               {isoBox("irot", std::string(1, '\0')), 1},
               {isoBox("imir", "\1"), 2},
               {isoBox("clap", std::string(32, '\1')), 6}};
  for (const auto& row : cases) {
    HeifToWrite heif = single();
    heif.properties.push_back(row.property);
    heif.items[0].properties.push_back(4);
    const auto properties = propertiesOf(heifFile(heif));
    EXPECT_EQ(*entry(properties, "", "Orientation"), row.orientation) << row.property;
    EXPECT_EQ(*entry(properties, "{TIFF}", "Orientation"), row.orientation) << row.property;
  }
}

TEST(HeifContainer, aSequenceWithoutAStillIsNoImage) {
  const auto read = [](const std::string& bytes) {
    io::MemorySource source({bytes.begin(), bytes.end()});
    return copyProperties(source);
  };
  const std::string sequence = isoBox("ftyp", "msf1" + bigEndian(0, 4) + "hevc");
  const auto properties = read(sequence + isoBox("moov", isoBox("mvhd", std::string(100, '\0'))));
  ASSERT_TRUE(properties);
  EXPECT_FALSE(*properties);
  const auto damaged = read(sequence + isoBox("mdat", "coded"));
  ASSERT_FALSE(damaged);
  EXPECT_EQ(damaged.error().reason, "damaged HEIF");
}

TEST(HeifContainer, depthAndColoursComeFromWhereTheyAre) {
  struct Case {
    std::string property;
    const char* colorModel;
    int depth;
  };
  const Case cases[] = {
      {heifPixelInformation({8}), "Gray", 8},
      {heifPixelInformation({12, 12, 12}), "RGB", 12},
      {isoBox("hvcC", std::string(hevcConfiguration.data(), 23)), "RGB", 10},
      {isoBox("hvcC", std::string(16, '\0') + "\0\0"s), "Gray", 8},
      {isoBox("av1C", "\x81\0\x0C\0"s), "RGB", 8},
      {isoBox("av1C", "\x81\0\x40\0"s), "RGB", 10},
      {isoBox("av1C", "\x81\0\x70\0"s), "Gray", 12},
      {isoBox("free", ""), "RGB", 8},
  };
  for (const Case& each : cases) {
    HeifToWrite heif = single();
    heif.properties[1] = each.property;
    const auto properties = propertiesOf(heifFile(heif));
    EXPECT_EQ(*entry(properties, "", "ColorModel"), each.colorModel) << each.property;
    EXPECT_EQ(*entry(properties, "", "Depth"), each.depth) << each.property;
  }
}

TEST(HeifContainer, codePointsStandForProfilesAndRealProfilesGoFirst) {
  struct Case {
    std::vector<std::string> colors;
    const char* name;
  };
  const Case cases[] = {
      {{heifCodedColors(12, 13)}, "Display P3"},
      {{heifCodedColors(1, 13)}, "sRGB IEC61966-2.1"},
      {{heifCodedColors(9, 16)}, nullptr},
      {{heifCodedColors(1, 13), heifIccColors(iccProfile("Real"))}, "Real"},
      {{heifIccColors("short")}, nullptr},
  };
  for (const Case& each : cases) {
    HeifToWrite heif = single();
    heif.properties.resize(2);
    heif.items[0].properties = {1, 2};
    for (const std::string& colors : each.colors) {
      heif.properties.push_back(colors);
      heif.items[0].properties.push_back(static_cast<int>(heif.properties.size()));
    }
    const auto properties = propertiesOf(heifFile(heif));
    const model::Value* name = entry(properties, "", "ProfileName");
    EXPECT_EQ(name ? *name : model::Value(), each.name ? model::Value(each.name) : model::Value());
  }
}

TEST(HeifContainer, anAlphaPlaneIsAnAuxiliaryImageOfThePrimary) {
  for (const char* type : {"urn:mpeg:mpegB:cicp:systems:auxiliary:alpha",
                           "urn:mpeg:hevc:2015:auxid:1", "urn:mpeg:hevc:2015:auxid:2"}) {
    HeifToWrite heif = single();
    heif.properties.push_back(fullBox("auxC", 0, 0, type + "\0"s));
    heif.items.push_back({.id = 4, .type = "hvc1", .bytes = "coded", .properties = {1, 4}});
    heif.references.push_back({"auxl", 4, {1}});
    EXPECT_EQ(entry(propertiesOf(heifFile(heif)), "", "HasAlpha") != nullptr,
              !std::string_view(type).ends_with("2"))
        << type;
  }
}

TEST(HeifContainer, theExifItemOfThePrimaryImageIsTaken) {
  HeifToWrite heif = single();
  heif.items.insert(heif.items.begin() + 1,
                    {.id = 5, .type = "Exif", .bytes = heifExifItem(exifBlock("Other", 1))});
  heif.references.push_back({"cdsc", 5, {4}});
  EXPECT_EQ(*entry(propertiesOf(heifFile(heif)), "{TIFF}", "Make"), "Maker");
  heif.references.clear();
  EXPECT_EQ(*entry(propertiesOf(heifFile(heif)), "{TIFF}", "Make"), "Other");
}

TEST(HeifContainer, anExifItemMayLackItsOffset) {
  for (const std::string& bytes : {exifBlock("Maker", 6), "\0\0\0\0"s + exifBlock("Maker", 6),
                                   "\0\0\0\3abc"s + exifBlock("Maker", 6)}) {
    HeifToWrite heif = single();
    heif.items[1].bytes = bytes;
    EXPECT_EQ(*entry(propertiesOf(heifFile(heif)), "{TIFF}", "Make"), "Maker");
  }
  HeifToWrite heif = single();
  heif.items[1].bytes = "\xFF\xFF\xFF\xFF" + exifBlock("Maker", 6);
  EXPECT_FALSE(entry(propertiesOf(heifFile(heif)), "", "{TIFF}"));
}

TEST(HeifContainer, codedImagesAreNotRead) {
  HeifToWrite heif = single();
  heif.padding = 3'000'000;
  for (const bool isMetaAtEnd : {false, true}) {
    heif.hasMetaAtEnd = isMetaAtEnd;
    io::MemorySource source(bytesOf(heifFile(heif)));
    const auto properties = copyProperties(source);
    ASSERT_TRUE(properties && *properties);
    EXPECT_EQ(*entry(**properties, "{TIFF}", "Make"), "Maker");
    EXPECT_LE(source.bytesRead(), 80U * 1024);
  }
}

TEST(HeifContainer, knowsTheBrandsOfImages) {
  struct Case {
    std::string head;
    bool isImage;
  };
  const Case cases[] = {
      {isoBox("ftyp", "heic\0\0\0\0"s), true},
      {isoBox("ftyp", "avif\0\0\0\0avifmif1"s), true},
      {isoBox("ftyp", "xxxx\0\0\0\0mif1"s), true},
      {isoBox("ftyp", "xxxx\0\0\0\0yyyy"s), false},
      {isoBox("ftyp", "qt  \0\0\0\0mif1"s), false},
      {isoBox("ftyp", "mp42\0\0\0\0isom"s), false},
      {isoBox("ftyp", "hei"), false},
      {isoBox("moov", "heic\0\0\0\0"s), false},
  };
  for (const Case& each : cases) EXPECT_EQ(isHeifFile(viewOf(each.head)), each.isImage);
}

TEST(HeifContainer, saysWhyThereIsNoImage) {
  const std::string file = heifFile(single());
  const std::string type = isoBox("ftyp", "heic\0\0\0\0mif1heic"s);
  EXPECT_EQ(errorOf(file.substr(0, type.size() + 30)), "truncated HEIF");
  EXPECT_EQ(errorOf(file.substr(0, type.size() + 4)), "truncated HEIF");
  EXPECT_EQ(errorOf(type), "damaged HEIF");
  EXPECT_EQ(errorOf(type + fullBox("meta", 0, 0, "")), "damaged HEIF");
  HeifToWrite heif = single();
  heif.primary = 99;
  EXPECT_EQ(errorOf(heifFile(heif)), "damaged HEIF");
  heif = single();
  heif.properties[0] = heifExtents(0, 10);
  EXPECT_EQ(errorOf(heifFile(heif)), "damaged HEIF");
}

TEST(HeifContainer, hostileTablesCostLittle) {
  const std::string type = isoBox("ftyp", "heic\0\0\0\0mif1heic"s);
  const std::string primary = fullBox("pitm", 0, 0, "\0\1"s);
  const std::string extents =
      isoBox("iprp", isoBox("ipco", heifExtents(8, 6)) +
                         fullBox("ipma", 0, 0, bigEndian(1, 4) + "\0\1\1\1"s));
  std::string entriesWithoutWidth;  // each claims 65,535 extents of no bytes
  for (int id = 2; id < 60'000; ++id) {
    entriesWithoutWidth += bigEndian(static_cast<std::uint64_t>(id), 2) + "\0\0\xFF\xFF"s;
  }
  std::string manyItems;
  std::string manyReferences;
  for (int id = 0; id < 60'000; ++id) {
    const std::string number = bigEndian(static_cast<std::uint64_t>(id), 2);
    manyItems += fullBox("infe", 2, 0, number + "\0\0Exif\0"s);
    manyReferences += isoBox("cdsc", number + "\0\1\0\1"s) + isoBox("auxl", number + "\0\1\0\1"s);
  }
  std::string nested;
  for (std::uint64_t inside = 20'000; inside > 0; --inside) {
    nested.append(bigEndian(8 * inside, 4)).append("meta");
  }
  const std::string hostile[] = {
      fullBox("iloc", 0, 0, "\0\0"s + bigEndian(60'000, 2) + entriesWithoutWidth),
      fullBox("iloc", 1, 0, "\xFF\xFF\xFF\xFF" + std::string(100, '\xFF')),
      fullBox("iinf", 0, 0, "\xFF\xFF" + manyItems),
      fullBox("iinf", 0, 0, "\xFF\xFF" + manyItems) + fullBox("iref", 0, 0, manyReferences),
      fullBox("iref", 0, 0, isoBox("dimg", "\0\1\xFF\xFF"s + std::string(130'000, '\2'))),
      isoBox("iprp", fullBox("ipma", 0, 0, "\xFF\xFF\xFF\xFF" + std::string(1000, '\0'))),
      nested,
      std::string(200'000, '\0'),
  };
  int number = 0;
  for (const std::string& boxes : hostile) {
    std::string children = primary;
    children.append(extents).append(boxes);
    std::string file = type;
    file.append(fullBox("meta", 0, 0, children));
    EXPECT_EQ(*entry(propertiesOf(file), "", "PixelWidth"), 8) << number++;
  }
}

}  // namespace
}  // namespace media::image
