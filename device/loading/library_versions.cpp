// SPDX-License-Identifier: MIT
#include "device/loading/library_versions.h"

#include <charconv>
#include <optional>
#include <sstream>

#include "device/loading/file_bytes.h"
#include "io/byte_view.h"

namespace device::loading {
namespace {

// One part of a version, at most `most`, taken from the text's front.
std::optional<std::uint32_t> takePart(std::string_view& text, std::uint32_t most) {
  std::uint32_t part = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), part);
  if (error != std::errc() || part > most) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (text.starts_with('.')) text.remove_prefix(1);
  return part;
}

std::optional<std::uint32_t> parseVersion(std::string_view text) {
  const auto major = takePart(text, 0xFFFF);
  const auto minor = takePart(text, 0xFF);
  const auto patch = takePart(text, 0xFF);
  if (!major || !minor || !patch || !text.empty()) return std::nullopt;
  return *major << 16 | *minor << 8 | *patch;
}

}  // namespace

model::Result<LibraryVersions> parseLibraryVersions(std::string_view text) {
  LibraryVersions versions;
  std::istringstream lines{std::string(text)};
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('#')) continue;
    const std::size_t tab = line.find('\t');
    const auto version =
        parseVersion(tab == std::string::npos ? "" : std::string_view(line).substr(tab + 1));
    if (!version || !versions.emplace(line.substr(0, tab), *version).second)
      return model::Error{"no library and version, or one twice: " + line};
  }
  return versions;
}

model::Result<LibraryVersions> readLibraryVersions(const std::string& path) {
  const auto bytes = readFileBytes(path);
  if (!bytes) return bytes.error();
  auto versions = parseLibraryVersions(io::ByteView(*bytes).text());
  if (!versions) return model::Error{path + ": " + versions.error().reason};
  return versions;
}

std::string versionText(std::uint32_t version) {
  return std::to_string(version >> 16) + "." + std::to_string(version >> 8 & 0xFF) + "." +
         std::to_string(version & 0xFF);
}

}  // namespace device::loading
