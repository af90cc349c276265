// SPDX-License-Identifier: MIT
//
// Each of the other readers' tracks becomes one plain structure, so that they are compared with
// ours in one way. What the other reader does not say is not compared.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <optional>
#include <string_view>

#include "bench/compare.h"
#include "bench/peer.h"
#include "io/byte_source.h"
#include "media/movie/media_source.h"
#include "model/description.h"
#include "model/number_text.h"

namespace bench {

namespace {

// A track as another reader has it.
struct TheirTrack {
  std::int64_t id = 0;
  bool isVideo = false;
  std::string codec;  // empty where there is no code
  std::optional<double> width;
  std::optional<double> height;
  std::optional<double> rotation;  // degrees clockwise
  std::optional<double> duration;  // seconds
  std::optional<double> frameRate;
  std::optional<double> dataRate;  // bits a second
  std::optional<double> sampleRate;
  std::optional<double> channels;
};

using Dictionary = model::Dictionary;

std::string text(const Dictionary& fields, std::string_view key) {
  const auto* value = model::find(fields, key);
  return value == nullptr ? "" : model::valueText(*value);
}

std::optional<double> number(const Dictionary& fields, std::string_view key) {
  const std::string digits = text(fields, key);
  if (digits.empty()) return std::nullopt;
  return model::parseRealPrefix(digits);
}

std::optional<double> quotient(std::optional<double> dividend, std::optional<double> divisor) {
  if (!dividend || !divisor || *divisor <= 0) return std::nullopt;
  return *dividend / *divisor;
}

std::string codecText(model::FourCharCode code) {
  std::string codec;
  for (int shift = 24; shift >= 0; shift -= 8) codec += static_cast<char>((code >> shift) & 0xFF);
  return codec;
}

// The code of the file for a kind of sound that is shown by its own name.
bool isSameSound(const std::string& ours, std::string_view code) {
  if (ours.starts_with("aac")) return code.starts_with("mp4a");
  if (ours == "lpcm") {
    constexpr std::string_view linear[] = {"lpcm", "sowt", "twos", "in24", "in32",
                                           "fl32", "fl64", "raw ", "NONE", "ipcm"};
    return std::ranges::find(linear, code.substr(0, 4)) != std::end(linear);
  }
  return code.starts_with(ours);
}

double clockwise(double degrees) {
  const double turned = std::fmod(std::round(degrees), 360);
  return turned < 0 ? turned + 360 : turned;
}

double rotationOf(const model::AffineTransform& transform) {
  return clockwise(std::atan2(transform.b, transform.a) * 180 / std::numbers::pi);
}

// Times are near that differ by no more than a tick of a header in milliseconds.
void compareTimes(Tally& tally, const Subject& subject, double ours, std::optional<double> theirs) {
  constexpr double tick = 1.001e-3;  // seconds
  if (!theirs) return;
  const bool isNear = std::abs(ours - *theirs) <= tick || areNear(ours, *theirs, 1e-3);
  tally.count(isNear, subject, model::realText(ours), model::realText(*theirs));
}

// Compares a number where the other reader states it.
void compare(Tally& tally, const Subject& subject, double ours, std::optional<double> theirs,
             double tolerance) {
  if (theirs) tally.compareNumbers(subject, ours, *theirs, tolerance);
}

void compareTrack(const std::string& file, const model::Track& ours, const TheirTrack& theirs,
                  Tally& tally) {
  if (ours.formatDescriptions.empty()) return;
  const auto& format = ours.formatDescriptions.front();
  const std::string prefix = theirs.isVideo ? "video " : "sound ";
  constexpr double close = 1e-3;  // their figures are rounded
  const auto subject = [&](const char* group, const char* key) {
    return Subject{file, group, prefix + key};
  };
  if (!theirs.codec.empty()) {
    const std::string codec = codecText(format.mediaSubType);
    const bool isSame = theirs.isVideo ? codec == theirs.codec : isSameSound(codec, theirs.codec);
    tally.count(isSame, subject("codec", "codec"), codec, theirs.codec);
  }
  compareTimes(tally, subject("time", "duration"), ours.duration, theirs.duration);
  compare(tally, subject("rate", "data rate"), ours.estimatedDataRate, theirs.dataRate, close);
  if (theirs.isVideo) {
    compare(tally, subject("size", "width"), std::round(ours.naturalSize.width), theirs.width, 0);
    compare(tally, subject("size", "height"), std::round(ours.naturalSize.height), theirs.height,
            0);
    compare(tally, subject("size", "rotation"), rotationOf(ours.preferredTransform),
            theirs.rotation, 0);
    compare(tally, subject("rate", "frame rate"), ours.nominalFrameRate, theirs.frameRate, close);
  } else if (format.audio) {
    compare(tally, subject("sound", "sample rate"), format.audio->sampleRate, theirs.sampleRate, 0);
    compare(tally, subject("sound", "channels"), format.audio->channelsPerFrame, theirs.channels,
            0);
  }
}

// What a reader says of a file: its tracks, and how long it is.
struct TheirFile {
  std::optional<double> duration;
  std::vector<TheirTrack> tracks;
};

void compareFiles(const std::vector<std::string>& files, Tally& tally,
                  TheirFile (*ask)(const std::string& file)) {
  for (const std::string& file : files) {
    const auto source = io::FileSource::open(file);
    if (!source) continue;
    const auto ours = media::movie::copyAssetOfFile(file, **source);
    if (!ours || !*ours) continue;
    const TheirFile theirs = ask(file);
    compareTimes(tally, {file, "time", "duration"}, (*ours)->asset.duration, theirs.duration);
    const model::MediaAsset& asset = (*ours)->asset;
    for (const model::Track& our : asset.tracks) {
      for (const TheirTrack& their : theirs.tracks)
        if (their.id == our.trackID) compareTrack(file, our, their, tally);
    }
  }
}

const model::Array* listIn(const model::Value& json, std::string_view key) {
  const auto* fields = json.asDictionary();
  const auto* list = fields == nullptr ? nullptr : model::find(*fields, key);
  return list == nullptr ? nullptr : list->asArray();
}

// Its own rates leave a last frame of odd length out of the duration; its counts do not.
TheirTrack trackOfMediainfo(const Dictionary& fields) {
  const auto duration = number(fields, "Duration");
  const auto bytes = number(fields, "StreamSize");
  TheirTrack track;
  track.id = std::atoll(text(fields, "ID").c_str());
  track.isVideo = text(fields, "@type") == "Video";
  track.codec = text(fields, "CodecID");
  if (track.codec.find('_') != std::string::npos) track.codec.clear();  // Matroska's names
  track.width = number(fields, "Width");
  track.height = number(fields, "Height");
  track.rotation = number(fields, "Rotation");
  track.duration = duration;
  track.frameRate = quotient(number(fields, "FrameCount"), duration);
  // That of sound is for the part only that an edit list shows.
  if (track.isVideo) track.dataRate = quotient(bytes ? std::optional(*bytes * 8) : bytes, duration);
  track.sampleRate = number(fields, "SamplingRate");
  track.channels = number(fields, "Channels");
  return track;
}

TheirFile askMediainfo(const std::string& file) {
  TheirFile theirs;
  const auto json = parseJson(outputOf({"mediainfo", "--Output=JSON", file}).value_or(""));
  const auto* root = json.asDictionary();
  const auto* media = root == nullptr ? nullptr : model::find(*root, "media");
  const auto* tracks = media == nullptr ? nullptr : listIn(*media, "track");
  if (tracks == nullptr) return theirs;
  for (const model::Value& each : *tracks) {
    const auto* fields = each.asDictionary();
    if (fields == nullptr) continue;
    const std::string type = text(*fields, "@type");
    if (type == "General") theirs.duration = number(*fields, "Duration");
    if (type == "Video" || type == "Audio") theirs.tracks.push_back(trackOfMediainfo(*fields));
  }
  return theirs;
}

// Counted the other way round, and in a list of what lies beside the stream.
double ffprobeRotation(const model::Value& stream) {
  const auto* beside = listIn(stream, "side_data_list");
  if (beside == nullptr) return 0;
  for (const model::Value& each : *beside) {
    const auto* fields = each.asDictionary();
    const auto degrees = fields == nullptr ? std::nullopt : number(*fields, "rotation");
    if (degrees) return clockwise(-*degrees);
  }
  return 0;
}

// "12:11" as a number; one where nothing is said.
double shapeOfPixels(const Dictionary& fields) {
  const std::string shape = text(fields, "sample_aspect_ratio");
  const std::size_t colon = shape.find(':');
  if (colon == std::string::npos) return 1;
  return quotient(model::parseRealPrefix(shape), model::parseRealPrefix(shape.substr(colon + 1)))
      .value_or(1);
}

TheirTrack trackOfFfprobe(const model::Value& stream) {
  const Dictionary& fields = *stream.asDictionary();
  TheirTrack track;
  const std::string id = text(fields, "id");
  track.id = id.empty() ? std::atoll(text(fields, "index").c_str()) + 1
                        : std::strtoll(id.c_str(), nullptr, 0);
  track.isVideo = text(fields, "codec_type") == "video";
  track.codec = text(fields, "codec_tag_string");
  if (track.codec.starts_with('[')) track.codec.clear();
  track.width = number(fields, "width");
  if (track.width) track.width = std::round(*track.width * shapeOfPixels(fields));
  track.height = number(fields, "height");
  if (track.isVideo) track.rotation = ffprobeRotation(stream);
  track.duration = number(fields, "duration");
  track.frameRate = quotient(number(fields, "nb_frames"), track.duration);
  track.dataRate = number(fields, "bit_rate");
  track.sampleRate = number(fields, "sample_rate");
  track.channels = number(fields, "channels");
  return track;
}

TheirFile askFfprobe(const std::string& file) {
  TheirFile theirs;
  const auto json = parseJson(outputOf({"ffprobe", "-v", "error", "-print_format", "json",
                                        "-show_streams", "-show_format", file})
                                  .value_or(""));
  const auto* root = json.asDictionary();
  const auto* format = root == nullptr ? nullptr : model::find(*root, "format");
  if (format != nullptr && format->asDictionary() != nullptr)
    theirs.duration = number(*format->asDictionary(), "duration");
  const auto* streams = listIn(json, "streams");
  if (streams == nullptr) return theirs;
  for (const model::Value& each : *streams) {
    const auto* fields = each.asDictionary();
    const std::string type = fields == nullptr ? "" : text(*fields, "codec_type");
    if (type == "video" || type == "audio") theirs.tracks.push_back(trackOfFfprobe(each));
  }
  return theirs;
}

}  // namespace

void compareWithMediainfo(const std::vector<std::string>& files, Tally& tally) {
  compareFiles(files, tally, askMediainfo);
}

void compareWithFfprobe(const std::vector<std::string>& files, Tally& tally) {
  compareFiles(files, tally, askFfprobe);
}

}  // namespace bench
