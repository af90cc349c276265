// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_measuring.h"

#include <algorithm>

#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"

namespace desktop::uikit {
namespace {

// A data source can answer any number. What is more than this is left out.
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

CGFloat headerHeight(const TableMeasuring& table, NSInteger section) {
  const TitlePlace place = {section, Place::header};
  const auto told = decided(table.delegate.titleHeight(place), table.isGrouped);
  if (told) return *told;
  const NSString title = table.source.title(place);
  const bool isFirst = table.isGrouped && section == 0 && !table.hasHeaderView;
  if (title.length() > 0)
    return UITableViewHeaderFooterView::heightOf(title, Place::header, table.isGrouped, 0) +
           (isFirst ? firstGap - gap : 0);
  if (table.heights.header >= 0) return table.heights.header;
  if (!table.isGrouped) return 0;
  return isFirst ? firstGap : gap;
}

CGFloat footerHeight(const TableMeasuring& table, NSInteger section) {
  const TitlePlace place = {section, Place::footer};
  const auto told = decided(table.delegate.titleHeight(place), table.isGrouped);
  if (told) return *told;
  const NSString title = table.source.title(place);
  if (title.length() > 0)
    return UITableViewHeaderFooterView::heightOf(title, Place::footer, table.isGrouped,
                                                 table.width);
  if (table.heights.footer >= 0) return table.heights.footer;
  return table.isGrouped ? gap : 0;
}

CGFloat ownRowHeight(const TableMeasuring& table, ItemPath path, CGFloat standard) {
  const AutoreleasePool pool;
  const CGFloat height = table.delegate.rowHeight(path);
  return height < 0 ? standard : height;
}

TableSection measured(const TableMeasuring& table, NSInteger section, NSInteger rowsLeft) {
  const AutoreleasePool pool;
  TableSection made;
  made.headerHeight = headerHeight(table, section);
  made.footerHeight = footerHeight(table, section);
  made.rows = table.source.rows(section, rowsLeft);
  made.rowHeight = table.heights.row >= 0 ? table.heights.row : standardRowHeight;
  if (!table.delegate.hasRowHeights()) return made;
  const NSInteger own = std::min(made.rows, maximalOwnHeights);
  made.ownRowHeights.reserve(static_cast<std::size_t>(own));
  for (NSInteger row = 0; row < own; ++row)
    made.ownRowHeights.push_back(ownRowHeight(table, {section, row}, made.rowHeight));
  return made;
}

}  // namespace

std::vector<TableSection> TableMeasuring::sections() const {
  const AutoreleasePool pool;
  const NSInteger count = source.sections();
  std::vector<TableSection> sections;
  NSInteger rowsLeft = maximalRows;
  for (NSInteger index = 0; index < count; ++index) {
    sections.push_back(measured(*this, index, rowsLeft));
    rowsLeft -= sections.back().rows;
  }
  return sections;
}

}  // namespace desktop::uikit
