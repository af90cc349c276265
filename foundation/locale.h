// SPDX-License-Identifier: MIT
//
// Whose customs texts follow.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// A language and region such as "en_US". No name, "C" and "POSIX" count as en_US; an encoding and
// a modifier ("de_DE.UTF-8@euro") are dropped.
class Locale {
 public:
  explicit Locale(std::string_view name = {});

  // Whether the text is a name: a language, then perhaps a script, a region and variants, as above;
  // or "C" or "POSIX".
  static bool isName(std::string_view text);

  // The user's, from LC_ALL, else `category` ("LC_TIME", "LC_COLLATE", ...), else LANG.
  static Locale ofUser(const char* category);

  // "en_US", "de", ...
  const std::string& name() const { return _name; }
  // Whether texts are fixed and need no locale data.
  bool isEnUS() const { return _name == "en_US"; }

 private:
  std::string _name;
};

}  // namespace foundation
