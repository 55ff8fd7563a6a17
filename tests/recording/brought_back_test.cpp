// A day whose program is killed after every event that there is: what its file holds brings back the same
// lines.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "host/recording/kept_work.h"
#include "host/recording/work_replay.h"
#include "host/sample/made_store.h"
#include "host/script/parser.h"
#include "tests/recording/recorded_run.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

using namespace testing_support;

// Every kind of work, a save, a cancelled day, another day in supervisor mode, a save that fails.
constexpr const char* kDay[] = {
    "reloj 2026-11-16 09:00:00",
    "orvendal 02 caja1 turno",
    "empleado E002 \"Verónica\"",
    "clic MSFProductos 1 0",
    "dobleclic MSFProductos 1 0",
    "teclas \"LAC001\\n\"",
    "escribe \"12\\n\"",
    "teclas \"8436013004032\\n\"",
    "teclas \"28\"",
    "tecla Retroceso",
    "clic MSFProductos 1 3",
    "clic MSFProductos 3 0",
    "teclas \"LAC005\\n\"",
    "escribe \"35\"",
    "tecla Arriba",
    "clic LblBorrar",
    "tecla Abajo",
    "reloj 2026-11-16 09:30:00",
    "clic LblGuardar",
    "empleado E014 \"Lorena\"",
    "clic CmdEmpl",
    "dobleclic MSFProductos 2 0",
    "buscador LAC014",
    "clic LblBuscar",
    "teclas \"5\\n\"",
    "rueda MSFProductos 900 900 3",
    "raton pulsa MSFProductos 600 800",
    "raton mueve MSFProductos 600 2800",
    "raton suelta MSFProductos 600 2800",
    "clic LblCancelar",
    "empleado E014 \"Lorena\"",
    "clic LblNuevo",
    "clic MkFecha 3",
    "dia 2026-11-13",
    "tecla Esc",
    "dobleclic MSFProductos 1 3",
    "teclas \"9\\n\"",
    "portapapeles \"77\"",
    "tecla Ctrl+V",
    "tecla Esc",
    "dobleclic MSFProductos 1 3",
    "escribe \"8\\n\"",
    "fallo open 3 -2147467259 \"disk I/O error\"",
    "clic LblGuardar",
    "dobleclic MSFProductos 2 3",
    "escribe \"4\"",
};

class BroughtBack : public testing::Test {
 protected:
  BroughtBack() {
    OpenOrMakeStore({store_, Dialect::kSqlServer, Region::Spanish(), WordsOf(Language::kSpanish)},
                    Date(2026, 11, 16));
  }

  std::string FreshCopy(const std::string& name) {
    const std::string copy = folder_ / name;
    for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(copy + ending);
    std::filesystem::copy_file(store_, copy);
    return copy;
  }

  static std::string Lines(const FrmOrvendalciales& screen) {
    std::string lines;
    const MSFlexGrid& grid = screen.MSFProductos;
    for (int row = 1; row < grid.Rows() && !grid.TextMatrix(row, 0).empty(); ++row) {
      for (int column = 0; column < grid.Cols(); ++column) lines += grid.TextMatrix(row, column) + "|";
      lines += "\n";
    }
    return lines + (screen.TxtMSF.Visible() ? "editor " + screen.TxtMSF.Text() : "") + "\n";
  }

  TemporaryFolder folder_;
  std::string store_ = folder_ / "store.db";
};

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

// The whole day up to the line `last`, in a process of its own that ends by SIGKILL; leaves its script, what
// its lines were and its store in files.
void WorkAndBeKilled(const std::string& store, std::size_t last, const std::string& script,
                     const std::function<std::string(const FrmOrvendalciales&)>& lines_of,
                     const std::string& lines) {
  const pid_t worker = fork();
  if (worker != 0) {
    int status = 0;
    waitpid(worker, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    return;
  }
  const std::unique_ptr<RecordFile> file = RecordFile::Make(script);
  RecordedRun run({}, store, file.get());
  for (std::size_t i = 0; i <= last; ++i) {
    const std::string line = kDay[i];
    if (line.starts_with("fallo")) {
      run.Commands().Execute(ParseScriptLine(line));  // that is no work of the user's
    } else {
      run.Do(line);
    }
  }
  if (run.Screen()) std::ofstream(lines) << lines_of(*run.Screen()) << std::flush;
  kill(getpid(), SIGKILL);
}

TEST_F(BroughtBack, AfterAKillAtAnyEventTheLinesAreTheSame) {
  for (std::size_t last = 1; last < std::size(kDay); ++last) {
    const std::string store = FreshCopy("worked.db");
    const std::string script = folder_ / ("script" + std::to_string(last));
    const std::string lines = folder_ / ("lines" + std::to_string(last));
    WorkAndBeKilled(store, last, script, Lines, lines);
    const std::string rows = StoredIn(store);

    Options options;
    RecordedRun again(options, store);
    again.Do("reloj 2026-11-16 10:00:00");
    again.Do("orvendal 02 caja1 turno");
    ASSERT_TRUE(again.Screen());
    const std::string record = ContentOf(script);
    const WorkReplay::Result result = again.BringBack(record);
    EXPECT_EQ(result.why, "") << kDay[last] << "\n" << record;
    ASSERT_TRUE(again.Screen()) << kDay[last] << "\n" << record;
    EXPECT_EQ(Lines(*again.Screen()), ContentOf(lines)) << kDay[last] << "\n" << record;
    EXPECT_EQ(StoredIn(store), rows) << "nothing is saved by itself: " << kDay[last];
  }
}

}  // namespace
}  // namespace orvendal
