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
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_metrics.h"
#include "desktop/photos_ui/grid/grid_titles.h"
#include "desktop/photos_ui/grid/select_button.h"
#include "desktop/photos_ui/grid/selection_title.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
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
  grid._place.setStartsAtEnd(grid._contents.startsAtEnd);
  bridge::send<void, "setTitle:">(made.get(), NSString::make(grid._contents.title));
  useLargeTitle(made, grid._contents.hasLargeTitle);
  return made;
}

void PUPhotosGridViewController::load() {
  self().view();
  if (_isStale) refresh();
}

void PUPhotosGridViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  const bridge::UIView view = self().view();
  view.setBackgroundColor(bridge::UIColor::whiteColor());
  _grid.make(me(), view.bounds(), _contents.hasHeaders ? GridHeader::height : 0);
  view.addSubview(_grid.view());
  _selection.addRecognizer(me(), bridge::selector<"_handleSwipeSelectionGesture:">());
  updateSelectButton();
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
  const auto place = _measuredWidth > 0 ? _place.anchor() : std::nullopt;
  bridge::send<void, "updateLayoutMetrics">(self());
  if (place) _place.restore(*place);
}

void PUPhotosGridViewController::viewDidLayoutSubviews() {
  super<void, "viewDidLayoutSubviews">();
  _place.stayAtEnd();
}

void PUPhotosGridViewController::updateLayoutMetrics() {
  _measuredWidth = self().view().bounds().size.width;
  const auto [columns, itemSize] =
      gridMetrics(_contents, _measuredWidth, layout().interItemSpacing(), uikit::screen().scale);
  layout().setColumnsPerRow(columns);
  bridge::send<void, "setItemSize:">(layout().self(), itemSize);
}

void PUPhotosGridViewController::refresh() {
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
void PUPhotosGridViewController::libraryChanged(const library::LibraryChange& change) {
  const bool areItemsChanged = !change.inserted.empty() || !change.removed.empty() ||
                               !change.updated.empty() || change.areAlbumsChanged;
  if (areItemsChanged) _isStale = true;
  if (!collectionView() || !uikit::UIView::of(collectionView()).window()) return;
  if (areItemsChanged) {
    refresh();
    bridge::send<void, "libraryWasShown">(self());
  } else {
    updateMessage();
  }
}

void PUPhotosGridViewController::updateMessage() {
  if (list()->isEmpty() != static_cast<bool>(_message)) {
    _message = list()->isEmpty() ? MessageView::make() : bridge::Owned<bridge::UIView>();
    bridge::send<void, "setBackgroundView:">(collectionView(), _message.get());
  }
  if (_message) showWhyEmpty(_message);
}

void PUPhotosGridViewController::open(std::size_t index, bool animated) {
  const auto shown = PUOneUpViewController::make(list(), index, Presentation::ordinary);
  self().navigationController().push(
      shown, animated ? bridge::UIViewController::animated : bridge::UIViewController::immediately);
}

NSInteger PUPhotosGridViewController::numberOfSections(bridge::UICollectionView) const {
  return _grid.sectionCount();
}

NSInteger PUPhotosGridViewController::numberOfItems(bridge::UICollectionView,
                                                    NSInteger section) const {
  return _grid.itemCount(section);
}

bridge::UIView PUPhotosGridViewController::cellForItem(bridge::UICollectionView view,
                                                       bridge::NSIndexPath path) {
  return _grid.cell(view, path);
}

bridge::UIView PUPhotosGridViewController::supplementaryView(bridge::UICollectionView view,
                                                             bridge::NSString kind,
                                                             bridge::NSIndexPath path) {
  return _grid.title(view, kind, path);
}

void PUPhotosGridViewController::didEndDisplaying(bridge::UICollectionView, bridge::UIView cell,
                                                  bridge::NSIndexPath) {
  if (bridge::isKindOf(cell, PUPhotosGridCell::classObject()))
    PUPhotosGridCell::of(cell).content().stopLoading();
}

void PUPhotosGridViewController::didSelect(bridge::UICollectionView view,
                                           bridge::NSIndexPath path) {
  if (isEditing()) return updateTitle();
  bridge::send<void, "deselectItemAtIndexPath:animated:">(view, path, false);
  if (const auto index = _grid.indexOf(path)) open(*index, true);
}

void PUPhotosGridViewController::didDeselect(bridge::UICollectionView, bridge::NSIndexPath) {
  updateTitle();
}

void PUPhotosGridViewController::didScroll(bridge::UIView) {
  _place.scrolled();
}

bool PUPhotosGridViewController::shouldBegin(bridge::UIGestureRecognizer recognizer) const {
  return _selection.shouldBegin(recognizer);
}

// The title tells how many there are once the finger has moved on.
void PUPhotosGridViewController::handleSwipeSelection(bridge::UIGestureRecognizer recognizer) {
  if (_selection.follow(recognizer)) updateTitle();
}

bridge::PHAsset PUPhotosGridViewController::assetAt(bridge::NSIndexPath path) const {
  const auto item = _grid.itemAt(path);
  return item && host().library ? faces::PHAsset::make(*host().library, item) : bridge::PHAsset();
}

bool PUPhotosGridViewController::isEditing() const {
  return uikit::UIViewController::of(self()).isEditing();
}

void PUPhotosGridViewController::setEditing(bool editing, bool animated) {
  super<void, "setEditing:animated:">(editing, animated);
  self().view();
  _selection.setOn(editing);
  updateSelectButton();
  updateTitle();
}

void PUPhotosGridViewController::beginSelecting(bridge::Object) {
  bridge::send<void, "setEditing:animated:">(self(), true, true);
}

void PUPhotosGridViewController::endSelecting(bridge::Object) {
  bridge::send<void, "setEditing:animated:">(self(), false, true);
}

void PUPhotosGridViewController::updateSelectButton() {
  const bool isUseful = _contents.allowsSelecting && !list()->isEmpty();
  showSelectButton(self(), isEditing() ? SelectButton::cancel
                           : isUseful  ? SelectButton::select
                                       : SelectButton::none);
}

void PUPhotosGridViewController::updateTitle() {
  self().navigationItem().setTitle(isEditing() ? me().localizedSelectionTitle()
                                               : NSString::make(_contents.title));
}

bridge::NSArray PUPhotosGridViewController::selectedAssets() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  if (host().library)
    for (const auto& item : _selection.items())
      all->add(faces::PHAsset::make(*host().library, item));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

NSString PUPhotosGridViewController::localizedSelectionTitle() const {
  return NSString::make(selectionTitle(_selection.items()));
}

}  // namespace desktop::photos_ui
