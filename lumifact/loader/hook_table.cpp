// SPDX-License-Identifier: MIT
#include "lumifact/loader/hook_table.h"

#include <iterator>

#include "lumifact/details/one_up_hooks.h"
#include "lumifact/details/view_details_action.h"
#include "lumifact/grid/caption_hooks.h"
#include "lumifact/grid/grid_size_hooks.h"
#include "lumifact/grid/long_press_hooks.h"
#include "lumifact/grid/selection_hooks.h"
#include "lumifact/grid/visibility_hooks.h"

namespace lumifact {
namespace {

using bridge::added;
using bridge::replaced;

constinit const bridge::HookRow rows[] = {
    // clang-format off
    replaced<"_UINavigationBarLargeTitleView", "setTitle:",
             &UINavigationBarLargeTitleView_setTitle, stockUINavigationBarLargeTitleView_setTitle>,
    replaced<"_UINavigationBarContentView", "setTitle:",
             &UINavigationBarContentView_setTitle, stockUINavigationBarContentView_setTitle>,
    replaced<"PUPhotosGridCell", "initWithFrame:",
             &PUPhotosGridCell_initWithFrame, stockPUPhotosGridCell_initWithFrame>,
    replaced<"PUPhotosGridCell", "layoutSubviews",
             &PUPhotosGridCell_layoutSubviews, stockPUPhotosGridCell_layoutSubviews>,
    added<"PUPhotosGridCell", "sizeLabelView", "@@:", &PUPhotosGridCell_sizeLabelView>,
    added<"PUPhotosGridCell", "setSizeLabelView:", "v@:@", &PUPhotosGridCell_setSizeLabelView>,
    added<"PUPhotosGridCell", "sizeLabel", "@@:", &PUPhotosGridCell_sizeLabel>,
    added<"PUPhotosGridCell", "setSizeLabel:", "v@:@", &PUPhotosGridCell_setSizeLabel>,
    replaced<"PUPhotoViewContentHelper", "layoutSubviewsOfContentView",
             &PUPhotoViewContentHelper_layoutSubviewsOfContentView,
             stockPUPhotoViewContentHelper_layoutSubviewsOfContentView>,
    replaced<"PUAlbumListViewController", "viewWillAppear:",
             &PUAlbumListViewController_viewWillAppear,
             stockPUAlbumListViewController_viewWillAppear>,
    replaced<"PUAlbumListViewController", "viewWillDisappear:",
             &PUAlbumListViewController_viewWillDisappear,
             stockPUAlbumListViewController_viewWillDisappear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillAppear:",
             &PUPhotosPanoramaViewController_viewWillAppear,
             stockPUPhotosPanoramaViewController_viewWillAppear>,
    replaced<"PUPhotosPanoramaViewController", "viewWillDisappear:",
             &PUPhotosPanoramaViewController_viewWillDisappear,
             stockPUPhotosPanoramaViewController_viewWillDisappear>,
    replaced<"PUSectionedGridLayout", "layoutItemSizeForColumn:",
             &PUSectionedGridLayout_layoutItemSizeForColumn,
             stockPUSectionedGridLayout_layoutItemSizeForColumn>,
    replaced<"PUSectionedGridLayout", "setItemSize:",
             &PUSectionedGridLayout_setItemSize, stockPUSectionedGridLayout_setItemSize>,
    replaced<"PUPhotosAlbumViewController", "updateGlobalFooter",
             &PUPhotosAlbumViewController_updateGlobalFooter,
             stockPUPhotosAlbumViewController_updateGlobalFooter>,
    added<"PUPhotosAlbumViewController", "LFChangeGridsize:",
          "v@:@", &PUPhotosAlbumViewController_LFChangeGridsize>,
    added<"PUPhotosAlbumViewController", "addGridSizeButton",
          "v@:", &PUPhotosAlbumViewController_addGridSizeButton>,
    replaced<"PUPhotosGridViewController", "_handleSwipeSelectionGesture:",
             &PUPhotosGridViewController_handleSwipeSelectionGesture,
             stockPUPhotosGridViewController_handleSwipeSelectionGesture>,
    replaced<"PUPhotosGridViewController", "setEditing:animated:",
             &PUPhotosGridViewController_setEditing, stockPUPhotosGridViewController_setEditing>,
    replaced<"PUPhotosGridViewController", "localizedSelectionTitle",
             &PUPhotosGridViewController_localizedSelectionTitle,
             stockPUPhotosGridViewController_localizedSelectionTitle>,
    added<"PUPhotosGridViewController", "lumifactLongPress:",
          "v@:@", &PUPhotosGridViewController_lumifactLongPress>,
    replaced<"PUPhotosGridViewController", "viewDidLoad",
             &PUPhotosGridViewController_viewDidLoad, stockPUPhotosGridViewController_viewDidLoad>,
    replaced<"PUPhotosGridViewController", "collectionView:cellForItemAtIndexPath:",
             &PUPhotosGridViewController_cellForItem, stockPUPhotosGridViewController_cellForItem>,
    replaced<"PUOneUpBarsController", "updateBars",
             &PUOneUpBarsController_updateBars, stockPUOneUpBarsController_updateBars>,
    replaced<"PUOneUpTilingLayout", "init",
             &PUOneUpTilingLayout_init, stockPUOneUpTilingLayout_init>,
    replaced<"PUOneUpViewController", "viewWillDisappear:",
             &PUOneUpViewController_viewWillDisappear,
             stockPUOneUpViewController_viewWillDisappear>,
    replaced<"PUOneUpViewController", "viewDidLoad",
             &PUOneUpViewController_viewDidLoad, stockPUOneUpViewController_viewDidLoad>,
    added<"PUOneUpViewController", "LXErrorAlert:", "v@:@", &PUOneUpViewController_LXErrorAlert>,
    added<"PUOneUpViewController", "LXViewExifData:",
          "v@:@", &PUOneUpViewController_LXViewExifData>,
    replaced<"PUOneUpViewController", "_setTilingView:",
             &PUOneUpViewController_setTilingView, stockPUOneUpViewController_setTilingView>,
    // clang-format on
};
static_assert(std::size(rows) == 31);

}  // namespace

std::span<const bridge::HookRow> hookTable() {
  return rows;
}

}  // namespace lumifact
