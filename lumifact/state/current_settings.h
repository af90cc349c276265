// SPDX-License-Identifier: MIT
//
// The settings in effect: plain values that hooks read at the moment they need them. Only the
// loader writes them.
#pragma once

#include "bridge/corefoundation.h"
#include "lumifact/state/settings.h"

namespace lumifact {

// The settings as they were last loaded.
extern constinit Settings settings;

// The height in points of one line of thumbnail info text, measured at each load. A host without
// fonts keeps what it starts with.
extern constinit double infoLineHeight;

// Reads the settings file anew. A file that cannot be read means the defaults of a missing one;
// nothing is reported. What is on screen stays as it is.
void loadSettings();

// The callback of settingsChangedNotification: loads the settings. Any other name is ignored.
void settingsChanged(CFNotificationCenterRef centre, void* observer, CFStringRef name,
                     const void* object, CFDictionaryRef userInfo);

}  // namespace lumifact
