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
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/scrolling/scroll_target.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

constexpr Seconds longPressTime = 0.5;

UITouch touchOf(NSSet touches) {
  return as<UITouch>(touches.anyObject());
}

// None for what is no scroll position.
std::optional<ShownAt> shownAt(NSInteger position) {
  switch (position) {
    case UITableViewState::none:
      return ShownAt::nearest;
    case UITableViewState::top:
      return ShownAt::start;
    case UITableViewState::middle:
      return ShownAt::middle;
    case UITableViewState::bottom:
      return ShownAt::end;
    default:
      return {};
  }
}

}  // namespace

Class UITableViewState::classObject() {
  static const Class made =
      ClassBuilder<UITableViewState>("UITableView")
          .method<"initWithFrame:", &UITableViewState::initWithFrame>()
          .method<"initWithFrame:style:", &UITableViewState::initWithFrameAndStyle>()
          .method<"style", &UITableViewState::style>()
          .method<"dataSource", &UITableViewState::dataSource>()
          .method<"setDataSource:", &UITableViewState::setDataSource>()
          .method<"setDelegate:", &UITableViewState::setDelegate>()
          .method<"rowHeight", &UITableViewState::rowHeight>()
          .method<"setRowHeight:", &UITableViewState::setRowHeight>()
          .method<"sectionHeaderHeight", &UITableViewState::sectionHeaderHeight>()
          .method<"setSectionHeaderHeight:", &UITableViewState::setSectionHeaderHeight>()
          .method<"sectionFooterHeight", &UITableViewState::sectionFooterHeight>()
          .method<"setSectionFooterHeight:", &UITableViewState::setSectionFooterHeight>()
          .method<"separatorStyle", &UITableViewState::separatorStyle>()
          .method<"setSeparatorStyle:", &UITableViewState::setSeparatorStyle>()
          .method<"separatorColor", &UITableViewState::separatorColor>()
          .method<"setSeparatorColor:", &UITableViewState::setSeparatorColor>()
          .method<"allowsSelection", &UITableViewState::allowsSelection>()
          .method<"setAllowsSelection:", &UITableViewState::setAllowsSelection>()
          .method<"tableHeaderView", &UITableViewState::tableHeaderView>()
          .method<"setTableHeaderView:", &UITableViewState::setTableHeaderView>()
          .method<"tableFooterView", &UITableViewState::tableFooterView>()
          .method<"setTableFooterView:", &UITableViewState::setTableFooterView>()
          .method<"reloadData", &UITableViewState::reloadData>()
          .method<"numberOfSections", &UITableViewState::numberOfSections>()
          .method<"numberOfRowsInSection:", &UITableViewState::numberOfRows>()
          .method<"rectForSection:", &UITableViewState::rectForSection>()
          .method<"rectForHeaderInSection:", &UITableViewState::rectForHeader>()
          .method<"rectForFooterInSection:", &UITableViewState::rectForFooter>()
          .method<"rectForRowAtIndexPath:", &UITableViewState::rectForRow>()
          .method<"indexPathForRowAtPoint:", &UITableViewState::indexPathForRowAt>()
          .method<"indexPathForCell:", &UITableViewState::indexPathForCell>()
          .method<"cellForRowAtIndexPath:", &UITableViewState::cellForRow>()
          .method<"visibleCells", &UITableViewState::visibleCells>()
          .method<"indexPathsForVisibleRows", &UITableViewState::visibleRows>()
          .method<"scrollToRowAtIndexPath:atScrollPosition:animated:",
                  &UITableViewState::scrollToRow>()
          .method<"layoutSubviews", &UITableViewState::layoutSubviews>()
          .method<"didMoveToWindow", &UITableViewState::didMoveToWindow>()
          .method<"dequeueReusableCellWithIdentifier:", &UITableViewState::dequeue>()
          .method<"dequeueReusableCellWithIdentifier:forIndexPath:",
                  &UITableViewState::dequeueFor>()
          .method<"registerClass:forCellReuseIdentifier:", &UITableViewState::registerCellClass>()
          .method<"insertRowsAtIndexPaths:withRowAnimation:", &UITableViewState::rowsChange>()
          .method<"deleteRowsAtIndexPaths:withRowAnimation:", &UITableViewState::rowsChange>()
          .method<"reloadRowsAtIndexPaths:withRowAnimation:", &UITableViewState::rowsChange>()
          .method<"reloadSections:withRowAnimation:", &UITableViewState::sectionsChange>()
          .method<"touchesBegan:withEvent:", &UITableViewState::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UITableViewState::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UITableViewState::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UITableViewState::touchesCancelled>()
          .method<"indexPathForSelectedRow", &UITableViewState::indexPathForSelectedRow>()
          .method<"selectRowAtIndexPath:animated:scrollPosition:", &UITableViewState::selectRow>()
          .method<"deselectRowAtIndexPath:animated:", &UITableViewState::deselectRow>()
          .build();
  return made;
}

