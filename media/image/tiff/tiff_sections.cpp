// SPDX-License-Identifier: MIT
#include "media/image/tiff/tiff_sections.h"

#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"
#include "media/image/maker/maker_notes.h"
#include "media/image/tiff/exif_section.h"
#include "media/image/tiff/gps_section.h"
#include "media/image/tiff/tiff_section.h"

namespace media::image {

namespace {

// Pointers and embedded blocks. EXIF 2.31, 4.6.3; XMP, part 3; TIFF/EP; ICC.1:2010, B.4.
constexpr std::uint16_t exifPointer = 0x8769;
constexpr std::uint16_t gpsPointer = 0x8825;
constexpr std::uint16_t makerNote = 0x927C;
constexpr std::uint16_t xmpPacket = 0x02BC;
constexpr std::uint16_t iptcDatasets = 0x83BB;
constexpr std::uint16_t photoshopResources = 0x8649;
constexpr std::uint16_t iccProfile = 0x8773;

void readGps(TiffStructure& structure, const IfdEntry* pointer, model::Dictionary& properties) {
  if (const auto gps = structure.readIfdAt(pointer)) readGpsSection(structure, *gps, properties);
}

void readExif(TiffStructure& structure, const IfdEntry* pointer, model::Dictionary& properties) {
  const auto exif = structure.readIfdAt(pointer);
  if (!exif) return;
  readExifSection(structure, *exif, properties);
  const IfdEntry* entry = exif->find(makerNote);
  if (const auto note = structure.block(entry)) {
    readMakerNote({*note, entry->offset, structure.order()}, properties);
  }
  // Some writers hang the GPS IFD here instead of at the first IFD.
  readGps(structure, exif->find(gpsPointer), properties);
}

// A block that is shown; where the limits forbid to read it, that is noted.
std::optional<io::ByteView> shownBlock(TiffStructure& structure, const IfdEntry* entry,
                                       model::Dictionary& properties) {
  if (entry && entry->count > limits.embeddedBytes) noteShortfall(properties, droppedMetadata);
  return structure.block(entry);
}

// Writers keep the same datasets in both places; one of them is enough.
void readIptc(TiffStructure& structure, const Ifd& first, model::Dictionary& properties) {
  if (const auto datasets = shownBlock(structure, first.find(iptcDatasets), properties)) {
    readIptcBlock(*datasets, properties);
  }
  if (properties.contains("{IPTC}") && !hasEmptyDatasets(properties)) return;
  if (const auto resources = structure.block(first.find(photoshopResources))) {
    readPhotoshopResources(*resources, properties);
  }
}

void readProfile(TiffStructure& structure, const Ifd& first, model::Dictionary& properties) {
  const auto profile = structure.block(first.find(iccProfile));
  auto name = profile ? iccProfileName(*profile) : std::nullopt;
  if (name) setIfAbsent(properties, "ProfileName", *std::move(name));
}

}  // namespace

void readTiffSections(TiffStructure& structure, const Ifd& first, model::Dictionary& properties) {
  readTiffSection(structure, first, properties);
  readGps(structure, first.find(gpsPointer), properties);
  readExif(structure, first.find(exifPointer), properties);
  readIptc(structure, first, properties);
  if (const auto packet = shownBlock(structure, first.find(xmpPacket), properties)) {
    readXmpPacket(*packet, properties);
  }
  readProfile(structure, first, properties);
}

std::optional<Ifd> readTiffSections(TiffStructure& structure, model::Dictionary& properties) {
  auto first = structure.readIfd(structure.firstIfd());
  if (first) readTiffSections(structure, *first, properties);
  return first;
}

void readExifBlock(io::ByteView block, model::Dictionary& properties) {
  if (auto structure = TiffStructure::open(block)) readTiffSections(*structure, properties);
}

}  // namespace media::image
