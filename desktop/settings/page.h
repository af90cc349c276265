// SPDX-License-Identifier: MIT
//
// A page of settings as plain values: what its rows show, and where their values are kept.
#pragma once

#include <string>
#include <vector>

#include "model/value.h"

namespace desktop::settings {

// Where a row's value is kept.
struct Place {
  std::string domain{};        // of the preference file
  std::string key{};           // in it
  std::string notification{};  // posted after a change; empty: none
};

// One of the values that a row can have, as it is stored.
struct Choice {
  std::string title;
  model::Value value;
};

// What a slider goes through.
struct Range {
  double least = 0;
  double greatest = 1;
  int steps = 0;  // from one to the other; 0: none, it takes every value
  bool showsValue = false;
};

// Those after `value` write what a finger makes of them.
enum class RowKind {
  unknown,   // shown, but without any effect
  text,      // a label and no value
  value,     // a value that cannot be changed here
  toggle,    // on or off
  segments,  // choices side by side
  slider,    // a number of a range
  list,      // choices on a page of their own
};

struct Row {
  RowKind kind = RowKind::unknown;
  std::string label{};
  bool isEnabled = true;
  Place place{};
  model::Value standard{};  // shown while nothing is stored; null: none
  std::vector<Choice> choices{};
  Range range{};
};

struct Group {
  std::string header{};
  std::string footer{};
  std::vector<Row> rows{};
};

struct Page {
  std::string name{};  // that of its file, without ".plist"
  std::string title{};
  std::vector<Group> groups{};
};

// A page without rows, that says why it has none.
Page explainedPage(const std::string& title, const std::string& why);

// The choice that a value is, or null. Numbers and flags are compared as numbers, as those who read
// them do.
const Choice* choiceOf(const Row& row, const model::Value& value);

// What a row says of its value: the choice's title, else the value itself; empty for null.
std::string shownText(const Row& row, const model::Value& value);

// Whether it is a number or a flag.
bool isNumber(const model::Value& value);
// The value as a number: 0 where it is none.
double numberOf(const model::Value& value);

}  // namespace desktop::settings
