// SPDX-License-Identifier: MIT
#include "desktop/uikit/string_drawing.h"

#include "bridge/foundation.h"
#include "desktop/uikit/ui_font.h"

id NSFontAttributeName = nullptr;

namespace desktop::uikit {
namespace {

constexpr double sizeWithoutFont = 12;

CGSize NSString_sizeWithAttributes(id self, SEL, id attributes) {
  const std::string text = bridge::NSString(self).utf8();
  const bridge::Object font =
      bridge::NSDictionary(attributes).at(bridge::Object(NSFontAttributeName));
  const bool isFont = bridge::isKindOf(font, UIFont::classObject());
  const FontMetrics& metrics = isFont ? UIFont::of(font.get()).metrics() : systemFontMetrics();
  const double size = isFont ? UIFont::of(font.get()).pointSize() : sizeWithoutFont;
  const auto [width, height] = measureText(metrics, size, text);
  return {width, height};
}

}  // namespace

void addStringDrawing() {
  const bridge::AutoreleasePool pool;
  NSFontAttributeName =
      bridge::Owned<bridge::NSString>::retain(bridge::NSString::make("NSFont")).detach().get();
  class_addMethod(bridge::NSString::classObject(), bridge::selector<"sizeWithAttributes:">(),
                  reinterpret_cast<IMP>(&NSString_sizeWithAttributes),
                  bridge::encodingOf<CGSize(id, SEL, id)>.data());
}

}  // namespace desktop::uikit
