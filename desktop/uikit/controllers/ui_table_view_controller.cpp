// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_table_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/lists/ui_table_view.h"

namespace desktop::uikit {

Class UITableViewController::classObject() {
  using Self = UITableViewController;
  static const Class made =
      bridge::ClassBuilder<Self>("UITableViewController")
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
UITableViewController::~UITableViewController() {
  const auto table = bridge::as<bridge::UITableView>(UIViewController::of(self()).viewIfLoaded());
  if (bridge::send<id, "delegate">(table) == self().get())
    bridge::send<void, "setDelegate:">(table, bridge::NSObject());
  if (bridge::send<id, "dataSource">(table) == self().get())
    bridge::send<void, "setDataSource:">(table, bridge::NSObject());
}

bridge::UITableViewController UITableViewController::init() {
  return bridge::send<bridge::UITableViewController, "initWithStyle:">(
      self(), NSInteger{UITableView::plain});
}

bridge::UITableViewController UITableViewController::initWithStyle(NSInteger style) {
  _style = style;
  return super<bridge::UITableViewController, "init">();
}

void UITableViewController::loadView() {
  const auto table = bridge::Owned<bridge::UITableView>::adopt(
      bridge::send<bridge::UITableView, "initWithFrame:style:">(
          bridge::send<id, "alloc">(bridge::UITableView::classObject()), rectOfSize(screen().size),
          _style));
  table->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  bridge::send<void, "setDataSource:">(table, self());
  bridge::send<void, "setDelegate:">(table, self());
  bridge::send<void, "setView:">(self(), table);
}

bridge::UITableView UITableViewController::tableView() const {
  return bridge::as<bridge::UITableView>(self().view());
}

void UITableViewController::setTableView(bridge::UITableView table) {
  bridge::send<void, "setView:">(self(), table);
}

void UITableViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (!_clearsSelection) return;
  const bridge::UITableView table = tableView();
  const auto selected = bridge::send<bridge::NSIndexPath, "indexPathForSelectedRow">(table);
  if (selected) bridge::send<void, "deselectRowAtIndexPath:animated:">(table, selected, animated);
}

}  // namespace desktop::uikit
