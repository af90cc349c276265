// SPDX-License-Identifier: MIT
#include "tests/desktop/photos_ui/library_screen.h"

#include <cstdlib>
#include <ctime>

#include "bridge/uikit.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

using uikit::application;
using uikit::screen;
using uikit::touches;

namespace {

long registeredObjects() {
  uikit::registerUIKit();
  registerPhotosUI();
  uikit::resetApplication();
  uikit::UIMenuControllerState::shared();  // made once, and kept, as the application is
  UIApplication::sharedApplication();
  return liveBoundObjects();
}

void addTexts(UIView view, std::vector<std::string>& all) {
  const uikit::UIViewState& state = uikit::UIViewState::of(view);
  if (state.isHidden()) return;
  if (const auto label = as<UILabel>(view))
    if (label.text().length() > 0) all.push_back(label.text().utf8());
  for (const auto& each : state.subviews()) addTexts(each, all);
}

}  // namespace

LibraryScreenTest::LibraryScreenTest() : _objectsBefore(registeredObjects()) {
  ::setenv("TZ", "UTC", 1);
  ::tzset();
}

LibraryScreenTest::~LibraryScreenTest() {
  uikit::resetApplication();
  host() = {};
  _pool.reset();
  EXPECT_EQ(liveBoundObjects(), _objectsBefore) << "something outlives the screen";
}

void LibraryScreenTest::open() {
  const AutoreleasePool pool;
  auto opened = library::PhotoLibrary::open(folder.path(), foundation::DeviceRoot(_root.path()));
  if (opened) {
    library = *std::move(opened);
    library->onChange([](const library::LibraryChange& change) { tellLibraryObservers(change); });
    library->waitAndDeliver();
  } else {
    host().libraryProblem = folder.path() + ": " + opened.error().reason;
  }
  host().library = library.get();
  const auto window = bridge::makeView<UIWindow>(uikit::rectOfSize(screen().size));
  window->setRootViewController(makeRootController().get());
  window->makeKeyAndVisible();
  settle();
}

void LibraryScreenTest::deliver() {
  const AutoreleasePool pool;
  library->waitAndDeliver();
  settle();
}

void LibraryScreenTest::settle(double seconds) {
  const AutoreleasePool pool;
  application().advance(seconds);
}

void LibraryScreenTest::tap(CGPoint point) {
  const AutoreleasePool pool;
  touches().down(point);
  settle(0.1);
  touches().up(point);
  settle();
}

CGPoint LibraryScreenTest::placeOf(long item) {
  const AutoreleasePool pool;
  const auto place = placeOfItem(item);
  EXPECT_TRUE(place) << item;
  return place ? *place : CGPoint{};
}

UIViewController LibraryScreenTest::top() {
  const UIWindow window(application().windows.at(0)->get());
  const auto tabs = as<UITabBarController>(window.rootViewController());
  return uikit::UINavigationControllerState::of(tabs.selectedViewController()).top();
}

PUPhotosGridViewControllerState& LibraryScreenTest::grid() {
  return PUPhotosGridViewControllerState::of(top());
}

std::string LibraryScreenTest::title() {
  const AutoreleasePool pool;
  return send<NSString, "title">(top().navigationItem()).utf8();
}

std::vector<std::string> LibraryScreenTest::texts() {
  const AutoreleasePool pool;
  std::vector<std::string> all;
  addTexts(application().windows.at(0), all);
  return all;
}

std::vector<std::string> LibraryScreenTest::selected() const {
  const AutoreleasePool pool;
  std::vector<std::string> names;
  const auto assets = PUPhotosGridViewController(top().get()).selectedAssets();
  for (NSUInteger index = 0; index < assets.count(); ++index)
    names.push_back(folder.below(faces::PHAssetState::itemOf(assets.at(index))->path));
  return names;
}

}  // namespace desktop::photos_ui
