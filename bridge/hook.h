// SPDX-License-Identifier: MIT
//
// Methods of the host that are replaced, and methods that are added to its classes: a constant
// table of rows, applied in one loop.
//
//   Stock<void(id, SEL)> stockLayoutSubviews;
//   void HostCell_layoutSubviews(id self, SEL command) { stockLayoutSubviews(self, command); ... }
//
//   constinit const HookRow table[] = {
//       replaced<"HostCell", "layoutSubviews", &HostCell_layoutSubviews, stockLayoutSubviews>,
//       added<"HostCell", "badge", "@@:", &HostCell_badge>,
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

enum class HookKind { replaced, added };

// One method. `apply` does what the row says to the class; the row itself holds no cast function
// pointer, so that a table of rows is a constant.
struct HookRow {
  const char* className;
  const char* selector;
  HookKind kind;
  const char* encoding;
  void (*apply)(Class aClass, const HookRow& row);
};

namespace hook_detail {

template <typename Function>
struct Signature;
template <typename R, typename... Arguments>
struct Signature<R (*)(id, SEL, Arguments...)> {
  using Type = R(id, SEL, Arguments...);
  static constexpr std::size_t arguments = sizeof...(Arguments);
  static constexpr bool isLowered =
      std::same_as<R, Lowered<R>> && (... && std::same_as<Arguments, Lowered<Arguments>>);
};

template <auto Hook, auto& Saved>
void applyReplaced(Class aClass, const HookRow& row) {
  MSHookMessageEx(aClass, sel_registerName(row.selector), reinterpret_cast<IMP>(Hook),
                  Saved.slot());
}

template <auto Hook>
void applyAdded(Class aClass, const HookRow& row) {
  class_addMethod(aClass, sel_registerName(row.selector), reinterpret_cast<IMP>(Hook),
                  row.encoding);
}

template <FixedString Selector, auto Hook>
constexpr bool checked() {
  using Traits = Signature<decltype(Hook)>;
  static_assert(Traits::isLowered,
                "A hook is called by the runtime: it takes ids and BOOLs, no handles or bools.");
  static_assert(Traits::arguments == argumentCount(Selector.view()),
                "A hook takes one argument for each colon of its selector.");
  return true;
}

template <FixedString ClassName, FixedString Selector, auto Hook, auto& Saved>
constexpr HookRow replacedRow() {
  using Type = typename Signature<decltype(Hook)>::Type;
  static_assert(checked<Selector, Hook>());
  static_assert(std::same_as<std::remove_reference_t<decltype(Saved)>, Stock<Type>>,
                "The saved implementation has the signature of the hook.");
  return {ClassName.text, Selector.text, HookKind::replaced, Encoding<Type>::text.text,
          &applyReplaced<Hook, Saved>};
}

template <FixedString ClassName, FixedString Selector, FixedString StatedEncoding, auto Hook>
constexpr HookRow addedRow() {
  using Type = typename Signature<decltype(Hook)>::Type;
  static_assert(checked<Selector, Hook>());
  static_assert(encodingOf<Type> == StatedEncoding.view(),
                "The stated encoding is that of the added method.");
  return {ClassName.text, Selector.text, HookKind::added, StatedEncoding.text, &applyAdded<Hook>};
}

}  // namespace hook_detail

template <FixedString ClassName, FixedString Selector, auto Hook, auto& Saved>
inline constexpr HookRow replaced = hook_detail::replacedRow<ClassName, Selector, Hook, Saved>();

template <FixedString ClassName, FixedString Selector, FixedString StatedEncoding, auto Hook>
inline constexpr HookRow added = hook_detail::addedRow<ClassName, Selector, StatedEncoding, Hook>();

// Applies the rows in order. Rows of one class that stand together share one look-up; the rows of
// a class that does not exist are passed over, and no row's failure stops another.
void applyHooks(std::span<const HookRow> rows);

}  // namespace bridge
