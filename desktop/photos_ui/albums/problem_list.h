// SPDX-License-Identifier: MIT
//
// The files and folders that could not be shown, and why.
#pragma once

#include <string>
#include <utility>
#include <vector>
#include "desktop/uikit/controllers/ui_table_view_controller.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class ProblemList : public Bound<ProblemList, uikit::UITableViewControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static Owned<UIViewController> make();

 private:
  void viewWillAppear(bool animated);
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  CGFloat heightForRow(UITableView table, NSIndexPath path) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path) const;
  void libraryChanged(const library::LibraryChange& change);
  void refresh();

  std::vector<std::pair<std::string, std::string>> _problems;  // path and reason, as shown
  LibraryObserver _observer{
      [this](const library::LibraryChange& change) { libraryChanged(change); }};
};

}  // namespace desktop::photos_ui
