// SPDX-License-Identifier: MIT
#include "bridge/convert_media.h"

#include "bridge/convert.h"

namespace bridge {
namespace {

constexpr std::uint32_t timeIsValid = 1;

// Applies the conversion to each object of an array.
template <Handle From, typename Convert>
auto converted(NSArray array, Convert convert) {
  std::vector<decltype(convert(From()))> results;
  const NSUInteger count = array.count();
  results.reserve(count);
  for (NSUInteger index = 0; index < count; ++index)
    results.push_back(convert(From(array.at(index).get())));
  return results;
}

model::MetadataItem toItem(AVMetadataItem item) {
  model::MetadataItem result;
  if (const NSString key = item.commonKey()) result.commonKey = key.utf8();
  if (const Object value = item.value()) result.value = toValue(value);
  return result;
}

std::vector<model::MetadataItem> toItems(NSArray items) {
  return converted<AVMetadataItem>(items, &toItem);
}

model::AudioStreamDescription toAudio(const AudioStreamBasicDescription& audio) {
  return {.sampleRate = audio.mSampleRate,
          .formatID = audio.mFormatID,
          .formatFlags = audio.mFormatFlags,
          .bytesPerPacket = audio.mBytesPerPacket,
          .framesPerPacket = audio.mFramesPerPacket,
          .bytesPerFrame = audio.mBytesPerFrame,
          .channelsPerFrame = audio.mChannelsPerFrame,
          .bitsPerChannel = audio.mBitsPerChannel};
}

// Sizes and stream descriptions are asked for where the media type has them.
model::FormatDescription toFormat(Object object) {
  const auto description = reinterpret_cast<CMFormatDescriptionRef>(object.get());
  model::FormatDescription result;
  result.mediaType = CMFormatDescriptionGetMediaType(description);
  result.mediaSubType = CMFormatDescriptionGetMediaSubType(description);
  if (result.mediaType == model::fourCharCode("vide")) {
    const CMVideoDimensions size = CMVideoFormatDescriptionGetDimensions(description);
    result.width = size.width;
    result.height = size.height;
  }
  if (result.mediaType == model::fourCharCode("soun")) {
    if (const auto* audio = CMAudioFormatDescriptionGetStreamBasicDescription(description))
      result.audio = toAudio(*audio);
  }
  CFDictionaryRef extensions = CMFormatDescriptionGetExtensions(description);
  model::Value entries =
      toValue(Object(reinterpret_cast<id>(const_cast<CFDictionary*>(extensions))));
  if (model::Dictionary* dictionary = entries.asDictionary())
    result.extensions = std::move(*dictionary);
  return result;
}

model::Track toTrack(AVAssetTrack track) {
  const CGSize size = track.naturalSize();
  const CGAffineTransform transform = track.preferredTransform();
  const CMTime shortestFrame = track.minFrameDuration();
  model::Track result;
  result.trackID = track.trackID();
  result.mediaType = track.mediaType().utf8();
  result.formatDescriptions = converted<Object>(track.formatDescriptions(), &toFormat);
  result.naturalSize = {size.width, size.height};
  result.preferredTransform = {transform.a, transform.b,  transform.c,
                               transform.d, transform.tx, transform.ty};
  result.duration = CMTimeGetSeconds(track.timeRange().duration);
  result.estimatedDataRate = track.estimatedDataRate();
  result.nominalFrameRate = track.nominalFrameRate();
  if (shortestFrame.flags & timeIsValid) result.minFrameDuration = CMTimeGetSeconds(shortestFrame);
  result.commonMetadata = toItems(track.commonMetadata());
  return result;
}

}  // namespace

model::MediaAsset toMediaAsset(AVURLAsset asset) {
  const AutoreleasePool pool;
  model::MediaAsset result;
  result.tracks = converted<AVAssetTrack>(asset.tracks(), &toTrack);
  result.commonMetadata = toItems(asset.commonMetadata());
  return result;
}

}  // namespace bridge
