// SPDX-License-Identifier: MIT
//
// UITableView: rows in sections, one below the other, of which only those in sight have a cell.
// What there is comes from the data source, by message: all counts and heights when rows are first
// needed or after reloadData, a cell when its row comes into sight.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/lists/item_press.h"
#include "desktop/uikit/lists/table/row_menu.h"
#include "desktop/uikit/lists/table/row_separators.h"
#include "desktop/uikit/lists/table/section_titles.h"
#include "desktop/uikit/lists/table/table_cells.h"
#include "desktop/uikit/lists/table/table_data_source.h"
#include "desktop/uikit/lists/table/table_delegate.h"
#include "desktop/uikit/lists/table/table_geometry.h"
#include "desktop/uikit/lists/table/table_measuring.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UITableViewState : public Bound<UITableViewState, UIScrollViewState, UITableView> {
 public:
  enum Style : NSInteger { plain = 0, grouped = 1 };
  enum SeparatorStyle : NSInteger { noSeparators = 0, singleLine = 1 };
  enum ScrollPosition : NSInteger { none = 0, top = 1, middle = 2, bottom = 3 };

  using Bound::Bound;
  static Class classObject();

  NSInteger style() const { return _style; }
  bool isGrouped() const { return _style == grouped; }
  // Counts are asked for anew and all cells go back before the next layout; nothing is selected.
  void reloadData();

  NSInteger numberOfSections() { return geometry().sections(); }
  NSInteger numberOfRows(NSInteger section) { return geometry().rows(section); }
  // In the table's own coordinates; empty where there is no such row.
  CGRect rectForRow(NSIndexPath path);
  // Nil where there is none.
  NSIndexPath indexPathForRowAt(CGPoint point);
  NSIndexPath indexPathForCell(UITableViewCell cell) const;
  UITableViewCell cellForRow(NSIndexPath path) const;
  std::optional<ItemPath> selectedRow() const { return _selected; }
  // Of the rows in sight, from top to bottom.
  const TableCells::Shown::Views& cells() const { return _cells.shown().all(); }

 private:
  // What is bound of making it, and of what is set.
  UIView initWithFrame(CGRect frame);
  UITableView initWithFrameAndStyle(CGRect frame, NSInteger style);
  NSObject dataSource() const { return _dataSource.object(); }
  void setDataSource(NSObject source);
  void setDelegate(NSObject delegate);
  CGFloat rowHeight() const { return _heights.row; }
  void setRowHeight(CGFloat height);
  CGFloat sectionHeaderHeight() const { return _heights.header; }
  void setSectionHeaderHeight(CGFloat height);
  CGFloat sectionFooterHeight() const { return _heights.footer; }
  void setSectionFooterHeight(CGFloat height);
  NSInteger separatorStyle() const { return _separatorStyle; }
  void setSeparatorStyle(NSInteger style);
  UIColor separatorColor() const;
  void setSeparatorColor(UIColor color);
  bool allowsSelection() const { return _allowsSelection; }
  void setAllowsSelection(bool allows) { _allowsSelection = allows; }
  UIView tableHeaderView() const { return _headerView; }
  void setTableHeaderView(UIView view) { replaceEdgeView(_headerView, view); }
  UIView tableFooterView() const { return _footerView; }
  void setTableFooterView(UIView view) { replaceEdgeView(_footerView, view); }

  // Of where rows are, and what shows them.
  CGRect rectForSection(NSInteger section) { return across(geometry().section(section)); }
  CGRect rectForHeader(NSInteger section) { return across(geometry().header(section)); }
  CGRect rectForFooter(NSInteger section) { return across(geometry().footer(section)); }
  void scrollToRow(NSIndexPath path, NSInteger position, bool animated);
  void layoutSubviews();
  void didMoveToWindow();
  UITableViewCell dequeue(NSString identifier);
  UITableViewCell dequeueFor(NSString identifier, NSIndexPath path);
  void registerCellClass(Class aClass, NSString identifier);
  NSArray visibleCells() const { return _cells.all(); }
  NSArray visibleRows() const { return _cells.indexPaths(); }
  void rowsChange(NSArray paths, NSInteger animation);
  void sectionsChange(Object sections, NSInteger animation);

  // Of touch and selection.
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  NSIndexPath indexPathForSelectedRow() const;
  void selectRow(NSIndexPath path, bool animated, NSInteger position);
  void deselectRow(NSIndexPath path, bool animated);

  // How the parts work together.
  const TableGeometry& geometry();
  void followGeometry();
  void remeasure();
  std::optional<ItemPath> rowAt(CGPoint point);
  CGRect across(Band band) const;
  Band inSight() const;
  void replaceEdgeView(Owned<UIView>& slot, UIView view);
  void placeEdgeViews();
  void placeCells();
  void placeTitles();
  UIView titleView(TitlePlace place) const;
  void showRow(ItemPath path, CGRect frame);
  void recycle(UITableViewCell cell, ItemPath path);
  void styleCell(UITableViewCell cell, ItemPath path) const;
  void styleCells() const;
  void press(ItemPath path, Seconds since);
  void release();
  void pressWasLong();
  void showMenu(ItemPath path);
  void select(ItemPath path);
  void setSelected(std::optional<ItemPath> path, bool animated);
  void highlight(ItemPath path, bool isHighlighted) const;

  NSInteger _style = plain;
  NSInteger _separatorStyle = singleLine;
  bool _allowsSelection = true;
  Owned<UIView> _headerView;
  Owned<UIView> _footerView;
  TableHeights _heights;
  TableSeparators _separators;

  TableDataSource _dataSource{self()};
  TableDelegate _delegate{self()};
  TableGeometry _geometry;
  Inquiry _measuring;
  CGFloat _measuredWidth = 0;
  TableCells _cells;
  SectionTitles _titles;
  ItemPress _press;
  PendingCall _longPress;
  RowMenu _menu;
  std::optional<ItemPath> _selected;
};

}  // namespace desktop::uikit
