// SPDX-License-Identifier: MIT
#include "tests/lumifact/views/table_driver.h"

#include "desktop/uikit/lists/ui_table_view.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {

using bridge::send;
using bridge::UITableView;
using bridge::UITableViewCell;

UITableView tableOf(bridge::UIViewController page) {
  return UITableView(viewOf(page.view(), UITableView::classObject()).get());
}

std::vector<UITableViewCell> cellsOf(UITableView table) {
  std::vector<UITableViewCell> cells;
  if (!table) return cells;
  for (const auto& [path, cell] : desktop::uikit::UITableViewState::of(table).cells())
    cells.push_back(cell);
  return cells;
}

UITableViewCell cellAt(UITableView table, NSInteger row) {
  const auto& cells = desktop::uikit::UITableViewState::of(table).cells();
  const auto found = cells.find({0, row});
  return found == cells.end() ? UITableViewCell() : found->second.get();
}

std::string lineOf(UITableViewCell cell) {
  std::string line = cell.textLabel().text().utf8();
  if (send<NSInteger, "accessoryType">(cell) == UITableViewCell::disclosureIndicator) line += " >";
  if (const auto detail = cell.detailTextLabel().text()) line += " = " + detail.utf8();
  return line;
}

std::string shownRows(UITableView table) {
  std::string lines;
  for (const UITableViewCell cell : cellsOf(table)) lines += lineOf(cell) + "\n";
  return lines;
}

void tapRow(UITableView table, std::string_view title) {
  for (const UITableViewCell cell : cellsOf(table))
    if (cell.textLabel().text().utf8() == title) return tap(cell);
}

}  // namespace lumifact
