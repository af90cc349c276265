// SPDX-License-Identifier: MIT
#include "bridge/runtime/fields.h"

#include <cstring>

namespace bridge {
namespace {

// The word in a field whose type encoding begins with the kind.
void* fieldWord(id object, const char* name, char kind) {
  if (!object) return nullptr;
  const Ivar field = class_getInstanceVariable(object_getClass(object), name);
  if (!field) return nullptr;
  const char* encoding = ivar_getTypeEncoding(field);
  if (!encoding || encoding[0] != kind) return nullptr;
  void* word = nullptr;
  std::memcpy(&word, reinterpret_cast<const char*>(object) + ivar_getOffset(field), sizeof word);
  return word;
}

}  // namespace

Object objectField(Object object, const char* name) {
  return Object(static_cast<id>(fieldWord(object.get(), name, '@')));
}

SEL selectorField(Object object, const char* name) {
  return static_cast<SEL>(fieldWord(object.get(), name, ':'));
}

}  // namespace bridge
