// SPDX-License-Identifier: MIT
//
// The C++ state lies inside the runtime object, in one instance variable as large as it is, which
// carries the class's own name: a bound class below another one has both. Fields that others read
// by name stand behind it.
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

void declareProtocols(Class aClass, const std::vector<const char*>& names) {
  for (const char* name : names)
    if (objc_protocol* protocol = objc_getProtocol(name)) class_addProtocol(aClass, protocol);
}

}  // namespace

long liveBoundObjects() {
  return allLiveObjects;
}

void class_builder_detail::countObject(BoundClass& binding, long change) {
  binding.liveObjects += change;
  allLiveObjects += change;
}

Class registerClass(const ClassRecord& record, BoundClass& binding) {
  if (!record.superclass) return nullptr;
  const Class made = objc_allocateClassPair(record.superclass, record.name, 0);
  if (!made) return nullptr;
  const std::string stateName = std::string("_stateOf") + record.name;
  const std::string stateEncoding = "[" + std::to_string(record.size) + "C]";
  addField(made, stateName.c_str(), record.size, record.alignment, stateEncoding.c_str());
  for (const BoundField& field : record.fields)
    addField(made, field.name, sizeof(void*), alignof(void*), field.encoding);
  addMethods(made, record.methods);
  addMethods(object_getClass(rawObject(made)), record.classMethods);
  declareProtocols(made, record.protocols);
  objc_registerClassPair(made);
  binding.superclass = record.superclass;
  binding.stateOffset = ivar_getOffset(class_getInstanceVariable(made, stateName.c_str()));
  return made;
}

}  // namespace bridge
