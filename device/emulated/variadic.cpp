// SPDX-License-Identifier: MIT
//
// snprintf as the phone's code calls it: what stands for the dots lies on the stack, eight bytes
// each, where Linux would look into registers first. A va_list whose registers are used up reads
// the same (Procedure Call Standard for AArch64, "the va_list type").
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

extern "C" {

struct StackArguments {
  void* stack;
  void* generalRegisters = nullptr;
  void* vectorRegisters = nullptr;
  int generalBytesLeft = 0;
  int vectorBytesLeft = 0;
};

__attribute__((used)) int phone_printToBuffer(char* buffer, std::size_t size, const char* format,
                                              void* stack) {
  const StackArguments arguments{stack};
  std::va_list list;
  static_assert(sizeof list == sizeof arguments);
  std::memcpy(&list, &arguments, sizeof list);
  return std::vsnprintf(buffer, size, format, list);
}

// The caller's arguments begin where its stack ends.
__attribute__((naked)) int phone_snprintf(char*, std::size_t, const char*, ...) {
  asm("mov x3, sp\n\tb phone_printToBuffer");
}

}  // extern "C"
