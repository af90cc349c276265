// SPDX-License-Identifier: MIT
//
// The C++ state lies inside the runtime object, in an instance variable as large as it is, which
// carries the class's own name. A state that inherits another continues it: it begins where the
// superclass's begins, and the new variable holds what it adds, right behind the superclass's. So
// nothing may stand between the two: the fields that others read by name stand before the state of
// a class that begins one, and behind the state of any other.
#include "bridge/class_builder.h"

#include <bit>
#include <string>

namespace bridge {
namespace {

constinit std::atomic<long> allLiveObjects = 0;

void addMethods(Class aClass, const std::vector<BoundMethod>& methods) {
  for (const BoundMethod& method : methods)
    class_addMethod(aClass, sel_registerName(method.selector), method.implementation,
                    method.encoding);
}

void addField(Class aClass, const char* name, std::size_t size, std::size_t alignment,
              const char* encoding) {
  class_addIvar(aClass, name, size, static_cast<std::uint8_t>(std::countr_zero(alignment)),
                encoding);
}

void addFields(Class aClass, const std::vector<BoundField>& fields) {
  for (const BoundField& field : fields)
    addField(aClass, field.name, sizeof(void*), alignof(void*), field.encoding);
}

std::string stateName(const ClassRecord& record) {
  return std::string("_stateOf") + record.name;
}

void addState(Class aClass, const ClassRecord& record, const BoundClass& binding) {
  const std::size_t inherited = binding.parent ? binding.parent->stateSize() : 0;
  const std::size_t size = record.size - inherited;
  if (size == 0) return;
  const std::string encoding = "[" + std::to_string(size) + "C]";
  addField(aClass, stateName(record).c_str(), size, binding.parent ? 1 : record.alignment,
           encoding.c_str());
}

std::ptrdiff_t offsetOfState(Class aClass, const ClassRecord& record, const BoundClass& binding) {
  if (binding.parent) return binding.parent->stateOffset;
  return ivar_getOffset(class_getInstanceVariable(aClass, stateName(record).c_str()));
}

void declareProtocols(Class aClass, const std::vector<const char*>& names) {
  for (const char* name : names)
    if (objc_protocol* protocol = objc_getProtocol(name)) class_addProtocol(aClass, protocol);
}

}  // namespace

long liveBoundObjects() {
  return allLiveObjects;
}

void class_builder_detail::countObject(BoundClass& binding, long change) {
  for (BoundClass* each = &binding; each; each = each->parent) {
    each->liveObjects += change;
    allLiveObjects += change;
  }
}

Class class_builder_detail::foreignSuperclass(const BoundClass& binding) {
  const BoundClass* top = &binding;
  while (top->parent) top = top->parent;
  return top->superclass;
}

Class registerClass(const ClassRecord& record, BoundClass& binding) {
  if (!record.superclass) return nullptr;
  if (binding.parent && class_getInstanceSize(record.superclass) != binding.parent->stateEnd)
    return nullptr;
  const Class made = objc_allocateClassPair(record.superclass, record.name, 0);
  if (!made) return nullptr;
  if (!binding.parent) addFields(made, record.fields);
  addState(made, record, binding);
  if (binding.parent) addFields(made, record.fields);
  addMethods(made, record.methods);
  addMethods(object_getClass(rawObject(made)), record.classMethods);
  declareProtocols(made, record.protocols);
  objc_registerClassPair(made);
  binding.superclass = record.superclass;
  binding.stateOffset = offsetOfState(made, record, binding);
  binding.stateEnd = static_cast<std::size_t>(binding.stateOffset) + record.size;
  return made;
}

}  // namespace bridge
