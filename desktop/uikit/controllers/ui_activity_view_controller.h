// SPDX-License-Identifier: MIT
//
// UIActivityViewController: the share sheet. It offers to copy the text of what is shared, and to
// save it.
#pragma once

#include <string>

#include "bridge/block.h"
#include "bridge/bound.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UIActivityViewController
    : public bridge::Bound<UIActivityViewController, bridge::UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::NSArray items() const { return _items; }
  bridge::NSArray excludedActivityTypes() const { return _excluded; }
  // What is copied and saved, as UTF-8: what "%@" prints of each item, a line an item.
  std::string text() const;

  enum class Activity { copy, save };
  // Does what a press on the row does: the text is copied at once, or saved when the sheet has
  // gone.
  void perform(Activity activity);
  void cancel();

 private:
  using Completion = bridge::Block<void(bridge::NSString, bool, bridge::NSArray, bridge::NSObject)>;

  bridge::UIViewController initWithItems(bridge::NSArray items, bridge::NSArray activities);
  void setExcludedActivityTypes(bridge::NSArray types);
  const bridge::BlockHeader* completionHandler() const { return _completion.get(); }
  void setCompletionHandler(const bridge::BlockHeader* handler);
  NSInteger modalPresentationStyle() const { return custom; }
  void loadView();
  void showPresented(bool shown);

  bool isExcluded(const char* activityType) const;
  bridge::NSString preview() const;
  ObjectList<bridge::UIAlertAction> rows();
  void leave(const char* activityType, const std::function<void()>& afterwards);

  bridge::Owned<bridge::NSArray> _items;
  bridge::Owned<bridge::NSArray> _excluded;
  Completion _completion;
};

}  // namespace desktop::uikit
