// SPDX-License-Identifier: MIT
#include <utility>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/chosen_files.h"
#include "apps/lumifact/files/file_scan.h"
#include "apps/lumifact/texts/asset_texts.h"
#include "apps/lumifact/texts/table_text.h"
#include "foundation/terminal_text.h"

namespace lumifact::tool {

namespace {

constexpr const Option* takenOptions[] = {&option::locale, &option::timeZone, &option::root};

void run(const Options& options, Console& console) {
  const Environment environment = environmentOf(options, Reader::person);
  const bool isForTerminal = console.resultsAreOnTerminal();
  const auto work = [&](const std::string& path) -> model::Result<FileText> {
    auto facts = media::facts::readAssetFacts(path, environment.root);
    if (!facts) return facts.error();
    if (!facts->properties) return model::Error{"a video has no table (report shows its text)"};
    if (isForTerminal) facts->path = terminalSafe(facts->path, foundation::Keep::nothing);
    const model::Dictionary record = summaryRecordOf(*facts, environment);
    std::string shortfall = std::move(facts->shortfall);
    const AssetReport report = reportOf(*std::move(facts), environment);
    std::string text = tableText(record, *report.table, environment.keyOrder, environment.dates);
    if (isForTerminal) text = terminalSafe(text, foundation::Keep::lineBreaks);
    return FileText{std::move(text), std::move(shortfall)};
  };
  scanFiles(options, console, {.work = work});
}

}  // namespace

constinit const Command tableCommand{
    .name = "table",
    .summary = "the report of one photo as a tree of keys and values",
    .usage = "[OPTIONS] FILE",
    .description =
        "Prints the report of a photo as the table shows it: rows about the file first, then a row "
        "a key, 'title = value', with what a section holds two columns further right. Elements of "
        "a list stand behind '-'. A video has no table.",
    .options = takenOptions,
    .check = checkOneFile,
    .run = run};

}  // namespace lumifact::tool
