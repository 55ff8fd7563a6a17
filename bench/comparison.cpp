#include "bench/comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace orvendal::bench {
namespace {

constexpr double kMicrosecondsPerMillisecond = 1000;

// Collects the medians; tells of progress and errors on standard error, so that the table stands alone.
class Medians final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) {
        failed_ = true;
        std::fprintf(stderr, "%s: %s\n", run.run_name.function_name.c_str(), run.error_message.c_str());
      } else if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
        const double microseconds = run.GetAdjustedCPUTime();
        times_[run.run_name.function_name] = microseconds;
        std::fprintf(stderr, "%-60s %12.1f us\n", run.run_name.function_name.c_str(), microseconds);
      }
    }
  }

  std::optional<double> Microseconds(const std::string& name) const {
    const auto found = times_.find(name);
    return found == times_.end() ? std::nullopt : std::optional<double>(found->second);
  }
  bool Failed() const { return failed_; }

 private:
  std::map<std::string, double> times_;
  bool failed_ = false;
};

std::string Time(double microseconds) {
  char text[40];
  if (microseconds >= kMicrosecondsPerMillisecond) {
    std::snprintf(text, sizeof text, "%.2f ms", microseconds / kMicrosecondsPerMillisecond);
  } else {
    std::snprintf(text, sizeof text, "%.2f us", microseconds);
  }
  return text;
}

void PrintRow(const std::string& what, const std::string& ours, const std::string& floor,
              const std::string& figure, const std::string& reach, bool reached) {
  std::printf("| %-58s | %11s | %11s | %8s | %8s |%s\n", what.c_str(), ours.c_str(), floor.c_str(),
              figure.c_str(), reach.c_str(), reached ? "" : " missed");
}

std::string Number(const char* format, double number) {
  char text[40];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

bool Has(const std::vector<std::string>& arguments, std::string_view option) {
  return std::any_of(arguments.begin(), arguments.end(),
                     [option](const std::string& each) { return each.starts_with(option); });
}

}  // namespace

void Comparison::Measure(const std::string& name, std::function<Work()> begin) {
  measures_.push_back(std::make_unique<Measured>(Measured{name, std::move(begin)}));
  benchmark::RegisterBenchmark(name.c_str(), [begin_work = measures_.back()->begin,
                                              work = std::make_shared<std::optional<Work>>()](
                                                 benchmark::State& state) {
    if (!*work) *work = begin_work();
    for (auto _ : state) {
      if ((*work)->make_ready) {
        state.PauseTiming();
        (*work)->make_ready();
        state.ResumeTiming();
      }
      (*work)->run();
    }
  })->Unit(benchmark::kMicrosecond);
}

void Comparison::RatioRow(const std::string& what, const std::string& ours, const std::string& floor,
                          double reach) {
  rows_.push_back({what, ours, floor, reach, Kind::kRatio});
}
void Comparison::BeyondRow(const std::string& what, const std::string& ours, const std::string& floor,
                           double reach) {
  rows_.push_back({what, ours, floor, reach, Kind::kBeyond});
}
void Comparison::TimeRow(const std::string& what, const std::string& ours, double reach) {
  rows_.push_back({what, ours, "", reach, Kind::kTime});
}
void Comparison::FigureRow(const std::string& what, const std::string& unit, std::function<Figures()> figures,
                           double reach) {
  figures_.push_back({what, unit, std::move(figures), reach, false});
}
void Comparison::FigureRatioRow(const std::string& what, const std::string& unit,
                                std::function<Figures()> figures, double reach) {
  figures_.push_back({what, unit, std::move(figures), reach, true});
}

void Comparison::Print(const Row& row, double ours, double floor) const {
  double figure = 0;
  const char* format = "%.2f";
  const char* reach_format = "%.2f";
  switch (row.kind) {
    case Kind::kRatio:
      figure = ours / floor;
      break;
    case Kind::kBeyond:
      figure = (ours - floor) / kMicrosecondsPerMillisecond;
      format = "%.3f ms";
      reach_format = "%.2f ms";
      break;
    case Kind::kTime:
      figure = ours / kMicrosecondsPerMillisecond;
      format = "%.3f ms";
      reach_format = "%.2f ms";
      break;
  }
  PrintRow(row.what, Time(ours), row.floor.empty() ? "" : Time(floor), Number(format, figure),
           Number(reach_format, row.reach), figure <= row.reach);
}

int Comparison::Run(int argument_count, char** arguments) {
  std::vector<std::string> options(arguments, arguments + argument_count);
  if (!Has(options, "--benchmark_repetitions")) options.emplace_back("--benchmark_repetitions=7");
  if (!Has(options, "--benchmark_min_time")) options.emplace_back("--benchmark_min_time=0.1");
  if (!Has(options, "--benchmark_enable_random_interleaving"))
    options.emplace_back("--benchmark_enable_random_interleaving=true");
  std::vector<char*> passed;
  for (std::string& option : options) passed.push_back(option.data());
  int count = static_cast<int>(passed.size());
  benchmark::Initialize(&count, passed.data());
  if (benchmark::ReportUnrecognizedArguments(count, passed.data())) return 2;

  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);

  PrintRow("what", "ours", "floor", "ratio", "reach", true);
  for (const Row& row : rows_) {
    const std::optional<double> ours = medians.Microseconds(row.ours);
    const std::optional<double> floor = row.floor.empty() ? 0 : medians.Microseconds(row.floor);
    if (ours && floor) Print(row, *ours, *floor);
  }
  if (!Has(options, "--benchmark_filter") || Has(options, "--benchmark_filter=figures")) {
    for (const RowOfFigures& row : figures_) {
      const Figures figures = row.figures();
      PrintRow(row.what, Number("%.0f", figures.ours) + " " + row.unit,
               figures.floor > 0 ? Number("%.0f", figures.floor) + " " + row.unit : "",
               figures.floor > 0 ? Number("%.2f", figures.ours / figures.floor) : "",
               row.of_ratio ? Number("%.2f", row.reach) : Number("%.0f", row.reach) + " " + row.unit,
               (row.of_ratio ? figures.ours / figures.floor : figures.ours) <= row.reach);
    }
  }
  benchmark::ClearRegisteredBenchmarks();  // screens are among them, which do not outlive the application
  benchmark::Shutdown();
  return medians.Failed() ? 1 : 0;
}

}  // namespace orvendal::bench
