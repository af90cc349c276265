// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/weak_reference.h"

#include "bridge/class_builder.h"
#include "bridge/runtime/associated_property.h"

namespace desktop::uikit {
namespace {

// Tied to an object, and released with it.
class WeakAnchor : public Bound<WeakAnchor, NSObject> {
 public:
  using Bound::Bound;
  ~WeakAnchor() {
    if (place) *place = nullptr;
  }

  static Class classObject() {
    static const Class made = ClassBuilder<WeakAnchor>("DesktopWeakAnchor").build();
    return made;
  }

  std::shared_ptr<id> place;
};

constinit AssociatedProperty<NSObject> anchorProperty;

}  // namespace

WeakReference::WeakReference(NSObject object) {
  if (!object) return;
  auto anchor = Owned<NSObject>::retain(anchorProperty.get(object));
  if (!anchor) {
    anchor = makeNew<NSObject>(WeakAnchor::classObject());
    WeakAnchor::of(anchor.get()).place = std::make_shared<id>(object.get());
    anchorProperty.set(object, anchor);
  }
  _place = WeakAnchor::of(anchor.get()).place;
}

}  // namespace desktop::uikit
