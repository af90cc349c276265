// SPDX-License-Identifier: MIT
//
// Environment variables that hold for one test.
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace foundation {

// Sets a variable (or unsets it, for none) and restores it at the end of the scope.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::optional<std::string>& value) : _name(name) {
    if (const char* old = std::getenv(name)) _old = old;
    set(value);
  }
  ~ScopedVariable() { set(_old); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void set(const std::optional<std::string>& value) const {
    if (value) {
      ::setenv(_name, value->c_str(), 1);
    } else {
      ::unsetenv(_name);
    }
    ::tzset();
  }

  const char* _name;
  std::optional<std::string> _old;
};

}  // namespace foundation
