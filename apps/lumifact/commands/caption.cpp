// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"

namespace lumifact::tool {

namespace {

constexpr Option displayOption{.name = "display",
                               .values = "N",
                               .help =
                                   "what to show, in place of the setting thumbnailInfoDisplay: "
                                   "1 pixel size and type, 2 file size and type, 3 pixel size and "
                                   "file size",
                               .store = value<&Options::display>};

constexpr const Option* takenOptions[] = {&displayOption,  &option::recursive, &option::filesFrom,
                                          &option::null,   &option::jobs,      &option::settings,
                                          &option::locale, &option::root};

void run(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  const std::int32_t display = options.display.value_or(environment.settings.thumbnailInfoDisplay);
  const auto work = [&](const std::string& path) -> model::Result<FileText> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    return FileText{captionOf(*facts, display, environment) + "\n", facts->shortfall};
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace

constinit const Command captionCommand{
    .name = "caption",
    .summary = "a line a file: pixel size, file type, file size",
    .usage = "[OPTIONS] FILE...",
    .description =
        "Prints the caption that a thumbnail of each file has, a line a file. The line "
        "is empty where the setting shows none.",
    .options = takenOptions,
    .check = checkFiles,
    .run = run};

}  // namespace lumifact::tool
