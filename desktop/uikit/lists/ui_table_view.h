// SPDX-License-Identifier: MIT
//
// UITableView: rows in sections, one below the other, of which only those in sight have a cell.
// What there is comes from the data source, by message: all counts and heights when rows are first
// needed or after reloadData, a cell when its row comes into sight.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/reuse_pool.h"
#include "desktop/uikit/lists/table_geometry.h"
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UITableView : public bridge::Bound<UITableView, handles::UIScrollView> {
 public:
  enum Style : NSInteger { plain = 0, grouped = 1 };
  enum SeparatorStyle : NSInteger { noSeparators = 0, singleLine = 1 };
  enum ScrollPosition : NSInteger { none = 0, top = 1, middle = 2, bottom = 3 };

  using Bound::Bound;
  ~UITableView();
  static Class classObject();

  NSInteger style() const { return _style; }
  bool isGrouped() const { return _style == grouped; }
  // Counts are asked for anew and all cells go back before the next layout; nothing is selected.
  void reloadData();

  NSInteger numberOfSections();
  NSInteger numberOfRows(NSInteger section);
  // In the table's own coordinates; empty where there is no such row.
  CGRect rectForRow(bridge::NSIndexPath path);
  // Nil where there is none.
  bridge::NSIndexPath indexPathForRowAt(CGPoint point);
  bridge::NSIndexPath indexPathForCell(bridge::UITableViewCell cell) const;
  bridge::UITableViewCell cellForRow(bridge::NSIndexPath path) const;
  std::optional<ItemPath> selectedRow() const { return _selected; }
  // Of the rows in sight, from top to bottom.
  const std::map<ItemPath, bridge::Owned<bridge::UITableViewCell>>& cells() const { return _cells; }

 private:
  bridge::UITableView me() const { return bridge::UITableView(self().get()); }

  // Making, and what of it is asked and set.
  bridge::UIView initWithFrame(CGRect frame);
  bridge::UITableView initWithFrameAndStyle(CGRect frame, NSInteger style);
  bridge::NSObject dataSource() const { return _dataSource; }
  void setDataSource(bridge::NSObject source);
  bridge::NSObject delegate() const { return UIScrollView::of(self()).delegate(); }
  void setDelegate(bridge::NSObject delegate);
  CGFloat rowHeight() const { return _rowHeight; }
  void setRowHeight(CGFloat height);
  CGFloat sectionHeaderHeight() const { return _sectionHeaderHeight; }
  void setSectionHeaderHeight(CGFloat height);
  CGFloat sectionFooterHeight() const { return _sectionFooterHeight; }
  void setSectionFooterHeight(CGFloat height);
  NSInteger separatorStyle() const { return _separatorStyle; }
  void setSeparatorStyle(NSInteger style);
  bridge::UIColor separatorColor() const;
  void setSeparatorColor(bridge::UIColor color);
  bool allowsSelection() const { return _allowsSelection; }
  void setAllowsSelection(bool allows) { _allowsSelection = allows; }
  bridge::UIView tableHeaderView() const { return _headerView; }
  void setTableHeaderView(bridge::UIView view);
  bridge::UIView tableFooterView() const { return _footerView; }
  void setTableFooterView(bridge::UIView view);
  void replaceEdgeView(bridge::Owned<bridge::UIView>& slot, bridge::UIView view);

  // Where things are.
  using Place = UITableViewHeaderFooterView::Place;
  const TableGeometry& geometry();
  void measure();
  void remeasure();
  TableSection measured(NSInteger section, NSInteger rowsLeft);
  CGFloat ownRowHeight(ItemPath path, CGFloat standard);
  CGFloat headerHeight(NSInteger section);
  CGFloat footerHeight(NSInteger section);
  bridge::NSString titleOf(NSInteger section, Place place) const;
  void keepOffsetInside();
  std::optional<ItemPath> rowAt(CGPoint point);
  CGRect across(Band band) const;
  CGRect rectForSection(NSInteger section);
  CGRect rectForHeader(NSInteger section);
  CGRect rectForFooter(NSInteger section);
  void scrollToRow(bridge::NSIndexPath path, NSInteger position, bool animated);

  // Cells come and go.
  void layoutSubviews();
  void didMoveToWindow();
  void placeEdgeViews();
  void placeCells();
  void placeTitles();
  using Titles = std::map<NSInteger, bridge::Owned<bridge::UIView>>;  // by section
  void placeTitle(Titles& titles, NSInteger section, Place place, Band band);
  Band headerBand(NSInteger section) const;
  bridge::UIView titleView(NSInteger section, Place place) const;
  void showRow(ItemPath path);
  bridge::Owned<bridge::UITableViewCell> cellFromSource(ItemPath path);
  void putBehindTitles(bridge::UIView cell);
  void recycle(bridge::UITableViewCell cell, ItemPath path);
  void recycleAll();
  void styleCell(bridge::UITableViewCell cell, ItemPath path) const;
  bridge::UITableViewCell dequeue(bridge::NSString identifier);
  bridge::UITableViewCell dequeueFor(bridge::NSString identifier, bridge::NSIndexPath path);
  void registerCellClass(Class aClass, bridge::NSString identifier);
  void rowsChange(bridge::NSArray paths, NSInteger animation);
  void sectionsChange(bridge::Object sections, NSInteger animation);
  bridge::NSArray visibleCells() const;
  bridge::NSArray visibleRows() const;

  // Touch and selection.
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  void press(ItemPath path, Seconds since);
  void release();
  void pressWasLong();
  void showMenu(ItemPath path);
  void performCommand(SEL action, ItemPath path);
  void select(ItemPath path);
  bridge::NSIndexPath indexPathForSelectedRow() const;
  void selectRow(bridge::NSIndexPath path, bool animated, NSInteger position);
  void deselectRow(bridge::NSIndexPath path, bool animated);
  void setSelected(std::optional<ItemPath> path, bool animated);
  void highlight(ItemPath path, bool isHighlighted) const;

  NSInteger _style = plain;
  bridge::NSObject _dataSource;  // borrowed
  CGFloat _rowHeight = 44;
  CGFloat _sectionHeaderHeight = -1;  // negative: what titles need
  CGFloat _sectionFooterHeight = -1;
  NSInteger _separatorStyle = singleLine;
  Color _separatorColor = colors::separator;
  bool _allowsSelection = true;
  bridge::Owned<bridge::UIView> _headerView;
  bridge::Owned<bridge::UIView> _footerView;

  TableGeometry _geometry;
  bool _isStale = true;  // counts and heights
  bool _isMeasuring = false;
  unsigned long _generation = 0;  // of the measures: what is asked meanwhile may change them
  CGFloat _measuredWidth = 0;
  std::map<ItemPath, bridge::Owned<bridge::UITableViewCell>> _cells;
  Titles _headers;
  Titles _footers;
  ReusePool _pool;

  std::optional<ItemPath> _selected;
  std::optional<ItemPath> _pressed;
  std::optional<ItemPath> _menuRow;  // whose menu is on show
  Scheduler::Timer _longPress = 0;
};

}  // namespace desktop::uikit
