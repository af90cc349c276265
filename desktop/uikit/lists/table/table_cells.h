// SPDX-License-Identifier: MIT
//
// The cells of a table: those of the rows in sight, and those that wait for one.
#pragma once

#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/reuse_pool.h"
#include "desktop/uikit/lists/views_in_sight.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class TableCells {
 public:
  using Cell = Owned<UITableViewCell>;
  using Shown = ViewsInSight<ItemPath, Cell>;

  // The row shows from now on with this cell, and no other does.
  void show(ItemPath path, const Cell& cell);
  // The cell shows nothing any longer, and waits.
  void putAway(UITableViewCell cell);
  Shown& shown() { return _shown; }
  const Shown& shown() const { return _shown; }
  // Takes what shows nothing out of the table.
  void settle(UIView table) { _pool.settle(table); }

  // Adds a cell to the table where it is not there yet: above all other cells, below titles.
  static void insert(UITableViewCell cell, UIViewState& table);

  // Nil where the row is out of sight.
  UITableViewCell at(ItemPath path) const { return _shown.find(path); }
  // From top to bottom; autoreleased.
  NSArray all() const;
  NSArray indexPaths() const;

  void registerClass(NSString identifier, Class aClass);
  // One that waits, or a new one where a class is registered, or nil.
  UITableViewCell dequeue(NSString identifier);

 private:
  Shown _shown;
  ReusePool _pool;
};

}  // namespace desktop::uikit
