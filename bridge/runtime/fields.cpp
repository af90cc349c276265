// SPDX-License-Identifier: MIT
#include "bridge/runtime/fields.h"

#include <cstring>

#include "bridge/runtime/owned.h"

namespace bridge {
namespace {

// Where the word of a field lies whose type encoding begins with the kind; null where absent.
char* placeOf(id object, const char* name, char kind) {
  if (!object) return nullptr;
  const Ivar field = class_getInstanceVariable(object_getClass(object), name);
  if (!field) return nullptr;
  const char* encoding = ivar_getTypeEncoding(field);
  if (!encoding || encoding[0] != kind) return nullptr;
  return reinterpret_cast<char*>(object) + ivar_getOffset(field);
}

void* fieldWord(id object, const char* name, char kind) {
  void* word = nullptr;
  if (const char* place = placeOf(object, name, kind)) std::memcpy(&word, place, sizeof word);
  return word;
}

// Whether there is such a field.
bool setFieldWord(id object, const char* name, char kind, const void* word) {
  char* place = placeOf(object, name, kind);
  if (place) std::memcpy(place, &word, sizeof word);
  return place;
}

}  // namespace

Object objectField(Object object, const char* name) {
  return Object(static_cast<id>(fieldWord(object.get(), name, '@')));
}

SEL selectorField(Object object, const char* name) {
  return static_cast<SEL>(fieldWord(object.get(), name, ':'));
}

void setObjectField(Object object, const char* name, Object value) {
  const auto before = Owned<Object>::adopt(objectField(object, name));
  auto after = Owned<Object>::retain(value);
  if (setFieldWord(object.get(), name, '@', value.get())) static_cast<void>(after.detach());
}

void setBorrowedField(Object object, const char* name, Object value) {
  setFieldWord(object.get(), name, '@', value.get());
}

void setSelectorField(Object object, const char* name, SEL value) {
  setFieldWord(object.get(), name, ':', value);
}

}  // namespace bridge
