// SPDX-License-Identifier: MIT
//
// Layout: a directory without a header, its values behind it, a footer. Offsets count from the
// first byte of the TIFF structure around it. A program that moves the note does not correct them,
// so the footer tells where the camera had put it; old cameras write none. Whichever place is
// taken, the values have to begin right behind the directory for it: else the offsets mean
// something else, and every value would be a wrong one. https://exiftool.org/TagNames/Canon.html
#include "media/image/maker/maker_canon.h"

#include <algorithm>
#include <cstdlib>

#include "media/image/ifd/tag_table.h"
#include "media/image/ifd/tiff_ifd.h"
#include "model/number_text.h"

namespace media::image {

namespace {

// Tables of 16-bit numbers, and what stands where in them.
constexpr std::uint16_t cameraSettings = 0x0001;
constexpr std::size_t lensType = 22;
constexpr std::size_t longFocalLength = 23;
constexpr std::size_t shortFocalLength = 24;
constexpr std::size_t unitsPerMillimetre = 25;
constexpr std::uint16_t shotInfo = 0x0004;
constexpr std::size_t flashCompensation = 15;

std::int64_t numberAt(const TiffField& table, std::size_t index) {
  const bool isTable =
      table.type == FieldType::unsignedShort || table.type == FieldType::signedShort;
  return isTable ? table.integer(index).value_or(0) & 0xFFFF : 0;
}

std::optional<model::Value> lensIdValue(const TiffField& settings) {
  constexpr std::int64_t unknownLens = 0xFFFF;
  const std::int64_t type = numberAt(settings, lensType);
  if (type == 0 || type == unknownLens) return std::nullopt;
  return model::Value(type);
}

// Focal lengths; which apertures they have is not told.
std::optional<model::Value> lensInfoValue(const TiffField& settings) {
  const auto shortest = static_cast<double>(numberAt(settings, shortFocalLength));
  const auto longest = static_cast<double>(numberAt(settings, longFocalLength));
  const auto units = static_cast<double>(numberAt(settings, unitsPerMillimetre));
  if (units == 0 || shortest == 0 || longest < shortest) return std::nullopt;
  return model::Value(model::Array{shortest / units, longest / units, 0.0, 0.0});
}

// In steps of a 32nd; 12 and 20 of them stand for a third and two.
std::optional<model::Value> flashCompensationValue(const TiffField& shot) {
  if (shot.count <= flashCompensation) return std::nullopt;
  const int code = static_cast<std::int16_t>(numberAt(shot, flashCompensation));
  const int steps = std::abs(code) % 32;
  const double part = steps == 12 ? 1.0 / 3 : steps == 20 ? 2.0 / 3 : steps / 32.0;
  const int whole = std::abs(code) / 32;
  const double value = whole + part;
  return model::Value(code < 0 ? -value : value);
}

std::optional<model::Value> serialNumberValue(const TiffField& field) {
  const std::int64_t number = field.integer(0).value_or(0);
  if (number <= 0) return std::nullopt;
  return model::Value(model::integerText(number));
}

constexpr TagRow rows[] = {
    {cameraSettings, "LensID", lensIdValue},
    {shotInfo, "FlashCompensation", flashCompensationValue},
    {0x0007, "Firmware", trimmedText},
    {0x0009, "OwnerName", trimmedText},
    {0x000C, "SerialNumber", serialNumberValue},
    {0x0095, "LensModel", trimmedText},
};
static_assert(tagsAscend(rows));

constexpr TagRow focalLengthRow[] = {{cameraSettings, "LensInfo", lensInfoValue}};

bool isDirectoryIn(io::ByteView note, io::ByteOrder order) {
  const std::uint16_t count = note.u16(0, order).value_or(0);
  const std::uint16_t firstType = note.u16(4, order).value_or(0);
  return count > 0 && count <= limits.makerNoteEntries &&
         sizeOf(static_cast<FieldType>(firstType)) != 0;
}

// The order of the structure around the note, unless a program wrote that anew in the other one.
io::ByteOrder orderOf(const MakerNote& note) {
  if (isDirectoryIn(note.bytes, note.order)) return note.order;
  return note.order == io::ByteOrder::big ? io::ByteOrder::little : io::ByteOrder::big;
}

// Where the camera had put the note, as the footer tells: a byte order mark, 42, the offset.
std::optional<std::uint64_t> originalOffset(io::ByteView note) {
  constexpr std::uint64_t footerSize = 8;
  if (note.size() < footerSize) return std::nullopt;
  const io::ByteView footer = note.from(note.size() - footerSize);
  if (footer.startsWith("II*")) return footer.u32(4, io::ByteOrder::little);
  return footer.startsWith("MM") ? footer.u32(4, io::ByteOrder::big) : std::nullopt;
}

// The offset of the first value that does not stand in its entry; none where all do.
std::optional<std::uint64_t> firstValueOffset(const Ifd& ifd) {
  std::optional<std::uint64_t> first;
  for (const IfdEntry& entry : ifd.entries) {
    if (entry.count * sizeOf(entry.type) > 4) first = std::min(first.value_or(~0ull), entry.offset);
  }
  return first;
}

// How far behind the last entry the first value stands, in one camera without a footer or another;
// no camera leaves more than the last of these.
constexpr std::uint64_t gaps[] = {0, 4, 16, 28};

// The offset of the note by which its own offsets count; none where they fit to none.
std::optional<std::uint64_t> countedOffset(const MakerNote& note, const Ifd& ifd,
                                           io::ByteOrder order) {
  const auto first = firstValueOffset(ifd);
  if (!first) return note.offset;
  const std::uint64_t directorySize = 2 + note.bytes.u16(0, order).value_or(0) * std::uint64_t{12};
  const auto gapAt = [&](std::uint64_t offset) { return *first - offset - directorySize; };
  const auto original = originalOffset(note.bytes);
  if (original && gapAt(*original) <= std::end(gaps)[-1]) return original;
  const bool isInPlace = std::ranges::find(gaps, gapAt(note.offset)) != std::end(gaps);
  return isInPlace ? std::optional(note.offset) : std::nullopt;
}

}  // namespace

void readCanonDirectory(TiffStructure& structure, const Ifd& ifd, model::Dictionary& properties) {
  readTags(structure, ifd, rows, "{ExifAux}", properties);
  readTags(structure, ifd, focalLengthRow, "{ExifAux}", properties);
}

void readCanonMakerNote(const MakerNote& note, model::Dictionary& properties) {
  const io::ByteOrder order = orderOf(note);
  if (!isDirectoryIn(note.bytes, order)) return;
  const auto ifd = TiffStructure(note.bytes, order).readIfd(0);
  const auto offset = ifd ? countedOffset(note, *ifd, order) : std::nullopt;
  if (!offset) return;
  TiffStructure structure(note.bytes, order, *offset);
  readCanonDirectory(structure, *ifd, properties);
}

}  // namespace media::image
