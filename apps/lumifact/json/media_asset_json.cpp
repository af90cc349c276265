// SPDX-License-Identifier: MIT
//
// The two directions beside each other, a pair of functions a structure: treeOf... writes every
// field, its opposite takes those that are there. A FieldReader keeps the first complaint and
// ignores what is asked of it afterwards, so a reader asks for all fields and looks for an error
// once, at its end.
#include "apps/lumifact/json/media_asset_json.h"

#include <algorithm>
#include <utility>

#include "apps/lumifact/json/field_reader.h"
#include "model/number_text.h"

namespace lumifact::tool {

namespace {

model::Value treeOfCode(model::FourCharCode code) {
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>((code >> shift) & 0xFF);
  const bool printable =
      std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0x20 && byte < 0x7F; });
  if (printable) return text;
  return code;
}

model::Array treeOfMetadata(const std::vector<model::MetadataItem>& items) {
  model::Array tree;
  for (const model::MetadataItem& item : items) {
    model::Dictionary entry;
    entry["commonKey"] = item.commonKey ? model::Value(*item.commonKey) : model::Value();
    entry["value"] = item.value.value_or(model::Value());
    tree.emplace_back(std::move(entry));
  }
  return tree;
}

model::Dictionary treeOfAudio(const model::AudioStreamDescription& audio) {
  return {{"sampleRate", audio.sampleRate},
          {"formatID", treeOfCode(audio.formatID)},
          {"formatFlags", audio.formatFlags},
          {"bytesPerPacket", audio.bytesPerPacket},
          {"framesPerPacket", audio.framesPerPacket},
          {"bytesPerFrame", audio.bytesPerFrame},
          {"channelsPerFrame", audio.channelsPerFrame},
          {"bitsPerChannel", audio.bitsPerChannel}};
}

model::Dictionary treeOfFormat(const model::FormatDescription& format) {
  model::Dictionary tree{{"mediaType", treeOfCode(format.mediaType)},
                         {"mediaSubType", treeOfCode(format.mediaSubType)},
                         {"width", format.width},
                         {"height", format.height},
                         {"extensions", format.extensions}};
  if (format.audio) tree["audio"] = treeOfAudio(*format.audio);
  return tree;
}

model::Dictionary treeOfTrack(const model::Track& track) {
  model::Array formats;
  for (const model::FormatDescription& format : track.formatDescriptions) {
    formats.emplace_back(treeOfFormat(format));
  }
  const model::AffineTransform& matrix = track.preferredTransform;
  return {{"trackID", track.trackID},
          {"mediaType", track.mediaType},
          {"formatDescriptions", std::move(formats)},
          {"naturalSize", model::Array{track.naturalSize.width, track.naturalSize.height}},
          {"preferredTransform", model::Array{matrix.a, matrix.b, matrix.c, matrix.d}},
          {"duration", track.duration},
          {"estimatedDataRate", model::widenedByText(track.estimatedDataRate)},
          {"nominalFrameRate", model::widenedByText(track.nominalFrameRate)},
          {"minFrameDuration",
           track.minFrameDuration ? model::Value(*track.minFrameDuration) : model::Value()},
          {"commonMetadata", treeOfMetadata(track.commonMetadata)}};
}

template <typename T>
model::Result<T> resultOf(const FieldReader& fields, T read) {
  if (fields.error()) return *fields.error();
  return read;
}

model::Result<model::MetadataItem> metadataItem(const model::Value& tree) {
  FieldReader fields(tree, "commonMetadata item");
  model::MetadataItem item;
  if (fields.present("commonKey") != nullptr) fields.text("commonKey", item.commonKey.emplace());
  if (const model::Value* value = fields.present("value")) item.value = *value;
  return resultOf(fields, std::move(item));
}

model::Result<model::AudioStreamDescription> audioStream(const model::Value& tree) {
  FieldReader fields(tree, "audio");
  model::AudioStreamDescription audio;
  fields.real("sampleRate", audio.sampleRate);
  fields.fourCharCode("formatID", audio.formatID);
  fields.unsigned32("formatFlags", audio.formatFlags);
  fields.unsigned32("bytesPerPacket", audio.bytesPerPacket);
  fields.unsigned32("framesPerPacket", audio.framesPerPacket);
  fields.unsigned32("bytesPerFrame", audio.bytesPerFrame);
  fields.unsigned32("channelsPerFrame", audio.channelsPerFrame);
  fields.unsigned32("bitsPerChannel", audio.bitsPerChannel);
  return resultOf(fields, audio);
}

model::Result<model::FormatDescription> formatDescription(const model::Value& tree) {
  FieldReader fields(tree, "format description");
  model::FormatDescription format;
  fields.fourCharCode("mediaType", format.mediaType);
  fields.fourCharCode("mediaSubType", format.mediaSubType);
  fields.signed32("width", format.width);
  fields.signed32("height", format.height);
  fields.dictionary("extensions", format.extensions);
  if (const model::Value* audio = fields.present("audio")) {
    auto stream = audioStream(*audio);
    if (!stream) return stream.error();
    format.audio = *stream;
  }
  return resultOf(fields, std::move(format));
}

void readGeometry(FieldReader& fields, model::Track& track) {
  const auto size = fields.numbers("naturalSize", 2, 2);
  if (!size.empty()) track.naturalSize = {size[0], size[1]};
  const auto matrix = fields.numbers("preferredTransform", 4, 6);
  if (matrix.empty()) return;
  track.preferredTransform = {matrix[0], matrix[1], matrix[2], matrix[3]};
  if (matrix.size() == 6) {
    track.preferredTransform.tx = matrix[4];
    track.preferredTransform.ty = matrix[5];
  }
}

model::Result<model::Track> trackOf(const model::Value& tree) {
  FieldReader fields(tree, "track");
  model::Track track;
  fields.signed32("trackID", track.trackID);
  fields.text("mediaType", track.mediaType);
  fields.list("formatDescriptions", track.formatDescriptions, formatDescription);
  readGeometry(fields, track);
  fields.real("duration", track.duration);
  fields.single("estimatedDataRate", track.estimatedDataRate);
  fields.single("nominalFrameRate", track.nominalFrameRate);
  if (fields.present("minFrameDuration") != nullptr) {
    fields.real("minFrameDuration", track.minFrameDuration.emplace());
  }
  fields.list("commonMetadata", track.commonMetadata, metadataItem);
  return resultOf(fields, std::move(track));
}

}  // namespace

model::Dictionary treeOfAsset(const model::MediaAsset& asset) {
  model::Array tracks;
  for (const model::Track& track : asset.tracks) tracks.emplace_back(treeOfTrack(track));
  return {
      {"tracks", std::move(tracks)},
      {"commonMetadata", treeOfMetadata(asset.commonMetadata)},
      {"duration", asset.duration},
      {"creationDate", asset.creationDate ? model::Value(*asset.creationDate) : model::Value()}};
}

model::Result<std::optional<model::MediaAsset>> assetOfTree(const model::Value& tree) {
  if (tree.isNull()) return std::optional<model::MediaAsset>();
  FieldReader fields(tree, "asset");
  model::MediaAsset asset;
  fields.list("tracks", asset.tracks, trackOf);
  fields.list("commonMetadata", asset.commonMetadata, metadataItem);
  fields.real("duration", asset.duration);
  if (const model::Value* date = fields.present("creationDate")) {
    if (date->asDate() == nullptr) {
      fields.fail("creationDate", "is no date");
    } else {
      asset.creationDate = *date->asDate();
    }
  }
  return resultOf(fields, std::optional(std::move(asset)));
}

}  // namespace lumifact::tool
