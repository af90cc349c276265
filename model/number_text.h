// SPDX-License-Identifier: MIT
//
// Numbers as text and text as numbers, the same under every C locale. The only place that uses C's
// printf family.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace model {

// The integer in decimal.
std::string integerText(std::int64_t value);
std::string largeIntegerText(std::uint64_t value);

// The integer in decimal with leading zeros up to `width` digits ("%0*d"); the sign counts.
std::string paddedIntegerText(std::int64_t value, int width);

// The shortest decimal that reads back to the same double: 0.25, 48.85, 72. With an exponent
// below 1e-4 and from 1e16 on: 1e-05, 1e+16. "nan", "inf", "-inf" for what is no number.
std::string realText(double value);

// "%.*f": exactly `decimals` decimals, rounded as C does; "nan", "inf", "-inf".
std::string fixedText(double value, int decimals);

// The double whose decimal text is the shortest that reads back to the same float, so that a
// single-precision 0.1f prints as 0.1.
double widenedByText(float value);

// The longest prefix of `text` that is a decimal number (optional white space, sign, digits, a
// point, digits, an exponent), as strtod in the C locale reads it; 0 where there is none.
// Neither hexadecimal, "inf" nor "nan" are numbers.
double parseRealPrefix(std::string_view text);

}  // namespace model
