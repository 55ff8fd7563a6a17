#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/sample/random.h"

namespace orvendal {

/// Products of one kind: every variant of every line in every size.
struct ProductFamily {
  std::string_view prefix;  // of the codes, three letters
  std::string_view name;
  std::vector<std::string_view> variants;
  std::vector<std::string_view> lines;  // empty for goods without a maker's line
  std::vector<std::string_view> sizes;  // empty for goods of one size
  bool by_measure = false;              // sold by weight or volume, so that stock may be fractional
};

/// The families of the sample, in the order of their products.
std::vector<ProductFamily> HairCareFamilies();
std::vector<ProductFamily> ColorFamilies();
std::vector<ProductFamily> CosmeticFamilies();
std::vector<ProductFamily> AccessoryFamilies();

struct SampleProduct {
  std::string code;
  std::string description;
  std::vector<std::string> references;  // EAN-13, none to two
  bool by_measure = false;
};

/// `count` products, no two alike. There are families for about three thousand.
std::vector<SampleProduct> MakeSampleProducts(SampleRandom& random, std::size_t count);

/// The digit that makes a bar code of thirteen of these twelve digits.
char Ean13CheckDigit(std::string_view twelve_digits);

}  // namespace orvendal
