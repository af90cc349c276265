// SPDX-License-Identifier: MIT
//
// The movie box holds a box of Canon's with TIFF structures, one a directory (CMT1 the first, CMT2
// Exif, CMT3 the maker's, CMT4 GPS), and a track for each of the pictures; the largest one's is the
// sensor's. The XMP packet has a box of its own.
#include "media/image/raw/cr3_container.h"

#include <algorithm>
#include <array>

#include "io/iso_box.h"
#include "media/image/blocks/density.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/maker/maker_canon.h"
#include "media/image/raw/raw_facts.h"
#include "media/image/tiff/exif_section.h"
#include "media/image/tiff/gps_section.h"
#include "media/image/tiff/tiff_section.h"

namespace media::image {

namespace {

using model::fourCharCode;
using BoxUuid = std::array<std::uint8_t, 16>;

constexpr BoxUuid canonUuid = {0x85, 0xC0, 0xB6, 0x87, 0x82, 0x0F, 0x11, 0xE0,
                               0x81, 0x11, 0xF4, 0xCE, 0x46, 0x2B, 0x6A, 0x48};
constexpr BoxUuid xmpUuid = {0xBE, 0x7A, 0xCF, 0xCB, 0x97, 0xA9, 0x42, 0xE8,
                             0x9C, 0x71, 0x99, 0x94, 0x91, 0xE3, 0xAF, 0xAC};

struct DirectoryBox {
  model::FourCharCode type;
  void (*read)(TiffStructure& structure, const Ifd& ifd, model::Dictionary& properties);
};

void readFirst(TiffStructure& structure, const Ifd& ifd, model::Dictionary& properties) {
  readTiffSection(structure, ifd, properties);
  const PixelSize size = storedSize(structure, ifd);
  if (!size.isEmpty()) setRawPixels(size, 0, properties);
}

constexpr DirectoryBox directoryBoxes[] = {{fourCharCode("CMT1"), readFirst},
                                           {fourCharCode("CMT2"), readExifSection},
                                           {fourCharCode("CMT3"), readCanonDirectory},
                                           {fourCharCode("CMT4"), readGpsSection}};

void readDirectory(io::SourceReader& file, const io::IsoBox& box, model::Dictionary& properties) {
  const auto* row = std::ranges::find(directoryBoxes, box.type, &DirectoryBox::type);
  if (row == std::end(directoryBoxes)) return;
  const auto bytes = io::boxBytes(file, box, limits.embeddedBytes);
  auto structure = bytes ? TiffStructure::open(*bytes) : std::nullopt;
  const auto ifd = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  if (ifd) row->read(*structure, *ifd, properties);
}

std::optional<io::IsoBox> uuidBox(io::SourceReader& file, io::ByteRange range,
                                  const BoxUuid& uuid) {
  io::IsoBoxWalk walk(file, range, io::SourceReader::ReadAhead::none);
  while (const auto box = walk.next()) {
    if (box->is("uuid") && box->uuid == uuid) return box;
  }
  return std::nullopt;
}

// What the coder's box of a track says: width, bits a sample.
struct CodedTrack {
  std::int64_t width = 0;
  std::int64_t depth = 0;
};

CodedTrack codedTrack(io::SourceReader& file, io::ByteRange track) {
  for (const auto type :
       {fourCharCode("mdia"), fourCharCode("minf"), fourCharCode("stbl"), fourCharCode("stsd")}) {
    const auto box = io::findBox(file, track, type);
    if (!box) return {};
    track = box->payload;
  }
  constexpr std::uint64_t listHead = 8;    // version, flags, how many entries
  constexpr std::uint64_t entryHead = 82;  // what stands before the boxes of an entry
  track.begin = std::min(track.begin + listHead, track.end);
  const auto entry = io::findBox(file, track, fourCharCode("CRAW"));
  if (!entry || entry->payload.size() < entryHead) return {};
  const auto coder = io::findBox(file, {entry->payload.begin + entryHead, entry->payload.end},
                                 fourCharCode("CMP1"));
  if (!coder || coder->payload.size() < 25) return {};
  const io::ByteView bytes = file.upTo(coder->payload.begin, 25);
  return {bytes.u32(8, io::ByteOrder::big).value_or(0), bytes.u8(24).value_or(0)};
}

std::int64_t depthOfCr3(io::SourceReader& file, io::ByteRange movie) {
  CodedTrack best;
  io::IsoBoxWalk walk(file, movie);
  while (const auto box = walk.next()) {
    if (!box->is("trak")) continue;
    const CodedTrack track = codedTrack(file, box->payload);
    if (track.width > best.width) best = track;
  }
  return best.depth;
}

void readMovie(io::SourceReader& file, io::ByteRange movie, model::Dictionary& properties) {
  const auto canon = uuidBox(file, movie, canonUuid);
  io::IsoBoxWalk walk(file, canon ? canon->payload : io::ByteRange());
  while (const auto box = walk.next()) readDirectory(file, *box, properties);
}

}  // namespace

bool isCr3File(io::ByteView head) {
  return head.from(4).startsWith("ftypcrx ") &&
         head.text().find("CNCVCanonCR3") != std::string_view::npos;
}

std::optional<model::Error> readCr3File(io::SourceReader& file, model::Dictionary& properties) {
  const io::ByteRange whole{0, file.size()};
  const auto movie =
      io::findBox(file, whole, fourCharCode("moov"), io::SourceReader::ReadAhead::none);
  if (movie) readMovie(file, movie->payload, properties);
  if (!properties.contains("PixelWidth")) {
    return model::Error{!movie || movie->isCut ? "truncated CR3" : "damaged CR3"};
  }
  if (const std::int64_t depth = depthOfCr3(file, movie->payload); depth > 0) {
    properties.insert_or_assign("Depth", depth);
  }
  const auto xmp = uuidBox(file, whole, xmpUuid);
  const auto packet = xmp ? io::boxBytes(file, *xmp, limits.embeddedBytes) : std::nullopt;
  if (packet) readXmpPacket(*packet, properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
