#include "tests/support/script_writer.h"

#include "host/script/parser.h"

namespace orvendal {

ScriptWriter::Outcome ScriptWriter::Execute(const std::string& line) {
  try {
    commands_.Execute(ParseScriptLine(line));
    return Outcome::kDone;
  } catch (const ScriptStop&) {
    return Outcome::kRefused;
  } catch (const std::exception&) {  // a dialog without an answer, say, in the middle of a handler
    return Outcome::kEnded;
  }
}

std::string ScriptWriter::TakeOutput() {
  std::string shown = output_.str();
  output_.str({});
  return shown;
}

std::optional<std::string> ScriptWriter::Do(const std::string& line) {
  if (ended_) return std::nullopt;
  const Outcome outcome = Execute(line);
  std::string shown = TakeOutput();
  if (outcome == Outcome::kRefused) return std::nullopt;
  Add(line);
  ended_ = outcome == Outcome::kEnded;
  return shown;
}

std::optional<std::string> ScriptWriter::Ask(const std::string& look) {
  if (ended_) return std::nullopt;
  const Outcome outcome = Execute(look);
  std::string shown = TakeOutput();
  if (outcome != Outcome::kDone) return std::nullopt;
  return shown;
}

std::string ScriptWriter::Value(const std::string& reference) {
  const std::string shown = Ask("mostrar " + reference).value_or("");
  const std::string start = reference + " = ";
  if (!shown.starts_with(start)) return {};
  return shown.substr(start.size(), shown.size() - start.size() - 1);
}

bool ScriptWriter::EndWith(const std::string& line) {
  if (ended_) return true;
  if (Do(line)) return ended_;
  Add(line);
  ended_ = true;
  return true;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    switch (character) {
      case '"':
        quoted += "\\\"";
        break;
      case '\\':
        quoted += "\\\\";
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\t':
        quoted += "\\t";
        break;
      default:
        quoted += character;
    }
  }
  return quoted + "\"";
}

}  // namespace orvendal
