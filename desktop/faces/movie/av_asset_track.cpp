// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/av_asset_track.h"

#include "bridge/class_builder.h"
#include "desktop/faces/movie/av_metadata_item.h"
#include "desktop/faces/movie/format_description.h"
#include "desktop/faces/movie/media_time.h"
#include "desktop/platform.h"

namespace desktop::faces {

Class AVAssetTrackState::classObject() {
  static const Class made =
      ClassBuilder<AVAssetTrackState>("AVAssetTrack")
          .method<"trackID", &AVAssetTrackState::trackID>()
          .method<"mediaType", &AVAssetTrackState::mediaType>()
          .method<"formatDescriptions", &AVAssetTrackState::formatDescriptions>()
          .method<"naturalSize", &AVAssetTrackState::naturalSize>()
          .method<"preferredTransform", &AVAssetTrackState::preferredTransform>()
          .method<"timeRange", &AVAssetTrackState::timeRange>()
          .method<"estimatedDataRate", &AVAssetTrackState::estimatedDataRate>()
          .method<"nominalFrameRate", &AVAssetTrackState::nominalFrameRate>()
          .method<"minFrameDuration", &AVAssetTrackState::minFrameDuration>()
          .method<"commonMetadata", &AVAssetTrackState::commonMetadata>()
          .build();
  return made;
}

Owned<NSObject> AVAssetTrackState::make(const model::Track& track) {
  auto made = makeNew<NSObject>(classObject());
  if (!made) return made;
  AVAssetTrackState& state = of(made->get());
  const auto formats = makeNew<NSMutableArray>();
  for (const model::FormatDescription& format : track.formatDescriptions) {
    formats->add(FormatDescription::make(format));
  }
  state._formatDescriptions = Owned<NSArray>::retain(formats);
  state._commonMetadata = AVMetadataItemState::makeAll(track.commonMetadata);
  state._facts = track;
  state._facts.formatDescriptions.clear();
  state._facts.commonMetadata.clear();
  return made;
}

Owned<NSArray> AVAssetTrackState::makeAll(const std::vector<model::Track>& tracks) {
  const auto array = makeNew<NSMutableArray>();
  for (const model::Track& track : tracks) array->add(make(track));
  return Owned<NSArray>::retain(array);
}

CGAffineTransform AVAssetTrackState::preferredTransform() const {
  const model::AffineTransform& matrix = _facts.preferredTransform;
  return {matrix.a, matrix.b, matrix.c, matrix.d, matrix.tx, matrix.ty};
}

CMTimeRange AVAssetTrackState::timeRange() const {
  return {.start = timeOfSeconds(0), .duration = timeOfSeconds(_facts.duration)};
}

CMTime AVAssetTrackState::minFrameDuration() const {
  return _facts.minFrameDuration ? timeOfSeconds(*_facts.minFrameDuration) : CMTime();
}

}  // namespace desktop::faces
