// SPDX-License-Identifier: MIT
//
// A table says which key of ours is which tag of exiftool's, and in what form its value stands
// there; the values of every file are compared row by row.
#include <array>
#include <cmath>
#include <string_view>

#include "bench/compare.h"
#include "io/byte_source.h"
#include "media/image/image_source.h"
#include "model/conversions.h"
#include "model/description.h"
#include "model/number_text.h"

namespace bench {

namespace {

// How a value of ours becomes the one exiftool prints.
enum class Form { plain, firstElement, apexTime, apexAperture, timeOfDay };

struct Row {
  std::string_view section;
  std::string_view key;
  const char* theirs;
  Form form = Form::plain;
};

constexpr std::array rows = {
    Row{"{TIFF}", "Make", "IFD0:Make"},
    Row{"{TIFF}", "Model", "IFD0:Model"},
    Row{"{TIFF}", "Software", "IFD0:Software"},
    Row{"{TIFF}", "DateTime", "IFD0:ModifyDate"},
    Row{"{TIFF}", "Orientation", "IFD0:Orientation"},
    Row{"{TIFF}", "XResolution", "IFD0:XResolution"},
    Row{"{TIFF}", "ResolutionUnit", "IFD0:ResolutionUnit"},
    Row{"{Exif}", "ExposureTime", "ExifIFD:ExposureTime"},
    Row{"{Exif}", "FNumber", "ExifIFD:FNumber"},
    Row{"{Exif}", "ExposureProgram", "ExifIFD:ExposureProgram"},
    Row{"{Exif}", "ISOSpeedRatings", "ExifIFD:ISO", Form::firstElement},
    Row{"{Exif}", "DateTimeOriginal", "ExifIFD:DateTimeOriginal"},
    Row{"{Exif}", "DateTimeDigitized", "ExifIFD:CreateDate"},
    Row{"{Exif}", "SubsecTimeOriginal", "ExifIFD:SubSecTimeOriginal"},
    Row{"{Exif}", "ShutterSpeedValue", "ExifIFD:ShutterSpeedValue", Form::apexTime},
    Row{"{Exif}", "ApertureValue", "ExifIFD:ApertureValue", Form::apexAperture},
    Row{"{Exif}", "BrightnessValue", "ExifIFD:BrightnessValue"},
    Row{"{Exif}", "ExposureBiasValue", "ExifIFD:ExposureCompensation"},
    Row{"{Exif}", "MeteringMode", "ExifIFD:MeteringMode"},
    Row{"{Exif}", "Flash", "ExifIFD:Flash"},
    Row{"{Exif}", "FocalLength", "ExifIFD:FocalLength"},
    Row{"{Exif}", "FocalLenIn35mmFilm", "ExifIFD:FocalLengthIn35mmFormat"},
    Row{"{Exif}", "ColorSpace", "ExifIFD:ColorSpace"},
    Row{"{Exif}", "WhiteBalance", "ExifIFD:WhiteBalance"},
    Row{"{Exif}", "ExposureMode", "ExifIFD:ExposureMode"},
    Row{"{Exif}", "SceneCaptureType", "ExifIFD:SceneCaptureType"},
    Row{"{Exif}", "PixelXDimension", "ExifIFD:ExifImageWidth"},
    Row{"{Exif}", "LensMake", "ExifIFD:LensMake"},
    Row{"{Exif}", "LensModel", "ExifIFD:LensModel"},
    Row{"{GPS}", "Latitude", "GPS:GPSLatitude"},
    Row{"{GPS}", "LatitudeRef", "GPS:GPSLatitudeRef"},
    Row{"{GPS}", "Longitude", "GPS:GPSLongitude"},
    Row{"{GPS}", "LongitudeRef", "GPS:GPSLongitudeRef"},
    Row{"{GPS}", "Altitude", "GPS:GPSAltitude"},
    Row{"{GPS}", "AltitudeRef", "GPS:GPSAltitudeRef"},
    Row{"{GPS}", "TimeStamp", "GPS:GPSTimeStamp", Form::timeOfDay},
    Row{"{GPS}", "DateStamp", "GPS:GPSDateStamp"},
    Row{"{GPS}", "ImgDirection", "GPS:GPSImgDirection"},
    Row{"{GPS}", "Speed", "GPS:GPSSpeed"},
    Row{"{CIFF}", "Description", "CanonRaw:CanonFileDescription"},
    Row{"{CIFF}", "Firmware", "CanonRaw:CanonFirmwareVersion"},
    Row{"{CIFF}", "OwnerName", "CanonRaw:OwnerName"},
    Row{"{CIFF}", "ImageFileName", "CanonRaw:OriginalFileName"},
    Row{"{CIFF}", "RecordID", "CanonRaw:RecordID"},
    Row{"{CIFF}", "CameraSerialNumber", "CanonRaw:SerialNumber"},
    Row{"{CIFF}", "ImageSerialNumber", "CanonRaw:FileNumber"},
    Row{"{CIFF}", "MeasuredEV", "CanonRaw:MeasuredEV"},
};

// exiftool rounds quotients to ten digits and drops a text's trailing blanks.
constexpr double tolerance = 1e-8;

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  return text;
}

bool isNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("+-.0123456789eE") == std::string::npos;
}

