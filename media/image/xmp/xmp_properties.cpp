// SPDX-License-Identifier: MIT
//
// Most properties are one value under one key; a few stand in for a second one. Those that are not
// (coordinates with their hemisphere, dates with their time, flash bits, face regions) have a
// function of their own.
#include "media/image/xmp/xmp_properties.h"

#include <algorithm>

#include "media/image/blocks/metadata_blocks.h"
#include "media/image/xmp/xmp_conversions.h"
#include "media/image/xmp/xmp_regions.h"

namespace media::image {

namespace {

void put(std::optional<model::Value> value, std::string_view sectionName, std::string_view key,
         model::Dictionary& properties) {
  if (value) setIfAbsent(section(properties, sectionName), key, *std::move(value));
}

// Stores what a conversion makes of the value.
template <std::optional<model::Value> (*convert)(const XmpValue&)>
void as(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  put(convert(value), row.section, row.key, properties);
}

void orientation(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  const auto number = xmpInteger(value);
  const std::int64_t* code = number ? number->asInteger() : nullptr;
  if (!code || *code < 1 || *code > 8) return;
  setIfAbsent(properties, row.key, *code);
  put(model::Value(*code), row.section, row.key, properties);
}

// The time, and its offset from UTC for those who reckon with it (time_offsets.h).
void originalTime(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  auto time = xmpExifDate(value);
  if (!time || section(properties, row.section).contains(row.key)) return;
  put(std::move(time), row.section, row.key, properties);
  const std::string zone = xmpDate(value.simpleText())->zone;
  if (!zone.empty()) put(model::Value(zone), row.section, "OffsetTimeOriginal", properties);
}

// "DateCreated" gets the day as digits, "TimeCreated" the time, as IPTC writes them.
void iptcDate(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  const auto date = xmpDate(value.simpleText());
  if (!date) return;
  const std::string day = std::string(date->year).append(date->month).append(date->day);
  put(model::Value(day), row.section, row.key, properties);
  if (date->minute.empty()) return;
  const std::string time = std::string(date->hour).append(date->minute).append(date->second);
  put(model::Value(time + date->zone), row.section, "TimeCreated", properties);
}

void gpsCoordinate(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  const auto coordinate = xmpCoordinate(value.simpleText());
  if (!coordinate) return;
  put(model::Value(coordinate->degrees), row.section, row.key, properties);
  put(model::Value(coordinate->hemisphere), row.section, std::string(row.key) + "Ref", properties);
}

void gpsTime(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  const auto date = xmpDate(value.simpleText());
  if (!date || date->minute.empty()) return;
  const auto joined = [](std::string_view first, std::string_view second, std::string_view third) {
    return model::Value(std::string(first).append(":").append(second).append(":").append(third));
  };
  put(joined(date->hour, date->minute, date->second), row.section, row.key, properties);
  put(joined(date->year, date->month, date->day), row.section, "DateStamp", properties);
}

// The fields of the structure as the bits of the EXIF tag. EXIF 2.31, 4.6.5, tag 0x9209.
void flash(const XmpValue& value, const XmpRow& row, model::Dictionary& properties) {
  const auto field = [&](std::string_view name) {
    const XmpValue* found = value.field({XmpNamespace::exif, name});
    return found ? found->simpleText() : std::string_view();
  };
  const auto bit = [&](std::string_view name) {
    const std::string_view text = field(name);
    return text == "True" || text == "true" || text == "1" ? 1 : 0;
  };
  const auto twoBits = [&](std::string_view name) {
    const XmpValue* found = value.field({XmpNamespace::exif, name});
    const auto number = found ? xmpInteger(*found) : std::nullopt;
    return number ? static_cast<int>(*number->asInteger() & 3) : 0;
  };
  if (value.fields.empty()) return as<xmpInteger>(value, row, properties);
  const int bits = bit("Fired") | twoBits("Return") << 1 | twoBits("Mode") << 3 |
                   bit("Function") << 5 | bit("RedEyeMode") << 6;
  put(model::Value(bits), row.section, row.key, properties);
}

constexpr std::string_view inAux = "{ExifAux}";
constexpr std::string_view inExif = "{Exif}";
constexpr std::string_view inGps = "{GPS}";
constexpr std::string_view inIptc = "{IPTC}";
constexpr std::string_view inTiff = "{TIFF}";

using enum XmpNamespace;

// By namespace, then by name.
constexpr XmpRow xmpRows[] = {
    {{aux, "Firmware"}, inAux, "Firmware", as<xmpText>},
    {{aux, "FlashCompensation"}, inAux, "FlashCompensation", as<xmpRealValue>},
    {{aux, "ImageNumber"}, inAux, "ImageNumber", as<xmpInteger>},
    {{aux, "Lens"}, inAux, "LensModel", as<xmpText>},
    {{aux, "LensID"}, inAux, "LensID", as<xmpInteger>},
    {{aux, "LensInfo"}, inAux, "LensInfo", as<xmpRealArray>},
    {{aux, "LensSerialNumber"}, inAux, "LensSerialNumber", as<xmpText>},
    {{aux, "OwnerName"}, inAux, "OwnerName", as<xmpText>},
    {{aux, "SerialNumber"}, inAux, "SerialNumber", as<xmpText>},

    {{dublinCore, "creator"}, inIptc, "Byline", as<xmpTextArray>},
    {{dublinCore, "description"}, inIptc, "Caption/Abstract", as<xmpText>},
    {{dublinCore, "rights"}, inIptc, "CopyrightNotice", as<xmpText>},
    {{dublinCore, "subject"}, inIptc, "Keywords", as<xmpTextArray>},
    {{dublinCore, "title"}, inIptc, "ObjectName", as<xmpText>},

    {{exif, "ApertureValue"}, inExif, "ApertureValue", as<xmpRealValue>},
    {{exif, "BrightnessValue"}, inExif, "BrightnessValue", as<xmpRealValue>},
    {{exif, "ColorSpace"}, inExif, "ColorSpace", as<xmpInteger>},
    {{exif, "ComponentsConfiguration"}, inExif, "ComponentsConfiguration", as<xmpIntegerArray>},
    {{exif, "CompressedBitsPerPixel"}, inExif, "CompressedBitsPerPixel", as<xmpRealValue>},
    {{exif, "Contrast"}, inExif, "Contrast", as<xmpInteger>},
    {{exif, "CustomRendered"}, inExif, "CustomRendered", as<xmpInteger>},
    {{exif, "DateTimeDigitized"}, inExif, "DateTimeDigitized", as<xmpExifDate>},
    {{exif, "DateTimeOriginal"}, inExif, "DateTimeOriginal", originalTime},
    {{exif, "DigitalZoomRatio"}, inExif, "DigitalZoomRatio", as<xmpRealValue>},
    {{exif, "ExifVersion"}, inExif, "ExifVersion", as<xmpVersion>},
    {{exif, "ExposureBiasValue"}, inExif, "ExposureBiasValue", as<xmpRealValue>},
    {{exif, "ExposureIndex"}, inExif, "ExposureIndex", as<xmpRealValue>},
    {{exif, "ExposureMode"}, inExif, "ExposureMode", as<xmpInteger>},
    {{exif, "ExposureProgram"}, inExif, "ExposureProgram", as<xmpInteger>},
    {{exif, "ExposureTime"}, inExif, "ExposureTime", as<xmpRealValue>},
    {{exif, "FNumber"}, inExif, "FNumber", as<xmpRealValue>},
    {{exif, "FileSource"}, inExif, "FileSource", as<xmpInteger>},
    {{exif, "Flash"}, inExif, "Flash", flash},
    {{exif, "FlashEnergy"}, inExif, "FlashEnergy", as<xmpRealValue>},
    {{exif, "FlashpixVersion"}, inExif, "FlashPixVersion", as<xmpVersion>},
    {{exif, "FocalLength"}, inExif, "FocalLength", as<xmpRealValue>},
    {{exif, "FocalLengthIn35mmFilm"}, inExif, "FocalLenIn35mmFilm", as<xmpInteger>},
    {{exif, "FocalPlaneResolutionUnit"}, inExif, "FocalPlaneResolutionUnit", as<xmpInteger>},
    {{exif, "FocalPlaneXResolution"}, inExif, "FocalPlaneXResolution", as<xmpRealValue>},
    {{exif, "FocalPlaneYResolution"}, inExif, "FocalPlaneYResolution", as<xmpRealValue>},
    {{exif, "GPSAltitude"}, inGps, "Altitude", as<xmpRealValue>},
    {{exif, "GPSAltitudeRef"}, inGps, "AltitudeRef", as<xmpInteger>},
    {{exif, "GPSAreaInformation"}, inGps, "AreaInformation", as<xmpText>},
    {{exif, "GPSDOP"}, inGps, "DOP", as<xmpRealValue>},
    {{exif, "GPSDestBearing"}, inGps, "DestBearing", as<xmpRealValue>},
    {{exif, "GPSDestBearingRef"}, inGps, "DestBearingRef", as<xmpText>},
    {{exif, "GPSDestDistance"}, inGps, "DestDistance", as<xmpRealValue>},
    {{exif, "GPSDestDistanceRef"}, inGps, "DestDistanceRef", as<xmpText>},
    {{exif, "GPSDestLatitude"}, inGps, "DestLatitude", gpsCoordinate},
    {{exif, "GPSDestLongitude"}, inGps, "DestLongitude", gpsCoordinate},
    {{exif, "GPSDifferential"}, inGps, "Differential", as<xmpInteger>},
    {{exif, "GPSHPositioningError"}, inGps, "HPositioningError", as<xmpRealValue>},
    {{exif, "GPSImgDirection"}, inGps, "ImgDirection", as<xmpRealValue>},
    {{exif, "GPSImgDirectionRef"}, inGps, "ImgDirectionRef", as<xmpText>},
    {{exif, "GPSLatitude"}, inGps, "Latitude", gpsCoordinate},
    {{exif, "GPSLongitude"}, inGps, "Longitude", gpsCoordinate},
    {{exif, "GPSMapDatum"}, inGps, "MapDatum", as<xmpText>},
    {{exif, "GPSMeasureMode"}, inGps, "MeasureMode", as<xmpText>},
    {{exif, "GPSProcessingMethod"}, inGps, "ProcessingMethod", as<xmpText>},
    {{exif, "GPSSatellites"}, inGps, "Satellites", as<xmpText>},
    {{exif, "GPSSpeed"}, inGps, "Speed", as<xmpRealValue>},
    {{exif, "GPSSpeedRef"}, inGps, "SpeedRef", as<xmpText>},
    {{exif, "GPSStatus"}, inGps, "Status", as<xmpText>},
    {{exif, "GPSTimeStamp"}, inGps, "TimeStamp", gpsTime},
    {{exif, "GPSTrack"}, inGps, "Track", as<xmpRealValue>},
    {{exif, "GPSTrackRef"}, inGps, "TrackRef", as<xmpText>},
    {{exif, "GPSVersionID"}, inGps, "GPSVersion", as<xmpDottedVersion>},
    {{exif, "GainControl"}, inExif, "GainControl", as<xmpInteger>},
    {{exif, "ISOSpeedRatings"}, inExif, "ISOSpeedRatings", as<xmpIntegerArray>},
    {{exif, "ImageUniqueID"}, inExif, "ImageUniqueID", as<xmpText>},
    {{exif, "LightSource"}, inExif, "LightSource", as<xmpInteger>},
    {{exif, "MaxApertureValue"}, inExif, "MaxApertureValue", as<xmpRealValue>},
    {{exif, "MeteringMode"}, inExif, "MeteringMode", as<xmpInteger>},
    {{exif, "PixelXDimension"}, inExif, "PixelXDimension", as<xmpInteger>},
    {{exif, "PixelYDimension"}, inExif, "PixelYDimension", as<xmpInteger>},
    {{exif, "RelatedSoundFile"}, inExif, "RelatedSoundFile", as<xmpText>},
    {{exif, "Saturation"}, inExif, "Saturation", as<xmpInteger>},
    {{exif, "SceneCaptureType"}, inExif, "SceneCaptureType", as<xmpInteger>},
    {{exif, "SceneType"}, inExif, "SceneType", as<xmpInteger>},
    {{exif, "SensingMethod"}, inExif, "SensingMethod", as<xmpInteger>},
    {{exif, "Sharpness"}, inExif, "Sharpness", as<xmpInteger>},
    {{exif, "ShutterSpeedValue"}, inExif, "ShutterSpeedValue", as<xmpRealValue>},
    {{exif, "SpectralSensitivity"}, inExif, "SpectralSensitivity", as<xmpText>},
    {{exif, "SubjectArea"}, inExif, "SubjectArea", as<xmpIntegerArray>},
    {{exif, "SubjectDistance"}, inExif, "SubjectDistance", as<xmpRealValue>},
    {{exif, "SubjectDistanceRange"}, inExif, "SubjectDistRange", as<xmpInteger>},
    {{exif, "SubjectLocation"}, inExif, "SubjectLocation", as<xmpIntegerArray>},
    {{exif, "UserComment"}, inExif, "UserComment", as<xmpText>},
    {{exif, "WhiteBalance"}, inExif, "WhiteBalance", as<xmpInteger>},

    {{exifEx, "BodySerialNumber"}, inExif, "BodySerialNumber", as<xmpText>},
    {{exifEx, "CameraOwnerName"}, inExif, "CameraOwnerName", as<xmpText>},
    {{exifEx, "Gamma"}, inExif, "Gamma", as<xmpRealValue>},
    {{exifEx, "ISOSpeed"}, inExif, "ISOSpeed", as<xmpInteger>},
    {{exifEx, "LensMake"}, inExif, "LensMake", as<xmpText>},
    {{exifEx, "LensModel"}, inExif, "LensModel", as<xmpText>},
    {{exifEx, "LensSerialNumber"}, inExif, "LensSerialNumber", as<xmpText>},
    {{exifEx, "LensSpecification"}, inExif, "LensSpecification", as<xmpRealArray>},
    {{exifEx, "PhotographicSensitivity"}, inExif, "ISOSpeedRatings", as<xmpIntegerArray>},
    {{exifEx, "RecommendedExposureIndex"}, inExif, "RecommendedExposureIndex", as<xmpInteger>},
    {{exifEx, "SensitivityType"}, inExif, "SensitivityType", as<xmpInteger>},
    {{exifEx, "StandardOutputSensitivity"}, inExif, "StandardOutputSensitivity", as<xmpInteger>},

    {{iptcCore, "CountryCode"}, inIptc, "Country/PrimaryLocationCode", as<xmpText>},
    {{iptcCore, "CreatorContactInfo"}, inIptc, "CreatorContactInfo", as<xmpTree>},
    {{iptcCore, "IntellectualGenre"}, inIptc, "ObjectAttributeReference", as<xmpTextArray>},
    {{iptcCore, "Location"}, inIptc, "SubLocation", as<xmpText>},
    {{iptcCore, "Scene"}, inIptc, "Scene", as<xmpTextArray>},
    {{iptcCore, "SubjectCode"}, inIptc, "SubjectReference", as<xmpTextArray>},

    {{iptcExt, "PersonInImage"}, inIptc, "PersonInImage", as<xmpTextArray>},

    {{mwgRegions, "Regions"}, inAux, "Regions", as<xmpRegions>},

    {{photoshop, "AuthorsPosition"}, inIptc, "BylineTitle", as<xmpTextArray>},
    {{photoshop, "CaptionWriter"}, inIptc, "Writer/Editor", as<xmpTextArray>},
    {{photoshop, "Category"}, inIptc, "Category", as<xmpText>},
    {{photoshop, "City"}, inIptc, "City", as<xmpText>},
    {{photoshop, "Country"}, inIptc, "Country/PrimaryLocationName", as<xmpText>},
    {{photoshop, "Credit"}, inIptc, "Credit", as<xmpText>},
    {{photoshop, "DateCreated"}, inIptc, "DateCreated", iptcDate},
    {{photoshop, "Headline"}, inIptc, "Headline", as<xmpText>},
    {{photoshop, "Instructions"}, inIptc, "SpecialInstructions", as<xmpText>},
    {{photoshop, "Source"}, inIptc, "Source", as<xmpText>},
    {{photoshop, "State"}, inIptc, "Province/State", as<xmpText>},
    {{photoshop, "SupplementalCategories"}, inIptc, "SupplementalCategory", as<xmpTextArray>},
    {{photoshop, "TransmissionReference"}, inIptc, "OriginalTransmissionReference", as<xmpText>},
    {{photoshop, "Urgency"}, inIptc, "Urgency", as<xmpText>},

    {{tiff, "Artist"}, inTiff, "Artist", as<xmpText>},
    {{tiff, "Copyright"}, inTiff, "Copyright", as<xmpText>},
    {{tiff, "DateTime"}, inTiff, "DateTime", as<xmpExifDate>},
    {{tiff, "ImageDescription"}, inTiff, "ImageDescription", as<xmpText>},
    {{tiff, "Make"}, inTiff, "Make", as<xmpText>},
    {{tiff, "Model"}, inTiff, "Model", as<xmpText>},
    {{tiff, "Orientation"}, inTiff, "Orientation", orientation},
    {{tiff, "PrimaryChromaticities"}, inTiff, "PrimaryChromaticities", as<xmpRealArray>},
    {{tiff, "ResolutionUnit"}, inTiff, "ResolutionUnit", as<xmpInteger>},
    {{tiff, "Software"}, inTiff, "Software", as<xmpText>},
    {{tiff, "TransferFunction"}, inTiff, "TransferFunction", as<xmpIntegerArray>},
    {{tiff, "WhitePoint"}, inTiff, "WhitePoint", as<xmpRealArray>},
    {{tiff, "XResolution"}, inTiff, "XResolution", as<xmpRealValue>},
    {{tiff, "YResolution"}, inTiff, "YResolution", as<xmpRealValue>},

    {{xmp, "Rating"}, inIptc, "StarRating", as<xmpInteger>},

    {{xmpRights, "UsageTerms"}, inIptc, "UsageTerms", as<xmpText>},
};

// What EXIF's own tags say too, written back the way in which the framework writes them.
constexpr XmpRow substituteRows[] = {
    {{dublinCore, "creator"}, inTiff, "Artist", as<xmpJoinedText>},
    {{dublinCore, "description"}, inTiff, "ImageDescription", as<xmpText>},
    {{dublinCore, "rights"}, inTiff, "Copyright", as<xmpText>},
    {{photoshop, "DateCreated"}, inExif, "DateTimeOriginal", originalTime},
    {{xmp, "CreateDate"}, inExif, "DateTimeDigitized", as<xmpExifDate>},
    {{xmp, "CreatorTool"}, inTiff, "Software", as<xmpText>},
    {{xmp, "ModifyDate"}, inTiff, "DateTime", as<xmpExifDate>},
};

constexpr bool isBefore(XmpName left, XmpName right) {
  return left.space != right.space ? left.space < right.space : left.local < right.local;
}

template <std::size_t count>
consteval bool namesAscend(const XmpRow (&rows)[count]) {
  for (std::size_t index = 1; index < count; ++index) {
    if (!isBefore(rows[index - 1].name, rows[index].name)) return false;
  }
  return true;
}
static_assert(namesAscend(xmpRows));
static_assert(namesAscend(substituteRows));

template <std::size_t count>
std::optional<XmpRow> rowOf(const XmpRow (&rows)[count], XmpName name) {
  const auto* row = std::ranges::lower_bound(rows, name, isBefore, &XmpRow::name);
  return row != std::end(rows) && row->name == name ? std::optional(*row) : std::nullopt;
}

}  // namespace

std::optional<XmpRow> xmpRow(XmpName name) {
  if (auto row = rowOf(xmpRows, name)) return row;
  const bool isExtension = name.space == iptcExt && isXmpKey(name.local);
  return isExtension ? std::optional(XmpRow{name, inIptc, name.local, as<xmpTree>}) : std::nullopt;
}

std::optional<XmpRow> xmpSubstituteRow(XmpName name) {
  return rowOf(substituteRows, name);
}

}  // namespace media::image
