// SPDX-License-Identifier: MIT
//
// What the extension's one log call is made of is checked on the way: a call that the phone would
// misread becomes a line that says so, and is seen wherever log lines are compared.
#include "device/emulated/system_log.h"

#include <algorithm>
#include <string>

#include "bridge/gnu/debug_log_sink.h"
#include "bridge/runtime/objc.h"
#include "device/emulated/log_arguments.h"

namespace device::emulated {
namespace {

constexpr std::uint8_t debugLevel = 2;

std::span<const std::uint8_t> loggingImage;

bool isInImage(const void* address) {
  const auto* byte = static_cast<const std::uint8_t*>(address);
  return byte >= loggingImage.data() && byte < loggingImage.data() + loggingImage.size();
}

// By its implementation, not by a message: the library's messages are its own.
const char* textOf(id object) {
  const SEL selector = sel_registerName("UTF8String");
  const Method method = class_getInstanceMethod(object_getClass(object), selector);
  const auto answer = reinterpret_cast<const char* (*)(id, SEL)>(method_getImplementation(method));
  return answer(object, selector);
}

// Source, line and text, in this order.
void logLine(const char* format, const std::vector<LogArgument>& arguments) {
  using enum LogArgument::Kind;
  constexpr LogArgument::Kind kinds[] = {text, number, object};
  if (!std::ranges::equal(arguments, kinds, {}, &LogArgument::kind)) {
    desktop_debugLog(format, "system log", 0, "not a source, a line and a text");
    return;
  }
  const id message = reinterpret_cast<id>(arguments[2].value);
  desktop_debugLog(format, reinterpret_cast<const char*>(arguments[0].value),
                   static_cast<int>(arguments[1].value), message ? textOf(message) : "(null)");
}

}  // namespace

void setLoggingImage(std::span<const std::uint8_t> image) {
  loggingImage = image;
}

char phone_os_log_default[64];

bool phone_os_log_type_enabled(const void* log, std::uint8_t type) {
  return log == phone_os_log_default && type == debugLevel;
}

void phone_os_log_impl(const void* library, const void* log, std::uint8_t type, const char* format,
                       const std::uint8_t* arguments, std::uint32_t size) {
  const auto read = readLogArguments(io::ByteView({arguments, size}));
  if (library != loggingImage.data() || !isInImage(format))
    desktop_debugLog("", "system log", 0, "a format that is not the library's");
  else if (!phone_os_log_type_enabled(log, type))
    desktop_debugLog(format, "system log", 0, "not the default log's debug level");
  else if (!read)
    desktop_debugLog(format, "system log", 0, read.error().reason.c_str());
  else
    logLine(format, *read);
}

}  // namespace device::emulated
