// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/decode_picture.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QImage>
#include <functional>

#include "samples/formats/bmp_file.h"
#include "samples/formats/gif_file.h"
#include "samples/formats/heic_file.h"
#include "samples/formats/jpeg_file.h"
#include "samples/formats/png_file.h"
#include "samples/formats/tiff_file.h"
#include "tests/desktop/pictures/test_files.h"

namespace desktop::pictures {

namespace {

using samples::Bytes;

constexpr Request whole{4000, 4000, Request::Fit::fit};

samples::Directory directoryWithOrientation(int orientation) {
  samples::Directory directory;
  directory.addShort(0x0112, {orientation});
  return directory;
}

Bytes exifWithOrientation(int orientation) {
  return samples::tiffBlock(samples::ByteOrder::big, {directoryWithOrientation(orientation)});
}

Bytes jpegWithOrientation(const samples::Picture& stored, int orientation) {
  return samples::jpegFile(stored, {},
                           {{1, samples::exifSegment(exifWithOrientation(orientation))}});
}

Bytes pngWithOrientation(const samples::Picture& stored, int orientation) {
  return samples::pngFile(stored, {.exif = exifWithOrientation(orientation)});
}

Bytes tiffWithOrientation(const samples::Picture& stored, int orientation) {
  return samples::tiffFile(stored, directoryWithOrientation(orientation),
                           samples::ByteOrder::little);
}

Bytes heicWithOrientation(const samples::Picture& stored, int orientation) {
  return *samples::phoneHeicFile(
      stored, {.orientation = orientation, .exif = exifWithOrientation(orientation)});
}

Bytes writtenByQt(const samples::Picture& picture, const char* extension) {
  const auto bytes = samples::rgbBytes(picture);
  const QImage image(bytes.data(), picture.width(), picture.height(), picture.width() * 3,
                     QImage::Format_RGB888);
  const TestFolder folder;
  const std::string path = folder.path(std::string("image.") + extension);
  image.save(QString::fromStdString(path));
  return folder.read(path);
}

struct Format {
  const char* name;
  std::function<Bytes(const samples::Picture& picture)> write;
};

const Format formats[] = {
    {"a.jpg", [](const auto& picture) { return samples::jpegFile(picture, {}, {}); }},
    {"progressive.jpg",
     [](const auto& picture) { return samples::jpegFile(picture, {.progressive = true}, {}); }},
    {"phone.heic", [](const auto& picture) { return *samples::phoneHeicFile(picture, {}); }},
    {"computer.heic", [](const auto& picture) { return *samples::computerHeicFile(picture, {}); }},
    {"a.png", [](const auto& picture) { return samples::pngFile(picture, {}); }},
    {"a.gif", [](const auto& picture) { return samples::gifFile({picture}, 10, ""); }},
    {"a.bmp", [](const auto& picture) { return samples::bmpFile(picture, 72); }},
    {"a.tif", [](const auto& picture) { return tiffWithOrientation(picture, 1); }},
    {"a.webp", [](const auto& picture) { return writtenByQt(picture, "webp"); }},
};

TEST(DecodePicture, ReadsEveryFormatAtEverySize) {
  const TestFolder folder;
  const auto picture = quartered(640, 480);
  for (const Format& format : formats) {
    const std::string path = folder.write(format.name, format.write(picture));
    for (const int side : {640, 300, 64, 7}) {
      const auto decoded = decodePicture(path, {side, side, Request::Fit::fit});
      ASSERT_TRUE(decoded) << format.name << ": " << decoded.error().reason;
      EXPECT_EQ(decoded->width, side) << format.name;
      EXPECT_EQ(decoded->height, (side * 3 + 2) / 4) << format.name;
      EXPECT_EQ(quarters(*decoded), "red green blue white") << format.name << " at " << side;
    }
  }
}

TEST(DecodePicture, GoesByTheBytesAndNotTheName) {
  const TestFolder folder;
  const auto picture = quartered(64, 48);
  for (const Format& format : formats) {
    for (const char* name : {"wrong.png", "wrong.mov", "none"}) {
      const auto decoded = decodePicture(folder.write(name, format.write(picture)), whole);
      EXPECT_TRUE(decoded) << format.name << " as " << name;
    }
  }
}

TEST(DecodePicture, ShowsEveryOrientationUpright) {
  struct Writer {
    const char* name;
    Bytes (*write)(const samples::Picture& stored, int orientation);
    std::vector<int> orientations;
  };
  const Writer writers[] = {
      {"a.jpg", jpegWithOrientation, {1, 2, 3, 4, 5, 6, 7, 8}},
      {"a.png", pngWithOrientation, {1, 2, 3, 4, 5, 6, 7, 8}},
      {"a.tif", tiffWithOrientation, {1, 2, 3, 4, 5, 6, 7, 8}},
      {"a.heic", heicWithOrientation, {1, 3, 6, 8}},
  };
  const TestFolder folder;
  const auto upright = quartered(640, 320);
  for (const Writer& writer : writers) {
    for (const int orientation : writer.orientations) {
      const auto stored = samples::storedForOrientation(upright, orientation);
      const std::string path = folder.write(writer.name, writer.write(stored, orientation));
      for (const int width : {640, 200, 80}) {
        const auto decoded = decodePicture(path, {width, 1000, Request::Fit::fit});
        ASSERT_TRUE(decoded) << writer.name << " " << orientation;
        EXPECT_EQ(decoded->width, width) << writer.name << " " << orientation;
        EXPECT_EQ(decoded->height, width / 2) << writer.name << " " << orientation;
        EXPECT_EQ(quarters(*decoded), "red green blue white") << writer.name << " " << orientation;
      }
    }
  }
}

TEST(DecodePicture, PremultipliesTransparency) {
  QImage image(4, 4, QImage::Format_ARGB32);
  image.fill(QColor(255, 0, 0, 128));
  const TestFolder folder;
  for (const char* name : {"a.png", "a.webp", "a.tif"}) {
    ASSERT_TRUE(image.save(QString::fromStdString(folder.path(name)))) << name;
    const auto decoded = decodePicture(folder.path(name), {2, 2, Request::Fit::fit});
    ASSERT_TRUE(decoded) << name << ": " << decoded.error().reason;
    for (const std::uint32_t pixel : decoded->pixels) {
      EXPECT_EQ(pixel >> 16, 0x8080U) << name;
      EXPECT_LE(pixel & 0xFF, 1U) << name;
    }
  }
}

TEST(DecodePicture, SaysWhyThereIsNoPicture) {
  const TestFolder folder;
  ASSERT_EQ(mkfifo(folder.path("fifo.jpg").c_str(), 0600), 0);
  ASSERT_EQ(mkdir(folder.path("folder.jpg").c_str(), 0700), 0);
  folder.write("empty.heic", {});
  folder.write("text.txt", {'h', 'e', 'l', 'l', 'o'});
  folder.write("text.mov", {'h', 'e', 'l', 'l', 'o'});
  const std::pair<const char*, const char*> cases[] = {
      {"none.jpg", "No such file or directory"},
      {"fifo.jpg", "not a regular file"},
      {"folder.jpg", "Is a directory"},
      {"empty.heic", "empty file"},
      {"text.txt", "not a picture or video"},
      {"text.mov", "no frame of the video can be decoded"},
  };
  for (const auto& [name, reason] : cases) {
    const auto decoded = decodePicture(folder.path(name), whole);
    ASSERT_FALSE(decoded) << name;
    EXPECT_EQ(decoded.error().reason, reason) << name;
  }
  const std::string path = folder.write("a.bmp", samples::bmpFile(quartered(4, 4), 72));
  EXPECT_FALSE(decodePicture(path, {0, 100, Request::Fit::fit}));
  EXPECT_FALSE(decodePicture(path, {100, -1, Request::Fit::fill}));
}

// Whatever comes out, something does, and it has the size it says.
TEST(DecodePicture, TakesFilesThatAreCutOff) {
  const TestFolder folder;
  const auto picture = quartered(96, 64);
  for (const Format& format : formats) {
    const Bytes bytes = format.write(picture);
    for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / 64) {
      const std::string path = folder.write(
          format.name, Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)));
      const auto decoded = decodePicture(path, whole);
      if (!decoded) {
        EXPECT_NE(decoded.error().reason, "") << format.name << " of " << length;
        continue;
      }
      EXPECT_EQ(decoded->pixels.size(), 96U * 64U) << format.name << " of " << length;
    }
  }
}

