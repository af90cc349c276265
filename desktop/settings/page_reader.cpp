// SPDX-License-Identifier: MIT
//
// A page is taken whole or not at all: what is written later rests on every key of a row being what
// it should be. So each key is read as what its cell needs, the first one that is something else is
// kept as the problem, and reading goes on with a value of no meaning until the row is done.
#include "desktop/settings/page_reader.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>
#include <string_view>

#include "desktop/settings/page_limits.h"
#include "desktop/settings/preferences.h"
#include "foundation/property_lists/property_list.h"
#include "model/conversions.h"

namespace desktop::settings {
namespace {

// What stands under the keys of one dictionary of a page.
class Entries {
 public:
  // `where` stands before what is wrong: "row 3: ".
  Entries(const model::Dictionary& entries, std::string where)
      : _entries(entries), _where(std::move(where)) {}

  const std::optional<model::Error>& problem() const { return _problem; }
  void refuse(std::string_view key, std::string_view what) {
    if (_problem) return;
    _problem = model::Error{_where + "\"" + std::string(key) + "\" " + std::string(what)};
  }

  const model::Value* find(std::string_view key) const { return model::find(_entries, key); }
  // Empty, or the given number or flag, where there is none.
  std::string text(std::string_view key);
  double number(std::string_view key, double otherwise);
  bool flag(std::string_view key, bool otherwise);
  // What has to be there.
  std::string neededText(std::string_view key);
  const model::Array& neededArray(std::string_view key, std::size_t most);
  const model::Dictionary& neededDictionary(std::string_view key);

