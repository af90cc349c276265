// SPDX-License-Identifier: MIT
//
// Each row of the table is looked up on both sides. Our value is put into the form in which the
// other reader prints it; texts are then compared as they are, numbers one by one within their
// rounding. What neither side has is not counted.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>
#include <string_view>

#include "bench/compare.h"
#include "bench/image_keys.h"
#include "bench/peer.h"
#include "io/byte_source.h"
#include "media/image/image_source.h"
#include "model/conversions.h"
#include "model/description.h"
#include "model/number_text.h"

namespace bench {

namespace {

// exiftool rounds quotients to ten digits and drops a text's trailing blanks.
constexpr double mostApart = 1e-8;

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

// Numbers of a version stand there as they are in the file: "0231" for 2, 3, 1.
std::string versionText(const model::Array& numbers) {
  std::string text = "0";
  for (std::size_t index = 0; index < 3; ++index)
    text += index < numbers.size() ? model::valueText(numbers[index]) : "0";
  return text;
}

// What is beyond any exposure is none.
double secondsOfApex(double apex) {
  constexpr double largest = 100;
  return std::abs(apex) < largest ? std::exp2(-apex) : 0;
}

std::string withoutColons(std::string text) {
  std::erase(text, ':');
  return text;
}

// A list as its elements in a row.
std::string plainText(const model::Value& value) {
  const auto* array = value.asArray();
  if (array == nullptr) return model::valueText(value);
  std::string text;
  for (const model::Value& element : *array) {
    if (!text.empty()) text += ' ';
    text += trimmed(model::valueText(element));
  }
  return text;
}

std::string oursAsTheirs(const model::Value& value, Form form) {
  const auto* array = value.asArray();
  switch (form) {
    case Form::apexTime:
      return model::realText(secondsOfApex(model::parseRealPrefix(model::valueText(value))));
    case Form::apexAperture:
      return model::realText(std::exp2(model::parseRealPrefix(model::valueText(value)) / 2));
    case Form::timeOfDay:
      return withoutTrailingZeros(model::valueText(value));
    case Form::version:
      return array == nullptr ? model::valueText(value) : versionText(*array);
    case Form::firstElement:
      return array == nullptr || array->empty() ? "" : model::valueText(array->front());
    default:
      return plainText(value);
  }
}

// A quotient of two zeros is "undef" there.
std::string theirText(const model::Value& value, Form form) {
  std::string text = plainText(value);
  for (std::size_t at = text.find("undef"); at != std::string::npos; at = text.find("undef"))
    text.replace(at, 5, "0");
  const std::size_t blank = text.find(' ');
  const std::size_t second = blank == std::string::npos ? 0 : blank + 1;
  switch (form) {
    case Form::date:
      return withoutColons(text.substr(0, blank));
    case Form::time:
      return withoutColons(text.substr(second));
    case Form::width:
      return text.substr(0, blank);
    case Form::height:
      return text.substr(second);
    default:
      return trimmed(text);
  }
}

const model::Value* ourValue(const model::Dictionary& properties, const ImageKey& row) {
  if (row.section.empty()) return model::find(properties, row.key);
  const auto* found = model::find(properties, row.section);
  const auto* section = found == nullptr ? nullptr : found->asDictionary();
  return section == nullptr ? nullptr : model::find(*section, row.key);
}

// Raw files without TIFF directories have the same facts in groups of their own.
const model::Value* inRawGroup(const model::Dictionary& tags, std::string_view name) {
  const std::string_view fact = name.substr(name.find(':'));
  for (const char* group : {"CanonRaw", "SigmaRaw"}) {
    if (const auto* value = model::find(tags, group + std::string(fact))) return value;
  }
  return nullptr;
}

const model::Value* theirValue(const model::Dictionary& tags, const ImageKey& row) {
  for (const std::string_view name : row.theirs) {
    const auto* value = name.empty() ? nullptr : model::find(tags, name);
    if (value != nullptr) return value;
  }
  return inRawGroup(tags, row.theirs.front());
}

// What stands for nothing on one side is left out on the other.
std::string compared(const std::string& text, Form form) {
  constexpr std::size_t dateTimeSize = 19;
  const std::string value = trimmed(form == Form::dateTime ? text.substr(0, dateTimeSize) : text);
  const bool isNone =
      form == Form::identifier && (value == "0" || value == "65535" || value == "4294965247");
  return value.empty() || isNone ? "none" : value;
}

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

// Whether two texts are lists of the same numbers, within their rounding.
bool areSameNumbers(const std::string& ours, const std::string& theirs, double tolerance) {
  const auto our = wordsOf(ours);
  const auto their = wordsOf(theirs);
  return std::ranges::equal(our, their, [tolerance](const auto& left, const auto& right) {
    return isNumber(left) && isNumber(right) &&
           areNear(model::parseRealPrefix(left), model::parseRealPrefix(right), tolerance);
  });
}

void compareFile(const std::string& file, const model::Dictionary& ours,
                 const model::Dictionary& theirs, Tally& tally) {
  for (const ImageKey& row : imageKeys()) {
    const auto* our = ourValue(ours, row);
    const auto* their = theirValue(theirs, row);
    if (their == nullptr && row.form == Form::known) continue;
    const std::string ourText = our ? compared(oursAsTheirs(*our, row.form), row.form) : "none";
    const std::string text = their ? compared(theirText(*their, row.form), row.form) : "none";
    if (ourText == "none" && text == "none") continue;
    // The brief APEX conversion of theirs goes through a rounded power.
    const bool isApex = row.form == Form::apexTime || row.form == Form::apexAperture;
    const bool isSame = ourText == text || areSameNumbers(ourText, text, isApex ? 1e-6 : mostApart);
    tally.count(isSame, {file, std::string(row.section), std::string(row.key)}, ourText, text);
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
