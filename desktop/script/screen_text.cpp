// SPDX-License-Identifier: MIT
#include "desktop/script/screen_text.h"

#include <algorithm>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::script {
namespace {

constexpr double leastAlpha = 0.01;

// Walks a view and what is in it, back to front, with the part of the screen that it can show in.
class Collector {
 public:
  explicit Collector(std::vector<ScreenText>& found) : _found(found) {}

  void visit(UIView view, CGRect seen) {
    const uikit::UIViewState& state = uikit::UIViewState::of(view);
    const uikit::ViewAppearance shown = state.shown();
    if (state.isHidden() || shown.alpha < leastAlpha) return;
    const CGRect place = uikit::intersection(uikit::apply(state.toScreen(), shown.bounds), seen);
    if (!uikit::isEmpty(place)) collect(view, place);
    if (state.clipsToBounds()) seen = place;
    if (uikit::isEmpty(seen)) return;
    for (const auto& child : state.subviews()) visit(child.get(), seen);
  }

 private:
  // A picture has the name by which those know it who do not see it.
  static NSString textOf(UIView view) {
    if (respondsTo<"text">(view)) return UILabel(view.get()).text();
    if (respondsTo<"accessibilityLabel">(view)) return view.accessibilityLabel();
    return {};
  }

  void collect(UIView view, CGRect place) {
    const NSString text = textOf(view);
    if (text && text.length() > 0) _found.push_back({text.utf8(), place, view});
  }

  std::vector<ScreenText>& _found;
};

}  // namespace

std::vector<ScreenText> textsOnScreen() {
  const AutoreleasePool pool;
  std::vector<ScreenText> found;
  Collector collector(found);
  for (const auto& window : uikit::application().windows)
    collector.visit(window.get(), uikit::rectOfSize(uikit::screen().size));
  return found;
}

bool isOnScreen(std::string_view text) {
  return std::ranges::any_of(textsOnScreen(), [text](const ScreenText& shown) {
    return shown.text.find(text) != std::string::npos;
  });
}

std::optional<CGPoint> placeOf(std::string_view text) {
  const std::vector<ScreenText> shown = textsOnScreen();
  const auto last = [&](auto matches) -> std::optional<CGPoint> {
    const auto found = std::find_if(shown.rbegin(), shown.rend(), matches);
    if (found == shown.rend()) return std::nullopt;
    return uikit::middle(found->place);
  };
  const auto exact = last([text](const ScreenText& item) { return item.text == text; });
  if (exact) return exact;
  return last([text](const ScreenText& item) { return item.text.find(text) != std::string::npos; });
}

}  // namespace desktop::script
