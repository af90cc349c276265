// SPDX-License-Identifier: MIT
//
// What a table asks about its rows before it shows any, and where they lie.
#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"

namespace desktop::uikit {
namespace {

// A data source can answer any number. What is more than this is left out.
constexpr NSInteger maximalSections = 100'000;
constexpr NSInteger maximalRows = 10'000'000;       // of a table
constexpr NSInteger maximalOwnHeights = 1'000'000;  // of a section

constexpr CGFloat standardRowHeight = 44;
constexpr CGFloat firstGap = 35;  // above a grouped table's first section
constexpr CGFloat gap = 18;       // above and below its other sections

using Place = UITableViewHeaderFooterView::Place;

// The height a delegate gives a header or footer; none where the table decides.
std::optional<CGFloat> decided(std::optional<CGFloat> told, bool isGrouped) {
  if (!told || *told < 0 || (*told == 0 && isGrouped)) return {};
  return told;
}

}  // namespace

const TableGeometry& UITableView::geometry() {
  if (_isStale && !_isMeasuring) measure();
  return _geometry;
}

// The data source may ask the table about itself meanwhile: it then hears of the old state.
void UITableView::measure() {
  const bridge::AutoreleasePool pool;
  _isMeasuring = true;
  _isStale = false;
  const auto told = asked<NSInteger, "numberOfSectionsInTableView:">(_dataSource, self());
  const NSInteger count = std::clamp(told.value_or(_dataSource ? 1 : 0), 0L, maximalSections);
  std::vector<TableSection> sections;
  NSInteger rowsLeft = maximalRows;
  for (NSInteger index = 0; index < count; ++index) {
    sections.push_back(measured(index, rowsLeft));
    rowsLeft -= sections.back().rows;
  }
  _geometry = TableGeometry(sections, _headerView ? _headerView->bounds().size.height : 0);
  _isMeasuring = false;
  if (_selected && !_geometry.contains(*_selected)) _selected.reset();
  const CGFloat footer = _footerView ? _footerView->bounds().size.height : 0;
  handles::UIScrollView(self()).setContentSize(
      {UIView::of(self()).bounds().size.width, _geometry.bottom() + footer});
  keepOffsetInside();
}

TableSection UITableView::measured(NSInteger section, NSInteger rowsLeft) {
  const bridge::AutoreleasePool pool;
  TableSection made;
  made.headerHeight = headerHeight(section);
  made.footerHeight = footerHeight(section);
  const auto rows =
      asked<NSInteger, "tableView:numberOfRowsInSection:">(_dataSource, self(), section);
  made.rows = std::clamp(rows.value_or(0), 0L, rowsLeft);
  made.rowHeight = _rowHeight >= 0 ? _rowHeight : standardRowHeight;
  if (!bridge::respondsTo<"tableView:heightForRowAtIndexPath:">(delegate())) return made;
  const NSInteger own = std::min(made.rows, maximalOwnHeights);
  made.ownRowHeights.reserve(static_cast<std::size_t>(own));
  for (NSInteger row = 0; row < own; ++row)
    made.ownRowHeights.push_back(ownRowHeight({section, row}, made.rowHeight));
  return made;
}

CGFloat UITableView::ownRowHeight(ItemPath path, CGFloat standard) {
  const bridge::AutoreleasePool pool;
  const auto height = bridge::send<CGFloat, "tableView:heightForRowAtIndexPath:">(
      delegate(), self(), indexPathOf(path));
  return height < 0 ? standard : height;
}

CGFloat UITableView::headerHeight(NSInteger section) {
  const auto told =
      asked<CGFloat, "tableView:heightForHeaderInSection:">(delegate(), self(), section);
  if (const auto height = decided(told, isGrouped())) return *height;
  const bridge::NSString title = titleOf(section, Place::header);
  const bool isFirst = isGrouped() && section == 0 && !_headerView;
  if (title.length() > 0)
    return UITableViewHeaderFooterView::heightOf(title, Place::header, isGrouped(), 0) +
           (isFirst ? firstGap - gap : 0);
  if (_sectionHeaderHeight >= 0) return _sectionHeaderHeight;
  if (!isGrouped()) return 0;
  return isFirst ? firstGap : gap;
}

CGFloat UITableView::footerHeight(NSInteger section) {
  const auto told =
      asked<CGFloat, "tableView:heightForFooterInSection:">(delegate(), self(), section);
  if (const auto height = decided(told, isGrouped())) return *height;
  const bridge::NSString title = titleOf(section, Place::footer);
  if (title.length() > 0)
    return UITableViewHeaderFooterView::heightOf(title, Place::footer, isGrouped(),
                                                 UIView::of(self()).bounds().size.width);
  if (_sectionFooterHeight >= 0) return _sectionFooterHeight;
  return isGrouped() ? gap : 0;
}

bridge::NSString UITableView::titleOf(NSInteger section, Place place) const {
  const auto title = place == Place::header
                         ? asked<bridge::Object, "tableView:titleForHeaderInSection:">(
                               _dataSource, self(), section)
                         : asked<bridge::Object, "tableView:titleForFooterInSection:">(
                               _dataSource, self(), section);
  return bridge::as<bridge::NSString>(title.value_or(bridge::Object()));
}

void UITableView::remeasure() {
  _isStale = true;
  ++_generation;
  UIView::of(self()).setNeedsLayout();
}

// After the content became shorter.
void UITableView::keepOffsetInside() {
  const UIScrollView& scroll = UIScrollView::of(self());
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = scroll.clamped(offset);
  if (offset.y > inside.y) handles::UIScrollView(self()).setContentOffset({offset.x, inside.y});
}

CGRect UITableView::across(Band band) const {
  return {{0, band.top}, {UIView::of(self()).bounds().size.width, band.height}};
}

NSInteger UITableView::numberOfSections() {
  return geometry().sections();
}

NSInteger UITableView::numberOfRows(NSInteger section) {
  return geometry().rows(section);
}

CGRect UITableView::rectForRow(bridge::NSIndexPath path) {
  const auto at = itemPathOf(path);
  return at && geometry().contains(*at) ? across(geometry().row(*at)) : CGRect{};
}

CGRect UITableView::rectForSection(NSInteger section) {
  return across(geometry().section(section));
}

CGRect UITableView::rectForHeader(NSInteger section) {
  return across(geometry().header(section));
}

CGRect UITableView::rectForFooter(NSInteger section) {
  return across(geometry().footer(section));
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
  const CGFloat room = UIView::of(self()).bounds().size.height - insets.top - insets.bottom;
  const CGFloat atTop = row.top - insets.top;
  const CGFloat atBottom = atTop + row.height - room;
  CGPoint offset = scroll.contentOffset();
  if (position == top) offset.y = atTop;
  if (position == middle) offset.y = (atTop + atBottom) / 2;
  if (position == bottom) offset.y = atBottom;
  if (position == none) offset.y = std::max(std::min(offset.y, atTop), atBottom);
  bridge::send<void, "setContentOffset:animated:">(self(), scroll.clamped(offset), animated);
}

}  // namespace desktop::uikit
