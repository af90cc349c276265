// SPDX-License-Identifier: MIT
//
// Fingers on the screen, and time. What names its target by a text waits for the screen to come to
// rest, finds the text and then touches; the touch-... commands go where and when they are told to.
#include <algorithm>

#include "desktop/script/screen_text.h"
#include "desktop/script/script_runner.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_responder.h"

namespace desktop::script {
namespace {

using Arguments = ScriptRunner::Arguments;
using Outcome = ScriptRunner::Outcome;
using uikit::application;
using uikit::touches;

constexpr uikit::Seconds tapTime = 0.05;
constexpr uikit::Seconds longPressTime = 0.6;
constexpr double longestWait = 3'600;  // seconds

model::Result<CGPoint> pointOf(Arguments words) {
  if (words.size() != 2) return model::Error{"a place is X and Y in points"};
  const auto x = numberOf(words[0]);
  if (!x) return x.error();
  const auto y = numberOf(words[1]);
  if (!y) return y.error();
  return CGPoint{*x, *y};
}

// Where a text on screen is, or the point that is given.
model::Result<CGPoint> targetOf(Arguments words) {
  if (words.size() != 1 || !words[0].isQuoted) return pointOf(words);
  const auto place = placeOf(words[0].text);
  if (!place) return model::Error{"\"" + words[0].text + "\" is not on screen"};
  return *place;
}

Outcome press(Finger& finger, Arguments words, uikit::Seconds time) {
  settle();
  const auto at = targetOf(words);
  if (!at) return at.error();
  finger.down(*at, time);
  finger.up();
  return std::nullopt;
}

// The slider of that name in sight, or nil.
UIView sliderNamed(std::string_view name) {
  const auto texts = textsOnScreen();
  const auto found = std::ranges::find_if(texts, [&](const ScreenText& each) {
    return each.text == name && isKindOf(each.view, uikit::UISlider::classObject());
  });
  return found == texts.end() ? UIView() : found->view;
}

// Drags a slider's knob to a part of its way. Content that scrolls leaves a finger that rests first
// to the slider.
Outcome slide(Finger& finger, Arguments words) {
  constexpr uikit::Seconds rest = 0.2;
  if (words.size() != 2) return model::Error{"slide takes a slider's name and 0 to 1"};
  const auto part = numberOf(words[1]);
  if (!part) return part.error();
  if (*part < 0 || *part > 1) return model::Error{"slide takes a slider's name and 0 to 1"};
  settle();
  const UIView view = sliderNamed(words[0].text);
  if (!view) return model::Error{"no slider \"" + words[0].text + "\" is on screen"};
  const auto& slider = uikit::UISlider::of(view);
  const auto toScreen = slider.toScreen();
  finger.down(uikit::apply(toScreen, slider.knob()), rest);
  finger.move(uikit::apply(toScreen, slider.knobAt(*part)));
  finger.up();
  return std::nullopt;
}

Outcome touchDown(Finger& finger, Arguments words) {
  const auto at = pointOf(words);
  if (!at) return at.error();
  finger.down(*at);
  return std::nullopt;
}

Outcome touchMove(Finger& finger, Arguments words) {
  const auto at = pointOf(words);
  if (!at) return at.error();
  finger.move(*at);
  return std::nullopt;
}

Outcome touchUp(Finger& finger, Arguments) {
  finger.up();
  return std::nullopt;
}

Outcome menu(Arguments words) {
  if (words.size() != 1) return model::Error{"menu takes the title of one of its commands"};
  settle();
  auto& shown = uikit::UIMenuControllerState::shared();
  const std::vector<std::string> titles = shown.titles();
  const auto chosen = std::ranges::find(titles, words[0].text);
  if (chosen == titles.end()) return model::Error{"the edit menu has no \"" + words[0].text + "\""};
  shown.run(static_cast<std::size_t>(chosen - titles.begin()));
  application().advance(0);
  return std::nullopt;
}

Outcome type(Arguments words) {
  if (words.size() != 1 || words[0].text != "copy") return model::Error{"only copy can be typed"};
  uikit::UIResponderState::firstResponder().copy(Object());
  return std::nullopt;
}

Outcome scroll(Arguments words) {
  if (words.size() != 1) return model::Error{"scroll takes a distance in points"};
  const auto distance = numberOf(words[0]);
  if (!distance) return distance.error();
  settle();
  const CGSize screen = uikit::screen().size;
  touches().scroll({screen.width / 2, screen.height / 2}, {0, *distance});
  application().advance(0);
  return std::nullopt;
}

Outcome wait(Arguments words) {
  if (words.size() != 1) return model::Error{"wait takes a number of seconds"};
  const auto time = numberOf(words[0]);
  if (!time) return time.error();
  if (*time < 0 || *time > longestWait) return model::Error{"wait takes 0 to 3600 seconds"};
  application().advance(*time);
  return std::nullopt;
}

Outcome rotate(Arguments) {
  const CGSize size = uikit::screen().size;
  application().resize({size.height, size.width});
  application().advance(0);
  return std::nullopt;
}

}  // namespace

void addTouchCommands(ScriptRunner& runner) {
  Finger& finger = runner.finger;
  runner.add("tap", [&finger](Arguments words) { return press(finger, words, tapTime); });
  runner.add("long-press",
             [&finger](Arguments words) { return press(finger, words, longPressTime); });
  runner.add("slide", [&finger](Arguments words) { return slide(finger, words); });
  runner.add("touch-down", [&finger](Arguments words) { return touchDown(finger, words); });
  runner.add("touch-move", [&finger](Arguments words) { return touchMove(finger, words); });
  runner.add("touch-up", [&finger](Arguments words) { return touchUp(finger, words); });
  runner.add("menu", menu);
  runner.add("type", type);
  runner.add("scroll", scroll);
  runner.add("rotate", rotate);
  runner.add("wait", wait);
}

}  // namespace desktop::script
