// SPDX-License-Identifier: MIT
//
// UIActivityViewController: the share sheet. It offers to copy the text of what is shared, and to
// save it.
#pragma once

#include <string>

#include "bridge/block.h"
#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UIActivityViewControllerState
    : public Bound<UIActivityViewControllerState, UIViewControllerState, UIActivityViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSArray items() const { return _items; }
  NSArray excludedActivityTypes() const { return _excluded; }
  // What is copied and saved, as UTF-8: what "%@" prints of each item, a line an item.
  std::string text() const;

  enum class Activity { copy, save };
  // Does what a press on the row does: the text is copied at once, or saved when the sheet has
  // gone.
  void perform(Activity activity);
  void cancel();

 private:
  using Completion = Block<void(NSString, bool, NSArray, NSObject)>;

  UIViewController initWithItems(NSArray items, NSArray activities);
  void setExcludedActivityTypes(NSArray types);
  const BlockHeader* completionHandler() const { return _completion.get(); }
  void setCompletionHandler(const BlockHeader* handler);
  NSInteger modalPresentationStyle() const { return custom; }
  void loadView();
  void showPresented(bool shown);

  bool isExcluded(const char* activityType) const;
  NSString preview() const;
  ObjectList<UIAlertAction> rows();
  void leave(const char* activityType, const std::function<void()>& afterwards);

  Owned<NSArray> _items;
  Owned<NSArray> _excluded;
  Completion _completion;
};

}  // namespace desktop::uikit
