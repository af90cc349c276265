// SPDX-License-Identifier: MIT
//
// UITableViewController: a controller whose view is a table, with itself as data source and
// delegate.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_lists.h"

namespace desktop::uikit {

class UITableViewController
    : public bridge::Bound<UITableViewController, bridge::UIViewController> {
 public:
  using Bound::Bound;
  ~UITableViewController();
  static Class classObject();

 private:
  bridge::UITableViewController init();
  bridge::UITableViewController initWithStyle(NSInteger style);
  void loadView();
  bridge::UITableView tableView() const;
  void setTableView(bridge::UITableView table);
  void viewWillAppear(bool animated);
  bool clearsSelection() const { return _clearsSelection; }
  void setClearsSelection(bool clears) { _clearsSelection = clears; }

  NSInteger _style = 0;  // UITableView::Style
  bool _clearsSelection = true;
};

}  // namespace desktop::uikit
