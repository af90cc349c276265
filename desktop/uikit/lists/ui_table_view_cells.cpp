// SPDX-License-Identifier: MIT
//
// Which rows have cells: those in sight, and no others.
#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat separatorInset = 16;

using Place = UITableViewHeaderFooterView::Place;

bridge::Owned<bridge::UITableViewCell> makeCell(Class aClass, bridge::NSString identifier) {
  const auto made = bridge::Owned<bridge::Object>::adopt(
      bridge::send<bridge::Object, "initWithStyle:reuseIdentifier:">(
          bridge::send<id, "alloc">(aClass), NSInteger{UITableViewCell::plain}, identifier));
  return bridge::Owned<bridge::UITableViewCell>::retain(
      bridge::as<bridge::UITableViewCell>(made.get()));
}

Band inSight(const UIView& view) {
  return {view.bounds().origin.y, view.bounds().size.height};
}

}  // namespace

void UITableView::reloadData() {
  recycleAll();
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

void UITableView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGFloat width = UIView::of(self()).bounds().size.width;
  if (std::exchange(_measuredWidth, width) != width) _isStale = true;
  geometry();
  placeEdgeViews();
  placeCells();
  placeTitles();
  _pool.settle(self());
}

void UITableView::didMoveToWindow() {
  super<void, "didMoveToWindow">();
  if (UIView::of(self()).window()) return;
  release();
  if (_menuRow) UIMenuController::shared().hide();
}

void UITableView::placeEdgeViews() {
  const CGFloat width = UIView::of(self()).bounds().size.width;
  if (_headerView) _headerView->setFrame({{0, 0}, {width, _headerView->bounds().size.height}});
  if (_footerView)
    _footerView->setFrame({{0, _geometry.bottom()}, {width, _footerView->bounds().size.height}});
}

// What is asked of data source and delegate on the way may change everything: the pass then ends,
// and the next one begins anew.
void UITableView::placeCells() {
  const auto generation = _generation;
  const std::vector<ItemPath> wanted = _geometry.rowsIn(inSight(UIView::of(self())));
  std::vector<ItemPath> leaving;
  for (const auto& [path, cell] : _cells)
    if (!std::ranges::binary_search(wanted, path)) leaving.push_back(path);
  for (const ItemPath path : leaving)
    if (const auto node = _cells.extract(path)) recycle(node.mapped(), path);
  for (const ItemPath path : wanted) {
    if (_generation != generation) return;
    const auto shown = _cells.find(path);
    if (shown == _cells.end()) {
      showRow(path);
    } else {
      shown->second->setFrame(across(_geometry.row(path)));
    }
  }
}

void UITableView::showRow(ItemPath path) {
  const bridge::AutoreleasePool pool;
  const auto generation = _generation;
  const auto cell = cellFromSource(path);
  if (_generation != generation) return;
  std::erase_if(_cells, [&](const auto& shown) { return shown.second.get() == cell.get(); });
  _cells[path] = cell;
  _pool.shown(cell);
  animator().withoutAnimation([&] {
    cell->setFrame(across(_geometry.row(path)));
    styleCell(cell, path);
    bridge::send<void, "setSelected:animated:">(cell, _selected == path, false);
    bridge::send<void, "setHighlighted:animated:">(cell, _pressed == path, false);
    if (UIView::of(cell.get()).superview() != self()) putBehindTitles(cell);
    UIView::of(cell.get()).setNeedsLayout();
  });
  told<"tableView:willDisplayCell:forRowAtIndexPath:">(delegate(), self(), cell, indexPathOf(path));
}

void UITableView::putBehindTitles(bridge::UIView cell) {
  UIView& view = UIView::of(self());
  const auto& siblings = view.subviews();
  const auto last = std::ranges::find_if(siblings.rbegin(), siblings.rend(), [](const auto& other) {
    return bridge::isKindOf(other, UITableViewCell::classObject());
  });
  view.insertSubview(cell, static_cast<std::size_t>(siblings.rend() - last));
}

// A row for which the source has no cell shows an empty one.
bridge::Owned<bridge::UITableViewCell> UITableView::cellFromSource(ItemPath path) {
  const auto answer = asked<bridge::Object, "tableView:cellForRowAtIndexPath:">(_dataSource, self(),
                                                                                indexPathOf(path));
  const auto cell = bridge::as<bridge::UITableViewCell>(answer.value_or(bridge::Object()));
  if (cell) return bridge::Owned<bridge::UITableViewCell>::retain(cell);
  return makeCell(UITableViewCell::classObject(), {});
}

void UITableView::recycle(bridge::UITableViewCell cell, ItemPath path) {
  const bridge::AutoreleasePool pool;
  _pool.put(UITableViewCell::of(cell.get()).reuseIdentifier().utf8(),
            bridge::Owned<bridge::UIView>::retain(cell));
  told<"tableView:didEndDisplayingCell:forRowAtIndexPath:">(delegate(), self(), cell,
                                                            indexPathOf(path));
}

