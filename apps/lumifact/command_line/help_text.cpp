// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/help_text.h"

#include <algorithm>

#include "apps/lumifact/command_line/wrapped_text.h"

namespace lumifact::tool {

namespace {

constexpr std::size_t optionHelpColumn = 25;

struct SectionTitle {
  Section section;
  std::string_view title;
};

// In the order in which they are shown.
constexpr SectionTitle sectionTitles[] = {{Section::own, "Options"},
                                          {Section::files, "Files"},
                                          {Section::settings, "Settings"},
                                          {Section::general, "General"}};

// Goes on at the column, two blanks behind the last line at least, else on a new line.
void advance(std::string& text, std::size_t column) {
  const std::size_t length = text.size() - (text.rfind('\n') + 1);
  if (length + 2 <= column) {
    text.append(column - length, ' ');
  } else {
    text.append("\n").append(column, ' ');
  }
}

// Each of the lines, behind what all of them begin with.
void appendLines(std::string& text, std::string_view start, std::string_view lines) {
  while (!lines.empty()) text.append(start).append(takePart(lines, '\n')).append("\n");
}

// "Usage: lumifact caption [OPTIONS] FILE...", with further ways of use below the first.
void appendUsage(std::string& text, std::string_view start, std::string_view usage) {
  constexpr std::string_view title = "Usage: ";
  const std::size_t offset = text.size();
  appendLines(text, std::string(title.size(), ' ').append(start), usage);
  text.replace(offset, title.size(), title);
}

void appendOption(std::string& text, const Option& option) {
  if (option.letter == '\0') {
    text += "      ";
  } else {
    text.append("  -").append(1, option.letter).append(", ");
  }
  text.append("--").append(option.name);
  if (!option.values.empty()) text.append(" ").append(option.values);
  advance(text, optionHelpColumn);
  appendWrapped(text, option.help, optionHelpColumn);
}

void appendSection(std::string& text, const SectionTitle& row,
                   const std::vector<const Option*>& options) {
  bool isFirst = true;
  for (const Option* option : options) {
    if (option->section != row.section) continue;
    if (isFirst) text.append("\n").append(row.title).append(":\n");
    isFirst = false;
    appendOption(text, *option);
  }
}

void appendExamples(std::string& text, std::string_view examples) {
  if (examples.empty()) return;
  text += examples.find('\n') == std::string_view::npos ? "\nExample:\n" : "\nExamples:\n";
  appendLines(text, "  ", examples);
}

void appendCommands(std::string& text, const Tool& tool) {
  std::size_t widest = 0;
  for (const Command* command : tool.commands) widest = std::max(widest, command->name.size());
  text += "\nCommands:\n";
  for (const Command* command : tool.commands) {
    text.append("  ").append(command->name);
    advance(text, widest + 5);
    appendWrapped(text, command->summary, widest + 5);
  }
}

}  // namespace

std::string helpText(const Tool& tool) {
  const std::string name(tool.name);
  std::string text = name + ": ";
  text.append(tool.summary).append("\n\n");
  appendUsage(text, name + " ", tool.usage);
  appendCommands(text, tool);
  text.append("\n'").append(name).append(" COMMAND --help' tells more about a command.\n");
  const auto options = optionsOf(tool);
  for (const SectionTitle& row : sectionTitles) {
    if (row.section != Section::own) appendSection(text, row, options);
  }
  appendExamples(text, tool.examples);
  appendWrapped(text += '\n', tool.closing, 0);
  return text;
}

std::string helpText(const Tool& tool, const Command& command) {
  std::string text;
  appendUsage(text, std::string(tool.name).append(" ").append(command.name).append(" "),
              command.usage);
  appendWrapped(text += '\n', command.description, 0);
  const auto options = optionsOf(command);
  for (const SectionTitle& row : sectionTitles) appendSection(text, row, options);
  appendExamples(text, command.examples);
  return text;
}

}  // namespace lumifact::tool
