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
#include "foundation/paths.h"
#include "media/image/image_type.h"

namespace desktop::faces {

using bridge::NSDate;
using bridge::NSString;
using bridge::NSURL;

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

Class PHAsset::classObject() {
  static const Class made =
      bridge::ClassBuilder<PHAsset>("PHAsset")
          .method<"uuid", &PHAsset::uuid>()
          .method<"localIdentifier", &PHAsset::uuid>()
          .method<"uniformTypeIdentifier", &PHAsset::uniformTypeIdentifier>()
          .method<"isVideo", &PHAsset::isVideo>()
          .method<"mediaType", &PHAsset::mediaType>()
          .method<"pixelWidth", &PHAsset::pixelWidth>()
          .method<"pixelHeight", &PHAsset::pixelHeight>()
          .method<"duration", &PHAsset::duration>()
          .method<"exifOrientation", &PHAsset::exifOrientation>()
          .method<"creationDate", &PHAsset::creationDate>()
          .method<"modificationDate", &PHAsset::modificationDate>()
          .method<"location", &PHAsset::location>()
          .method<"localizedGeoDescription", &PHAsset::localizedGeoDescription>()
          .method<"mainFileURL", &PHAsset::mainFileURL>()
          .method<"fileURLForFullsizeImage", &PHAsset::fileURLForFullsizeImage>()
          .method<"fileURLForLargePreview", &PHAsset::fileURLForLargePreview>()
          .method<"fileURLForMediumPreview", &PHAsset::fileURLForMediumPreview>()
          .method<"isEqual:", &PHAsset::isEqual>()
          .method<"hash", &PHAsset::hash>()
          .method<"copyWithZone:", &PHAsset::copyWithZone>()
          .build();
  return made;
}

bridge::PHAsset PHAsset::make(const library::PhotoLibrary& library, library::ItemPointer item) {
  auto made =
      bridge::Owned<bridge::PHAsset>::adopt(bridge::send<bridge::PHAsset, "new">(classObject()));
  if (!made) return {};
  PHAsset& asset = of(made->get());
  asset._library = library.reference();
  asset._devicePath = library.root().onDevice(item->path);
  asset._item = std::move(item);
  return made.autorelease();
}

library::ItemPointer PHAsset::itemOf(bridge::Object asset) {
  return bridge::isKindOf(asset, classObject()) ? of(asset.get())._item : nullptr;
}

const media::facts::AssetFacts* PHAsset::facts() const {
  const auto library = _library.lock();
  if (!library) return nullptr;
  const library::FactsCache::Facts& facts = library->facts(*_item);
  return facts ? facts->get() : nullptr;
}

NSString PHAsset::uniformTypeIdentifier() const {
  const media::facts::AssetFacts* known = facts();
  return NSString::make(known != nullptr ? known->uniformTypeIdentifier
                                         : media::image::uniformTypeIdentifier({}, _item->path));
}

bool PHAsset::isVideo() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? known->isVideo : _item->isVideo();
}

NSUInteger PHAsset::pixelWidth() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? static_cast<NSUInteger>(known->pixelWidth) : 0;
}

NSUInteger PHAsset::pixelHeight() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? static_cast<NSUInteger>(known->pixelHeight) : 0;
}

double PHAsset::duration() const {
  const media::facts::AssetFacts* known = facts();
  return known != nullptr ? known->duration : 0;
}

short PHAsset::exifOrientation() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr) return 1;
  return orientation(*known);
}

NSDate PHAsset::creationDate() const {
  const media::facts::AssetFacts* known = facts();
  const model::Date date = known != nullptr ? known->creationDate : _item->modificationDate;
  return NSDate::withTimeIntervalSince1970(date.secondsSince1970);
}

NSDate PHAsset::modificationDate() const {
  return NSDate::withTimeIntervalSince1970(_item->modificationDate.secondsSince1970);
}

bridge::CLLocation PHAsset::location() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr || !known->location) return {};
  return CLLocation::make(*known->location);
}

NSString PHAsset::localizedGeoDescription() const {
  const media::facts::AssetFacts* known = facts();
  if (known == nullptr || !known->localizedGeoDescription) return {};
  return NSString::make(*known->localizedGeoDescription);
}

NSURL PHAsset::mainFileURL() const {
  return linkTo(_devicePath);
}

NSURL PHAsset::fileURLForFullsizeImage() const {
  return linkTo(library::previewFilesOf(_devicePath).fullsizeImage);
}

NSURL PHAsset::fileURLForLargePreview() const {
  return linkTo(library::previewFilesOf(_devicePath).largePreview);
}

NSURL PHAsset::fileURLForMediumPreview() const {
  return linkTo(library::previewFilesOf(_devicePath).mediumPreview);
}

bool PHAsset::isEqual(bridge::Object other) const {
  const library::ItemPointer item = itemOf(other);
  return item && item->uuid == _item->uuid;
}

unsigned long PHAsset::hash() const {
  return std::hash<std::string>()(_item->uuid);
}

// An asset never changes: its copy is itself, with a reference for the caller.
bridge::Object PHAsset::copyWithZone(void*) {
  return bridge::Owned<bridge::NSObject>::retain(self()).detach();
}

}  // namespace desktop::faces
