// SPDX-License-Identifier: MIT
//
// LumifactViewController: a page of a report as a table, a row an entry; entries that are
// containers open further pages.
#pragma once

#include <cstdint>

#include "bridge/bound.h"
#include "bridge/uikit/ui_lists.h"
#include "lumifact/views/table_row.h"

namespace lumifact {

// The data source and delegate of its own table. It never changes once it is made.
class LumifactViewController
    : public bridge::Bound<LumifactViewController, bridge::UITableViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  // What a page is made of. `extraData`, `mapLink` and `title` may be nil; anything may be
  // `tableData`.
  struct Contents {
    bridge::Object tableData = {};
    bridge::NSDictionary extraData = {};  // rows shown first
    std::int32_t mapType = 0;             // subPage marks a page without a "Dismiss" button
    bridge::NSString mapLink = {};
    bridge::NSString title = {};
  };
  static constexpr std::int32_t subPage = -2;

  // A grouped page.
  static bridge::Owned<bridge::UIViewController> make(const Contents& contents);

  bridge::UITableViewController initWithStyle(NSInteger style, bridge::Object tableData,
                                              bridge::NSDictionary extraData, std::int32_t mapType,
                                              bridge::NSString mapString,
                                              bridge::NSString dataTitle);
  void viewDidLoad();

  NSInteger numberOfSections(bridge::UITableView) const { return 1; }
  NSInteger numberOfRows(bridge::UITableView table, NSInteger section) const;
  bridge::UITableViewCell cellForRow(bridge::UITableView table, bridge::NSIndexPath path);
  void didSelectRow(bridge::UITableView table, bridge::NSIndexPath path);
  bool shouldShowMenu(bridge::UITableView, bridge::NSIndexPath) const { return true; }
  bool canPerformAction(bridge::UITableView table, SEL action, bridge::NSIndexPath path,
                        bridge::NSObject sender) const;
  void performAction(bridge::UITableView table, SEL action, bridge::NSIndexPath path,
                     bridge::UIMenuController menu);

  bool dataShouldHaveNewPage(bridge::Object value) const { return isContainer(kindOf(value)); }
  bridge::NSString detailStringFor(bridge::Object value) const { return displayText(value); }
  // The row at the path less `offset`, its title and detail through the first two arguments, which
  // data of an unknown kind leaves as they are.
  bridge::Object fillTitleAndDetail(id* title, id* detail, bridge::Object data,
                                    bridge::NSString pageTitle, bridge::NSIndexPath path,
                                    std::int32_t offset);

  void shareButtonTouched(bridge::UIBarButtonItem sender);
  void openMaps(bridge::NSObject sender);
  void dismissButtonTouched(bridge::NSObject sender);

 private:
  bool isExtraRow(bridge::NSIndexPath path) const { return path.row() < _extraDataCount; }
  TableRow rowAt(bridge::NSIndexPath path);
  SortedKeys& keysOf(bridge::Object data);
  void openPageOf(const TableRow& row) const;

  bridge::Owned<bridge::Object> _tableData;
  bridge::Owned<bridge::NSDictionary> _extraData;
  std::int32_t _extraDataCount = 0;
  std::int32_t _mapType = 0;
  bridge::Owned<bridge::NSString> _dataTitle;
  bridge::Owned<bridge::NSString> _mapString;
  SortedKeys _tableKeys;
  SortedKeys _extraKeys;
};

}  // namespace lumifact
