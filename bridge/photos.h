// SPDX-License-Identifier: MIT
//
// The photo library's assets, and the classes of the host's photo user interface that are hooked
// or asked.
#pragma once

#include "bridge/uikit.h"

namespace bridge {

// A place on the earth.
struct CLLocationCoordinate2D {
  double latitude = 0;   // degrees, north positive
  double longitude = 0;  // degrees, east positive
};

template <>
struct Encoding<CLLocationCoordinate2D> {
  static constexpr FixedString text = "{CLLocationCoordinate2D=dd}";
};

struct CLLocation : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"CLLocation">(); }

  CLLocationCoordinate2D coordinate() const {
    return send<CLLocationCoordinate2D, "coordinate">(*this);
  }
};

struct PHAsset : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"PHAsset">(); }

  NSString uuid() const { return send<NSString, "uuid">(*this); }
  NSString uniformTypeIdentifier() const { return send<NSString, "uniformTypeIdentifier">(*this); }
  bool isVideo() const { return send<bool, "isVideo">(*this); }
  NSUInteger pixelWidth() const { return send<NSUInteger, "pixelWidth">(*this); }
  NSUInteger pixelHeight() const { return send<NSUInteger, "pixelHeight">(*this); }
  double duration() const { return send<double, "duration">(*this); }  // seconds
  short exifOrientation() const { return send<short, "exifOrientation">(*this); }
  NSDate creationDate() const { return send<NSDate, "creationDate">(*this); }
  CLLocation location() const { return send<CLLocation, "location">(*this); }
  NSString localizedGeoDescription() const {
    return send<NSString, "localizedGeoDescription">(*this);
  }

  // Each may be nil, and may name a file that is not there.
  NSURL mainFileURL() const { return send<NSURL, "mainFileURL">(*this); }
  NSURL fileURLForFullsizeImage() const { return send<NSURL, "fileURLForFullsizeImage">(*this); }
  NSURL fileURLForLargePreview() const { return send<NSURL, "fileURLForLargePreview">(*this); }
  NSURL fileURLForMediumPreview() const { return send<NSURL, "fileURLForMediumPreview">(*this); }
};

// Thumbnails and what they are made of.

struct PUPhotoViewContentHelper : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"PUPhotoViewContentHelper">(); }

  UIView contentView() const { return send<UIView, "contentView">(*this); }
  void layoutSubviewsOfContentView() const { send<void, "layoutSubviewsOfContentView">(*this); }
};

struct PUPhotoView : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"PUPhotoView">(); }

  PUPhotoViewContentHelper contentHelper() const {
    return send<PUPhotoViewContentHelper, "contentHelper">(*this);
  }
};

struct PUPhotosGridCell : UICollectionViewCell {
  using UICollectionViewCell::UICollectionViewCell;
  static Class classObject() { return classNamed<"PUPhotosGridCell">(); }

  PUPhotoView photoContentView() const { return send<PUPhotoView, "photoContentView">(*this); }
};

// The banner over a thumbnail, of whatever class.
struct TextBanner : NSObject {
  using NSObject::NSObject;

  NSString text() const { return send<NSString, "text">(*this); }
};

// Grids.

struct PUSectionedGridLayout : UICollectionViewLayout {
  using UICollectionViewLayout::UICollectionViewLayout;
  static Class classObject() { return classNamed<"PUSectionedGridLayout">(); }

  NSObject delegate() const { return send<NSObject, "delegate">(*this); }
  NSInteger columnsPerRow() const { return send<NSInteger, "columnsPerRow">(*this); }
  CGFloat interItemSpacing() const { return send<CGFloat, "interItemSpacing">(*this); }  // points
  void setItemSize(CGSize size) const { send<void, "setItemSize:">(*this, size); }
  CGSize itemSizeForColumn(NSInteger column) const {
    return send<CGSize, "layoutItemSizeForColumn:">(*this, column);
  }
};

struct PUPhotosGridViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"PUPhotosGridViewController">(); }

  UICollectionView collectionView() const {
    return send<UICollectionView, "collectionView">(*this);
  }
  PHAsset assetAt(NSIndexPath path) const {
    return send<PHAsset, "assetAtIndexPath:">(*this, path);
  }
  bool isAnyAssetSelected() const { return send<bool, "isAnyAssetSelected">(*this); }
  NSArray selectedAssets() const { return send<NSArray, "selectedAssets">(*this); }
  NSString localizedSelectionTitle() const {
    return send<NSString, "localizedSelectionTitle">(*this);
  }
  // Of the thumbnails, after the columns or the width became others.
  void updateLayoutMetrics() const { send<void, "updateLayoutMetrics">(*this); }
};

struct PUPhotosAlbumViewController : PUPhotosGridViewController {
  using PUPhotosGridViewController::PUPhotosGridViewController;
  static Class classObject() { return classNamed<"PUPhotosAlbumViewController">(); }

  PUSectionedGridLayout mainGridLayout() const {
    return send<PUSectionedGridLayout, "mainGridLayout">(*this);
  }
  void updateGlobalFooter() const { send<void, "updateGlobalFooter">(*this); }
};

struct PUCloudSharedAlbumViewController : PUPhotosAlbumViewController {
  using PUPhotosAlbumViewController::PUPhotosAlbumViewController;
  static Class classObject() { return classNamed<"PUCloudSharedAlbumViewController">(); }
};

struct PUFullMomentsZoomLevelInfo : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"PUFullMomentsZoomLevelInfo">(); }
};

struct PUZoomableGridViewController : PUPhotosGridViewController {
  using PUPhotosGridViewController::PUPhotosGridViewController;
  static Class classObject() { return classNamed<"PUZoomableGridViewController">(); }

  NSObject zoomLevelInfo() const { return send<NSObject, "_zoomLevelInfo">(*this); }
};

// The single-photo view.

struct PUOneUpTilingLayout : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"PUOneUpTilingLayout">(); }

  // Nil while nothing is shown.
  NSIndexPath indexPathOfCurrentItem() const {
    return send<NSIndexPath, "indexPathOfCurrentItem">(*this);
  }
};

struct PUAssetReference : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"PUAssetReference">(); }

  // Not always a PHAsset.
  NSObject asset() const { return send<NSObject, "asset">(*this); }
};

struct PUOneUpViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"PUOneUpViewController">(); }

  bool isPresentedForPreview() const { return send<bool, "isPresentedForPreview">(*this); }
  PUAssetReference assetReferenceAt(NSIndexPath path, PUOneUpTilingLayout layout) const {
    return send<PUAssetReference, "_assetReferenceAtIndexPath:layout:">(*this, path, layout);
  }
  void setTilingView(UIView view) const { send<void, "_setTilingView:">(*this, view); }
};

}  // namespace bridge
