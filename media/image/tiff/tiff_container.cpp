// SPDX-License-Identifier: MIT
//
// The first IFD of a TIFF file describes its image. In raw files it often describes a preview and
// points to further IFDs, one of which is the picture. NewSubfileType tells reduced images from
// full ones. Sensors have border pixels, so the picture is a little smaller than what is stored:
// DNG says how large it is, others say so in the Exif IFD or not at all. Some say so there alone,
// and nothing of their samples.
#include "media/image/tiff/tiff_container.h"

#include <algorithm>
#include <vector>

#include "media/image/blocks/density.h"
#include "media/image/tiff/dng_section.h"
#include "media/image/tiff/pixel_size.h"
#include "media/image/tiff/tiff_sections.h"

namespace media::image {

namespace {

// Tags: TIFF 6.0, TIFF/EP, DNG 1.4.
constexpr std::uint16_t newSubfileType = 0x00FE;
constexpr std::uint16_t bitsPerSample = 0x0102;
constexpr std::uint16_t photometricInterpretation = 0x0106;
constexpr std::uint16_t samplesPerPixel = 0x0115;
constexpr std::uint16_t subIfds = 0x014A;
constexpr std::uint16_t extraSamples = 0x0152;
constexpr std::uint16_t sampleFormat = 0x0153;
constexpr std::uint16_t defaultCropSize = 0xC620;

PixelSize croppedSize(TiffStructure& structure, const Ifd& ifd) {
  return {integerOf(structure, ifd, defaultCropSize, 0).value_or(0),
          integerOf(structure, ifd, defaultCropSize, 1).value_or(0)};
}

std::vector<Ifd> readSubIfds(TiffStructure& structure, const Ifd& first) {
  const IfdEntry* pointers = first.find(subIfds);
  const auto field = pointers ? structure.field(*pointers) : std::nullopt;
  if (!field) return {};
  // The field's bytes are gone once the first of the IFDs is read.
  std::vector<std::uint64_t> offsets;
  for (std::size_t index = 0; index < std::min(field->count, limits.ifdsPerStructure); ++index) {
    offsets.push_back(static_cast<std::uint64_t>(field->integer(index).value_or(0)));
  }
  std::vector<Ifd> ifds;
  for (const std::uint64_t offset : offsets) {
    if (auto ifd = structure.readIfd(offset)) ifds.push_back(*std::move(ifd));
  }
  return ifds;
}

bool isFullImage(TiffStructure& structure, const Ifd& ifd) {
  return integerOf(structure, ifd, newSubfileType).value_or(0) == 0 &&
         !storedSize(structure, ifd).isEmpty();
}

// The largest full image among the first IFD and those below it; the first IFD where none is full.
const Ifd& mainIfd(TiffStructure& structure, const Ifd& first, const std::vector<Ifd>& below) {
  const Ifd* best = isFullImage(structure, first) ? &first : nullptr;
  for (const Ifd& ifd : below) {
    if (!isFullImage(structure, ifd)) continue;
    const bool isLarger =
        !best || storedSize(structure, ifd).area() > storedSize(structure, *best).area();
    if (isLarger) best = &ifd;
  }
  return best ? *best : first;
}

// How much of each side of the stored image the camera's own picture has at least.
constexpr double leastShare = 0.9;

bool isPictureOf(PixelSize picture, PixelSize stored) {
  const auto fits = [](std::int64_t part, std::int64_t whole) {
    return part <= whole && static_cast<double>(part) >= leastShare * static_cast<double>(whole);
  };
  return fits(picture.width, stored.width) && fits(picture.height, stored.height);
}

PixelSize imageSize(TiffStructure& structure, const Ifd& first, const Ifd& image,
                    const model::Dictionary& properties) {
  if (const PixelSize cropped = croppedSize(structure, image); !cropped.isEmpty()) return cropped;
  const PixelSize stored = storedSize(structure, image);
  const PixelSize exif = exifSize(properties);
  if (stored.isEmpty()) return exif;
  return &image != &first && isPictureOf(exif, stored) ? exif : stored;
}

// ORF calls its sensor's samples black and white.
bool isOlympusRaw(io::SourceReader& file) {
  constexpr std::string_view marks[] = {"IIRO", "IIRS", "MMOR"};
  const io::ByteView mark = file.upTo(0, 4);
  return std::ranges::any_of(marks, [&](std::string_view text) { return mark.startsWith(text); });
}

std::string_view colorModel(TiffStructure& structure, const Ifd& ifd) {
  const std::int64_t samples = integerOf(structure, ifd, samplesPerPixel).value_or(1);
  const auto photometric = integerOf(structure, ifd, photometricInterpretation);
  switch (photometric.value_or(samples < 3 ? 1 : 2)) {
    case 0:
    case 1:
    case 4:
      return "Gray";
    case 5:
      return "CMYK";
    case 8:
    case 9:
    case 10:
      return "Lab";
    default:
      return "RGB";
  }
}

void setPixelFacts(io::SourceReader& file, TiffStructure& structure, const Ifd& image,
                   model::Dictionary& properties) {
  const bool isSensor = isOlympusRaw(file) || storedSize(structure, image).isEmpty();
  properties.insert_or_assign("ColorModel", isSensor ? "RGB" : colorModel(structure, image));
  if (storedSize(structure, image).isEmpty()) return;
  properties.insert_or_assign("Depth", integerOf(structure, image, bitsPerSample).value_or(1));
  const std::int64_t extra = integerOf(structure, image, extraSamples).value_or(0);
  if (extra == 1 || extra == 2) properties.insert_or_assign("HasAlpha", true);
  constexpr std::int64_t floatFormat = 3;
  if (integerOf(structure, image, sampleFormat) == floatFormat) {
    properties.insert_or_assign("IsFloat", true);
  }
}

}  // namespace

bool isTiffFile(io::ByteView head) {
  return TiffStructure::open(head).has_value();
}

std::optional<model::Error> readTiffFile(io::SourceReader& file, model::Dictionary& properties) {
  auto structure = TiffStructure::open(file);
  const auto first = structure ? readTiffSections(*structure, properties) : std::nullopt;
  if (!first) return model::Error{"truncated TIFF"};
  const std::vector<Ifd> below = readSubIfds(*structure, *first);
  const Ifd& image = mainIfd(*structure, *first, below);
  const PixelSize size = imageSize(*structure, *first, image, properties);
  if (size.isEmpty()) return model::Error{"TIFF without an image"};
  properties.insert_or_assign("PixelWidth", size.width);
  properties.insert_or_assign("PixelHeight", size.height);
  setPixelFacts(file, *structure, image, properties);
  readDngSection(*structure, *first, image, properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
