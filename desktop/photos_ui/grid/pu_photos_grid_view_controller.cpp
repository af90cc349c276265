// SPDX-License-Identifier: MIT
//
// The controller asks its contents for a list, has its parts show that, and tells them what it is
// told: of a new width, of scrolling, of touches and of changes of the library. What nobody sees
// waits until it is seen. A list is replaced in one go: place and selection are taken down before,
// as items, and found again in the new list.
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/message_view.h"
#include "desktop/photos_ui/base/own_messages.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_metrics.h"
#include "desktop/photos_ui/grid/grid_titles.h"
#include "desktop/photos_ui/grid/select_button.h"
#include "desktop/photos_ui/grid/selection_title.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

Class PUPhotosGridViewControllerState::classObject() {
  using Self = PUPhotosGridViewControllerState;
  static const Class made =
      ClassBuilder<Self>("PUPhotosGridViewController")
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

Owned<UIViewController> PUPhotosGridViewControllerState::make(Class aClass, GridContents contents) {
  auto made = makeNew<UIViewController>(aClass);
  PUPhotosGridViewControllerState& grid = of(made.get());
  grid._contents = std::move(contents);
  grid._place.setStartsAtEnd(grid._contents.startsAtEnd);
  made->setTitle(NSString::make(grid._contents.title));
  useLargeTitle(made, grid._contents.hasLargeTitle);
  return made;
}

void PUPhotosGridViewControllerState::load() {
  self().view();
  if (_isStale) refresh();
}

void PUPhotosGridViewControllerState::viewDidLoad() {
  super<void, "viewDidLoad">();
  const UIView view = self().view();
  view.setBackgroundColor(UIColor::whiteColor());
  _grid.make(self(), view.bounds(), _contents.hasHeaders ? GridHeader::height : 0);
  view.addSubview(_grid.view());
  _selection.addRecognizer(self(), selector<"_handleSwipeSelectionGesture:">());
  updateSelectButton();
}

void PUPhotosGridViewControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  load();
}

// Another width is another grid.
void PUPhotosGridViewControllerState::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  if (self().view().bounds().size.width != _measuredWidth) self().updateLayoutMetrics();
}

void PUPhotosGridViewControllerState::viewDidLayoutSubviews() {
  super<void, "viewDidLayoutSubviews">();
  _place.stayAtEnd();
}

// What was at the top stays there, and whoever was at the end stays at that.
void PUPhotosGridViewControllerState::updateLayoutMetrics() {
  const auto place = _place.anchor();
  _measuredWidth = self().view().bounds().size.width;
  const auto [columns, itemSize] =
      gridMetrics(_contents, _measuredWidth, layout().interItemSpacing(), uikit::screen().scale);
  layout().setColumnsPerRow(columns);
  layout().self().setItemSize(itemSize);
  if (place) _place.restore(*place);
  _place.stayAtEnd();
}

void PUPhotosGridViewControllerState::refresh() {
  if (!collectionView()) return;
  const auto place = _place.anchor();
  const ItemListPointer before = list();
  const auto selected = _selection.items();
  const ItemListPointer next = _contents.list ? _contents.list() : nullptr;
  _isStale = false;
  _selection.undoSwipe();
  _grid.show(next ? next : std::make_shared<ItemList>());
  _selection.selectAgain(selected);
  _place.stayAtEnd();
  if (place) {
    if (const auto index = list()->placeAfterChange(*before, place->index))
      _place.restore({*index, place->y});
  }
  updateMessage();
  updateSelectButton();
  updateTitle();
}

// What nobody sees is brought up to date when it is seen.
void PUPhotosGridViewControllerState::libraryChanged(const library::LibraryChange& change) {
  const bool areItemsChanged = !change.inserted.empty() || !change.removed.empty() ||
                               !change.updated.empty() || change.areAlbumsChanged ||
                               change.areFavouritesChanged;
  if (areItemsChanged) _isStale = true;
  if (!collectionView() || !uikit::UIViewState::of(collectionView()).window()) return;
  if (areItemsChanged) {
    refresh();
    photos_ui::libraryWasShown(self());
  } else {
    updateMessage();
  }
}

