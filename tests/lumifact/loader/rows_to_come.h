// SPDX-License-Identifier: MIT
//
// The rows of the hook table that do nothing of their own yet. A row leaves its list with the
// commit that gives it its body.
#pragma once

#include <string_view>

namespace lumifact::host {

// They call the implementation that they replaced, and nothing else.
inline constexpr std::string_view replacedRowsToCome[] = {
    "_UINavigationBarLargeTitleView setTitle:",
    "_UINavigationBarContentView setTitle:",
    "PUPhotosGridCell initWithFrame:",
    "PUPhotosGridCell layoutSubviews",
    "PUPhotoViewContentHelper layoutSubviewsOfContentView",
    "PUAlbumListViewController viewWillAppear:",
    "PUAlbumListViewController viewWillDisappear:",
    "PUPhotosPanoramaViewController viewWillAppear:",
    "PUPhotosPanoramaViewController viewWillDisappear:",
    "PUSectionedGridLayout layoutItemSizeForColumn:",
    "PUSectionedGridLayout setItemSize:",
    "PUPhotosAlbumViewController updateGlobalFooter",
    "PUPhotosGridViewController _handleSwipeSelectionGesture:",
    "PUPhotosGridViewController setEditing:animated:",
    "PUPhotosGridViewController localizedSelectionTitle",
    "PUPhotosGridViewController viewDidLoad",
    "PUPhotosGridViewController collectionView:cellForItemAtIndexPath:",
};

// They do nothing and answer nil.
inline constexpr std::string_view addedRowsToCome[] = {
    "PUPhotosGridCell sizeLabelView",
    "PUPhotosGridCell setSizeLabelView:",
    "PUPhotosGridCell sizeLabel",
    "PUPhotosGridCell setSizeLabel:",
    "PUPhotosAlbumViewController LFChangeGridsize:",
    "PUPhotosAlbumViewController addGridSizeButton",
    "PUPhotosGridViewController lumifactLongPress:",
};

}  // namespace lumifact::host
