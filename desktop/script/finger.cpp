// SPDX-License-Identifier: MIT
#include "desktop/script/finger.h"

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/touch/touch_dispatcher.h"

namespace desktop::script {

using uikit::application;
using uikit::touches;

void Finger::down(CGPoint at, uikit::Seconds rest) {
  _place = at;
  touches().down(at);
  application().advance(rest);
}

void Finger::move(CGPoint at) {
  _place = at;
  touches().move(at);
  application().advance(0);
}

void Finger::up() const {
  touches().up(_place);
  application().advance(0);
}

void Finger::cancel() const {
  touches().cancel();
  application().advance(0);
}

}  // namespace desktop::script
