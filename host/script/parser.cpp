#include "host/script/parser.h"

namespace orvendal {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

char Escaped(char c) {
  switch (c) {
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    case '"':
    case '\\':
      return c;
    default:
      throw ScriptStop(std::string("no existe el escape \\") + c);
  }
}

class LineReader {
 public:
  explicit LineReader(std::string_view line) : line_(line) {}

  std::vector<std::string> Words() {
    std::vector<std::string> words;
    for (;;) {
      while (!AtEnd() && IsBlank(Next())) ++at_;
      if (AtEnd() || Next() == '#') return words;
      words.push_back(Next() == '"' ? Quoted() : Plain());
      if (!AtEnd() && !IsBlank(Next()) && Next() != '#') {
        throw ScriptStop("falta un espacio antes o después de un texto entre comillas");
      }
    }
  }

 private:
  bool AtEnd() const { return at_ == line_.size(); }
  char Next() const { return line_[at_]; }

  std::string Quoted() {
    std::string text;
    for (++at_; !AtEnd(); ++at_) {
      if (Next() == '"') {
        ++at_;
        return text;
      }
      if (Next() == '\\' && at_ + 1 < line_.size()) {
        ++at_;
        text += Escaped(Next());
      } else {
        text += Next();
      }
    }
    throw ScriptStop("faltan las comillas que cierran el texto");
  }

  std::string Plain() {
    std::string word;
    int open = 0;
    for (; !AtEnd() && Next() != '#' && Next() != '"'; ++at_) {
      if (IsBlank(Next())) {
        if (open == 0) break;
        continue;
      }
      if (Next() == '(') ++open;
      if (Next() == ')' && open > 0) --open;
      word += Next();
    }
    if (open > 0) throw ScriptStop("falta el paréntesis que cierra " + word);
    return word;
  }

  std::string_view line_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<std::string> ParseScriptLine(std::string_view line) {
  return LineReader(line).Words();
}

}  // namespace orvendal
