// SPDX-License-Identifier: MIT
//
// Text from files made fit for a terminal: nothing in a photo's metadata or name may move the
// cursor, change colours, turn the direction of writing, begin a line or hide.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// Whether a terminal could take the character for a command, or a reader cannot see it: C0, DEL and
// C1 control characters; what marks, embeds, overrides or isolates a direction of writing; the
// separators of lines and paragraphs; characters without a width of their own.
bool controlsTerminal(char32_t codePoint);

// What may stay as it is beside printable characters.
enum class Keep {
  nothing,    // for names, which stand on one line
  lineBreaks  // "\n" and "\t", for the bodies of reports
};

// The text with each such character written out as "\u001b" ("\U000e0020" beyond U+FFFF), and each
// byte that is no valid UTF-8 as "\x9b". Always valid UTF-8.
std::string terminalSafe(std::string_view text, Keep keep);

}  // namespace foundation
