// SPDX-License-Identifier: MIT
//
// What a finger does to a table: it presses a row, selects it when it leaves it there, and brings
// up the row's edit menu when it stays.
#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {
namespace {

constexpr Seconds longPressTime = 0.5;

struct EditCommand {
  const char* title;
  const char* selector;
};
constexpr EditCommand editCommands[] = {{"Cut", "cut:"}, {"Copy", "copy:"}, {"Paste", "paste:"}};

bridge::UITouch touchOf(bridge::NSSet touches) {
  return bridge::as<bridge::UITouch>(touches.anyObject());
}

}  // namespace

void UITableView::touchesBegan(bridge::NSSet touches, bridge::UIEvent) {
  release();
  const bridge::UITouch touch = touchOf(touches);
  const auto path = rowAt(touch.locationIn(self()));
  if (!touch || !path || !_allowsSelection) return;
  const auto allowed = asked<bool, "tableView:shouldHighlightRowAtIndexPath:">(delegate(), self(),
                                                                               indexPathOf(*path));
  if (allowed.value_or(true)) press(*path, UITouch::of(touch.get()).timestamp());
}

void UITableView::press(ItemPath path, Seconds since) {
  _pressed = path;
  highlight(path, true);
  _longPress =
      scheduler().callAfter(since + longPressTime - scheduler().now(), [this] { pressWasLong(); });
}

// Ends a press without any effect.
void UITableView::release() {
  if (const auto timer = std::exchange(_longPress, 0)) scheduler().cancel(timer);
  if (const auto pressed = std::exchange(_pressed, std::nullopt)) highlight(*pressed, false);
}

void UITableView::touchesMoved(bridge::NSSet touches, bridge::UIEvent) {
  if (_pressed && rowAt(touchOf(touches).locationIn(self())) != _pressed) release();
}

void UITableView::touchesEnded(bridge::NSSet touches, bridge::UIEvent) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto pressed = _pressed;
  const bool isInside = pressed && rowAt(touchOf(touches).locationIn(self())) == pressed;
  release();
  if (isInside) select(*pressed);
}

void UITableView::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  release();
}

void UITableView::pressWasLong() {
  const bridge::AutoreleasePool pool;
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  _longPress = 0;
  if (!_pressed) return;
  const ItemPath path = *_pressed;
  const auto allowed = asked<bool, "tableView:shouldShowMenuForRowAtIndexPath:">(delegate(), self(),
                                                                                 indexPathOf(path));
  if (!allowed.value_or(false)) return;
  release();
  showMenu(path);
}

void UITableView::showMenu(ItemPath path) {
  UIMenuController& menu = UIMenuController::shared();
  std::vector<MenuCommand> commands;
  for (const EditCommand& command : editCommands) {
    const SEL action = sel_registerName(command.selector);
    const auto can = asked<bool, "tableView:canPerformAction:forRowAtIndexPath:withSender:">(
        delegate(), self(), action, indexPathOf(path), UIMenuController::sharedMenuController());
    if (can.value_or(false))
      commands.push_back({command.title, [this, action, path] { performCommand(action, path); }});
  }
  if (commands.empty() || !_geometry.contains(path)) return;
  _menuRow = path;
  const CGRect target = apply(UIView::of(self()).toScreen(), across(_geometry.row(path)));
  menu.show(std::move(commands), target, [this] { _menuRow.reset(); });
}

void UITableView::performCommand(SEL action, ItemPath path) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  if (!geometry().contains(path)) return;
  told<"tableView:performAction:forRowAtIndexPath:withSender:">(
      delegate(), self(), action, indexPathOf(path), UIMenuController::sharedMenuController());
}

void UITableView::select(ItemPath path) {
  if (bridge::respondsTo<"tableView:willSelectRowAtIndexPath:">(delegate())) {
    const auto instead =
        itemPathOf(bridge::send<bridge::Object, "tableView:willSelectRowAtIndexPath:">(
            delegate(), self(), indexPathOf(path)));
    if (!instead || !geometry().contains(*instead)) return;
    path = *instead;
  }
  const auto before = _selected;
  setSelected(path, false);
  if (before && *before != path)
    told<"tableView:didDeselectRowAtIndexPath:">(delegate(), self(), indexPathOf(*before));
  told<"tableView:didSelectRowAtIndexPath:">(delegate(), self(), indexPathOf(path));
}

bridge::NSIndexPath UITableView::indexPathForSelectedRow() const {
  return _selected ? indexPathOf(*_selected) : bridge::NSIndexPath();
}

// By code the delegate is not told. No path clears the selection.
void UITableView::selectRow(bridge::NSIndexPath path, bool animated, NSInteger position) {
  const auto at = itemPathOf(path);
  if (at && !geometry().contains(*at)) return;
  setSelected(at, animated);
  if (at && position != none) scrollToRow(path, position, animated);
}

void UITableView::deselectRow(bridge::NSIndexPath path, bool animated) {
  const auto at = itemPathOf(path);
  if (at && at == _selected) setSelected(std::nullopt, animated);
}

void UITableView::setSelected(std::optional<ItemPath> path, bool animated) {
  const auto before = std::exchange(_selected, path);
  for (const auto& changed : {before, path}) {
    const auto cell = changed ? _cells.find(*changed) : _cells.end();
    if (cell != _cells.end())
      bridge::send<void, "setSelected:animated:">(cell->second, _selected == changed, animated);
  }
}

void UITableView::highlight(ItemPath path, bool isHighlighted) const {
  const auto cell = _cells.find(path);
  if (cell != _cells.end())
    bridge::send<void, "setHighlighted:animated:">(cell->second, isHighlighted, false);
}

}  // namespace desktop::uikit
