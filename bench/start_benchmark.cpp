// From the start of the program to the first painted screen.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "adapters/sqlite/sqlite_store.h"
#include "bench/bench_store.h"
#include "bench/comparison.h"

namespace orvendal::bench {
namespace {

// Nanoseconds of processor time that a process has taken so far, all its threads.
std::uint64_t TimeOf(pid_t process) {
  std::uint64_t sum = 0;
  std::error_code gone;
  for (const auto& task :
       std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task", gone)) {
    std::ifstream file(task.path() / "schedstat");
    std::uint64_t time = 0;
    if (file >> time) sum += time;
  }
  return sum;
}

// A program that shows a window and then waits for its user: milliseconds of processor time until it has
// nothing more to do.
double MillisecondsToWaiting(std::vector<std::string> command) {
  constexpr auto kStep = std::chrono::milliseconds(50);
  constexpr int kQuietSteps = 6;
  constexpr int kMostSteps = 600;
  std::vector<char*> arguments;
  for (std::string& word : command) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process can be made");
  if (child == 0) {
    if (std::freopen("/dev/null", "w", stderr) == nullptr) _exit(1);
    execv(arguments[0], arguments.data());
    _exit(1);
  }
  std::uint64_t last = 0;
  int quiet = 0;
  for (int step = 0; step < kMostSteps && quiet < kQuietSteps; ++step) {
    std::this_thread::sleep_for(kStep);
    const std::uint64_t now = TimeOf(child);
    quiet = now != 0 && now == last ? quiet + 1 : 0;
    last = now;
  }
  int status = 0;
  const bool ended = waitpid(child, &status, WNOHANG) != 0;
  if (ended || quiet < kQuietSteps) throw std::runtime_error(command[0] + " shows nothing");
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return static_cast<double>(last) / 1e6;
}

double MedianOf(const std::vector<std::string>& command) {
  constexpr int kRuns = 9;
  std::vector<double> times;
  for (int i = 0; i < kRuns; ++i) times.push_back(MillisecondsToWaiting(command));
  std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
  return times[kRuns / 2];
}

// The program begins with the day of its own clock.
void CountToday(const std::string& path) {
  SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting)
      ->Execute(
          "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, "
          "IdEmpleado, Actualizado, ModificadoPor) SELECT IdSucursal, date('now', 'localtime') || "
          "' 00:00:00', IdProducto, StockAnterior, StockActual, IdEmpleado, Actualizado, ModificadoPor FROM "
          "HistOrvendalcial WHERE IdSucursal = '" +
          std::string(kScan100.branch) + "' AND Fecha = '" + kDay + " 00:00:00'");
}

}  // namespace

void AddStart(Comparison& comparison) {
  comparison.FigureRatioRow(
      "start to the first screen: empty program, the day's read", "ms",
      [] {
        const std::string store = BenchStore::WithShortHistory().Path();
        CountToday(store);
        const std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
        return Comparison::Figures{MedianOf({folder + "/../host/orvendal", "--db", store, "--sucursal",
                                             kScan100.branch, "--pantalla", "1024x768"}),
                                   MedianOf({folder + "/orvendal_empty_program", store, kScan100.branch})};
      },
      1.5);
}

}  // namespace orvendal::bench
