// SPDX-License-Identifier: MIT
#include "media/image/image_source.h"

#include <string_view>
#include <utility>

#include "media/image/heif/heif_container.h"
#include "media/image/jpeg/jpeg_container.h"
#include "media/image/other/bmp_container.h"
#include "media/image/other/gif_container.h"
#include "media/image/other/webp_container.h"
#include "media/image/png/png_container.h"
#include "media/image/tiff/tiff_container.h"
#include "media/image/time_offsets.h"

namespace media::image {

namespace {

struct Container {
  bool (*isOne)(io::ByteView head);
  std::optional<model::Error> (*read)(io::SourceReader& file, model::Dictionary& properties);
};

// The first whose test says yes reads the file.
constexpr Container containers[] = {
    {isJpegFile, readJpegFile}, {isHeifFile, readHeifFile}, {isPngFile, readPngFile},
    {isTiffFile, readTiffFile}, {isGifFile, readGifFile},   {isWebpFile, readWebpFile},
    {isBmpFile, readBmpFile},
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
  if (container) error = container->read(file, properties.emplace());
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
  return std::optional(ImageFacts{std::move(**properties), std::move(offset)});
}

model::Result<std::optional<model::Dictionary>> copyProperties(io::ByteSource& source) {
  auto facts = readImageFacts(source);
  if (!facts) return facts.error();
  if (!*facts) return std::optional<model::Dictionary>();
  return std::optional(std::move((*facts)->properties));
}

}  // namespace media::image
