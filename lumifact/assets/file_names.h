// SPDX-License-Identifier: MIT
//
// What is made of the paths and URLs of an asset's files.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lumifact {

// A path or URL text for showing: "file://" is dropped from its front, then
// "/var/mobile/Media/DCIM/". Anything else stays as it is.
std::string shownPath(std::string_view pathOrUrl);

// The last component of a path: "IMG_0001.JPG".
std::string fileName(std::string_view path);

// Every match of "(full|medium)?(.JPG)$" in any letter case replaced by "large$2", as the
// platform's regular expressions match it: "medium.JPG", "full.JPG" and ".JPG" at the end (or
// before a final line break) become "large.JPG", the extension as found. The dot matches any
// character but a line break.
std::string largePreviewName(std::string_view pathOrUrl);

// The files in which a size is looked for, as paths; none where the asset has no such file.
struct AssetFiles {
  std::optional<std::string> main;
  std::optional<std::string> fullsizeImage;
  std::optional<std::string> largePreview;
  std::optional<std::string> mediumPreview;
  bool isVideo = false;
};

// The first file that exists: the main one; for stills only, then the full-size, the large and
// the medium preview, and the medium preview under its "large" name. None where none exists.
std::optional<std::string> existingFile(const AssetFiles& files,
                                        const std::function<bool(const std::string&)>& exists);

}  // namespace lumifact
