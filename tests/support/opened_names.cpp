// SPDX-License-Identifier: MIT
#include "tests/support/opened_names.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <stdexcept>

namespace support {

OpenedNames::OpenedNames(const std::string& folder)
    : _watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  if (::inotify_add_watch(_watch.number(), folder.c_str(), IN_OPEN) < 0)
    throw std::runtime_error("cannot watch " + folder);
}

int OpenedNames::count(const std::string& name) {
  drain();
  return _counts[name];
}

void OpenedNames::drain() {
  std::array<char, 4096> buffer{};
  for (;;) {
    const ssize_t length = ::read(_watch.number(), buffer.data(), buffer.size());
    if (length <= 0) return;
    for (std::size_t offset = 0; offset < static_cast<std::size_t>(length);) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + offset, sizeof(event));
      if (event.len > 0) ++_counts[buffer.data() + offset + sizeof(event)];
      offset += sizeof(event) + event.len;
    }
  }
}

}  // namespace support
