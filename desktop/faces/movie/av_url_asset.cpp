// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_url_asset.h"

#include "bridge/class_builder.h"
#include "desktop/faces/foundation/file_links.h"
#include "desktop/faces/movie/av_asset_track.h"
#include "desktop/faces/movie/av_metadata_item.h"
#include "desktop/faces/movie/media_time.h"
#include "desktop/platform.h"
#include "io/byte_source.h"
#include "media/movie/media_source.h"

namespace desktop::faces {

namespace {

// Whoever asks may not wait for another process: where one reads the file, there is nothing for
// now, and `isRead` is false.
model::MediaAsset assetAt(NSURL url, bool& isRead) {
  const auto path = fileOnDisk(url);
  if (!path) return {};
  const auto source = io::FileSource::open(*path);
  if (!source) return {};
  auto movie = media::movie::copyAssetOfFile(*path, **source, media::movie::Waiting::refused);
  if (!movie) isRead = !media::movie::isBeingRead(movie.error());
  if (!movie || !*movie) return {};
  return std::move((*movie)->asset);
}

}  // namespace

Class AVURLAssetState::classObject() {
  static const Class made =
      ClassBuilder<AVURLAssetState>("AVURLAsset")
          .classMethod<"URLAssetWithURL:options:", &AVURLAssetState::withURL>()
          .method<"URL", &AVURLAssetState::url>()
          .method<"tracks", &AVURLAssetState::tracks>()
          .method<"commonMetadata", &AVURLAssetState::commonMetadata>()
          .method<"duration", &AVURLAssetState::duration>()
          .build();
  return made;
}

NSObject AVURLAssetState::withURL(NSURL url, NSDictionary) {
  if (!url) return {};
  auto made = makeNew<NSObject>(classObject());
  if (made) of(made->get())._url = Owned<NSURL>::retain(url);
  return made.autorelease();
}

NSArray AVURLAssetState::tracks() {
  readOnce();
  return _tracks;
}

NSArray AVURLAssetState::commonMetadata() {
  readOnce();
  return _commonMetadata;
}

CMTime AVURLAssetState::duration() {
  readOnce();
  return timeOfSeconds(_duration);
}

void AVURLAssetState::readOnce() {
  if (_isRead) return;
  _isRead = true;
  const model::MediaAsset asset = assetAt(_url, _isRead);
  _tracks = AVAssetTrackState::makeAll(asset.tracks);
  _commonMetadata = AVMetadataItemState::makeAll(asset.commonMetadata);
  _duration = asset.duration;
}

}  // namespace desktop::faces
