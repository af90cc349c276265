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
#include "desktop/platform.h"

namespace desktop::faces {

class PHAssetState : public Bound<PHAssetState, NSObject, PHAsset> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased. Two of the same file are equal, also where the file has changed in between. When
  // the library is gone, an asset tells what it would of a file that cannot be read. REQUIRES: the
  // item is not null.
  static PHAsset make(const library::PhotoLibrary& library, library::ItemPointer item);
  // The item of an asset; null for other objects and nil.
  static library::ItemPointer itemOf(Object asset);

 private:
  // Null where the file cannot be read, or the library is gone.
  const media::facts::AssetFacts* facts() const;

  NSString uuid() const { return NSString::make(_item->uuid); }
  NSString uniformTypeIdentifier() const;
  bool isVideo() const;
  long mediaType() const { return isVideo() ? 2 : 1; }  // PHAssetMediaType
  NSUInteger pixelWidth() const;
  NSUInteger pixelHeight() const;
  double duration() const;
  short exifOrientation() const;
  NSDate creationDate() const;
  NSDate modificationDate() const;
  CLLocation location() const;
  NSString localizedGeoDescription() const;
  NSURL mainFileURL() const;
  NSURL fileURLForFullsizeImage() const;
  NSURL fileURLForLargePreview() const;
  NSURL fileURLForMediumPreview() const;
  bool isEqual(Object other) const;
  unsigned long hash() const;
  Object copyWithZone(void* zone);

  std::weak_ptr<library::PhotoLibrary> _library;
  library::ItemPointer _item;
  std::string _devicePath;  // as the phone's programs know it
};

}  // namespace desktop::faces