void UITableView::recycleAll() {
  const auto cells = std::exchange(_cells, {});
  for (const auto& [path, cell] : cells) recycle(cell, path);
  for (auto* titles : {&_headers, &_footers}) {
    for (const auto& [section, view] : *titles) view->removeFromSuperview();
    titles->clear();
  }
}

bridge::UITableViewCell UITableView::dequeue(bridge::NSString identifier) {
  const bridge::UIView cell = _pool.dequeue(identifier.utf8(), [&](Class registered) {
    return registered ? bridge::Owned<bridge::UIView>::retain(makeCell(registered, identifier))
                      : bridge::Owned<bridge::UIView>();
  });
  return bridge::UITableViewCell(cell.get());
}

bridge::UITableViewCell UITableView::dequeueFor(bridge::NSString identifier, bridge::NSIndexPath) {
  return dequeue(identifier);
}

void UITableView::registerCellClass(Class aClass, bridge::NSString identifier) {
  _pool.registerClass(identifier.utf8(), aClass);
}

void UITableView::styleCell(bridge::UITableViewCell cell, ItemPath path) const {
  RowSeparators lines{.color = _separatorColor};
  const bool isLast = path.item == _geometry.rows(path.section) - 1;
  lines.below = _separatorStyle != noSeparators;
  lines.above = lines.below && isGrouped() && path.item == 0;
  lines.insetBelow = isGrouped() && isLast ? 0 : separatorInset;
  UITableViewCell::of(cell.get()).setSeparators(lines);
}

void UITableView::placeTitles() {
  const auto generation = _generation;
  const auto [first, end] = _geometry.sectionsIn(inSight(UIView::of(self())));
  for (auto* titles : {&_headers, &_footers}) {
    std::erase_if(*titles, [first = first, end = end](const auto& title) {
      const bool isOut = title.first < first || title.first >= end;
      if (isOut) title.second->removeFromSuperview();
      return isOut;
    });
  }
  for (NSInteger section = first; section < end && _generation == generation; ++section) {
    placeTitle(_headers, section, Place::header, headerBand(section));
    placeTitle(_footers, section, Place::footer, _geometry.footer(section));
  }
}

// A plain table's header stays in sight as long as its section does.
Band UITableView::headerBand(NSInteger section) const {
  Band band = _geometry.header(section);
  if (isGrouped()) return band;
  const CGFloat sightTop =
      UIView::of(self()).bounds().origin.y + UIScrollView::of(self()).adjustedContentInset().top;
  const CGFloat lowest = _geometry.section(section).bottom() - band.height;
  band.top = std::max(band.top, std::min(sightTop, lowest));
  return band;
}

void UITableView::placeTitle(Titles& titles, NSInteger section, Place place, Band band) {
  if (!(band.height > 0)) return;
  if (titles.find(section) == titles.end()) {
    const auto generation = _generation;
    const bridge::UIView view = titleView(section, place);
    if (!view || _generation != generation) return;
    titles[section] = bridge::Owned<bridge::UIView>::retain(view);
    animator().withoutAnimation([&] { view.setFrame(across(band)); });
    self().addSubview(view);
  }
  titles[section]->setFrame(across(band));
}

// The delegate's own view, or one that shows the title; nil where there is neither.
bridge::UIView UITableView::titleView(NSInteger section, Place place) const {
  const auto own =
      place == Place::header
          ? asked<bridge::Object, "tableView:viewForHeaderInSection:">(delegate(), self(), section)
          : asked<bridge::Object, "tableView:viewForFooterInSection:">(delegate(), self(), section);
  if (const auto view = bridge::as<bridge::UIView>(own.value_or(bridge::Object()))) return view;
  const bridge::NSString title = titleOf(section, place);
  if (title.length() == 0) return {};
  return UITableViewHeaderFooterView::make(title, place, isGrouped());
}

bridge::UITableViewCell UITableView::cellForRow(bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  const auto found = at ? _cells.find(*at) : _cells.end();
  return found == _cells.end() ? bridge::UITableViewCell() : found->second.get();
}

bridge::NSIndexPath UITableView::indexPathForCell(bridge::UITableViewCell cell) const {
  const auto found =
      std::ranges::find_if(_cells, [&](const auto& shown) { return shown.second.get() == cell; });
  return found == _cells.end() ? bridge::NSIndexPath() : indexPathOf(found->first);
}

bridge::NSArray UITableView::visibleCells() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [path, cell] : _cells) all->add(cell.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

bridge::NSArray UITableView::visibleRows() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [path, cell] : _cells) all->add(indexPathOf(path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

}  // namespace desktop::uikit
