// SPDX-License-Identifier: MIT
//
// What a table asks and tells its delegate, which need not answer.
#pragma once

#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/table/section_titles.h"

namespace desktop::uikit {

class TableDelegate {
 public:
  // Borrowed. The delegate is that of the scroll view that a table is.
  explicit TableDelegate(UIView table) : _table(table) {}

  // Whether rows have heights of their own.
  bool hasRowHeights() const;
  // REQUIRES: hasRowHeights().
  CGFloat rowHeight(ItemPath path) const;
  // None, and nil, where it does not say.
  std::optional<CGFloat> titleHeight(TitlePlace place) const;
  UIView titleView(TitlePlace place) const;

  void willDisplay(UITableViewCell cell, ItemPath path) const;
  void didEndDisplaying(UITableViewCell cell, ItemPath path) const;

  // Allowed where it does not say.
  bool shouldHighlight(ItemPath path) const;
  // The row that is selected for this one; none forbids it.
  std::optional<ItemPath> willSelect(ItemPath path) const;
  void didSelect(ItemPath path) const;
  void didDeselect(ItemPath path) const;

  // Forbidden where it does not say.
  bool shouldShowMenu(ItemPath path) const;
  bool canPerform(SEL action, ItemPath path) const;
  void perform(SEL action, ItemPath path) const;

 private:
  NSObject delegate() const;

  UIView _table;
};

}  // namespace desktop::uikit
