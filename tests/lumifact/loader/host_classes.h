// SPDX-License-Identifier: MIT
//
// The classes of a photo application, as far as hooks see them: every method notes how it was
// called.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/runtime.h"

namespace lumifact::host {

// A method of the host, with the type encoding that such an application has on this runtime.
struct HostMethod {
  const char* className;
  const char* selector;
  const char* encoding;
  const char* definedBy = nullptr;  // the superclass that has the method; null: the class itself
};

// The methods that the extension replaces, in no order.
std::span<const HostMethod> hostMethods();

// Registers the classes with their methods, all but the class named. PUPhotosGridCell answers
// sizeLabel by itself, which is its own name; HostSiblingViewController inherits what
// PUAlbumListViewController inherits; _setTilingView: raises when it is handed nil.
void registerHostClasses(std::string_view without = {});

// A call that reached a method of the host.
struct HostCall {
  id receiver = nullptr;
  std::string selector;
  std::vector<std::string> arguments;
  bool operator==(const HostCall&) const = default;
};

// The calls so far, to look at and to clear.
std::vector<HostCall>& hostCalls();

// Sends the message with sample arguments, as the encoding has them. Answers the result as text.
std::string sendSample(bridge::Object receiver, const char* selector, std::string_view encoding);

// The sample arguments, and what the host's own method answers, as text.
std::vector<std::string> sampleArguments(std::string_view encoding);
std::string hostAnswer(bridge::Object receiver, std::string_view encoding);

}  // namespace lumifact::host
