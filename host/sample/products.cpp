#include "host/sample/products.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace orvendal {
namespace {

constexpr int kPercentWithoutReference = 8;
constexpr int kPercentWithTwo = 14;

void Append(std::string& text, std::string_view word) {
  if (word.empty()) return;
  if (!text.empty()) text += ' ';
  text += word;
}

const std::vector<std::string_view>& OrNone(const std::vector<std::string_view>& words) {
  static const std::vector<std::string_view> none = {""};
  return words.empty() ? none : words;
}

void AppendProducts(const ProductFamily& family, std::vector<SampleProduct>& products) {
  int number = 0;
  for (const std::string_view line : OrNone(family.lines)) {
    for (const std::string_view variant : OrNone(family.variants)) {
      for (const std::string_view size : OrNone(family.sizes)) {
        SampleProduct product;
        char digits[16];
        std::snprintf(digits, sizeof digits, "%03d", ++number);
        product.code = std::string(family.prefix) + digits;
        Append(product.description, family.name);
        Append(product.description, variant);
        Append(product.description, line);
        Append(product.description, size);
        product.by_measure = family.by_measure;
        products.push_back(std::move(product));
      }
    }
  }
}

// A bar code that no other product of the sample has: the serial number stands in it.
std::string BarCode(std::size_t serial, SampleRandom& random) {
  constexpr std::array kMakers = {"10031", "11457", "20092", "32764", "36013", "70518"};
  char digits[24];
  std::snprintf(digits, sizeof digits, "84%s%05zu", kMakers[random.Below(kMakers.size())], serial % 100000);
  std::string code(digits);
  code += Ean13CheckDigit(code);
  return code;
}

}  // namespace

char Ean13CheckDigit(std::string_view twelve_digits) {
  int sum = 0;
  for (std::size_t i = 0; i < twelve_digits.size(); ++i) {
    sum += (twelve_digits[i] - '0') * (i % 2 == 0 ? 1 : 3);
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::vector<SampleProduct> MakeSampleProducts(SampleRandom& random, std::size_t count) {
  std::vector<SampleProduct> all;
  for (const auto& families :
       {HairCareFamilies(), ColorFamilies(), CosmeticFamilies(), AccessoryFamilies()}) {
    for (const ProductFamily& family : families) AppendProducts(family, all);
  }

  // Leaves out here and there what is too much, so that codes have gaps as in a real catalogue.
  std::vector<SampleProduct> products;
  for (std::size_t i = 0; i < all.size() && products.size() < count; ++i) {
    const std::size_t left = all.size() - i;
    const std::size_t wanted = count - products.size();
    if (random.Below(left) < wanted) products.push_back(std::move(all[i]));
  }

  std::size_t serial = 0;
  for (SampleProduct& product : products) {
    if (random.Chance(kPercentWithoutReference)) continue;
    const int references = random.Chance(kPercentWithTwo) ? 2 : 1;
    for (int i = 0; i < references; ++i) product.references.push_back(BarCode(++serial, random));
  }
  return products;
}

}  // namespace orvendal
