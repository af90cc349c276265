// SPDX-License-Identifier: MIT
#include "media/image/tiff/gps_section.h"

#include <cmath>
#include <string>

#include "media/image/tiff/coded_text.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::image {

namespace {

// Degrees, minutes and seconds as degrees; the hemisphere is a field of its own. Minutes or
// seconds that are missing or divide by 0 count as 0, as writers leave them out.
std::optional<model::Value> degreesValue(const TiffField& field) {
  const auto degrees = field.real(0);
  if (!degrees) return std::nullopt;
  const double minutes = field.real(1).value_or(0);
  const double seconds = field.real(2).value_or(0);
  return model::Value(std::abs(*degrees + minutes / 60 + seconds / 3600));
}

// The height without its sign, which is a field of its own.
std::optional<model::Value> magnitudeValue(const TiffField& field) {
  const auto height = field.real(0);
  return height ? std::optional<model::Value>(std::abs(*height)) : std::nullopt;
}

// The hundredths of a second behind the whole ones, cut off; 0 for whole seconds.
std::int64_t hundredthsOf(const TiffField& field) {
  const auto seconds = field.fraction(2);
  if (!seconds || seconds->denominator == 0) return 0;
  return seconds->numerator % seconds->denominator * 100 / seconds->denominator;
}

// Hours, minutes and seconds as "08:20:41", hundredths behind a point where there are any.
std::optional<model::Value> timeValue(const TiffField& field) {
  if (field.type == FieldType::ascii) return textValue(field);
  std::string text;
  for (std::size_t index = 0; index < 3; ++index) {
    const auto part = field.real(index);
    // Written so that NaN is refused too.
    if (!part || !(*part >= 0 && *part < 100)) return std::nullopt;
    if (index > 0) text += ':';
    text += model::paddedIntegerText(static_cast<std::int64_t>(*part), 2);
  }
  if (const std::int64_t hundredths = hundredthsOf(field); hundredths != 0) {
    text += '.' + model::paddedIntegerText(hundredths, 2);
  }
  return model::Value(std::move(text));
}

// A text that names its encoding, or where it is stored as ASCII a plain one.
std::optional<model::Value> codedTextValue(const TiffField& field) {
  if (!isTextLike(field.type)) return std::nullopt;
  auto text = decodeCodedText(field.bytes, field.order);
  return text ? std::optional<model::Value>(*std::move(text)) : std::nullopt;
}

constexpr TagRow gpsRows[] = {
    {0x00, "GPSVersion", integerArray},
    {0x01, "LatitudeRef", textValue},
    {0x02, "Latitude", degreesValue},
    {0x03, "LongitudeRef", textValue},
    {0x04, "Longitude", degreesValue},
    {0x05, "AltitudeRef", firstInteger},
    {0x06, "Altitude", magnitudeValue},
    {0x07, "TimeStamp", timeValue},
    {0x08, "Satellites", textValue},
    {0x09, "Status", textValue},
    {0x0A, "MeasureMode", textValue},
    {0x0B, "DOP", realValue},
    {0x0C, "SpeedRef", textValue},
    {0x0D, "Speed", realValue},
    {0x0E, "TrackRef", textValue},
    {0x0F, "Track", realValue},
    {0x10, "ImgDirectionRef", textValue},
    {0x11, "ImgDirection", realValue},
    {0x12, "MapDatum", textValue},
    {0x13, "DestLatitudeRef", textValue},
    {0x14, "DestLatitude", degreesValue},
    {0x15, "DestLongitudeRef", textValue},
    {0x16, "DestLongitude", degreesValue},
    {0x17, "DestBearingRef", textValue},
    {0x18, "DestBearing", realValue},
    {0x19, "DestDistanceRef", textValue},
    {0x1A, "DestDistance", realValue},
    {0x1B, "ProcessingMethod", codedTextValue},
    {0x1C, "AreaInformation", codedTextValue},
    {0x1D, "DateStamp", textValue},
    {0x1E, "Differential", integerValue},
    {0x1F, "HPositioningError", realValue},
};
static_assert(tagsAscend(gpsRows));

}  // namespace

std::span<const TagRow> gpsTags() {
  return gpsRows;
}

void readGpsSection(TiffStructure& structure, const Ifd& gps, model::Dictionary& properties) {
  readTags(structure, gps, gpsRows, "{GPS}", properties);
}

}  // namespace media::image