UIView UITableViewState::initWithFrame(CGRect frame) {
  return initWith<"initWithFrame:style:">(self(), frame, NSInteger{plain});
}

UITableView UITableViewState::initWithFrameAndStyle(CGRect frame, NSInteger style) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  _style = style == grouped ? grouped : plain;
  self().setBackgroundColor(
      UIColorState::make(isGrouped() ? colors::groupedBackground : colors::white));
  return UITableView(self().get());
}

void UITableViewState::setDataSource(NSObject source) {
  if (source == dataSource()) return;
  _dataSource.setObject(source);
  reloadData();
}

void UITableViewState::setDelegate(NSObject delegate) {
  if (delegate == UITableViewState::delegate()) return;
  super<void, "setDelegate:">(delegate);
  reloadData();
}

void UITableViewState::setRowHeight(CGFloat height) {
  if (height == _heights.row) return;
  _heights.row = height;
  reloadData();
}

void UITableViewState::setSectionHeaderHeight(CGFloat height) {
  _heights.header = height;
  reloadData();
}

void UITableViewState::setSectionFooterHeight(CGFloat height) {
  _heights.footer = height;
  reloadData();
}

void UITableViewState::setSeparatorStyle(NSInteger style) {
  _separatorStyle = style;
  _separators.areShown = style != noSeparators;
  styleCells();
}

UIColor UITableViewState::separatorColor() const {
  return UIColorState::make(_separators.color);
}

void UITableViewState::setSeparatorColor(UIColor color) {
  _separators.color = color ? UIColorState::valueOf(color) : colors::separator;
  styleCells();
}

void UITableViewState::replaceEdgeView(Owned<UIView>& slot, UIView view) {
  if (slot.get() != view) slot->removeFromSuperview();
  slot = Owned<UIView>::retain(view);
  self().addSubview(view);
  remeasure();
}

// What there is, and where it lies.

void UITableViewState::reloadData() {
  for (const auto& [path, cell] : _cells.shown().takeAll()) recycle(cell, path);
  _titles.removeAll();
  release();
  _selected.reset();
  remeasure();
}

// Rows that come and go do not travel: the table is read again.
void UITableViewState::rowsChange(NSArray, NSInteger) {
  reloadData();
}

void UITableViewState::sectionsChange(Object, NSInteger) {
  reloadData();
}

void UITableViewState::remeasure() {
  _measuring.outdate();
  setNeedsLayout();
}

const TableGeometry& UITableViewState::geometry() {
  const bool isNew = _measuring.renew([this] {
    const TableMeasuring table{.source = _dataSource,
                               .delegate = _delegate,
                               .heights = _heights,
                               .isGrouped = isGrouped(),
                               .hasHeaderView = static_cast<bool>(_headerView),
                               .width = bounds().size.width};
    const auto sections = table.sections();
    _geometry = TableGeometry(sections, _headerView ? _headerView->bounds().size.height : 0);
  });
  if (isNew) followGeometry();
  return _geometry;
}

// Content that became shorter is not left behind.
void UITableViewState::followGeometry() {
  if (_selected && !_geometry.contains(*_selected)) _selected.reset();
  const CGFloat footer = _footerView ? _footerView->bounds().size.height : 0;
  const UIScrollView scroll(self());
  scroll.setContentSize({bounds().size.width, _geometry.bottom() + footer});
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = clamped(offset);
  if (offset.y > inside.y) scroll.setContentOffset({offset.x, inside.y});
}

CGRect UITableViewState::across(Band band) const {
  return {{0, band.top}, {bounds().size.width, band.height}};
}

Band UITableViewState::inSight() const {
  const CGRect bounds = UIViewState::bounds();
  return {bounds.origin.y, bounds.size.height};
}

CGRect UITableViewState::rectForRow(NSIndexPath path) {
  const auto at = itemPathOf(path);
  return at && geometry().contains(*at) ? across(geometry().row(*at)) : CGRect{};
}

