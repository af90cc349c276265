// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_url_asset.h"

#include "bridge/class_builder.h"
#include "desktop/faces/foundation/file_links.h"
#include "desktop/faces/movie/av_asset_track.h"
#include "desktop/faces/movie/av_metadata_item.h"
#include "desktop/faces/movie/media_time.h"
#include "io/byte_source.h"
#include "media/movie/media_source.h"

namespace desktop::faces {

namespace {

model::MediaAsset assetAt(bridge::NSURL url) {
  const auto path = fileOnDisk(url);
  if (!path) return {};
  const auto source = io::FileSource::open(*path);
  if (!source) return {};
  auto asset = media::movie::copyAssetOfFile(*path, **source);
  if (!asset || !*asset) return {};
  return **std::move(asset);
}

}  // namespace

Class AVURLAsset::classObject() {
  static const Class made = bridge::ClassBuilder<AVURLAsset>("AVURLAsset")
                                .classMethod<"URLAssetWithURL:options:", &AVURLAsset::withURL>()
                                .method<"URL", &AVURLAsset::url>()
                                .method<"tracks", &AVURLAsset::tracks>()
                                .method<"commonMetadata", &AVURLAsset::commonMetadata>()
                                .method<"duration", &AVURLAsset::duration>()
                                .build();
  return made;
}

bridge::NSObject AVURLAsset::withURL(bridge::NSURL url, bridge::NSDictionary) {
  if (!url) return {};
  auto made =
      bridge::Owned<bridge::NSObject>::adopt(bridge::send<bridge::NSObject, "new">(classObject()));
  if (made) of(made->get())._url = bridge::Owned<bridge::NSURL>::retain(url);
  return made.autorelease();
}

bridge::NSArray AVURLAsset::tracks() {
  readOnce();
  return _tracks;
}

bridge::NSArray AVURLAsset::commonMetadata() {
  readOnce();
  return _commonMetadata;
}

CMTime AVURLAsset::duration() {
  readOnce();
  return timeOfSeconds(_duration);
}

void AVURLAsset::readOnce() {
  if (_tracks) return;
  const model::MediaAsset asset = assetAt(_url);
  _tracks = AVAssetTrack::makeAll(asset.tracks);
  _commonMetadata = AVMetadataItem::makeAll(asset.commonMetadata);
  _duration = asset.duration;
}

}  // namespace desktop::faces
