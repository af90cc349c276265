// SPDX-License-Identifier: MIT
//
// The system's log call is a macro of its own header; what it becomes is written out here.
#include "bridge/log.h"

#include <cstdint>

#include "bridge/runtime.h"

extern "C" {
struct os_log_s;
extern os_log_s _os_log_default;
extern const void* const __dso_handle;
bool os_log_type_enabled(os_log_s* log, std::uint8_t type);
void _os_log_impl(const void* library, os_log_s* log, std::uint8_t type, const char* format,
                  std::uint8_t* arguments, std::uint32_t size);
}

namespace bridge {
namespace {

constexpr std::uint8_t debugLevel = 2;

// A macro, since the compiler lays out the arguments only by a literal.
#define BRIDGE_LOG_LINE "[%{public}s:%{public}d] %{public}@"

}  // namespace

void logDebug(const char* source, int line, const std::string& text) {
  if (!os_log_type_enabled(&_os_log_default, debugLevel)) return;
  const id message = send<id, "stringWithUTF8String:">(classNamed<"NSString">(), text.c_str());
  std::uint8_t
      arguments[__builtin_os_log_format_buffer_size(BRIDGE_LOG_LINE, source, line, message)];
  __builtin_os_log_format(arguments, BRIDGE_LOG_LINE, source, line, message);
  _os_log_impl(&__dso_handle, &_os_log_default, debugLevel, BRIDGE_LOG_LINE, arguments,
               sizeof arguments);
}

}  // namespace bridge
