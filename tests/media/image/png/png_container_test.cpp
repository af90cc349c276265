// SPDX-License-Identifier: MIT
#include "media/image/png/png_container.h"

#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using model::Array;

std::string text(std::string_view keyword, std::string_view value) {
  return pngChunk("tEXt", std::string(keyword) + "\0"s + std::string(value));
}

std::string compressedText(std::string_view keyword, std::string_view value) {
  return pngChunk("zTXt", std::string(keyword) + "\0\0"s + deflated(value));
}

std::string internationalText(std::string_view keyword, std::string_view value,
                              bool isCompressed = false) {
  return pngChunk("iTXt", std::string(keyword) + (isCompressed ? "\0\1\0"s : "\0\0\0"s) +
                              "en\0word\0"s +
                              (isCompressed ? deflated(value) : std::string(value)));
}

std::string hexProfile(std::string_view name, std::string_view bytes) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string value = "\n" + std::string(name) + "\n    " + std::to_string(bytes.size()) + "\n";
  int column = 0;
  for (const char byte : bytes) {
    const auto number = static_cast<unsigned char>(byte);
    value += {digits[number >> 4], digits[number & 15]};
    if (++column % 36 == 0) value += '\n';
  }
  return value + "\n";
}

TEST(PngContainer, theHeaderGivesSizeDepthAndColours) {
  struct Case {
    int depth;
    int colorType;
    model::Dictionary expected;
  };
  const Case cases[] = {
      {1, 0, {{"ColorModel", "Gray"}, {"Depth", 1}}},
      {16, 0, {{"ColorModel", "Gray"}, {"Depth", 16}}},
      {8, 2, {{"ColorModel", "RGB"}, {"Depth", 8}}},
      {2, 3, {{"ColorModel", "RGB"}, {"Depth", 8}, {"IsIndexed", true}}},
      {8, 4, {{"ColorModel", "Gray"}, {"Depth", 8}, {"HasAlpha", true}}},
      {16, 6, {{"ColorModel", "RGB"}, {"Depth", 16}, {"HasAlpha", true}}},
  };
  for (const Case& each : cases) {
    model::Dictionary expected = each.expected;
    expected["PixelWidth"] = 640;
    expected["PixelHeight"] = 480;
    expected["{PNG}"] = model::Dictionary{{"InterlaceType", 1}};
    EXPECT_EQ(propertiesOf(pngHeader(640, 480, each.depth, each.colorType, 1)), expected)
        << each.colorType;
  }
}

TEST(PngContainer, chunksBecomeFacts) {
  struct Case {
    const char* section;
    const char* key;
    std::string chunk;
    model::Value expected;
  };
  std::string chromaticities;
  for (const int value : {31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000}) {
    chromaticities += bigEndian(static_cast<std::uint64_t>(value), 4);
  }
  const std::string metres = pngChunk("pHYs", bigEndian(2835, 4) + bigEndian(5669, 4) + "\1");
  const std::string frame =
      pngChunk("fcTL", std::string(20, '\0') + bigEndian(1, 2) + bigEndian(20, 2) + "\0\0"s);
  const Case cases[] = {
      {"{PNG}", "Gamma", pngChunk("gAMA", bigEndian(45455, 4)), 0.45455},
      {"{PNG}", "Chromaticities", pngChunk("cHRM", chromaticities),
       Array{0.3127, 0.329, 0.64, 0.33, 0.3, 0.6, 0.15, 0.06}},
      {"{PNG}", "sRGBIntent", pngChunk("sRGB", "\1"), 1},
      {"", "ProfileName", pngChunk("sRGB", "\0"s), "sRGB IEC61966-2.1"},
      {"{PNG}", "XPixelsPerMeter", metres, 2835},
      {"{PNG}", "YPixelsPerMeter", metres, 5669},
      {"", "DPIWidth", metres, 72},
      {"", "DPIHeight", metres, 144},
      {"{PNG}", "PixelAspectRatio", pngChunk("pHYs", bigEndian(2, 4) + bigEndian(3, 4) + "\0"s),
       1.5},
      {"", "HasAlpha", pngChunk("tRNS", "\0\1\0\2\0\3"s), true},
      {"{PNG}", "ModificationTime", pngChunk("tIME", "\x07\xE2\x09\x1E\x0E\x03\x0B"),
       "2018:09:30 14:03:11"},
      {"{PNG}", "LoopCount", pngChunk("acTL", bigEndian(3, 4) + bigEndian(7, 4)), 7},
      {"{PNG}", "UnclampedDelayTime", frame, 0.05},
      {"{PNG}", "DelayTime", frame, 0.1},
      {"", "ProfileName", pngChunk("iCCP", "any\0\0"s + deflated(iccProfile("Display P3"))),
       "Display P3"},
      {"{TIFF}", "Make", pngChunk("eXIf", exifBlock("Maker", 1)), "Maker"},
      {"", "DPIWidth", pngChunk("eXIf", exifBlock("Maker", 1)), 300.0},
  };
  for (const Case& each : cases) {
    const auto properties = propertiesOf(pngFile(each.chunk));
    const model::Value* value = entry(properties, each.section, each.key);
    ASSERT_TRUE(value) << each.key;
    EXPECT_EQ(*value, each.expected) << each.key;
  }
}

