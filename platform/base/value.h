#pragma once

#include <string>
#include <utility>
#include <variant>

#include "platform/base/date.h"

namespace orvendal {

/// What a field of the store or an argument of no fixed type can hold: Null, a number, a date or a text
/// (UTF-8).
class Value {
 public:
  Value() = default;
  Value(double number) : content_(number) {}                    // NOLINT(google-explicit-constructor)
  Value(int number) : content_(static_cast<double>(number)) {}  // NOLINT(google-explicit-constructor)
  Value(Date date) : content_(date) {}                          // NOLINT(google-explicit-constructor)
  Value(std::string text) : content_(std::move(text)) {}        // NOLINT(google-explicit-constructor)
  Value(const char* text) : content_(std::string(text)) {}      // NOLINT(google-explicit-constructor)

  bool IsNull() const { return std::holds_alternative<std::monostate>(content_); }
  bool IsNumber() const { return std::holds_alternative<double>(content_); }
  bool IsDate() const { return std::holds_alternative<Date>(content_); }
  bool IsText() const { return std::holds_alternative<std::string>(content_); }

  /// Each raises error 13 if the value is of another kind.
  double Number() const { return Get<double>(); }
  Date AsDate() const { return Get<Date>(); }
  const std::string& Text() const { return Get<std::string>(); }
  /// The text itself, for whoever has no more use for the value.
  std::string TakeText() && {
    if (auto* const held = std::get_if<std::string>(&content_)) return std::move(*held);
    RaiseOtherKind();
  }

  bool operator==(const Value&) const = default;

 private:
  template <typename Kind>
  const Kind& Get() const {
    if (const Kind* held = std::get_if<Kind>(&content_)) return *held;
    RaiseOtherKind();
  }
  [[noreturn]] static void RaiseOtherKind();

  std::variant<std::monostate, double, Date, std::string> content_;
};

}  // namespace orvendal
