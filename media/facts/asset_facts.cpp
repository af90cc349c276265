// SPDX-License-Identifier: MIT
#include "media/facts/asset_facts.h"

#include <unistd.h>

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "foundation/paths.h"
#include "io/byte_source.h"
#include "media/facts/capture_date.h"
#include "media/facts/location.h"
#include "media/image/image_source.h"
#include "media/image/image_type.h"
#include "model/conversions.h"

namespace media::facts {

namespace {

// Orientations 5 to 8 are turned by a quarter. EXIF 2.31, tag 0x0112.
bool isTurned(std::int64_t orientation) {
  return orientation >= 5 && orientation <= 8;
}

std::int64_t integerOf(const model::Dictionary& properties, std::string_view key,
                       std::int64_t otherwise) {
  const model::Value* value = model::find(properties, key);
  return value == nullptr ? otherwise : model::integerValue(*value);
}

// A length in whole pixels; 0 for what is no number.
std::int64_t pixels(double length) {
  return model::integerValue(std::round(std::abs(length)));
}

void describeStill(AssetFacts& facts, image::ImageFacts image) {
  model::Dictionary& properties = image.properties;
  facts.exifOrientation = integerOf(properties, "Orientation", 1);
  facts.pixelWidth = integerOf(properties, "PixelWidth", 0);
  facts.pixelHeight = integerOf(properties, "PixelHeight", 0);
  if (isTurned(facts.exifOrientation)) std::swap(facts.pixelWidth, facts.pixelHeight);
  facts.creationDate = captureDateOfProperties(properties, image.offsetTimeOriginal)
                           .value_or(facts.fileModificationDate);
  facts.location = locationOfProperties(properties);
  facts.localizedGeoDescription = placeOfProperties(properties);
  facts.shortfall = std::move(image.shortfall);
  facts.properties = std::move(image.properties);
}

// Of a video, or of a sequence of images.
const model::Track* firstPictureTrack(const model::MediaAsset& asset) {
  for (const model::Track& track : asset.tracks) {
    if (track.mediaType == "vide" || track.mediaType == "pict") return &track;
  }
  return nullptr;
}

void describeVideo(AssetFacts& facts, model::MediaAsset asset) {
  facts.isVideo = true;
  if (const model::Track* track = firstPictureTrack(asset)) {
    const auto& [width, height] = track->naturalSize;
    const model::AffineTransform& matrix = track->preferredTransform;
    facts.pixelWidth = pixels(width * matrix.a + height * matrix.c);
    facts.pixelHeight = pixels(width * matrix.b + height * matrix.d);
  }
  facts.duration = std::isfinite(asset.duration) ? asset.duration : 0;
  facts.creationDate = captureDateOfAsset(asset).value_or(facts.fileModificationDate);
  facts.location = locationOfAsset(asset);
  facts.asset = std::move(asset);
}

// Where an open file lies, links resolved. The system tells it of the descriptor in a third of the
// time that following the links takes, but not of a file that has been replaced since.
std::string pathOf(const io::FileSource& file, const std::string& path) {
  constexpr std::string_view gone = " (deleted)";
  std::array<char, 4096> target{};
  const std::string link = "/proc/self/fd/" + std::to_string(file.descriptor());
  const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
  const std::string_view told(target.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
  const bool isWhole = !told.empty() && told.size() < target.size() && !told.ends_with(gone);
  return isWhole ? std::string(told) : foundation::resolvedPath(path);
}

constexpr std::size_t typeHeadSize = 512;  // bytes that tell what a file is

std::string_view typeOf(io::ByteSource& source, const std::string& path) {
  std::array<std::uint8_t, typeHeadSize> head{};
  const auto count = source.readAt(0, head);
  const auto known = io::ByteView(head).sub(0, count ? *count : 0);
  return image::uniformTypeIdentifier(known.value_or(io::ByteView()), path);
}

}  // namespace

model::Result<AssetFacts> readAssetFacts(const std::string& path,
                                         const foundation::DeviceRoot& root,
                                         movie::Waiting waiting) {
  const std::string absolute = foundation::absolutePath(path);
  const std::string onDisk = root.onDisk(absolute);
  // A path that is not redirected is opened as given: shorter, and independent of the folders
  // above the working directory.
  const auto source = io::FileSource::open(onDisk == absolute ? path : onDisk);
  if (!source) return source.error();
  if ((*source)->size() == 0) return model::Error{"empty file"};
  const std::string resolved = pathOf(**source, onDisk);
  AssetFacts facts;
  facts.path = root.onDevice(resolved);
  facts.fileSize = (*source)->size();
  facts.fileModificationDate = {(*source)->modificationTime()};
  facts.uniformTypeIdentifier = typeOf(**source, resolved);
  auto image = image::readImageFacts(**source);
  if (!image) return image.error();
  if (*image) {
    describeStill(facts, **std::move(image));
    return facts;
  }
  auto asset = movie::copyAssetOfFile(resolved, **source, waiting);
  if (!asset) return asset.error();
  if (!*asset) return model::Error{"not a photo or video"};
  facts.shortfall = std::move((*asset)->shortfall);
  describeVideo(facts, std::move((*asset)->asset));
  return facts;
}

}  // namespace media::facts
