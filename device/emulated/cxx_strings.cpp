// SPDX-License-Identifier: MIT
//
// The phone's std::string, as far as it is not inline: libc++'s own source of it, in the layout
// that the phone's processes use. Everything else of C++ is the host's library's, so that
// exceptions and memory pass between the two; its strings are another type.
#include <string>

#ifndef _LIBCPP_ABI_ALTERNATE_STRING_LAYOUT
#error "The phone's strings keep their size in the last byte."
#endif
static_assert(sizeof(std::string) == 24);

template class std::basic_string<char>;

_LIBCPP_BEGIN_NAMESPACE_STD

string to_string(unsigned long value) {
  char digits[20];
  char* begin = digits + sizeof digits;
  do *--begin = static_cast<char>('0' + value % 10);
  while ((value /= 10) != 0);
  return string(begin, digits + sizeof digits);
}

_LIBCPP_END_NAMESPACE_STD
