// SPDX-License-Identifier: MIT
//
// Where an extension's debug log lines go.
#pragma once

#include <functional>
#include <string>

namespace desktop::runtime {

struct DebugLogLine {
  std::string format;  // as the extension gave it: "[%{public}s:%{public}d] %{public}@"
  std::string source;
  int line = 0;
  std::string text;

  // The format filled in: "[Source:12] text".
  std::string message() const;
  bool operator==(const DebugLogLine&) const = default;
};

using DebugLogSink = std::function<void(const DebugLogLine&)>;

// Sends all lines to the sink from now on, on the thread that logs; an empty sink, as at the
// start, drops them. Answers the sink so far. Thread-safe.
DebugLogSink setDebugLogSink(DebugLogSink sink);

}  // namespace desktop::runtime
