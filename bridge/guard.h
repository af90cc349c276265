// SPDX-License-Identifier: MIT
//
// The line that no exception of the extension's own work crosses into the host.
//
// In a hook the call of the saved implementation stands outside: what the host raises there is the
// host's own business and passes through.
#pragma once

#include <exception>
#include <type_traits>
#include <utility>

namespace bridge {

// Notes an exception that was caught, in the debug log.
void logCaught(const char* reason) noexcept;

// Runs a hook's own work. Whatever leaves it, an exception of ours or one that the host raises at
// something we asked of it, is logged, and the answer is the zero of the work's result.
//
//   stock<&layOutCell>(self, command);
//   guarded([&] { placeBadge(HostCell(self)); });
template <typename Work>
auto guarded(Work&& work) noexcept -> std::invoke_result_t<Work> {
  using Result = std::invoke_result_t<Work>;
  try {
    return std::forward<Work>(work)();
  } catch (const std::exception& exception) {
    logCaught(exception.what());
  } catch (...) {
    logCaught("raised by the host");
  }
  return Result();
}

// Runs a method of a class of our own, which may be called on from and call on to the host at any
// depth: only C++ exceptions are ours to catch, what the host raises passes through.
template <typename Work>
auto guardedMethod(Work&& work) -> std::invoke_result_t<Work> {
  using Result = std::invoke_result_t<Work>;
  try {
    return std::forward<Work>(work)();
  } catch (const std::exception& exception) {
    logCaught(exception.what());
  }
  return Result();
}

}  // namespace bridge
