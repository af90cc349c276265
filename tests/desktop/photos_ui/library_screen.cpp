// SPDX-License-Identifier: MIT
#include "tests/desktop/photos_ui/library_screen.h"

#include <cstdlib>
#include <ctime>

#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/handles.h"
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
  uikit::UIMenuController::shared();  // made once, and kept, as the application is
  bridge::UIApplication::sharedApplication();
  return bridge::liveBoundObjects();
}

void addTexts(bridge::UIView view, std::vector<std::string>& all) {
  const uikit::UIView& state = uikit::UIView::of(view);
  if (state.isHidden()) return;
  if (const auto label = bridge::as<bridge::UILabel>(view))
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
  EXPECT_EQ(bridge::liveBoundObjects(), _objectsBefore) << "something outlives the screen";
}

void LibraryScreenTest::open() {
  const bridge::AutoreleasePool pool;
  auto opened = library::PhotoLibrary::open(folder.path(), foundation::DeviceRoot(_root.path()));
  if (opened) {
    library = *std::move(opened);
    library->onChange([](const library::LibraryChange& change) { tellLibraryObservers(change); });
    library->waitAndDeliver();
  } else {
    host().libraryProblem = folder.path() + ": " + opened.error().reason;
  }
  host().library = library.get();
  const auto window = bridge::makeView<uikit::handles::UIWindow>(uikit::rectOfSize(screen().size));
  window->setRootViewController(makeRootController().get());
  window->makeKeyAndVisible();
  settle();
}

void LibraryScreenTest::deliver() {
  const bridge::AutoreleasePool pool;
  library->waitAndDeliver();
  settle();
}

void LibraryScreenTest::settle(double seconds) {
  const bridge::AutoreleasePool pool;
  application().advance(seconds);
}

void LibraryScreenTest::tap(CGPoint point) {
  const bridge::AutoreleasePool pool;
  touches().down(point);
  settle(0.1);
  touches().up(point);
  settle();
}

CGPoint LibraryScreenTest::placeOf(long item) {
  const bridge::AutoreleasePool pool;
  const auto place = placeOfItem(item);
  EXPECT_TRUE(place) << item;
  return place ? *place : CGPoint{};
}

bridge::UIViewController LibraryScreenTest::top() {
  const uikit::handles::UIWindow window(application().windows.at(0)->get());
  const auto tabs = bridge::as<uikit::handles::UITabBarController>(window.rootViewController());
  return uikit::UINavigationController::of(tabs.selectedViewController()).top();
}

PUPhotosGridViewController& LibraryScreenTest::grid() {
  return PUPhotosGridViewController::of(top());
}

std::string LibraryScreenTest::title() {
  const bridge::AutoreleasePool pool;
  return bridge::send<bridge::NSString, "title">(top().navigationItem()).utf8();
}

std::vector<std::string> LibraryScreenTest::texts() {
  const bridge::AutoreleasePool pool;
  std::vector<std::string> all;
  addTexts(application().windows.at(0), all);
  return all;
}

std::vector<std::string> LibraryScreenTest::selected() const {
  const bridge::AutoreleasePool pool;
  std::vector<std::string> names;
  const auto assets = bridge::PUPhotosGridViewController(top().get()).selectedAssets();
  for (NSUInteger index = 0; index < assets.count(); ++index)
    names.push_back(folder.below(faces::PHAsset::itemOf(assets.at(index))->path));
  return names;
}

}  // namespace desktop::photos_ui
