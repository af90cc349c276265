// SPDX-License-Identifier: MIT
//
// Copying and releasing blocks, as the public block ABI lays them out
// (clang.llvm.org/docs/Block-ABI-Apple.html). Foundation's own functions here leave alone every
// block whose flag bit 29 is clear; these take their place by being found first.
//
// The platform never messages a block and never puts one into a collection: the block classes are
// bare symbols.
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "bridge/block_layout.h"
#include "desktop/platform.h"

using bridge::BlockDescriptor;
using bridge::BlockHeader;

void* _NSConcreteStackBlock[32] = {};
void* _NSConcreteGlobalBlock[32] = {};
void* _NSConcreteMallocBlock[32] = {};

namespace {

// The reference count lies in the low bits of the flags, in steps of two.
constexpr int countMask = 0xfffe;
constexpr int countStep = 2;

void* copyToHeap(const BlockHeader& block) {
  const BlockDescriptor& descriptor = *block.descriptor;
  auto* copy = static_cast<BlockHeader*>(std::malloc(descriptor.size));
  if (!copy) return nullptr;
  std::memcpy(static_cast<void*>(copy), &block, descriptor.size);
  copy->isa = _NSConcreteMallocBlock;
  copy->flags = (copy->flags & ~countMask) | bridge::blockOnHeap | countStep;
  if (copy->flags & bridge::blockHasCopyAndDispose) descriptor.copy(copy, &block);
  return copy;
}

}  // namespace

void* _Block_copy(const void* block) {
  if (!block) return nullptr;
  auto* header = static_cast<BlockHeader*>(const_cast<void*>(block));
  if (header->flags & bridge::blockIsGlobal) return header;
  if (!(header->flags & bridge::blockOnHeap)) return copyToHeap(*header);
  std::atomic_ref(header->flags).fetch_add(countStep);
  return header;
}

void _Block_release(const void* block) {
  if (!block) return;
  auto* header = static_cast<BlockHeader*>(const_cast<void*>(block));
  if (!(header->flags & bridge::blockOnHeap)) return;
  const int before = std::atomic_ref(header->flags).fetch_sub(countStep);
  if ((before & countMask) != countStep) return;
  if (header->flags & bridge::blockHasCopyAndDispose) header->descriptor->dispose(header);
  std::free(header);
}
