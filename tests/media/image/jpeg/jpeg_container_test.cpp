// SPDX-License-Identifier: MIT
#include "media/image/jpeg/jpeg_container.h"

#include <gtest/gtest.h>

#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using model::Array;
using model::Value;

std::string jfif(int unit, int x, int y, const std::string& version = "\1\2"s) {
  return jpegSegment(0xE0, "JFIF\0"s + version + bigEndian(static_cast<std::uint64_t>(unit), 1) +
                               bigEndian(static_cast<std::uint64_t>(x), 2) +
                               bigEndian(static_cast<std::uint64_t>(y), 2) + "\0\0"s);
}

std::string exif(std::string_view make, int orientation = 6) {
  return jpegSegment(0xE1, "Exif\0\0"s + exifBlock(make, orientation));
}

std::string xmp(std::string_view elements) {
  return jpegSegment(0xE1, "http://ns.adobe.com/xap/1.0/\0"s + xmpPacket(elements));
}

std::string profilePart(int number, int count, std::string_view bytes) {
  return jpegSegment(0xE2, "ICC_PROFILE\0"s + bigEndian(static_cast<std::uint64_t>(number), 1) +
                               bigEndian(static_cast<std::uint64_t>(count), 1) +
                               std::string(bytes));
}

std::string extendedXmp(std::string_view digest, std::string_view packet, std::size_t offset,
                        std::size_t length) {
  return jpegSegment(0xE1, "http://ns.adobe.com/xmp/extension/\0"s + std::string(digest) +
                               bigEndian(packet.size(), 4) + bigEndian(offset, 4) +
                               std::string(packet.substr(offset, length)));
}

TEST(JpegContainer, theFrameHeaderGivesSizeDepthAndColours) {
  struct Case {
    int components;
    const char* colorModel;
  };
  for (const Case& each : {Case{1, "Gray"}, Case{3, "RGB"}, Case{4, "CMYK"}}) {
    const auto properties = propertiesOf(jpegFile(jpegFrame(4032, 3024, each.components)));
    EXPECT_EQ(properties, (model::Dictionary{{"ColorModel", each.colorModel},
                                             {"Depth", 8},
                                             {"PixelHeight", 3024},
                                             {"PixelWidth", 4032}}))
        << each.components;
  }
}

TEST(JpegContainer, everyFrameHeaderMarkerCounts) {
  for (const int marker : {0xC0, 0xC1, 0xC2, 0xC3, 0xC5, 0xC9, 0xCF}) {
    EXPECT_EQ(*entry(propertiesOf(jpegFile(jpegFrame(8, 6, 3, marker))), "", "PixelWidth"), 8)
        << marker;
  }
  for (const int marker : {0xC4, 0xC8, 0xCC}) {
    EXPECT_EQ(errorOf(jpegFile(jpegFrame(8, 6, 3, marker))), "damaged JPEG") << marker;
  }
}

TEST(JpegContainer, jfifIsASectionOfItsOwn) {
  const auto properties = propertiesOf(jpegFile(jfif(1, 72, 96) + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "", "{JFIF}"),
            Value(model::Dictionary{{"DensityUnit", 1},
                                    {"JFIFVersion", Array{1, 0, 2}},
                                    {"XDensity", 72},
                                    {"YDensity", 96}}));
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 72);
  EXPECT_EQ(*entry(properties, "", "DPIHeight"), 96);
}

TEST(JpegContainer, aProgressiveImageSaysSo) {
  const auto properties = propertiesOf(jpegFile(jfif(0, 1, 1) + jpegFrame(8, 6, 3, 0xC2)));
  EXPECT_EQ(*entry(properties, "{JFIF}", "IsProgressive"), true);
}

TEST(JpegContainer, aDensityWithoutUnitIsNone) {
  const auto properties = propertiesOf(jpegFile(jfif(0, 72, 72) + jpegFrame(8, 6)));
  EXPECT_FALSE(entry(properties, "", "DPIWidth"));
}

