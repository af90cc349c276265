// SPDX-License-Identifier: MIT
#include "desktop/faces/foundation/opaque_link.h"

#include <algorithm>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::faces {
namespace {

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

// RFC 3986, 3.1.
bool isScheme(std::string_view text) {
  return !text.empty() && isLetter(text[0]) && std::ranges::all_of(text, [](char character) {
    return isLetter(character) || isDigit(character) || character == '+' || character == '-' ||
           character == '.';
  });
}

// RFC 3986, 2: unreserved, reserved and escaped characters.
bool isLinkCharacter(char character) {
  constexpr std::string_view others = "-._~:/?#[]@!$&'()*+,;=%";
  return isLetter(character) || isDigit(character) ||
         others.find(character) != std::string_view::npos;
}

bool isLink(std::string_view text) {
  const std::size_t colon = text.find(':');
  return colon != std::string_view::npos && isScheme(text.substr(0, colon)) &&
         std::ranges::all_of(text, isLinkCharacter);
}

}  // namespace

Class OpaqueLink::classObject() {
  static const Class made = ClassBuilder<OpaqueLink>("DesktopOpaqueLink")
                                .method<"absoluteString", &OpaqueLink::absoluteString>()
                                .method<"relativeString", &OpaqueLink::absoluteString>()
                                .method<"description", &OpaqueLink::absoluteString>()
                                .method<"scheme", &OpaqueLink::scheme>()
                                .method<"resourceSpecifier", &OpaqueLink::resourceSpecifier>()
                                .method<"query", &OpaqueLink::query>()
                                .method<"path", &OpaqueLink::emptyPath>()
                                .method<"host", &OpaqueLink::noHost>()
                                .method<"absoluteURL", &OpaqueLink::itself>()
                                .method<"standardizedURL", &OpaqueLink::itself>()
                                .method<"isFileURL", &OpaqueLink::isFileURL>()
                                .method<"isEqual:", &OpaqueLink::isEqual>()
                                .method<"hash", &OpaqueLink::hash>()
                                .build();
  return made;
}

NSURL OpaqueLink::make(std::string_view text) {
  if (!isLink(text)) return {};
  // What the superclass keeps has to be a link that it understands; nobody sees it.
  auto link = makeWith<NSURL, "initWithString:">(classObject(), NSString::make("opaque:/"));
  if (!link) return {};
  of(link.get().get())._text = text;
  return link.autorelease();
}

NSString OpaqueLink::scheme() const {
  return NSString::make(_text.substr(0, _text.find(':')));
}

NSString OpaqueLink::resourceSpecifier() const {
  return NSString::make(_text.substr(_text.find(':') + 1));
}

NSString OpaqueLink::query() const {
  const std::string_view link = std::string_view(_text).substr(0, _text.find('#'));
  const std::size_t mark = link.find('?');
  return mark == std::string_view::npos ? NSString() : NSString::make(link.substr(mark + 1));
}

bool OpaqueLink::isEqual(Object other) const {
  return as<NSURL>(other).absoluteString().utf8() == _text && as<NSURL>(other);
}

unsigned long OpaqueLink::hash() const {
  return std::hash<std::string>()(_text);
}

}  // namespace desktop::faces
