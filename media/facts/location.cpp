// SPDX-License-Identifier: MIT
#include "media/facts/location.h"

#include <cmath>

#include "model/number_text.h"

namespace media::facts {

namespace {

const model::Dictionary* sectionOf(const model::Dictionary& properties, std::string_view name) {
  const model::Value* section = model::find(properties, name);
  return section == nullptr ? nullptr : section->asDictionary();
}

std::optional<double> numberOf(const model::Dictionary& section, std::string_view key) {
  const model::Value* value = model::find(section, key);
  if (value == nullptr) return std::nullopt;
  if (value->asReal() != nullptr) return *value->asReal();
  if (value->asInteger() != nullptr) return static_cast<double>(*value->asInteger());
  return std::nullopt;
}

const std::string* textOf(const model::Dictionary& section, std::string_view key) {
  const model::Value* value = model::find(section, key);
  return value == nullptr ? nullptr : value->asString();
}

// A coordinate with its sign: negative where the reference says so, whatever sign it had.
std::optional<double> coordinate(const model::Dictionary& gps, std::string_view key,
                                 std::string_view referenceKey, std::string_view negative) {
  const auto degrees = numberOf(gps, key);
  const std::string* reference = textOf(gps, referenceKey);
  const bool isNegative = reference != nullptr && reference->starts_with(negative);
  if (!degrees) return std::nullopt;
  return isNegative ? -std::abs(*degrees) : *degrees;
}

std::optional<model::Location> checked(double latitude, double longitude) {
  // Written so that NaN is refused too.
  const bool onEarth = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
  if (!onEarth) return std::nullopt;
  return model::Location{latitude, longitude};
}

// The length of a sign and the digits and points behind it, or 0 without both.
std::size_t signedNumberLength(std::string_view text) {
  if (text.empty() || (text[0] != '+' && text[0] != '-')) return 0;
  const std::size_t end = std::min(text.find_first_not_of("0123456789.", 1), text.size());
  return end > 1 ? end : 0;
}

// The degrees of one number of ISO 6709 text. `degreeDigits` is how many digits the degrees take
// (2 for latitudes, 3 for longitudes); two more before the point are minutes, two more seconds.
double iso6709Degrees(std::string_view number, std::size_t degreeDigits) {
  const std::string_view digits = number.substr(1);
  const std::size_t whole = std::min(digits.find('.'), digits.size());
  const auto part = [&](std::size_t start, std::size_t length) {
    const std::size_t take = start + length >= whole ? std::string_view::npos : length;
    return start >= digits.size() ? 0 : model::parseRealPrefix(digits.substr(start, take));
  };
  double degrees = 0;
  if (whole == degreeDigits + 4) {
    degrees = part(0, degreeDigits) + part(degreeDigits, 2) / 60 + part(degreeDigits + 2, 2) / 3600;
  } else if (whole == degreeDigits + 2) {
    degrees = part(0, degreeDigits) + part(degreeDigits, 2) / 60;
  } else {
    degrees = model::parseRealPrefix(digits);
  }
  return number[0] == '-' ? -degrees : degrees;
}

}  // namespace

std::optional<model::Location> locationOfProperties(const model::Dictionary& properties) {
  const model::Dictionary* gps = sectionOf(properties, "{GPS}");
  if (gps == nullptr) return std::nullopt;
  const auto latitude = coordinate(*gps, "Latitude", "LatitudeRef", "S");
  const auto longitude = coordinate(*gps, "Longitude", "LongitudeRef", "W");
  if (!latitude || !longitude) return std::nullopt;
  return checked(*latitude, *longitude);
}

std::optional<model::Location> locationOfIso6709(std::string_view text) {
  const std::size_t latitudeLength = signedNumberLength(text);
  const std::string_view rest = text.substr(latitudeLength);
  const std::size_t longitudeLength = signedNumberLength(rest);
  if (latitudeLength == 0 || longitudeLength == 0) return std::nullopt;
  return checked(iso6709Degrees(text.substr(0, latitudeLength), 2),
                 iso6709Degrees(rest.substr(0, longitudeLength), 3));
}

std::optional<model::Location> locationOfAsset(const model::MediaAsset& asset) {
  for (const model::MetadataItem& item : asset.commonMetadata) {
    if (item.commonKey != "location" || !item.value) continue;
    const std::string* text = item.value->asString();
    const auto location = text == nullptr ? std::nullopt : locationOfIso6709(*text);
    if (location) return location;
  }
  return std::nullopt;
}

std::optional<std::string> placeOfProperties(const model::Dictionary& properties) {
  const model::Dictionary* iptc = sectionOf(properties, "{IPTC}");
  if (iptc == nullptr) return std::nullopt;
  std::string place;
  for (const char* key : {"City", "Province/State", "Country/PrimaryLocationName"}) {
    const std::string* name = textOf(*iptc, key);
    if (name == nullptr || name->empty()) continue;
    if (!place.empty()) place += ", ";
    place += *name;
  }
  if (place.empty()) return std::nullopt;
  return place;
}

}  // namespace media::facts
