// SPDX-License-Identifier: MIT
#include "lumifact/report/gps_section.h"

#include <string_view>

#include "lumifact/report/section_text.h"
#include "lumifact/report/sorted_entries.h"
#include "model/conversions.h"
#include "model/description.h"

namespace lumifact {

namespace {

using model::Dictionary;
using model::Value;

// What a reference letter under a key means. The blank behind "Magnetic direction" is part of the
// report's format.
struct ReferenceName {
  std::string_view key;
  std::string_view letter;
  std::string_view name;
};

constexpr ReferenceName referenceNames[] = {
    {"SpeedRef", "K", "Kilometers per hour"},
    {"SpeedRef", "M", "Miles per hour"},
    {"SpeedRef", "N", "Knots"},
    {"DestDistanceRef", "K", "Kilometers"},
    {"DestDistanceRef", "M", "Miles"},
    {"DestDistanceRef", "N", "Knots"},
    {"DestBearingRef", "T", "True direction"},
    {"DestBearingRef", "M", "Magnetic direction "},
    {"ImgDirectionRef", "T", "True direction"},
    {"ImgDirectionRef", "M", "Magnetic direction "},
};

std::optional<std::string_view> referenceName(std::string_view key, const Value& value) {
  const auto* letter = value.asString();
  if (letter == nullptr) return std::nullopt;
  for (const ReferenceName& row : referenceNames) {
    if (row.key == key && row.letter == *letter) return row.name;
  }
  return std::nullopt;
}

// The coordinate with its sign as a prefix; none without a reference.
std::optional<std::string> signedCoordinate(const Value& value, const Value* reference,
                                            std::string_view negative) {
  if (reference == nullptr) return std::nullopt;
  const auto* letter = reference->asString();
  const bool isNegative = letter != nullptr && *letter == negative;
  std::string text = isNegative ? "-" : "";
  appendValue(text, value);
  return text;
}

// Writes the entries of one section and keeps the coordinates that it meets.
class GpsWriter {
 public:
  GpsWriter(std::string& text, const Dictionary& section)
      : _text(text),
        _latitudeRef(find(section, "LatitudeRef")),
        _longitudeRef(find(section, "LongitudeRef")),
        _dateStamp(find(section, "DateStamp")),
        _timeStamp(find(section, "TimeStamp")) {}

  void append(std::string_view key, const Value& value) {
    if (const auto* elements = value.asArray()) {
      appendLine(_text, key, bracketed(*elements));
    } else if (key == "Latitude" && _latitudeRef != nullptr) {
      _latitude = signedCoordinate(value, _latitudeRef, "S");
      appendLine(_text, key, *_latitude);
    } else if (key == "Longitude" && _longitudeRef != nullptr) {
      _longitude = signedCoordinate(value, _longitudeRef, "W");
      appendLine(_text, key, *_longitude);
    } else if (!appendWorded(key, value)) {
      appendEntry(_text, key, value);
    }
  }

  std::optional<std::string> coordinates() const {
    if (!_latitude || !_longitude) return std::nullopt;
    return *_latitude + "," + *_longitude;
  }

 private:
  // Appends what has a wording of its own; false for all else.
  bool appendWorded(std::string_view key, const Value& value) {
    if (key == "AltitudeRef") {
      appendLine(_text, key, model::integerValue(value) == 0 ? "Above" : "Below");
      _text.append(" sea level (").append(model::valueText(value)).append(")");
    } else if (key == "Altitude") {
      appendEntry(_text, key, value);
      _text += 'm';
    } else if (const auto name = referenceName(key, value)) {
      appendLine(_text, key, *name);
    } else if (key == "DateStamp" && _timeStamp != nullptr) {
      appendEntry(_text, "DateTimeStamp", value);
      _text += ' ';
      appendValue(_text, *_timeStamp);
    } else {
      // The time is shown with the date already.
      return key == "TimeStamp" && _dateStamp != nullptr;
    }
    return true;
  }

  std::string& _text;
  const Value* _latitudeRef;
  const Value* _longitudeRef;
  const Value* _dateStamp;
  const Value* _timeStamp;
  std::optional<std::string> _latitude;
  std::optional<std::string> _longitude;
};

}  // namespace

std::optional<std::string> appendGpsSection(std::string& text, const Dictionary& section,
                                            const model::KeyComparison& keyOrder) {
  openSection(text, "{GPS}");
  GpsWriter writer(text, section);
  for (const auto* entry : sortedEntries(section, keyOrder)) {
    writer.append(entry->first, entry->second);
  }
  closeSection(text);
  return writer.coordinates();
}

}  // namespace lumifact
