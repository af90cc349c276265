// SPDX-License-Identifier: MIT
#include "lumifact/report/gps_section.h"

#include <gtest/gtest.h>

#include <vector>

namespace lumifact {
namespace {

using model::Array;
using model::Dictionary;

struct Case {
  Dictionary section;
  std::string lines;  // between "{" and "}"
  std::optional<std::string> coordinates;
};

void expectSections(const std::vector<Case>& cases) {
  for (const Case& row : cases) {
    std::string text = "before";
    EXPECT_EQ(appendGpsSection(text, row.section, model::compareKeys), row.coordinates)
        << row.lines;
    EXPECT_EQ(text, "before\n\n{GPS} =\n{" + row.lines + "\n}");
  }
}

TEST(GpsSection, SignsCoordinatesByTheirReferences) {
  expectSections({
      {{{"Latitude", 51.5}, {"LatitudeRef", "N"}, {"Longitude", 0.12}, {"LongitudeRef", "W"}},
       "\n  Latitude = 51.5\n  LatitudeRef = N\n  Longitude = -0.12\n  LongitudeRef = W",
       "51.5,-0.12"},
      {{{"Latitude", 33.9}, {"LatitudeRef", "S"}, {"Longitude", 18.4}, {"LongitudeRef", "E"}},
       "\n  Latitude = -33.9\n  LatitudeRef = S\n  Longitude = 18.4\n  LongitudeRef = E",
       "-33.9,18.4"},
      {{{"Latitude", 48.8566}, {"LatitudeRef", "N"}, {"Longitude", 2}, {"LongitudeRef", "E"}},
       "\n  Latitude = 48.8566\n  LatitudeRef = N\n  Longitude = 2\n  LongitudeRef = E",
       "48.8566,2"},
  });
}

TEST(GpsSection, PutsTheSignBeforeAnyText) {
  expectSections({
      {{{"Latitude", -33.9}, {"LatitudeRef", "S"}, {"Longitude", "1.5 "}, {"LongitudeRef", "W"}},
       "\n  Latitude = --33.9\n  LatitudeRef = S\n  Longitude = -1.5 \n  LongitudeRef = W",
       "--33.9,-1.5 "},
  });
}

TEST(GpsSection, TakesOnlyTheExactReferenceLetterAsNegative) {
  for (const model::Value& reference :
       {model::Value("s"), model::Value("S "), model::Value(""), model::Value("W"), model::Value(5),
        model::Value(Array{"S"}), model::Value()}) {
    std::string text;
    const Dictionary section = {
        {"Latitude", 1.5}, {"LatitudeRef", reference}, {"Longitude", 2.5}, {"LongitudeRef", "w"}};
    EXPECT_EQ(appendGpsSection(text, section, model::compareKeys), "1.5,2.5") << text;
  }
}

TEST(GpsSection, HasNoCoordinatesWithoutBothSides) {
  expectSections({
      {{{"Latitude", 51.5}, {"LatitudeRef", "N"}},
       "\n  Latitude = 51.5\n  LatitudeRef = N",
       std::nullopt},
      {{{"Longitude", 51.5}, {"LongitudeRef", "W"}},
       "\n  Longitude = -51.5\n  LongitudeRef = W",
       std::nullopt},
      {{{"LatitudeRef", "N"}, {"LongitudeRef", "W"}},
       "\n  LatitudeRef = N\n  LongitudeRef = W",
       std::nullopt},
  });
}

TEST(GpsSection, PrintsACoordinateWithoutReferenceRaw) {
  expectSections({
      {{{"Latitude", 51.5}, {"Longitude", 0.12}, {"LongitudeRef", "W"}},
       "\n  Latitude = 51.5\n  Longitude = -0.12\n  LongitudeRef = W",
       std::nullopt},
      {{{"Latitude", 51.5}, {"LatitudeRef", "S"}, {"Longitude", 0.12}},
       "\n  Latitude = -51.5\n  LatitudeRef = S\n  Longitude = 0.12",
       std::nullopt},
  });
}

TEST(GpsSection, PrintsACoordinateThatIsAnArrayInBrackets) {
  expectSections({
      {{{"Latitude", Array{51, 30}},
        {"LatitudeRef", "S"},
        {"Longitude", 1.5},
        {"LongitudeRef", "W"}},
       "\n  Latitude = [51, 30]\n  LatitudeRef = S\n  Longitude = -1.5\n  LongitudeRef = W",
       std::nullopt},
  });
}

TEST(GpsSection, WordsTheAltitude) {
  expectSections({
      {{{"AltitudeRef", 0}}, "\n  AltitudeRef = Above sea level (0)", std::nullopt},
      {{{"AltitudeRef", 1}}, "\n  AltitudeRef = Below sea level (1)", std::nullopt},
      {{{"AltitudeRef", "1"}}, "\n  AltitudeRef = Below sea level (1)", std::nullopt},
      {{{"AltitudeRef", "x"}}, "\n  AltitudeRef = Above sea level (x)", std::nullopt},
      {{{"AltitudeRef", 0.5}}, "\n  AltitudeRef = Above sea level (0.5)", std::nullopt},
      {{{"Altitude", 35.2}}, "\n  Altitude = 35.2m", std::nullopt},
  });
}

TEST(GpsSection, WordsEveryReferenceLetter) {
  struct Row {
    const char* key;
    const char* letter;
    const char* text;
  };
  const Row rows[] = {
      {"SpeedRef", "K", "Kilometers per hour"},
      {"SpeedRef", "M", "Miles per hour"},
      {"SpeedRef", "N", "Knots"},
      {"SpeedRef", "T", "T"},
      {"SpeedRef", "k", "k"},
      {"DestDistanceRef", "K", "Kilometers"},
      {"DestDistanceRef", "M", "Miles"},
      {"DestDistanceRef", "N", "Knots"},
      {"DestDistanceRef", "X", "X"},
      {"DestBearingRef", "T", "True direction"},
      {"DestBearingRef", "M", "Magnetic direction "},
      {"DestBearingRef", "K", "K"},
      {"ImgDirectionRef", "T", "True direction"},
      {"ImgDirectionRef", "M", "Magnetic direction "},
      {"ImgDirectionRef", "", ""},
      {"TrackRef", "T", "T"},
  };
  for (const Row& row : rows) {
    expectSections({{{{row.key, row.letter}},
                     std::string("\n  ") + row.key + " = " + row.text,
                     std::nullopt}});
  }
}

TEST(GpsSection, ShowsTheTimeWithTheDateAtThePositionOfTheDate) {
  expectSections({
      {{{"DateStamp", "2018:09:30"}, {"TimeStamp", "14:03:11"}},
       "\n  DateTimeStamp = 2018:09:30 14:03:11",
       std::nullopt},
      {{{"Altitude", 1}, {"DateStamp", "2018:09:30"}, {"Dop", 3}, {"TimeStamp", "14:03:11"}},
       "\n  Altitude = 1m\n  DateTimeStamp = 2018:09:30 14:03:11\n  Dop = 3",
       std::nullopt},
      {{{"TimeStamp", "14:03:11"}}, "\n  TimeStamp = 14:03:11", std::nullopt},
      {{{"DateStamp", "2018:09:30"}}, "\n  DateStamp = 2018:09:30", std::nullopt},
  });
}

TEST(GpsSection, PrintsEverythingElseRaw) {
  expectSections({
      {{}, "", std::nullopt},
      {{{"GPSVersion", Array{2, 2, 0, 0}}, {"ImgDirection", 241.5}, {"Status", "A"}},
       "\n  GPSVersion = [2, 2, 0, 0]\n  ImgDirection = 241.5\n  Status = A",
       std::nullopt},
      {{{"ProcessingMethod", Dictionary{{"a", 1}}}},
       "\n  ProcessingMethod = {\n    a = 1;\n}",
       std::nullopt},
  });
}

}  // namespace
}  // namespace lumifact
