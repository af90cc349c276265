// SPDX-License-Identifier: MIT
//
// The files of a checkout, or of a made one, as texts by their paths from its root.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace rooms {

using SourceTree = std::map<std::string, std::string>;

// Everything below the root but what is hidden and what was built.
SourceTree readSourceTree(const std::string& root);

bool isHeader(std::string_view path);
bool isSource(std::string_view path);  // a header too

// "a/b" of "a/b/c.h"; empty for what lies in the root.
std::string folderOf(std::string_view path);
// "c.h" of "a/b/c.h".
std::string_view nameOf(std::string_view path);
// "a/b/c" of "a/b/c.h": a header and the source of its name are one unit.
std::string unitOf(std::string_view path);
// Whether a path is that of the folder or of something in it. Everything lies in the root, "".
bool liesIn(std::string_view path, std::string_view folder);

std::vector<std::string> linesOf(const std::string& text);
// What a source includes in quotes, as it is written.
std::vector<std::string> includesOf(const std::string& text);

}  // namespace rooms
