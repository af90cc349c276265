// SPDX-License-Identifier: MIT
//
// A selection is a set: a file that is named twice, or by a link too, is one item. Its assets are
// fresh, so their sizes are read in full, never from a cache that would keep 32 bits of them.
#include <sys/stat.h>

#include <cerrno>
#include <functional>
#include <string>
#include <system_error>
#include <unordered_set>
#include <vector>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/terminal/console.h"
#include "apps/lumifact/texts/environment.h"
#include "foundation/byte_count.h"
#include "foundation/paths.h"
#include "lumifact/grid/selection_title.h"
#include "model/number_text.h"

namespace lumifact::tool {

namespace {

constexpr const Option* takenOptions[] = {&option::recursive, &option::filesFrom, &option::null,
                                          &option::locale, &option::root};

// What tells files apart in little memory: two names of one file that have the same hash too are
// taken for one name.
struct Item {
  dev_t device = 0;
  ino_t number = 0;
  std::size_t nameHash = 0;
  bool operator==(const Item&) const = default;
};

struct ItemHash {
  std::size_t operator()(const Item& item) const { return item.nameHash; }
};

// Fills `item` and answers the file's size.
model::Result<std::int64_t> fileSize(const std::string& path, Item& item) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    return model::Error{std::generic_category().message(errno)};
  }
  item.device = status.st_dev;
  item.number = status.st_ino;
  if (!S_ISREG(status.st_mode)) return model::Error{"not a regular file"};
  return static_cast<std::int64_t>(status.st_size);
}

void run(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  FileList files(filesOf(options));
  std::unordered_set<Item, ItemHash> selected;
  std::vector<std::optional<std::int64_t>> sizes;
  while (const auto item = files.next()) {
    const std::string path =
        foundation::resolvedPath(environment.root.onDisk(foundation::absolutePath(item->path)));
    Item known{.nameHash = std::hash<std::string>()(path)};
    auto size = fileSize(path, known);
    if (!selected.insert(known).second) continue;
    if (item->error) size = *item->error;
    if (!size) console.fail(item->path, size.error().reason);
    sizes.push_back(size ? std::optional(*size) : std::nullopt);
  }
  const std::string count = model::integerText(static_cast<std::int64_t>(sizes.size()));
  const auto sizeText = [&](std::int64_t bytes) {
    return foundation::byteCountText(bytes, environment.numbers);
  };
  console.write(selectionTitle(count + " Items Selected", selectionSize(sizes), sizeText) + "\n");
}

}  // namespace

constinit const Command sizeCommand{
    .name = "size",
    .summary = "the title of a selection of files, with their size as a whole",
    .usage = "[OPTIONS] FILE...",
    .description =
        "Prints the title of the files as a selection, with the size of all of them: '12 Items "
        "Selected (31.4 MB) '. A file that is named twice counts once; one that cannot be read "
        "counts as an item of 0 bytes and is reported. Where the size is 0, the title has none.",
    .options = takenOptions,
    .check = checkFiles,
    .run = run};

}  // namespace lumifact::tool
