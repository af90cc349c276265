// SPDX-License-Identifier: MIT
//
// What runs when the extension is mapped into a host: once, on the thread that maps it, before the
// host has built its interface. The settings come before the observer and both before the first
// hook, so that the very first hooked call sees the user's choices. Nothing here reports a
// failure: what is missing leaves its feature without effect, and the rest goes on.
#include <dlfcn.h>

#include "bridge/foundation.h"
#include "bridge/guard.h"
#include "lumifact/loader/hook_table.h"
#include "lumifact/state/current_settings.h"
#include "lumifact/state/file_size_cache.h"

namespace lumifact {
namespace {

void observeSettingsChanges() {
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr,
                                  &settingsChanged,
                                  toCFString(NSString::make(settingsChangedNotification)), nullptr,
                                  suspensionBehaviourCoalesce);
}

// The camera maps the photo classes only when it shows a photo, which is too late for the hooks.
void loadPhotoClasses() {
  const NSString host = NSBundle::mainBundle().bundleIdentifier();
  if (host.isEqualToString(NSString::make("com.apple.camera")))
    dlopen("/System/Library/Frameworks/PhotosUI.framework/PhotosUI", RTLD_LAZY);
}

void installHooks() {
  for (const HookList rows : hookTable()) applyHooks(rows);
}

__attribute__((constructor)) void initialise() {
  const AutoreleasePool pool;
  for (const auto step : {&createFileSizeCache, &loadSettings, &observeSettingsChanges,
                          &loadPhotoClasses, &installHooks})
    guarded(step);
}

}  // namespace
}  // namespace lumifact
