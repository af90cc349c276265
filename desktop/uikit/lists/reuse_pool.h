// SPDX-License-Identifier: MIT
//
// Views that scrolled out of sight and wait to show something else, by their reuse identifiers,
// and the classes that new ones are made of.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class ReusePool {
 public:
  // Null takes the class back.
  void registerClass(const std::string& identifier, Class aClass);

  // The view stays where it is in the tree until settle(), or for good where it is shown again. One
  // without an identifier is never used again.
  void put(const std::string& identifier, const Owned<UIView>& view);
  // A view that waits, told to prepare for its reuse, or else what is made: of the class that is
  // registered, or null. Autoreleased.
  using Make = std::function<Owned<UIView>(Class registered)>;
  UIView dequeue(const std::string& identifier, const Make& make);
  // The view shows something.
  void shown(UIView view);
  // Takes what shows nothing out of the list that it was put back by.
  void settle(UIView list);

 private:
  Owned<UIView> take(const std::string& identifier);

  std::map<std::string, Class> _classes;
  std::map<std::string, std::vector<Owned<UIView>>> _waiting;
  std::vector<Owned<UIView>> _unsettled;
};

}  // namespace desktop::uikit
