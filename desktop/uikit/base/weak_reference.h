// SPDX-License-Identifier: MIT
//
// A reference that forgets its object when that goes, for what is told of things and owned by
// nobody who tells.
#pragma once

#include <memory>

#include "bridge/foundation.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class WeakReference {
 public:
  WeakReference() = default;
  explicit WeakReference(NSObject object);

  // Nil where the object has gone, and of nil. Borrowed.
  NSObject get() const { return _place ? NSObject(*_place) : NSObject(); }

 private:
  std::shared_ptr<const id> _place;  // shared by all references to the object
};

}  // namespace desktop::uikit
