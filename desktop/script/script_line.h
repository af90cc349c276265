// SPDX-License-Identifier: MIT
//
// One line of a script as words: separated by blanks, or in double quotes, in which \" is a quote,
// \\ a backslash and \n a line break. A line that is empty or begins with # has none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace desktop::script {

struct Word {
  std::string text;
  bool isQuoted = false;
  bool operator==(const Word&) const = default;
};

model::Result<std::vector<Word>> wordsOf(std::string_view line);

// A finite number that is all of the word.
model::Result<double> numberOf(const Word& word);

}  // namespace desktop::script
