// SPDX-License-Identifier: MIT
//
// One file as a photo library knows it: the facts of an asset, made once from the file for the
// photo application and the command-line tool alike.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "foundation/device_root.h"
#include "media/movie/media_source.h"
#include "model/geometry.h"
#include "model/media_asset.h"
#include "model/result.h"
#include "model/value.h"

namespace media::facts {

// What is known of one photo or video.
struct AssetFacts {
  std::string path;  // absolute, links resolved, as the device knows it; bytes as on disk
  std::string uniformTypeIdentifier;  // "public.jpeg", ...: by content, then by name; may be empty
  bool isVideo = false;
  // The size as displayed, after orientation or rotation, in pixels.
  std::int64_t pixelWidth = 0;
  std::int64_t pixelHeight = 0;
  std::uint64_t fileSize = 0;  // bytes
  model::Date fileModificationDate;
  // When it was taken: DateTimeOriginal with its offset (else the local zone), the movie's
  // creation date, else the file's modification date.
  model::Date creationDate;
  double duration = 0;                      // seconds; 0 for stills
  std::int64_t exifOrientation = 1;         // the top-level "Orientation", else 1
  std::optional<model::Location> location;  // from {GPS} with signs, or ISO 6709 text
  // City, province and country of IPTC or XMP, joined by ", "; none where there are none.
  std::optional<std::string> localizedGeoDescription;

  // What the facts were taken from: a still has properties, a video an asset.
  std::optional<model::Dictionary> properties;
  std::optional<model::MediaAsset> asset;

  // What a limit cut, to be told beside the facts: can stand behind "FILE: "; empty where nothing.
  std::string shortfall;
};

// Reads the file at a path, below the root where the path is one of the device's. Callable from
// several threads at once. Errors: cannot be opened or read; "empty file"; truncated; "not a photo
// or video"; those of movie::readOtherContainer; where waiting is refused, movie::isBeingRead.
model::Result<AssetFacts> readAssetFacts(const std::string& path,
                                         const foundation::DeviceRoot& root,
                                         movie::Waiting waiting = movie::Waiting::allowed);

}  // namespace media::facts
