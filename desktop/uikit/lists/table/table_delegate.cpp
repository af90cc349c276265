// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_delegate.h"

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

NSObject TableDelegate::delegate() const {
  return UIScrollViewState::of(_table).delegate();
}

bool TableDelegate::hasRowHeights() const {
  return respondsTo<"tableView:heightForRowAtIndexPath:">(delegate());
}

CGFloat TableDelegate::rowHeight(ItemPath path) const {
  return asked<CGFloat, "tableView:heightForRowAtIndexPath:">(delegate(), _table, indexPathOf(path))
      .value_or(0);
}

std::optional<CGFloat> TableDelegate::titleHeight(TitlePlace place) const {
  return place.isHeader() ? asked<CGFloat, "tableView:heightForHeaderInSection:">(
                                delegate(), _table, place.section)
                          : asked<CGFloat, "tableView:heightForFooterInSection:">(
                                delegate(), _table, place.section);
}

UIView TableDelegate::titleView(TitlePlace place) const {
  const auto view =
      place.isHeader()
          ? asked<Object, "tableView:viewForHeaderInSection:">(delegate(), _table, place.section)
          : asked<Object, "tableView:viewForFooterInSection:">(delegate(), _table, place.section);
  return as<UIView>(view.value_or(Object()));
}

void TableDelegate::willDisplay(UITableViewCell cell, ItemPath path) const {
  told<"tableView:willDisplayCell:forRowAtIndexPath:">(delegate(), _table, cell, indexPathOf(path));
}

void TableDelegate::didEndDisplaying(UITableViewCell cell, ItemPath path) const {
  told<"tableView:didEndDisplayingCell:forRowAtIndexPath:">(delegate(), _table, cell,
                                                            indexPathOf(path));
}

bool TableDelegate::shouldHighlight(ItemPath path) const {
  return asked<bool, "tableView:shouldHighlightRowAtIndexPath:">(delegate(), _table,
                                                                 indexPathOf(path))
      .value_or(true);
}

std::optional<ItemPath> TableDelegate::willSelect(ItemPath path) const {
  const auto instead =
      asked<Object, "tableView:willSelectRowAtIndexPath:">(delegate(), _table, indexPathOf(path));
  return instead ? itemPathOf(*instead) : path;
}

void TableDelegate::didSelect(ItemPath path) const {
  told<"tableView:didSelectRowAtIndexPath:">(delegate(), _table, indexPathOf(path));
}

void TableDelegate::didDeselect(ItemPath path) const {
  told<"tableView:didDeselectRowAtIndexPath:">(delegate(), _table, indexPathOf(path));
}

bool TableDelegate::shouldShowMenu(ItemPath path) const {
  return asked<bool, "tableView:shouldShowMenuForRowAtIndexPath:">(delegate(), _table,
                                                                   indexPathOf(path))
      .value_or(false);
}

bool TableDelegate::canPerform(SEL action, ItemPath path) const {
  return asked<bool, "tableView:canPerformAction:forRowAtIndexPath:withSender:">(
             delegate(), _table, action, indexPathOf(path),
             UIMenuControllerState::sharedMenuController())
      .value_or(false);
}

void TableDelegate::perform(SEL action, ItemPath path) const {
  told<"tableView:performAction:forRowAtIndexPath:withSender:">(
      delegate(), _table, action, indexPathOf(path), UIMenuControllerState::sharedMenuController());
}

}  // namespace desktop::uikit
