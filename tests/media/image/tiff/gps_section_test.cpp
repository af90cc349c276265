// SPDX-License-Identifier: MIT
#include "media/image/tiff/gps_section.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

#include "tests/media/image/tag_rows.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;
using model::Array;

void expectGps(std::span<const TagCase> cases) {
  expectShown(cases, readGpsSection, "{GPS}");
}

TEST(GpsSection, showsEveryTagUnderItsKey) {
  const TagCase cases[] = {
      {"GPSVersion", integers(0x00, FieldType::byte, {2, 3, 0, 0}), Array{2, 3, 0, 0}},
      {"LatitudeRef", ascii(0x01, "S"), "S"},
      {"Latitude", rationals(0x02, {{38, 1}, {2, 1}, {1481, 100}}), 38 + 2.0 / 60 + 14.81 / 3600},
      {"LongitudeRef", ascii(0x03, "W"), "W"},
      {"Longitude", rationals(0x04, {{122, 1}, {30, 1}, {0, 1}}), 122.5},
      {"AltitudeRef", integers(0x05, FieldType::byte, {1}), 1},
      {"Altitude", rationals(0x06, {{4025, 100}}), 40.25},
      {"TimeStamp", rationals(0x07, {{8, 1}, {20, 1}, {41, 1}}), "08:20:41"},
      {"Satellites", ascii(0x08, "7"), "7"},
      {"Status", ascii(0x09, "A"), "A"},
      {"MeasureMode", ascii(0x0A, "3"), "3"},
      {"DOP", rationals(0x0B, {{5, 2}}), 2.5},
      {"SpeedRef", ascii(0x0C, "K"), "K"},
      {"Speed", rationals(0x0D, {{0, 1}}), 0.0},
      {"TrackRef", ascii(0x0E, "T"), "T"},
      {"Track", rationals(0x0F, {{90, 1}}), 90.0},
      {"ImgDirectionRef", ascii(0x10, "M"), "M"},
      {"ImgDirection", rationals(0x11, {{361, 2}}), 180.5},
      {"MapDatum", ascii(0x12, "WGS-84"), "WGS-84"},
      {"DestLatitudeRef", ascii(0x13, "N"), "N"},
      {"DestLatitude", rationals(0x14, {{10, 1}, {15, 1}, {0, 1}}), 10.25},
      {"DestLongitudeRef", ascii(0x15, "E"), "E"},
      {"DestLongitude", rationals(0x16, {{20, 1}, {45, 1}, {0, 1}}), 20.75},
      {"DestBearingRef", ascii(0x17, "T"), "T"},
      {"DestBearing", rationals(0x18, {{45, 1}}), 45.0},
      {"DestDistanceRef", ascii(0x19, "K"), "K"},
      {"DestDistance", rationals(0x1A, {{3, 2}}), 1.5},
      {"ProcessingMethod", undefined(0x1B, "ASCII\0\0\0GPS"sv), "GPS"},
      {"AreaInformation", undefined(0x1C, "\0\0\0\0\0\0\0\0Hill"sv), "Hill"},
      {"DateStamp", ascii(0x1D, "2018:09:30"), "2018:09:30"},
      {"Differential", shorts(0x1E, {0}), 0},
      {"HPositioningError", rationals(0x1F, {{35, 1}}), 35.0},
  };
  expectGps(cases);
  expectEveryRowIn(gpsTags(), cases);
}

TEST(GpsSection, coordinatesAreDegreesWithoutASign) {
  const TagCase cases[] = {
      {"Latitude", rationals(0x02, {{41, 1}, {2439, 100}, {0, 1}}), 41 + 24.39 / 60},
      {"Latitude", rationals(0x02, {{41, 1}, {30, 1}, {0, 0}}), 41.5},
      {"Latitude", rationals(0x02, {{415, 10}}), 41.5},
      {"Latitude", signedRationals(0x02, {{-41, 1}, {0, 1}, {0, 1}}), 41.0},
      {"Latitude", rationals(0x02, {{41, 0}, {30, 1}, {0, 1}}), std::nullopt},
      {"Altitude", signedRationals(0x06, {{-12, 1}}), 12.0},
      {"Altitude", rationals(0x06, {{12, 0}}), std::nullopt},
  };
  expectGps(cases);
}

FieldToWrite reals(std::uint16_t tag, const std::vector<double>& values) {
  FieldToWrite field{.tag = tag,
                     .type = FieldType::doubleFloat,
                     .count = static_cast<std::uint32_t>(values.size()),
                     .width = 8};
  for (const double value : values) field.numbers.push_back(std::bit_cast<std::uint64_t>(value));
  return field;
}

TEST(GpsSection, timesAreNumbersFromZeroToNinetyNine) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  const TagCase cases[] = {
      {"TimeStamp", reals(0x07, {8, 20, 41.5}), "08:20:41"},
      {"TimeStamp", reals(0x07, {none, 20, 41}), std::nullopt},
      {"TimeStamp", reals(0x07, {8, none, 41}), std::nullopt},
      {"TimeStamp", reals(0x07, {8, 20, none}), std::nullopt},
      {"TimeStamp", reals(0x07, {8, 20, infinity}), std::nullopt},
      {"TimeStamp", reals(0x07, {-infinity, 20, 41}), std::nullopt},
      {"TimeStamp", reals(0x07, {8, 20, 100}), std::nullopt},
  };
  expectGps(cases);
}

TEST(GpsSection, timesHaveHundredthsOnlyWhereThereAreAny) {
  const TagCase cases[] = {
      {"TimeStamp", rationals(0x07, {{9, 1}, {38, 1}, {241, 10}}), "09:38:24.10"},
      {"TimeStamp", rationals(0x07, {{9, 1}, {38, 1}, {59999, 1000}}), "09:38:59.99"},
      {"TimeStamp", rationals(0x07, {{9, 1}, {38, 1}, {4000, 1000}}), "09:38:04"},
      {"TimeStamp", ascii(0x07, "10:11:12"), "10:11:12"},
      {"TimeStamp", rationals(0x07, {{9, 1}, {38, 1}, {0, 0}}), std::nullopt},
      {"TimeStamp", rationals(0x07, {{9, 1}, {38, 1}}), std::nullopt},
      {"TimeStamp", rationals(0x07, {{0xFFFFFFFF, 1}, {0, 1}, {0, 1}}), std::nullopt},
  };
  expectGps(cases);
}

}  // namespace
}  // namespace media::image
