#include "host/script/script_values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>

#include "host/script/parser.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

// Numbers of a fixed form such as "yyyy-mm-dd"; every other character of the form stands for itself.
bool MatchForm(const std::string& text, std::string_view form, std::map<char, int>& numbers) {
  if (text.size() != form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool is_letter = form[i] >= 'a' && form[i] <= 'z';
    if (!is_letter) {
      if (text[i] != form[i]) return false;
      continue;
    }
    if (text[i] < '0' || text[i] > '9') return false;
    numbers[form[i]] = numbers[form[i]] * 10 + (text[i] - '0');
  }
  return true;
}

}  // namespace

int WholeNumber(const std::string& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw ScriptStop("«" + text + "» no es un número entero");
  }
  return number;
}

int PositiveNumber(const std::string& text) {
  const int number = WholeNumber(text);
  if (number < 1) throw ScriptStop("«" + text + "» no es un número mayor que cero");
  return number;
}

double DecimalNumber(const std::string& text) {
  double number = 0;
  constexpr double kMost = 1e9;  // what becomes a whole number stays one
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool is_number = error == std::errc() && end == text.data() + text.size();
  if (!is_number || !(std::abs(number) <= kMost)) throw ScriptStop("«" + text + "» no es un número");
  return number;
}

Date MomentOf(const std::string& text) {
  for (const char* form : {"yyyy-mm-dd", "yyyy-mm-dd hh:nn", "yyyy-mm-dd hh:nn:ss"}) {
    std::map<char, int> numbers;
    if (!MatchForm(text, form, numbers)) continue;
    try {
      return {numbers['y'], numbers['m'], numbers['d'], numbers['h'], numbers['n'], numbers['s']};
    } catch (const RuntimeError&) {
      break;  // no such day or time
    }
  }
  throw ScriptStop("«" + text + "» no es una fecha como 2026-11-16 10:30:00");
}

std::string NumberWord(double number) {
  std::array<char, 32> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() ? std::string(digits.data(), end) : std::string("0");
}

std::string CodeWord(std::string_view code) {
  const auto plain = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_';
  };
  const bool is_plain = !code.empty() && std::all_of(code.begin(), code.end(), plain);
  return is_plain ? std::string(code) : TextWord(code);
}

std::string TextWord(std::string_view text) {
  std::string word = "\"";
  for (const char c : text) {
    switch (c) {
      case '\n':
        word += "\\n";
        break;
      case '\r':
        word += "\\r";
        break;
      case '\t':
        word += "\\t";
        break;
      case '"':
      case '\\':
        word += '\\';
        [[fallthrough]];
      default:
        word += c;
    }
  }
  return word + '"';
}

}  // namespace orvendal
