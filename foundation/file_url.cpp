// SPDX-License-Identifier: MIT
#include "foundation/file_url.h"

namespace foundation {

namespace {

// -1 for what is no hexadecimal digit.
int digitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return -1;
}

// An escape that is none stays as it is.
std::string withoutEscapes(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t index = 0; index < text.size(); ++index) {
    const bool isEscape = text[index] == '%' && index + 2 < text.size() &&
                          digitValue(text[index + 1]) >= 0 && digitValue(text[index + 2]) >= 0;
    if (!isEscape) {
      bytes += text[index];
      continue;
    }
    bytes += static_cast<char>(digitValue(text[index + 1]) * 16 + digitValue(text[index + 2]));
    index += 2;
  }
  return bytes;
}

}  // namespace

std::optional<std::string> pathOfFileUrl(std::string_view url) {
  constexpr std::string_view scheme = "file://";
  constexpr std::string_view thisHost = "localhost/";
  if (!url.starts_with(scheme)) return std::nullopt;
  url.remove_prefix(scheme.size());
  if (url.starts_with(thisHost)) url.remove_prefix(thisHost.size() - 1);
  if (!url.starts_with('/')) return std::nullopt;
  std::string path = withoutEscapes(url.substr(0, url.find_first_of("?#")));
  if (path.find('\0') != std::string::npos) return std::nullopt;
  return path;
}

}  // namespace foundation
