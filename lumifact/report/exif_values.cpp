// SPDX-License-Identifier: MIT
#include "lumifact/report/exif_values.h"

#include "lumifact/report/exif_tables.h"
#include "lumifact/report/exposure_fraction.h"
#include "lumifact/report/flash_codes.h"
#include "lumifact/report/label.h"
#include "lumifact/report/section_text.h"
#include "model/conversions.h"
#include "model/description.h"

namespace lumifact {

namespace {

using model::Array;
using model::Value;

// "X:1, Y:2", each element behind its name. REQUIRES: as many names as elements.
std::string namedElements(const Array& elements, std::span<const std::string_view> names) {
  std::string text;
  for (std::size_t index = 0; index < elements.size(); ++index) {
    if (index > 0) text += ", ";
    text.append(names[index]).append(":");
    appendValue(text, elements[index]);
  }
  return text;
}

// "YCbCr (1,2,3,0)".
std::string componentsText(const Array& elements) {
  std::string text;
  for (const Value& element : elements) {
    text += labelOf(componentNames, model::integerValue(element)).value_or("");
  }
  text += " (";
  appendElements(text, elements, ",");
  return text += ')';
}

std::string arrayReading(std::string_view key, const Array& elements) {
  static constexpr std::string_view circle[] = {"X", "Y", "D"};
  static constexpr std::string_view rectangle[] = {"X", "Y", "W", "H"};
  const std::size_t count = elements.size();
  if (key == "SubjectArea" && count == 4) return namedElements(elements, rectangle);
  if (key == "SubjectArea" && (count == 2 || count == 3)) return namedElements(elements, circle);
  if (key == "SubjectLocation" && count == 2) return namedElements(elements, circle);
  if (key == "ComponentsConfiguration") return componentsText(elements);
  return bracketed(elements);
}

std::string apertureText(const Value& value) {
  return "f/" + model::valueText(value);
}

std::string lengthText(const Value& value) {
  return model::valueText(value) + "mm";
}

std::string colorSpaceText(const Value& value) {
  if (model::integerValue(value) == 1) return "sRGB (1)";
  return model::valueText(value) + " - Unknown";
}

std::string exposureTimeText(const Value& value) {
  return exposureFraction(model::floatValue(value)) + "s (" + model::valueText(value) + ")";
}

std::string flashText(const Value& value) {
  std::string text(flashMode(model::integerValue(value)));
  return text.append(" (").append(model::valueText(value)).append(")");
}

// How the value under one key reads: by a table of its codes, or by a form of its own.
struct Rule {
  std::string_view key;
  std::span<const Label> labels;
  std::string (*form)(const Value&) = nullptr;
};

constexpr Rule rules[] = {
    {"CFAPattern", colorFilters},
    {"ColorSpace", {}, colorSpaceText},
    {"Contrast", contrasts},
    {"CustomRendered", renderings},
    {"ExposureMode", exposureModes},
    {"ExposureProgram", exposurePrograms},
    {"ExposureTime", {}, exposureTimeText},
    {"FNumber", {}, apertureText},
    {"FileSource", fileSources},
    {"Flash", {}, flashText},
    {"FocalLenIn35mmFilm", {}, lengthText},
    {"FocalLength", {}, lengthText},
    {"GainControl", gainControls},
    {"LightSource", lightSources},
    {"MeteringMode", meteringModes},
    {"Saturation", saturations},
    {"SceneCaptureType", sceneCaptureTypes},
    {"SceneType", sceneTypes},
    {"SensingMethod", sensingMethods},
    {"Sharpness", sharpnesses},
    {"SubjectDistRange", distanceRanges},
    {"SubjectDistance", distances},
    {"SubjectDistanceRange", distanceRanges},
    {"WhiteBalance", whiteBalances},
};
static_assert(std::ranges::is_sorted(rules, std::less_equal(), &Rule::key));
static_assert(std::ranges::all_of(rules, keysAscend, &Rule::labels));
static_assert(keysAscend(componentNames));

}  // namespace

std::optional<std::string> exifReading(std::string_view key, const Value& value) {
  if (const auto* elements = value.asArray()) return arrayReading(key, *elements);
  const auto* const rule = std::ranges::lower_bound(rules, key, std::less(), &Rule::key);
  if (rule == std::end(rules) || rule->key != key) return std::nullopt;
  if (rule->form != nullptr) return rule->form(value);
  const auto label = labelOf(rule->labels, model::integerValue(value));
  return label ? std::optional<std::string>(*label) : std::nullopt;
}

}  // namespace lumifact
