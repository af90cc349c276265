// SPDX-License-Identifier: MIT
//
// Layout: "\\0MRM" and the size of the header, which is made of blocks: four bytes of name, a size,
// the bytes. The block of the sensor says how large the picture is; another is a TIFF structure.
#include "media/image/raw/mrw_container.h"

#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/raw/raw_facts.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t blockHeadSize = 8;

struct MrwBlock {
  std::string_view name;
  void (*read)(io::ByteView bytes, model::Dictionary& properties);
};

// "\0PRD": a version of eight bytes, the sensor's height and width, the picture's, bits a sample.
void readSensor(io::ByteView bytes, model::Dictionary& properties) {
  const PixelSize size{bytes.u16(14, io::ByteOrder::big).value_or(0),
                       bytes.u16(12, io::ByteOrder::big).value_or(0)};
  if (!size.isEmpty()) setRawPixels(size, bytes.u8(16).value_or(0), properties);
}

constexpr MrwBlock mrwBlocks[] = {{"\0PRD"sv, readSensor}, {"\0TTW"sv, readExifBlock}};

void readBlock(io::SourceReader& file, std::string_view name, io::ByteRange block,
               model::Dictionary& properties) {
  for (const MrwBlock& each : mrwBlocks) {
    if (each.name == name) each.read(file.upTo(block.begin, block.size()), properties);
  }
}

}  // namespace

bool isMrwFile(io::ByteView head) {
  return head.startsWith("\0MRM"sv);
}

std::optional<model::Error> readMrwFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto headerSize = file.upTo(0, blockHeadSize).u32(4, io::ByteOrder::big);
  const std::uint64_t end = blockHeadSize + headerSize.value_or(0);
  std::uint64_t offset = blockHeadSize;
  for (std::size_t count = 0; count < limits.rawRecords && offset < end; ++count) {
    const auto head = file.view(offset, blockHeadSize);
    if (!head) break;
    const std::string name(head->text().substr(0, 4));
    offset += blockHeadSize;
    const std::uint64_t size = head->u32(4, io::ByteOrder::big).value_or(0);
    readBlock(file, name, {offset, offset + size}, properties);
    offset += size;
  }
  if (!properties.contains("PixelWidth")) {
    return model::Error{end > file.size() ? "truncated MRW" : "damaged MRW"};
  }
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
