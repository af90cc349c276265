// SPDX-License-Identifier: MIT
//
// LumifactViewController: a page of a report as a table, a row an entry; entries that are
// containers open further pages.
#pragma once

#include <cstdint>

#include "bridge/bound.h"
#include "bridge/uikit/ui_lists.h"
#include "lumifact/platform.h"
#include "lumifact/views/table_row.h"

namespace lumifact {

// The data source and delegate of its own table. It never changes once it is made.
class LumifactViewController : public Bound<LumifactViewController, UITableViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  // What a page is made of. `extraData`, `mapLink` and `title` may be nil; anything may be
  // `tableData`.
  struct Contents {
    Object tableData = {};
    NSDictionary extraData = {};  // rows shown first
    std::int32_t mapType = 0;     // subPage marks a page without a "Dismiss" button
    NSString mapLink = {};
    NSString title = {};
  };
  static constexpr std::int32_t subPage = -2;

  // A grouped page.
  static Owned<UIViewController> make(const Contents& contents);

  UITableViewController initWithStyle(NSInteger style, Object tableData, NSDictionary extraData,
                                      std::int32_t mapType, NSString mapString, NSString dataTitle);
  void viewDidLoad();

  NSInteger numberOfSections(UITableView) const { return 1; }
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path);
  void didSelectRow(UITableView table, NSIndexPath path);
  bool shouldShowMenu(UITableView, NSIndexPath) const { return true; }
  bool canPerformAction(UITableView table, SEL action, NSIndexPath path, NSObject sender) const;
  void performAction(UITableView table, SEL action, NSIndexPath path, UIMenuController menu);

  bool dataShouldHaveNewPage(Object value) const { return isContainer(kindOf(value)); }
  NSString detailStringFor(Object value) const { return displayText(value); }
  // The row at the path less `offset`, its title and detail through the first two arguments, which
  // data of an unknown kind leaves as they are.
  Object fillTitleAndDetail(id* title, id* detail, Object data, NSString pageTitle,
                            NSIndexPath path, std::int32_t offset);

  void shareButtonTouched(UIBarButtonItem sender);
  void openMaps(NSObject sender);
  void dismissButtonTouched(NSObject sender);

 private:
  bool isExtraRow(NSIndexPath path) const { return path.row() < _extraDataCount; }
  TableRow rowAt(NSIndexPath path);
  SortedKeys& keysOf(Object data);
  void openPageOf(const TableRow& row) const;

  Owned<Object> _tableData;
  Owned<NSDictionary> _extraData;
  std::int32_t _extraDataCount = 0;
  std::int32_t _mapType = 0;
  Owned<NSString> _dataTitle;
  Owned<NSString> _mapString;
  SortedKeys _tableKeys;
  SortedKeys _extraKeys;
};

}  // namespace lumifact
