// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/selection_title.h"

#include <algorithm>

namespace desktop::photos_ui {
namespace {

std::size_t videosAmong(std::span<const library::ItemPointer> items) {
  return static_cast<std::size_t>(
      std::ranges::count_if(items, [](const auto& item) { return item->isVideo(); }));
}

// "1 Photo", "1,234 Photos".
std::string counted(std::size_t count, const std::string& what) {
  std::string number = std::to_string(count);
  for (std::size_t digits = 3; digits < number.size(); digits += 4)
    number.insert(number.size() - digits, ",");
  return number + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

std::string selectionTitle(std::span<const library::ItemPointer> items) {
  if (items.empty()) return "Select Items";
  const std::size_t videos = videosAmong(items);
  const char* const what = videos == 0 ? "Photo" : videos == items.size() ? "Video" : "Item";
  return counted(items.size(), what) + " Selected";
}

std::string countText(std::span<const library::ItemPointer> items) {
  const std::size_t videos = videosAmong(items);
  const std::size_t photos = items.size() - videos;
  if (videos == 0) return photos == 0 ? std::string() : counted(photos, "Photo");
  if (photos == 0) return counted(videos, "Video");
  return counted(photos, "Photo") + ", " + counted(videos, "Video");
}

}  // namespace desktop::photos_ui
