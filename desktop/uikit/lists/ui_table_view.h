// SPDX-License-Identifier: MIT
//
// UITableView: rows in sections, one below the other, of which only those in sight have a cell.
// What there is comes from the data source, by message: all counts and heights when rows are first
// needed or after reloadData, a cell when its row comes into sight.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/handles.h"
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

class UITableView : public bridge::Bound<UITableView, handles::UIScrollView> {
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
  CGRect rectForRow(bridge::NSIndexPath path);
  // Nil where there is none.
  bridge::NSIndexPath indexPathForRowAt(CGPoint point);
  bridge::NSIndexPath indexPathForCell(bridge::UITableViewCell cell) const;
  bridge::UITableViewCell cellForRow(bridge::NSIndexPath path) const;
  std::optional<ItemPath> selectedRow() const { return _selected; }
  // Of the rows in sight, from top to bottom.
  const TableCells::Shown::Views& cells() const { return _cells.shown().all(); }

 private:
  // What is bound of making it, and of what is set.
  bridge::UIView initWithFrame(CGRect frame);
  bridge::UITableView initWithFrameAndStyle(CGRect frame, NSInteger style);
  bridge::NSObject dataSource() const { return _dataSource.object(); }
  void setDataSource(bridge::NSObject source);
  void setDelegate(bridge::NSObject delegate);
  CGFloat rowHeight() const { return _heights.row; }
  void setRowHeight(CGFloat height);
  CGFloat sectionHeaderHeight() const { return _heights.header; }
  void setSectionHeaderHeight(CGFloat height);
  CGFloat sectionFooterHeight() const { return _heights.footer; }
  void setSectionFooterHeight(CGFloat height);
  NSInteger separatorStyle() const { return _separatorStyle; }
  void setSeparatorStyle(NSInteger style);
  bridge::UIColor separatorColor() const;
  void setSeparatorColor(bridge::UIColor color);
  bool allowsSelection() const { return _allowsSelection; }
  void setAllowsSelection(bool allows) { _allowsSelection = allows; }
  bridge::UIView tableHeaderView() const { return _headerView; }
  void setTableHeaderView(bridge::UIView view) { replaceEdgeView(_headerView, view); }
  bridge::UIView tableFooterView() const { return _footerView; }
  void setTableFooterView(bridge::UIView view) { replaceEdgeView(_footerView, view); }

  // Of where rows are, and what shows them.
  CGRect rectForSection(NSInteger section) { return across(geometry().section(section)); }
  CGRect rectForHeader(NSInteger section) { return across(geometry().header(section)); }
  CGRect rectForFooter(NSInteger section) { return across(geometry().footer(section)); }
  void scrollToRow(bridge::NSIndexPath path, NSInteger position, bool animated);
  void layoutSubviews();
  void didMoveToWindow();
  bridge::UITableViewCell dequeue(bridge::NSString identifier);
  bridge::UITableViewCell dequeueFor(bridge::NSString identifier, bridge::NSIndexPath path);
  void registerCellClass(Class aClass, bridge::NSString identifier);
  bridge::NSArray visibleCells() const { return _cells.all(); }
  bridge::NSArray visibleRows() const { return _cells.indexPaths(); }
  void rowsChange(bridge::NSArray paths, NSInteger animation);
  void sectionsChange(bridge::Object sections, NSInteger animation);

  // Of touch and selection.
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  bridge::NSIndexPath indexPathForSelectedRow() const;
  void selectRow(bridge::NSIndexPath path, bool animated, NSInteger position);
  void deselectRow(bridge::NSIndexPath path, bool animated);

  // How the parts work together.
  const TableGeometry& geometry();
  void followGeometry();
  void remeasure();
  std::optional<ItemPath> rowAt(CGPoint point);
  CGRect across(Band band) const;
  Band inSight() const;
  void replaceEdgeView(bridge::Owned<bridge::UIView>& slot, bridge::UIView view);
  void placeEdgeViews();
  void placeCells();
  void placeTitles();
  bridge::UIView titleView(TitlePlace place) const;
  void showRow(ItemPath path, CGRect frame);
  void recycle(bridge::UITableViewCell cell, ItemPath path);
  void styleCell(bridge::UITableViewCell cell, ItemPath path) const;
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
  bridge::Owned<bridge::UIView> _headerView;
  bridge::Owned<bridge::UIView> _footerView;
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
