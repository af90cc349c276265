// SPDX-License-Identifier: MIT
//
// The class and what of a table is set. Its measures are in ui_table_view_geometry.cpp, the coming
// and going of cells in ui_table_view_cells.cpp, touch and selection in
// ui_table_view_selection.cpp.
#include "desktop/uikit/lists/ui_table_view.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::uikit {

Class UITableView::classObject() {
  static const Class made =
      bridge::ClassBuilder<UITableView>("UITableView")
          .method<"initWithFrame:", &UITableView::initWithFrame>()
          .method<"initWithFrame:style:", &UITableView::initWithFrameAndStyle>()
          .method<"style", &UITableView::style>()
          .method<"dataSource", &UITableView::dataSource>()
          .method<"setDataSource:", &UITableView::setDataSource>()
          .method<"setDelegate:", &UITableView::setDelegate>()
          .method<"rowHeight", &UITableView::rowHeight>()
          .method<"setRowHeight:", &UITableView::setRowHeight>()
          .method<"sectionHeaderHeight", &UITableView::sectionHeaderHeight>()
          .method<"setSectionHeaderHeight:", &UITableView::setSectionHeaderHeight>()
          .method<"sectionFooterHeight", &UITableView::sectionFooterHeight>()
          .method<"setSectionFooterHeight:", &UITableView::setSectionFooterHeight>()
          .method<"separatorStyle", &UITableView::separatorStyle>()
          .method<"setSeparatorStyle:", &UITableView::setSeparatorStyle>()
          .method<"separatorColor", &UITableView::separatorColor>()
          .method<"setSeparatorColor:", &UITableView::setSeparatorColor>()
          .method<"allowsSelection", &UITableView::allowsSelection>()
          .method<"setAllowsSelection:", &UITableView::setAllowsSelection>()
          .method<"tableHeaderView", &UITableView::tableHeaderView>()
          .method<"setTableHeaderView:", &UITableView::setTableHeaderView>()
          .method<"tableFooterView", &UITableView::tableFooterView>()
          .method<"setTableFooterView:", &UITableView::setTableFooterView>()
          .method<"reloadData", &UITableView::reloadData>()
          .method<"numberOfSections", &UITableView::numberOfSections>()
          .method<"numberOfRowsInSection:", &UITableView::numberOfRows>()
          .method<"rectForSection:", &UITableView::rectForSection>()
          .method<"rectForHeaderInSection:", &UITableView::rectForHeader>()
          .method<"rectForFooterInSection:", &UITableView::rectForFooter>()
          .method<"rectForRowAtIndexPath:", &UITableView::rectForRow>()
          .method<"indexPathForRowAtPoint:", &UITableView::indexPathForRowAt>()
          .method<"indexPathForCell:", &UITableView::indexPathForCell>()
          .method<"cellForRowAtIndexPath:", &UITableView::cellForRow>()
          .method<"visibleCells", &UITableView::visibleCells>()
          .method<"indexPathsForVisibleRows", &UITableView::visibleRows>()
          .method<"scrollToRowAtIndexPath:atScrollPosition:animated:", &UITableView::scrollToRow>()
          .method<"layoutSubviews", &UITableView::layoutSubviews>()
          .method<"didMoveToWindow", &UITableView::didMoveToWindow>()
          .method<"dequeueReusableCellWithIdentifier:", &UITableView::dequeue>()
          .method<"dequeueReusableCellWithIdentifier:forIndexPath:", &UITableView::dequeueFor>()
          .method<"registerClass:forCellReuseIdentifier:", &UITableView::registerCellClass>()
          .method<"insertRowsAtIndexPaths:withRowAnimation:", &UITableView::rowsChange>()
          .method<"deleteRowsAtIndexPaths:withRowAnimation:", &UITableView::rowsChange>()
          .method<"reloadRowsAtIndexPaths:withRowAnimation:", &UITableView::rowsChange>()
          .method<"reloadSections:withRowAnimation:", &UITableView::sectionsChange>()
          .method<"touchesBegan:withEvent:", &UITableView::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UITableView::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UITableView::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UITableView::touchesCancelled>()
          .method<"indexPathForSelectedRow", &UITableView::indexPathForSelectedRow>()
          .method<"selectRowAtIndexPath:animated:scrollPosition:", &UITableView::selectRow>()
          .method<"deselectRowAtIndexPath:animated:", &UITableView::deselectRow>()
          .build();
  return made;
}

UITableView::~UITableView() {
  if (_longPress) scheduler().cancel(_longPress);
  if (_menuRow) UIMenuController::shared().hide();
}

bridge::UIView UITableView::initWithFrame(CGRect frame) {
  return bridge::send<bridge::UIView, "initWithFrame:style:">(self(), frame, NSInteger{plain});
}

bridge::UITableView UITableView::initWithFrameAndStyle(CGRect frame, NSInteger style) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  _style = style == grouped ? grouped : plain;
  self().setBackgroundColor(UIColor::make(isGrouped() ? colors::groupedBackground : colors::white));
  return me();
}

void UITableView::setDataSource(bridge::NSObject source) {
  if (source == _dataSource) return;
  _dataSource = source;
  reloadData();
}

void UITableView::setDelegate(bridge::NSObject delegate) {
  if (delegate == this->delegate()) return;
  super<void, "setDelegate:">(delegate);
  reloadData();
}

void UITableView::setRowHeight(CGFloat height) {
  if (height == _rowHeight) return;
  _rowHeight = height;
  reloadData();
}

void UITableView::setSectionHeaderHeight(CGFloat height) {
  _sectionHeaderHeight = height;
  reloadData();
}

void UITableView::setSectionFooterHeight(CGFloat height) {
  _sectionFooterHeight = height;
  reloadData();
}

void UITableView::setSeparatorStyle(NSInteger style) {
  _separatorStyle = style;
  for (const auto& [path, cell] : _cells) styleCell(cell, path);
}

bridge::UIColor UITableView::separatorColor() const {
  return UIColor::make(_separatorColor);
}

void UITableView::setSeparatorColor(bridge::UIColor color) {
  _separatorColor = color ? UIColor::valueOf(color) : colors::separator;
  for (const auto& [path, cell] : _cells) styleCell(cell, path);
}

void UITableView::setTableHeaderView(bridge::UIView view) {
  replaceEdgeView(_headerView, view);
}

void UITableView::setTableFooterView(bridge::UIView view) {
  replaceEdgeView(_footerView, view);
}

void UITableView::replaceEdgeView(bridge::Owned<bridge::UIView>& slot, bridge::UIView view) {
  if (slot.get() != view) slot->removeFromSuperview();
  slot = bridge::Owned<bridge::UIView>::retain(view);
  self().addSubview(view);
  remeasure();
}

}  // namespace desktop::uikit
