// SPDX-License-Identifier: MIT
#include "media/facts/capture_date.h"

#include "foundation/date_text.h"
#include "model/civil_time.h"

namespace media::facts {

namespace {

// The number that `digits` decimal digits at the offset write, or -1 where they are others.
int numberAt(std::string_view text, std::size_t offset, std::size_t digits) {
  if (offset + digits > text.size()) return -1;
  int number = 0;
  for (const char character : text.substr(offset, digits)) {
    if (character < '0' || character > '9') return -1;
    number = number * 10 + (character - '0');
  }
  return number;
}

// "YYYY?MM?DD?HH:MM:SS" at the front of the text, with the given character between year, month
// and day. None where it is no day or no time of day.
std::optional<model::CivilTime> timeAtFront(std::string_view text, char dateSeparator) {
  if (text.size() < 19 || text[4] != dateSeparator || text[7] != dateSeparator) return std::nullopt;
  if (text[13] != ':' || text[16] != ':') return std::nullopt;
  const model::CivilTime time{numberAt(text, 0, 4),  numberAt(text, 5, 2),  numberAt(text, 8, 2),
                              numberAt(text, 11, 2), numberAt(text, 14, 2), numberAt(text, 17, 2)};
  // A field out of range is carried over, and so gives another time than the one written.
  if (time.year < 1 || model::civilTimeInUtc(model::dateFromUtc(time)) != time) return std::nullopt;
  return time;
}

// Seconds east of UTC: "+02:00", "+0200", "+02" or "Z".
std::optional<int> offsetSeconds(std::string_view text) {
  if (text.starts_with('Z')) return 0;
  if (text.empty() || (text[0] != '+' && text[0] != '-')) return std::nullopt;
  const int hours = numberAt(text, 1, 2);
  const std::size_t minutesAt = text.size() > 3 && text[3] == ':' ? 4 : 3;
  const int minutes = text.size() > 3 ? numberAt(text, minutesAt, 2) : 0;
  if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59) return std::nullopt;
  const int seconds = hours * 3600 + minutes * 60;
  return text[0] == '-' ? -seconds : seconds;
}

model::Date dateOf(const model::CivilTime& time, const std::optional<int>& offset) {
  if (!offset) return foundation::dateFromLocalTime(time);
  return {model::dateFromUtc(time).secondsSince1970 - *offset};
}

}  // namespace

std::optional<model::Date> captureDateOfProperties(const model::Dictionary& properties,
                                                   const std::optional<std::string>& offset) {
  const model::Value* exif = model::find(properties, "{Exif}");
  const model::Dictionary* section = exif == nullptr ? nullptr : exif->asDictionary();
  const model::Value* original =
      section == nullptr ? nullptr : model::find(*section, "DateTimeOriginal");
  const std::string* text = original == nullptr ? nullptr : original->asString();
  const auto time = text == nullptr ? std::nullopt : timeAtFront(*text, ':');
  if (!time) return std::nullopt;
  return dateOf(*time, offset ? offsetSeconds(*offset) : std::nullopt);
}

std::optional<model::Date> dateOfMovieText(std::string_view text) {
  const auto time = timeAtFront(text, '-');
  if (!time || (text[10] != 'T' && text[10] != ' ')) return std::nullopt;
  std::string_view rest = text.substr(19);
  if (rest.starts_with('.')) {
    rest.remove_prefix(std::min(rest.find_first_not_of("0123456789", 1), rest.size()));
  }
  return dateOf(*time, offsetSeconds(rest));
}

std::optional<model::Date> captureDateOfAsset(const model::MediaAsset& asset) {
  for (const model::MetadataItem& item : asset.commonMetadata) {
    if (item.commonKey != "creationDate" || !item.value) continue;
    if (item.value->asDate() != nullptr) return *item.value->asDate();
    const std::string* text = item.value->asString();
    const auto date = text == nullptr ? std::nullopt : dateOfMovieText(*text);
    if (date) return date;
  }
  return asset.creationDate;
}

}  // namespace media::facts
