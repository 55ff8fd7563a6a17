#include <cstdio>

#include "tests/host/windows/program/hands.h"

// hands COMMAND...; ends with 1 if something that it waits for does not come.
int wmain(int count, wchar_t** words) {
  const std::wstring trouble = orvendal::UseScreen({words + 1, words + count});
  if (trouble.empty()) return 0;
  std::printf("hands: %ls\n", trouble.c_str());
  return 1;
}
