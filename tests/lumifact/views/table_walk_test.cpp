// SPDX-License-Identifier: MIT
//
// Random trees, walked page by page through the table on the screen and compared row by row with
// what a few lines over the tree's own values say.
#include <algorithm>
#include <map>
#include <random>

#include "bridge/uikit.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "lumifact/views/lumifact_view_controller.h"
#include "model/description.h"
#include "tests/lumifact/views/presented_page.h"
#include "tests/lumifact/views/table_driver.h"

namespace lumifact {
namespace {

using bridge::send;
using bridge::UITableView;
using desktop::uikit::application;
using model::Array;
using model::Dictionary;
using model::Value;
using Random = std::mt19937;

std::size_t below(Random& random, std::size_t limit) {
  return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

// A key of letters and digits. Its number makes it differ from the others in more than case.
std::string randomKey(Random& random, std::size_t number) {
  constexpr std::string_view letters = "abcXYZ019";
  std::string key;
  for (std::size_t length = 1 + below(random, 6); length > 0; --length)
    key += letters[below(random, letters.size())];
  return key + "n" + std::to_string(number);
}

Value randomScalar(Random& random) {
  switch (below(random, 8)) {
    case 0:
      return static_cast<int>(below(random, 2000)) - 1000;
    case 1:
      return 0.25 * static_cast<double>(below(random, 100)) + 0.5;
    case 2:
      return below(random, 2) == 1;
    case 3:
      return model::Date{1538309000};
    case 4:
      return model::Data{'a', 'b', static_cast<std::uint8_t>('a' + below(random, 26))};
    case 5:
      return model::Data{0xFF, static_cast<std::uint8_t>(below(random, 256))};
    case 6:
      return {};
    default:
      return "text " + std::to_string(below(random, 1000));
  }
}

Value randomTree(Random& random, int depth) {
  if (depth == 0 || below(random, 3) == 0) return randomScalar(random);
  const std::size_t count = below(random, 30);
  if (below(random, 2) == 0) {
    Array elements;
    for (std::size_t index = 0; index < count; ++index)
      elements.push_back(randomTree(random, depth - 1));
    return elements;
  }
  Dictionary entries;
  for (std::size_t index = 0; index < count; ++index)
    entries.emplace(randomKey(random, index), randomTree(random, depth - 1));
  return entries;
}

// A row as the model has it: its line, and the container that it opens, or null.
struct ModelRow {
  std::string title;
  std::string line;
  const Value* page;
};

std::string lowercase(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](unsigned char letter) { return std::tolower(letter); });
  return text;
}

std::string hexadecimal(const model::Data& bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "<";
  for (const std::uint8_t byte : bytes) {
    text += digits[byte / 16];
    text += digits[byte % 16];
  }
  return text + ">";
}

std::string lineOf(const std::string& title, const Value& value) {
  if (value.asArray() || value.asDictionary()) return title + " >";
  if (value.isNull()) return title;
  if (value.asDate()) return title + " = 9/30/18, 2:03:20 PM";
  if (const model::Data* bytes = value.asData())
    return title + " = " +
           (bytes->front() == 0xFF ? hexadecimal(*bytes)
                                   : std::string(bytes->begin(), bytes->end()));
  return title + " = " + model::valueText(value);
}

ModelRow modelRow(const std::string& title, const Value& value) {
  const bool hasPage = value.asArray() || value.asDictionary();
  return {title, lineOf(title, value), hasPage ? &value : nullptr};
}

std::vector<ModelRow> modelRows(const Value& page) {
  std::vector<ModelRow> rows;
  if (const Array* elements = page.asArray())
    for (const Value& element : *elements) rows.push_back(modelRow("", element));
  if (const Dictionary* entries = page.asDictionary()) {
    for (const auto& [key, value] : *entries) rows.push_back(modelRow(key, value));
    std::ranges::sort(rows, {}, [](const ModelRow& row) { return lowercase(row.title); });
  }
  return rows;
}

class TableWalkTest : public PresentedPageTest {
 protected:
  void walk(const Value& tree, int taps) {
    _taps = taps;
    present(LumifactViewController::make({.tableData = objects(tree), .title = text("Top")}));
    comparePage(tree);
    press(leftItems().at(0));
    EXPECT_FALSE(presented());
  }

