// The day that the document teaches with is the one that is replayed in the tests.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

std::string Content(const std::string& path) {
  std::ifstream file(std::string(ORVENDAL_SOURCE) + "/" + path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

// The first block of code after the heading.
std::string BlockAfter(const std::string& document, const std::string& heading) {
  const std::size_t section = document.find("\n" + heading + "\n");
  if (section == std::string::npos) return {};
  const std::size_t fence = document.find("\n```", section);
  if (fence == std::string::npos) return {};
  const std::size_t start = document.find('\n', fence + 1) + 1;
  return document.substr(start, document.find("\n```", start) + 1 - start);
}

TEST(ScriptDocument, TeachesWithADayThatRuns) {
  const std::string document = Content("docs/guion.md");
  ASSERT_FALSE(document.empty());
  EXPECT_EQ(BlockAfter(document, "## A working day"), Content("tests/scripts/90_jornada.guion"));
  EXPECT_EQ(BlockAfter(document, "### What it shows"), Content("tests/scripts/90_jornada.salida"));
}

}  // namespace
