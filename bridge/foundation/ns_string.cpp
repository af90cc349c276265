// SPDX-License-Identifier: MIT
#include "bridge/foundation/ns_string.h"

#include "bridge/foundation/ns_data.h"

namespace bridge {
namespace {

constexpr NSUInteger utf8Encoding = 4;

}  // namespace

NSString NSString::make(std::string_view utf8) {
  auto made = makeWith<NSString, "initWithBytes:length:encoding:">(
      classObject(), static_cast<const void*>(utf8.data()), NSUInteger{utf8.size()}, utf8Encoding);
  return made.autorelease();
}

Owned<NSString> NSString::makeOfUtf8(NSData data) {
  return makeWith<NSString, "initWithData:encoding:">(classObject(), data, utf8Encoding);
}

std::string NSString::utf8() const {
  const auto data =
      send<NSData, "dataUsingEncoding:allowLossyConversion:">(*this, utf8Encoding, true);
  return std::string(data.view());
}

}  // namespace bridge
