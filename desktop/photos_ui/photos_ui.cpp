// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/photos_ui.h"

#include "desktop/faces/photos/photos_runtime.h"
#include "desktop/photos_ui/albums/album_cell.h"
#include "desktop/photos_ui/albums/problem_list.h"
#include "desktop/photos_ui/albums/pu_album_list_view_controller.h"
#include "desktop/photos_ui/albums/pu_cloud_shared_album_view_controller.h"
#include "desktop/photos_ui/albums/pu_photos_album_view_controller.h"
#include "desktop/photos_ui/albums/pu_photos_panorama_view_controller.h"
#include "desktop/photos_ui/base/message_view.h"
#include "desktop/photos_ui/cells/cell_marks.h"
#include "desktop/photos_ui/cells/item_badge.h"
#include "desktop/photos_ui/cells/pu_photo_view.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/cells/text_banner.h"
#include "desktop/photos_ui/grid/grid_titles.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/pu_sectioned_grid_layout.h"
#include "desktop/photos_ui/grid/pu_zoomable_grid_view_controller.h"
#include "desktop/photos_ui/one_up/pu_one_up_bars_controller.h"
#include "desktop/photos_ui/one_up/pu_one_up_photo_view.h"
#include "desktop/photos_ui/one_up/pu_one_up_tiling_layout.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/photos_ui/one_up/pu_tiling_view.h"
#include "desktop/photos_ui/settings/choice_list.h"
#include "desktop/photos_ui/settings/segments_cell.h"
#include "desktop/photos_ui/settings/settings_list.h"
#include "desktop/photos_ui/settings/settings_page.h"
#include "desktop/photos_ui/settings/settings_screen.h"
#include "desktop/photos_ui/settings/slider_cell.h"
#include "desktop/photos_ui/settings/toggle_cell.h"

namespace desktop::photos_ui {
namespace {

// A superclass stands before the classes below it.
constexpr Class (*classes[])() = {
    // clang-format off
    &PUPhotoViewContentHelperState::classObject,
    &PUPhotoViewState::classObject,
    &ItemBadge::classObject,
    &TextBannerView::classObject,
    &CellMark::classObject,
    &PUPhotosGridCellState::classObject,
    &GridHeader::classObject,
    &GridFooter::classObject,
    &MessageView::classObject,
    &PUSectionedGridLayoutState::classObject,
    &PUPhotosGridViewControllerState::classObject,
    &PUPhotosAlbumViewControllerState::classObject,
    &PUCloudSharedAlbumViewControllerState::classObject,
    &PUPhotosPanoramaViewController::classObject,
    &PUFullMomentsZoomLevelInfoState::classObject,
    &PUCollectionsZoomLevelInfo::classObject,
    &PUYearsZoomLevelInfo::classObject,
    &PUZoomableGridViewControllerState::classObject,
    &AlbumCell::classObject,
    &PUAlbumListViewController::classObject,
    &ProblemList::classObject,
    &PUOneUpBarsController::classObject,
    &PUOneUpPhotoView::classObject,
    &PUOneUpTilingLayoutState::classObject,
    &PUOneUpViewControllerState::classObject,
    &PUTilingView::classObject,
    &SegmentsCell::classObject,
    &SliderCell::classObject,
    &ToggleCell::classObject,
    &ChoiceList::classObject,
    &SettingsPage::classObject,
    &SettingsList::classObject,
    &SettingsScreen::classObject,
    // clang-format on
};

}  // namespace

void registerPhotosUI() {
  faces::registerPhotos();
  for (const auto& classObject : classes) classObject();
}

}  // namespace desktop::photos_ui