TEST(PngContainer, chunksThatAreTooShortAreLeftOut) {
  for (const char* type :
       {"gAMA", "cHRM", "sRGB", "pHYs", "tIME", "acTL", "fcTL", "iCCP", "tEXt", "zTXt", "iTXt"}) {
    EXPECT_EQ(propertiesOf(pngFile(pngChunk(type, ""))).size(), propertiesOf(pngFile("")).size())
        << type;
  }
}

TEST(PngContainer, knownKeywordsAreShown) {
  for (const char* keyword : {"Author", "Comment", "Copyright", "Creation Time", "Description",
                              "Disclaimer", "Software", "Source", "Title", "Warning"}) {
    for (const std::string& chunk :
         {text(keyword, "value"), compressedText(keyword, "value"),
          internationalText(keyword, "value"), internationalText(keyword, "value", true)}) {
      const auto properties = propertiesOf(pngFile(chunk));
      ASSERT_TRUE(entry(properties, "{PNG}", keyword)) << keyword;
      EXPECT_EQ(*entry(properties, "{PNG}", keyword), "value") << keyword;
    }
  }
  EXPECT_FALSE(entry(propertiesOf(pngFile(text("Other", "value"))), "{PNG}", "Other"));
}

TEST(PngContainer, textsAreLatin1AndInternationalOnesUtf8) {
  EXPECT_EQ(*entry(propertiesOf(pngFile(text("Title", "Z\xFCrich"))), "{PNG}", "Title"), "Zürich");
  EXPECT_EQ(*entry(propertiesOf(pngFile(internationalText("Title", "Zürich"))), "{PNG}", "Title"),
            "Zürich");
}

TEST(PngContainer, textsBehindTheImageDataCount) {
  const auto properties =
      propertiesOf(pngFile(pngChunk("IDAT", std::string(1000, 'c')) + text("Title", "late")));
  EXPECT_EQ(*entry(properties, "{PNG}", "Title"), "late");
}

