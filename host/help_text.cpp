#include "host/help_text.h"

#include <algorithm>

#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kTextColumn = 28;

std::string Blanks(std::size_t count) {
  return std::string(count, ' ');
}

// Appends `text` to a page whose last line has `column` characters; further lines begin at `indent`.
void AppendWrapped(std::string& page, std::string_view text, std::size_t column, std::size_t indent) {
  bool first = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::size_t length = Len(word);
    if (!first && column + 1 + length > kWidth) {
      page += "\n" + Blanks(indent);
      column = indent;
    } else if (!first) {
      page += ' ';
      ++column;
    }
    page += word;
    column += length;
    first = false;
  }
  page += '\n';
}

void AppendLine(std::string& page, const HelpSection::Line& line) {
  std::string name = "  " + line.name;
  std::size_t column = Len(name);
  if (column + 2 > kTextColumn) {
    name += '\n';
    column = 0;
  }
  page += name + Blanks(kTextColumn - column);
  AppendWrapped(page, line.text, kTextColumn, kTextColumn);
}

}  // namespace

std::string HelpText(const HelpPage& page) {
  std::string text;
  AppendWrapped(text, page.purpose, 0, 0);
  std::string before = std::string(page.usage) + " ";
  for (const std::string& call : page.calls) {
    text += before + call + "\n";
    before = Blanks(Len(before));
  }
  for (const HelpSection& section : page.sections) {
    if (section.lines.empty()) continue;
    text += "\n" + std::string(section.title) + "\n";
    for (const HelpSection::Line& line : section.lines) AppendLine(text, line);
  }
  for (const std::string_view note : page.notes) {
    text += '\n';
    AppendWrapped(text, note, 0, 0);
  }
  return text;
}

}  // namespace orvendal
