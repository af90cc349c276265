// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_table_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/lists/ui_table_view.h"

namespace desktop::uikit {

Class UITableViewControllerState::classObject() {
  using Self = UITableViewControllerState;
  static const Class made =
      ClassBuilder<Self>("UITableViewController")
          .method<"init", &Self::init>()
          .method<"initWithStyle:", &Self::initWithStyle>()
          .method<"loadView", &Self::loadView>()
          .method<"tableView", &Self::tableView>()
          .method<"setTableView:", &Self::setTableView>()
          .method<"viewWillAppear:", &Self::viewWillAppear>()
          .method<"clearsSelectionOnViewWillAppear", &Self::clearsSelection>()
          .method<"setClearsSelectionOnViewWillAppear:", &Self::setClearsSelection>()
          .build();
  return made;
}

// Somebody may keep the table longer than its controller. The delegate goes first, so that nobody
// is told of cells that go.
UITableViewControllerState::~UITableViewControllerState() {
  const auto table = as<UITableView>(viewIfLoaded());
  if (table.delegate() == self()) table.setDelegate(NSObject());
  if (table.dataSource() == self()) table.setDataSource(NSObject());
}

UITableViewController UITableViewControllerState::init() {
  return initWith<"initWithStyle:">(self(), NSInteger{UITableViewState::plain});
}

UITableViewController UITableViewControllerState::initWithStyle(NSInteger style) {
  _style = style;
  return super<UITableViewController, "init">();
}

void UITableViewControllerState::loadView() {
  const auto table = makeWith<UITableView, "initWithFrame:style:">(
      UITableView::classObject(), rectOfSize(screen().size), _style);
  table->setAutoresizingMask(flexibleWidth | flexibleHeight);
  table->setDataSource(self());
  table->setDelegate(self());
  self().setView(table);
}

UITableView UITableViewControllerState::tableView() const {
  return as<UITableView>(self().view());
}

void UITableViewControllerState::setTableView(UITableView table) {
  self().setView(table);
}

void UITableViewControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (!_clearsSelection) return;
  const UITableView table = tableView();
  const auto selected = table.indexPathForSelectedRow();
  if (selected) table.deselectRow(selected, UIViewController::Animated{animated});
}

}  // namespace desktop::uikit
