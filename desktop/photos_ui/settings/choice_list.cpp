// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/choice_list.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/large_title.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"

namespace desktop::photos_ui {

Class ChoiceList::classObject() {
  static const Class made =
      ClassBuilder<ChoiceList>("SettingsChoiceList")
          .method<"tableView:numberOfRowsInSection:", &ChoiceList::numberOfRows>()
          .method<"tableView:cellForRowAtIndexPath:", &ChoiceList::cellForRow>()
          .method<"tableView:didSelectRowAtIndexPath:", &ChoiceList::didSelectRow>()
          .build();
  return made;
}

Owned<UIViewController> ChoiceList::make(settings::Row row, std::function<model::Value()> value,
                                         SettingChanged changed) {
  auto made =
      makeWith<UIViewController, "initWithStyle:">(classObject(), NSInteger{UITableView::grouped});
  made->setTitle(NSString::make(row.label));
  useLargeTitle(made, false);
  ChoiceList& list = of(made.get());
  list._row = std::move(row);
  list._value = std::move(value);
  list._changed = std::move(changed);
  return made;
}

NSInteger ChoiceList::numberOfRows(UITableView, NSInteger) const {
  return static_cast<NSInteger>(_row.choices.size());
}

UITableViewCell ChoiceList::cellForRow(UITableView table, NSIndexPath path) const {
  using Cell = uikit::UITableViewCellState;
  const NSString identifier = NSString::make("choice");
  UITableViewCell cell = table.dequeueCell(identifier);
  if (!cell) cell = UITableViewCell::make(UITableViewCell::value1, identifier).autorelease();
  const settings::Choice& choice = _row.choices[static_cast<std::size_t>(path.row())];
  cell.textLabel().setText(NSString::make(choice.title));
  const bool holds = settings::choiceOf(_row, _value()) == &choice;
  Cell::of(cell).setAccessoryType(holds ? Cell::checkmark : Cell::noAccessory);
  return cell;
}

void ChoiceList::didSelectRow(UITableView table, NSIndexPath path) {
  table.deselectRow(path, UIViewController::animated);
  _changed(_row.choices[static_cast<std::size_t>(path.row())].value);
  table.reloadData();
}

}  // namespace desktop::photos_ui
