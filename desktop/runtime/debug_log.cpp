// SPDX-License-Identifier: MIT
#include "desktop/runtime/debug_log.h"

#include <mutex>
#include <utility>

#include "bridge/gnu/debug_log_sink.h"
#include "desktop/platform.h"

namespace desktop::runtime {
namespace {

std::mutex sinkMutex;

DebugLogSink& currentSink() {
  static auto& kept = *new DebugLogSink;
  return kept;
}

}  // namespace

std::string DebugLogLine::message() const {
  return "[" + source + ":" + std::to_string(line) + "] " + text;
}

DebugLogSink setDebugLogSink(DebugLogSink sink) {
  const std::scoped_lock lock(sinkMutex);
  return std::exchange(currentSink(), std::move(sink));
}

}  // namespace desktop::runtime

void desktop_debugLog(const char* format, const char* source, int line, const char* text) {
  using namespace desktop::runtime;
  std::unique_lock lock(sinkMutex);
  const DebugLogSink sink = currentSink();
  lock.unlock();
  if (sink) sink({format, source, line, text});
}
