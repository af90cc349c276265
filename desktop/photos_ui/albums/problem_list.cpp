// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/problem_list.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "model/utf8.h"

namespace desktop::photos_ui {

namespace {

constexpr CGFloat rowHeight = 56;  // points

// Below the library's folder, which all share.
std::string shown(const std::string& path, const std::string& folder) {
  const bool isBelow = path.starts_with(folder + "/");
  return model::replacingInvalidUtf8(isBelow ? path.substr(folder.size() + 1) : path);
}

}  // namespace

Class ProblemList::classObject() {
  using Self = ProblemList;
  static const Class made = ClassBuilder<Self>("ProblemList")
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>()
                                .method<"tableView:heightForRowAtIndexPath:", &Self::heightForRow>()
                                .method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>()
                                .build();
  return made;
}

Owned<UIViewController> ProblemList::make() {
  auto made = makeNew<UIViewController>(classObject());
  made->setTitle(NSString::make("Not Shown"));
  useLargeTitle(made, false);
  return made;
}

void ProblemList::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  refresh();
}

void ProblemList::libraryChanged(const library::LibraryChange& change) {
  if (change.areProblemsChanged) refresh();
}

void ProblemList::refresh() {
  _problems.clear();
  if (const library::PhotoLibrary* const library = host().library)
    for (const auto& [path, reason] : library->problems())
      _problems.emplace_back(shown(path, library->folder()), reason);
  self().tableView().reloadData();
}

NSInteger ProblemList::numberOfRows(UITableView, NSInteger) const {
  return static_cast<NSInteger>(_problems.size());
}

CGFloat ProblemList::heightForRow(UITableView, NSIndexPath) const {
  return rowHeight;
}

UITableViewCell ProblemList::cellForRow(UITableView table, NSIndexPath path) const {
  const NSString identifier = NSString::make("problem");
  UITableViewCell cell = table.dequeueCell(identifier);
  if (!cell)
    cell = makeWith<UITableViewCell, "initWithStyle:reuseIdentifier:">(
               UITableViewCell::classObject(), NSInteger{uikit::UITableViewCellState::subtitle},
               identifier)
               .autorelease();
  const auto& [file, reason] = _problems[static_cast<std::size_t>(path.row())];
  cell.textLabel().setText(NSString::make(file));
  cell.detailTextLabel().setText(NSString::make(reason));
  cell.setSelectionStyle(UITableViewCell::noSelection);
  return cell;
}

}  // namespace desktop::photos_ui
