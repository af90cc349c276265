// SPDX-License-Identifier: MIT
#include "foundation/paths.h"

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace foundation {

namespace {

void appendComponents(std::string& absolute, std::string_view path) {
  std::size_t start = 0;
  while (start < path.size()) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    const std::string_view component = path.substr(start, end - start);
    if (!component.empty() && component != ".") absolute.append("/").append(component);
    start = end + 1;
  }
}

bool isUrlPathCharacter(char character) {
  const bool alphanumeric = (character >= 'a' && character <= 'z') ||
                            (character >= 'A' && character <= 'Z') ||
                            (character >= '0' && character <= '9');
  return alphanumeric || std::string_view("!$&'()*+,-./:=@_~").find(character) != std::string::npos;
}

}  // namespace

std::string absolutePath(std::string_view path) {
  std::string absolute;
  if (!path.starts_with('/')) {
    std::error_code error;
    appendComponents(absolute, std::filesystem::current_path(error).native());
  }
  appendComponents(absolute, path);
  return absolute.empty() ? "/" : absolute;
}

std::string resolvedPath(const std::string& absolutePath) {
  const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(absolutePath.c_str(), nullptr),
                                                        &std::free);
  return resolved ? resolved.get() : absolutePath;
}

std::string fileUrlText(std::string_view absolutePath) {
  constexpr std::string_view hexDigits = "0123456789ABCDEF";
  std::string text = "file://";
  for (const char character : absolutePath) {
    if (isUrlPathCharacter(character)) {
      text += character;
      continue;
    }
    const auto byte = static_cast<unsigned char>(character);
    text += '%';
    text += hexDigits[byte >> 4];
    text += hexDigits[byte & 15];
  }
  return text;
}

}  // namespace foundation
