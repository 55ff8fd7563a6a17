#pragma once

#include <optional>
#include <string>

namespace orvendal {

/// A key as scripts name it.
struct NamedKey {
  int code = 0;
  int shift = 0;
};

/// "Enter", "Ctrl+Inicio", "Alt+F4", "Ctrl+C", or "Cod231" for a key by its code. A letter is a key only
/// after "Ctrl+" or "Alt+". Nothing for any other name.
std::optional<NamedKey> KeyNamed(const std::string& name);

/// The name by which KeyNamed knows that key.
std::string NameOfKey(const NamedKey& key);

/// "Mayus+Ctrl", "" for none; and back. Nothing for any other text.
std::string NameOfModifiers(int shift);
std::optional<int> ModifiersNamed(std::string name);

}  // namespace orvendal
