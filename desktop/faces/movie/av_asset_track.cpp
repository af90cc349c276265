// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_asset_track.h"

#include "bridge/class_builder.h"
#include "desktop/faces/movie/av_metadata_item.h"
#include "desktop/faces/movie/format_description.h"
#include "desktop/faces/movie/media_time.h"

namespace desktop::faces {

using bridge::NSArray;
using bridge::NSMutableArray;
using bridge::NSObject;
using bridge::Owned;

Class AVAssetTrack::classObject() {
  static const Class made = bridge::ClassBuilder<AVAssetTrack>("AVAssetTrack")
                                .method<"trackID", &AVAssetTrack::trackID>()
                                .method<"mediaType", &AVAssetTrack::mediaType>()
                                .method<"formatDescriptions", &AVAssetTrack::formatDescriptions>()
                                .method<"naturalSize", &AVAssetTrack::naturalSize>()
                                .method<"preferredTransform", &AVAssetTrack::preferredTransform>()
                                .method<"timeRange", &AVAssetTrack::timeRange>()
                                .method<"estimatedDataRate", &AVAssetTrack::estimatedDataRate>()
                                .method<"nominalFrameRate", &AVAssetTrack::nominalFrameRate>()
                                .method<"minFrameDuration", &AVAssetTrack::minFrameDuration>()
                                .method<"commonMetadata", &AVAssetTrack::commonMetadata>()
                                .build();
  return made;
}

Owned<NSObject> AVAssetTrack::make(const model::Track& track) {
  auto made = Owned<NSObject>::adopt(bridge::send<NSObject, "new">(classObject()));
  if (!made) return made;
  AVAssetTrack& state = of(made->get());
  const auto formats = bridge::makeNew<NSMutableArray>();
  for (const model::FormatDescription& format : track.formatDescriptions) {
    formats->add(FormatDescription::make(format));
  }
  state._formatDescriptions = Owned<NSArray>::retain(formats);
  state._commonMetadata = AVMetadataItem::makeAll(track.commonMetadata);
  state._facts = track;
  state._facts.formatDescriptions.clear();
  state._facts.commonMetadata.clear();
  return made;
}

Owned<NSArray> AVAssetTrack::makeAll(const std::vector<model::Track>& tracks) {
  const auto array = bridge::makeNew<NSMutableArray>();
  for (const model::Track& track : tracks) array->add(make(track));
  return Owned<NSArray>::retain(array);
}

CGAffineTransform AVAssetTrack::preferredTransform() const {
  const model::AffineTransform& matrix = _facts.preferredTransform;
  return {matrix.a, matrix.b, matrix.c, matrix.d, matrix.tx, matrix.ty};
}

CMTimeRange AVAssetTrack::timeRange() const {
  return {.start = timeOfSeconds(0), .duration = timeOfSeconds(_facts.duration)};
}

CMTime AVAssetTrack::minFrameDuration() const {
  return _facts.minFrameDuration ? timeOfSeconds(*_facts.minFrameDuration) : CMTime();
}

}  // namespace desktop::faces
