// SPDX-License-Identifier: MIT
#include "lumifact/assets/file_names.h"

#include <algorithm>
#include <array>

#include "model/utf8.h"

namespace lumifact {

namespace {

constexpr std::string_view fileScheme = "file://";
constexpr std::string_view cameraRoll = "/var/mobile/Media/DCIM/";

char lowerAscii(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                              : character;
}

bool endsWithIgnoringCase(std::string_view text, std::string_view lowerEnding) {
  if (text.size() < lowerEnding.size()) return false;
  const std::string_view ending = text.substr(text.size() - lowerEnding.size());
  return std::ranges::equal(ending, lowerEnding, {}, lowerAscii);
}

// The line terminators of the platform's regular expressions (ICU's), the longest first.
constexpr std::array<std::string_view, 8> lineTerminators = {
    "\r\n", "\n", "\v", "\f", "\r", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"};

// How many bytes the line terminator at the end of the text takes, 0 where there is none.
std::size_t finalTerminatorSize(std::string_view text) {
  for (const std::string_view terminator : lineTerminators) {
    if (text.ends_with(terminator)) return terminator.size();
  }
  return 0;
}

// How many bytes the last character of the text takes; REQUIRES: it is not empty.
std::size_t finalCharacterSize(std::string_view text) {
  for (std::size_t bytes = std::min<std::size_t>(4, text.size()); bytes > 1; --bytes) {
    const model::CodePoint last = model::codePointAt(text, text.size() - bytes);
    if (last.valid && last.bytes == bytes) return bytes;
  }
  return 1;
}

}  // namespace

std::string shownPath(std::string_view pathOrUrl) {
  if (pathOrUrl.starts_with(fileScheme)) pathOrUrl.remove_prefix(fileScheme.size());
  if (pathOrUrl.starts_with(cameraRoll)) pathOrUrl.remove_prefix(cameraRoll.size());
  return std::string(pathOrUrl);
}

std::string fileName(std::string_view path) {
  const std::size_t end = path.find_last_not_of('/');
  if (end == std::string_view::npos) return std::string(path.substr(0, 1));
  path = path.substr(0, end + 1);
  return std::string(path.substr(path.rfind('/') + 1));  // npos + 1 is 0: no slash at all
}

// A match ends where the text does, or before its final line terminator. Only one of the two can
// follow a "G", so there is at most one match. It begins with the longest of the three beginnings,
// since the engine tries them from the left.
std::string largePreviewName(std::string_view pathOrUrl) {
  constexpr std::string_view lettersOfSuffix = "jpg";
  const std::size_t end = pathOrUrl.size() - finalTerminatorSize(pathOrUrl);
  const std::string_view subject = pathOrUrl.substr(0, end);
  if (!endsWithIgnoringCase(subject, lettersOfSuffix)) return std::string(pathOrUrl);
  const std::string_view beforeLetters = subject.substr(0, end - lettersOfSuffix.size());
  // The dot stands for one character, any but a line terminator.
  if (beforeLetters.empty() || finalTerminatorSize(beforeLetters) > 0) {
    return std::string(pathOrUrl);
  }
  const std::size_t suffix = beforeLetters.size() - finalCharacterSize(beforeLetters);
  std::string_view kept = pathOrUrl.substr(0, suffix);
  for (const std::string_view size : {std::string_view("full"), std::string_view("medium")}) {
    if (!endsWithIgnoringCase(kept, size)) continue;
    kept.remove_suffix(size.size());
    break;
  }
  return std::string(kept).append("large").append(pathOrUrl.substr(suffix));
}

std::optional<std::string> existingFile(const AssetFiles& files,
                                        const std::function<bool(const std::string&)>& exists) {
  const auto isThere = [&](const std::optional<std::string>& path) {
    return path.has_value() && exists(*path);
  };
  if (isThere(files.main)) return files.main;
  if (files.isVideo) return std::nullopt;
  for (const auto* preview : {&files.fullsizeImage, &files.largePreview, &files.mediumPreview}) {
    if (isThere(*preview)) return *preview;
  }
  if (!files.mediumPreview) return std::nullopt;
  std::optional<std::string> large = largePreviewName(*files.mediumPreview);
  return isThere(large) ? large : std::nullopt;
}

}  // namespace lumifact
