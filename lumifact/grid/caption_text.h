// SPDX-License-Identifier: MIT
//
// The text of a thumbnail's caption bar.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lumifact {

// The short type name of a uniform type identifier ("jpg", "mov", ...); empty for all others,
// HEIF among them.
std::string_view fileTypeName(std::string_view uniformTypeIdentifier);

// The caption for a thumbnailInfoDisplay value: 1 pixel size and type, 2 file size and type,
// 3 pixel size and file size; none for any other value. `sizeText` is asked for only where the
// caption shows a size.
std::optional<std::string> captionText(std::int32_t thumbnailInfoDisplay, std::int64_t pixelWidth,
                                       std::int64_t pixelHeight, std::string_view typeName,
                                       const std::function<std::string()>& sizeText);

}  // namespace lumifact
