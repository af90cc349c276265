// SPDX-License-Identifier: MIT
//
// How a block lies in memory (clang.llvm.org/docs/Block-ABI-Apple.html), and the functions that
// every platform copies and releases blocks with.
#pragma once

namespace bridge {

struct BlockDescriptor {
  unsigned long reserved;
  unsigned long size;                              // of the whole block, in bytes
  void (*copy)(void* target, const void* source);  // completes a bytewise copy
  void (*dispose)(const void* block);
  const char* signature;  // type encoding of the invoke function
};

// What stands in front of the values that a block captures.
struct BlockHeader {
  void* isa;
  int flags;
  int reserved;
  void (*invoke)();
  const BlockDescriptor* descriptor;
};

inline constexpr int blockOnHeap = 1 << 24;
inline constexpr int blockHasCopyAndDispose = 1 << 25;
inline constexpr int blockIsGlobal = 1 << 28;
inline constexpr int blockHasSignature = 1 << 30;

}  // namespace bridge

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the platform's.
#pragma GCC visibility push(default)
extern "C" {
extern void* _NSConcreteStackBlock[32];
extern void* _NSConcreteGlobalBlock[32];
extern void* _NSConcreteMallocBlock[32];

// A block on the heap for a block anywhere; +1. Null where there is no memory, and of null.
void* _Block_copy(const void* block);
void _Block_release(const void* block);
}
#pragma GCC visibility pop
// NOLINTEND(bugprone-reserved-identifier)
