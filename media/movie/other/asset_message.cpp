// SPDX-License-Identifier: MIT
//
// A structure is a pair of functions beside each other: the one that writes its fields, and the one
// that reads them in the same order. A FieldReader gives zeros once something was wrong, so readers
// read on and the end is looked at once. Numbers that are none are written as zeros, so that only a
// reader out of its senses sends some.
#include "media/movie/other/asset_message.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>
#include <utility>

#include "media/movie/other/container_limits.h"
#include "model/utf8.h"
#include "workers/fields.h"

namespace media::movie {

namespace {

using model::Kind;
using workers::FieldReader;
using workers::FieldWriter;

constexpr int deepest = 3;                    // dictionaries inside each other
constexpr std::uint8_t mostEntries = 32;      // of a dictionary of extensions
constexpr std::size_t longestKey = 64;        // bytes
constexpr std::uint8_t mostDescriptions = 1;  // of a track
constexpr std::size_t longestType = 8;        // of a track's media type, bytes

// The fields of one answer, and what had to be cut for it.
struct Writing {
  FieldWriter fields;
  ContainerAnswer& answer;
};

template <std::floating_point Real>
void writeReal(FieldWriter& fields, Real number) {
  fields.number(std::isfinite(number) ? number : 0);
}

double readReal(FieldReader& fields) {
  const auto number = fields.number<double>();
  if (!std::isfinite(number)) fields.fail();
  return number;
}

float readSingle(FieldReader& fields) {
  const auto number = fields.number<float>();
  if (!std::isfinite(number)) fields.fail();
  return number;
}

// Not a number where it is not known.
void writeDuration(FieldWriter& fields, double seconds) {
  fields.number(std::isfinite(seconds) ? seconds : std::numeric_limits<double>::quiet_NaN());
}

double readDuration(FieldReader& fields) {
  const auto seconds = fields.number<double>();
  if (std::isinf(seconds)) fields.fail();
  return seconds;
}

// The text up to the limit, without a character that is cut.
std::string cutText(const std::string& text, std::size_t longest) {
  std::size_t end = std::min(text.size(), longest);
  while (end < text.size() && end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    --end;
  return text.substr(0, end);
}

void writeText(Writing& writing, const std::string& text, std::size_t longest) {
  const std::string valid = model::replacingInvalidUtf8(text);
  if (valid.size() > longest) writing.answer.note(Cut::text);
  writing.fields.text(cutText(valid, longest));
}

std::string readText(FieldReader& fields, std::size_t longest) {
  std::string text = fields.text(longest);
  if (!model::isValidUtf8(text)) fields.fail();
  return text;
}

void writeEntries(Writing& writing, const model::Dictionary& entries);
model::Dictionary readEntries(FieldReader& fields, int depth);

void writeData(Writing& writing, const model::Data& data) {
  const bool fits = data.size() <= containerLimits.configurationBytes;
  if (!fits) writing.answer.note(Cut::configuration);
  writing.fields.bytes(fits ? std::span(data) : std::span<const std::uint8_t>());
}

// A null stands for the kinds that no extension is of.
void writeValue(Writing& writing, const model::Value& value) {
  FieldWriter& fields = writing.fields;
  const auto kind = static_cast<std::uint8_t>(value.kind());
  if (const bool* boolean = value.asBoolean()) {
    fields.number(kind).flag(*boolean);
  } else if (const std::int64_t* integer = value.asInteger()) {
    fields.number(kind).number(*integer);
  } else if (const double* real = value.asReal()) {
    writeReal(fields.number(kind), *real);
  } else if (const std::string* text = value.asString()) {
    fields.number(kind);
    writeText(writing, *text, containerLimits.textBytes);
  } else if (const model::Data* data = value.asData()) {
    fields.number(kind);
    writeData(writing, *data);
  } else if (const model::Dictionary* entries = value.asDictionary()) {
    fields.number(kind);
    writeEntries(writing, *entries);
  } else {
    fields.number(static_cast<std::uint8_t>(Kind::null));
  }
}

model::Value readValue(FieldReader& fields, int depth) {
  switch (static_cast<Kind>(fields.number<std::uint8_t>())) {
    case Kind::null:
      return {};
    case Kind::boolean:
      return fields.flag();
    case Kind::integer:
      return fields.number<std::int64_t>();
    case Kind::real:
      return readReal(fields);
    case Kind::string:
      return readText(fields, containerLimits.textBytes);
    case Kind::data: {
      const auto bytes = fields.bytes(containerLimits.configurationBytes);
      return model::Data(bytes.begin(), bytes.end());
    }
    case Kind::dictionary:
      return readEntries(fields, depth + 1);
    default:
      fields.fail();
      return {};
  }
}

void writeEntries(Writing& writing, const model::Dictionary& entries) {
  const std::size_t count = std::min<std::size_t>(entries.size(), mostEntries);
  writing.fields.number(static_cast<std::uint8_t>(count));
  auto entry = entries.begin();
  for (std::size_t index = 0; index < count; ++index, ++entry) {
    writeText(writing, entry->first, longestKey);
    writeValue(writing, entry->second);
  }
}

model::Dictionary readEntries(FieldReader& fields, int depth) {
  model::Dictionary entries;
  if (depth > deepest) fields.fail();
  for (auto left = fields.oneOf(mostEntries); left > 0 && fields.isRight(); --left) {
    std::string key = readText(fields, longestKey);
    entries[std::move(key)] = readValue(fields, depth);
  }
  return entries;
}

void writeMetadata(Writing& writing, const std::vector<model::MetadataItem>& items) {
  const std::size_t count = std::min(items.size(), containerLimits.items);
  writing.fields.number(static_cast<std::uint8_t>(count));
  for (const model::MetadataItem& item : std::span(items).first(count)) {
    writeText(writing, item.commonKey.value_or(""), longestKey);
    writeValue(writing, item.value.value_or(model::Value()));
  }
}

std::vector<model::MetadataItem> readMetadata(FieldReader& fields) {
  std::vector<model::MetadataItem> items;
  constexpr auto most = static_cast<std::uint8_t>(containerLimits.items);
  for (auto left = fields.oneOf(most); left > 0 && fields.isRight(); --left) {
    model::MetadataItem& item = items.emplace_back();
    item.commonKey = readText(fields, longestKey);
    item.value = readValue(fields, deepest);
    if (item.value->asString() == nullptr) fields.fail();
  }
  return items;
}

void writeSound(FieldWriter& fields, const model::AudioStreamDescription& sound) {
  writeReal(fields, sound.sampleRate);
  fields.number(sound.formatID)
      .number(sound.formatFlags)
      .number(sound.bytesPerPacket)
      .number(sound.framesPerPacket)
      .number(sound.bytesPerFrame)
      .number(sound.channelsPerFrame)
      .number(sound.bitsPerChannel);
}

model::AudioStreamDescription readSound(FieldReader& fields) {
  model::AudioStreamDescription sound;
  sound.sampleRate = readReal(fields);
  for (std::uint32_t* number :
       {&sound.formatID, &sound.formatFlags, &sound.bytesPerPacket, &sound.framesPerPacket,
        &sound.bytesPerFrame, &sound.channelsPerFrame, &sound.bitsPerChannel})
    *number = fields.number<std::uint32_t>();
  return sound;
}

void writeDescription(Writing& writing, const model::FormatDescription& description) {
  writing.fields.number(description.mediaType)
      .number(description.mediaSubType)
      .number(std::max(description.width, 0))
      .number(std::max(description.height, 0))
      .flag(description.audio.has_value());
  if (description.audio) writeSound(writing.fields, *description.audio);
  writeEntries(writing, description.extensions);
}

model::FormatDescription readDescription(FieldReader& fields) {
  model::FormatDescription description;
  description.mediaType = fields.number<std::uint32_t>();
  description.mediaSubType = fields.number<std::uint32_t>();
  description.width = fields.oneOf(std::numeric_limits<std::int32_t>::max());
  description.height = fields.oneOf(std::numeric_limits<std::int32_t>::max());
  if (fields.flag()) description.audio = readSound(fields);
  description.extensions = readEntries(fields, 1);
  return description;
}

void writeTrack(Writing& writing, const model::Track& track) {
  FieldWriter& fields = writing.fields;
  fields.number(track.trackID);
  writeText(writing, track.mediaType, longestType);
  fields.number(static_cast<std::uint8_t>(
      std::min<std::size_t>(track.formatDescriptions.size(), mostDescriptions)));
  if (!track.formatDescriptions.empty())
    writeDescription(writing, track.formatDescriptions.front());
  const model::AffineTransform& turn = track.preferredTransform;
  for (const double number : {track.naturalSize.width, track.naturalSize.height, turn.a, turn.b,
                              turn.c, turn.d, turn.tx, turn.ty})
    writeReal(fields, number);
  writeDuration(fields, track.duration);
  writeReal(fields, track.estimatedDataRate);
  writeReal(fields, track.nominalFrameRate);
  fields.flag(track.minFrameDuration.has_value());
  writeReal(fields, track.minFrameDuration.value_or(0));
  writeMetadata(writing, track.commonMetadata);
}

model::Track readTrack(FieldReader& fields) {
  model::Track track;
  track.trackID = fields.oneOf(std::numeric_limits<std::int32_t>::max());
  track.mediaType = readText(fields, longestType);
  if (fields.oneOf(mostDescriptions) > 0)
    track.formatDescriptions.push_back(readDescription(fields));
  model::AffineTransform& turn = track.preferredTransform;
  for (double* number : {&track.naturalSize.width, &track.naturalSize.height, &turn.a, &turn.b,
                         &turn.c, &turn.d, &turn.tx, &turn.ty})
    *number = readReal(fields);
  track.duration = readDuration(fields);
  track.estimatedDataRate = readSingle(fields);
  track.nominalFrameRate = readSingle(fields);
  const bool hasMinimum = fields.flag();
  const double minimum = readReal(fields);
  if (hasMinimum) track.minFrameDuration = minimum;
  track.commonMetadata = readMetadata(fields);
  return track;
}

// A track is there as a whole or not at all: each stands behind a flag, a clear flag ends them.
void writeTracks(Writing& writing, const std::vector<model::Track>& tracks) {
  std::size_t count = 0;
  for (const model::Track& track : tracks) {
    Writing one{{}, writing.answer};
    writeTrack(one, track);
    const auto bytes = one.fields.take();
    const std::size_t size = writing.fields.size() + sizeof(std::uint32_t) + bytes.size() + 16;
    if (count == containerLimits.tracks || size > containerLimits.answerBytes) {
      writing.answer.note(Cut::tracks);
      break;
    }
    writing.fields.flag(true).bytes(bytes);
    ++count;
  }
  writing.fields.flag(false);
}

std::vector<model::Track> readTracks(FieldReader& fields) {
  std::vector<model::Track> tracks;
  while (fields.flag()) {
    FieldReader one(fields.bytes(containerLimits.answerBytes));
    tracks.push_back(readTrack(one));
    if (!one.isWhole() || tracks.size() > containerLimits.tracks) fields.fail();
  }
  return tracks;
}

void writeAsset(Writing& writing, const model::MediaAsset& asset) {
  writeDuration(writing.fields, asset.duration);
  writing.fields.flag(asset.creationDate.has_value());
  writeReal(writing.fields, asset.creationDate.value_or(model::Date()).secondsSince1970);
  writeMetadata(writing, asset.commonMetadata);
  writeTracks(writing, asset.tracks);
}

model::MediaAsset readAsset(FieldReader& fields) {
  model::MediaAsset asset;
  asset.duration = readDuration(fields);
  const bool hasDate = fields.flag();
  const double seconds = readReal(fields);
  if (hasDate) asset.creationDate = {seconds};
  asset.commonMetadata = readMetadata(fields);
  asset.tracks = readTracks(fields);
  if (asset.tracks.empty()) fields.fail();
  return asset;
}

constexpr auto allCuts =
    static_cast<std::uint8_t>((2U << static_cast<unsigned>(Cut::configuration)) - 1);

}  // namespace

std::vector<std::uint8_t> bytesOfAnswer(ContainerAnswer answer) {
  Writing body{{}, answer};
  if (answer.kind == ContainerAnswer::Kind::asset) writeAsset(body, answer.asset);
  // Writing the asset may have cut some of it.
  return FieldWriter()
      .number(static_cast<std::uint8_t>(answer.kind))
      .number(answer.cuts)
      .bytes(body.fields.take())
      .take();
}

std::optional<ContainerAnswer> answerOfBytes(std::span<const std::uint8_t> bytes) {
  FieldReader head(bytes);
  ContainerAnswer answer;
  answer.kind = static_cast<ContainerAnswer::Kind>(
      head.oneOf(static_cast<std::uint8_t>(ContainerAnswer::Kind::tooMuch)));
  answer.cuts = head.oneOf(allCuts);
  FieldReader body(head.bytes(containerLimits.answerBytes));
  if (answer.kind == ContainerAnswer::Kind::asset) answer.asset = readAsset(body);
  if (!head.isWhole() || !body.isWhole()) return std::nullopt;
  return answer;
}

std::string textOfCuts(const ContainerAnswer& answer) {
  struct Row {
    Cut cut;
    const char* text;
  };
  constexpr Row rows[] = {
      {Cut::bytes, "read no further than its first megabytes"},
      {Cut::packets, "looked at no more than its first packets"},
      {Cut::tracks, "some of its tracks are left out"},
      {Cut::text, "some of its texts are cut"},
      {Cut::configuration, "some configuration records are left out"},
  };
  std::string text;
  for (const Row& row : rows) {
    if (!answer.has(row.cut)) continue;
    if (!text.empty()) text += ", ";
    text += row.text;
  }
  return text;
}

}  // namespace media::movie
