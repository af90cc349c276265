// SPDX-License-Identifier: MIT
//
// File URLs back as paths.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// The path of "file:///path" or "file://localhost/path", its escapes resolved to bytes, which may
// be no valid UTF-8; a query or fragment is left out. None for any other URL, for a path that is
// not absolute and for one with a zero in it. RFC 8089, RFC 3986.
std::optional<std::string> pathOfFileUrl(std::string_view url);

}  // namespace foundation
