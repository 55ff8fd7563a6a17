#include "platform/forms/cell_texts.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

namespace orvendal {
namespace {

// Room that a long text took is not kept for the short ones that follow.
constexpr std::size_t kLongText = 256;

// A block begins with the bytes that each of its numbers takes, then come the number of texts, the end of
// each and the texts themselves. Most rows do with numbers of one byte.
std::size_t WidthFor(std::size_t largest) {
  if (largest <= std::numeric_limits<std::uint8_t>::max()) return sizeof(std::uint8_t);
  if (largest <= std::numeric_limits<std::uint16_t>::max()) return sizeof(std::uint16_t);
  if (largest <= std::numeric_limits<std::uint32_t>::max()) return sizeof(std::uint32_t);
  return sizeof(std::uint64_t);
}

template <typename Number>
std::size_t Read(const char* from) {
  Number number;
  std::memcpy(&number, from, sizeof number);
  return static_cast<std::size_t>(number);
}

template <typename Number>
void Write(char* to, std::size_t value) {
  const auto number = static_cast<Number>(value);
  std::memcpy(to, &number, sizeof number);
}

std::size_t ReadNumber(const char* from, std::size_t width) {
  switch (width) {
    case sizeof(std::uint8_t):
      return Read<std::uint8_t>(from);
    case sizeof(std::uint16_t):
      return Read<std::uint16_t>(from);
    case sizeof(std::uint32_t):
      return Read<std::uint32_t>(from);
    default:
      return Read<std::uint64_t>(from);
  }
}

void WriteNumber(char* to, std::size_t width, std::size_t value) {
  switch (width) {
    case sizeof(std::uint8_t):
      return Write<std::uint8_t>(to, value);
    case sizeof(std::uint16_t):
      return Write<std::uint16_t>(to, value);
    case sizeof(std::uint32_t):
      return Write<std::uint32_t>(to, value);
    default:
      return Write<std::uint64_t>(to, value);
  }
}

std::size_t WidthOf(const char* block) {
  return static_cast<std::size_t>(*block);
}

}  // namespace

// Blocks.

CellTexts::Block CellTexts::Pack(const std::vector<std::string_view>& texts) {
  std::size_t count = texts.size();
  while (count > 0 && texts[count - 1].empty()) --count;
  if (count == 0) return nullptr;
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < count; ++i) bytes += texts[i].size();
  const std::size_t width = WidthFor(std::max(bytes, count));
  Block block = std::make_unique_for_overwrite<char[]>(1 + width * (1 + count) + bytes);
  block[0] = static_cast<char>(width);
  char* numbers = block.get() + 1;
  char* const first = numbers + width * (1 + count);
  char* end = first;
  WriteNumber(numbers, width, count);
  for (std::size_t i = 0; i < count; ++i) {
    end = texts[i].copy(end, texts[i].size()) + end;
    numbers += width;
    WriteNumber(numbers, width, static_cast<std::size_t>(end - first));
  }
  return block;
}

std::size_t CellTexts::CountIn(const Block& block) {
  return block == nullptr ? 0 : ReadNumber(block.get() + 1, WidthOf(block.get()));
}

std::string_view CellTexts::TextIn(const Block& block, std::size_t column) {
  const std::size_t count = CountIn(block);
  if (column >= count) return {};
  const std::size_t width = WidthOf(block.get());
  const char* const ends = block.get() + 1 + width;
  const std::size_t from = column == 0 ? 0 : ReadNumber(ends + (column - 1) * width, width);
  const std::size_t to = ReadNumber(ends + column * width, width);
  return {ends + count * width + from, to - from};
}

// The open row.

void CellTexts::Open(int row) {
  if (row == open_row_) return;
  Close();
  const Block& block = rows_[static_cast<std::size_t>(row)];
  const std::size_t count = CountIn(block);
  if (open_.size() < count) open_.resize(count);
  for (std::size_t column = 0; column < open_.size(); ++column) {
    if (open_[column].capacity() > kLongText) open_[column] = {};
    open_[column] = TextIn(block, column);
  }
  open_row_ = row;
}

void CellTexts::Close() {
  if (open_row_ < 0) return;
  pieces_.assign(open_.begin(), open_.end());
  rows_[static_cast<std::size_t>(open_row_)] = Pack(pieces_);
  open_row_ = -1;
}

// Cells.

std::string_view CellTexts::Text(int row, int column) const {
  const auto index = static_cast<std::size_t>(column);
  if (row != open_row_) return TextIn(rows_[static_cast<std::size_t>(row)], index);
  return index < open_.size() ? std::string_view(open_[index]) : std::string_view();
}

void CellTexts::Text(int row, int column, std::string_view text) {
  const auto index = static_cast<std::size_t>(column);
  Open(row);
  if (index >= open_.size()) {
    if (text.empty()) return;
    open_.resize(index + 1);
  }
  open_[index] = text;
}

// Rows.

void CellTexts::Rows(int rows) {
  rows_.resize(static_cast<std::size_t>(rows));
  if (open_row_ >= rows) open_row_ = -1;
}

void CellTexts::Insert(int row, std::string_view texts, int columns) {
  pieces_.clear();
  while (!texts.empty() && pieces_.size() < static_cast<std::size_t>(columns)) {
    const std::size_t tab = std::min(texts.find('\t'), texts.size());
    pieces_.push_back(texts.substr(0, tab));
    texts.remove_prefix(std::min(tab + 1, texts.size()));
  }
  rows_.insert(rows_.begin() + row, Pack(pieces_));
  if (open_row_ >= row) ++open_row_;
}

void CellTexts::Remove(int row) {
  rows_.erase(rows_.begin() + row);
  if (open_row_ == row) open_row_ = -1;
  if (open_row_ > row) --open_row_;
}

void CellTexts::Cut(int columns) {
  const auto count = static_cast<std::size_t>(columns);
  Close();
  if (open_.size() > count) open_.resize(count);
  for (Block& block : rows_) {
    if (CountIn(block) <= count) continue;
    pieces_.clear();
    for (std::size_t column = 0; column < count; ++column) pieces_.push_back(TextIn(block, column));
    block = Pack(pieces_);
  }
}

}  // namespace orvendal
