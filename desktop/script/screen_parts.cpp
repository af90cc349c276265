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

using bridge::send;

Json textOrNull(bridge::NSString text) {
  return text ? Json(text.utf8()) : Json();
}

// From the window's controller to what is presented last.
std::vector<bridge::UIViewController> presentationChain() {
  std::vector<bridge::UIViewController> chain;
  if (uikit::application().windows.empty()) return chain;
  auto controller = send<bridge::UIViewController, "rootViewController">(
      uikit::application().windows.front().get());
  while (controller) {
    chain.push_back(controller);
    controller = send<bridge::UIViewController, "presentedViewController">(controller);
  }
  return chain;
}

// What a container shows: the tab that is chosen, the top of a stack; nil for any other controller.
bridge::UIViewController shownIn(bridge::UIViewController controller) {
  if (isA(controller, "UITabBarController"))
    return send<bridge::UIViewController, "selectedViewController">(controller);
  if (isA(controller, "UINavigationController"))
    return send<bridge::UIViewController, "topViewController">(controller);
  return {};
}

// The navigation controller that shows in a controller: itself, or that of the tab on show.
bridge::UINavigationController navigationIn(bridge::UIViewController controller) {
  if (isA(controller, "UITabBarController")) controller = shownIn(controller);
  if (isA(controller, "UINavigationController"))
    return bridge::UINavigationController(controller.get());
  return {};
}

Json barItem(bridge::Object item) {
  Json json = {{"class", classNameOf(item)},
               {"title", textOrNull(send<bridge::NSString, "title">(item))},
               {"width", send<CGFloat, "width">(item)},
               {"tag", send<NSInteger, "tag">(item)}};
  const auto system = uikit::UIBarButtonItem::of(item).systemItem();
  json["systemItem"] = system ? Json(*system) : Json();
  if (const auto view = send<bridge::UIView, "customView">(item)) json["view"] = dumpView(view);
  return json;
}

Json barItems(bridge::NSArray items) {
  Json json = Json::array();
  for (NSUInteger index = 0; index < items.count(); ++index)
    json.push_back(barItem(items.at(index)));
  return json;
}

Json navigation(bridge::UINavigationController controller) {
  const auto top = send<bridge::UIViewController, "topViewController">(controller);
  const bridge::UINavigationItem item = top.navigationItem();
  const bridge::UINavigationBar bar = controller.navigationBar();
  return {{"title", textOrNull(send<bridge::NSString, "title">(item))},
          {"left", barItems(send<bridge::NSArray, "leftBarButtonItems">(item))},
          {"right", barItems(item.rightBarButtonItems())},
          {"barStyle", bar.barStyle()},
          {"tintColor", jsonOf(uikit::UIColor::valueOf(bar.tintColor()))}};
}

Json alert(bridge::UIViewController controller) {
  Json actions = Json::array();
  const auto all = send<bridge::NSArray, "actions">(controller);
  for (NSUInteger index = 0; index < all.count(); ++index)
    actions.push_back({{"title", textOrNull(send<bridge::NSString, "title">(all.at(index)))},
                       {"style", send<NSInteger, "style">(all.at(index))}});
  return {{"title", textOrNull(send<bridge::NSString, "title">(controller))},
          {"message", textOrNull(send<bridge::NSString, "message">(controller))},
          {"actions", actions}};
}

Json sheet(bridge::UIViewController controller) {
  Json items = Json::array();
  const bridge::NSArray all = uikit::UIActivityViewController::of(controller).items();
  for (NSUInteger index = 0; index < all.count(); ++index)
    items.push_back(bridge::NSObject(all.at(index).get()).description().utf8());
  return {{"items", items}};
}

Json menu() {
  const auto& shared = uikit::UIMenuController::shared();
  return shared.isVisible() ? Json(shared.titles()) : Json();
}

}  // namespace

void addControllers(Json& screen) {
  screen["presentation"] = Json::array();
  screen["navigation"] = screen["alert"] = screen["sheet"] = Json();
  for (const bridge::UIViewController controller : presentationChain()) {
    for (auto shown = controller; shown; shown = shownIn(shown))
      screen["presentation"].push_back(classNameOf(shown));
    if (const auto found = navigationIn(controller)) screen["navigation"] = navigation(found);
    if (isA(controller, "UIAlertController")) screen["alert"] = alert(controller);
    if (isA(controller, "UIActivityViewController")) screen["sheet"] = sheet(controller);
  }
  screen["menu"] = menu();
}

}  // namespace desktop::script
