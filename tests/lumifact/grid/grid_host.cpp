// SPDX-License-Identifier: MIT
#include "tests/lumifact/grid/grid_host.h"

#include <string_view>

#include "bridge/class_builder.h"
#include "lumifact/grid/visibility.h"
#include "lumifact/loader/hook_table.h"
#include "tests/bridge/victims.h"

namespace lumifact::host {
namespace {

using bridge::ClassBuilder;
using bridge::NSString;
using bridge::Object;
using bridge::Owned;
using bridge::UIView;
using victims::ClassMaker;

constexpr const char* bannerField = "_textBannerView";

class HostBanner : public bridge::Bound<HostBanner, UIView> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<HostBanner>("HostBanner").method<"text", &HostBanner::text>().build();
    return made;
  }

  Object text() const { return said; }

  Owned<Object> said;
};

void registerHelpers() {
  HostHelper::classObject();
  constexpr const char* helper = "PUPhotoViewContentHelper";
  ClassMaker("HelperOfToday", helper).field(bannerField, "@").field("__badgeView", "@").build();
  ClassMaker("HelperOfOldTimes", helper).field(bannerField, "@").field("_badgeView", "@").build();
  ClassMaker("HelperOfBothTimes", helper)
      .field(bannerField, "@")
      .field("_badgeView", "@")
      .field("__badgeView", "@")
      .build();
}

// What the host does of its own as one of its controllers comes and goes: "viewWillAppear:", and
// whether the extension takes either of the two to be on screen by then.
void comeOrGo(id, SEL command, BOOL animated) {
  std::string call = sel_getName(command);
  if (animated) call += " animated";
  if (isAlbumListVisible()) call += ", list on screen";
  if (isPanoramaVisible()) call += ", panorama on screen";
  gridCalls().push_back(call);
}

void registerControllers() {
  HostGrid::classObject();
  HostAlbum::classObject();
  HostZoomableGrid::classObject();
  ClassMaker("PUCloudSharedAlbumViewController", "PUPhotosAlbumViewController").build();
  ClassMaker("PUFullMomentsZoomLevelInfo").build();
  for (const char* name : {"PUAlbumListViewController", "PUPhotosPanoramaViewController"})
    ClassMaker(name, "UIViewController")
        .method("viewWillAppear:", &comeOrGo)
        .method("viewWillDisappear:", &comeOrGo)
        .build();
}

// Host methods are hooked as in life: by the rows of the table.
void applyRows() {
  for (const bridge::HookList rows : hookTable())
    if (!std::string_view(rows.front().className).starts_with("PUOneUp")) bridge::applyHooks(rows);
}

const char* classNameOf(HelperFields fields) {
  switch (fields) {
    case HelperFields::none:
      return "PUPhotoViewContentHelper";
    case HelperFields::today:
      return "HelperOfToday";
    case HelperFields::oldTimes:
      return "HelperOfOldTimes";
    case HelperFields::both:
      return "HelperOfBothTimes";
  }
  return "";
}

}  // namespace

void installGridHost() {
  static const bool installed = [] {
    registerHelpers();
    HostPhotoView::classObject();
    HostCell::classObject();
    HostLayout::classObject();
    registerControllers();
    applyRows();
    return true;
  }();
  static_cast<void>(installed);
}

std::vector<std::string>& gridCalls() {
  static auto& kept = *new std::vector<std::string>;
  return kept;
}

Class HostHelper::classObject() {
  static const Class made = ClassBuilder<HostHelper>("PUPhotoViewContentHelper")
                                .method<"contentView", &HostHelper::view>()
                                .method<"layoutSubviewsOfContentView", &HostHelper::layOut>()
                                .build();
  return made;
}

Owned<bridge::PUPhotoViewContentHelper> makeHelper(HelperFields fields) {
  auto made = bridge::makeNew<bridge::PUPhotoViewContentHelper>(objc_getClass(classNameOf(fields)));
  HostHelper::of(made.get()).contentView = bridge::makeView<UIView>({{0, 0}, {93, 93}});
  return made;
}

void setHelperField(Object helper, const char* field, Object view) {
  victims::setField(helper, field, view.get());
}

Owned<UIView> makeBanner(Object text) {
  auto made = bridge::makeView<UIView>({}, HostBanner::classObject());
  HostBanner::of(made.get()).said = Owned<Object>::retain(text);
  return made;
}

Class HostPhotoView::classObject() {
  static const Class made = ClassBuilder<HostPhotoView>("PUPhotoView")
                                .method<"contentHelper", &HostPhotoView::contentHelper>()
                                .method<"bringSubviewToFront:", &HostPhotoView::bringToFront>()
                                .build();
  return made;
}

Class HostCell::classObject() {
  static const Class made = ClassBuilder<HostCell>("PUPhotosGridCell")
                                .method<"initWithFrame:", &HostCell::initWithFrame>()
                                .method<"layoutSubviews", &HostCell::layoutSubviews>()
                                .method<"contentView", &HostCell::contentView>()
                                .method<"photoContentView", &HostCell::photoContentView>()
                                .build();
  return made;
}

