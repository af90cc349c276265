// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_cells.h"

#include <algorithm>

#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::uikit {

void TableCells::show(ItemPath path, const Cell& cell) {
  _shown.show(path, cell);
  _pool.shown(cell);
}

void TableCells::putAway(UITableViewCell cell) {
  _pool.put(UITableViewCellState::of(cell.get()).reuseIdentifier().utf8(),
            Owned<UIView>::retain(cell));
}

void TableCells::insert(UITableViewCell cell, UIViewState& table) {
  if (UIViewState::of(cell.get()).superview() == table.self()) return;
  const auto& siblings = table.subviews();
  const auto last = std::ranges::find_if(siblings.rbegin(), siblings.rend(), [](const auto& other) {
    return isKindOf(other, UITableViewCellState::classObject());
  });
  table.insertSubview(cell, static_cast<std::size_t>(siblings.rend() - last));
}

NSArray TableCells::all() const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& [path, cell] : _shown.all()) all->add(cell.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

NSArray TableCells::indexPaths() const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& [path, cell] : _shown.all()) all->add(indexPathOf(path));
  return Owned<NSArray>::retain(all.get()).autorelease();
}

void TableCells::registerClass(NSString identifier, Class aClass) {
  _pool.registerClass(identifier.utf8(), aClass);
}

UITableViewCell TableCells::dequeue(NSString identifier) {
  const UIView cell = _pool.dequeue(identifier.utf8(), [&](Class registered) {
    return registered ? Owned<UIView>::retain(UITableViewCellState::make(registered, identifier))
                      : Owned<UIView>();
  });
  return UITableViewCell(cell.get());
}

}  // namespace desktop::uikit
