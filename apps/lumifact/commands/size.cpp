// SPDX-License-Identifier: MIT
//
// A selection is a set: a file that is named twice is one item. Its assets are fresh, so their
// sizes are read in full, never from a cache that would keep 32 bits of them.
#include <sys/stat.h>

#include <cerrno>
#include <system_error>
#include <unordered_set>
#include <vector>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/environment.h"
#include "apps/lumifact/file_scan.h"
#include "desktop/foundation/byte_count.h"
#include "desktop/photos/paths.h"
#include "lumifact/grid/selection_title.h"
#include "model/number_text.h"

namespace lumifact::tool {

namespace {

model::Result<std::int64_t> fileSize(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    return model::Error{std::generic_category().message(errno)};
  }
  if (!S_ISREG(status.st_mode)) return model::Error{"not a regular file"};
  return static_cast<std::int64_t>(status.st_size);
}

}  // namespace

void runSize(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  FileList files(filesOf(options));
  std::unordered_set<std::string> selected;
  std::vector<std::optional<std::int64_t>> sizes;
  while (const auto item = files.next()) {
    const std::string path = desktop::photos::absolutePath(item->path);
    if (!selected.insert(path).second) continue;
    const auto size = item->error ? *item->error : fileSize(environment.root.onDisk(path));
    if (!size) console.fail(item->path, size.error().reason);
    sizes.push_back(size ? std::optional(*size) : std::nullopt);
  }
  const std::string count = model::integerText(static_cast<std::int64_t>(sizes.size()));
  const auto sizeText = [&](std::int64_t bytes) {
    return desktop::foundation::byteCountText(bytes, environment.numbers);
  };
  console.write(selectionTitle(count + " Items Selected", selectionSize(sizes), sizeText) + "\n");
}

}  // namespace lumifact::tool
