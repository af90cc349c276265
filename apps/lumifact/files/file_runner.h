// SPDX-License-Identifier: MIT
//
// Many files worked on by several threads, with their results in the order of the files.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "apps/lumifact/files/file_list.h"
#include "model/result.h"

namespace lumifact::tool {

// What is said of one file.
struct FileText {
  std::string text;
  std::string shortfall = {};  // what a limit cut of it; empty where it is whole
};

// What became of one file: its result, or why there is none.
struct FileOutcome {
  std::string path;
  model::Result<FileText> result;
};

struct FileRun {
  // Gives the files, on the calling thread.
  std::function<std::optional<FileItem>()> next;
  // Makes a file's result, on any thread, several files at once.
  std::function<model::Result<FileText>(const std::string& path)> work;
  // Takes the outcomes in the order of the files, on the calling thread; false to stop early.
  std::function<bool(const FileOutcome& outcome)> emit;
  unsigned threads = 1;
};

// Runs until `next` has no more files or `emit` says to stop. Only a few files are ahead of the
// one being emitted, so memory does not grow with their number. With one thread, or few files,
// everything happens on the calling thread; with one, each outcome is emitted before the next file
// is asked for.
void runFiles(const FileRun& run);

}  // namespace lumifact::tool