TEST(PngContainer, imageDataIsJumpedOver) {
  std::string data;
  for (int index = 0; index < 100; ++index) data += pngChunk("IDAT", std::string(100'000, 'c'));
  io::MemorySource source(bytesOf(pngFile(data + text("Title", "late"))));
  const auto properties = copyProperties(source);
  ASSERT_TRUE(properties && *properties);
  EXPECT_EQ(*entry(**properties, "{PNG}", "Title"), "late");
  EXPECT_LE(source.bytesRead(), 72U * 1024);
}

TEST(PngContainer, metadataBlocksHideInTexts) {
  const std::string xmp = xmpPacket("<photoshop:City>Kingston</photoshop:City>");
  const std::string datasets = iptcDataset(2, 90, "Kingston");
  const std::string withCity[] = {
      internationalText("XML:com.adobe.xmp", xmp),
      internationalText("XML:com.adobe.xmp", xmp, true),
      compressedText("Raw profile type xmp", hexProfile("xmp", xmp)),
      compressedText("Raw profile type APP1",
                     hexProfile("generic profile", "http://ns.adobe.com/xap/1.0/\0"s + xmp)),
      text("Raw profile type iptc", hexProfile("iptc", photoshopResource(0x0404, datasets))),
      text("Raw profile type iptc", hexProfile("iptc", datasets)),
      text("Raw profile type 8bim", hexProfile("8bim", photoshopResource(0x0404, datasets))),
  };
  for (const std::string& chunk : withCity) {
    const auto properties = propertiesOf(pngFile(chunk));
    ASSERT_TRUE(entry(properties, "{IPTC}", "City")) << chunk.substr(8, 40);
    EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  }
  for (const char* kind : {"exif", "APP1"}) {
    const auto properties = propertiesOf(pngFile(text(
        "Raw profile type "s + kind, hexProfile("exif", "Exif\0\0"s + exifBlock("Maker", 3)))));
    ASSERT_TRUE(entry(properties, "{TIFF}", "Make")) << kind;
    EXPECT_EQ(*entry(properties, "", "Orientation"), 3);
  }
}

TEST(PngContainer, damagedCompressionIsLeftOut) {
  const std::string stream = deflated(std::string(1000, 'x'));
  const std::string damaged[] = {
      pngChunk("zTXt", "Title\0\0"s + stream.substr(0, stream.size() / 2)),
      pngChunk("zTXt", "Title\0\0"s + "no stream"),
      pngChunk("zTXt", "Title\0\1"s + stream),
      pngChunk("iTXt", "Title\0\1\0"s),
      pngChunk("iTXt", "Title\0\0\0en"s),
      pngChunk("tEXt", std::string(200, 'k')),
      text("Raw profile type exif", "\nexif\n  5"),
      text("Raw profile type exif", ""),
      text("Raw profile type exif", "\nexif\n5\nxyz"),
  };
  for (const std::string& chunk : damaged) {
    EXPECT_EQ(propertiesOf(pngFile(chunk)), propertiesOf(pngFile(""))) << chunk.substr(4);
  }
}

TEST(PngContainer, decompressionHasABudgetForTheWholeFile) {
  const std::string bomb = deflated(std::string(4 << 20, 'x'));
  std::string chunks;
  for (int index = 0; index < 500; ++index) chunks += pngChunk("zTXt", "Title\0\0"s + bomb);
  const auto properties = propertiesOf(pngFile(chunks));
  const model::Value* title = entry(properties, "{PNG}", "Title");
  ASSERT_TRUE(title && title->asString());
  EXPECT_EQ(title->asString()->size(), limits.textBytes);
  const std::string larger = deflated(std::string(limits.pngMetadataBytes + 1, 'x'));
  EXPECT_FALSE(
      entry(propertiesOf(pngFile(pngChunk("zTXt", "Title\0\0"s + larger))), "{PNG}", "Title"));
}

TEST(PngContainer, lengthsBeyondTheFileEndTheWalk) {
  for (const std::uint32_t length : {1000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    const auto properties = propertiesOf(pngHeader(8, 6) + text("Title", "early") +
                                         bigEndian(length, 4) + "tEXtAuthor\0someone"s);
    EXPECT_EQ(*entry(properties, "{PNG}", "Title"), "early") << length;
    EXPECT_FALSE(entry(properties, "{PNG}", "Author")) << length;
  }
}

TEST(PngContainer, saysWhyThereIsNoSize) {
  const std::string header = pngHeader(8, 6);
  EXPECT_EQ(errorOf(header.substr(0, 8)), "truncated PNG");
  EXPECT_EQ(errorOf(header.substr(0, 20)), "truncated PNG");
  EXPECT_EQ(errorOf(header.substr(0, 8) + text("Title", "first")), "damaged PNG");
  EXPECT_EQ(errorOf(header.substr(0, 8) + pngChunk("IHDR", "short")), "damaged PNG");
  EXPECT_EQ(errorOf(pngHeader(0, 6)), "damaged PNG");
  EXPECT_EQ(errorOf(header), "");
}

}  // namespace
}  // namespace media::image
