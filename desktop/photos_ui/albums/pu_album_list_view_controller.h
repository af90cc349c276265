// SPDX-License-Identifier: MIT
//
// PUAlbumListViewController: the albums of the library, and below them what could not be shown.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/library/albums.h"
#include "desktop/photos_ui/base/library_observer.h"

namespace desktop::photos_ui {

class PUAlbumListViewController
    : public bridge::Bound<PUAlbumListViewController, bridge::UITableViewController>,
      private LibraryObserver {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static bridge::Owned<bridge::UIViewController> make();

 private:
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewWillDisappear(bool animated);
  NSInteger numberOfRows(bridge::UITableView table, NSInteger section) const;
  CGFloat heightForRow(bridge::UITableView table, bridge::NSIndexPath path) const;
  bridge::UITableViewCell cellForRow(bridge::UITableView table, bridge::NSIndexPath path);
  void didSelectRow(bridge::UITableView table, bridge::NSIndexPath path);
  void libraryChanged(const library::LibraryChange& change) override;

  bridge::UITableViewCell problemsCell(bridge::UITableView table) const;
  void refresh();

  std::vector<library::Album> _albums;
  std::size_t _problemCount = 0;
};

}  // namespace desktop::photos_ui
