// SPDX-License-Identifier: MIT
#include "lumifact/details/data_parser_class.h"

#include "bridge/class_builder.h"
#include "bridge/convert.h"
#include "bridge/convert_media.h"
#include "lumifact/report/data_parser.h"

namespace lumifact {
namespace {

constexpr FixedString parseImage = "parseDataToString:mapCoordinates:";
constexpr FixedString parseVideo = "parseAVURLAsset:toDataAndString:mapCoordinates:";

// The order in which the platform shows keys.
int compareAsShown(std::string_view left, std::string_view right) {
  const AutoreleasePool pool;
  return static_cast<int>(
      NSString::make(left).localizedCaseInsensitiveCompare(NSString::make(right)));
}

void handOut(const std::optional<std::string>& coordinates, id* mapCoordinates) {
  if (coordinates) *mapCoordinates = NSString::make(*coordinates).get();
}

std::optional<std::string> textOf(id string) {
  return string ? std::optional(NSString(string).utf8()) : std::nullopt;
}

}  // namespace

Class DataParserClass::classObject() {
  static const Class made = ClassBuilder<DataParserClass>("DataParser")
                                .classMethod<parseImage, &DataParserClass::parseDataToString>()
                                .classMethod<parseVideo, &DataParserClass::parseAVURLAsset>()
                                .build();
  return made;
}

NSString DataParserClass::parseDataToString(id* data, id* mapCoordinates) {
  const NSMutableDictionary properties(*data);
  const model::Value read = toValue(properties);
  const model::Dictionary before = read.asDictionary() ? *read.asDictionary() : model::Dictionary();
  model::Dictionary after = before;
  std::optional<std::string> coordinates;
  const std::string text = DataParser::parseDataToString(after, coordinates, compareAsShown);
  writeChanges(properties, before, after);
  handOut(coordinates, mapCoordinates);
  return NSString::make(text);
}

NSString DataParserClass::parseAVURLAsset(AVURLAsset asset, id*, id* mapCoordinates) {
  const model::MediaAsset media = toMediaAsset(asset);
  model::Dictionary untouched;
  std::optional<std::string> coordinates;
  const std::string text =
      DataParser::parseAVURLAsset(asset ? &media : nullptr, untouched, coordinates, compareAsShown);
  handOut(coordinates, mapCoordinates);
  return NSString::make(text);
}

Report reportOfImage(NSMutableDictionary properties) {
  id data = properties.get();
  id coordinates = nullptr;
  const auto text = send<NSString, parseImage>(DataParserClass::classObject(), &data, &coordinates);
  return {text, textOf(coordinates)};
}

Report reportOfVideo(AVURLAsset asset) {
  const auto data = makeNew<NSMutableDictionary>();
  id dataObject = data->get();
  id coordinates = nullptr;
  const auto text =
      send<NSString, parseVideo>(DataParserClass::classObject(), asset, &dataObject, &coordinates);
  return {text, textOf(coordinates)};
}

}  // namespace lumifact
