// SPDX-License-Identifier: MIT
//
// A data source and a delegate for tests of tables: the one shows "SECTION.ROW", the other notes
// what it is told.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/class_builder.h"
#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/ui_table_view.h"

namespace desktop::uikit {

inline std::string textOf(ItemPath path) {
  return std::to_string(path.section) + "." + std::to_string(path.item);
}

class TableSource : public Bound<TableSource, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<TableSource>("TableSource")
            .method<"numberOfSectionsInTableView:", &TableSource::sections>()
            .method<"tableView:numberOfRowsInSection:", &TableSource::rows>()
            .method<"tableView:cellForRowAtIndexPath:", &TableSource::cell>()
            .method<"tableView:titleForHeaderInSection:", &TableSource::header>()
            .method<"tableView:titleForFooterInSection:", &TableSource::footer>()
            .build();
    return made;
  }

  NSInteger sectionCount = 1;
  NSInteger rowCount = 0;  // of every section
  std::string headerTitle;
  std::string footerTitle;
  NSInteger cellStyle = 0;
  enum class Answer { cells, nothing, text, always } answer = Answer::cells;
  bool reloadsMeanwhile = false;
  bool usesIdentifier = true;
  bool wastesCells = false;  // asks for one that waits, and does not show it

  int cellsMade = 0;
  int countsAsked = 0;
  Owned<UITableViewCell> onlyCell;

 private:
  NSInteger sections(UITableView) const { return sectionCount; }
  NSInteger rows(UITableView, NSInteger) {
    ++countsAsked;
    return rowCount;
  }
  Object header(UITableView, NSInteger) const { return titleOf(headerTitle); }
  Object footer(UITableView, NSInteger) const { return titleOf(footerTitle); }
  static Object titleOf(const std::string& title) {
    return title.empty() ? NSString() : NSString::make(title);
  }

  Object cell(UITableView table, NSIndexPath path) {
    if (reloadsMeanwhile) {
      send<void, "reloadData">(table);
      send<NSInteger, "numberOfSections">(table);
    }
    if (answer == Answer::nothing) return {};
    if (answer == Answer::text) return NSString::make("no cell");
    if (answer == Answer::always) {
      if (!onlyCell) onlyCell = makeCell();
      return onlyCell;
    }
    UITableViewCell made = table.dequeueCell(NSString::make("row"));
    if (wastesCells) made = {};
    if (!made) made = makeCell().autorelease();
    made.textLabel().setText(NSString::make(textOf(*itemPathOf(path))));
    return made;
  }

  Owned<UITableViewCell> makeCell() {
    ++cellsMade;
    const auto identifier = usesIdentifier ? NSString::make("row") : NSString();
    return UITableViewCell::make(static_cast<UITableViewCell::Style>(cellStyle), identifier);
  }
};

// Notes selections and menu questions, and what is done then.
class TableWatcher : public Bound<TableWatcher, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<TableWatcher>("TableWatcher")
            .method<"tableView:willSelectRowAtIndexPath:", &TableWatcher::willSelect>()
            .method<"tableView:didSelectRowAtIndexPath:", &TableWatcher::didSelect>()
            .method<"tableView:didDeselectRowAtIndexPath:", &TableWatcher::didDeselect>()
            .method<"tableView:shouldShowMenuForRowAtIndexPath:", &TableWatcher::shouldShowMenu>()
            .method<"tableView:canPerformAction:forRowAtIndexPath:withSender:",
                    &TableWatcher::canPerform>()
            .method<"tableView:performAction:forRowAtIndexPath:withSender:",
                    &TableWatcher::perform>()
            .build();
    return made;
  }

  std::vector<std::string> events;
  bool allowsSelection = true;
  bool showsMenu = true;
  std::string allowedActions = "copy:";
  bool reloadsOnSelection = false;
  Object sender;

 private:
  static std::string text(NSIndexPath path) { return textOf(*itemPathOf(path)); }
  Object willSelect(UITableView, NSIndexPath path) const {
    return allowsSelection ? path : NSIndexPath();
  }
  void didSelect(UITableView table, NSIndexPath path) {
    events.push_back("select " + text(path));
    if (reloadsOnSelection) send<void, "reloadData">(table);
  }
  void didDeselect(UITableView, NSIndexPath path) { events.push_back("deselect " + text(path)); }
  bool shouldShowMenu(UITableView, NSIndexPath path) {
    events.push_back("menu " + text(path));
    return showsMenu;
  }
  bool canPerform(UITableView, SEL action, NSIndexPath, Object) const {
    return allowedActions.find(sel_getName(action)) != std::string::npos;
  }
  void perform(UITableView, SEL action, NSIndexPath path, Object from) {
    events.push_back(sel_getName(action) + (" " + text(path)));
    sender = from;
  }
};

}  // namespace desktop::uikit
