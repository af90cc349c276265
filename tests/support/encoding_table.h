// SPDX-License-Identifier: MIT
//
// tests/bridge/encodings.txt: the types of the platform's methods, from another source than
// bridge/.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace support {

class EncodingTable {
 public:
  struct Line {
    std::string className;  // with a leading "+" for a method of the class itself
    std::string encoding;   // as the phone's compiler writes it, without offsets
    bool isSure = true;     // or somebody's best guess
  };

  EncodingTable();

  // All lines of a selector, of whichever class.
  const std::vector<Line>& linesOf(const std::string& selector) const;
  // The line of one class; null where there is none. Borrowed.
  const Line* find(const std::string& className, const std::string& selector) const;

 private:
  std::map<std::string, std::vector<Line>> _lines;  // by selector
};

// An encoding of the desktop as the phone has it: a BOOL is an unsigned char ("C") here, a bool
// ("B") there, and nothing else differs.
std::string onThePhone(std::string encoding);

}  // namespace support
