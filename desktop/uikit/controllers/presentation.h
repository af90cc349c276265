// SPDX-License-Identifier: MIT
//
// One controller over another: what a controller presents, and what presents it. Controllers that
// present each other stand in a row, from the window's to the topmost.
#pragma once

#include <memory>
#include <vector>

#include "bridge/block.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class Presentation {
 public:
  // The part of a controller, which owns it.
  explicit Presentation(UIViewController owner) : _owner(owner) {}
  Presentation(const Presentation&) = delete;
  Presentation& operator=(const Presentation&) = delete;
  // What is presented goes at once.
  ~Presentation();

  // Directly above and directly below; borrowed, nil where none.
  UIViewController presented() const;
  UIViewController presenting() const { return _below ? _below->_owner : UIViewController(); }
  // Whether what is directly above is on its way in or out, until the views stand still.
  bool isInTransition() const { return _above && (_above->isComing || _above->isGoing); }
  bool isBeingPresented() const { return _below && _below->_above->isComing; }
  bool isBeingDismissed() const { return _below && _below->_above->isGoing; }

  // Another controller's comes above this one. REQUIRES: there is none above this one or below
  // that, and the owner's view is in a window.
  void present(Presentation& other, bool animated, const Block<void()>& completion);
  // Everything above this one goes, or, where there is nothing, this one itself. During a
  // transition it is refused, and logged.
  void dismiss(bool animated, const Block<void()>& completion);

 private:
  // What is directly above. `container` fills the window and holds the presented view; what touches
  // pass to it while its view moves goes nowhere.
  struct Above {
    Presentation* presentation;
    Owned<UIViewController> controller;
    Owned<UIView> container;
    bool coversAll;  // the presenter's view leaves the window meanwhile
    bool isComing = true;
    bool isGoing = false;
  };

  std::vector<Presentation*> allAbove() const;
  void placeBelowScreen() const;
  void finishPresenting(const std::shared_ptr<Above>& above);
  void dismissAbove(bool animated, const Block<void()>& completion);
  void finishDismissing(const std::shared_ptr<Above>& above);
  void putViewBack() const;

  UIViewController _owner;  // borrowed
  Presentation* _below = nullptr;
  std::shared_ptr<Above> _above;
};

}  // namespace desktop::uikit
