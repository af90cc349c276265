// SPDX-License-Identifier: MIT
//
// Type encodings, derived from C++ types and signatures:
//
//   static_assert(encodingOf<void(id, SEL, id)> == "v@:@");
//
// A structure states its own by specialising Encoding, as bridge/geometry.h does.
#pragma once

#include <cstdint>
#include <string_view>

#include "bridge/runtime/abi.h"
#include "bridge/runtime/fixed_string.h"

namespace bridge {

// The encoding of a type, as a FixedString named `text`.
template <typename T>
struct Encoding;

template <char Code>
struct EncodedAs {
  static constexpr auto text = fixedString(Code);
};

// clang-format off
template <> struct Encoding<void>               : EncodedAs<'v'> {};
template <> struct Encoding<id>                 : EncodedAs<'@'> {};
template <> struct Encoding<Class>              : EncodedAs<'#'> {};
template <> struct Encoding<SEL>                : EncodedAs<':'> {};
template <> struct Encoding<bool>               : EncodedAs<'B'> {};
template <> struct Encoding<char>               : EncodedAs<'c'> {};
template <> struct Encoding<signed char>        : EncodedAs<'c'> {};
template <> struct Encoding<unsigned char>      : EncodedAs<'C'> {};
template <> struct Encoding<short>              : EncodedAs<'s'> {};
template <> struct Encoding<unsigned short>     : EncodedAs<'S'> {};
template <> struct Encoding<int>                : EncodedAs<'i'> {};
template <> struct Encoding<unsigned int>       : EncodedAs<'I'> {};
template <> struct Encoding<long>               : EncodedAs<'q'> {};
template <> struct Encoding<unsigned long>      : EncodedAs<'Q'> {};
template <> struct Encoding<long long>          : EncodedAs<'q'> {};
template <> struct Encoding<unsigned long long> : EncodedAs<'Q'> {};
template <> struct Encoding<float>              : EncodedAs<'f'> {};
template <> struct Encoding<double>             : EncodedAs<'d'> {};
template <> struct Encoding<char*>              : EncodedAs<'*'> {};
template <> struct Encoding<const char*>        { static constexpr FixedString text = "r*"; };
template <> struct Encoding<const void*>        { static constexpr FixedString text = "r^v"; };
// clang-format on

template <typename T>
struct Encoding<T*> {
  static constexpr auto text = fixedString('^') + Encoding<T>::text;
};

// A method, written as its C function: result, receiver, selector, arguments.
template <typename R, typename... Arguments>
struct Encoding<R(id, SEL, Arguments...)> {
  static constexpr auto text =
      ((Encoding<Lowered<R>>::text + FixedString("@:")) + ... + Encoding<Lowered<Arguments>>::text);
};

template <typename T>
inline constexpr std::string_view encodingOf = Encoding<T>::text.view();

}  // namespace bridge
