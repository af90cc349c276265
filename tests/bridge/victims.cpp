// SPDX-License-Identifier: MIT
#include "tests/bridge/victims.h"

#include <cstring>

namespace victims {

using bridge::classNamed;
using bridge::send;

int deaths = 0;

ClassMaker::ClassMaker(const char* name, const char* superclass)
    : _made(objc_allocateClassPair(objc_getClass(superclass), name, 0)) {}

ClassMaker& ClassMaker::add(Class aClass, const char* selector, IMP function,
                            const char* encoding) {
  class_addMethod(aClass, sel_registerName(selector), function, encoding);
  return *this;
}

ClassMaker& ClassMaker::field(const char* name, const char* encoding) {
  class_addIvar(_made, name, sizeof(void*), 3, encoding);
  return *this;
}

Class ClassMaker::build() {
  objc_registerClassPair(_made);
  return _made;
}

bridge::Owned<bridge::Object> make(Class aClass) {
  return bridge::Owned<bridge::Object>::adopt(send<bridge::Object, "new">(aClass));
}

void setField(bridge::Object object, const char* name, const void* word) {
  const Ivar field = class_getInstanceVariable(object_getClass(object.get()), name);
  std::memcpy(reinterpret_cast<char*>(object.get()) + ivar_getOffset(field), &word, sizeof word);
}

Class mortalClass() {
  static const Class made =
      ClassMaker("Mortal")
          .method(
              "dealloc",
              +[](id self, SEL) {
                ++deaths;
                bridge::superSend<void, "dealloc">(self, classNamed<"NSObject">());
              })
          .build();
  return made;
}

void raise(id, SEL) {
  const id name =
      send<id, "stringWithUTF8String:">(classNamed<"NSString">(), "NSInvalidArgumentException");
  const id exception = send<id, "exceptionWithName:reason:userInfo:">(
      classNamed<"NSException">(), name, name, static_cast<id>(nullptr));
  send<void, "raise">(exception);
}

}  // namespace victims
