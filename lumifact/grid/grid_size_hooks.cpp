// SPDX-License-Identifier: MIT
#include "bridge/geometry.h"
#include "bridge/guard.h"
#include "bridge/photos.h"
#include "lumifact/grid/grid_hooks.h"
#include "lumifact/grid/grid_size_button.h"
#include "lumifact/grid/item_side.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr FixedString addButton = "addGridSizeButton";
constexpr FixedString changeSize = "LFChangeGridsize:";

// For all albums; only the button changes it.
constinit std::int32_t columnReduction = 0;

GridMeasures measuresOf(PUSectionedGridLayout layout) {
  return {.columnReduction = columnReduction,
          .screenWidth = UIScreen::mainScreen().bounds().size.width,
          .spacing = layout.interItemSpacing()};
}

bool isReduced(PUSectionedGridLayout layout) {
  return columnReduction != 0 &&
         isKindOf(layout.delegate(), PUPhotosAlbumViewController::classObject());
}

std::optional<double> reducedSideInColumns(PUSectionedGridLayout layout) {
  if (!isReduced(layout)) return std::nullopt;
  return sideInColumns(measuresOf(layout), layout.columnsPerRow());
}

std::optional<double> reducedSideOfItems(PUSectionedGridLayout layout) {
  if (!isReduced(layout)) return std::nullopt;
  return sideOfItems(measuresOf(layout));
}

void placeButton(PUPhotosAlbumViewController album) {
  const UINavigationItem bar = album.navigationItem();
  const NSArray present = bar.rightBarButtonItems();
  if (!present || present.containsIdentical(gridSizeItem())) return;
  const GridSizeButton& made = gridSizeButton(album.view().tintColor());
  made.button->addTarget(album, selector<changeSize>(), touchUpInside);
  const auto items = mutableCopy(present);
  items->add(made.spacer);
  items->add(made.item);
  bar.setRightBarButtonItems(items);
}

void toggleColumns(PUPhotosAlbumViewController album) {
  columnReduction = columnReduction > 0 ? 0 : columnReduction + 2;
  album.mainGridLayout().invalidateLayout();
  album.updateLayoutMetrics();
}

CGSize itemSizeForColumn(id self, SEL command, NSInteger column) {
  const CGSize size = stock<&itemSizeForColumn>(self, command, column);
  const auto side = guarded([&] { return reducedSideInColumns(PUSectionedGridLayout(self)); });
  return side ? CGSize{*side, *side} : size;
}

void setItemSize(id self, SEL command, CGSize size) {
  const auto side = guarded([&] { return reducedSideOfItems(PUSectionedGridLayout(self)); });
  stock<&setItemSize>(self, command, side ? CGSize{*side, *side} : size);
}

// The footer is of no interest: when it is updated, the bar has its items.
void updateFooter(id self, SEL command) {
  stock<&updateFooter>(self, command);
  if (settings.useGridSizeButton) guarded([&] { send<void, addButton>(self); });
}

void changeGridSize(id self, SEL, id) {
  guarded([&] { toggleColumns(PUPhotosAlbumViewController(self)); });
}

void addGridSizeButton(id self, SEL) {
  guarded([&] { placeButton(PUPhotosAlbumViewController(self)); });
}

}  // namespace

constinit const HookRow gridSizeHooks[] = {
    replaced<"PUSectionedGridLayout", "layoutItemSizeForColumn:", &itemSizeForColumn>,
    replaced<"PUSectionedGridLayout", "setItemSize:", &setItemSize>,
    replaced<"PUPhotosAlbumViewController", "updateGlobalFooter", &updateFooter>,
    added<"PUPhotosAlbumViewController", changeSize, "v@:@", &changeGridSize>,
    added<"PUPhotosAlbumViewController", addButton, "v@:", &addGridSizeButton>,
};

}  // namespace lumifact
