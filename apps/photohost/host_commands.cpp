// SPDX-License-Identifier: MIT
//
// Commands that name items, albums and levels, over what photos_ui offers by name. Each begins when
// the screen is at rest; the steps of a swipe do not wait, as a finger stays down between them.
// "tap" and "long-press" of all scripts take an item here too: a command of the same name is put
// before the one that takes points.
#include "apps/photohost/host_commands.h"

#include <cmath>

#include "desktop/photos_ui/navigation/navigation.h"

namespace photohost {
namespace {

using namespace desktop;
using script::Finger;
using script::ScriptRunner;
using script::Word;
using Arguments = ScriptRunner::Arguments;
using Outcome = ScriptRunner::Outcome;

model::Result<long> itemNumber(const Word& word) {
  const auto number = script::numberOf(word);
  if (!number) return number.error();
  if (*number < 0 || *number != std::floor(*number) || *number > 1e9)
    return model::Error{"'" + word.text + "' is not the number of an item"};
  return static_cast<long>(*number);
}

// The number in "item N".
model::Result<long> itemOf(Arguments words) {
  if (words.size() != 2 || words[0].text != "item") return model::Error{"an item is 'item N'"};
  return itemNumber(words[1]);
}

Outcome settled(Outcome outcome) {
  if (!outcome) script::settle();
  return outcome;
}

Outcome open(Arguments words) {
  script::settle();
  if (words.size() == 1 && words[0].text == "photos") return settled(photos_ui::openPhotos());
  if (words.size() == 1 && words[0].text == "albums") return settled(photos_ui::openAlbums());
  if (words.size() == 1 && words[0].text == "settings") return settled(photos_ui::openSettings());
  if (words.size() == 2 && words[0].text == "album")
    return settled(photos_ui::openAlbum(words[1].text));
  const auto item = itemOf(words);
  if (item) return settled(photos_ui::openItem(*item));
  return model::Error{"open takes photos, albums, settings, album NAME or item N"};
}

Outcome peek(Arguments words) {
  script::settle();
  const auto item = itemOf(words);
  return item ? settled(photos_ui::peekItem(*item)) : item.error();
}

Outcome zoomLevel(Arguments words) {
  script::settle();
  if (words.size() != 1) return model::Error{"zoom-level takes a name"};
  return settled(photos_ui::setZoomLevel(words[0].text));
}

Outcome back(Arguments) {
  script::settle();
  return settled(photos_ui::goBack());
}

Outcome select(Arguments words) {
  script::settle();
  const auto item = itemOf(words);
  return item ? photos_ui::selectItem(*item) : item.error();
}

model::Result<CGPoint> placeOf(const Word& word) {
  const auto item = itemNumber(word);
  if (!item) return item.error();
  return photos_ui::placeOfItem(*item);
}

// A finger that swipes over cells to select them: far enough sideways for a swipe, not for another
// item.
Outcome swipeBegin(Finger& finger, Arguments words) {
  constexpr CGFloat slop = 12;
  if (words.size() != 1) return model::Error{"a swipe begins at the number of an item"};
  const auto place = placeOf(words[0]);
  if (!place) return place.error();
  finger.down(*place);
  finger.move({place->x + slop, place->y});
  return std::nullopt;
}

Outcome swipeMove(Finger& finger, Arguments words) {
  if (words.size() != 1) return model::Error{"a swipe moves to the number of an item"};
  const auto place = placeOf(words[0]);
  if (!place) return place.error();
  finger.move(*place);
  return std::nullopt;
}

Outcome swipeSelect(Finger& finger, Arguments words) {
  script::settle();
  if (words.size() != 2) return model::Error{"swipe-select takes the numbers of two items"};
  if (auto failed = swipeBegin(finger, words.first(1))) return failed;
  auto failed = swipeMove(finger, words.last(1));
  finger.up();
  return failed;
}

// "tap item N" as the tap at the item's place.
void addItemTarget(ScriptRunner& runner, const std::string& name) {
  const ScriptRunner::Command touch = runner.command(name);
  runner.add(name, [touch](Arguments words) -> Outcome {
    const auto item = itemOf(words);
    if (!item) return touch(words);
    script::settle();
    const auto place = photos_ui::placeOfItem(*item);
    if (!place) return place.error();
    const Word point[] = {{std::to_string(place->x), false}, {std::to_string(place->y), false}};
    return touch(point);
  });
}

}  // namespace

void addHostCommands(ScriptRunner& runner) {
  Finger& finger = runner.finger;
  runner.add("open", open);
  runner.add("peek", peek);
  runner.add("zoom-level", zoomLevel);
  runner.add("back", back);
  runner.add("select", select);
  runner.add("swipe-select", [&finger](Arguments words) { return swipeSelect(finger, words); });
  runner.add("swipe-begin", [&finger](Arguments words) { return swipeBegin(finger, words); });
  runner.add("swipe-move", [&finger](Arguments words) { return swipeMove(finger, words); });
  runner.add("swipe-end", [&finger](Arguments) -> Outcome {
    finger.up();
    return std::nullopt;
  });
  runner.add("swipe-cancel", [&finger](Arguments) -> Outcome {
    finger.cancel();
    return std::nullopt;
  });
  addItemTarget(runner, "tap");
  addItemTarget(runner, "long-press");
}

}  // namespace photohost
