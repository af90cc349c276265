// SPDX-License-Identifier: MIT
//
// PUAlbumListViewController: the albums of the library, and below them what could not be shown.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/library/albums.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_table_view_controller.h"

namespace desktop::photos_ui {

class PUAlbumListViewController
    : public Bound<PUAlbumListViewController, uikit::UITableViewControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static Owned<UIViewController> make();

 private:
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewWillDisappear(bool animated);
  NSInteger numberOfRows(UITableView table, NSInteger section) const;
  CGFloat heightForRow(UITableView table, NSIndexPath path) const;
  UITableViewCell cellForRow(UITableView table, NSIndexPath path);
  void didSelectRow(UITableView table, NSIndexPath path);
  void libraryChanged(const library::LibraryChange& change);

  void settings(NSObject sender);
  UITableViewCell problemsCell(UITableView table) const;
  void refresh();

  std::vector<library::Album> _albums;
  std::size_t _problemCount = 0;
  LibraryObserver _observer{
      [this](const library::LibraryChange& change) { libraryChanged(change); }};
};

}  // namespace desktop::photos_ui
