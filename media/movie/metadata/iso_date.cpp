// SPDX-License-Identifier: MIT
#include "media/movie/metadata/iso_date.h"

#include "model/civil_time.h"

namespace media::movie {

namespace {

// Takes a text apart from its front.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : _text(text) {}

  // Exactly `digits` decimal digits, of a number in a range.
  std::optional<int> number(int digits, int least = 0, int most = 9999) {
    int value = 0;
    for (int index = 0; index < digits; ++index) {
      if (_text.empty() || _text.front() < '0' || _text.front() > '9') return std::nullopt;
      value = 10 * value + (_text.front() - '0');
      _text.remove_prefix(1);
    }
    if (value < least || value > most) return std::nullopt;
    return value;
  }
  bool take(char character) {
    if (_text.empty() || _text.front() != character) return false;
    _text.remove_prefix(1);
    return true;
  }
  // What follows a decimal point, as a fraction below 1; 0 where there is none.
  double fraction() {
    double value = 0;
    double place = 0.1;
    if (!take('.') && !take(',')) return 0;
    while (const auto digit = number(1)) {
      value += place * *digit;
      place /= 10;
    }
    return value;
  }
  bool isAtEnd() const { return _text.empty(); }

 private:
  std::string_view _text;
};

// "Z", "+0300", "+03:00" or "+03", in seconds.
std::optional<int> readOffset(Scanner& scanner) {
  if (scanner.take('Z')) return 0;
  const bool isWest = scanner.take('-');
  if (!isWest && !scanner.take('+')) return std::nullopt;
  const auto hours = scanner.number(2);
  if (!hours) return std::nullopt;
  scanner.take(':');
  const int seconds = 3600 * *hours + 60 * scanner.number(2).value_or(0);
  return isWest ? -seconds : seconds;
}

}  // namespace

std::optional<model::Date> parseIsoDate(std::string_view text) {
  Scanner scanner(text);
  const auto year = scanner.number(4);
  if (!year || !scanner.take('-')) return std::nullopt;
  const auto month = scanner.number(2, 1, 12);
  if (!month || !scanner.take('-')) return std::nullopt;
  const auto day = scanner.number(2, 1, 31);
  if (!day || (!scanner.take('T') && !scanner.take(' '))) return std::nullopt;
  const auto hour = scanner.number(2, 0, 24);
  if (!hour || !scanner.take(':')) return std::nullopt;
  const auto minute = scanner.number(2, 0, 59);
  if (!minute || !scanner.take(':')) return std::nullopt;
  const auto second = scanner.number(2, 0, 60);
  if (!second) return std::nullopt;
  const double fraction = scanner.fraction();
  const auto offset = readOffset(scanner);
  if (!offset || !scanner.isAtEnd()) return std::nullopt;
  model::Date date = model::dateFromUtc({*year, *month, *day, *hour, *minute, *second});
  date.secondsSince1970 += fraction - *offset;
  return date;
}

}  // namespace media::movie
