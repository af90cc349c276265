// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/select_button.h"

namespace desktop::photos_ui {

namespace {

NSString titleOf(SelectButton button) {
  switch (button) {
    case SelectButton::none:
      break;
    case SelectButton::select:
      return NSString::make("Select");
    case SelectButton::cancel:
      return NSString::make("Cancel");
  }
  return {};
}

bool isShown(NSString title, NSArray items) {
  if (!title) return !items;
  return items.count() > 0 && title.isEqualToString(UIBarButtonItem(items.at(0).get()).title());
}

}  // namespace

void showSelectButton(UIViewController grid, SelectButton button) {
  const UINavigationItem bar = grid.navigationItem();
  const NSString title = titleOf(button);
  if (isShown(title, bar.rightBarButtonItems())) return;
  if (!title) return bar.setRightBarButtonItems({});
  const auto item = button == SelectButton::cancel
                        ? UIBarButtonItem::withTitle(title, UIBarButtonItem::done, grid,
                                                     selector<"endSelecting:">())
                        : UIBarButtonItem::withTitle(title, UIBarButtonItem::plain, grid,
                                                     selector<"beginSelecting:">());
  bar.setRightBarButtonItems(NSArray::of(item.get()));
}

}  // namespace desktop::photos_ui