 private:
  UITableView table() const { return tableOf(topPage()); }

  void scrollTo(CGFloat offset) {
    const bridge::UIScrollView view(table().get());
    view.setContentOffset({0, offset});
    application().prepareFrame();
  }

  // Every row of the page on top, read a screen at a time.
  std::vector<std::string> readRows() {
    const bridge::AutoreleasePool pool;
    std::map<CGFloat, std::string> lines;
    const bridge::UIScrollView view(table().get());
    for (CGFloat offset = 0; offset < view.contentSize().height; offset += 400) {
      scrollTo(offset);
      for (const auto cell : cellsOf(table()))
        lines[cell.frame().origin.y] = lumifact::lineOf(cell);
    }
    scrollTo(0);
    std::vector<std::string> read;
    for (auto& [top, line] : lines) read.push_back(std::move(line));
    return read;
  }

  void comparePage(const Value& page) {
    const std::vector<ModelRow> rows = modelRows(page);
    std::vector<std::string> expected;
    for (const ModelRow& row : rows) expected.push_back(row.line);
    ASSERT_EQ(readRows(), expected);
    for (std::size_t index = 0; index < rows.size() && _taps > 0; ++index)
      if (rows[index].page) compareSubPage(rows[index], static_cast<NSInteger>(index));
  }

  void compareSubPage(const ModelRow& row, NSInteger index) {
    const bridge::AutoreleasePool pool;
    --_taps;
    const auto before = topPage();
    const CGRect rect = desktop::uikit::UITableViewState::of(table()).rectForRow(pathOf(index));
    scrollTo(rect.origin.y - 300);  // clear of the bar
    tap(cellAt(table(), index));
    ASSERT_NE(topPage(), before) << row.line;
    EXPECT_EQ((send<bridge::NSString, "title">(topPage().navigationItem())).utf8(), row.title);
    comparePage(*row.page);
    send<bridge::Object, "popViewControllerAnimated:">(presented(), true);
    settle();
    ASSERT_EQ(topPage(), before) << row.line;
  }

  static bridge::NSIndexPath pathOf(NSInteger row) {
    return send<bridge::NSIndexPath, "indexPathForRow:inSection:">(
        bridge::NSIndexPath::classObject(), row, NSInteger{0});
  }

  int _taps = 0;  // how many more pages may be opened
};

TEST_F(TableWalkTest, RandomTreesShowWhatIsInThem) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const bridge::AutoreleasePool pool;
    Random random(seed);
    Dictionary top;
    for (std::size_t index = 0; index < 40; ++index)
      top.emplace(randomKey(random, index), randomTree(random, 4));
    walk(top, 25);
    if (HasFailure()) return;
  }
}

TEST_F(TableWalkTest, ContainersCanBeOpenedFiftyDeep) {
  Random random(50);
  Value nested = "innermost";
  for (int depth = 0; depth < 50; ++depth) {
    if (depth % 2 == 0)
      nested = Array{randomScalar(random), std::move(nested)};
    else
      nested = Dictionary{{"inner", std::move(nested)}, {"other", randomScalar(random)}};
  }
  walk(nested, 60);
}

TEST_F(TableWalkTest, TenThousandKeysAreAllThereInTheirOrder) {
  Random random(10'000);
  Dictionary entries;
  for (std::size_t index = 0; index < 10'000; ++index)
    entries.emplace(randomKey(random, index), randomScalar(random));
  walk(entries, 0);
}

TEST_F(TableWalkTest, LeavesNothingBehind) {
  const long before = bridge::liveBoundObjects();
  {
    const bridge::AutoreleasePool pool;
    Random random(7);
    walk(Array{randomTree(random, 3), Array{1, Array{2}}}, 10);
  }
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

}  // namespace
}  // namespace lumifact
