// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_data_source.h"

#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::uikit {
namespace {

// A data source can answer any number. What is more than this is left out.
constexpr NSInteger maximalSections = 100'000;

}  // namespace

NSInteger TableDataSource::sections() const {
  const auto told = asked<NSInteger, "numberOfSectionsInTableView:">(_source, _table);
  return std::clamp(told.value_or(_source ? 1 : 0), 0L, maximalSections);
}

NSInteger TableDataSource::rows(NSInteger section, NSInteger most) const {
  const auto told = asked<NSInteger, "tableView:numberOfRowsInSection:">(_source, _table, section);
  return std::clamp(told.value_or(0), 0L, most);
}

NSString TableDataSource::title(TitlePlace place) const {
  const auto title =
      place.isHeader()
          ? asked<Object, "tableView:titleForHeaderInSection:">(_source, _table, place.section)
          : asked<Object, "tableView:titleForFooterInSection:">(_source, _table, place.section);
  return as<NSString>(title.value_or(Object()));
}

Owned<UITableViewCell> TableDataSource::cell(ItemPath path) const {
  const auto answer =
      asked<Object, "tableView:cellForRowAtIndexPath:">(_source, _table, indexPathOf(path));
  const auto cell = as<UITableViewCell>(answer.value_or(Object()));
  if (cell) return Owned<UITableViewCell>::retain(cell);
  return UITableViewCellState::make(UITableViewCellState::classObject(), {});
}

}  // namespace desktop::uikit
