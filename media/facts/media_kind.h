// SPDX-License-Identifier: MIT
//
// Which files are photos and videos, told without reading their metadata.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/result.h"

namespace media::facts {

enum class MediaKind { image, video };

// By the name's extension, in any case of letters; none where the extension is no photo's or
// video's, or there is none.
std::optional<MediaKind> mediaKindOfName(std::string_view name);

// By the file's first bytes; none for files of any other kind. Sound alone is no video. Errors: as
// FileSource::open, or what the system says of a failed read.
model::Result<std::optional<MediaKind>> mediaKindOfContent(const std::string& path);

}  // namespace media::facts
