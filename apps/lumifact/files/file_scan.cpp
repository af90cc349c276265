// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/file_scan.h"

#include <algorithm>
#include <thread>

#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/terminal/progress.h"

namespace lumifact::tool {

namespace {

// More threads than this gain nothing while one thread prints, and each has memory of its own.
constexpr unsigned defaultJobsAtMost = 4;

unsigned threadsOf(const Options& options) {
  return options.jobs.value_or(
      std::clamp(std::thread::hardware_concurrency(), 1U, defaultJobsAtMost));
}

}  // namespace

std::string asLines(std::string text) {
  if (!text.ends_with('\n')) text += '\n';
  return text;
}

void scanFiles(const Options& options, Console& console, const FileScan& scan) {
  FileList files(filesOf(options));
  Progress progress(console);
  std::size_t done = 0;
  std::size_t begun = 0;
  bool isFirst = true;
  const auto emit = [&](const FileOutcome& outcome) {
    if (outcome.result) {
      if (!isFirst) console.write(scan.separator);
      isFirst = false;
      console.write(outcome.result->text);
      if (const auto& shortfall = outcome.result->shortfall; !shortfall.empty())
        console.note(outcome.path, shortfall);
    } else {
      console.fail(outcome.path, outcome.result.error().reason);
    }
    progress.update(++done, begun + files.remaining());
    return console.isOpen();
  };
  const auto next = [&] {
    auto item = files.next();
    if (item) ++begun;
    return item;
  };
  runFiles({.next = next, .work = scan.work, .emit = emit, .threads = threadsOf(options)});
}

}  // namespace lumifact::tool