NSIndexPath UITableViewState::indexPathForRowAt(CGPoint point) {
  const auto path = rowAt(point);
  return path ? indexPathOf(*path) : NSIndexPath();
}

std::optional<ItemPath> UITableViewState::rowAt(CGPoint point) {
  const CGFloat width = bounds().size.width;
  if (!(point.x >= 0 && point.x < width)) return {};
  return geometry().rowAt(point.y);
}

void UITableViewState::scrollToRow(NSIndexPath path, NSInteger position, bool animated) {
  const auto at = itemPathOf(path);
  if (!at || !geometry().contains(*at)) return;
  const EdgeInsets insets = adjustedContentInset();
  const Band row = _geometry.row(*at);
  const Band seen = inSight();
  CGPoint offset = contentOffset();
  if (const auto where = shownAt(position))
    offset.y = offsetShowing(row.top, row.height,
                             {seen.top, seen.height, insets.top, insets.bottom}, *where);
  self().setContentOffset(clamped(offset), animated);
}

// Cells and titles come and go.

void UITableViewState::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGFloat width = bounds().size.width;
  if (std::exchange(_measuredWidth, width) != width) _measuring.outdate();
  geometry();
  placeEdgeViews();
  placeCells();
  placeTitles();
  _cells.settle(self());
}

void UITableViewState::didMoveToWindow() {
  super<void, "didMoveToWindow">();
  if (window()) return;
  release();
  _menu.hide();
}

void UITableViewState::placeEdgeViews() {
  const CGFloat width = bounds().size.width;
  if (_headerView) _headerView->setFrame({{0, 0}, {width, _headerView->bounds().size.height}});
  if (_footerView)
    _footerView->setFrame({{0, _geometry.bottom()}, {width, _footerView->bounds().size.height}});
}

void UITableViewState::placeCells() {
  std::map<ItemPath, CGRect> wanted;
  for (const ItemPath path : _geometry.rowsIn(inSight()))
    wanted[path] = across(_geometry.row(path));
  _cells.shown().follow(
      wanted, Inquiry::Pass(_measuring),
      [this](ItemPath path, const TableCells::Cell& cell) { recycle(cell, path); },
      [](const TableCells::Cell& cell, CGRect frame) { cell->setFrame(frame); },
      [this](ItemPath path, CGRect frame) { showRow(path, frame); });
}

void UITableViewState::showRow(ItemPath path, CGRect frame) {
  const AutoreleasePool pool;
  const Inquiry::Pass pass(_measuring);
  const auto cell = _dataSource.cell(path);
  if (!pass.holds()) return;
  _cells.show(path, cell);
  animator().withoutAnimation([&] {
    cell->setFrame(frame);
    styleCell(cell, path);
    cell->setSelected(_selected == path, false);
    cell->setHighlighted(_press.isOn(path), false);
    TableCells::insert(cell, *this);
    UIViewState::of(cell.get()).setNeedsLayout();
  });
  _delegate.willDisplay(cell, path);
}

void UITableViewState::recycle(UITableViewCell cell, ItemPath path) {
  const AutoreleasePool pool;
  _cells.putAway(cell);
  _delegate.didEndDisplaying(cell, path);
}

void UITableViewState::styleCell(UITableViewCell cell, ItemPath path) const {
  UITableViewCellState::of(cell.get())
      .setSeparators(_separators.ofRow(path.item, _geometry.rows(path.section), isGrouped()));
}

void UITableViewState::styleCells() const {
  for (const auto& [path, cell] : cells()) styleCell(cell, path);
}

void UITableViewState::placeTitles() {
  const CGFloat sightTop = inSight().top + adjustedContentInset().top;
  std::map<TitlePlace, CGRect> wanted;
  for (const auto& [place, band] : titlesIn(_geometry, inSight(), sightTop, isGrouped()))
    wanted[place] = across(band);
  _titles.follow(wanted, Inquiry::Pass(_measuring), self(),
                 [this](TitlePlace place) { return titleView(place); });
}

// The delegate's own view, or one that shows the title; nil where there is neither.
UIView UITableViewState::titleView(TitlePlace place) const {
  if (const UIView own = _delegate.titleView(place)) return own;
  const NSString title = _dataSource.title(place);
  if (title.length() == 0) return {};
  return UITableViewHeaderFooterView::make(title, place.place, isGrouped());
}

