// The files of recorded scripts.

#include "host/recording/kept_work.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

unsigned PermissionsOf(const std::string& path) {
  return static_cast<unsigned>(std::filesystem::status(path).permissions());
}

class KeptFiles : public testing::Test {
 protected:
  WorkPlace Place(const std::string& branch = "01") {
    return {folder_ / "sin_guardar", "/tienda/cadena.db", branch, Date(2026, 11, 16)};
  }
  /// A program that has ended without closing its screen.
  void Leave(const std::string& script, const std::string& branch = "01") {
    NewWork work = MakeKeptWork(Place(branch));
    work.file->BeginAnew(script);
  }
  static std::string Script(const std::string& lines) {
    return std::string("orvendal 01 1 1\n") + kWorkBeginsHere + "\n" + lines;
  }

  TemporaryFolder folder_;
};

TEST_F(KeptFiles, AreForTheirOwnerAlone) {
  const NewWork work = MakeKeptWork(Place());
  EXPECT_EQ(PermissionsOf(folder_ / "sin_guardar"), 0700U);
  EXPECT_EQ(PermissionsOf(work.path), 0600U);
}

TEST_F(KeptFiles, HoldEachEntryAsSoonAsItIsPutAndReplaceTheLastOnes) {
  const std::string path = folder_ / "record";
  const auto file = RecordFile::Make(path);
  EXPECT_EQ(PermissionsOf(path), 0600U);
  file->Put("uno\n");
  file->Put("raton pulsa X 1 2\n");
  EXPECT_EQ(ContentOf(path), "uno\nraton pulsa X 1 2\n");
  file->Put("clic X\n", 1);
  file->Put("raton doble X 1 2\n");
  file->Put("dobleclic X\n", 2);
  EXPECT_EQ(ContentOf(path), "uno\ndobleclic X\n");
  file->Put("escribe \"a\"\n");
  file->Put("escribe \"ab\"\n", 1);
  EXPECT_EQ(ContentOf(path), "uno\ndobleclic X\nescribe \"ab\"\n");
  file->BeginAnew("dos\n");
  file->Put("tres\n");
  EXPECT_EQ(ContentOf(path), "dos\ntres\n");
}

TEST_F(KeptFiles, NeverReplaceWhatIsThere) {
  const std::string path = folder_ / "record";
  std::ofstream(path) << "mine";
  EXPECT_THROW(RecordFile::Make(path), std::system_error);
  EXPECT_EQ(ContentOf(path), "mine");
}

TEST_F(KeptFiles, AreFoundWhenTheirProgramHasEndedAndNotWhileItRuns) {
  const NewWork running = MakeKeptWork(Place());
  running.file->BeginAnew(Script("escribe \"12\"\n"));
  EXPECT_TRUE(UnfinishedWork(Place()).empty());
  Leave(Script("escribe \"34\"\n"));
  const std::vector<KeptWork> found = UnfinishedWork(Place());
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().Script(), Script("escribe \"34\"\n"));
  EXPECT_TRUE(UnfinishedWork(Place("02")).empty());
}

TEST_F(KeptFiles, WithoutWorkAreNotAskedFor) {
  Leave(Script("clic MSFProductos 1 0\nrueda MSFProductos 1 2 3\ntecla Abajo\nescribe \"\\n\"\n"));
  EXPECT_TRUE(UnfinishedWork(Place()).empty());
  EXPECT_TRUE(std::filesystem::is_empty(folder_ / "sin_guardar"));
  Leave(Script("clic LblBorrar\n"));
  EXPECT_EQ(UnfinishedWork(Place()).size(), 1U);
}

TEST_F(KeptFiles, EndWithTheirLastWholeLine) {
  Leave(Script("escribe \"12\"\nescri"));
  EXPECT_EQ(UnfinishedWork(Place()).front().Script(), Script("escribe \"12\"\n"));
}

TEST_F(KeptFiles, GoOnWhereTheyEnded) {
  Leave(Script("escribe \"12\"\nescri"));
  std::vector<KeptWork> found = UnfinishedWork(Place());
  const std::string path = found.front().Path();
  const auto file = found.front().GoOn(found.front().Script().size());
  file->Put("tecla Enter\n");
  EXPECT_EQ(ContentOf(path), Script("escribe \"12\"\ntecla Enter\n"));
  EXPECT_TRUE(UnfinishedWork(Place()).empty());  // it is being written again
}

TEST_F(KeptFiles, PutAsideAreNotFoundAgain) {
  Leave(Script("escribe \"12\"\n"));
  std::string aside;
  {
    std::vector<KeptWork> found = UnfinishedWork(Place());
    aside = found.front().AsidePath(Date(2026, 11, 16, 10, 42, 33));
    found.front().PutAside(aside);
  }
  EXPECT_TRUE(aside.ends_with("-aparte-104233.guion")) << aside;
  EXPECT_EQ(ContentOf(aside), Script("escribe \"12\"\n"));
  EXPECT_TRUE(UnfinishedWork(Place()).empty());
}

}  // namespace
}  // namespace orvendal
