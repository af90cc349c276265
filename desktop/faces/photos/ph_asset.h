// SPDX-License-Identifier: MIT
//
// PHAsset: one item of the photo library. Its facts are read from the file when one of them is
// first asked for, and kept by the library.
#pragma once

#include <memory>
#include <string>

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/library/photo_library.h"

namespace desktop::faces {

class PHAsset : public bridge::Bound<PHAsset, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased. Two of the same file are equal, also where the file has changed in between. When
  // the library is gone, an asset tells what it would of a file that cannot be read. REQUIRES: the
  // item is not null.
  static bridge::PHAsset make(const library::PhotoLibrary& library, library::ItemPointer item);
  // The item of an asset; null for other objects and nil.
  static library::ItemPointer itemOf(bridge::Object asset);

 private:
  // Null where the file cannot be read, or the library is gone.
  const media::facts::AssetFacts* facts() const;

  bridge::NSString uuid() const { return bridge::NSString::make(_item->uuid); }
  bridge::NSString uniformTypeIdentifier() const;
  bool isVideo() const;
  long mediaType() const { return isVideo() ? 2 : 1; }  // PHAssetMediaType
  NSUInteger pixelWidth() const;
  NSUInteger pixelHeight() const;
  double duration() const;
  short exifOrientation() const;
  bridge::NSDate creationDate() const;
  bridge::NSDate modificationDate() const;
  bridge::CLLocation location() const;
  bridge::NSString localizedGeoDescription() const;
  bridge::NSURL mainFileURL() const;
  bridge::NSURL fileURLForFullsizeImage() const;
  bridge::NSURL fileURLForLargePreview() const;
  bridge::NSURL fileURLForMediumPreview() const;
  bool isEqual(bridge::Object other) const;
  unsigned long hash() const;
  bridge::Object copyWithZone(void* zone);

  std::weak_ptr<library::PhotoLibrary> _library;
  library::ItemPointer _item;
  std::string _devicePath;  // as the phone's programs know it
};

}  // namespace desktop::faces
