// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"
#include "foundation/terminal_text.h"

namespace lumifact::tool {

namespace {

constexpr Option compactOption{
    .name = "compact", .help = "leave the labels out", .store = flag<&Options::compact>};

constexpr const Option* takenOptions[] = {&compactOption,    &option::recursive, &option::filesFrom,
                                          &option::null,     &option::jobs,      &option::locale,
                                          &option::timeZone, &option::root};

void run(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  const QuickInfoForm form = options.compact ? QuickInfoForm::compact : QuickInfoForm::labelled;
  const auto work = [&](const std::string& path) -> model::Result<FileText> {
    const auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    std::string text = asLines(quickInfoOf(*facts, form, environment));
    if (console.resultsAreOnTerminal()) text = terminalSafe(text, foundation::Keep::lineBreaks);
    return FileText{std::move(text), facts->shortfall};
  };
  scanFiles(options, console, {.work = work, .separator = "\n"});
}

}  // namespace

constinit const Command quickInfoCommand{
    .name = "quick-info",
    .summary = "a short summary: path, date, size, orientation or duration, place",
    .usage = "[OPTIONS] FILE...",
    .description =
        "Prints a short summary of each file: path (with percent-escapes, as in a URL), date "
        "taken, file size, pixel size as displayed, the duration of a video or the orientation of "
        "a photo, and the place where the metadata names one. An empty line stands between two "
        "files.",
    .options = takenOptions,
    .check = checkFiles,
    .run = run};

}  // namespace lumifact::tool
