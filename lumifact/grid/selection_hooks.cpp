// SPDX-License-Identifier: MIT
#include "bridge/guard.h"
#include "bridge/photos.h"
#include "lumifact/assets/platform_texts.h"
#include "lumifact/grid/asset_file_size.h"
#include "lumifact/grid/grid_hooks.h"
#include "lumifact/grid/selection_title.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr CGFloat smallestTitle = 4.0;  // points

// Of the grid that changed its mode last, whichever that was.
constinit bool isEditing = false;
// A finger selects by swiping: no file is read for every cell that it touches. One that is
// interrupted leaves this set until the next one ends or a grid changes its mode.
constinit bool isSwiping = false;

bool showsSizes() {
  return settings.showSelectedSize && isEditing && !isSwiping;
}

std::uint64_t sizeOfAll(NSArray assets) {
  std::vector<std::optional<std::int64_t>> sizes(assets.count());
  for (NSUInteger index = 0; index < sizes.size(); ++index)
    sizes[index] = mainFileSize(PHAsset(assets.at(index).get()));
  return selectionSize(sizes);
}

// The title with the size; nil where it stays as it is.
NSString titleWithSize(PUPhotosGridViewController grid, NSString title) {
  if (!showsSizes() || !grid.isAnyAssetSelected()) return {};
  const std::uint64_t size = sizeOfAll(grid.selectedAssets());
  if (size == 0) return {};
  return NSString::make(selectionTitle(printed(title).utf8(), size, &fileSizeText));
}

void followSwipe(PUPhotosGridViewController grid, UIGestureRecognizer gesture) {
  if (!settings.showSelectedSize || !isEditing) return;
  const UIGestureRecognizer::State state = gesture.state();
  if (state == UIGestureRecognizer::began) isSwiping = true;
  if (state != UIGestureRecognizer::ended) return;
  isSwiping = false;
  grid.navigationItem().setTitle(grid.localizedSelectionTitle());
}

// Lets a long title shrink instead of being cut.
void fitLabels(UIView titleView) {
  if (!showsSizes()) return;
  const NSArray views = titleView.subviews();
  for (NSUInteger index = 0; index < views.count(); ++index) {
    const auto label = as<UILabel>(views.at(index));
    label.setAdjustsFontSizeToFitWidth(true);
    label.setMinimumFontSize(smallestTitle);
  }
}

void setLargeTitle(id self, SEL command, id title) {
  stock<&setLargeTitle>(self, command, title);
  guarded([&] { fitLabels(UIView(self)); });
}

void setBarTitle(id self, SEL command, id title) {
  stock<&setBarTitle>(self, command, title);
  guarded([&] { fitLabels(UIView(self)); });
}

void handleSwipe(id self, SEL command, id gesture) {
  stock<&handleSwipe>(self, command, gesture);
  guarded([&] { followSwipe(PUPhotosGridViewController(self), UIGestureRecognizer(gesture)); });
}

void setEditing(id self, SEL command, BOOL editing, BOOL animated) {
  isSwiping = false;
  isEditing = editing != 0;
  stock<&setEditing>(self, command, editing, animated);
}

id localizedSelectionTitle(id self, SEL command) {
  const id title = stock<&localizedSelectionTitle>(self, command);
  const NSString extended =
      guarded([&] { return titleWithSize(PUPhotosGridViewController(self), NSString(title)); });
  return extended ? extended.get() : title;
}

}  // namespace

constinit const HookRow barTitleHooks[] = {
    replaced<"_UINavigationBarLargeTitleView", "setTitle:", &setLargeTitle>,
    replaced<"_UINavigationBarContentView", "setTitle:", &setBarTitle>,
};

constinit const HookRow selectionHooks[] = {
    replaced<"PUPhotosGridViewController", "_handleSwipeSelectionGesture:", &handleSwipe>,
    replaced<"PUPhotosGridViewController", "setEditing:animated:", &setEditing>,
    replaced<"PUPhotosGridViewController", "localizedSelectionTitle", &localizedSelectionTitle>,
};

}  // namespace lumifact
