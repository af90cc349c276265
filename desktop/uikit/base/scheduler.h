// SPDX-License-Identifier: MIT
//
// Time as a value: it stands still until somebody advances it, so that a window drives it by the
// real clock and a test or a script by saying how long to wait.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace desktop::uikit {

using Seconds = double;  // since the application's start, or a stretch of time

class Scheduler {
 public:
  using Work = std::function<void()>;
  using Timer =
      std::uint64_t;  // never 0, and never that of other work, of another scheduler either

  Seconds now() const { return _now; }

  // Work to be done once, the delay from now; at the next advance where it is 0 or less.
  Timer callAfter(Seconds delay, Work work);
  // Takes back what was not yet done; anything else is ignored.
  void cancel(Timer timer);
  // When the next work is due; none where there is none.
  std::optional<Seconds> nextDue() const;

  // Moves time on and does what falls due on the way, in the order of time, then of asking.
  // Work that is asked for meanwhile is done too where it falls due. Time never goes back.
  void advanceTo(Seconds time);

 private:
  struct Due {
    Seconds time;
    Timer timer;
    // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm of clang-tidy 14.
    auto operator<=>(const Due&) const = default;
  };

  Seconds _now = 0;
  std::map<Due, Work> _work;
};

// The time of this process.
Scheduler& scheduler();

}  // namespace desktop::uikit
