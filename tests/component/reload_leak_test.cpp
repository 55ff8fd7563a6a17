#include <gtest/gtest.h>
#include <malloc.h>

#include <filesystem>

#include "tests/support/form_driver.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

// The allocator's own books, and what libraries keep from their first use, come to rest.
constexpr int kRoundsBefore = 50;
constexpr int kRounds = 1000;
// What may be over after all rounds: less than the smallest object a round. The caches of the store grow by
// half of that before they are full.
constexpr std::size_t kBytesOver = 48 * 1024;

std::size_t BytesInUse() {
  const struct mallinfo2 books = mallinfo2();
  return books.uordblks + books.hblkhd;
}

std::ptrdiff_t OpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return std::distance(begin(files), end(files));
}

// A working day in short: lines by code and by bar code, a search, a message, a deleted line, a save, a day
// in supervisor mode, unsaved lines that are dropped.
void OneRound(FormDriver& screen) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.EnterLine("8400000000024", "2,5");
  screen.library.QueueProduct("P3");
  screen.EnterLine("NADA", "1");
  screen.Type("P1");
  screen.Enter();
  screen.ClickCell(2, 0);
  screen.Click("LblBorrar");
  screen.Click("LblGuardar");
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  screen.Click("MkFecha");
  screen.robot().ClickDay(screen.form().Calendario, Date(2026, 11, 13));
  screen.Key(key::kEscape);
  screen.EnterLine("P20", "1");
  screen.library.QueueAnswer(message::kNo);
  testing_support::ClickClose(screen);
  ASSERT_FALSE(screen.HasForm());
  ASSERT_EQ(screen.Sql("SELECT count(*) FROM HistOrvendalcial"), "2");
  screen.Execute("DELETE FROM HistOrvendalcial");
  // What the test's own observers keep.
  screen.library.TakeCalls();
  screen.library.TakeMessages();
  screen.recordsets.TakeStatements();
  screen.host.ForgetErrors();
}

TEST(ReloadLeakTest, AThousandLoadsAndUnloadsWithWorkLeaveMemoryAndOpenFilesAsTheyWere) {
  FormDriver screen;
  for (int round = 0; round < kRoundsBefore; ++round) OneRound(screen);
  const std::size_t bytes = BytesInUse();
  const std::ptrdiff_t files = OpenFiles();
  for (int round = 0; round < kRounds && !HasFatalFailure(); ++round) OneRound(screen);
  EXPECT_LT(BytesInUse(), bytes + kBytesOver);
  EXPECT_EQ(OpenFiles(), files);
}

TEST(ReloadLeakTest, AStoreThatIsOpenedAndClosedAThousandTimesLeavesMemoryAndOpenFilesAsTheyWere) {
  const TemporaryFolder folder;
  const std::string path = folder / "chain.db";
  const auto one_round = [&path] {
    const auto store = SqliteConnection::Open(path, Dialect::kJet, Region::Spanish(), OpenMode::kCreate);
    SqliteRecordsetFactory recordsets;
    const RecordsetRef rows = recordsets.NewRecordset();
    rows->Open("SELECT name FROM sqlite_master", store, CursorType::kStatic, LockType::kReadOnly,
               kCommandUnspecified);
  };
  {
    SqliteConnection::Open(path, Dialect::kJet, Region::Spanish(), OpenMode::kCreate)
        ->Execute("CREATE TABLE T (A)");
  }
  for (int round = 0; round < kRoundsBefore; ++round) one_round();
  const std::size_t bytes = BytesInUse();
  const std::ptrdiff_t files = OpenFiles();
  for (int round = 0; round < kRounds; ++round) one_round();
  EXPECT_LT(BytesInUse(), bytes + kBytesOver);
  EXPECT_EQ(OpenFiles(), files);
}

}  // namespace
}  // namespace orvendal
