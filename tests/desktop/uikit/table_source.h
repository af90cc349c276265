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

class TableSource : public bridge::Bound<TableSource, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        bridge::ClassBuilder<TableSource>("TableSource")
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
  bridge::Owned<bridge::UITableViewCell> onlyCell;

 private:
  NSInteger sections(bridge::UITableView) const { return sectionCount; }
  NSInteger rows(bridge::UITableView, NSInteger) {
    ++countsAsked;
    return rowCount;
  }
  bridge::Object header(bridge::UITableView, NSInteger) const { return titleOf(headerTitle); }
  bridge::Object footer(bridge::UITableView, NSInteger) const { return titleOf(footerTitle); }
  static bridge::Object titleOf(const std::string& title) {
    return title.empty() ? bridge::NSString() : bridge::NSString::make(title);
  }

  bridge::Object cell(bridge::UITableView table, bridge::NSIndexPath path) {
    if (reloadsMeanwhile) {
      bridge::send<void, "reloadData">(table);
      bridge::send<NSInteger, "numberOfSections">(table);
    }
    if (answer == Answer::nothing) return {};
    if (answer == Answer::text) return bridge::NSString::make("no cell");
    if (answer == Answer::always) {
      if (!onlyCell) onlyCell = makeCell();
      return onlyCell;
    }
    bridge::UITableViewCell made = table.dequeueCell(bridge::NSString::make("row"));
    if (wastesCells) made = {};
    if (!made) made = makeCell().autorelease();
    made.textLabel().setText(bridge::NSString::make(textOf(*itemPathOf(path))));
    return made;
  }

  bridge::Owned<bridge::UITableViewCell> makeCell() {
    ++cellsMade;
    const auto identifier = usesIdentifier ? bridge::NSString::make("row") : bridge::NSString();
    return bridge::UITableViewCell::make(static_cast<bridge::UITableViewCell::Style>(cellStyle),
                                         identifier);
  }
};

// Notes selections and menu questions, and what is done then.
class TableWatcher : public bridge::Bound<TableWatcher, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        bridge::ClassBuilder<TableWatcher>("TableWatcher")
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
  bridge::Object sender;

 private:
  static std::string text(bridge::NSIndexPath path) { return textOf(*itemPathOf(path)); }
  bridge::Object willSelect(bridge::UITableView, bridge::NSIndexPath path) const {
    return allowsSelection ? path : bridge::NSIndexPath();
  }
  void didSelect(bridge::UITableView table, bridge::NSIndexPath path) {
    events.push_back("select " + text(path));
    if (reloadsOnSelection) bridge::send<void, "reloadData">(table);
  }
  void didDeselect(bridge::UITableView, bridge::NSIndexPath path) {
    events.push_back("deselect " + text(path));
  }
  bool shouldShowMenu(bridge::UITableView, bridge::NSIndexPath path) {
    events.push_back("menu " + text(path));
    return showsMenu;
  }
  bool canPerform(bridge::UITableView, SEL action, bridge::NSIndexPath, bridge::Object) const {
    return allowedActions.find(sel_getName(action)) != std::string::npos;
  }
  void perform(bridge::UITableView, SEL action, bridge::NSIndexPath path, bridge::Object from) {
    events.push_back(sel_getName(action) + (" " + text(path)));
    sender = from;
  }
};

}  // namespace desktop::uikit
