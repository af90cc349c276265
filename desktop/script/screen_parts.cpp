// SPDX-License-Identifier: MIT
#include "desktop/script/screen_parts.h"

#include "desktop/script/node_parts.h"
#include "desktop/script/view_dump.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/controllers/ui_activity_view_controller.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::script {
namespace {

Json textOrNull(NSString text) {
  return text ? Json(text.utf8()) : Json();
}

// From the window's controller to what is presented last.
std::vector<UIViewController> presentationChain() {
  std::vector<UIViewController> chain;
  if (uikit::application().windows.empty()) return chain;
  auto controller = UIWindow(uikit::application().windows.front()->get()).rootViewController();
  while (controller) {
    chain.push_back(controller);
    controller = controller.presentedViewController();
  }
  return chain;
}

// What a container shows: the tab that is chosen, the top of a stack; nil for any other controller.
UIViewController shownIn(UIViewController controller) {
  if (isA(controller, "UITabBarController"))
    return UITabBarController(controller.get()).selectedViewController();
  if (isA(controller, "UINavigationController"))
    return UINavigationController(controller.get()).topViewController();
  return {};
}

// The navigation controller that shows in a controller: itself, or that of the tab on show.
UINavigationController navigationIn(UIViewController controller) {
  if (isA(controller, "UITabBarController")) controller = shownIn(controller);
  if (isA(controller, "UINavigationController")) return UINavigationController(controller.get());
  return {};
}

Json barItem(Object item) {
  Json json = {{"class", classNameOf(item)},
               {"title", textOrNull(UIBarButtonItem(item.get()).title())},
               {"width", UIBarButtonItem(item.get()).width()},
               {"tag", UIBarButtonItem(item.get()).tag()}};
  const auto system = uikit::UIBarButtonItemState::of(item).systemItem();
  json["systemItem"] = system ? Json(*system) : Json();
  if (const auto view = UIBarButtonItem(item.get()).customView()) json["view"] = dumpView(view);
  return json;
}

Json barItems(NSArray items) {
  Json json = Json::array();
  for (NSUInteger index = 0; index < items.count(); ++index)
    json.push_back(barItem(items.at(index)));
  return json;
}

Json navigation(UINavigationController controller) {
  const auto top = controller.topViewController();
  const UINavigationItem item = top.navigationItem();
  const UINavigationBar bar = controller.navigationBar();
  return {{"title", textOrNull(item.title())},
          {"left", barItems(item.leftBarButtonItems())},
          {"right", barItems(item.rightBarButtonItems())},
          {"barStyle", bar.barStyle()},
          {"tintColor", jsonOf(uikit::UIColorState::valueOf(bar.tintColor()))}};
}

Json alert(UIViewController controller) {
  Json actions = Json::array();
  const auto all = UIAlertController(controller.get()).actions();
  for (NSUInteger index = 0; index < all.count(); ++index)
    actions.push_back({{"title", textOrNull(UIAlertAction(all.at(index).get()).title())},
                       {"style", UIAlertAction(all.at(index).get()).style()}});
  return {{"title", textOrNull(controller.title())},
          {"message", textOrNull(UIAlertController(controller.get()).message())},
          {"actions", actions}};
}

Json sheet(UIViewController controller) {
  Json items = Json::array();
  const NSArray all = uikit::UIActivityViewControllerState::of(controller).items();
  for (NSUInteger index = 0; index < all.count(); ++index)
    items.push_back(NSObject(all.at(index).get()).description().utf8());
  return {{"items", items}};
}

Json menu() {
  const auto& shared = uikit::UIMenuControllerState::shared();
  return shared.isVisible() ? Json(shared.titles()) : Json();
}

}  // namespace

void addControllers(Json& screen) {
  screen["presentation"] = Json::array();
  screen["navigation"] = screen["alert"] = screen["sheet"] = Json();
  for (const UIViewController controller : presentationChain()) {
    for (auto shown = controller; shown; shown = shownIn(shown))
      screen["presentation"].push_back(classNameOf(shown));
    if (const auto found = navigationIn(controller)) screen["navigation"] = navigation(found);
    if (isA(controller, "UIAlertController")) screen["alert"] = alert(controller);
    if (isA(controller, "UIActivityViewController")) screen["sheet"] = sheet(controller);
  }
  screen["menu"] = menu();
}

}  // namespace desktop::script
