// SPDX-License-Identifier: MIT
//
// System-wide notifications by name, between all processes of one user that share a folder. Plain
// C++ over one file descriptor: no daemon, no thread, no object runtime.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace foundation {

// Where the processes that use a device root meet: a folder below the root.
std::string notificationFolder(std::string_view deviceRoot);

// Tells every process that observes the name in the folder, this one included, and does not wait
// for any of them. Nobody observing is no error.
//
// Errors: a name that has no form as a file name (longer than 255 bytes with its escapes); what
// the system says of a folder that cannot be written.
model::Result<bool> postNotification(const std::string& folder, std::string_view name);

// The observers of one process. Not thread-safe: used by the thread that runs the main loop.
//
//   NotificationCentre centre(notificationFolder(root));
//   centre.addObserver("com.example/changed", [](std::string_view name) { ... });
//   poll(centre.descriptor()) ... centre.deliver();
class NotificationCentre {
 public:
  using Callback = std::function<void(std::string_view name)>;

  explicit NotificationCentre(std::string folder);
  ~NotificationCentre();
  NotificationCentre(const NotificationCentre&) = delete;
  NotificationCentre& operator=(const NotificationCentre&) = delete;

  // Calls back at each delivery of the name from now on, for the life of the centre. Creates the
  // folder (for the user alone) where it is missing.
  // Errors: as postNotification; no more watches to be had.
  model::Result<bool> addObserver(std::string name, Callback callback);

  // Readable when something waits for deliver(); -1 where the system has none to give.
  int descriptor() const { return _descriptor; }

  // Calls back for what was posted since the last call, in the order of the first post of each
  // name; posts of one name that waited together are one delivery. Never waits. Callbacks may
  // observe, post and deliver. Answers the number of names delivered.
  int deliver();

 private:
  struct Observer {
    std::string name;
    Callback callback;
    int watch = -1;
  };

  model::Result<int> watch(const std::string& name);
  std::vector<std::string> takePosted();
  void notePosted(int watch, unsigned mask, std::vector<std::string>& posted);

  std::string _folder;
  int _descriptor = -1;
  std::vector<Observer> _observers;
};

}  // namespace foundation
