// SPDX-License-Identifier: MIT
#include "tests/media/movie/asset_text.h"

#include "media/movie/boxes/four_char_text.h"
#include "model/description.h"
#include "model/number_text.h"

namespace media::movie {

namespace {

using model::integerText;
using model::realText;

void addLine(std::string& text, int indent, const std::string& key, const std::string& value) {
  text += std::string(static_cast<std::size_t>(indent), ' ') + key + " = " + value + "\n";
}

std::string pairText(const model::Size& size) {
  return realText(size.width) + " x " + realText(size.height);
}

std::string transformText(const model::AffineTransform& transform) {
  std::string text;
  for (const double value :
       {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty})
    text += (text.empty() ? "" : " ") + realText(value);
  return text;
}

void addItems(std::string& text, int indent, const std::vector<model::MetadataItem>& items) {
  for (const model::MetadataItem& item : items)
    addLine(text, indent, item.commonKey.value_or("(none)"),
            item.value ? model::description(*item.value) : "(none)");
}

std::string audioText(const model::AudioStreamDescription& audio) {
  std::string text = realText(audio.sampleRate) + " " + fourCharText(audio.formatID);
  for (const std::uint32_t value :
       {audio.formatFlags, audio.bytesPerPacket, audio.framesPerPacket, audio.bytesPerFrame,
        audio.channelsPerFrame, audio.bitsPerChannel})
    text += " " + integerText(value);
  return text;
}

void addDescription(std::string& text, const model::FormatDescription& description) {
  addLine(text, 2, "description",
          fourCharText(description.mediaType) + "/" + fourCharText(description.mediaSubType) + " " +
              integerText(description.width) + " x " + integerText(description.height));
  if (description.audio) addLine(text, 4, "audio", audioText(*description.audio));
  for (const auto& [key, value] : description.extensions)
    addLine(text, 4, key, model::description(value));
}

void addTrack(std::string& text, const model::Track& track) {
  addLine(text, 0, "track", integerText(track.trackID) + " " + track.mediaType);
  addLine(text, 2, "naturalSize", pairText(track.naturalSize));
  addLine(text, 2, "preferredTransform", transformText(track.preferredTransform));
  addLine(text, 2, "duration", realText(track.duration));
  addLine(text, 2, "estimatedDataRate", realText(model::widenedByText(track.estimatedDataRate)));
  addLine(text, 2, "nominalFrameRate", realText(model::widenedByText(track.nominalFrameRate)));
  addLine(text, 2, "minFrameDuration",
          track.minFrameDuration ? realText(*track.minFrameDuration) : "(none)");
  for (const auto& description : track.formatDescriptions) addDescription(text, description);
  addItems(text, 2, track.commonMetadata);
}

}  // namespace

std::string assetText(const model::MediaAsset& asset) {
  std::string text;
  for (const model::Track& track : asset.tracks) addTrack(text, track);
  addItems(text, 0, asset.commonMetadata);
  addLine(text, 0, "asset duration", realText(asset.duration));
  addLine(text, 0, "asset creationDate",
          asset.creationDate ? realText(asset.creationDate->secondsSince1970) : "(none)");
  return text;
}

}  // namespace media::movie
