// SPDX-License-Identifier: MIT
//
// Work that one object has waiting: it goes with the object.
#pragma once

#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class PendingCall {
 public:
  PendingCall() = default;
  ~PendingCall() { cancel(); }
  PendingCall(const PendingCall&) = delete;
  PendingCall& operator=(const PendingCall&) = delete;

  // Does the work once, the delay from now on the process's clock; takes back what was waiting.
  void callAfter(Seconds delay, Scheduler::Work work);
  void cancel();
  bool isWaiting() const { return _timer != 0; }

 private:
  Scheduler::Timer _timer = 0;
};

}  // namespace desktop::uikit
