// SPDX-License-Identifier: MIT
//
// All of it goes through the controllers on show, as far as a user's finger could; only one-step
// ways (an album by its title) are straight.
#include "desktop/photos_ui/navigation/navigation.h"

#include <algorithm>

#include "bridge/uikit.h"
#include "desktop/photos_ui/albums/album_controllers.h"
#include "desktop/photos_ui/albums/pu_album_list_view_controller.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/pu_zoomable_grid_view_controller.h"
#include "desktop/photos_ui/navigation/way_back.h"
#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"
#include "desktop/photos_ui/settings/settings_screen.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

using uikit::application;
using uikit::touches;

namespace {

enum Tab : NSUInteger { photosTab, albumsTab };

Owned<UINavigationController> makeTab(NSArray controllers, const char* title,
                                      uikit::UITabBarItem::SystemPicture picture) {
  auto made = makeNew<UINavigationController>();
  made->navigationBar().setPrefersLargeTitles(true);
  made->setControllers(controllers);
  const auto item = uikit::UITabBarItem::make(NSString::make(title), {}, picture);
  made->setTabBarItem(item);
  return made;
}

UITabBarController tabs() {
  if (application().windows.empty()) return {};
  const UIWindow window(application().windows.front()->get());
  return as<UITabBarController>(window.rootViewController());
}

UINavigationController navigation() {
  return as<UINavigationController>(tabs().selectedViewController());
}

UIViewController top() {
  const auto shown = navigation();
  return shown ? uikit::UINavigationControllerState::of(shown).top() : UIViewController();
}

UIViewController presented() {
  const auto root = tabs();
  return root.presentedViewController();
}

bool isOneUp(UIViewController controller) {
  return isKindOf(controller, PUOneUpViewController::classObject());
}

bool isGrid(UIViewController controller) {
  return isKindOf(controller, PUPhotosGridViewControllerState::classObject());
}

// The frames that what was asked for needs to be in place.
void prepare() {
  application().prepareFrame();
}

void dismissAll() {
  if (presented()) tabs().dismiss(UIViewController::immediately, {});
}

void popTo(UIViewController controller) {
  navigation().popTo(controller, false);
}

void showTab(Tab tab) {
  dismissAll();
  tabs().setSelectedIndex(tab);
  prepare();
}

library::ZoomLevel levelOf(UIViewController controller) {
  return PUZoomableGridViewControllerState::of(controller).level();
}

bool isLevel(UIViewController controller) {
  return isKindOf(controller, PUZoomableGridViewControllerState::classObject());
}

// Those between the one on show and a closer one, each above the wider ones.
void pushLevelsTo(library::ZoomLevel level) {
  const UIViewController shown = top();
  for (const auto each : zoomLevels)
    if (isLevel(shown) && each < levelOf(shown) && each >= level)
      navigation().push(PUZoomableGridViewControllerState::make(each),
                        UIViewController::immediately);
}

// The grid whose items are meant: on show, below a single photo, or of the moments.
PUPhotosGridViewControllerState* currentGrid() {
  if (!tabs()) return nullptr;
  const auto shown = navigation();
  if (shown) {
    const auto& stack = uikit::UINavigationControllerState::of(shown).stack();
    const auto grid = std::ranges::find_if(stack.rbegin(), stack.rend(),
                                           [](const auto& each) { return isGrid(each.get()); });
    if (grid != stack.rend()) return &PUPhotosGridViewControllerState::of(grid->get());
  }
  return nullptr;
}

model::Error noItem(std::size_t count, long index) {
  return {"there is no item " + std::to_string(index) + " among " + std::to_string(count)};
}

// The grid on screen by itself, with an item of it in sight.
model::Result<PUPhotosGridViewControllerState*> gridWithItem(long index) {
  if (!tabs()) return model::Error{"nothing is on show"};
  dismissAll();
  if (!currentGrid())
    if (const auto failed = openPhotos()) return *failed;
  PUPhotosGridViewControllerState* const grid = currentGrid();
  if (!grid) return model::Error{"no grid is on show"};
  popTo(UIViewController(grid->self().get()));
  prepare();
  grid->load();
  const std::size_t count = grid->list()->size();
  if (index < 0 || static_cast<std::size_t>(index) >= count) return noItem(count, index);
  grid->reveal(static_cast<std::size_t>(index));
  prepare();
  return grid;
}

UIViewController lastPresented() {
  UIViewController last = presented();
  while (const auto next = last.presentedViewController()) last = next;
  return last;
}

}  // namespace

Owned<UIViewController> makeRootController() {
  const auto levels = makeNew<NSMutableArray>();
  for (const auto level : zoomLevels)
    levels->add(PUZoomableGridViewControllerState::make(level).get());
  const auto photosController = makeTab(levels, "Photos", uikit::UITabBarItem::photos);
  const auto list = PUAlbumListViewController::make();
  const auto albumsController =
      makeTab(NSArray::of(list.get()), "Albums", uikit::UITabBarItem::albums);
  const auto made = makeNew<UITabBarController>();
  made->setViewControllers(NSArray::of(photosController.get(), albumsController.get()));
  return Owned<UIViewController>::retain(made.get());
}

