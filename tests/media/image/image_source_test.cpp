// SPDX-License-Identifier: MIT
//
// The way in, and what every container has in common: files that are cut, damaged or cannot be read
// give an error or less, and cost little.
#include "media/image/image_source.h"

#include <gtest/gtest.h>

#include <functional>

#include "io/source_reader.h"
#include "media/image/blocks/limits.h"
#include "tests/media/image/container_builder.h"
#include "tests/media/image/heif_builder.h"
#include "tests/media/image/raw/raw_builder.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

struct Sample {
  const char* name;
  std::string bytes;
};

std::string tiffFile(std::string_view xmp, std::string_view profile) {
  const Bytes tiff = buildTiff(io::ByteOrder::big,
                               {{longs(0x0100, {8}), longs(0x0101, {6}), ascii(0x010F, "Maker"),
                                 undefined(0x02BC, xmp), undefined(0x8773, profile)}});
  return std::string(asText(tiff));
}

// A file of every container with every block that it can hold, the blocks behind so much coded
// data that they lie outside the head of the file.
std::vector<Sample> samples(std::size_t padding) {
  const std::string exif = exifBlock("Maker", 6);
  const std::string xmp = xmpPacket("<photoshop:City>Kingston</photoshop:City>");
  const std::string profile = iccProfile("Display P3");
  const std::string iptc = photoshopResource(0x0404, iptcDataset(2, 5, "title"));
  std::string fill;
  for (std::size_t left = padding; left > 0; left -= std::min<std::size_t>(left, 60'000)) {
    fill += jpegSegment(0xEB, std::string(std::min<std::size_t>(left, 60'000), 'f'));
  }
  HeifToWrite heif;
  heif.primary = 4;
  heif.items = {
      {.id = 1, .type = "hvc1", .bytes = "coded", .properties = {1}},
      {.id = 2, .type = "Exif", .bytes = heifExifItem(exif)},
      {.id = 3, .type = "mime", .contentType = "application/rdf+xml", .bytes = xmp},
      {.id = 4, .type = "grid", .bytes = "\0\0\0\0\0\x08\0\6"s, .properties = {2}},
  };
  heif.properties = {heifExtents(512, 512), heifIccColors(profile)};
  heif.references = {{"cdsc", 2, {4}}, {"cdsc", 3, {4}}, {"dimg", 4, {1}}};
  heif.padding = padding;
  heif.hasMetaAtEnd = true;
  return {
      {"JPEG", jpegFile(fill + jpegSegment(0xE1, "Exif\0\0"s + exif) +
                        jpegSegment(0xE1, "http://ns.adobe.com/xap/1.0/\0"s + xmp) +
                        jpegSegment(0xE2, "ICC_PROFILE\0\1\1"s + profile) +
                        jpegSegment(0xED, "Photoshop 3.0\0"s + iptc) + jpegFrame(8, 6))
                   .substr(0, padding + fill.size() + 5000)},
      {"PNG", pngFile(pngChunk("IDAT", std::string(padding, 'c')) + pngChunk("eXIf", exif) +
                      pngChunk("iTXt", "XML:com.adobe.xmp\0\0\0\0\0"s + xmp) +
                      pngChunk("iCCP", "any\0\0"s + deflated(profile)))},
      {"HEIF", heifFile(heif)},
      {"WebP", webpFile(riffChunk("VP8X", "\x2C\0\0\0\7\0\0\5\0\0"s) +
                        riffChunk("VP8 ", std::string(padding, 'c')) + riffChunk("ICCP", profile) +
                        riffChunk("EXIF", exif) + riffChunk("XMP ", xmp))},
      {"GIF", "GIF89a\x08\0\6\0\0\0\0"s + gifXmp(xmp) + "\x2C"},
      {"TIFF", tiffFile(xmp, profile)},
  };
}

// Small files of the kinds of which little is read, with the metadata that they can hold.
std::vector<Sample> rareSamples() {
  const std::string exif = exifBlock("Maker", 6);
  const std::string xmp = xmpPacket("<photoshop:City>Kingston</photoshop:City>");
  const std::vector<FieldToWrite> sensor = {shorts(4, {6}), shorts(5, {8}), shorts(6, {2742}),
                                            shorts(7, {3656}), shorts(10, {12})};
  const std::vector<FieldToWrite> preview = {longs(0x0100, {160}), longs(0x0101, {120}),
                                             pointerTo(0x8769, 1)};
  const auto size = littleEndian(3072, 4) + littleEndian(2048, 4) + std::string(8, '\0');
  const std::string first(
      asText(buildTiff(io::ByteOrder::little, {{shorts(0x0100, {6000}), shorts(0x0101, {4000})}})));
  return {
      {"RAF", rafFile({})},
      {"RW2", rw2File(sensor, innerJpeg())},
      {"CR2", cr2File(preview, {longs(0xA002, {3504}), longs(0xA003, {2336})}, innerJpeg())},
      {"CR3",
       cr3File({.first = first, .exif = exif, .gps = exif, .xmp = xmp, .tracks = {{8, 14}}})},
      {"CRW", crwFile({{0x300A, ciffHeap({{0x1810, size}, {0x080A, "Canon\0EOS"s}})}})},
      {"MRW", mrwFile(mrwSensor(3264, 2448, 12) + mrwBlock("TTW", exif))},
      {"X3F", x3fFile(2, 2268, 1512, 90,
                      {{"IMA2", std::string(28, '\0') + innerJpeg()},
                       {"PROP", x3fProperties({{"ISO", "100"}, {"CAMMANUF", "SIGMA"}})}})},
      {"JP2", isoBox("jP  ", "\r\n\x87\n") +
                  isoBox("jp2h", isoBox("ihdr", "\0\0\0\6\0\0\0\x08\0\3\7\7\0\0"s) +
                                     isoBox("colr", "\2\0\0"s + iccProfile("Display P3"))) +
                  isoBox("uuid", "JpgTiffExif->JP2" + exif)},
      {"PSD", "8BPS\0\1\0\0\0\0\0\0\0\3\0\0\0\6\0\0\0\x08\0\x08\0\3\0\0\0\0"s +
                  bigEndian(photoshopResource(1058, exif).size(), 4) +
                  photoshopResource(1058, exif) + std::string(20, '\0')},
      {"ICO", "\0\0\1\0\1\0\x08\6\0\0\1\0\x20\0\x30\0\0\0\x16\0\0\0"s + pngHeader(8, 6) +
                  std::string(40, '\0')},
      {"TGA", "\0\0\2\0\0\0\0\0\0\0\0\0\x08\0\6\0\x18\0"s + std::string(144, 'c')},
      {"EXR", "\x76\x2F\x31\x01\2\0\0\0dataWindow\0box2i\0\x10\0\0\0"s + std::string(8, '\0') +
                  "\7\0\0\0\5\0\0\0"s + "\0"s},
  };
}

std::vector<Sample> allSamples() {
  auto all = samples(100);
  for (Sample& sample : rareSamples()) all.push_back(std::move(sample));
  return all;
}

// Whatever a file claims, no more than the limit is read of it.
TEST(ImageSource, littleIsReadOfTheRarerKinds) {
  for (Sample& sample : rareSamples()) {
    const std::string whole = sample.bytes + std::string(400'000, 'f');
    for (std::size_t offset = 0; offset + 4 <= sample.bytes.size(); offset += 5) {
      std::string damaged = whole;
      damaged.replace(offset, 4, bigEndian(300'000, 4));
      io::MemorySource source(bytesOf(damaged));
      const auto properties = copyProperties(source);
      // What is no longer of its kind may be another one, which has no such limit.
      if (properties && *properties) {
        EXPECT_TRUE(entry(**properties, "", "PixelWidth"));
      }
      if (offset >= 64) {
        EXPECT_LE(source.bytesRead(), limits.rareKindBytes) << sample.name;
      }
    }
  }
}

TEST(ImageSource, theRarerKindsAreRead) {
  for (const Sample& sample : rareSamples()) {
    EXPECT_TRUE(entry(propertiesOf(sample.bytes), "", "PixelWidth")) << sample.name;
  }
}

TEST(ImageSource, whatIsNoImageHasNoProperties) {
  for (const std::string& bytes :
       {"some text"s, "\0"s, isoBox("ftyp", "qt  \0\0\0\0"s) + isoBox("moov", ""),
        isoBox("moov", ""), "\x1A\x45\xDF\xA3"s, "RIFF\0\0\0\0AVI "s, std::string(1000, '\xFF')}) {
    EXPECT_EQ(errorOf(bytes), "none") << testing::PrintToString(bytes.substr(0, 16));
  }
  EXPECT_EQ(errorOf(""), "empty file");
}

TEST(ImageSource, samplesHoldWhatTheTestsBelowDestroy) {
  for (const Sample& sample : samples(66'000)) {
    const auto properties = propertiesOf(sample.bytes);
    EXPECT_TRUE(entry(properties, "", "PixelWidth")) << sample.name;
    EXPECT_TRUE(entry(properties, "{IPTC}", "City")) << sample.name;
    if (sample.name == "GIF"s) continue;
    EXPECT_TRUE(entry(properties, "{TIFF}", "Make")) << sample.name;
    EXPECT_TRUE(entry(properties, "", "ProfileName")) << sample.name;
  }
}

TEST(ImageSource, aReadThatFailsAnywhereIsAnErrorOrWasNotNeeded) {
  for (const Sample& sample : samples(66'000)) {
    const std::string whole = errorOf(sample.bytes);
    for (const auto failure :
         {io::FailingSource::Failure::error, io::FailingSource::Failure::shortRead}) {
      for (std::size_t offset = 0; offset < sample.bytes.size();
           offset += offset < io::SourceReader::headSize ? io::SourceReader::headSize / 4 : 1) {
        io::FailingSource source(bytesOf(sample.bytes), offset, failure);
        const auto properties = copyProperties(source);
        if (!properties) {
          EXPECT_FALSE(properties.error().reason.empty());
          continue;
        }
        EXPECT_TRUE(whole.empty() && *properties) << sample.name << " " << offset;
      }
    }
  }
}

TEST(ImageSource, aFileCutAnywhereGivesAnErrorOrLess) {
  for (const Sample& sample : allSamples()) {
    int read = 0;
    for (std::size_t length = 1; length < sample.bytes.size(); ++length) {
      io::MemorySource source(bytesOf(std::string_view(sample.bytes).substr(0, length)));
      const auto properties = copyProperties(source);
      if (!properties) {
        EXPECT_TRUE(properties.error().reason.starts_with("truncated ") ||
                    properties.error().reason.starts_with("damaged ") ||
                    properties.error().reason == "TIFF without an image")
            << sample.name << " " << length << " " << properties.error().reason;
      } else if (*properties) {
        EXPECT_TRUE(entry(**properties, "", "PixelWidth")) << sample.name << " " << length;
        ++read;
      }
    }
    EXPECT_GT(read, 0) << sample.name;
  }
}

TEST(ImageSource, anyByteMayHaveAnyValue) {
  for (const Sample& sample : allSamples()) {
    int read = 0;
    for (std::size_t offset = 0; offset < sample.bytes.size(); ++offset) {
      for (const char byte : {'\0', '\1', '\x7F', '\x80', '\xFF'}) {
        std::string damaged = sample.bytes;
        damaged[offset] = byte;
        io::MemorySource source(bytesOf(damaged));
        const auto properties = copyProperties(source);
        if (properties && *properties) {
          EXPECT_TRUE(entry(**properties, "", "PixelWidth")) << sample.name << " " << offset;
          ++read;
        }
      }
    }
    EXPECT_GT(read, 0) << sample.name;
  }
}

TEST(ImageSource, anyFourBytesMayBeAnyNumber) {
  for (const Sample& sample : allSamples()) {
    int read = 0;
    for (std::size_t offset = 0; offset + 4 <= sample.bytes.size(); ++offset) {
      for (const std::uint32_t number : {0xFFFFFFFFU, 0x7FFFFFFFU, 0x80000000U, 1U}) {
        std::string damaged = sample.bytes;
        damaged.replace(offset, 4, bigEndian(number, 4));
        io::MemorySource source(bytesOf(damaged));
        const auto properties = copyProperties(source);
        if (properties && *properties) {
          EXPECT_TRUE(entry(**properties, "", "PixelWidth")) << sample.name << " " << offset;
          ++read;
        }
      }
    }
    EXPECT_GT(read, 0) << sample.name;
  }
}

// Generous, so that a loaded machine or a sanitizer does not fail it; what it guards against takes
// seconds or for ever.
TEST(ImageSource, largeHostileFilesAreSurvived) {
  const std::string xmpHead = "http://ns.adobe.com/xap/1.0/\0"s;
  std::string chunks;
  for (int index = 0; index < 100'000; ++index) chunks += pngChunk("tEXt", "Title\0x"s);
  std::string boxes = isoBox("ftyp", "heic\0\0\0\0"s);
  for (int index = 0; index < 1'000'000; ++index) boxes += isoBox("free", "");
  std::string segments;
  for (int index = 0; index < 2000; ++index) {
    segments += jpegSegment(0xE1, "http://ns.adobe.com/xmp/extension/\0"s + std::string(32, 'A') +
                                      bigEndian(~0U, 4) + bigEndian(0, 4) + "x");
  }
  std::string fill;
  fill.resize(30'000'000, '\xFF');
  const Sample hostile[] = {
      {"chunks", pngFile(chunks)},
      {"boxes", boxes},
      {"segments",
       jpegFile(jpegSegment(0xE1, xmpHead + xmpPacket("")) + segments + jpegFrame(8, 6))},
      {"fill bytes", "\xFF\xD8" + fill},
  };
  for (const Sample& each : hostile) {
    const auto bytes = bytesOf(each.bytes);
    io::MemorySource source(bytes);
    const auto properties = copyProperties(source);
    EXPECT_TRUE(!properties || *properties) << each.name;
  }
}

}  // namespace
}  // namespace media::image
