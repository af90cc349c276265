// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_cells.h"

#include <algorithm>

#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::uikit {

void TableCells::show(ItemPath path, const Cell& cell) {
  _shown.show(path, cell);
  _pool.shown(cell);
}

void TableCells::putAway(bridge::UITableViewCell cell) {
  _pool.put(UITableViewCell::of(cell.get()).reuseIdentifier().utf8(),
            bridge::Owned<bridge::UIView>::retain(cell));
}

void TableCells::insert(bridge::UITableViewCell cell, UIView& table) {
  if (UIView::of(cell.get()).superview() == table.self()) return;
  const auto& siblings = table.subviews();
  const auto last = std::ranges::find_if(siblings.rbegin(), siblings.rend(), [](const auto& other) {
    return bridge::isKindOf(other, UITableViewCell::classObject());
  });
  table.insertSubview(cell, static_cast<std::size_t>(siblings.rend() - last));
}

bridge::NSArray TableCells::all() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [path, cell] : _shown.all()) all->add(cell.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

bridge::NSArray TableCells::indexPaths() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& [path, cell] : _shown.all()) all->add(indexPathOf(path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

void TableCells::registerClass(bridge::NSString identifier, Class aClass) {
  _pool.registerClass(identifier.utf8(), aClass);
}

bridge::UITableViewCell TableCells::dequeue(bridge::NSString identifier) {
  const bridge::UIView cell = _pool.dequeue(identifier.utf8(), [&](Class registered) {
    return registered ? bridge::Owned<bridge::UIView>::retain(
                            UITableViewCell::make(registered, identifier))
                      : bridge::Owned<bridge::UIView>();
  });
  return bridge::UITableViewCell(cell.get());
}

}  // namespace desktop::uikit
