// SPDX-License-Identifier: MIT
//
// Most functions are the host's own under the same name: C's, C++'s, the runtime's, the platform's.
// The table has those that Linux lacks or calls otherwise.
#include "device/emulated/host_symbols.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <new>
#include <string_view>

#include "bridge/runtime/objc.h"
#include "device/emulated/system_log.h"

extern "C" {
void phone_objc_msgSend();
void phone_objc_msgSendSuper();
int phone_snprintf(char* buffer, std::size_t size, const char* format, ...);
}

namespace device::emulated {
namespace {

// Pointers are bound when the library is mapped, so nobody is left to ask this.
void bindLate() {
  std::fputs("a symbol was to be bound late\n", stderr);
  std::abort();
}

// On Linux both are inline.
Class classOf(id object) {
  return object_getClass(object);
}
void constructBadArrayNewLength(void* memory) {
  new (memory) std::bad_array_new_length;
}

struct Row {
  std::string_view name;
  const void* address;
};

template <typename Function>
Row row(std::string_view name, Function* function) {
  return {name, reinterpret_cast<const void*>(function)};
}

const Row* ownSymbol(std::string_view name) {
  static const Row rows[] = {
      row("__ZNSt20bad_array_new_lengthC1Ev", &constructBadArrayNewLength),
      row("__os_log_default", phone_os_log_default),
      row("__os_log_impl", &phone_os_log_impl),
      row("_objc_msgSend", &phone_objc_msgSend),
      row("_objc_msgSendSuper", &phone_objc_msgSendSuper),
      row("_object_getClass", &classOf),
      row("_os_log_type_enabled", &phone_os_log_type_enabled),
      row("_snprintf", &phone_snprintf),
      row("dyld_stub_binder", &bindLate),
  };
  const Row* found = std::ranges::find(rows, name, &Row::name);
  return found == std::end(rows) ? nullptr : found;
}

}  // namespace

const void* hostSymbol(const std::string& name) {
  if (const Row* own = ownSymbol(name)) return own->address;
  return name.starts_with('_') ? dlsym(RTLD_DEFAULT, name.c_str() + 1) : nullptr;
}

}  // namespace device::emulated
