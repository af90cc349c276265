// SPDX-License-Identifier: MIT
#include "tests/lumifact/grid/grid_screen.h"

#include <filesystem>

#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/lists/index_path.h"
#include "lumifact/details/one_up_state.h"
#include "lumifact/grid/grid_size_button.h"
#include "lumifact/loader/hook_table.h"
#include "tests/lumifact/views/foundation_test.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {

HookedHost::HookedHost() {
  useThePhonesFoundation();
  static const bool isHooked = [] {
    desktop::uikit::registerUIKit();
    desktop::photos_ui::registerPhotosUI();
    for (const HookList rows : hookTable()) applyHooks(rows);
    const AutoreleasePool pool;
    gridSizeButton(UIColor::grayColor());
    UIScreen::mainScreen();
    return true;
  }();
  static_cast<void>(isHooked);
}

GridScreenTest::GridScreenTest() {
  settings = {};
  infoLineHeight = 16;
  createFileSizeCache();
  host::fileCalls() = {};
}

// The button outlives the albums that it tells, and the last photo is kept as it was.
GridScreenTest::~GridScreenTest() {
  const AutoreleasePool pool;
  send<void, "removeTarget:action:forControlEvents:">(gridSizeButton({}).button, NSObject(), SEL(),
                                                      ~NSUInteger{0});
  oneUpState() = {};
  createFileSizeCache();
}

void GridScreenTest::openAlbumOf(int count, const std::string& album) {
  for (int index = 0; index < count; ++index)
    folder.photo(album + "/" + (index < 10 ? "0" : "") + std::to_string(index) + ".jpg",
                 index * desktop::photos_ui::aDay);
  openAlbum(album);
}

void GridScreenTest::openAlbum(const std::string& album) {
  open();
  ASSERT_FALSE(desktop::photos_ui::openAlbum(album));
  settle();
}

void GridScreenTest::addPhoto(const std::string& name, double date, std::uintmax_t size) const {
  const std::string path = folder.photo(name);
  std::filesystem::resize_file(path, size);
  desktop::library::setFileDate(path, date);
}

PUPhotosGridViewController GridScreenTest::controller() {
  return PUPhotosGridViewController(top().get());
}

PUPhotosGridCell GridScreenTest::cellOf(NSInteger item) {
  return send<PUPhotosGridCell, "cellForItemAtIndexPath:">(collection(),
                                                           desktop::uikit::indexPathOf({0, item}));
}

UIView GridScreenTest::barOf(NSInteger item) {
  return send<UIView, "sizeLabelView">(cellOf(item));
}

std::string GridScreenTest::captionOf(NSInteger item) {
  return send<UILabel, "sizeLabel">(cellOf(item)).text().utf8();
}

void GridScreenTest::layOutCells() {
  const auto cells = send<NSArray, "visibleCells">(collection());
  for (NSUInteger index = 0; index < cells.count(); ++index)
    send<void, "setNeedsLayout">(cells.at(index));
  settle();
}

void GridScreenTest::askForCells(Sizes sizes) {
  if (sizes == Sizes::unknown) createFileSizeCache();
  send<void, "reloadData">(collection());
  settle();
}

void GridScreenTest::pressItem(long item) {
  longPress(placeOf(item));
}

void GridScreenTest::setEditing(bool editing) {
  send<void, "setEditing:animated:">(controller(), editing, false);
  settle();
}

}  // namespace lumifact
