// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/string_drawing.h"

#include <algorithm>

#include "bridge/foundation.h"
#include "desktop/platform.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"

id NSFontAttributeName = nullptr;

namespace desktop::uikit {
namespace {

constexpr FontFace faceWithoutFont{.size = 12};

// As wide as the longest line, as high as the lines.
CGSize NSString_sizeWithAttributes(id self, SEL, id attributes) {
  const FontFace face = UIFontState::faceOf(
      NSDictionary(attributes).at(Object(NSFontAttributeName)), faceWithoutFont);
  const std::u16string text = utf16Of(NSString(self));
  CGSize size;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(u'\n', start), text.size());
    const auto line = std::u16string_view(text).substr(start, end - start);
    size.width = std::max(size.width, textEngine().width(face, line));
    size.height += measuresOf(face).lineHeight();
    start = end + 1;
  }
  return size;
}

}  // namespace

void addStringDrawing() {
  const AutoreleasePool pool;
  NSFontAttributeName = Owned<NSString>::retain(NSString::make("NSFont")).detach().get();
  class_addMethod(NSString::classObject(), selector<"sizeWithAttributes:">(),
                  reinterpret_cast<IMP>(&NSString_sizeWithAttributes),
                  encodingOf<CGSize(id, SEL, id)>.data());
}

}  // namespace desktop::uikit
