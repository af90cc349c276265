// SPDX-License-Identifier: MIT
//
// Paths as the platform's file URLs carry them.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// The path made absolute with the working directory. Links are not resolved and ".." stays, since
// what it means depends on them; "." and doubled slashes are dropped.
std::string absolutePath(std::string_view path);

// An absolute path with all links on its way followed, and without ".."; as it is where nothing is
// there.
std::string resolvedPath(const std::string& absolutePath);

// The text of a file URL: "file://" and the path, with percent-escapes for all bytes but ASCII
// letters, digits and !$&'()*+,-./:=@_~ (a blank is "%20"). REQUIRES: the path is absolute.
std::string fileUrlText(std::string_view absolutePath);

}  // namespace foundation
