// SPDX-License-Identifier: MIT
//
// The class, and its life from loading to changes of the library. Where one is in the grid is kept
// by pu_photos_grid_place.cpp; the items are shown by pu_photos_grid_items.cpp, and selected by
// pu_photos_grid_selection.cpp.
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/message_view.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_titles.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

using bridge::NSString;

Class PUPhotosGridViewController::classObject() {
  using Self = PUPhotosGridViewController;
  static const Class made =
      bridge::ClassBuilder<Self>("PUPhotosGridViewController")
          .method<"viewDidLoad", &Self::viewDidLoad>()
          .method<"viewWillAppear:", &Self::viewWillAppear>()
          .method<"viewWillLayoutSubviews", &Self::viewWillLayoutSubviews>()
          .method<"viewDidLayoutSubviews", &Self::viewDidLayoutSubviews>()
          .method<"collectionView", &Self::collectionView>()
          .method<"libraryWasShown", &Self::libraryWasShown>()
          .method<"updateLayoutMetrics", &Self::updateLayoutMetrics>()
          .method<"scrollViewDidScroll:", &Self::didScroll>()
          .method<"numberOfSectionsInCollectionView:", &Self::numberOfSections>()
          .method<"collectionView:numberOfItemsInSection:", &Self::numberOfItems>()
          .method<"collectionView:cellForItemAtIndexPath:", &Self::cellForItem>()
          .method<"collectionView:viewForSupplementaryElementOfKind:atIndexPath:",
                  &Self::supplementaryView>()
          .method<"collectionView:didEndDisplayingCell:forItemAtIndexPath:",
                  &Self::didEndDisplaying>()
          .method<"collectionView:didSelectItemAtIndexPath:", &Self::didSelect>()
          .method<"collectionView:didDeselectItemAtIndexPath:", &Self::didDeselect>()
          .method<"assetAtIndexPath:", &Self::assetAt>()
          .method<"setEditing:animated:", &Self::setEditing>()
          .method<"beginSelecting:", &Self::beginSelecting>()
          .method<"endSelecting:", &Self::endSelecting>()
          .method<"isAnyAssetSelected", &Self::isAnyAssetSelected>()
          .method<"selectedAssets", &Self::selectedAssets>()
          .method<"localizedSelectionTitle", &Self::localizedSelectionTitle>()
          .method<"gestureRecognizerShouldBegin:", &Self::shouldBegin>()
          .method<"_handleSwipeSelectionGesture:", &Self::handleSwipeSelection>()
          .build();
  return made;
}

bridge::Owned<bridge::UIViewController> PUPhotosGridViewController::make(Class aClass,
                                                                         GridContents contents) {
  auto made = bridge::Owned<bridge::UIViewController>::adopt(
      bridge::send<bridge::UIViewController, "init">(bridge::send<id, "alloc">(aClass)));
  PUPhotosGridViewController& grid = of(made.get());
  grid._contents = std::move(contents);
  grid._staysAtEnd = grid._contents.startsAtEnd;
  bridge::send<void, "setTitle:">(made.get(), NSString::make(grid._contents.title));
  useLargeTitle(made, grid._contents.hasLargeTitle);
  return made;
}

// The collection may outlive its controller, and asks no one then.
PUPhotosGridViewController::~PUPhotosGridViewController() {
  bridge::send<void, "setDelegate:">(_collectionView.get(), bridge::NSObject());
  bridge::send<void, "setDataSource:">(_collectionView.get(), bridge::NSObject());
  _swipeRecognizer->setDelegate({});
  if (_layout) layout().setDelegate({});
}

void PUPhotosGridViewController::load() {
  self().view();
  if (_isStale) refresh();
}

void PUPhotosGridViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  const bridge::UIView view = self().view();
  view.setBackgroundColor(bridge::UIColor::whiteColor());
  _layout = PUSectionedGridLayout::make();
  layout().setDelegate(me());
  layout().setHeaderHeight(_contents.hasHeaders ? GridHeader::height : 0);
  _collectionView = makeCollectionView(view.bounds());
  view.addSubview(_collectionView);
  _swipeRecognizer = bridge::Owned<bridge::UIGestureRecognizer>::retain(
      uikit::handles::makeRecognizer<uikit::handles::UIPanGestureRecognizer>(
          me(), bridge::selector<"_handleSwipeSelectionGesture:">())
          .get());
  _swipeRecognizer->setDelegate(me());
  _collectionView->addGestureRecognizer(_swipeRecognizer);
  updateBarItems();
}

