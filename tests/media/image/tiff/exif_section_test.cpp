// SPDX-License-Identifier: MIT
#include "media/image/tiff/exif_section.h"

#include <gtest/gtest.h>

#include "tests/media/image/tag_rows.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;
using model::Array;

void expectExif(std::span<const TagCase> cases) {
  expectShown(cases, readExifSection, "{Exif}");
}

TEST(ExifSection, showsEveryTagUnderItsKey) {
  const TagCase cases[] = {
      {"ExposureTime", rationals(0x829A, {{1, 15}}), 1.0 / 15},
      {"FNumber", rationals(0x829D, {{18, 10}}), 1.8},
      {"ExposureProgram", shorts(0x8822, {2}), 2},
      {"SpectralSensitivity", ascii(0x8824, "red"), "red"},
      {"ISOSpeedRatings", shorts(0x8827, {100}), Array{100}},
      {"SensitivityType", shorts(0x8830, {2}), 2},
      {"StandardOutputSensitivity", longs(0x8831, {200}), 200},
      {"RecommendedExposureIndex", longs(0x8832, {400}), 400},
      {"ISOSpeed", longs(0x8833, {800}), 800},
      {"ISOSpeedLatitudeyyy", longs(0x8834, {70000}), 70000},
      {"ISOSpeedLatitudezzz", longs(0x8835, {80000}), 80000},
      {"ExifVersion", undefined(0x9000, "0231"), Array{2, 3, 1}},
      {"DateTimeOriginal", ascii(0x9003, "2018:09:30 14:03:11"), "2018:09:30 14:03:11"},
      {"DateTimeDigitized", ascii(0x9004, "2018:09:30 14:03:12"), "2018:09:30 14:03:12"},
      {"OffsetTime", ascii(0x9010, "+01:00"), "+01:00"},
      {"OffsetTimeOriginal", ascii(0x9011, "+02:00"), "+02:00"},
      {"OffsetTimeDigitized", ascii(0x9012, "+03:00"), "+03:00"},
      {"ComponentsConfiguration", undefined(0x9101, "\1\2\3\0"sv), Array{1, 2, 3, 0}},
      {"CompressedBitsPerPixel", rationals(0x9102, {{5, 2}}), 2.5},
      {"ShutterSpeedValue", signedRationals(0x9201, {{-3, 2}}), -1.5},
      {"ApertureValue", rationals(0x9202, {{169, 100}}), 1.69},
      {"BrightnessValue", signedRationals(0x9203, {{-7, 4}}), -1.75},
      {"ExposureBiasValue", signedRationals(0x9204, {{-1, 3}}), -1.0 / 3},
      {"MaxApertureValue", rationals(0x9205, {{4, 1}}), 4.0},
      {"SubjectDistance", rationals(0x9206, {{25, 10}}), 2.5},
      {"MeteringMode", shorts(0x9207, {5}), 5},
      {"LightSource", shorts(0x9208, {255}), 255},
      {"Flash", shorts(0x9209, {16}), 16},
      {"FocalLength", rationals(0x920A, {{399, 100}}), 3.99},
      {"SubjectArea", shorts(0x9214, {2015, 1511, 2217, 1330}), Array{2015, 1511, 2217, 1330}},
      {"UserComment", undefined(0x9286, "ASCII\0\0\0a comment"sv), "a comment"},
      {"SubsecTime", ascii(0x9290, "12"), "12"},
      {"SubsecTimeOriginal", ascii(0x9291, "547"), "547"},
      {"SubsecTimeDigitized", ascii(0x9292, "007"), "007"},
      {"FlashPixVersion", undefined(0xA000, "0100"), Array{1, 0}},
      {"ColorSpace", shorts(0xA001, {65535}), 65535},
      {"PixelXDimension", longs(0xA002, {4032}), 4032},
      {"PixelYDimension", longs(0xA003, {3024}), 3024},
      {"RelatedSoundFile", ascii(0xA004, "SND00001.WAV"), "SND00001.WAV"},
      {"FlashEnergy", rationals(0xA20B, {{1, 2}}), 0.5},
      {"FocalPlaneXResolution", rationals(0xA20E, {{3, 2}}), 1.5},
      {"FocalPlaneYResolution", rationals(0xA20F, {{5, 2}}), 2.5},
      {"FocalPlaneResolutionUnit", shorts(0xA210, {3}), 3},
      {"SubjectLocation", shorts(0xA214, {10, 20}), Array{10, 20}},
      {"ExposureIndex", rationals(0xA215, {{80, 1}}), 80.0},
      {"SensingMethod", shorts(0xA217, {2}), 2},
      {"FileSource", undefined(0xA300, "\3"), 3},
      {"SceneType", undefined(0xA301, "\1"), 1},
      {"CFAPattern", undefined(0xA302, "\0\2\0\2\0\1\1\2"sv), Array{0, 2, 0, 2, 0, 1, 1, 2}},
      {"CustomRendered", shorts(0xA401, {8}), 8},
      {"ExposureMode", shorts(0xA402, {1}), 1},
      {"WhiteBalance", shorts(0xA403, {1}), 1},
      {"DigitalZoomRatio", rationals(0xA404, {{3, 2}}), 1.5},
      {"FocalLenIn35mmFilm", shorts(0xA405, {28}), 28},
      {"SceneCaptureType", shorts(0xA406, {3}), 3},
      {"GainControl", shorts(0xA407, {4}), 4},
      {"Contrast", shorts(0xA408, {2}), 2},
      {"Saturation", shorts(0xA409, {1}), 1},
      {"Sharpness", shorts(0xA40A, {2}), 2},
      {"SubjectDistRange", shorts(0xA40C, {3}), 3},
      {"ImageUniqueID", ascii(0xA420, "0123456789abcdef"), "0123456789abcdef"},
      {"CameraOwnerName", ascii(0xA430, "Ada"), "Ada"},
      {"BodySerialNumber", ascii(0xA431, "6001440"), "6001440"},
      {"LensSpecification", rationals(0xA432, {{17, 4}, {6, 1}, {9, 5}, {12, 5}}),
       Array{4.25, 6.0, 1.8, 2.4}},
      {"LensMake", ascii(0xA433, "Lensmaker"), "Lensmaker"},
      {"LensModel", ascii(0xA434, "28mm f/1.8"), "28mm f/1.8"},
      {"LensSerialNumber", ascii(0xA435, "77"), "77"},
      {"Gamma", rationals(0xA500, {{22, 10}}), 2.2},
  };
  expectExif(cases);
  expectEveryRowIn(exifTags(), cases);
}

