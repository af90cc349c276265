// SPDX-License-Identifier: MIT
//
// Methods of the host that are replaced, and methods that are added to its classes. A hook is one
// constant row of class, selector and C function; the function's signature is the method's own.
//
//   void layOutCell(id self, SEL command) { stock<&layOutCell>(self, command); ... }
//   id cellBadge(id self, SEL) { ... }
//
//   constinit const HookRow cellHooks[] = {
//       replaced<"HostCell", "layoutSubviews", &layOutCell>,
//       added<"HostCell", "badge", "@@:", &cellBadge>,
//   };
#pragma once

#include <span>

#include "bridge/runtime/encoding.h"
#include "bridge/runtime/objc.h"

namespace bridge {

template <typename Signature>
class Stock;

// The saved implementation of a replaced method: called like the method's own C function.
template <typename R, typename... Arguments>
class Stock<R(id, SEL, Arguments...)> {
 public:
  using Function = R (*)(id, SEL, Arguments...);

  // The zero of R where there was no implementation to save.
  R operator()(id self, SEL command, Arguments... arguments) const {
    if (!_saved) return R();
    return reinterpret_cast<Function>(_saved)(self, command, arguments...);
  }

  IMP* slot() { return &_saved; }

 private:
  IMP _saved = nullptr;
};

// What the function of a row replaced. There is one for each function: a function stands in one
// row.
template <auto Hook>
inline constinit Stock<std::remove_pointer_t<decltype(Hook)>> stock;

enum class HookKind { replaced, added };

// One method. `apply` does what the row says to the class; the row itself holds no cast function
// pointer, so that a list of rows is a constant.
struct HookRow {
  const char* className;
  const char* selector;
  HookKind kind;
  const char* encoding;
  void (*apply)(Class aClass, const HookRow& row);
};

using HookList = std::span<const HookRow>;

namespace hook_detail {

template <typename Signature>
struct Method;
template <typename R, typename... Arguments>
struct Method<R(id, SEL, Arguments...)> {
  static constexpr std::size_t arguments = sizeof...(Arguments);
  static constexpr bool isLowered =
      std::same_as<R, Lowered<R>> && (... && std::same_as<Arguments, Lowered<Arguments>>);
};

template <auto Hook>
void applyReplaced(Class aClass, const HookRow& row) {
  MSHookMessageEx(aClass, sel_registerName(row.selector), reinterpret_cast<IMP>(Hook),
                  stock<Hook>.slot());
}

template <auto Hook>
void applyAdded(Class aClass, const HookRow& row) {
  class_addMethod(aClass, sel_registerName(row.selector), reinterpret_cast<IMP>(Hook),
                  row.encoding);
}

// The encoding of the function, once it is known to be one that the runtime may call.
template <FixedString Selector, auto Hook>
constexpr const auto& checkedEncoding() {
  using Signature = std::remove_pointer_t<decltype(Hook)>;
  static_assert(Method<Signature>::isLowered,
                "A hook is called by the runtime: it takes ids and BOOLs, no handles or bools.");
  static_assert(Method<Signature>::arguments == argumentCount(Selector.view()),
                "A hook takes one argument for each colon of its selector.");
  return Encoding<Signature>::text;
}

template <FixedString ClassName, FixedString Selector, auto Hook>
constexpr HookRow replacedRow() {
  return {ClassName.text, Selector.text, HookKind::replaced, checkedEncoding<Selector, Hook>().text,
          &applyReplaced<Hook>};
}

template <FixedString ClassName, FixedString Selector, FixedString StatedEncoding, auto Hook>
constexpr HookRow addedRow() {
  static_assert(checkedEncoding<Selector, Hook>().view() == StatedEncoding.view(),
                "The stated encoding is that of the added method.");
  return {ClassName.text, Selector.text, HookKind::added, StatedEncoding.text, &applyAdded<Hook>};
}

}  // namespace hook_detail

template <FixedString ClassName, FixedString Selector, auto Hook>
inline constexpr HookRow replaced = hook_detail::replacedRow<ClassName, Selector, Hook>();

template <FixedString ClassName, FixedString Selector, FixedString StatedEncoding, auto Hook>
inline constexpr HookRow added = hook_detail::addedRow<ClassName, Selector, StatedEncoding, Hook>();

// Applies the rows in order. Rows of one class that stand together share one look-up; the rows of
// a class that does not exist are passed over, and no row's failure stops another.
void applyHooks(HookList rows);

}  // namespace bridge
