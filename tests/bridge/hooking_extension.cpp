// SPDX-License-Identifier: MIT
//
// An extension as they are in life: mapped into a host it was not linked with, at home in the
// host's runtime from its initialiser on. All that it does it does through the bridge.
#include "bridge/block.h"
#include "bridge/class_builder.h"
#include "bridge/corefoundation.h"
#include "bridge/foundation.h"
#include "bridge/hook.h"
#include "bridge/log.h"

namespace {

using namespace bridge;

// An object with a destructor that a dynamic initialiser makes: the initialiser below may run
// before it exists, so nothing there may need it.
struct Late {
  int value = 0;
  Late() { value = 1; }
};
Late late;

class Companion : public Bound<Companion, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<Companion>("ExtensionCompanion")
                                  .method<"answer", &Companion::answer>()
                                  .build();
    return made;
  }
  int answer() const { return 42; }
};

constinit AssociatedProperty<NSObject> companion;

int HostThing_value(id self, SEL command) {
  const int value = stock<&HostThing_value>(self, command);
  if (!companion.get(Object(self))) {
    const auto made = Owned<NSObject>::adopt(send<NSObject, "new">(Companion::classObject()));
    companion.set(Object(self), made);
  }
  return value + send<int, "answer">(companion.get(Object(self)));
}

void HostThing_run(id self, SEL command, const BlockHeader* done) {
  logDebug("HookingExtension", 1, "running");
  stock<&HostThing_run>(self, command, done);
}

int HostThing_extra(id, SEL, int number) {
  return number + late.value;
}

constinit int notified = 0;
int HostThing_notified(id, SEL) {
  return notified;
}

void noteChange(CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) {
  ++notified;
}

constinit const HookRow table[] = {
    replaced<"HostThing", "value", &HostThing_value>,
    replaced<"HostThing", "run:", &HostThing_run>,
    added<"HostThing", "extra:", "i@:i", &HostThing_extra>,
    added<"HostThing", "notified", "i@:", &HostThing_notified>,
};

__attribute__((constructor(101))) void initialise() {
  const AutoreleasePool pool;
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, &noteChange,
                                  toCFString(NSString::make("com.example/changed")), nullptr,
                                  suspensionBehaviourCoalesce);
  applyHooks(table);
}

}  // namespace
