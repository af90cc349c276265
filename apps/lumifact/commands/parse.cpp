// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <utility>

#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/files/line_reader.h"
#include "apps/lumifact/json/parse_answer.h"
#include "apps/lumifact/terminal/console.h"
#include "foundation/property_lists/property_list.h"

namespace lumifact::tool {

namespace {

constexpr Option plistOption{.name = "plist",
                             .values = "FILE",
                             .help = "read one property list (XML or binary) instead",
                             .store = value<&Options::propertyList>};

constexpr const Option* takenOptions[] = {&plistOption};

// More than any metadata takes; a longer line is answered with an error.
constexpr std::size_t longestLine = 16 << 20;  // bytes

// What the words ask for; none where they make no sense.
std::optional<ParseKind> kindOf(const Options& options) {
  if (options.words.size() != 1) return std::nullopt;
  if (options.words[0] == "image") return ParseKind::image;
  if (options.words[0] == "video") return ParseKind::video;
  return std::nullopt;
}

std::optional<model::Error> check(const Options& options) {
  if (kindOf(options)) return std::nullopt;
  return model::Error{"takes image or video"};
}

void parsePropertyList(const std::string& file, ParseKind kind, Console& console) {
  auto list = foundation::readPropertyList(file);
  if (!list) return console.fail(file, list.error().reason);
  const auto answer = parseAnswer(kind, std::move(list->root));
  if (!answer) return console.fail(file, answer.error().reason);
  console.write(*answer + "\n");
}

model::Result<std::string> answerOf(const LineReader::Line& line, ParseKind kind) {
  if (line.isTooLong) return model::Error{"line too long"};
  return parseAnswer(kind, line.text);
}

void run(const Options& options, Console& console) {
  const ParseKind kind = *kindOf(options);
  if (options.propertyList) return parsePropertyList(*options.propertyList, kind, console);
  // Flushed before waiting, so that a program may ask line by line.
  LineReader lines(STDIN_FILENO, {.separator = '\n', .longestLine = longestLine},
                   [&] { console.flush(); });
  while (console.isOpen()) {
    const auto line = lines.next();
    if (!line) break;
    const auto answer = answerOf(*line, kind);
    if (!answer) console.noteFailure();
    console.write((answer ? *answer : errorAnswer(answer.error().reason)) + "\n");
  }
  if (lines.failure()) console.fail("standard input", lines.failure()->reason);
}

}  // namespace

constinit const Command parseCommand{
    .name = "parse",
    .summary = "reports of metadata given as JSON or as a property list",
    .usage =
        "[OPTIONS] image\n"
        "[OPTIONS] video",
    .description =
        "Reads JSON from standard input, one properties dictionary (image) or media asset (video) "
        "a line, as 'lumifact properties' prints them, and answers each with one JSON line: text, "
        "table (image only), coordinates. A line that cannot be read is answered with "
        "{\"error\": reason}; the others go on, and the exit status is 1 at the end. null is an "
        "absent asset.",
    .examples = "echo '{\"PixelWidth\": 4032, \"Orientation\": 6}' | lumifact parse image",
    .options = takenOptions,
    .check = check,
    .run = run};

}  // namespace lumifact::tool
