// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/scheduler.h"

#include <algorithm>
#include <utility>

namespace desktop::uikit {
namespace {

constinit Scheduler::Timer lastTimer = 0;

}  // namespace

Scheduler::Timer Scheduler::callAfter(Seconds delay, Work work) {
  const Timer timer = ++lastTimer;
  _work.emplace(Due{_now + std::max(delay, 0.0), timer}, std::move(work));
  return timer;
}

void Scheduler::cancel(Timer timer) {
  std::erase_if(_work, [timer](const auto& entry) { return entry.first.timer == timer; });
}

std::optional<Seconds> Scheduler::nextDue() const {
  if (_work.empty()) return std::nullopt;
  return _work.begin()->first.time;
}

void Scheduler::advanceTo(Seconds time) {
  while (!_work.empty() && _work.begin()->first.time <= time) {
    auto due = _work.extract(_work.begin());
    _now = std::max(_now, due.key().time);
    due.mapped()();
  }
  _now = std::max(_now, time);
}

Scheduler& scheduler() {
  static auto& made = *new Scheduler;
  return made;
}

}  // namespace desktop::uikit