UIView HostCell::initWithFrame(CGRect frame) {
  gridCalls().emplace_back("initWithFrame:");
  if (frame.size.width < 0) {
    Owned<UIView>::adopt(self()).reset();
    return {};
  }
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  const CGRect room = {{0, 0}, frame.size};
  content = bridge::makeView<UIView>(room);
  photo = bridge::makeView<UIView>(room, HostPhotoView::classObject());
  self().addSubview(content);
  content->addSubview(photo);
  return self();
}

Owned<bridge::PUPhotosGridCell> makeCell(CGRect frame) {
  return bridge::makeView<bridge::PUPhotosGridCell>(frame);
}

Class HostCollection::classObject() {
  static const Class made = ClassBuilder<HostCollection>("HostCollection")
                                .method<"numberOfItemsInSection:", &HostCollection::numberOfItems>()
                                .method<"indexPathForItemAtPoint:", &HostCollection::pathAt>()
                                .build();
  return made;
}

HostGrid::HostGrid(id self)
    : Bound(self),
      collection(bridge::makeView<UIView>({{0, 0}, {375, 667}}, HostCollection::classObject())),
      stockTitle(Owned<NSString>::retain(NSString::make("2 Photos Selected"))) {
  HostCollection::of(collection->get()).pathAtPoint =
      Owned<bridge::NSIndexPath>::retain(pathOf(0, 0));
}

Class HostGrid::classObject() {
  static const Class made =
      ClassBuilder<HostGrid>("PUPhotosGridViewController")
          .method<"viewDidLoad", &HostGrid::viewDidLoad>()
          .method<"collectionView", &HostGrid::collectionView>()
          .method<"assetAtIndexPath:", &HostGrid::assetAt>()
          .method<"isAnyAssetSelected", &HostGrid::isAnyAssetSelected>()
          .method<"selectedAssets", &HostGrid::selectedAssets>()
          .method<"localizedSelectionTitle", &HostGrid::selectionTitle>()
          .method<"setEditing:animated:", &HostGrid::setEditing>()
          .method<"_handleSwipeSelectionGesture:", &HostGrid::handleSwipe>()
          .method<"collectionView:cellForItemAtIndexPath:", &HostGrid::cellForItem>()
          .build();
  return made;
}

NSString HostGrid::selectionTitle() const {
  gridCalls().emplace_back("localizedSelectionTitle");
  return stockTitle;
}

void HostGrid::setEditing(bool editing, bool animated) {
  gridCalls().push_back(std::string("setEditing:animated: ") + (editing ? "on" : "off") +
                        (animated ? " animated" : ""));
  if (atWork) atWork();
}

void HostGrid::handleSwipe(Object) {
  gridCalls().emplace_back("_handleSwipeSelectionGesture:");
  if (atWork) atWork();
}

Owned<bridge::PUPhotosGridViewController> makeGrid(const char* className) {
  return bridge::makeNew<bridge::PUPhotosGridViewController>(objc_getClass(className));
}

Class HostAlbum::classObject() {
  static const Class made = ClassBuilder<HostAlbum>("PUPhotosAlbumViewController")
                                .method<"mainGridLayout", &HostAlbum::mainGridLayout>()
                                .method<"updateLayoutMetrics", &HostAlbum::updateLayoutMetrics>()
                                .method<"updateGlobalFooter", &HostAlbum::updateGlobalFooter>()
                                .build();
  return made;
}

Class HostZoomableGrid::classObject() {
  static const Class made = ClassBuilder<HostZoomableGrid>("PUZoomableGridViewController")
                                .method<"_zoomLevelInfo", &HostZoomableGrid::zoomLevelInfo>()
                                .build();
  return made;
}

Class HostLayout::classObject() {
  static const Class made = ClassBuilder<HostLayout>("PUSectionedGridLayout")
                                .method<"delegate", &HostLayout::delegate>()
                                .method<"columnsPerRow", &HostLayout::columnsPerRow>()
                                .method<"interItemSpacing", &HostLayout::interItemSpacing>()
                                .method<"invalidateLayout", &HostLayout::invalidateLayout>()
                                .method<"layoutItemSizeForColumn:", &HostLayout::sizeForColumn>()
                                .method<"setItemSize:", &HostLayout::setItemSize>()
                                .build();
  return made;
}

Class HostGesture::classObject() {
  static const Class made = ClassBuilder<HostGesture>("HostGesture")
                                .method<"state", &HostGesture::state>()
                                .method<"locationInView:", &HostGesture::locationIn>()
                                .build();
  return made;
}

bridge::UIGestureRecognizer gestureIn(bridge::UIGestureRecognizer::State state, UIView view) {
  auto made = bridge::makeNew<bridge::UIGestureRecognizer>(HostGesture::classObject());
  HostGesture::of(made.get()).step = state;
  HostGesture::of(made.get()).view = view;
  return made.autorelease();
}

bridge::NSIndexPath pathOf(NSInteger section, NSInteger row) {
  return bridge::send<bridge::NSIndexPath, "indexPathForRow:inSection:">(
      bridge::NSIndexPath::classObject(), row, section);
}

}  // namespace lumifact::host