Outcome setZoomLevel(std::string_view name) {
  const auto level = zoomLevelNamed(name);
  if (!level) return model::Error{"'" + std::string(name) + "' is no zoom level"};
  if (!tabs()) return model::Error{"nothing is on show"};
  showTab(photosTab);
  const auto stack = uikit::UINavigationControllerState::of(navigation()).stack();
  const auto known = std::ranges::find_if(stack, [&](const auto& each) {
    return isLevel(each.get()) && levelOf(each.get()) == *level;
  });
  if (known != stack.end()) {
    popTo(known->get());
  } else {
    pushLevelsTo(*level);
  }
  prepare();
  return std::nullopt;
}

Outcome openPhotos() {
  return setZoomLevel("moments");
}

Outcome openAlbums() {
  if (!tabs()) return model::Error{"nothing is on show"};
  showTab(albumsTab);
  navigation().popToRoot(false);
  prepare();
  return std::nullopt;
}

Outcome openAlbum(std::string_view title) {
  if (!host().library) return model::Error{"no library is open: " + host().libraryProblem};
  const auto& albums = host().library->albums();
  const auto found = std::ranges::find(albums, title, &library::Album::title);
  if (found == albums.end()) return model::Error{"there is no album '" + std::string(title) + "'"};
  const auto controller = makeAlbumController(*found);
  if (auto failed = openAlbums()) return failed;
  navigation().push(controller, UIViewController::immediately);
  prepare();
  return std::nullopt;
}

Outcome openSettings() {
  if (!tabs()) return model::Error{"nothing is on show"};
  const UIViewController last = lastPresented();
  if (isKindOf(last, SettingsScreen::classObject())) return std::nullopt;
  if (isKindOf(last, UIAlertController::classObject()))
    return model::Error{"an alert waits for its answer"};
  SettingsScreen::presentOver(last ? last : tabs(), UIViewController::animated);
  prepare();
  return std::nullopt;
}

Outcome openItem(long index) {
  const auto grid = gridWithItem(index);
  if (!grid) return grid.error();
  (*grid)->open(static_cast<std::size_t>(index), false);
  prepare();
  return std::nullopt;
}

Outcome peekItem(long index) {
  const auto grid = gridWithItem(index);
  if (!grid) return grid.error();
  tabs().present(PUOneUpViewControllerState::make((*grid)->list(), static_cast<std::size_t>(index),
                                                  Presentation::preview),
                 UIViewController::immediately, {});
  prepare();
  return std::nullopt;
}

Outcome peekAt(CGPoint onScreen) {
  const PUPhotosGridViewControllerState* const grid = presented() ? nullptr : currentGrid();
  if (!grid || top() != UIViewController(grid->self().get()))
    return model::Error{"no grid is on show"};
  const UICollectionView view = grid->collectionView();
  const CGPoint inGrid =
      uikit::apply(uikit::inverse(uikit::UIViewState::of(view).toScreen()), onScreen);
  const auto path = uikit::itemPathOf(view.indexPathForItemAt(inGrid));
  const auto index = path ? grid->list()->indexOf(*path) : std::nullopt;
  return index ? peekItem(static_cast<long>(*index)) : model::Error{"there is no photo"};
}

Outcome goBack() {
  if (!tabs()) return model::Error{"nothing is on show"};
  if (const auto last = lastPresented()) {
    leavePresented(last);
    return std::nullopt;
  }
  if (tapCoverAway(top())) return std::nullopt;
  if (top().isEditing()) {
    top().setEditing(false, true);
    return std::nullopt;
  }
  if (!navigation().pop(true)) return model::Error{"there is no way back from here"};
  return std::nullopt;
}

model::Result<CGPoint> placeOfItem(long index) {
  const auto grid = gridWithItem(index);
  if (!grid) return grid.error();
  const auto path = (*grid)->list()->pathOf(static_cast<std::size_t>(index));
  const CGPoint middle = uikit::middle((*grid)->layout().frameOfItem(*path));
  return uikit::apply(uikit::UIViewState::of((*grid)->collectionView()).toScreen(), middle);
}

Outcome selectItem(long index) {
  const auto place = placeOfItem(index);
  if (!place) return place.error();
  const UIViewController grid = top();
  if (!grid.isEditing()) grid.setEditing(true, false);
  prepare();
  touches().down(*place);
  touches().up(*place);
  prepare();
  return std::nullopt;
}

UIViewController oneUpOnShow() {
  if (!tabs()) return {};
  const UIViewController over = presented();
  const UIViewController shown = over ? over : top();
  return isOneUp(shown) ? shown : UIViewController();
}

}  // namespace desktop::photos_ui
