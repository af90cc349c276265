// SPDX-License-Identifier: MIT
#include "media/image/image_source.h"

#include <string_view>
#include <utility>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/shortfall.h"
#include "media/image/heif/heif_container.h"
#include "media/image/jpeg/jpeg_container.h"
#include "media/image/other/bmp_container.h"
#include "media/image/other/exr_container.h"
#include "media/image/other/gif_container.h"
#include "media/image/other/ico_container.h"
#include "media/image/other/jpeg2000_container.h"
#include "media/image/other/psd_container.h"
#include "media/image/other/tga_container.h"
#include "media/image/other/webp_container.h"
#include "media/image/png/png_container.h"
#include "media/image/raw/cr2_container.h"
#include "media/image/raw/cr3_container.h"
#include "media/image/raw/crw_container.h"
#include "media/image/raw/mrw_container.h"
#include "media/image/raw/raf_container.h"
#include "media/image/raw/rw2_container.h"
#include "media/image/raw/x3f_container.h"
#include "media/image/tiff/tiff_container.h"
#include "media/image/time_offsets.h"

namespace media::image {

namespace {

struct Container {
  bool (*isOne)(io::ByteView head);
  std::optional<model::Error> (*read)(io::SourceReader& file, model::Dictionary& properties);
  std::uint64_t mostBytes = ~std::uint64_t{0};  // that are read of the file
};

constexpr std::uint64_t rare = limits.rareKindBytes;

// The first whose test says yes reads the file.
constexpr Container containers[] = {
    {isJpegFile, readJpegFile},
    {isHeifFile, readHeifFile},
    {isPngFile, readPngFile},
    {isCr2File, readCr2File, rare},
    {isRw2File, readRw2File, rare},
    {isTiffFile, readTiffFile},
    {isGifFile, readGifFile},
    {isWebpFile, readWebpFile},
    {isBmpFile, readBmpFile},
    {isCr3File, readCr3File, rare},
    {isCrwFile, readCrwFile, rare},
    {isMrwFile, readMrwFile, rare},
    {isRafFile, readRafFile, rare},
    {isX3fFile, readX3fFile, rare},
    {isJpeg2000File, readJpeg2000File, rare},
    {isPsdFile, readPsdFile, rare},
    {isExrFile, readExrFile, rare},
    {isIcoFile, readIcoFile, rare},
    {isTgaFile, readTgaFile, rare},
};

const Container* containerOf(io::ByteView head) {
  for (const Container& container : containers) {
    if (container.isOne(head)) return &container;
  }
  return nullptr;
}

constexpr std::uint64_t headSize = 512;  // bytes by which containers are told apart

// The properties with the time offsets still in them.
model::Result<std::optional<model::Dictionary>> readProperties(io::ByteSource& source) {
  if (source.size() == 0) return model::Error{"empty file"};
  io::SourceReader file(source);
  const Container* container = containerOf(file.upTo(0, headSize));
  std::optional<model::Dictionary> properties;
  std::optional<model::Error> error;
  if (container) {
    file.limitReads(container->mostBytes);
    error = container->read(file, properties.emplace());
  }
  // A read that failed explains best why a file looks damaged.
  if (file.failure()) return *file.failure();
  if (error) return *error;
  // A file of images may hold moving ones only.
  if (properties && properties->empty()) properties.reset();
  return properties;
}

}  // namespace

model::Result<std::optional<ImageFacts>> readImageFacts(io::ByteSource& source) {
  auto properties = readProperties(source);
  if (!properties) return properties.error();
  if (!*properties) return std::optional<ImageFacts>();
  auto offset = takeTimeOffsets(**properties);
  std::string shortfall = takeShortfall(**properties);
  return std::optional(
      ImageFacts{std::move(**properties), std::move(offset), std::move(shortfall)});
}

model::Result<std::optional<model::Dictionary>> copyProperties(io::ByteSource& source) {
  auto facts = readImageFacts(source);
  if (!facts) return facts.error();
  if (!*facts) return std::optional<model::Dictionary>();
  return std::optional(std::move((*facts)->properties));
}

}  // namespace media::image
