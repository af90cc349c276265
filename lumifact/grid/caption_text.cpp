// SPDX-License-Identifier: MIT
#include "lumifact/grid/caption_text.h"

#include <array>

#include "model/number_text.h"

namespace lumifact {

namespace {

struct TypeName {
  std::string_view searchText;
  std::string_view name;
};

// Searched in this order, anywhere in the identifier; the first hit wins.
constexpr std::array<TypeName, 7> typeNames = {{
    {"com.apple.quicktime-movie", "mov"},
    {"mpeg-4", "mp4"},
    {"jpeg", "jpg"},
    {"png", "png"},
    {"gif", "gif"},
    {"tif", "tif"},
    {"bmp", "bmp"},
}};

std::string pair(std::string_view left, std::string_view right) {
  return std::string(left).append(", ").append(right);
}

}  // namespace

std::string_view fileTypeName(std::string_view uniformTypeIdentifier) {
  for (const TypeName& row : typeNames) {
    if (uniformTypeIdentifier.find(row.searchText) != std::string_view::npos) return row.name;
  }
  return {};
}

std::optional<std::string> captionText(std::int32_t thumbnailInfoDisplay, std::int64_t pixelWidth,
                                       std::int64_t pixelHeight, std::string_view typeName,
                                       const std::function<std::string()>& sizeText) {
  const auto pixelSize = [&] {
    return model::integerText(pixelWidth) + "x" + model::integerText(pixelHeight);
  };
  switch (thumbnailInfoDisplay) {
    case 1:
      return pair(pixelSize(), typeName);
    case 2:
      return pair(sizeText(), typeName);
    case 3:
      return pair(pixelSize(), sizeText());
    default:
      return std::nullopt;
  }
}

}  // namespace lumifact
