// SPDX-License-Identifier: MIT
//
// Videos: the media asset and its tracks, and the C functions of CoreMedia.
#pragma once

#include <cstdint>

#include "bridge/corefoundation.h"
#include "bridge/foundation.h"

using CMFormatDescriptionRef = const struct CMFormatDescription*;

struct CMTime {
  std::int64_t value = 0;
  std::int32_t timescale = 0;
  std::uint32_t flags = 0;  // bit 0: valid
  std::int64_t epoch = 0;
};

struct CMTimeRange {
  CMTime start;
  CMTime duration;
};

struct CMVideoDimensions {
  std::int32_t width;
  std::int32_t height;
};

struct AudioStreamBasicDescription {
  double mSampleRate = 0;  // in hertz
  std::uint32_t mFormatID = 0;
  std::uint32_t mFormatFlags = 0;
  std::uint32_t mBytesPerPacket = 0;
  std::uint32_t mFramesPerPacket = 0;
  std::uint32_t mBytesPerFrame = 0;
  std::uint32_t mChannelsPerFrame = 0;
  std::uint32_t mBitsPerChannel = 0;
  std::uint32_t mReserved = 0;
};

#pragma GCC visibility push(default)
extern "C" {
std::uint32_t CMFormatDescriptionGetMediaType(CMFormatDescriptionRef description);
std::uint32_t CMFormatDescriptionGetMediaSubType(CMFormatDescriptionRef description);
CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMFormatDescriptionRef description);
// Borrowed; null where it is no sound.
const AudioStreamBasicDescription* CMAudioFormatDescriptionGetStreamBasicDescription(
    CMFormatDescriptionRef description);
// Borrowed; null where there are none.
CFDictionaryRef CMFormatDescriptionGetExtensions(CMFormatDescriptionRef description);
// NaN where the time is invalid.
double CMTimeGetSeconds(CMTime time);
}
#pragma GCC visibility pop

// clang-format off
namespace bridge {
template <> struct Encoding<CMTime>      { static constexpr FixedString text = "{?=qiIq}"; };
template <> struct Encoding<CMTimeRange> { static constexpr FixedString text = "{?={?=qiIq}{?=qiIq}}"; };
}  // namespace bridge
// clang-format on

namespace bridge {

struct AVMetadataItem : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"AVMetadataItem">(); }

  NSString commonKey() const { return send<NSString, "commonKey">(*this); }
  Object value() const { return send<Object, "value">(*this); }
};

struct AVAssetTrack : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"AVAssetTrack">(); }

  int trackID() const { return send<int, "trackID">(*this); }
  NSString mediaType() const { return send<NSString, "mediaType">(*this); }
  NSArray formatDescriptions() const { return send<NSArray, "formatDescriptions">(*this); }
  CGSize naturalSize() const { return send<CGSize, "naturalSize">(*this); }
  CGAffineTransform preferredTransform() const {
    return send<CGAffineTransform, "preferredTransform">(*this);
  }
  CMTimeRange timeRange() const { return send<CMTimeRange, "timeRange">(*this); }
  float estimatedDataRate() const { return send<float, "estimatedDataRate">(*this); }
  float nominalFrameRate() const { return send<float, "nominalFrameRate">(*this); }
  CMTime minFrameDuration() const { return send<CMTime, "minFrameDuration">(*this); }
  NSArray commonMetadata() const { return send<NSArray, "commonMetadata">(*this); }
};

struct AVURLAsset : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"AVURLAsset">(); }

  static AVURLAsset withURL(NSURL url) {
    return send<AVURLAsset, "URLAssetWithURL:options:">(classObject(), url, NSDictionary());
  }

  NSArray tracks() const { return send<NSArray, "tracks">(*this); }
  NSArray commonMetadata() const { return send<NSArray, "commonMetadata">(*this); }
};

}  // namespace bridge
