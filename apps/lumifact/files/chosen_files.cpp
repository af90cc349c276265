// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/chosen_files.h"

namespace lumifact::tool {

std::optional<model::Error> checkFiles(const Options& options) {
  if (options.listsEndInZero && !options.filesFrom)
    return model::Error{"--null goes with --files-from"};
  if (options.words.empty() && !options.filesFrom) return model::Error{"no FILE given"};
  return std::nullopt;
}

std::optional<model::Error> checkOneFile(const Options& options) {
  if (options.words.size() == 1) return std::nullopt;
  return model::Error{"takes one FILE"};
}

FileListRequest filesOf(const Options& options) {
  return {.paths = options.words,
          .listFile = options.filesFrom,
          .listSeparator = options.listsEndInZero ? '\0' : '\n',
          .isRecursive = options.isRecursive};
}

}  // namespace lumifact::tool
