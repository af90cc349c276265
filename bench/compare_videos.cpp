// SPDX-License-Identifier: MIT
#include <cmath>
#include <numbers>
#include <string_view>

#include "bench/compare.h"
#include "io/byte_source.h"
#include "media/movie/media_source.h"
#include "model/description.h"
#include "model/number_text.h"

namespace bench {

namespace {

std::string text(const model::Dictionary& track, std::string_view key) {
  const auto* value = model::find(track, key);
  return value == nullptr ? "" : model::valueText(*value);
}

double number(const model::Dictionary& track, std::string_view key) {
  return model::parseRealPrefix(text(track, key));
}

std::string codecText(model::FourCharCode code) {
  std::string codec;
  for (int shift = 24; shift >= 0; shift -= 8) codec += static_cast<char>((code >> shift) & 0xFF);
  return codec;
}

// Clockwise degrees from 0 to 360, as mediainfo counts them.
double rotationOf(const model::AffineTransform& transform) {
  const double degrees = std::atan2(transform.b, transform.a) * 180 / std::numbers::pi;
  return degrees < 0 ? degrees + 360 : degrees;
}

void compareVideoTrack(const std::string& file, const model::Track& ours,
                       const model::Dictionary& theirs, Tally& tally) {
  if (ours.formatDescriptions.empty()) return;
  const auto& format = ours.formatDescriptions.front();
  tally.compare(file, "video codec", codecText(format.mediaSubType), text(theirs, "CodecID"));
  tally.compareNumbers(file, "width", ours.naturalSize.width, number(theirs, "Width"), 0);
  tally.compareNumbers(file, "height", ours.naturalSize.height, number(theirs, "Height"), 0);
  tally.compareNumbers(file, "rotation", rotationOf(ours.preferredTransform),
                       number(theirs, "Rotation"), 1e-6);
  tally.compareNumbers(file, "video duration", ours.duration, number(theirs, "Duration"), 1e-3);
  // Their own rates leave a last frame of odd length out of the duration; their counts do not.
  const double duration = number(theirs, "Duration");
  tally.compareNumbers(file, "frame rate", ours.nominalFrameRate,
                       number(theirs, "FrameCount") / duration, 1e-3);
  tally.compareNumbers(file, "video bit rate", ours.estimatedDataRate,
                       number(theirs, "StreamSize") * 8 / duration, 1e-3);
}

void compareAudioTrack(const std::string& file, const model::Track& ours,
                       const model::Dictionary& theirs, Tally& tally) {
  if (ours.formatDescriptions.empty() || !ours.formatDescriptions.front().audio) return;
  const auto& audio = *ours.formatDescriptions.front().audio;
  tally.compareNumbers(file, "sample rate", audio.sampleRate, number(theirs, "SamplingRate"), 0);
  tally.compareNumbers(file, "channels", audio.channelsPerFrame, number(theirs, "Channels"), 0);
  tally.compareNumbers(file, "audio duration", ours.duration, number(theirs, "Duration"), 1e-3);
}

void compareFile(const std::string& file, const model::MediaAsset& asset,
                 const model::Array& theirTracks, Tally& tally) {
  for (const auto& their : theirTracks) {
    const auto* track = their.asDictionary();
    if (track == nullptr) continue;
    const std::string type = text(*track, "@type");
    if (type == "General") {
      tally.compareNumbers(file, "duration", asset.duration, number(*track, "Duration"), 1e-3);
    }
    for (const auto& ours : asset.tracks) {
      if (model::integerText(ours.trackID) != text(*track, "ID")) continue;
      if (type == "Video") compareVideoTrack(file, ours, *track, tally);
      if (type == "Audio") compareAudioTrack(file, ours, *track, tally);
    }
  }
}

}  // namespace

void compareVideos(const std::vector<std::string>& files, Tally& tally) {
  for (const std::string& file : files) {
    auto source = io::FileSource::open(file);
    if (!source) continue;
    const auto ours = media::movie::copyAsset(**source);
    if (!ours || !*ours) continue;
    const auto said = outputOf({"mediainfo", "--Output=JSON", file});
    const model::Value json = parseJson(said.value_or(""));
    const auto* root = json.asDictionary();
    const auto* media = root == nullptr ? nullptr : model::find(*root, "media");
    const auto* fields = media == nullptr ? nullptr : media->asDictionary();
    const auto* tracks = fields == nullptr ? nullptr : model::find(*fields, "track");
    if (tracks != nullptr && tracks->asArray() != nullptr) {
      compareFile(file, (*ours)->asset, *tracks->asArray(), tally);
    }
  }
}

}  // namespace bench
