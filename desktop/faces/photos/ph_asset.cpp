// SPDX-License-Identifier: MIT
//
// An asset holds the library's item, which the walk of the folder knows, and reaches back into the
// library for everything that only the file tells: the first such question reads the file, and the
// library's cache keeps the answer. Where the library is gone or the file cannot be read, the
// answers are those of an asset without metadata.
#include "desktop/faces/photos/ph_asset.h"

#include <algorithm>
#include <functional>
#include <limits>

#include "bridge/class_builder.h"
#include "desktop/faces/photos/cl_location.h"
#include "desktop/library/preview_files.h"
#include "desktop/platform.h"
#include "foundation/paths.h"
#include "media/image/image_type.h"

namespace desktop::faces {

namespace {

NSURL linkTo(std::string_view devicePath) {
  return NSURL::withString(NSString::make(foundation::fileUrlText(devicePath)));
}

// The field is 16 bits wide in a file, too. EXIF 2.31, tag 0x0112.
short orientation(const media::facts::AssetFacts& facts) {
  constexpr std::int64_t largest = std::numeric_limits<short>::max();
  return static_cast<short>(std::clamp<std::int64_t>(facts.exifOrientation, 0, largest));
}

}  // namespace

Class PHAssetState::classObject() {
  static const Class made =
      ClassBuilder<PHAssetState>("PHAsset")
          .method<"uuid", &PHAssetState::uuid>()
          .method<"localIdentifier", &PHAssetState::uuid>()
          .method<"uniformTypeIdentifier", &PHAssetState::uniformTypeIdentifier>()
          .method<"isVideo", &PHAssetState::isVideo>()
          .method<"mediaType", &PHAssetState::mediaType>()
          .method<"pixelWidth", &PHAssetState::pixelWidth>()
          .method<"pixelHeight", &PHAssetState::pixelHeight>()
          .method<"duration", &PHAssetState::duration>()
          .method<"exifOrientation", &PHAssetState::exifOrientation>()
          .method<"creationDate", &PHAssetState::creationDate>()
          .method<"modificationDate", &PHAssetState::modificationDate>()
          .method<"location", &PHAssetState::location>()
          .method<"localizedGeoDescription", &PHAssetState::localizedGeoDescription>()
          .method<"mainFileURL", &PHAssetState::mainFileURL>()
          .method<"fileURLForFullsizeImage", &PHAssetState::fileURLForFullsizeImage>()
          .method<"fileURLForLargePreview", &PHAssetState::fileURLForLargePreview>()
          .method<"fileURLForMediumPreview", &PHAssetState::fileURLForMediumPreview>()
          .method<"isEqual:", &PHAssetState::isEqual>()
          .method<"hash", &PHAssetState::hash>()
          .method<"copyWithZone:", &PHAssetState::copyWithZone>()
          .build();
  return made;
}

PHAsset PHAssetState::make(const library::PhotoLibrary& library, library::ItemPointer item) {
  auto made = makeNew<PHAsset>(classObject());
  if (!made) return {};
  PHAssetState& asset = of(made->get());
  asset._library = library.reference();
  asset._devicePath = library.root().onDevice(item->file());
  asset._item = std::move(item);
  return made.autorelease();
}

library::ItemPointer PHAssetState::itemOf(Object asset) {
  return isKindOf(asset, classObject()) ? of(asset.get())._item : nullptr;
}

const media::facts::AssetFacts* PHAssetState::facts() const {
  const auto library = _library.lock();
  if (!library) return nullptr;
  const library::FactsCache::Facts& facts = library->facts(*_item);
  return facts ? facts->get() : nullptr;
}

NSString PHAssetState::uniformTypeIdentifier() const {
  const media::facts::AssetFacts* known = facts();
  return NSString::make(known != nullptr ? known->uniformTypeIdentifier
                                         : media::image::uniformTypeIdentifier({}, _item->path));
}

bool PHAssetState::isVideo() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? known->isVideo : _item->isVideo();
}

NSUInteger PHAssetState::pixelWidth() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? static_cast<NSUInteger>(known->pixelWidth) : 0;
}

NSUInteger PHAssetState::pixelHeight() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? static_cast<NSUInteger>(known->pixelHeight) : 0;
}

double PHAssetState::duration() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? known->duration : 0;
}

short PHAssetState::exifOrientation() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr) return 1;
  return orientation(*known);
}

NSDate PHAssetState::creationDate() const {
  const media::facts::AssetFacts* known = facts();
  const model::Date date = known != nullptr ? known->creationDate : _item->modificationDate;
  return NSDate::withTimeIntervalSince1970(date.secondsSince1970);
}

NSDate PHAssetState::modificationDate() const {
  return NSDate::withTimeIntervalSince1970(_item->modificationDate.secondsSince1970);
}

CLLocation PHAssetState::location() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr || !known->location) return {};
  return CLLocationState::make(*known->location);
}

NSString PHAssetState::localizedGeoDescription() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr || !known->localizedGeoDescription) return {};
  return NSString::make(*known->localizedGeoDescription);
}

NSURL PHAssetState::mainFileURL() const {
  return linkTo(_devicePath);
}

NSURL PHAssetState::fileURLForFullsizeImage() const {
  return linkTo(library::previewFilesOf(_devicePath).fullsizeImage);
}

NSURL PHAssetState::fileURLForLargePreview() const {
  return linkTo(library::previewFilesOf(_devicePath).largePreview);
}

NSURL PHAssetState::fileURLForMediumPreview() const {
  return linkTo(library::previewFilesOf(_devicePath).mediumPreview);
}

bool PHAssetState::isEqual(Object other) const {
  const library::ItemPointer item = itemOf(other);
  return item && item->uuid == _item->uuid;
}

unsigned long PHAssetState::hash() const {
  return std::hash<std::string>()(_item->uuid);
}

// An asset never changes: its copy is itself, with a reference for the caller.
Object PHAssetState::copyWithZone(void*) {
  return Owned<NSObject>::retain(self()).detach();
}

}  // namespace desktop::faces