void PUPhotosGridViewControllerState::updateMessage() {
  if (list()->isEmpty() != static_cast<bool>(_message)) {
    _message = list()->isEmpty() ? MessageView::make() : Owned<UIView>();
    collectionView().setBackgroundView(_message.get());
  }
  if (_message) showWhyEmpty(_message);
}

void PUPhotosGridViewControllerState::open(std::size_t index, bool animated) {
  const auto shown = PUOneUpViewControllerState::make(list(), index, Presentation::ordinary);
  self().navigationController().push(
      shown, animated ? UIViewController::animated : UIViewController::immediately);
}

NSInteger PUPhotosGridViewControllerState::numberOfSections(UICollectionView) const {
  return _grid.sectionCount();
}

NSInteger PUPhotosGridViewControllerState::numberOfItems(UICollectionView,
                                                         NSInteger section) const {
  return _grid.itemCount(section);
}

UIView PUPhotosGridViewControllerState::cellForItem(UICollectionView view, NSIndexPath path) {
  return _grid.cell(view, path);
}

UIView PUPhotosGridViewControllerState::supplementaryView(UICollectionView view, NSString kind,
                                                          NSIndexPath path) {
  return _grid.title(view, kind, path);
}

void PUPhotosGridViewControllerState::didEndDisplaying(UICollectionView, UIView cell, NSIndexPath) {
  if (isKindOf(cell, PUPhotosGridCellState::classObject()))
    PUPhotosGridCellState::of(cell).content().stopLoading();
}

void PUPhotosGridViewControllerState::didSelect(UICollectionView view, NSIndexPath path) {
  if (isEditing()) return updateTitle();
  view.deselectItem(path, false);
  if (const auto index = _grid.indexOf(path)) open(*index, true);
}

void PUPhotosGridViewControllerState::didDeselect(UICollectionView, NSIndexPath) {
  updateTitle();
}

void PUPhotosGridViewControllerState::didScroll(UIView) {
  _place.scrolled();
}

bool PUPhotosGridViewControllerState::shouldBegin(UIGestureRecognizer recognizer) const {
  return _selection.shouldBegin(recognizer);
}

// The title tells how many there are once the finger has moved on.
void PUPhotosGridViewControllerState::handleSwipeSelection(UIGestureRecognizer recognizer) {
  if (_selection.follow(recognizer, [this] { updateTitle(); })) updateTitle();
}

PHAsset PUPhotosGridViewControllerState::assetAt(NSIndexPath path) const {
  const auto item = _grid.itemAt(path);
  return item && host().library ? faces::PHAssetState::make(*host().library, item) : PHAsset();
}

bool PUPhotosGridViewControllerState::isEditing() const {
  return uikit::UIViewControllerState::isEditing();
}

void PUPhotosGridViewControllerState::setEditing(bool editing, bool animated) {
  super<void, "setEditing:animated:">(editing, animated);
  self().view();
  _selection.setOn(editing);
  updateSelectButton();
  updateTitle();
}

void PUPhotosGridViewControllerState::beginSelecting(Object) {
  self().setEditing(true, true);
}

void PUPhotosGridViewControllerState::endSelecting(Object) {
  self().setEditing(false, true);
}

void PUPhotosGridViewControllerState::updateSelectButton() {
  const bool isUseful = _contents.allowsSelecting && !list()->isEmpty();
  showSelectButton(self(), isEditing() ? SelectButton::cancel
                           : isUseful  ? SelectButton::select
                                       : SelectButton::none);
}

void PUPhotosGridViewControllerState::updateTitle() {
  self().navigationItem().setTitle(isEditing() ? self().localizedSelectionTitle()
                                               : NSString::make(_contents.title));
}

NSArray PUPhotosGridViewControllerState::selectedAssets() const {
  const auto all = makeNew<NSMutableArray>();
  if (host().library)
    for (const auto& item : _selection.items())
      all->add(faces::PHAssetState::make(*host().library, item));
  return Owned<NSArray>::retain(all.get()).autorelease();
}

NSString PUPhotosGridViewControllerState::localizedSelectionTitle() const {
  return NSString::make(selectionTitle(_selection.items()));
}

}  // namespace desktop::photos_ui