TEST(ExifSection, versionsAreDigits) {
  const TagCase cases[] = {
      {"ExifVersion", undefined(0x9000, "0221"), Array{2, 2, 1}},
      {"ExifVersion", undefined(0x9000, "0230"), Array{2, 3}},
      {"ExifVersion", undefined(0x9000, "0200"), Array{2, 0}},
      {"ExifVersion", undefined(0x9000, "1203"), Array{12, 0, 3}},
      {"ExifVersion", undefined(0x9000, "\0\2\1\0"sv), Array{2, 1}},
      {"ExifVersion", ascii(0x9000, "0210"), Array{2, 1}},
      {"ExifVersion", undefined(0x9000, "02.1"), std::nullopt},
      {"ExifVersion", undefined(0x9000, "021"), std::nullopt},
  };
  expectExif(cases);
}

TEST(ExifSection, otherTypesThanAskedForAreTakenAsCamerasWriteThem) {
  const TagCase cases[] = {
      {"PixelXDimension", shorts(0xA002, {640}), 640},
      {"MeteringMode", longs(0x9207, {5}), 5},
      {"Flash", integers(0x9209, FieldType::byte, {1}), 1},
      {"ExposureTime", shorts(0x829A, {4}), 4.0},
      {"ExposureBiasValue", rationals(0x9204, {{1, 2}}), 0.5},
      {"FocalLenIn35mmFilm", rationals(0xA405, {{57, 2}}), 28.5},
      {"FileSource", undefined(0xA300, "\3\0\0\0"sv), 3},
      {"SceneType", shorts(0xA301, {1}), 1},
      {"CFAPattern", undefined(0xA302, "\7"), 7},
      {"LensModel", undefined(0xA434, "50mm"), "50mm"},
      {"ISOSpeedRatings", shorts(0x8827, {100, 200}), Array{100, 200}},
      {"Contrast", ascii(0xA408, "high"), std::nullopt},
      {"LensMake", shorts(0xA433, {3}), std::nullopt},
  };
  expectExif(cases);
}

TEST(ExifSection, large32BitNumbersAreSigned) {
  const TagCase cases[] = {
      {"PixelXDimension", longs(0xA002, {0xA00F0000}), -1609629696},
      {"PixelXDimension", longs(0xA002, {0x7FFFFFFF}), 0x7FFFFFFF},
  };
  expectExif(cases);
}

TEST(ExifSection, aDivisionByZeroLeavesTheKeyOut) {
  const TagCase cases[] = {
      {"ExposureTime", rationals(0x829A, {{0, 0}}), std::nullopt},
      {"FNumber", rationals(0x829D, {{28, 0}}), std::nullopt},
      {"LensSpecification", rationals(0xA432, {{24, 1}, {70, 1}, {28, 0}, {0, 0}}), std::nullopt},
      {"ISOSpeedRatings", rationals(0x8827, {{0, 0}}), std::nullopt},
  };
  expectExif(cases);
}

TEST(ExifSection, anUnknownEntryAmongSeveralIsZero) {
  const TagCase cases[] = {
      {"LensSpecification", rationals(0xA432, {{18, 1}, {55, 1}, {0, 0}, {0, 0}}),
       Array{18.0, 55.0, 0.0, 0.0}},
      {"SubjectArea", rationals(0x9214, {{0, 0}, {3, 2}}), Array{0.0, 1.5}},
  };
  expectExif(cases);
}

TEST(ExifSection, anInfiniteSubjectDistanceIsMinusOne) {
  const TagCase cases[] = {
      {"SubjectDistance", rationals(0x9206, {{0xFFFFFFFF, 1}}), -1.0},
      {"SubjectDistance", rationals(0x9206, {{0xFFFFFFFF, 0}}), -1.0},
      {"SubjectDistance", rationals(0x9206, {{0, 1}}), 0.0},
  };
  expectExif(cases);
}

TEST(ExifSection, textsEndAtTheirFirstNulAndKeepTrailingBlanks) {
  const TagCase cases[] = {
      {"LensModel", ascii(0xA434, "50mm   "), "50mm   "},
      {"LensModel", ascii(0xA434, "50mm\0garbage"sv), "50mm"},
      {"LensModel", ascii(0xA434, ""), ""},
      {"LensModel", ascii(0xA434, "M\xC3\xBCller"), "Müller"},
      {"LensModel", ascii(0xA434, "M\xFCller"), "Müller"},
  };
  expectExif(cases);
}

TEST(ExifSection, unknownTagsAreLeftOut) {
  const TagCase cases[] = {
      {"", undefined(0x927C, "maker note"), std::nullopt},
      {"", signedRationals(0x9400, {{20, 1}}), std::nullopt},
      {"", shorts(0xA460, {2}), std::nullopt},
      {"", pointerTo(0xA005, 0), std::nullopt},
      {"", undefined(0xEA1C, "padding"), std::nullopt},
  };
  expectExif(cases);
}

}  // namespace
}  // namespace media::image
