// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_album_list_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/albums/album_cell.h"
#include "desktop/photos_ui/albums/album_controllers.h"
#include "desktop/photos_ui/albums/problem_list.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/settings/settings_screen.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_glyphs.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {

namespace {

constexpr CGFloat problemsHeight = 44;  // points
constexpr auto settingsItem = static_cast<UIBarButtonItem::SystemItem>(uikit::Glyph::settings);

void push(UIViewController from, UIViewController controller) {
  from.navigationController().push(controller, UIViewController::animated);
}

}  // namespace

Class PUAlbumListViewController::classObject() {
  using Self = PUAlbumListViewController;
  static const Class made = ClassBuilder<Self>("PUAlbumListViewController")
                                .method<"viewDidLoad", &Self::viewDidLoad>()
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"viewWillDisappear:", &Self::viewWillDisappear>()
                                .method<"settings:", &Self::settings>()
                                .method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>()
                                .method<"tableView:heightForRowAtIndexPath:", &Self::heightForRow>()
                                .method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>()
                                .method<"tableView:didSelectRowAtIndexPath:", &Self::didSelectRow>()
                                .build();
  return made;
}

Owned<UIViewController> PUAlbumListViewController::make() {
  auto made = makeNew<UIViewController>(classObject());
  made->setTitle(NSString::make("Albums"));
  useLargeTitle(made, true);
  const auto settings =
      UIBarButtonItem::withSystemItem(settingsItem, made, selector<"settings:">());
  made->navigationItem().setRightBarButtonItems(NSArray::of(settings.get()));
  return made;
}

void PUAlbumListViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  self().tableView().registerCell(AlbumCell::classObject(), NSString::make("album"));
  self().tableView().setBackgroundColor(UIColor::whiteColor());
  if (host().library) host().library->findPanoramas();
}

void PUAlbumListViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  refresh();
}

// The class answers this itself, so that whoever extends it extends only this.
void PUAlbumListViewController::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
}

void PUAlbumListViewController::refresh() {
  library::PhotoLibrary* const library = host().library;
  _albums = library ? library->albums() : std::vector<library::Album>();
  _problemCount = library ? library->problems().size() : 0;
  self().tableView().reloadData();
}

void PUAlbumListViewController::libraryChanged(const library::LibraryChange&) {
  const UIView view = viewIfLoaded();
  if (view && uikit::UIViewState::of(view).window()) refresh();
}

void PUAlbumListViewController::settings(NSObject) {
  SettingsScreen::presentOver(self(), UIViewController::animated);
}

NSInteger PUAlbumListViewController::numberOfRows(UITableView, NSInteger) const {
  return static_cast<NSInteger>(_albums.size()) + (_problemCount > 0 ? 1 : 0);
}

CGFloat PUAlbumListViewController::heightForRow(UITableView, NSIndexPath path) const {
  const bool isAlbum = static_cast<std::size_t>(path.row()) < _albums.size();
  return isAlbum ? AlbumCell::height : problemsHeight;
}

UITableViewCell PUAlbumListViewController::cellForRow(UITableView table, NSIndexPath path) {
  const auto row = static_cast<std::size_t>(path.row());
  if (row >= _albums.size()) return problemsCell(table);
  const auto cell = table.dequeueCell(NSString::make("album"), path);
  AlbumCell::of(cell).show(_albums[row]);
  return cell;
}

UITableViewCell PUAlbumListViewController::problemsCell(UITableView table) const {
  const NSString identifier = NSString::make("problems");
  UITableViewCell cell = table.dequeueCell(identifier);
  if (!cell) cell = UITableViewCell::make(UITableViewCell::value1, identifier).autorelease();
  cell.textLabel().setText(NSString::make("Not Shown"));
  cell.detailTextLabel().setText(NSString::make(std::to_string(_problemCount)));
  cell.setAccessoryType(UITableViewCell::disclosureIndicator);
  return cell;
}

void PUAlbumListViewController::didSelectRow(UITableView, NSIndexPath path) {
  const auto row = static_cast<std::size_t>(path.row());
  push(self(), row < _albums.size() ? makeAlbumController(_albums[row]) : ProblemList::make());
}

}  // namespace desktop::photos_ui
