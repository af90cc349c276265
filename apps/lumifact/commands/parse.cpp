// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <utility>

#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/line_reader.h"
#include "foundation/property_list.h"

namespace lumifact::tool {

namespace {

// More than any metadata takes; a longer line is answered with an error.
constexpr std::size_t longestLine = 16 << 20;  // bytes

void parsePropertyList(const Options& options, Console& console) {
  auto list = foundation::readPropertyList(*options.propertyList);
  if (!list) return console.fail(*options.propertyList, list.error().reason);
  const auto answer = parseAnswer(options.parseKind, std::move(list->root));
  if (!answer) return console.fail(*options.propertyList, answer.error().reason);
  console.write(*answer + "\n");
}

model::Result<std::string> answerOf(const LineReader::Line& line, ParseKind kind) {
  if (line.isTooLong) return model::Error{"line too long"};
  return parseAnswer(kind, line.text);
}

}  // namespace

void runParse(const Options& options, Console& console) {
  if (options.propertyList) return parsePropertyList(options, console);
  // Flushed before waiting, so that a program may ask line by line.
  LineReader lines(STDIN_FILENO, {.separator = '\n', .longestLine = longestLine},
                   [&] { console.flush(); });
  while (console.isOpen()) {
    const auto line = lines.next();
    if (!line) break;
    const auto answer = answerOf(*line, options.parseKind);
    if (!answer) console.noteFailure();
    console.write((answer ? *answer : errorAnswer(answer.error().reason)) + "\n");
  }
  if (lines.failure()) console.fail("standard input", lines.failure()->reason);
}

}  // namespace lumifact::tool
