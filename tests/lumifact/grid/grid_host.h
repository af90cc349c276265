// SPDX-License-Identifier: MIT
//
// The host's grids, as far as they are hooked, with the extension's hooks in place: cells and
// controllers that answer what a test puts into them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/photos.h"

namespace lumifact::host {

// Registers the classes and puts the hooks in place, once.
void installGridHost();

// What reached the host's own implementations, to look at and to clear.
std::vector<std::string>& gridCalls();

// PUPhotoViewContentHelper without any of its fields; classes below it have them.
class HostHelper : public bridge::Bound<HostHelper, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::Owned<bridge::UIView> contentView;

  void layOut() { gridCalls().emplace_back("layoutSubviewsOfContentView"); }
  bridge::UIView view() const { return contentView; }
};

// The fields that a helper may have: "_textBannerView" in all but none.
enum class HelperFields { none, today, oldTimes, both };
bridge::Owned<bridge::PUPhotoViewContentHelper> makeHelper(HelperFields fields);
// Puts a view into a field; the test keeps it alive.
void setHelperField(bridge::Object helper, const char* field, bridge::Object view);

// A banner whose text is whatever a test says.
bridge::Owned<bridge::UIView> makeBanner(bridge::Object text);

// PUPhotoView.
class HostPhotoView : public bridge::Bound<HostPhotoView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::Owned<bridge::PUPhotoViewContentHelper> helper;
  std::vector<id> broughtToFront;

  bridge::PUPhotoViewContentHelper contentHelper() const { return helper; }
  void bringToFront(bridge::UIView view) { broughtToFront.push_back(view.get()); }
};

// PUPhotosGridCell. Its photo view fills it until a test moves it. There is none of a negative
// width.
class HostCell : public bridge::Bound<HostCell, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::Owned<bridge::UIView> content;
  bridge::Owned<bridge::UIView> photo;

  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews() { gridCalls().emplace_back("layoutSubviews"); }
  bridge::UIView contentView() const { return content; }
  bridge::UIView photoContentView() const { return photo; }
};

bridge::Owned<bridge::PUPhotosGridCell> makeCell(CGRect frame);

// What stands for a collection view: three items a section, and one item wherever somebody asks.
class HostCollection : public bridge::Bound<HostCollection, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSInteger items = 3;
  bridge::Owned<bridge::NSIndexPath> pathAtPoint;
  CGPoint askedAt;  // the last time

  NSInteger numberOfItems(NSInteger) const { return items; }
  bridge::NSIndexPath pathAt(CGPoint point) {
    askedAt = point;
    return pathAtPoint;
  }
};

// PUPhotosGridViewController.
class HostGrid : public bridge::Bound<HostGrid, bridge::UIViewController> {
 public:
  explicit HostGrid(id self);
  static Class classObject();

  bridge::Owned<bridge::UIView> collection;
  bridge::Owned<bridge::Object> asset;
  bridge::Owned<bridge::NSArray> selected;
  bridge::Owned<bridge::NSString> stockTitle;
  bool isAnySelected = true;
  std::function<void()> atWork;  // called while the host changes its mode or follows a swipe

  // Has it answer this cell for every item.
  void use(bridge::Object cell) { _cell = bridge::Owned<bridge::Object>::retain(cell); }

  void viewDidLoad() { gridCalls().emplace_back("viewDidLoad"); }
  bridge::UIView collectionView() const { return collection; }
  bridge::Object assetAt(bridge::NSIndexPath) const { return asset; }
  bool isAnyAssetSelected() const { return isAnySelected; }
  bridge::NSArray selectedAssets() const { return selected; }
  bridge::NSString selectionTitle() const;
  void setEditing(bool editing, bool animated);
  void handleSwipe(bridge::Object);
  bridge::Object cellForItem(bridge::Object, bridge::NSIndexPath) const { return _cell; }

 private:
  bridge::Owned<bridge::Object> _cell;
};

// A controller of a class: "PUPhotosGridViewController", "PUPhotosAlbumViewController",
// "PUCloudSharedAlbumViewController" or "PUZoomableGridViewController".
bridge::Owned<bridge::PUPhotosGridViewController> makeGrid(const char* className);

// PUPhotosAlbumViewController.
class HostAlbum : public bridge::Bound<HostAlbum, bridge::PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::Owned<bridge::NSObject> layout;

  bridge::NSObject mainGridLayout() const { return layout; }
  void updateLayoutMetrics() { gridCalls().emplace_back("updateLayoutMetrics"); }
  void updateGlobalFooter() { gridCalls().emplace_back("updateGlobalFooter"); }
};

// PUZoomableGridViewController.
class HostZoomableGrid
    : public bridge::Bound<HostZoomableGrid, bridge::PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::Owned<bridge::Object> info;

  bridge::Object zoomLevelInfo() const { return info; }
};

// PUSectionedGridLayout; its own items are 93 points wide.
class HostLayout : public bridge::Bound<HostLayout, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::NSObject owner;  // borrowed
  NSInteger columns = 4;
  CGFloat spacing = 1;
  std::vector<CGSize> sizes;  // that were set

  bridge::NSObject delegate() const { return owner; }
  NSInteger columnsPerRow() const { return columns; }
  CGFloat interItemSpacing() const { return spacing; }
  void invalidateLayout() { gridCalls().emplace_back("invalidateLayout"); }
  CGSize sizeForColumn(NSInteger) const { return {93, 93}; }
  void setItemSize(CGSize size) { sizes.push_back(size); }
};

// A gesture in a state, at a point of the view that is named, and of no other.
class HostGesture : public bridge::Bound<HostGesture, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSInteger step = 1;
  bridge::UIView view;  // borrowed

  NSInteger state() const { return step; }
  CGPoint locationIn(bridge::UIView of) const { return of == view ? CGPoint{5, 700} : CGPoint{}; }
};

// Autoreleased.
bridge::UIGestureRecognizer gestureIn(bridge::UIGestureRecognizer::State state,
                                      bridge::UIView view = {});
bridge::NSIndexPath pathOf(NSInteger section, NSInteger row);

}  // namespace lumifact::host
