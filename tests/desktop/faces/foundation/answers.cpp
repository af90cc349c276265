// SPDX-License-Identifier: MIT
#include "tests/desktop/faces/foundation/answers.h"

#include <filesystem>
#include <fstream>

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "desktop/platform.h"
#include "foundation/property_lists/property_list.h"

namespace desktop::faces {
namespace {

constexpr const char* samplePath = "/var/mobile/Library/Preferences/sample.plist";
constexpr double moment = 1538316191;  // 2018-09-30 14:03:11 UTC

NSString text(const char* utf8) {
  return NSString::make(utf8);
}

std::string size(long long bytes) {
  return NSByteCountFormatter::string(bytes, NSByteCountFormatter::fileStyle).utf8();
}

std::string sizeFromObject(long long bytes) {
  return send<NSString, "stringFromByteCount:">(makeNew<NSByteCountFormatter>(), bytes).utf8();
}

NSDate date() {
  return NSDate::withTimeIntervalSince1970(moment);
}

std::string shortDate() {
  const auto formatter = makeNew<NSDateFormatter>();
  formatter->setDateStyle(NSDateFormatter::shortStyle);
  formatter->setTimeStyle(NSDateFormatter::mediumStyle);
  return formatter->string(date()).utf8();
}

std::string compared(const char* left, const char* right) {
  return std::to_string(text(left).localizedCaseInsensitiveCompare(text(right)));
}

std::string described(const model::Value& value) {
  return NSObject(toObject(value).autorelease().get()).description().utf8();
}

std::string link(const char* string) {
  const NSURL url = NSURL::withString(text(string));
  return url ? url.absoluteString().utf8() : "no link";
}

std::string sampleList() {
  const auto list = NSMutableDictionary::withContentsOfFile(text(samplePath));
  return list ? as<NSString>(list->at(text("key"))).utf8() : "no list";
}

std::string yesOrNo(bool answer) {
  return answer ? "yes" : "no";
}

const model::Dictionary nested = {
    {"{Exif}", model::Dictionary{{"FNumber", 1.8}, {"ISO", model::Array{100}}}}, {"Depth", 8}};

}  // namespace

std::vector<Answer> answers() {
  return {
      {"size of one byte", [] { return size(1); }, "1 byte"},
      {"size with a fraction", [] { return size(2'400'000); }, "2.4 MB"},
      {"negative size", [] { return size(-1'294'967'296); }, "-1.29 GB"},
      {"size by an object", [] { return sizeFromObject(12'345'678); }, "12.3 MB"},
      {"medium date and time",
       [] {
         return NSDateFormatter::localizedString(date(), NSDateFormatter::mediumStyle,
                                                 NSDateFormatter::mediumStyle)
             .utf8();
       },
       "Sep 30, 2018 at 4:03:11 PM"},
      {"short date and medium time", &shortDate, "9/30/18, 4:03:11 PM"},
      {"no date",
       [] {
         return yesOrNo(bool(NSDateFormatter::localizedString(
             NSDate(), NSDateFormatter::mediumStyle, NSDateFormatter::mediumStyle)));
       },
       "no"},
      {"description of a date", [] { return date().description().utf8(); },
       "2018-09-30 14:03:11 +0000"},
      {"order of letters ignoring case", [] { return compared("a", "B"); }, "-1"},
      {"order of braces and letters", [] { return compared("{TIFF}", "Depth"); }, "-1"},
      {"equality ignoring case", [] { return compared("FNumber", "fnumber"); }, "0"},
      {"description of a dictionary", [] { return described(nested); },
       "{\n    Depth = 8;\n    \"{Exif}\" = {\n        FNumber = \"1.8\";\n        ISO = (\n"
       "            100\n        );\n    };\n}"},
      {"description of an array",
       [] {
         return described(model::Array{1, "a b"});
       },
       "(\n    1,\n    \"a b\"\n)"},
      {"link with an empty host", [] { return link("comgooglemaps://?center=1,2&zoom=19.00"); },
       "comgooglemaps://?center=1,2&zoom=19.00"},
      {"int of a text that is too large",
       [] { return std::to_string(text("99999999999").intValue()); }, "2147483647"},
      {"int of a text that is too small",
       [] { return std::to_string(text("-99999999999").intValue()); }, "-2147483648"},
      {"int of a text beyond Latin-1",
       [] { return std::to_string(text("99999999999 東").intValue()); }, "2147483647"},
      {"int of a large real", [] { return std::to_string(NSNumber::withDouble(1e12).intValue()); },
       "2147483647"},
      {"long of a large real",
       [] { return std::to_string(NSNumber::withDouble(1e30).longLongValue()); },
       "9223372036854775807"},
      {"text of a real of 16 digits",
       [] { return NSNumber::withDouble(1.0 / 33).stringValue().utf8(); }, "0.030303030303030304"},
      {"text of a sum of reals",
       [] { return NSNumber::withDouble(0.1 + 0.2).description().utf8(); }, "0.30000000000000004"},
      {"identifier of the main bundle",
       [] { return NSBundle::mainBundle().bundleIdentifier().utf8(); }, "com.example.host"},
      {"binary property list on the phone's path", &sampleList, "value"},
      {"file on the phone's path",
       [] { return yesOrNo(NSFileManager::defaultManager().fileExists(text(samplePath))); }, "yes"},
      {"size of a file on the phone's path",
       [] {
         return yesOrNo(
             NSFileManager::defaultManager().attributesOfItem(text(samplePath)).fileSize() > 0);
       },
       "yes"},
  };
}

void writeSampleFiles(const std::string& root) {
  const std::string path = root + samplePath;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  const auto bytes = foundation::serializePropertyList(model::Dictionary{{"key", "value"}},
                                                       foundation::PropertyListFormat::binary);
  std::ofstream(path, std::ios::binary) << *bytes;
}

}  // namespace desktop::faces
