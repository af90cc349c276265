// SPDX-License-Identifier: MIT
#include "media/image/blocks/shortfall.h"

#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

// What is told of a file, and what is shown of it.
ImageFacts factsOf(std::string_view file) {
  io::MemorySource source(bytesOf(file));
  auto facts = readImageFacts(source);
  EXPECT_TRUE(facts && *facts);
  return facts && *facts ? **std::move(facts) : ImageFacts();
}

std::string exifSegment(const std::vector<FieldToWrite>& fields) {
  return std::string(asText(buildTiff(io::ByteOrder::big, {fields})));
}

std::string city(const std::string& text) {
  return xmpPacket("<photoshop:City>" + text + "</photoshop:City>");
}

TEST(Shortfall, theFirstIsTakenOutOnce) {
  model::Dictionary properties = {{"Depth", 8}};
  noteShortfall(properties, cutText);
  noteShortfall(properties, droppedMetadata);
  EXPECT_EQ(takeShortfall(properties), cutText);
  EXPECT_EQ(takeShortfall(properties), "");
  EXPECT_EQ(properties, (model::Dictionary{{"Depth", 8}}));
}

TEST(Shortfall, cutTextsAreTold) {
  const std::string fits(limits.textBytes, 'x');
  const std::string large = fits + "x";
  struct Case {
    const char* name;
    std::string file;
    std::string_view told;
  };
  const auto text = [](const std::string& value) { return pngChunk("tEXt", "Title\0"s + value); };
  const auto tiff = [&](const std::string& value) {
    return exifSegment({shorts(0x0100, {8}), shorts(0x0101, {6}), undefined(0x010E, value)});
  };
  const Case cases[] = {
      {"text that fits", pngFile(text(fits)), ""},
      {"text", pngFile(text(large)), cutText},
      {"text that is not shown", pngFile(pngChunk("tEXt", "Other\0"s + large)), ""},
      {"compressed text", pngFile(pngChunk("zTXt", "Title\0\0"s + deflated(large))), cutText},
      {"chunk of 10 MB", pngFile(text(std::string(10 << 20, 'x'))), droppedMetadata},
      {"compressed 10 MB",
       pngFile(pngChunk("zTXt", "Title\0\0"s + deflated(std::string(10 << 20, 'x')))),
       droppedMetadata},
      {"damaged compression", pngFile(pngChunk("zTXt", "Title\0\0nothing"s)), ""},
      {"field that fits", tiff(fits), ""},
      {"field", tiff(large), cutText},
      {"packet that fits", pngFile(pngChunk("iTXt", "XML:com.adobe.xmp\0\0\0\0\0"s + city(fits))),
       ""},
      {"packet", pngFile(pngChunk("iTXt", "XML:com.adobe.xmp\0\0\0\0\0"s + city(large))), cutText},
      {"packet of many elements",
       pngFile(pngChunk("iTXt",
                        "XML:com.adobe.xmp\0\0\0\0\0"s + std::string(limits.xmpElements + 1, '<'))),
       droppedMetadata},
  };
  for (const Case& each : cases) {
    const ImageFacts facts = factsOf(each.file);
    EXPECT_EQ(facts.shortfall, each.told) << each.name;
    EXPECT_FALSE(facts.properties.contains("")) << each.name;
  }
}

TEST(Shortfall, datasetsAreToldToo) {
  model::Dictionary properties;
  const std::string large(limits.textBytes + 1, 'x');
  const std::string dataset = "\x1C\x02\x78\x80\x04"s + bigEndian(large.size(), 4) + large;
  readIptcBlock(viewOf(dataset), properties);
  EXPECT_EQ(takeShortfall(properties), cutText);
  const std::string resource =
      photoshopResource(0x0404, std::string(limits.embeddedBytes + 2, '\x1C'));
  readPhotoshopResources(viewOf(resource), properties);
  EXPECT_EQ(takeShortfall(properties), droppedMetadata);
}

}  // namespace
}  // namespace media::image
