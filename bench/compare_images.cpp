// SPDX-License-Identifier: MIT
//
// A row a key: which of exiftool's tags say the same, in the order in which they count, and in
// which form. Both sides become texts, "none" where there is nothing; numbers, and lists of
// numbers, may differ by what exiftool rounds off.
#include <array>
#include <cmath>
#include <sstream>
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
enum class Form {
  plain,
  firstElement,
  list,        // all elements
  known,       // the same, compared only where they know it: we make one of other tags, too
  identifier,  // some numbers stand for none
  time,        // without fraction and zone
  apexTime,
  apexAperture,
  timeOfDay
};

struct Row {
  std::string_view section;
  std::string_view key;
  std::string_view
      theirs;  // names with blanks between them, of which the first that is there counts
  Form form = Form::plain;
};

constexpr std::array rows = {
    Row{"{TIFF}", "Make", "IFD0:Make XMP-tiff:Make"},
    Row{"{TIFF}", "Model", "IFD0:Model XMP-tiff:Model"},
    Row{"{TIFF}", "Software", "IFD0:Software XMP-tiff:Software XMP-xmp:CreatorTool"},
    Row{"{TIFF}", "DateTime", "IFD0:ModifyDate XMP-tiff:DateTime XMP-xmp:ModifyDate", Form::time},
    Row{"{TIFF}", "Artist", "IFD0:Artist XMP-tiff:Artist XMP-dc:Creator"},
    Row{"{TIFF}", "Orientation", "IFD0:Orientation XMP-tiff:Orientation"},
    Row{"{TIFF}", "XResolution", "IFD0:XResolution XMP-tiff:XResolution"},
    Row{"{TIFF}", "ResolutionUnit", "IFD0:ResolutionUnit XMP-tiff:ResolutionUnit"},
    Row{"{Exif}", "ExposureTime", "ExifIFD:ExposureTime XMP-exif:ExposureTime"},
    Row{"{Exif}", "FNumber", "ExifIFD:FNumber XMP-exif:FNumber"},
    Row{"{Exif}", "ExposureProgram", "ExifIFD:ExposureProgram XMP-exif:ExposureProgram"},
    Row{"{Exif}", "ISOSpeedRatings", "ExifIFD:ISO XMP-exif:ISO", Form::firstElement},
    Row{"{Exif}", "DateTimeOriginal",
        "ExifIFD:DateTimeOriginal XMP-exif:DateTimeOriginal XMP-photoshop:DateCreated", Form::time},
    Row{"{Exif}", "DateTimeDigitized",
        "ExifIFD:CreateDate XMP-exif:DateTimeDigitized XMP-xmp:CreateDate", Form::time},
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
    Row{"{Exif}", "LensSpecification", "ExifIFD:LensInfo XMP-exifEX:LensInfo", Form::list},
    Row{"{ExifAux}", "Firmware", "Canon:CanonFirmwareVersion XMP-aux:Firmware", Form::known},
    Row{"{ExifAux}", "FlashCompensation",
        "Canon:FlashExposureComp Nikon:FlashExposureComp XMP-aux:FlashCompensation"},
    Row{"{ExifAux}", "ImageNumber", "Nikon:ShutterCount XMP-aux:ImageNumber", Form::identifier},
    Row{"{ExifAux}", "LensID", "Canon:LensType Nikon:LensIDNumber XMP-aux:LensID",
        Form::identifier},
    Row{"{ExifAux}", "LensInfo", "Nikon:Lens XMP-aux:LensInfo", Form::known},
    Row{"{ExifAux}", "LensModel", "Canon:LensModel XMP-aux:Lens", Form::known},
    Row{"{ExifAux}", "OwnerName", "Canon:OwnerName XMP-aux:OwnerName"},
    Row{"{ExifAux}", "SerialNumber", "Canon:SerialNumber Nikon:SerialNumber XMP-aux:SerialNumber",
        Form::identifier},
    Row{"{DNG}", "UniqueCameraModel", "IFD0:UniqueCameraModel", Form::known},
    Row{"{DNG}", "AsShotNeutral", "IFD0:AsShotNeutral", Form::list},
    Row{"{DNG}", "ColorMatrix1", "IFD0:ColorMatrix1", Form::list},
    Row{"{DNG}", "BaselineExposure", "IFD0:BaselineExposure"},
    Row{"{IPTC}", "Byline", "IPTC:By-line XMP-dc:Creator", Form::list},
    Row{"{IPTC}", "Caption/Abstract", "IPTC:Caption-Abstract XMP-dc:Description"},
    Row{"{IPTC}", "City", "IPTC:City XMP-photoshop:City"},
    Row{"{IPTC}", "CopyrightNotice", "IPTC:CopyrightNotice XMP-dc:Rights"},
    Row{"{IPTC}", "Headline", "IPTC:Headline XMP-photoshop:Headline"},
    Row{"{IPTC}", "Keywords", "IPTC:Keywords XMP-dc:Subject", Form::list},
    Row{"{IPTC}", "ObjectName", "IPTC:ObjectName XMP-dc:Title"},
    Row{"{IPTC}", "Event", "XMP-iptcExt:Event"},
    Row{"{IPTC}", "PersonInImage", "XMP-iptcExt:PersonInImage", Form::list},
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

// The elements of an array, with blanks between them; undefined fractions among them are 0 here.
std::string listText(const model::Value& value) {
  const auto* array = value.asArray();
  if (array == nullptr) {
    std::string text = model::valueText(value);
    constexpr std::string_view undefined = "undef";
    for (std::size_t at = text.find(undefined); at != std::string::npos; at = text.find(undefined))
      text.replace(at, undefined.size(), "0");
    return text;
  }
  std::string text;
  for (const model::Value& element : *array) {
    if (!text.empty()) text += ' ';
    text += model::valueText(element);
  }
  return text;
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
  return listText(value);
}

// What stands for nothing on one side is left out on the other.
std::string compared(const std::string& text, Form form) {
  const std::string value = trimmed(form == Form::time ? text.substr(0, 19) : text);
  const bool isNone =
      form == Form::identifier && (value == "0" || value == "65535" || value == "4294965247");
  return value.empty() || isNone ? "none" : value;
}

std::string ourText(const model::Value* value, Form form) {
  return value == nullptr ? "none" : compared(oursAsTheirs(*value, form), form);
}

std::string theirText(const model::Value* value, Form form) {
  return value == nullptr ? "none" : compared(listText(*value), form);
}

const model::Value* theirValue(const model::Dictionary& theirs, std::string_view names) {
  std::istringstream each{std::string(names)};
  for (std::string name; each >> name;) {
    if (const auto* value = model::find(theirs, name)) return value;
  }
  return nullptr;
}

// Lists of as many numbers are equal where each is.
bool sameNumbers(const std::string& ours, const std::string& theirs) {
  std::istringstream left(ours);
  std::istringstream right(theirs);
  std::string first;
  std::string second;
  while (left >> first) {
    if (!(right >> second) || !isNumber(first) || !isNumber(second)) return false;
    const double number = model::parseRealPrefix(first);
    const double difference = std::abs(number - model::parseRealPrefix(second));
    if (difference > tolerance * std::abs(number)) return false;
  }
  return !(right >> second);
}

const model::Value* ourValue(const model::Dictionary& properties, const Row& row) {
  const auto* found = model::find(properties, row.section);
  const auto* section = found == nullptr ? nullptr : found->asDictionary();
  return section == nullptr ? nullptr : model::find(*section, row.key);
}

void compareFile(const std::string& file, const model::Dictionary& ours,
                 const model::Dictionary& theirs, Tally& tally) {
  for (const Row& row : rows) {
    const auto* their = theirValue(theirs, row.theirs);
    if (their == nullptr && row.form == Form::known) continue;
    const std::string our = ourText(ourValue(ours, row), row.form);
    const std::string other = theirText(their, row.form);
    if (our == "none" && other == "none") continue;
    const std::string name(row.theirs.substr(0, row.theirs.find(' ')));
    if (isNumber(our) && isNumber(other)) {
      // The brief APEX conversion of theirs goes through a rounded power.
      const bool apex = row.form == Form::apexTime || row.form == Form::apexAperture;
      tally.compareNumbers(file, name, model::parseRealPrefix(our), model::parseRealPrefix(other),
                           apex ? 1e-6 : tolerance);
    } else {
      tally.compare(file, name, sameNumbers(our, other) ? other : our, other);
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
