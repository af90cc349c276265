// SPDX-License-Identifier: MIT
//
// A table holds its parts together: it measures what its data source and delegate have, keeps cells
// for exactly the rows in sight and titles for the sections in sight, and knows which row is
// pressed, which is selected and which has its edit menu on show. Whatever changes its contents
// sends all cells back to the pool; the next layout measures and takes them out again, and only
// those that show nothing then leave the tree.
#include "desktop/uikit/lists/ui_table_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/scrolling/scroll_target.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

constexpr Seconds longPressTime = 0.5;

bridge::UITouch touchOf(bridge::NSSet touches) {
  return bridge::as<bridge::UITouch>(touches.anyObject());
}

// None for what is no scroll position.
std::optional<ShownAt> shownAt(NSInteger position) {
  switch (position) {
    case UITableView::none:
      return ShownAt::nearest;
    case UITableView::top:
      return ShownAt::start;
    case UITableView::middle:
      return ShownAt::middle;
    case UITableView::bottom:
      return ShownAt::end;
    default:
      return {};
  }
}

}  // namespace

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

bridge::UIView UITableView::initWithFrame(CGRect frame) {
  return bridge::send<bridge::UIView, "initWithFrame:style:">(self(), frame, NSInteger{plain});
}

bridge::UITableView UITableView::initWithFrameAndStyle(CGRect frame, NSInteger style) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  _style = style == grouped ? grouped : plain;
  self().setBackgroundColor(UIColor::make(isGrouped() ? colors::groupedBackground : colors::white));
  return bridge::UITableView(self().get());
}

void UITableView::setDataSource(bridge::NSObject source) {
  if (source == dataSource()) return;
  _dataSource.setObject(source);
  reloadData();
}

void UITableView::setDelegate(bridge::NSObject delegate) {
  if (delegate == UIScrollView::of(self()).delegate()) return;
  super<void, "setDelegate:">(delegate);
  reloadData();
}

void UITableView::setRowHeight(CGFloat height) {
  if (height == _heights.row) return;
  _heights.row = height;
  reloadData();
}

void UITableView::setSectionHeaderHeight(CGFloat height) {
  _heights.header = height;
  reloadData();
}

void UITableView::setSectionFooterHeight(CGFloat height) {
  _heights.footer = height;
  reloadData();
}

void UITableView::setSeparatorStyle(NSInteger style) {
  _separatorStyle = style;
  _separators.areShown = style != noSeparators;
  styleCells();
}

bridge::UIColor UITableView::separatorColor() const {
  return UIColor::make(_separators.color);
}

void UITableView::setSeparatorColor(bridge::UIColor color) {
  _separators.color = color ? UIColor::valueOf(color) : colors::separator;
  styleCells();
}

void UITableView::replaceEdgeView(bridge::Owned<bridge::UIView>& slot, bridge::UIView view) {
  if (slot.get() != view) slot->removeFromSuperview();
  slot = bridge::Owned<bridge::UIView>::retain(view);
  self().addSubview(view);
  remeasure();
}

// What there is, and where it lies.

void UITableView::reloadData() {
  for (const auto& [path, cell] : _cells.shown().takeAll()) recycle(cell, path);
  _titles.removeAll();
  release();
  _selected.reset();
  remeasure();
}

void UITableView::rowsChange(bridge::NSArray, NSInteger) {
  reloadData();
}

void UITableView::sectionsChange(bridge::Object, NSInteger) {
  reloadData();
}

void UITableView::remeasure() {
  _measuring.outdate();
  UIView::of(self()).setNeedsLayout();
}

const TableGeometry& UITableView::geometry() {
  const bool isNew = _measuring.renew([this] {
    const TableMeasuring table{.source = _dataSource,
                               .delegate = _delegate,
                               .heights = _heights,
                               .isGrouped = isGrouped(),
                               .hasHeaderView = static_cast<bool>(_headerView),
                               .width = UIView::of(self()).bounds().size.width};
    const auto sections = table.sections();
    _geometry = TableGeometry(sections, _headerView ? _headerView->bounds().size.height : 0);
  });
  if (isNew) followGeometry();
  return _geometry;
}

// Content that became shorter is not left behind.
void UITableView::followGeometry() {
  if (_selected && !_geometry.contains(*_selected)) _selected.reset();
  const CGFloat footer = _footerView ? _footerView->bounds().size.height : 0;
  const handles::UIScrollView scroll(self());
  scroll.setContentSize({UIView::of(self()).bounds().size.width, _geometry.bottom() + footer});
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = UIScrollView::of(self()).clamped(offset);
  if (offset.y > inside.y) scroll.setContentOffset({offset.x, inside.y});
}

