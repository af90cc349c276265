// SPDX-License-Identifier: MIT
#include "tests/support/sample_photo.h"

#include <cmath>
#include <string_view>

#include "tests/support/tiff_builder.h"

namespace media::facts {

namespace {

using Bytes = std::vector<std::uint8_t>;
using image::FieldToWrite;

void append(Bytes& bytes, std::string_view text) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

void append16(Bytes& bytes, std::size_t number) {
  bytes.push_back(static_cast<std::uint8_t>(number >> 8));
  bytes.push_back(static_cast<std::uint8_t>(number));
}

// A JPEG segment: marker, length, content. ITU T.81, B.1.1.4.
void appendSegment(Bytes& jpeg, std::uint8_t marker, const Bytes& content) {
  jpeg.insert(jpeg.end(), {0xFF, marker});
  append16(jpeg, content.size() + 2);
  jpeg.insert(jpeg.end(), content.begin(), content.end());
}

FieldToWrite degrees(std::uint16_t tag, double coordinate) {
  const auto millionths = static_cast<std::uint32_t>(std::llround(std::abs(coordinate) * 1e6));
  return image::rationals(tag, {{millionths, 1'000'000}, {0, 1}, {0, 1}});
}

// EXIF 2.31, 4.6.
Bytes exifBlock(const SamplePhoto& photo) {
  std::vector<FieldToWrite> image;
  std::vector<FieldToWrite> exif{image::ascii(0x9000, "0231")};
  std::vector<FieldToWrite> gps;
  if (!photo.make.empty()) image.push_back(image::ascii(0x010F, photo.make));
  if (photo.orientation) image.push_back(image::shorts(0x0112, {*photo.orientation}));
  image.push_back(image::pointerTo(0x8769, 1));
  if (!photo.dateTimeOriginal.empty()) {
    exif.push_back(image::ascii(0x9003, photo.dateTimeOriginal));
  }
  if (!photo.contentIdentifier.empty()) {
    const Bytes note =
        image::buildAppleNote(io::ByteOrder::big, {image::ascii(17, photo.contentIdentifier)});
    exif.push_back(image::undefined(0x927C, image::asText(note)));
  }
  if (!photo.offset.empty()) exif.push_back(image::ascii(0x9011, photo.offset));
  if (const auto& place = photo.location) {
    image.push_back(image::pointerTo(0x8825, 2));
    gps = {image::ascii(0x0001, place->latitude < 0 ? "S" : "N"), degrees(0x0002, place->latitude),
           image::ascii(0x0003, place->longitude < 0 ? "W" : "E"),
           degrees(0x0004, place->longitude)};
  }
  Bytes block;
  append(block, std::string_view("Exif\0\0", 6));
  const Bytes tiff = image::buildTiff(io::ByteOrder::big, {image, exif, gps});
  block.insert(block.end(), tiff.begin(), tiff.end());
  return block;
}

void appendDataset(Bytes& datasets, std::uint8_t number, std::string_view text) {
  if (text.empty()) return;
  datasets.insert(datasets.end(), {0x1C, 0x02, number});
  append16(datasets, text.size());
  append(datasets, text);
}

// IPTC-IIM 4.2 inside a Photoshop resource.
Bytes iptcBlock(const SamplePhoto& photo) {
  Bytes datasets;
  appendDataset(datasets, 90, photo.city);
  appendDataset(datasets, 101, photo.country);
  Bytes block;
  append(block, std::string_view("Photoshop 3.0\0008BIM\x04\x04\0\0\0\0", 24));
  append16(block, datasets.size());
  block.insert(block.end(), datasets.begin(), datasets.end());
  if (datasets.size() % 2 != 0) block.push_back(0);
  return block;
}

// A baseline frame of three components; ITU T.81, B.2.2.
Bytes frameHeader(const SamplePhoto& photo) {
  Bytes header{8};
  append16(header, photo.height);
  append16(header, photo.width);
  header.insert(header.end(), {3, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0});
  return header;
}

}  // namespace

std::vector<std::uint8_t> sampleJpeg(const SamplePhoto& photo) {
  Bytes jpeg{0xFF, 0xD8};
  appendSegment(jpeg, 0xE1, exifBlock(photo));
  if (!photo.city.empty() || !photo.country.empty()) appendSegment(jpeg, 0xED, iptcBlock(photo));
  appendSegment(jpeg, 0xC0, frameHeader(photo));
  appendSegment(jpeg, 0xDA, {3, 1, 0, 2, 0, 3, 0, 0, 63, 0});
  jpeg.insert(jpeg.end(), 100, 0x55);
  jpeg.insert(jpeg.end(), {0xFF, 0xD9});
  return jpeg;
}

}  // namespace media::facts