TEST(JpegContainer, aDensityInCentimetresBecomesInches) {
  const auto properties = propertiesOf(jpegFile(jfif(2, 100, 50) + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 254.0);
  EXPECT_EQ(*entry(properties, "", "DPIHeight"), 127.0);
}

TEST(JpegContainer, exifGoesBeforeTheDensityOfJfif) {
  const auto properties = propertiesOf(jpegFile(jfif(1, 72, 72) + exif("Maker") + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 300.0);
  EXPECT_EQ(*entry(properties, "", "Orientation"), 6);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
}

TEST(JpegContainer, exifGoesBeforeXmpWhicheverComesFirst) {
  const std::string fromXmp = xmp("<tiff:Make>XMP</tiff:Make><tiff:Model>Model</tiff:Model>");
  for (const std::string& blocks : {fromXmp + exif("Exif"), exif("Exif") + fromXmp}) {
    const auto properties = propertiesOf(jpegFile(blocks + jpegFrame(8, 6)));
    EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Exif");
    EXPECT_EQ(*entry(properties, "{TIFF}", "Model"), "Model");
  }
}

TEST(JpegContainer, theFirstOfTwoExifBlocksCounts) {
  const auto properties = propertiesOf(jpegFile(exif("First") + exif("Second") + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "First");
}

TEST(JpegContainer, anExifBlockMayGoOnInTheNextSegment) {
  const std::string make(100, 'm');
  const std::string block = exifBlock(make, 1);
  const std::string segments = jpegSegment(0xE1, "Exif\0\0"s + block.substr(0, 60)) +
                               jpegSegment(0xE1, "Exif\0\0"s + block.substr(60));
  EXPECT_EQ(*entry(propertiesOf(jpegFile(segments + jpegFrame(8, 6))), "{TIFF}", "Make"), make);
}

TEST(JpegContainer, aProfileInPartsIsReadInTheirOrder) {
  const std::string profile = iccProfile("Display P3");
  const std::string segments =
      profilePart(2, 2, profile.substr(100)) + profilePart(1, 2, profile.substr(0, 100));
  EXPECT_EQ(*entry(propertiesOf(jpegFile(segments + jpegFrame(8, 6))), "", "ProfileName"),
            "Display P3");
}

TEST(JpegContainer, photoshopResourcesMaySpanSegments) {
  const std::string resources =
      photoshopResource(0x03ED, std::string(16, 'r'), "resolution") +
      photoshopResource(0x0404, iptcDataset(2, 90, "Kingston") + iptcDataset(2, 25, "one"));
  const std::string segments = jpegSegment(0xED, "Photoshop 3.0\0"s + resources.substr(0, 55)) +
                               jpegSegment(0xED, "Photoshop 3.0\0"s + resources.substr(55));
  const auto properties = propertiesOf(jpegFile(segments + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  EXPECT_EQ(*entry(properties, "{IPTC}", "Keywords"), Array{"one"});
}

TEST(JpegContainer, extendedXmpIsPutTogether) {
  const std::string digest = "0123456789ABCDEF0123456789ABCDEF";
  const std::string packet = xmpPacket("<photoshop:City>Kingston</photoshop:City>");
  const std::string main =
      xmp("<xmpNote:HasExtendedXMP>" + digest +
          "</xmpNote:HasExtendedXMP><photoshop:State>Ontario</photoshop:State>");
  const std::string parts =
      extendedXmp(digest, packet, 200, std::string::npos) + extendedXmp(digest, packet, 0, 200);
  const auto properties = propertiesOf(jpegFile(main + parts + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "{IPTC}", "City"), "Kingston");
  EXPECT_EQ(*entry(properties, "{IPTC}", "Province/State"), "Ontario");
}

TEST(JpegContainer, extendedXmpWithAMissingPieceOrAnotherDigestIsLeftOut) {
  const std::string digest = "0123456789ABCDEF0123456789ABCDEF";
  const std::string packet = xmpPacket("<photoshop:City>Kingston</photoshop:City>");
  const std::string main = xmp("<a xmlns:xmpNote='x' xmpNote:HasExtendedXMP='" + digest + "'/>");
  const std::string wrong[] = {
      main + extendedXmp(digest, packet, 0, 200),
      main + extendedXmp(std::string(32, '0'), packet, 0, packet.size()),
      extendedXmp(digest, packet, 0, packet.size()),
  };
  for (const std::string& segments : wrong) {
    EXPECT_FALSE(entry(propertiesOf(jpegFile(segments + jpegFrame(8, 6))), "", "{IPTC}"));
  }
  const std::string whole = main + extendedXmp(digest, packet, 0, packet.size());
  EXPECT_TRUE(entry(propertiesOf(jpegFile(whole + jpegFrame(8, 6))), "", "{IPTC}"));
}

TEST(JpegContainer, fillBytesAndStrayBytesArePassedOver) {
  const auto properties = propertiesOf(
      jpegFile("\xFF\xFF\xFF"s + exif("Maker") + "stray\0bytes\xFF\0"s + jpegFrame(8, 6)));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 8);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Maker");
}

TEST(JpegContainer, segmentsBehindTheFrameHeaderCountToo) {
  EXPECT_EQ(*entry(propertiesOf(jpegFile(jpegFrame(8, 6) + exif("Maker"))), "{TIFF}", "Make"),
            "Maker");
}

TEST(JpegContainer, nothingBehindTheScanIsRead) {
  const std::string file = jpegFile(jpegFrame(8, 6));
  EXPECT_FALSE(entry(propertiesOf(file + exif("Maker") + jpegFrame(1, 1)), "", "{TIFF}"));
}

TEST(JpegContainer, saysWhyThereIsNoSize) {
  const std::string frame = jpegFrame(8, 6);
  const std::string longFrame = jpegFrame(8, 6, 200);
  struct Case {
    const char* name;
    std::string file;
    const char* error;
  };
  const Case cases[] = {
      {"start only", "\xFF\xD8\xFF", "truncated JPEG"},
      {"inside a segment", "\xFF\xD8" + jfif(1, 72, 72).substr(0, 10), "truncated JPEG"},
      {"inside a length", "\xFF\xD8\xFF\xE0\x10", "truncated JPEG"},
      {"inside the frame header", "\xFF\xD8" + frame.substr(0, 9), "truncated JPEG"},
      {"a scan first", jpegFile(jfif(1, 72, 72)), "damaged JPEG"},
      {"an end first", "\xFF\xD8\xFF\xD9" + frame, "damaged JPEG"},
      {"frame header too short", jpegFile(jpegSegment(0xC0, "\x08")), "damaged JPEG"},
      {"no width", jpegFile(jpegFrame(0, 6)), "damaged JPEG"},
      {"no marker", "\xFF\xD8\xFF" + std::string(200'000, 'x'), "damaged JPEG"},
      {"frame header cut behind the size", "\xFF\xD8" + longFrame.substr(0, 50), ""},
  };
  for (const Case& each : cases) EXPECT_EQ(errorOf(each.file), each.error) << each.name;
}

TEST(JpegContainer, manyTinySegmentsEndSomewhere) {
  std::string many;
  for (int index = 0; index < 200'000; ++index) many += jpegSegment(0xE5, "");
  EXPECT_EQ(errorOf(jpegFile(many + jpegFrame(8, 6))), "damaged JPEG");
}

TEST(JpegContainer, readsLittleOfWhatIsLarge) {
  const std::string filler(65'000, 'f');
  std::string segments = exif("Maker") + jfif(1, 72, 72);
  for (int index = 0; index < 40; ++index) segments += jpegSegment(0xEB, filler);
  segments += jpegSegment(0xED, "Photoshop 3.0\0"s + photoshopResource(0x040C, filler) +
                                    photoshopResource(0x0404, iptcDataset(2, 90, "Kingston")));
  segments += profilePart(1, 1, iccProfile("Large") + filler.substr(0, 60'000));
  segments += jpegSegment(0xEB, filler) + jpegFrame(8, 6);
  io::MemorySource source(bytesOf(jpegFile(segments)));
  const auto properties = copyProperties(source);
  ASSERT_TRUE(properties && *properties);
  EXPECT_EQ(*entry(**properties, "{IPTC}", "City"), "Kingston");
  EXPECT_EQ(*entry(**properties, "", "ProfileName"), "Large");
  EXPECT_LE(source.bytesRead(), 128U * 1024);
}

TEST(JpegContainer, theLargestExifAndXmpSegmentsAreReadOnce) {
  const std::string exifSegment =
      jpegSegment(0xE1, "Exif\0\0"s + exifBlock("Maker", 1) + std::string(65'000, 't'));
  const std::string city = "<photoshop:City>Kingston</photoshop:City>";
  const std::string xmpSegment = xmp(city + std::string(60'000, ' '));
  io::MemorySource source(bytesOf(jpegFile(exifSegment + xmpSegment + jpegFrame(8, 6))));
  const auto properties = copyProperties(source);
  ASSERT_TRUE(properties && *properties);
  EXPECT_EQ(*entry(**properties, "{IPTC}", "City"), "Kingston");
  EXPECT_LE(source.bytesRead(), exifSegment.size() + xmpSegment.size() + 8192);
}

TEST(JpegContainer, codedDataIsNeverRead) {
  io::MemorySource source(
      bytesOf(jpegFile(jpegSegment(0xEB, std::string(65'000, 'f')) +
                       jpegSegment(0xEB, std::string(65'000, 'f')) + jpegFrame(8, 6)) +
              std::string(5'000'000, 'c')));
  ASSERT_TRUE(copyProperties(source));
  EXPECT_LE(source.bytesRead(), 66U * 1024);
}

}  // namespace
}  // namespace media::image
