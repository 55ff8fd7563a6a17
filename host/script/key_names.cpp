#include "host/script/key_names.h"

#include <charconv>
#include <iterator>
#include <utility>

#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr std::pair<const char*, int> kKeys[] = {
    {"Enter", key::kReturn}, {"Esc", key::kEscape},      {"Tab", key::kTab},        {"Retroceso", key::kBack},
    {"Supr", key::kDelete},  {"Insertar", key::kInsert}, {"Izquierda", key::kLeft}, {"Derecha", key::kRight},
    {"Arriba", key::kUp},    {"Abajo", key::kDown},      {"Inicio", key::kHome},    {"Fin", key::kEnd},
    {"RePag", key::kPageUp}, {"AvPag", key::kPageDown},  {"Espacio", key::kSpace},  {"Menu", key::kMenu},
};

constexpr std::pair<const char*, int> kModifiers[] = {
    {"Mayus", shift_mask::kShift}, {"Ctrl", shift_mask::kControl}, {"Alt", shift_mask::kAlt}};

constexpr std::string_view kByCode = "Cod";
constexpr int kFunctionKeys = key::kF12 - key::kF1 + 1;
constexpr int kHighestCode = 255;

int TakeModifiers(std::string& name) {
  int shift = 0;
  for (bool found = true; found;) {
    found = false;
    for (const auto& [modifier, mask] : kModifiers) {
      const std::string prefix = std::string(modifier) + "+";
      if (!name.starts_with(prefix)) continue;
      shift |= mask;
      name.erase(0, prefix.size());
      found = true;
    }
  }
  return shift;
}

std::optional<int> NumberOf(std::string_view digits) {
  int number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::optional<int> CodeOf(const std::string& name, int shift) {
  for (const auto& [known, code] : kKeys) {
    if (name == known) return code;
  }
  if (name.starts_with('F')) {
    const std::optional<int> number = NumberOf(std::string_view(name).substr(1));
    if (number && *number >= 1 && *number <= kFunctionKeys) return key::kF1 + *number - 1;
  }
  if (name.starts_with(kByCode)) {
    const std::optional<int> number = NumberOf(std::string_view(name).substr(kByCode.size()));
    if (number && *number >= 0 && *number <= kHighestCode) return *number;
  }
  const bool takes_letters = (shift & (shift_mask::kControl | shift_mask::kAlt)) != 0;
  if (name.size() != 1 || !takes_letters) return std::nullopt;
  const char upper = name[0] >= 'a' && name[0] <= 'z' ? static_cast<char>(name[0] - 'a' + 'A') : name[0];
  if (upper < 'A' || upper > 'Z') return std::nullopt;
  return upper;
}

}  // namespace

std::optional<NamedKey> KeyNamed(const std::string& name) {
  std::string plain = name;
  const int shift = TakeModifiers(plain);
  const std::optional<int> code = CodeOf(plain, shift);
  if (!code) return std::nullopt;
  return NamedKey{*code, shift};
}

std::string NameOfKey(const NamedKey& named) {
  std::string name = NameOfModifiers(named.shift);
  if (!name.empty()) name += '+';
  for (const auto& [known, code] : kKeys) {
    if (named.code == code) return name + known;
  }
  if (named.code >= key::kF1 && named.code < key::kF1 + kFunctionKeys) {
    return name + "F" + std::to_string(named.code - key::kF1 + 1);
  }
  const bool takes_letters = (named.shift & (shift_mask::kControl | shift_mask::kAlt)) != 0;
  if (takes_letters && named.code >= 'A' && named.code <= 'Z') {
    return name + std::string(1, static_cast<char>(named.code));
  }
  return name + std::string(kByCode) + std::to_string(named.code);
}

std::string NameOfModifiers(int shift) {
  std::string name;
  for (const auto& [modifier, mask] : kModifiers) {
    if ((shift & mask) != 0) name += (name.empty() ? "" : "+") + std::string(modifier);
  }
  return name;
}

std::optional<int> ModifiersNamed(std::string name) {
  name += '+';
  const int shift = TakeModifiers(name);
  if (!name.empty()) return std::nullopt;
  return shift;
}

}  // namespace orvendal