bridge::Owned<bridge::UICollectionView> PUPhotosGridViewController::makeCollectionView(
    CGRect frame) {
  auto made = bridge::Owned<bridge::UICollectionView>::adopt(
      bridge::send<bridge::UICollectionView, "initWithFrame:collectionViewLayout:">(
          bridge::send<id, "alloc">(bridge::UICollectionView::classObject()), frame,
          bridge::UICollectionViewLayout(_layout.get().get())));
  made->setBackgroundColor(bridge::UIColor::whiteColor());
  made->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  bridge::send<void, "setAlwaysBounceVertical:">(made.get(), true);
  bridge::send<void, "registerClass:forCellWithReuseIdentifier:">(
      made.get(), PUPhotosGridCell::classObject(), NSString::make("PUPhotosGridCell"));
  const auto registerTitle = [&](Class aClass, const char* kind) {
    bridge::send<void, "registerClass:forSupplementaryViewOfKind:withReuseIdentifier:">(
        made.get(), aClass, NSString::make(kind), NSString::make(kind));
  };
  registerTitle(GridHeader::classObject(), PUSectionedGridLayout::headerKind);
  registerTitle(GridFooter::classObject(), PUSectionedGridLayout::footerKind);
  bridge::send<void, "setDelegate:">(made.get(), bridge::NSObject(me().get()));
  bridge::send<void, "setDataSource:">(made.get(), bridge::NSObject(me().get()));
  return made;
}

void PUPhotosGridViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  load();
}

// Another width is another grid: what was at the top stays there.
void PUPhotosGridViewController::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const CGFloat width = self().view().bounds().size.width;
  if (width == _measuredWidth) return;
  const auto place = _measuredWidth > 0 ? anchor() : std::nullopt;
  bridge::send<void, "updateLayoutMetrics">(self());
  if (place && !_staysAtEnd) restore(*place);
}

void PUPhotosGridViewController::viewDidLayoutSubviews() {
  super<void, "viewDidLayoutSubviews">();
  if (_staysAtEnd) placeAtEnd();
}

// As many more columns as a wider view has room for.
void PUPhotosGridViewController::updateLayoutMetrics() {
  constexpr CGFloat uprightWidth = 375;  // points
  const CGFloat width = self().view().bounds().size.width;
  _measuredWidth = width;
  const CGFloat usual = uprightWidth / _contents.columns;
  const CGFloat fitting = std::floor((width + layout().interItemSpacing()) / usual);
  const NSInteger columns =
      _contents.columns == 1
          ? 1
          : std::max<NSInteger>(_contents.columns, static_cast<NSInteger>(fitting));
  layout().setColumnsPerRow(columns);
  bridge::send<void, "setItemSize:">(_layout.get(), stockItemSize(width, columns));
}

// On whole pixels.
CGSize PUPhotosGridViewController::stockItemSize(CGFloat width, NSInteger columns) const {
  const CGFloat scale = uikit::screen().scale;
  const auto count = static_cast<CGFloat>(columns);
  const CGFloat gaps = layout().interItemSpacing() * (count - 1);
  const CGFloat side = std::floor((width - gaps) / count * scale) / scale;
  return {side, std::round(side * _contents.heightByWidth * scale) / scale};
}

void PUPhotosGridViewController::setFooterText(std::string text) {
  layout().setFooterHeight(text.empty() ? 0 : GridFooter::height);
  if (text == _footerText) return;
  _footerText = std::move(text);
  const bridge::UIView shown =
      bridge::send<bridge::UIView, "supplementaryViewForElementKind:atIndexPath:">(
          _collectionView.get(), NSString::make(PUSectionedGridLayout::footerKind),
          uikit::indexPathOf({0, 0}));
  if (shown) GridFooter::of(shown).show(_footerText);
}

void PUPhotosGridViewController::updateMessage() {
  if (_list->isEmpty() != static_cast<bool>(_message)) {
    _message = _list->isEmpty() ? MessageView::make() : bridge::Owned<bridge::UIView>();
    bridge::send<void, "setBackgroundView:">(_collectionView.get(), _message.get());
  }
  if (_message) showWhyEmpty(_message);
}

void PUPhotosGridViewController::refresh() {
  if (!_collectionView) return;
  const auto place = anchor();
  const ItemListPointer before = _list;
  const auto selected = selectedItems();
  const ItemListPointer next = _contents.list ? _contents.list() : nullptr;
  _isStale = false;
  undoSwipe();
  _list = next ? next : std::make_shared<ItemList>();
  bridge::send<void, "reloadData">(_collectionView.get());
  selectAgain(selected);
  if (_staysAtEnd) {
    placeAtEnd();
  } else if (place) {
    if (const auto index = _list->placeAfterChange(*before, place->index))
      restore({*index, place->y});
  }
  updateMessage();
  updateBarItems();
  updateTitle();
}

// What nobody sees is brought up to date when it is seen.
void PUPhotosGridViewController::libraryChanged(const library::LibraryChange& change) {
  const bool areItemsChanged = !change.inserted.empty() || !change.removed.empty() ||
                               !change.updated.empty() || change.areAlbumsChanged;
  if (areItemsChanged) _isStale = true;
  if (!_collectionView || !uikit::UIView::of(_collectionView.get()).window()) return;
  if (areItemsChanged) {
    refresh();
    bridge::send<void, "libraryWasShown">(self());
  } else {
    updateMessage();
  }
}

void PUPhotosGridViewController::open(std::size_t index, bool animated) {
  const auto shown = PUOneUpViewController::make(_list, index, Presentation::ordinary);
  self().navigationController().push(
      shown, animated ? bridge::UIViewController::animated : bridge::UIViewController::immediately);
}

}  // namespace desktop::photos_ui