// Hundredths of a second stand with both digits here, with as few as needed there.
std::string withoutTrailingZeros(std::string time) {
  if (time.find('.') == std::string::npos) return time;
  time.erase(time.find_last_not_of('0') + 1);
  return time;
}

std::string oursAsTheirs(const model::Value& value, Form form) {
  if (form == Form::apexTime || form == Form::apexAperture) {
    const double apex = model::parseRealPrefix(model::valueText(value));
    return model::realText(form == Form::apexTime ? std::exp2(-apex) : std::exp2(apex / 2));
  }
  if (form == Form::timeOfDay) return withoutTrailingZeros(model::valueText(value));
  const auto* array = value.asArray();
  if (form == Form::firstElement && array != nullptr && !array->empty()) {
    return model::valueText(array->front());
  }
  return model::valueText(value);
}

const model::Value* ourValue(const model::Dictionary& properties, const Row& row) {
  const auto* found = model::find(properties, row.section);
  const auto* section = found == nullptr ? nullptr : found->asDictionary();
  return section == nullptr ? nullptr : model::find(*section, row.key);
}

// Raw files without TIFF directories have the same facts in groups of their own.
const model::Value* theirValue(const model::Dictionary& theirs, std::string_view name) {
  if (const auto* found = model::find(theirs, name)) return found;
  const std::string_view fact = name.substr(name.find(':'));
  for (const char* group : {"CanonRaw", "SigmaRaw"}) {
    if (const auto* found = model::find(theirs, group + std::string(fact))) return found;
  }
  return nullptr;
}

void compareFile(const std::string& file, const model::Dictionary& ours,
                 const model::Dictionary& theirs, Tally& tally) {
  for (const Row& row : rows) {
    const auto* our = ourValue(ours, row);
    const auto* their = theirValue(theirs, row.theirs);
    if (our == nullptr && their == nullptr) continue;
    const std::string ourText = our == nullptr ? "none" : trimmed(oursAsTheirs(*our, row.form));
    const std::string theirText = their == nullptr ? "none" : trimmed(model::valueText(*their));
    if (isNumber(ourText) && isNumber(theirText)) {
      // The brief APEX conversion of theirs goes through a rounded power.
      const bool apex = row.form == Form::apexTime || row.form == Form::apexAperture;
      tally.compareNumbers(file, row.theirs, model::parseRealPrefix(ourText),
                           model::parseRealPrefix(theirText), apex ? 1e-6 : tolerance);
    } else {
      tally.compare(file, row.theirs, ourText, theirText);
    }
  }
}

}  // namespace

void compareImages(const std::vector<std::string>& files, Tally& tally) {
  for (const std::string& file : files) {
    auto source = io::FileSource::open(file);
    if (!source) continue;
    const auto ours = media::image::copyProperties(**source);
    if (!ours || !*ours) continue;
    const auto said = outputOf({"exiftool", "-n", "-j", "-G1", file});
    const model::Value json = parseJson(said.value_or(""));
    const auto* list = json.asArray();
    const auto* theirs = list == nullptr || list->empty() ? nullptr : list->front().asDictionary();
    if (theirs != nullptr) compareFile(file, **ours, *theirs, tally);
  }
}

}  // namespace bench
