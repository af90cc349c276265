// SPDX-License-Identifier: MIT
#include "lumifact/report/track_block.h"

#include <cmath>
#include <limits>
#include <string_view>

#include "lumifact/report/format_extensions.h"
#include "lumifact/report/four_char_text.h"
#include "lumifact/report/section_text.h"
#include "model/number_text.h"

namespace lumifact {

namespace {

using model::fixedText;
using model::integerText;

// A line "  key = value" with the unit right behind the value.
void appendFact(std::string& text, std::string_view key, std::string_view value,
                std::string_view unit = "") {
  appendLine(text, key, value);
  text += unit;
}

std::string sizeText(std::string_view width, std::string_view height) {
  return std::string(width).append(" x ").append(height);
}

// In degrees. The angle is taken in single precision, in which half a turn is a little over 180:
// a video that stands on its head thus counts as rotated.
double rotationOf(const model::AffineTransform& transform) {
  const float angle = std::atan2(static_cast<float>(transform.b), static_cast<float>(transform.a));
  return static_cast<double>(angle) * 57.29577951308232;
}

std::string rotatedSizeText(const model::Size& size, const model::AffineTransform& transform) {
  const double width = std::abs(size.width * transform.a + size.height * transform.c);
  const double height = std::abs(size.width * transform.b + size.height * transform.d);
  return sizeText(fixedText(width, 0), fixedText(height, 0));
}

// 1 over the shortest frame: infinite for 0, NaN where it is not known.
double maximumFrameRate(const model::Track& track) {
  const double seconds = track.minFrameDuration.value_or(std::numeric_limits<double>::quiet_NaN());
  if (seconds == 0) return std::copysign(std::numeric_limits<double>::infinity(), seconds);
  return 1.0 / seconds;
}

void appendVideoFacts(std::string& text, const model::Track& track,
                      const model::FormatDescription& format) {
  const double rotation = rotationOf(track.preferredTransform);
  const bool rotated = rotation != 0 && rotation != 180;
  // Lined up with "Dimensions Rotated" below it.
  const std::string_view dimensions = rotated ? "Dimensions        " : "Dimensions";
  appendFact(text, "Duration", fixedText(track.duration, 2), "s");
  appendFact(text, "Codec", fourCharText(format.mediaSubType));
  appendFact(text, dimensions, sizeText(integerText(format.width), integerText(format.height)));
  if (rotated) {
    appendFact(text, "Dimensions Rotated",
               rotatedSizeText(track.naturalSize, track.preferredTransform));
  }
  const double megabits = static_cast<double>(track.estimatedDataRate) / 1000000;
  appendFact(text, "Rotation", fixedText(rotation, 2), "°");
  appendFact(text, "Data Rate", fixedText(megabits, 3), " Mbps");
  appendFact(text, "Frame Rate        ", fixedText(track.nominalFrameRate, 3), " fps");
  appendFact(text, "Maximum Frame Rate", fixedText(maximumFrameRate(track), 3), " fps");
}

// The report prints the unsigned fields as signed ones.
std::string signedText(std::uint32_t field) {
  return integerText(static_cast<std::int32_t>(field));
}

void appendSoundFacts(std::string& text, const model::Track& track,
                      const model::AudioStreamDescription& audio) {
  const double kilobits = static_cast<double>(track.estimatedDataRate) / 1000;
  appendFact(text, "Duration", fixedText(track.duration, 2), "s");
  appendFact(text, "Codec", fourCharText(audio.formatID));
  appendFact(text, "FormatFlags", signedText(audio.formatFlags));
  appendFact(text, "SampleRate", fixedText(audio.sampleRate, 0));
  appendFact(text, "BytesPerPacket", signedText(audio.bytesPerPacket));
  appendFact(text, "FramesPerPacket", signedText(audio.framesPerPacket));
  appendFact(text, "BytesPerFrame", signedText(audio.bytesPerFrame));
  appendFact(text, "ChannelsPerFrame", signedText(audio.channelsPerFrame));
  appendFact(text, "BitsPerChannel", signedText(audio.bitsPerChannel));
  appendFact(text, "Data Rate", fixedText(kilobits, 3), " Kbps");
}

void appendFormatDescription(std::string& text, const model::Track& track,
                             const model::FormatDescription& format,
                             const model::KeyComparison& keyOrder) {
  if (format.mediaType == model::fourCharCode("vide")) {
    appendVideoFacts(text, track, format);
  } else if (format.mediaType == model::fourCharCode("soun") && format.audio) {
    appendSoundFacts(text, track, *format.audio);
  }
  appendExtensions(text, format.extensions, keyOrder);
}

}  // namespace

bool isShown(const model::MetadataItem& item) {
  return item.commonKey && item.value && !item.value->isNull();
}

void appendTrackBlock(std::string& text, const model::Track& track,
                      const model::KeyComparison& keyOrder) {
  text += "AVAssetTrack\n{";
  appendFact(text, "trackID", integerText(track.trackID));
  appendFact(text, "MediaType", track.mediaType);
  for (const model::FormatDescription& format : track.formatDescriptions) {
    appendFormatDescription(text, track, format, keyOrder);
  }
  for (const model::MetadataItem& item : track.commonMetadata) {
    if (isShown(item)) appendEntry(text, *item.commonKey, *item.value);
  }
  text += "\n}";
}

}  // namespace lumifact
