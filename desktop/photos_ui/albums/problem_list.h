// SPDX-License-Identifier: MIT
//
// The files and folders that could not be shown, and why.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/base/library_observer.h"

namespace desktop::photos_ui {

class ProblemList : public bridge::Bound<ProblemList, bridge::UITableViewController>,
                    private LibraryObserver {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static bridge::Owned<bridge::UIViewController> make();

 private:
  void viewWillAppear(bool animated);
  NSInteger numberOfRows(bridge::UITableView table, NSInteger section) const;
  CGFloat heightForRow(bridge::UITableView table, bridge::NSIndexPath path) const;
  bridge::UITableViewCell cellForRow(bridge::UITableView table, bridge::NSIndexPath path) const;
  void libraryChanged(const library::LibraryChange& change) override;
  void refresh();

  std::vector<std::pair<std::string, std::string>> _problems;  // path and reason, as shown
};

}  // namespace desktop::photos_ui
