// SPDX-License-Identifier: MIT
//
// UITableViewController: a controller whose view is a table, with itself as data source and
// delegate.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UITableViewControllerState
    : public Bound<UITableViewControllerState, UIViewControllerState, UITableViewController> {
 public:
  using Bound::Bound;
  ~UITableViewControllerState();
  static Class classObject();

 private:
  UITableViewController init();
  UITableViewController initWithStyle(NSInteger style);
  void loadView();
  UITableView tableView() const;
  void setTableView(UITableView table);
  void viewWillAppear(bool animated);
  bool clearsSelection() const { return _clearsSelection; }
  void setClearsSelection(bool clears) { _clearsSelection = clears; }

  NSInteger _style = 0;  // UITableView::Style
  bool _clearsSelection = true;
};

}  // namespace desktop::uikit