TEST(DecodePicture, TakesFilesWithDamagedBytes) {
  const TestFolder folder;
  const auto picture = quartered(96, 64);
  for (const Format& format : formats) {
    const Bytes bytes = format.write(picture);
    int read = 0;
    for (std::size_t at = 0; at < bytes.size(); at += 1 + bytes.size() / 64) {
      Bytes damaged = bytes;
      damaged[at] ^= 0x5A;
      const auto decoded =
          decodePicture(folder.write(format.name, damaged), {50, 50, Request::Fit::fit});
      if (decoded) {
        EXPECT_EQ(decoded->pixels.size(),
                  static_cast<std::size_t>(decoded->width * decoded->height));
        ++read;
      }
    }
    EXPECT_GT(read, 0) << format.name;
  }
}

TEST(DecodePicture, ShowsTheFirstImageOfAnAnimation) {
  const TestFolder folder;
  const auto first = quartered(32, 32);
  const std::string path =
      folder.write("a.gif", samples::gifFile({first, samples::Picture(32, 32)}, 10, ""));
  const auto decoded = decodePicture(path, whole);
  ASSERT_TRUE(decoded);
  EXPECT_EQ(quarters(*decoded), "red green blue white");
}

TEST(DecodePicture, RefusesSizesThatNoPictureHas) {
  Bytes bytes = samples::pngFile(quartered(8, 8), {});
  bytes[17] = 0x7F;  // IHDR's width: 0x007F0008
  const TestFolder folder;
  EXPECT_FALSE(decodePicture(folder.write("a.png", bytes), {50, 50, Request::Fit::fit}));
}

}  // namespace

}  // namespace desktop::pictures
