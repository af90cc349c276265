// SPDX-License-Identifier: MIT
//
// Small classes to send messages to, hook and extend: what a host would have. They are plain
// runtime classes, made without the class builder, so that they test it and the hooks from outside.
#pragma once

#include "bridge/runtime.h"

namespace victims {

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  bool operator==(const Rect&) const = default;
};

// A class of this name below another one (NSObject where none is named); not yet registered.
class ClassMaker {
 public:
  explicit ClassMaker(const char* name, const char* superclass = "NSObject");

  template <typename R, typename... Arguments>
  ClassMaker& method(const char* selector, R (*function)(id, SEL, Arguments...)) {
    return add(_made, selector, reinterpret_cast<IMP>(function),
               bridge::Encoding<R(id, SEL, Arguments...)>::text.text);
  }
  template <typename R, typename... Arguments>
  ClassMaker& classMethod(const char* selector, R (*function)(id, SEL, Arguments...)) {
    return add(object_getClass(bridge::rawObject(_made)), selector, reinterpret_cast<IMP>(function),
               bridge::Encoding<R(id, SEL, Arguments...)>::text.text);
  }
  // A field of one word: an object ("@"), a selector (":") or anything else.
  ClassMaker& field(const char* name, const char* encoding);

  Class build();

 private:
  ClassMaker& add(Class aClass, const char* selector, IMP function, const char* encoding);

  Class _made;
};

// A new object of the class, released with the handle.
bridge::Owned<bridge::Object> make(Class aClass);

// Puts a word into a field of an object.
void setField(bridge::Object object, const char* name, const void* word);

// A class whose objects count their ends in `deaths`.
Class mortalClass();
extern int deaths;

// A method that raises NSInvalidArgumentException, as a host method may.
void raise(id self, SEL command);

}  // namespace victims

template <>
struct bridge::Encoding<victims::Rect> {
  static constexpr FixedString text = "{Rect=dddd}";
};
