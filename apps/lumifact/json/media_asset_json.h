// SPDX-License-Identifier: MIT
//
// A media asset as a property tree, in the form in which `properties` prints it and `parse video`
// reads it:
//
//   {"tracks": [{"trackID", "mediaType", "formatDescriptions": [...], "naturalSize": [w, h],
//     "preferredTransform": [a, b, c, d], "duration", "estimatedDataRate", "nominalFrameRate",
//     "minFrameDuration", "commonMetadata": [{"commonKey", "value"}]}], "commonMetadata": [...],
//    "duration", "creationDate"}
//
// A format description is {"mediaType", "mediaSubType", "width", "height", "audio": {"sampleRate",
// "formatID", "formatFlags", "bytesPerPacket", "framesPerPacket", "bytesPerFrame",
// "channelsPerFrame", "bitsPerChannel"}, "extensions": {}}. Times are in seconds.
#pragma once

#include <optional>

#include "model/media_asset.h"
#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

// The asset as a tree. Four-character codes are texts where all four bytes are printable ASCII,
// else integers.
model::Dictionary treeOfAsset(const model::MediaAsset& asset);

// The asset that a tree describes; none for null, which stands for an absent asset. Fields that
// are missing or null have their defaults, unknown ones are ignored, and any number may be an
// integer or a real. A four-character code is an integer or up to four Latin-1 characters (missing
// ones are zero bytes); "preferredTransform" may hold tx and ty too.
//
// Errors: a field of the wrong kind or length, by its name.
model::Result<std::optional<model::MediaAsset>> assetOfTree(const model::Value& tree);

}  // namespace lumifact::tool