 private:
  const model::Dictionary& _entries;
  std::string _where;
  std::optional<model::Error> _problem;
};

bool isFinite(const model::Value& value) {
  return isNumber(value) && !value.asBoolean() && std::isfinite(numberOf(value));
}

std::string Entries::text(std::string_view key) {
  const model::Value* const value = find(key);
  const std::string* const text = value ? value->asString() : nullptr;
  if (value && !text) refuse(key, "is no text");
  if (text && text->size() > pageLimits.text) refuse(key, "is too long");
  return text ? *text : std::string();
}

double Entries::number(std::string_view key, double otherwise) {
  const model::Value* const value = find(key);
  if (!value) return otherwise;
  if (isFinite(*value)) return numberOf(*value);
  refuse(key, "is no number");
  return otherwise;
}

bool Entries::flag(std::string_view key, bool otherwise) {
  const model::Value* const value = find(key);
  if (!value) return otherwise;
  if (value->asBoolean() || value->asInteger()) return model::boolValue(*value);
  refuse(key, "is neither true nor false");
  return otherwise;
}

std::string Entries::neededText(std::string_view key) {
  std::string found = text(key);
  if (found.empty()) refuse(key, "is missing");
  return found;
}

const model::Array& Entries::neededArray(std::string_view key, std::size_t most) {
  static const model::Array none;
  const model::Value* const value = find(key);
  const model::Array* const array = value ? value->asArray() : nullptr;
  if (!array) refuse(key, value ? "is no array" : "is missing");
  if (array && array->size() > most) refuse(key, "is too long");
  return array ? *array : none;
}

const model::Dictionary& Entries::neededDictionary(std::string_view key) {
  static const model::Dictionary none;
  const model::Value* const value = find(key);
  const model::Dictionary* const dictionary = value ? value->asDictionary() : nullptr;
  if (!dictionary) refuse(key, value ? "is no dictionary" : "is missing");
  return dictionary ? *dictionary : none;
}

Place readPlace(Entries& cell) {
  Place place{.domain = cell.neededText("defaults"),
              .key = cell.neededText("key"),
              .notification = cell.text("PostNotification")};
  if (!isDomain(place.domain)) cell.refuse("defaults", "is no name of a preference file");
  return place;
}

bool canBeChosen(const model::Value& value) {
  return isFinite(value) || value.asBoolean() || value.asString();
}

std::vector<Choice> readChoices(Entries& cell) {
  const model::Array& titles = cell.neededArray("validTitles", pageLimits.choices);
  const model::Array& values = cell.neededArray("validValues", pageLimits.choices);
  if (titles.empty() || titles.size() != values.size())
    cell.refuse("validTitles", "does not go with \"validValues\"");
  std::vector<Choice> choices;
  for (std::size_t index = 0; index < std::min(titles.size(), values.size()); ++index) {
    const std::string* const title = titles[index].asString();
    if (!title || title->size() > pageLimits.text)
      cell.refuse("validTitles", "holds something else than short texts");
    if (!canBeChosen(values[index]))
      cell.refuse("validValues", "holds something else than numbers and texts");
    choices.push_back({title ? *title : std::string(), values[index]});
  }
  return choices;
}

// Of each type of cell, what its row has beside a label.

void addNothing(Entries&, Row&) {}

void addValue(Entries& cell, Row& row) {
  if (cell.find("key")) row.place = readPlace(cell);
  const model::Value* const standard = cell.find("default");
  if (standard && !canBeChosen(*standard)) return cell.refuse("default", "is no text or number");
  if (standard) row.standard = *standard;
}

void addToggle(Entries& cell, Row& row) {
  row.place = readPlace(cell);
  row.standard = cell.flag("default", false);
}

void addChoices(Entries& cell, Row& row) {
  row.place = readPlace(cell);
  row.choices = readChoices(cell);
  const model::Value* const standard = cell.find("default");
  if (!standard) return;
  row.standard = *standard;
  if (!choiceOf(row, *standard)) cell.refuse("default", "is none of \"validValues\"");
}

void addSlider(Entries& cell, Row& row) {
  row.place = readPlace(cell);
  row.range.least = cell.number("min", row.range.least);
  row.range.greatest = cell.number("max", row.range.greatest);
  row.range.showsValue = cell.flag("showValue", false);
  if (!(row.range.least < row.range.greatest)) cell.refuse("min", "is not below \"max\"");
  row.standard = cell.number("default", row.range.least);
  const double steps = cell.flag("isSegmented", false) ? cell.number("segmentCount", 0) : 0;
  if (steps < 0 || steps > pageLimits.steps) return cell.refuse("segmentCount", "is out of range");
  row.range.steps = static_cast<int>(steps);
}

struct CellType {
  std::string_view name;
  RowKind kind;
  void (*add)(Entries& cell, Row& row);
};

constexpr CellType cellTypes[] = {
    {"PSLinkListCell", RowKind::list, addChoices}, {"PSSegmentCell", RowKind::segments, addChoices},
    {"PSSliderCell", RowKind::slider, addSlider},  {"PSStaticTextCell", RowKind::text, addNothing},
    {"PSSwitchCell", RowKind::toggle, addToggle},  {"PSTitleValueCell", RowKind::value, addValue},
};
constexpr std::string_view groupCell = "PSGroupCell";

Row readRow(Entries& cell, std::string_view type) {
  Row row{.label = cell.text("label"), .isEnabled = cell.flag("enabled", true)};
  const auto* const known = std::ranges::find(cellTypes, type, &CellType::name);
  if (known == std::end(cellTypes)) return row;
  row.kind = known->kind;
  known->add(cell, row);
  return row;
}

// Rows that stand before all groups have one without a title.
void addCell(Entries& cell, std::vector<Group>& groups) {
  const std::string type = cell.neededText("cell");
  if (type == groupCell || groups.empty()) groups.emplace_back();
  if (type != groupCell) return groups.back().rows.push_back(readRow(cell, type));
  groups.back().header = cell.text("label");
  groups.back().footer = cell.text("footerText");
}

model::Result<std::vector<Group>> readGroups(const model::Array& items) {
  std::vector<Group> groups;
  for (std::size_t index = 0; index < items.size(); ++index) {
    const std::string where = "row " + std::to_string(index + 1);
    const model::Dictionary* const entries = items[index].asDictionary();
    if (!entries) return model::Error{where + " is no dictionary"};
    Entries cell(*entries, where + ": ");
    addCell(cell, groups);
    if (cell.problem()) return *cell.problem();
  }
  return groups;
}

std::size_t depthOf(const model::Value& value) {
  std::size_t deepest = 0;
  if (const model::Array* const array = value.asArray())
    for (const model::Value& each : *array) deepest = std::max(deepest, 1 + depthOf(each));
  if (const model::Dictionary* const dictionary = value.asDictionary())
    for (const auto& [key, each] : *dictionary) deepest = std::max(deepest, 1 + depthOf(each));
  return deepest;
}

}  // namespace

model::Result<Page> parsePage(const model::Value& list) {
  const model::Dictionary* const root = list.asDictionary();
  if (!root) return model::Error{"it is no dictionary"};
  if (depthOf(list) > pageLimits.nesting) return model::Error{"it is nested too deep"};
  Entries entries(*root, "");
  Entries entry(entries.neededDictionary("entry"), "entry: ");
  Page page{.name = entry.neededText("label"), .title = entries.text("title")};
  const model::Array& items = entries.neededArray("items", pageLimits.rows);
  if (entries.problem()) return *entries.problem();
  if (entry.problem()) return *entry.problem();
  auto groups = readGroups(items);
  if (!groups) return groups.error();
  page.groups = *std::move(groups);
  if (page.title.empty()) page.title = page.name;
  return page;
}

model::Result<Page> readPage(const std::string& path) {
  const auto list = foundation::readPropertyList(path);
  if (!list) return list.error();
  auto page = parsePage(list->root);
  if (page && page->name != std::filesystem::path(path).stem().string())
    return model::Error{"its file is not named \"" + page->name + ".plist\" as its entry is"};
  return page;
}

}  // namespace desktop::settings