CGRect UITableView::across(Band band) const {
  return {{0, band.top}, {UIView::of(self()).bounds().size.width, band.height}};
}

Band UITableView::inSight() const {
  const CGRect bounds = UIView::of(self()).bounds();
  return {bounds.origin.y, bounds.size.height};
}

CGRect UITableView::rectForRow(bridge::NSIndexPath path) {
  const auto at = itemPathOf(path);
  return at && geometry().contains(*at) ? across(geometry().row(*at)) : CGRect{};
}

bridge::NSIndexPath UITableView::indexPathForRowAt(CGPoint point) {
  const auto path = rowAt(point);
  return path ? indexPathOf(*path) : bridge::NSIndexPath();
}

std::optional<ItemPath> UITableView::rowAt(CGPoint point) {
  const CGFloat width = UIView::of(self()).bounds().size.width;
  if (!(point.x >= 0 && point.x < width)) return {};
  return geometry().rowAt(point.y);
}

void UITableView::scrollToRow(bridge::NSIndexPath path, NSInteger position, bool animated) {
  const auto at = itemPathOf(path);
  if (!at || !geometry().contains(*at)) return;
  const UIScrollView& scroll = UIScrollView::of(self());
  const EdgeInsets insets = scroll.adjustedContentInset();
  const Band row = _geometry.row(*at);
  const Band seen = inSight();
  CGPoint offset = scroll.contentOffset();
  if (const auto where = shownAt(position))
    offset.y = offsetShowing(row.top, row.height,
                             {seen.top, seen.height, insets.top, insets.bottom}, *where);
  bridge::send<void, "setContentOffset:animated:">(self(), scroll.clamped(offset), animated);
}

// Cells and titles come and go.

void UITableView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGFloat width = UIView::of(self()).bounds().size.width;
  if (std::exchange(_measuredWidth, width) != width) _measuring.outdate();
  geometry();
  placeEdgeViews();
  placeCells();
  placeTitles();
  _cells.settle(self());
}

void UITableView::didMoveToWindow() {
  super<void, "didMoveToWindow">();
  if (UIView::of(self()).window()) return;
  release();
  _menu.hide();
}

void UITableView::placeEdgeViews() {
  const CGFloat width = UIView::of(self()).bounds().size.width;
  if (_headerView) _headerView->setFrame({{0, 0}, {width, _headerView->bounds().size.height}});
  if (_footerView)
    _footerView->setFrame({{0, _geometry.bottom()}, {width, _footerView->bounds().size.height}});
}

void UITableView::placeCells() {
  std::map<ItemPath, CGRect> wanted;
  for (const ItemPath path : _geometry.rowsIn(inSight()))
    wanted[path] = across(_geometry.row(path));
  _cells.shown().follow(
      wanted, Inquiry::Pass(_measuring),
      [this](ItemPath path, const TableCells::Cell& cell) { recycle(cell, path); },
      [](const TableCells::Cell& cell, CGRect frame) { cell->setFrame(frame); },
      [this](ItemPath path, CGRect frame) { showRow(path, frame); });
}

void UITableView::showRow(ItemPath path, CGRect frame) {
  const bridge::AutoreleasePool pool;
  const Inquiry::Pass pass(_measuring);
  const auto cell = _dataSource.cell(path);
  if (!pass.holds()) return;
  _cells.show(path, cell);
  animator().withoutAnimation([&] {
    cell->setFrame(frame);
    styleCell(cell, path);
    bridge::send<void, "setSelected:animated:">(cell, _selected == path, false);
    bridge::send<void, "setHighlighted:animated:">(cell, _press.isOn(path), false);
    TableCells::insert(cell, UIView::of(self()));
    UIView::of(cell.get()).setNeedsLayout();
  });
  _delegate.willDisplay(cell, path);
}

void UITableView::recycle(bridge::UITableViewCell cell, ItemPath path) {
  const bridge::AutoreleasePool pool;
  _cells.putAway(cell);
  _delegate.didEndDisplaying(cell, path);
}

void UITableView::styleCell(bridge::UITableViewCell cell, ItemPath path) const {
  UITableViewCell::of(cell.get())
      .setSeparators(_separators.ofRow(path.item, _geometry.rows(path.section), isGrouped()));
}

void UITableView::styleCells() const {
  for (const auto& [path, cell] : cells()) styleCell(cell, path);
}

