// SPDX-License-Identifier: MIT
//
// Objects tied to other objects, which GCC's runtime lacks. They live in one table beside the
// objects, and go when their owner goes: every object ends in the root class's dealloc, so that is
// where the table is told.
#include <atomic>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "bridge/foundation/ns_object.h"
#include "desktop/platform.h"

namespace desktop::runtime {
namespace {

// The policies' bits, as the platform's header has them.
constexpr std::uintptr_t retained = 1;
constexpr std::uintptr_t copied = 3;
constexpr std::uintptr_t atomicGetter = 01400;

struct Association {
  id value = nullptr;
  std::uintptr_t policy = 0;
};

using Associations = std::unordered_map<const void*, Association>;

void releaseValue(const Association& association) {
  if (association.policy & retained) Owned<Object>::adopt(Object(association.value)).reset();
}

id acquireValue(id value, std::uintptr_t policy) {
  if ((policy & copied) == copied) return bridge::copy(bridge::NSObject(value)).detach().get();
  if (policy & retained) return Owned<Object>::retain(Object(value)).detach().get();
  return value;
}

// All associations of the process. Values are released outside the lock, since their own end may
// come back here.
class AssociationTable {
 public:
  // Puts the value in place and answers what it replaces.
  Association exchange(id owner, const void* key, Association association) {
    const std::scoped_lock lock(_mutex);
    Associations& ofOwner = _owners[owner];
    Association previous = std::exchange(ofOwner[key], association);
    if (!association.value) ofOwner.erase(key);
    if (ofOwner.empty()) _owners.erase(owner);
    _ownerCount = _owners.size();
    return previous;
  }

  id value(id owner, const void* key) {
    const std::scoped_lock lock(_mutex);
    const auto ofOwner = _owners.find(owner);
    if (ofOwner == _owners.end()) return nullptr;
    const auto found = ofOwner->second.find(key);
    if (found == ofOwner->second.end()) return nullptr;
    const auto [value, policy] = found->second;
    if (policy & atomicGetter) Owned<Object>::retain(Object(value)).autorelease();
    return value;
  }

  Associations remove(id owner) {
    if (_ownerCount == 0) return {};  // most objects die while nothing is tied to any
    const std::scoped_lock lock(_mutex);
    const auto taken = _owners.extract(owner);
    _ownerCount = _owners.size();
    return taken ? std::move(taken.mapped()) : Associations();
  }

 private:
  std::mutex _mutex;
  std::unordered_map<id, Associations> _owners;
  std::atomic<std::size_t> _ownerCount = 0;
};

AssociationTable& table() {
  static auto& kept = *new AssociationTable;  // outlives every object
  return kept;
}

using Dealloc = void (*)(id, SEL);
constinit std::atomic<Dealloc> stockObjectDealloc = nullptr;
constinit std::atomic<Dealloc> stockProxyDealloc = nullptr;

template <std::atomic<Dealloc>& Stock>
void deallocWithAssociations(id self, SEL command) {
  for (const auto& [key, association] : table().remove(self)) releaseValue(association);
  Stock.load()(self, command);
}

template <std::atomic<Dealloc>& Stock>
void watchRootClass(const char* name) {
  const Method dealloc = class_getInstanceMethod(objc_getClass(name), selector<"dealloc">());
  if (!dealloc) return;
  Stock = reinterpret_cast<Dealloc>(method_getImplementation(dealloc));
  method_setImplementation(dealloc, reinterpret_cast<IMP>(&deallocWithAssociations<Stock>));
}

void watchRootClasses() {
  static std::once_flag once;
  std::call_once(once, [] {
    watchRootClass<stockObjectDealloc>("NSObject");
    watchRootClass<stockProxyDealloc>("NSProxy");
  });
}

}  // namespace
}  // namespace desktop::runtime

using namespace desktop::runtime;

void objc_setAssociatedObject(id object, const void* key, id value, std::uintptr_t policy) {
  if (!object) return;
  watchRootClasses();
  releaseValue(table().exchange(object, key, {acquireValue(value, policy), policy}));
}

id objc_getAssociatedObject(id object, const void* key) {
  return object ? table().value(object, key) : nullptr;
}