UITableViewCell UITableViewState::dequeue(NSString identifier) {
  return _cells.dequeue(identifier);
}

UITableViewCell UITableViewState::dequeueFor(NSString identifier, NSIndexPath) {
  return _cells.dequeue(identifier);
}

void UITableViewState::registerCellClass(Class aClass, NSString identifier) {
  _cells.registerClass(identifier, aClass);
}

UITableViewCell UITableViewState::cellForRow(NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at ? _cells.at(*at) : UITableViewCell();
}

NSIndexPath UITableViewState::indexPathForCell(UITableViewCell cell) const {
  const auto path = _cells.shown().keyOf(cell);
  return path ? indexPathOf(*path) : NSIndexPath();
}

// Touch: a finger presses a row, selects it when it leaves it there, and brings up the row's edit
// menu when it stays.

void UITableViewState::touchesBegan(NSSet touches, UIEvent) {
  release();
  const UITouch touch = touchOf(touches);
  const auto path = rowAt(touch.locationIn(self()));
  if (!touch || !path || !_allowsSelection) return;
  if (_delegate.shouldHighlight(*path)) press(*path, UITouchState::of(touch.get()).timestamp());
}

void UITableViewState::press(ItemPath path, Seconds since) {
  _press.begin(path);
  highlight(path, true);
  _longPress.callAfter(since + longPressTime - scheduler().now(), [this] { pressWasLong(); });
}

// Ends a press without any effect.
void UITableViewState::release() {
  _longPress.cancel();
  if (const auto pressed = _press.end()) highlight(*pressed, false);
}

void UITableViewState::touchesMoved(NSSet touches, UIEvent) {
  if (_press.hasLeft([&] { return rowAt(touchOf(touches).locationIn(self())); })) release();
}

void UITableViewState::touchesEnded(NSSet touches, UIEvent) {
  const auto kept = Owned<UIView>::retain(self());
  const auto tapped = _press.tappedBy([&] { return rowAt(touchOf(touches).locationIn(self())); });
  release();
  if (tapped) select(*tapped);
}

void UITableViewState::touchesCancelled(NSSet, UIEvent) {
  release();
}

void UITableViewState::pressWasLong() {
  const AutoreleasePool pool;
  const auto kept = Owned<UIView>::retain(self());
  const auto path = _press.path();
  if (!path || !_delegate.shouldShowMenu(*path)) return;
  release();
  showMenu(*path);
}

void UITableViewState::showMenu(ItemPath path) {
  const auto perform = [this, path](SEL action) {
    const auto kept = Owned<UIView>::retain(self());
    if (geometry().contains(path)) _delegate.perform(action, path);
  };
  auto commands = RowMenu::commands(
      [this, path](SEL action) { return _delegate.canPerform(action, path); }, perform);
  if (commands.empty() || !_geometry.contains(path)) return;
  _menu.show(std::move(commands), apply(toScreen(), across(_geometry.row(path))));
}

// Selection.

void UITableViewState::select(ItemPath path) {
  const auto instead = _delegate.willSelect(path);
  if (!instead || !geometry().contains(*instead)) return;
  const auto before = _selected;
  setSelected(instead, false);
  if (before && before != instead) _delegate.didDeselect(*before);
  _delegate.didSelect(*instead);
}

NSIndexPath UITableViewState::indexPathForSelectedRow() const {
  return _selected ? indexPathOf(*_selected) : NSIndexPath();
}

// By code the delegate is not told. No path clears the selection.
void UITableViewState::selectRow(NSIndexPath path, bool animated, NSInteger position) {
  const auto at = itemPathOf(path);
  if (at && !geometry().contains(*at)) return;
  setSelected(at, animated);
  if (at && position != none) scrollToRow(path, position, animated);
}

void UITableViewState::deselectRow(NSIndexPath path, bool animated) {
  const auto at = itemPathOf(path);
  if (at && at == _selected) setSelected(std::nullopt, animated);
}

void UITableViewState::setSelected(std::optional<ItemPath> path, bool animated) {
  const auto before = std::exchange(_selected, path);
  for (const auto& changed : {before, path})
    if (const auto cell = changed ? _cells.at(*changed) : UITableViewCell())
      cell.setSelected(_selected == changed, animated);
}

void UITableViewState::highlight(ItemPath path, bool isHighlighted) const {
  if (const auto cell = _cells.at(path)) cell.setHighlighted(isHighlighted, false);
}

}  // namespace desktop::uikit
