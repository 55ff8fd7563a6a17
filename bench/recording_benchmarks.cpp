// What it costs to write down what the user does.

#include <unistd.h>

#include <filesystem>

#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "host/recording/record_file.h"
#include "host/recording/recorder.h"

namespace orvendal::bench {
namespace {

constexpr int kEvents = 100;
constexpr double kMostForEach = 0.020;  // milliseconds

// A screen with an open editor, and somebody who looks on, if anybody does.
struct Watched {
  explicit Watched(bool recorded) : screen(BenchStore::WithLongHistory(), Dialect::kSqlServer, kScan100) {
    screen.OpenEditor();
    if (!recorded) return;
    const std::string path =
        (std::filesystem::temp_directory_path() / ("orvendal_bench_" + std::to_string(getpid()))).string();
    file = RecordFile::Make(path);
    unlink(path.c_str());
    recorder = std::make_unique<Recorder>(screen.Form().Host(), recorded_clock);
    recorder->WriteTo(*file, {});
  }

  BenchScreen screen;
  FixedClock clock{Date(2026, 11, 16, 10, 30, 0)};
  RecordedClock recorded_clock{clock};
  std::unique_ptr<RecordFile> file;
  std::unique_ptr<Recorder> recorder;
};

Work TypeKeys(bool recorded) {
  auto watched = std::make_shared<Watched>(recorded);
  return {[watched] {
            for (int key = 0; key < kEvents; ++key) watched->screen.Type("a");
          },
          [watched] { watched->screen.Form().TxtMSF.Text(""); }};
}

Work ClickCells(bool recorded) {
  auto watched = std::make_shared<Watched>(recorded);
  return {[watched] {
            FrmOrvendalciales& form = watched->screen.Form();
            for (int click = 0; click < kEvents; ++click) {
              Robot(form).ClickCell(form.MSFProductos, form.MSFProductos.TopRow() + click % 2, 1);
            }
          },
          [watched] { watched->screen.Form().TxtMSF.Visible(false); }};
}

}  // namespace

void AddRecording(Comparison& comparison) {
  for (const bool recorded : {true, false}) {
    const std::string how = recorded ? "recorded" : "unseen";
    comparison.Measure("keys/" + how, [recorded] { return TypeKeys(recorded); });
    comparison.Measure("clicks/" + how, [recorded] { return ClickCells(recorded); });
  }
  comparison.BeyondRow("100 keys written down", "keys/recorded", "keys/unseen", kEvents * kMostForEach);
  // A press and a release each.
  comparison.BeyondRow("100 clicks written down", "clicks/recorded", "clicks/unseen",
                       2 * kEvents * kMostForEach);
}

}  // namespace orvendal::bench
