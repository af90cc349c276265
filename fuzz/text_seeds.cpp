// SPDX-License-Identifier: MIT
#include "fuzz/text_seeds.h"

#include <limits>

#include "foundation/property_lists/property_list.h"

namespace fuzz {

namespace {

using foundation::PropertyListFormat;
using model::Array;
using model::Dictionary;

constexpr const char* script =
    "# a remark\n"
    "open album \"All Photos\"\n"
    "tap 328 42.5\n"
    "expect \"a \\\"quoted\\\" text\\n\"\n";

constexpr const char* imageLine =
    R"({"{Exif}":{"ExposureTime":0.0125,"FNumber":2.8,"Flash":16,"DateTimeOriginal":"2018:09:30 )"
    R"(14:03:11","UserComment":"\u00fc"},"{GPS}":{"Latitude":33.8568,"LatitudeRef":"S",)"
    R"("Longitude":151.2153,"LongitudeRef":"E","AltitudeRef":1,"Altitude":{"$real":"nan"}},)"
    R"("Orientation":6,"data":{"$data":"AAEC"},"date":{"$date":"2018-09-30T12:13:11Z"}})";

constexpr const char* videoLine =
    R"({"duration":2.5,"tracks":[{"mediaType":"vide","trackID":1,"nominalFrameRate":29.97}],)"
    R"("commonMetadata":[{"commonKey":"make","value":"Maker"}]})";

// A settings file with a value of every kind.
model::Value settings() {
  return Dictionary{{"viewType", 1},
                    {"mapZoomLevel", 12.5},
                    {"enabled", true},
                    {"fontSize", "14"},
                    {"infinite", std::numeric_limits<double>::infinity()},
                    {"date", model::Date{1538309591}},
                    {"data", model::Data{0, 1, 2}},
                    {"list", Array{1, "\u00fc", Array{}, Dictionary{{"key", -1}}}}};
}

// A page of settings with a row of every type.
model::Value settingsPage() {
  const auto row = [](const char* cell, Dictionary more) {
    more["cell"] = cell;
    more["label"] = "A row";
    more["key"] = "key";
    more["defaults"] = "org.example.page";
    return model::Value(std::move(more));
  };
  const Dictionary choices{{"validTitles", Array{"One", "Two"}}, {"validValues", Array{1, 2}}};
  return Dictionary{
      {"entry", Dictionary{{"cell", "PSLinkCell"}, {"label", "Page"}}},
      {"title", "A page"},
      {"items",
       Array{row("PSGroupCell", {{"footerText", "What it is for."}}),
             row("PSSwitchCell", {{"default", true}, {"PostNotification", "org.example.changed"}}),
             row("PSSegmentCell", choices), row("PSLinkListCell", choices),
             row("PSSliderCell", {{"min", 1}, {"max", 20.5}, {"default", 2}, {"showValue", true}}),
             row("PSTitleValueCell", {{"default", "12"}}), row("PSStaticTextCell", {})}}};
}

}  // namespace

std::vector<std::pair<std::string, std::string>> textSeeds() {
  std::vector<std::pair<std::string, std::string>> seeds{
      {"script", script}, {"image.json", imageLine}, {"video.json", videoLine}};
  const std::pair<std::string, model::Value> lists[] = {{"settings", settings()},
                                                        {"page", settingsPage()}};
  for (const auto& [name, list] : lists)
    for (const auto& [form, format] : {std::pair(".xml.plist", PropertyListFormat::xml),
                                       std::pair(".binary.plist", PropertyListFormat::binary)})
      if (const auto bytes = serializePropertyList(list, format))
        seeds.emplace_back(name + form, *bytes);
  return seeds;
}

}  // namespace fuzz