void UITableView::placeTitles() {
  const CGFloat sightTop = inSight().top + UIScrollView::of(self()).adjustedContentInset().top;
  std::map<TitlePlace, CGRect> wanted;
  for (const auto& [place, band] : titlesIn(_geometry, inSight(), sightTop, isGrouped()))
    wanted[place] = across(band);
  _titles.follow(wanted, Inquiry::Pass(_measuring), self(),
                 [this](TitlePlace place) { return titleView(place); });
}

// The delegate's own view, or one that shows the title; nil where there is neither.
bridge::UIView UITableView::titleView(TitlePlace place) const {
  if (const bridge::UIView own = _delegate.titleView(place)) return own;
  const bridge::NSString title = _dataSource.title(place);
  if (title.length() == 0) return {};
  return UITableViewHeaderFooterView::make(title, place.place, isGrouped());
}

bridge::UITableViewCell UITableView::dequeue(bridge::NSString identifier) {
  return _cells.dequeue(identifier);
}

bridge::UITableViewCell UITableView::dequeueFor(bridge::NSString identifier, bridge::NSIndexPath) {
  return _cells.dequeue(identifier);
}

void UITableView::registerCellClass(Class aClass, bridge::NSString identifier) {
  _cells.registerClass(identifier, aClass);
}

bridge::UITableViewCell UITableView::cellForRow(bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at ? _cells.at(*at) : bridge::UITableViewCell();
}

bridge::NSIndexPath UITableView::indexPathForCell(bridge::UITableViewCell cell) const {
  const auto path = _cells.shown().keyOf(cell);
  return path ? indexPathOf(*path) : bridge::NSIndexPath();
}

// Touch: a finger presses a row, selects it when it leaves it there, and brings up the row's edit
// menu when it stays.

void UITableView::touchesBegan(bridge::NSSet touches, bridge::UIEvent) {
  release();
  const bridge::UITouch touch = touchOf(touches);
  const auto path = rowAt(touch.locationIn(self()));
  if (!touch || !path || !_allowsSelection) return;
  if (_delegate.shouldHighlight(*path)) press(*path, UITouch::of(touch.get()).timestamp());
}

void UITableView::press(ItemPath path, Seconds since) {
  _press.begin(path);
  highlight(path, true);
  _longPress.callAfter(since + longPressTime - scheduler().now(), [this] { pressWasLong(); });
}

// Ends a press without any effect.
void UITableView::release() {
  _longPress.cancel();
  if (const auto pressed = _press.end()) highlight(*pressed, false);
}

void UITableView::touchesMoved(bridge::NSSet touches, bridge::UIEvent) {
  if (_press.hasLeft([&] { return rowAt(touchOf(touches).locationIn(self())); })) release();
}

void UITableView::touchesEnded(bridge::NSSet touches, bridge::UIEvent) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto tapped = _press.tappedBy([&] { return rowAt(touchOf(touches).locationIn(self())); });
  release();
  if (tapped) select(*tapped);
}

void UITableView::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  release();
}

void UITableView::pressWasLong() {
  const bridge::AutoreleasePool pool;
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto path = _press.path();
  if (!path || !_delegate.shouldShowMenu(*path)) return;
  release();
  showMenu(*path);
}

void UITableView::showMenu(ItemPath path) {
  const auto perform = [this, path](SEL action) {
    const auto kept = bridge::Owned<bridge::UIView>::retain(self());
    if (geometry().contains(path)) _delegate.perform(action, path);
  };
  auto commands = RowMenu::commands(
      [this, path](SEL action) { return _delegate.canPerform(action, path); }, perform);
  if (commands.empty() || !_geometry.contains(path)) return;
  _menu.show(std::move(commands),
             apply(UIView::of(self()).toScreen(), across(_geometry.row(path))));
}

// Selection.

void UITableView::select(ItemPath path) {
  const auto instead = _delegate.willSelect(path);
  if (!instead || !geometry().contains(*instead)) return;
  const auto before = _selected;
  setSelected(instead, false);
  if (before && before != instead) _delegate.didDeselect(*before);
  _delegate.didSelect(*instead);
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
  for (const auto& changed : {before, path})
    if (const auto cell = changed ? _cells.at(*changed) : bridge::UITableViewCell())
      bridge::send<void, "setSelected:animated:">(cell, _selected == changed, animated);
}

void UITableView::highlight(ItemPath path, bool isHighlighted) const {
  if (const auto cell = _cells.at(path))
    bridge::send<void, "setHighlighted:animated:">(cell, isHighlighted, false);
}

}  // namespace desktop::uikit
