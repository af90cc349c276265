// SPDX-License-Identifier: MIT
#include "apps/gallery/sample_report.h"

#include "lumifact/details/file_facts.h"
#include "lumifact/details/map_link.h"
#include "lumifact/grid/quick_info_text.h"
#include "lumifact/report/data_parser.h"

namespace gallery {
namespace {

using model::Array;
using model::Dictionary;

const lumifact::FileFacts facts = {.path = "100APPLE/IMG_0042.HEIC",
                                   .fileDate = "Sep 30, 2018 at 12:15:26 PM",
                                   .fileSize = "1.9 MB",
                                   .pixelHeight = 4032,
                                   .pixelWidth = 3024};

Dictionary cameraProperties() {
  const Dictionary exif = {{"ApertureValue", 1.6959938131099002},
                           {"BrightnessValue", 9.4211},
                           {"ColorSpace", 65535},
                           {"CustomRendered", 6},
                           {"DateTimeDigitized", "2018:09:30 12:15:26"},
                           {"DateTimeOriginal", "2018:09:30 12:15:26"},
                           {"ExifVersion", Array{2, 2, 1}},
                           {"ExposureBiasValue", 0.0},
                           {"ExposureMode", 0},
                           {"ExposureProgram", 2},
                           {"ExposureTime", 0.0011806375442739079},
                           {"FNumber", 1.8},
                           {"Flash", 16},
                           {"FocalLenIn35mmFilm", 26},
                           {"FocalLength", 4.25},
                           {"ISOSpeedRatings", Array{25}},
                           {"LensMake", "Apple"},
                           {"LensModel", "iPhone XS back dual camera 4.25mm f/1.8"},
                           {"MeteringMode", 5},
                           {"PixelXDimension", 4032},
                           {"PixelYDimension", 3024},
                           {"SceneType", 1},
                           {"SensingMethod", 2},
                           {"ShutterSpeedValue", 9.7262},
                           {"SubjectArea", Array{2013, 1511, 2217, 1330}},
                           {"SubsecTimeOriginal", "437"},
                           {"WhiteBalance", 0}};
  const Dictionary gps = {
      {"Altitude", 516.25},    {"AltitudeRef", 0},       {"DateStamp", "2018:09:30"},
      {"ImgDirection", 187.5}, {"ImgDirectionRef", "T"}, {"Latitude", 48.137154},
      {"LatitudeRef", "N"},    {"Longitude", 11.576124}, {"LongitudeRef", "E"},
      {"Speed", 0.25},         {"SpeedRef", "K"},        {"TimeStamp", "10:15:25"}};
  const Dictionary tiff = {{"DateTime", "2018:09:30 12:15:26"},
                           {"Make", "Apple"},
                           {"Model", "iPhone XS"},
                           {"Orientation", 6},
                           {"ResolutionUnit", 2},
                           {"Software", "12.0"},
                           {"XResolution", 72},
                           {"YResolution", 72}};
  const Dictionary makerApple = {
      {"1", 10}, {"4", 1}, {"5", 179}, {"8", Array{0.0123, -0.9876, 0.0456}}, {"14", 0}};
  return {{"ColorModel", "RGB"},
          {"DPIHeight", 72},
          {"DPIWidth", 72},
          {"Depth", 8},
          {"Orientation", 6},
          {"PixelHeight", 3024},
          {"PixelWidth", 4032},
          {"ProfileName", "Display P3"},
          {"{Exif}", exif},
          {"{GPS}", gps},
          {"{MakerApple}", makerApple},
          {"{TIFF}", tiff}};
}

lumifact::QuickInfo quickInfo() {
  return {.path = facts.path,
          .dateText = facts.fileDate,
          .sizeText = facts.fileSize,
          .pixelWidth = facts.pixelWidth,
          .pixelHeight = facts.pixelHeight,
          .exifOrientation = 6,
          .place = "Munich - Old Town, near the river and a long way from the last tram stop"};
}

}  // namespace

SampleReport sampleReport() {
  SampleReport made;
  made.table = cameraProperties();
  std::optional<std::string> coordinates;
  made.header = lumifact::headerText(facts);
  made.text = lumifact::DataParser::parseDataToString(made.table, coordinates);
  made.fileSummary = lumifact::fileSummaryRecord(facts);
  made.mapLink = lumifact::buildMapLink(coordinates, std::nullopt, {}).value_or("");
  made.quickInfo = lumifact::quickInfoText(quickInfo(), lumifact::QuickInfoForm::labelled);
  made.title = "IMG_0042.HEIC";
  return made;
}

}  // namespace gallery
