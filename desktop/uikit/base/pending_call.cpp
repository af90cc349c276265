// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/pending_call.h"

#include <utility>

namespace desktop::uikit {

void PendingCall::callAfter(Seconds delay, Scheduler::Work work) {
  cancel();
  _timer = scheduler().callAfter(delay, [this, work = std::move(work)] {
    _timer = 0;
    work();
  });
}

// The scheduler may be another one by now: it does not know the timer then.
void PendingCall::cancel() {
  if (_timer != 0) scheduler().cancel(std::exchange(_timer, 0));
}

}  // namespace desktop::uikit
