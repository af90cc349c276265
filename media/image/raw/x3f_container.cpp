// SPDX-License-Identifier: MIT
//
// Layout: a header, sections, and a directory of them, to which the last four bytes of the file
// lead. Newer cameras put a JPEG with Exif in, older ones a list of properties.
#include "media/image/raw/x3f_container.h"

#include <algorithm>

#include "media/image/blocks/density.h"
#include "media/image/blocks/limits.h"
#include "media/image/raw/raw_facts.h"
#include "media/image/raw/x3f_properties.h"

namespace media::image {

namespace {

constexpr std::uint64_t x3fHeaderSize = 52;
constexpr std::uint64_t rowSize = 12;    // of the directory: offset, size, name
constexpr std::uint64_t imageHead = 28;  // what stands before the JPEG of an image's section

struct X3fHeader {
  PixelSize size;
  std::int64_t rotation = 0;
};

// Version 4 moved the size.
X3fHeader headerOf(io::ByteView bytes) {
  const auto number = [&](std::uint64_t offset) {
    return std::int64_t{bytes.u32(offset, io::ByteOrder::little).value_or(0)};
  };
  constexpr std::int64_t fourth = 4 << 16;
  const std::uint64_t place = number(4) < fourth ? 28 : 40;
  return {{number(place), number(place + 4)}, number(place + 8)};
}

void readSection(io::SourceReader& file, std::string_view name, io::ByteRange bytes,
                 model::Dictionary& properties) {
  if (name == "IMA2" && bytes.size() > imageHead) {
    readInnerJpeg(file, {bytes.begin + imageHead, bytes.end}, properties);
  } else if (name == "PROP") {
    const std::uint64_t size = std::min<std::uint64_t>(bytes.size(), limits.textBytes);
    readX3fProperties(file.upTo(bytes.begin, size), properties);
  }
}

// Of what is said twice the JPEG's words count, so its sections are read first.
void readSections(io::SourceReader& file, std::string_view wanted, model::Dictionary& properties) {
  const auto place = file.upTo(file.size() - 4, 4).u32(0, io::ByteOrder::little);
  const io::ByteView head = file.upTo(place.value_or(0), rowSize);
  if (!head.startsWith("SECd")) return;
  const std::uint64_t count = head.u32(8, io::ByteOrder::little).value_or(0);
  for (std::uint64_t index = 0; index < std::min<std::uint64_t>(count, limits.rawRecords);
       ++index) {
    const auto row = file.view(*place + (index + 1) * rowSize, rowSize);
    if (!row) return;
    const std::uint64_t begin = *row->u32(0, io::ByteOrder::little);
    const io::ByteRange bytes{begin, begin + *row->u32(4, io::ByteOrder::little)};
    if (row->from(8).startsWith(wanted)) readSection(file, wanted, bytes, properties);
  }
}

}  // namespace

bool isX3fFile(io::ByteView head) {
  return head.startsWith("FOVb");
}

std::optional<model::Error> readX3fFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto bytes = file.view(0, x3fHeaderSize);
  if (!bytes) return model::Error{"truncated X3F"};
  const X3fHeader header = headerOf(*bytes);
  if (header.size.isEmpty()) return model::Error{"damaged X3F"};
  readSections(file, "IMA2", properties);
  readSections(file, "PROP", properties);
  setRawPixels(header.size, 0, properties);
  setRotation(header.rotation, properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
