// SPDX-License-Identifier: MIT
//
// Layout: a header of fixed places, a JPEG as the camera would have saved it, a directory of
// records, and the sensor's data, which in newer cameras begin with a TIFF structure. Older sensors
// have their pixels in rows that are turned or shared, so that a record says half or double a side;
// the shape of the JPEG, which may be smaller, tells which.
#include "media/image/raw/raf_container.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/limits.h"
#include "media/image/raw/raw_facts.h"

namespace media::image {

namespace {

constexpr std::string_view rafSignature = "FUJIFILMCCD-RAW ";

// Places in the header: an offset, a length behind it.
constexpr std::uint64_t jpegPlace = 0x54;
constexpr std::uint64_t directoryPlace = 0x5C;
constexpr std::uint64_t sensorPlace = 0x64;
constexpr std::uint64_t rafHeaderSize = 0x6C;

constexpr std::uint16_t croppedSizeRecord = 0x0111;  // height, width

// Tags of the sensor's TIFF structure.
constexpr std::uint16_t sensorPointer = 0xF000;
constexpr std::uint16_t sensorBits = 0xF003;

io::ByteRange rangeAt(io::ByteView header, std::uint64_t place) {
  const std::uint64_t begin = header.u32(place, io::ByteOrder::big).value_or(0);
  return {begin, begin + header.u32(place + 4, io::ByteOrder::big).value_or(0)};
}

// The directory: how many records, then tag, size and bytes of each.
PixelSize recordedSize(io::SourceReader& file, io::ByteRange directory) {
  const auto count = file.upTo(directory.begin, 4).u32(0, io::ByteOrder::big);
  std::uint64_t offset = directory.begin + 4;
  for (std::size_t index = 0; index < std::min<std::size_t>(count.value_or(0), limits.rawRecords);
       ++index) {
    const io::ByteView record = file.upTo(offset, 8);
    const auto size = record.u16(2, io::ByteOrder::big);
    if (!size || offset + 4 + *size > directory.end) return {};
    if (record.u16(0, io::ByteOrder::big) == croppedSizeRecord && *size >= 4) {
      return {record.u16(6, io::ByteOrder::big).value_or(0),
              record.u16(4, io::ByteOrder::big).value_or(0)};
    }
    offset += 4 + std::uint64_t{*size};
  }
  return {};
}

bool haveOneShape(PixelSize one, PixelSize other) {
  constexpr double tolerance = 0.05;
  const auto shape = [](PixelSize size) {
    return static_cast<double>(size.width) / static_cast<double>(size.height);
  };
  return std::abs(shape(one) / shape(other) - 1) < tolerance;
}

// The recorded size as the picture's. Where none of its readings has the JPEG's shape the JPEG was
// cropped, and the size is what it says.
PixelSize pictureSize(PixelSize recorded, PixelSize jpeg) {
  if (recorded.isEmpty() || jpeg.isEmpty()) return larger(recorded, jpeg);
  const auto [width, height] = recorded;
  const PixelSize readings[] = {recorded,
                                {width, height * 2},
                                {width * 2, height},
                                {width / 2, height * 2},
                                {width * 2, height / 2}};
  for (const PixelSize reading : readings) {
    if (!reading.isEmpty() && haveOneShape(reading, jpeg)) return larger(reading, jpeg);
  }
  return larger(recorded, jpeg);
}

std::int64_t depthOfRaf(io::SourceReader& file, io::ByteRange sensor) {
  const io::ByteView start =
      file.upTo(sensor.begin, std::min(sensor.size(), limits.rawSensorBytes));
  auto structure = TiffStructure::open(start);
  const auto first = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  const auto ifd = first ? structure->readIfdAt(first->find(sensorPointer)) : std::nullopt;
  return ifd ? integerOf(*structure, *ifd, sensorBits).value_or(0) : 0;
}

}  // namespace

bool isRafFile(io::ByteView head) {
  return head.startsWith(rafSignature);
}

io::ByteRange innerJpegOfRaf(io::SourceReader& file) {
  const auto header = file.view(0, rafHeaderSize);
  return header ? rangeAt(*header, jpegPlace) : io::ByteRange();
}

std::optional<model::Error> readRafFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto header = file.view(0, rafHeaderSize);
  if (!header) return model::Error{"truncated RAF"};
  const io::ByteRange jpeg = rangeAt(*header, jpegPlace);
  const io::ByteRange directory = rangeAt(*header, directoryPlace);
  const io::ByteRange sensor = rangeAt(*header, sensorPlace);
  readInnerJpeg(file, jpeg, properties);
  const PixelSize size = pictureSize(recordedSize(file, directory), exifSize(properties));
  if (size.isEmpty()) return model::Error{"damaged RAF"};
  setRawPixels(size, depthOfRaf(file, sensor), properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
