// SPDX-License-Identifier: MIT
//
// The host's side of the system-wide notification centre: where it meets other processes, and when
// it delivers. Extensions and hosts observe and post through the platform's C functions.
#pragma once

#include <string>
#include <vector>

#include "bridge/corefoundation.h"
#include "desktop/platform.h"

namespace desktop::runtime {

// Opens the centre in the folder (notificationFolder of the device root). Before, and where it
// cannot be opened, observers are recorded but hear nothing, and posts are dropped. Opening anew
// moves the observers over.
void openDarwinNotifications(const std::string& folder);

// For the main loop: a descriptor that is readable when something waits (-1 when there is none),
// and the delivery itself, which answers the number of names delivered.
int darwinNotificationDescriptor();
int deliverDarwinNotifications();

// An observer as it was registered.
struct DarwinObserver {
  const void* observer = nullptr;
  CFNotificationCallback callback = nullptr;
  std::string name;
  const void* object = nullptr;
  CFIndex suspensionBehaviour = 0;
};

// All that were added in this process, in order.
const std::vector<DarwinObserver>& darwinObservers();

}  // namespace desktop::runtime
