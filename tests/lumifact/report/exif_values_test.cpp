// SPDX-License-Identifier: MIT
#include "lumifact/report/exif_values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "model/description.h"

namespace lumifact {
namespace {

using model::Array;
using model::Dictionary;
using model::Value;

struct CodeRow {
  std::string_view key;
  std::int64_t code;
  std::string_view text;
};

constexpr CodeRow codeRows[] = {
    // ExposureMode
    {"ExposureMode", 0, "Auto (0)"},
    {"ExposureMode", 1, "Manual (1)"},
    {"ExposureMode", 2, "Auto Bracket (2)"},
    // ExposureProgram
    {"ExposureProgram", 0, "Not defined (0)"},
    {"ExposureProgram", 1, "Manual (1)"},
    {"ExposureProgram", 2, "Normal program (2)"},
    {"ExposureProgram", 3, "Aperture priority (3)"},
    {"ExposureProgram", 4, "Shutter priority (4)"},
    {"ExposureProgram", 5, "Creative program (biased toward depth of field) (5)"},
    {"ExposureProgram", 6, "Action program (biased toward fast shutter speed) (6)"},
    {"ExposureProgram", 7,
     "Portrait mode (for closeup photos with the background out of focus) (7)"},
    {"ExposureProgram", 8,
     "Landscape mode (for landscape photos with the background in focus) (8)"},
    // MeteringMode
    {"MeteringMode", 0, "Unknown (0)"},
    {"MeteringMode", 1, "Average (1)"},
    {"MeteringMode", 2, "CenterWeightedAverage (2)"},
    {"MeteringMode", 3, "Spot (3)"},
    {"MeteringMode", 4, "MultiSpot (4)"},
    {"MeteringMode", 5, "Pattern (5)"},
    {"MeteringMode", 6, "Partial (6)"},
    {"MeteringMode", 255, "Other (255)"},
    // LightSource
    {"LightSource", 0, "Unknown (0)"},
    {"LightSource", 1, "Daylight (1)"},
    {"LightSource", 2, "Fluorescent (2)"},
    {"LightSource", 3, "Tungsten (incandescent light) (3)"},
    {"LightSource", 4, "Flash (4)"},
    {"LightSource", 9, "Fine weather (9)"},
    {"LightSource", 10, "Cloudy weather (10)"},
    {"LightSource", 11, "Shade (11)"},
    {"LightSource", 12, "Daylight fluorescent (D 5700 - 7100K) (12)"},
    {"LightSource", 13, "Day white fluorescent (N 4600 - 5400K) (13)"},
    {"LightSource", 14, "Cool white fluorescent (W 3900 - 4500K) (14)"},
    {"LightSource", 15, "White fluorescent (WW 3200 - 3700K) (15)"},
    {"LightSource", 17, "Standard light A (17)"},
    {"LightSource", 18, "Standard light B (18)"},
    {"LightSource", 19, "Standard light C (19)"},
    {"LightSource", 20, "D55 (20)"},
    {"LightSource", 21, "D65 (21)"},
    {"LightSource", 22, "D75 (22)"},
    {"LightSource", 23, "D50 (23)"},
    {"LightSource", 24, "ISO studio tungsten (24)"},
    {"LightSource", 255, "Other (255)"},
    // SceneCaptureType
    {"SceneCaptureType", 0, "Standard (0)"},
    {"SceneCaptureType", 1, "Landscape (1)"},
    {"SceneCaptureType", 2, "Portrait (2)"},
    {"SceneCaptureType", 3, "Night scene (3)"},
    // SensingMethod
    {"SensingMethod", 1, "Not defined (1)"},
    {"SensingMethod", 2, "One-chip color area sensor (2)"},
    {"SensingMethod", 3, "Two-chip color area sensor (3)"},
    {"SensingMethod", 4, "Three-chip color area sensor (4)"},
    {"SensingMethod", 5, "Color sequential area sensor (5)"},
    {"SensingMethod", 6, "Two-chip color area sensor (6)"},
    {"SensingMethod", 7, "Trilinear sensor (7)"},
    {"SensingMethod", 8, "Color sequential linear sensor (8)"},
    // GainControl
    {"GainControl", 0, "None (0)"},
    {"GainControl", 1, "Low gain up (1)"},
    {"GainControl", 2, "High gain up (2)"},
    {"GainControl", 3, "Low gain down (3)"},
    {"GainControl", 4, "High gain down (4)"},
    // SceneType
    {"SceneType", 1, "Directly photographed (1)"},
    // WhiteBalance
    {"WhiteBalance", 0, "Auto (0)"},
    {"WhiteBalance", 1, "Manual (1)"},
    // CustomRendered
    {"CustomRendered", 0, "Normal process (0)"},
    {"CustomRendered", 1, "Custom process (1)"},
    // Contrast
    {"Contrast", 0, "Normal (0)"},
    {"Contrast", 1, "Soft (1)"},
    {"Contrast", 2, "Hard (2)"},
    // Saturation
    {"Saturation", 0, "Normal (0)"},
    {"Saturation", 1, "Low saturation (1)"},
    {"Saturation", 2, "High saturation (2)"},
    // Sharpness
    {"Sharpness", 0, "Normal (0)"},
    {"Sharpness", 1, "Soft (1)"},
    {"Sharpness", 2, "Hard (2)"},
    // SubjectDistanceRange
    {"SubjectDistanceRange", 0, "Unknown (0)"},
    {"SubjectDistanceRange", 1, "Macro (1)"},
    {"SubjectDistanceRange", 2, "Close view (2)"},
    {"SubjectDistanceRange", 3, "Distant view (3)"},
    // SubjectDistRange
    {"SubjectDistRange", 0, "Unknown (0)"},
    {"SubjectDistRange", 1, "Macro (1)"},
    {"SubjectDistRange", 2, "Close view (2)"},
    {"SubjectDistRange", 3, "Distant view (3)"},
    // FileSource
    {"FileSource", 3, "DSC (3)"},
    // CFAPattern
    {"CFAPattern", 0, "Red (0)"},
    {"CFAPattern", 1, "Green (1)"},
    {"CFAPattern", 2, "Blue (2)"},
    {"CFAPattern", 3, "Cyan (3)"},
    {"CFAPattern", 4, "Magenta (4)"},
    {"CFAPattern", 5, "Yellow (5)"},
    {"CFAPattern", 6, "White (6)"},
};

TEST(ExifValues, WordEveryCodeOfEveryTable) {
  for (const CodeRow& row : codeRows) {
    EXPECT_EQ(exifReading(row.key, row.code), row.text) << row.key << " " << row.code;
    EXPECT_EQ(exifReading(row.key, static_cast<double>(row.code)), row.text) << row.key;
    EXPECT_EQ(exifReading(row.key, std::to_string(row.code)), row.text) << row.key;
  }
}

TEST(ExifValues, LeaveCodesOutsideTheirTableRaw) {
  for (const CodeRow& row : codeRows) {
    for (std::int64_t code = -3; code < 300; ++code) {
      const auto known = [&](const CodeRow& other) {
        return other.key == row.key && other.code == code;
      };
      if (std::ranges::any_of(codeRows, known)) continue;
      ASSERT_EQ(exifReading(row.key, code), std::nullopt) << row.key << " " << code;
    }
  }
  EXPECT_EQ(exifReading("MeteringMode", 7), std::nullopt);
  EXPECT_EQ(exifReading("LightSource", 16), std::nullopt);
}

struct Case {
  const char* key;
  Value value;
  std::optional<std::string> reading;
};

void expectReadings(const std::vector<Case>& cases) {
  for (const Case& row : cases) {
    EXPECT_EQ(exifReading(row.key, row.value), row.reading)
        << row.key << " = " << model::valueText(row.value);
  }
}

TEST(ExifValues, WordPlainValues) {
  expectReadings({
      {"FNumber", 1.8, "f/1.8"},
      {"FNumber", 2.0, "f/2"},
      {"FNumber", "2.2", "f/2.2"},
      {"FocalLength", 3.99, "3.99mm"},
      {"FocalLenIn35mmFilm", 28, "28mm"},
      {"ColorSpace", 1, "sRGB (1)"},
      {"ColorSpace", 65535, "65535 - Unknown"},
      {"ColorSpace", 0, "0 - Unknown"},
      {"ColorSpace", 1.9, "sRGB (1)"},
      {"ExposureTime", 0.25, "1/4s (0.25)"},
      {"ExposureTime", 2, "2 2/1s (2)"},
      {"ExposureTime", 0, "0/1s (0)"},
      {"ExposureTime", 1.0 / 120, "1/120s (0.008333333333333333)"},
      {"ExposureTime", "0.008333", "1/120s (0.008333)"},
      {"ExposureTime", "soon", "0/1s (soon)"},
      {"Flash", 16, "Flash did not fire, compulsory flash mode (16)"},
      {"Flash", 2, "Unkown Flash mode (2)"},
      {"Flash", 95, "Flash fired, auto mode, return light detected, red-eye reduction mode  (95)"},
      {"Flash", 16.5, "Flash did not fire, compulsory flash mode (16.5)"},
      {"Flash", "24", "Flash did not fire, auto mode (24)"},
      {"SubjectDistance", 0, "Unknown (0)"},
      {"SubjectDistance", -1, "Infinity"},
      {"SubjectDistance", 0.6, "Unknown (0)"},
      {"SubjectDistance", -0.6, "Unknown (0)"},
      {"SubjectDistance", -1.9, "Infinity"},
      {"SubjectDistance", 1, std::nullopt},
      {"SubjectDistance", 4.5, std::nullopt},
      {"SubjectDistance", std::numeric_limits<double>::infinity(), std::nullopt},
  });
}

TEST(ExifValues, CountWhatIsNoNumberAsZero) {
  expectReadings({
      {"WhiteBalance", "abc", "Auto (0)"},
      {"WhiteBalance", Dictionary{{"a", 1}}, "Auto (0)"},
      {"WhiteBalance", true, "Manual (1)"},
      {"WhiteBalance", std::numeric_limits<double>::quiet_NaN(), "Auto (0)"},
      {"WhiteBalance", Value(), "Auto (0)"},
      {"CFAPattern", model::Data{2, 0, 2, 0}, "Red (0)"},
      {"SceneType", model::Data{1}, std::nullopt},
      {"Flash", Dictionary{}, "Flash did not fire ({\n})"},
  });
}

TEST(ExifValues, DoNotWrapLargeCodesIntoTheTable) {
  expectReadings({
      {"WhiteBalance", std::int64_t{1} << 32, std::nullopt},
      {"WhiteBalance", 1e300, std::nullopt},
      {"WhiteBalance", "99999999999999999999", std::nullopt},
  });
}

TEST(ExifValues, WordArrays) {
  expectReadings({
      {"SubjectArea", Array{2015, 1511, 2217, 1330}, "X:2015, Y:1511, W:2217, H:1330"},
      {"SubjectArea", Array{2015, 1511, 330}, "X:2015, Y:1511, D:330"},
      {"SubjectArea", Array{2015, 1511.5}, "X:2015, Y:1511.5"},
      {"SubjectArea", Array{"a", "b", "c", "d", "e"}, "[a, b, c, d, e]"},
      {"SubjectArea", Array{7}, "[7]"},
      {"SubjectArea", Array{}, "[]"},
      {"SubjectLocation", Array{12, 34}, "X:12, Y:34"},
      {"SubjectLocation", Array{"a", "b", "c"}, "[a, b, c]"},
      {"SubjectLocation", Array{1, 2, 3, 4}, "[1, 2, 3, 4]"},
      {"ComponentsConfiguration", Array{1, 2, 3, 0}, "YCbCr (1,2,3,0)"},
      {"ComponentsConfiguration", Array{4, 5, 6, 0}, "RGB (4,5,6,0)"},
      {"ComponentsConfiguration", Array{0, 0, 0, 0}, " (0,0,0,0)"},
      {"ComponentsConfiguration", Array{"1", 2.9, 7, -1, "x"}, "YCb (1,2.9,7,-1,x)"},
      {"ComponentsConfiguration", Array{}, " ()"},
      {"ISOSpeedRatings", Array{25}, "[25]"},
      {"ExifVersion", Array{2, 3, 1}, "[2, 3, 1]"},
      {"LensSpecification", Array{3.99, 6.6, 1.8, 2.8}, "[3.99, 6.6, 1.8, 2.8]"},
      {"NoSuchKey", Array{"a b", true}, "[a b, 1]"},
  });
}

TEST(ExifValues, PutArraysBeforeTheRuleOfTheKey) {
  expectReadings({
      {"CFAPattern", Array{0, 2, 0, 2, 0, 1, 1, 2}, "[0, 2, 0, 2, 0, 1, 1, 2]"},
      {"Flash", Array{16}, "[16]"},
      {"FNumber", Array{1.8}, "[1.8]"},
      {"ColorSpace", Array{1}, "[1]"},
      {"ExposureTime", Array{0.25}, "[0.25]"},
  });
}

TEST(ExifValues, LeaveOtherKeysRaw) {
  expectReadings({
      {"DateTimeOriginal", "2018:09:30 14:03:11", std::nullopt},
      {"BrightnessValue", 5.5, std::nullopt},
      {"SubjectArea", 5, std::nullopt},
      {"ComponentsConfiguration", 1, std::nullopt},
      {"flash", 16, std::nullopt},
      {"Flash2", 16, std::nullopt},
      {"", 0, std::nullopt},
      {"LensMake", Dictionary{{"a", 1}}, std::nullopt},
  });
}

}  // namespace
}  // namespace lumifact
