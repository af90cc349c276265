// SPDX-License-Identifier: MIT
//
// Turns a C++ class into a class of the object runtime. A binding reads as a list:
//
//   Class Counter::classObject() {
//     static const Class made = ClassBuilder<Counter>("Counter")
//                                   .method<"initWithStart:", &Counter::initWithStart>()
//                                   .method<"count", &Counter::count>()
//                                   .build();
//     return made;
//   }
//
// The class is registered when it is first asked for. The templates here only gather a plain
// record; registerClass does the work.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/guard.h"
#include "bridge/runtime/encoding.h"
#include "bridge/runtime/owned.h"

namespace bridge {

struct BoundMethod {
  const char* selector;
  const char* encoding;
  IMP implementation;
};

// A field of one word beside the C++ state, which others read by name.
struct BoundField {
  const char* name;
  const char* encoding;
};

// All that registering a class needs. Texts are borrowed for the life of the process.
struct ClassRecord {
  const char* name = nullptr;
  Class superclass = nullptr;
  std::size_t size = 0;       // of the C++ state, in bytes
  std::size_t alignment = 1;  // of the C++ state, in bytes
  std::vector<BoundMethod> methods;
  std::vector<BoundMethod> classMethods;
  std::vector<BoundField> fields;
  std::vector<const char*> protocols;  // declared where the runtime knows them
};

// Registers the class and fills in its binding. Nil where the superclass does not exist or the
// name is taken.
Class registerClass(const ClassRecord& record, BoundClass& binding);

namespace class_builder_detail {

// The object is one more, or one less, of its class and of those above it.
void countObject(BoundClass& binding, long change);

// The class that the state at the top of the C++ classes is bound below.
Class foreignSuperclass(const BoundClass& binding);

// A C++ member function as the C function that the runtime calls.
template <typename T, auto Member>
struct MethodThunk;

template <typename T>
inline constexpr bool isOwned = false;
template <typename T>
inline constexpr bool isOwned<Owned<T>> = true;

template <typename T, typename Call, typename R, typename... Arguments>
struct Thunk {
  static_assert(!isOwned<R>,
                "A method answers a borrowed object: hand an Owned to the pool by autorelease().");

  static constexpr std::size_t arguments = sizeof...(Arguments);
  static constexpr const char* encoding = Encoding<R(id, SEL, Arguments...)>::text.text;

  static Lowered<R> call(id self, SEL, Lowered<Arguments>... values) {
    return guardedMethod([&]() -> Lowered<R> {
      if constexpr (std::is_void_v<R>) {
        Call::on(self, Abi<Arguments>::raise(values)...);
      } else {
        return Abi<R>::lower(Call::on(self, Abi<Arguments>::raise(values)...));
      }
    });
  }
};

template <typename T, auto Member>
struct MemberCall {
  template <typename... Arguments>
  static decltype(auto) on(id self, Arguments&&... values) {
    return (T::of(self).*Member)(std::forward<Arguments>(values)...);
  }
};

template <auto Function>
struct FunctionCall {
  template <typename... Arguments>
  static decltype(auto) on(id, Arguments&&... values) {
    return Function(std::forward<Arguments>(values)...);
  }
};

template <typename T, typename Base, typename R, typename... Arguments,
          R (Base::*Member)(Arguments...)>
struct MethodThunk<T, Member> : Thunk<T, MemberCall<T, Member>, R, Arguments...> {};
template <typename T, typename Base, typename R, typename... Arguments,
          R (Base::*Member)(Arguments...) const>
struct MethodThunk<T, Member> : Thunk<T, MemberCall<T, Member>, R, Arguments...> {};
template <typename T, typename R, typename... Arguments, R (*Function)(Arguments...)>
struct MethodThunk<T, Function> : Thunk<T, FunctionCall<Function>, R, Arguments...> {};

// allocWithZone: of the class: that of the first class which is not bound in C++, then the state is
// made in place, superclasses' parts first.
template <typename T>
id allocate(id self, SEL command, void* zone) {
  BoundClass& binding = T::binding;
  const Class superclass = foreignSuperclass(binding);
  const id object = dispatchSuper<id>(self, object_getClass(rawObject(superclass)), command, zone);
  if (!object) return nullptr;
  try {
    new (reinterpret_cast<char*>(object) + binding.stateOffset) T(object);
  } catch (const std::exception& exception) {
    logCaught(exception.what());
    superSend<void, "dealloc">(object, superclass);
    return nullptr;
  }
  countObject(binding, 1);
  return object;
}

// dealloc of the class: the C++ state goes first, while the object around it is still whole.
template <typename T>
void deallocate(id self, SEL command) {
  BoundClass& binding = T::binding;
  T::of(self).~T();
  countObject(binding, -1);
  dispatchSuper<void>(self, foreignSuperclass(binding), command);
}

}  // namespace class_builder_detail

template <typename T>
class ClassBuilder {
 public:
  // The name is borrowed for the life of the process.
  explicit ClassBuilder(const char* name) {
    using namespace class_builder_detail;
    static_assert(alignof(T) <= alignof(std::max_align_t),
                  "The state of a bound class lies inside an object from the common allocator.");
    static_assert(Handle<typename T::Superclass> || !std::is_polymorphic_v<T>,
                  "A table of virtual functions would come before the state that is inherited.");
    static_assert(Handle<typename T::Superclass> || alignof(T) == alignof(typename T::Superclass),
                  "A state that inherits another stands where that one would.");
    _record.name = name;
    _record.superclass = T::Superclass::classObject();
    _record.size = sizeof(T);
    _record.alignment = alignof(T);
    _record.classMethods.push_back({"allocWithZone:", encodingOf<id(id, SEL, void*)>.data(),
                                    reinterpret_cast<IMP>(&allocate<T>)});
    _record.methods.push_back(
        {"dealloc", encodingOf<void(id, SEL)>.data(), reinterpret_cast<IMP>(&deallocate<T>)});
  }

  // A message answered by a member function. Overrides the superclass's.
  template <FixedString Selector, auto Member>
  ClassBuilder& method() {
    _record.methods.push_back(bind<Selector, Member>());
    return *this;
  }

  // A message to the class, answered by a static member function.
  template <FixedString Selector, auto Function>
  ClassBuilder& classMethod() {
    _record.classMethods.push_back(bind<Selector, Function>());
    return *this;
  }

  // A field that others read by its name, as bridge/runtime/fields.h does: an object ("@") or a
  // selector (":"), nil at first. What a destructor leaves in it is not released. A class whose
  // state inherits another's and that has fields can have no state inherit its own.
  ClassBuilder& field(const char* name, const char* encoding) {
    _record.fields.push_back({name, encoding});
    return *this;
  }

  ClassBuilder& conformsTo(const char* protocol) {
    _record.protocols.push_back(protocol);
    return *this;
  }

  Class build() const { return registerClass(_record, T::binding); }

 private:
  template <FixedString Selector, auto Member>
  static BoundMethod bind() {
    using Thunk = class_builder_detail::MethodThunk<T, Member>;
    static_assert(Thunk::arguments == argumentCount(Selector.view()),
                  "A bound function takes one argument for each colon of its selector.");
    return {Selector.text, Thunk::encoding, reinterpret_cast<IMP>(&Thunk::call)};
  }

  ClassRecord _record;
};

}  // namespace bridge
