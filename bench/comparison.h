#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orvendal::bench {

/// What is measured: `run`, again and again. Before each time `make_ready` runs, unmeasured, if there is one.
struct Work {
  std::function<void()> run;
  std::function<void()> make_ready{};
};

/// All that is measured and the table that comes of it. Every figure is the median of the processor times of
/// several rounds, in which the measures take turns in no order, so that what else the machine does meets all
/// of them alike.
class Comparison {
 public:
  /// `begin` makes the work ready; it runs once, when the measure first has its turn.
  void Measure(const std::string& name, std::function<Work()> begin);
  /// A row of the table: how often the time of the floor goes into ours. `reach` is the most that it may be.
  void RatioRow(const std::string& what, const std::string& ours, const std::string& floor, double reach);
  /// A row: how many milliseconds ours takes beyond the floor.
  void BeyondRow(const std::string& what, const std::string& ours, const std::string& floor, double reach);
  /// A row: how many milliseconds ours takes; it stands beside nothing.
  void TimeRow(const std::string& what, const std::string& ours, double reach);
  /// A row of figures that are no times, such as bytes; `figures` gives ours and the floor's (0 for none).
  struct Figures {
    double ours;
    double floor;
  };
  void FigureRow(const std::string& what, const std::string& unit, std::function<Figures()> figures,
                 double reach);
  /// The same where `reach` is the most that the ratio of the two may be.
  void FigureRatioRow(const std::string& what, const std::string& unit, std::function<Figures()> figures,
                      double reach);

  /// Runs what the options of Google Benchmark in the arguments choose, and prints the table of what was run.
  /// The filter `figures` chooses the rows of figures alone; any other leaves them out.
  /// The program's exit code.
  int Run(int argument_count, char** arguments);

 private:
  enum class Kind { kRatio, kBeyond, kTime };
  struct Row {
    std::string what;
    std::string ours;
    std::string floor;
    double reach;
    Kind kind;
  };
  struct RowOfFigures {
    std::string what;
    std::string unit;
    std::function<Figures()> figures;
    double reach;
    bool of_ratio;
  };
  struct Measured {
    std::string name;
    std::function<Work()> begin;
  };
  void Print(const Row& row, double ours, double floor) const;

  std::vector<std::unique_ptr<Measured>> measures_;
  std::vector<Row> rows_;
  std::vector<RowOfFigures> figures_;
};

// What each file of benchmarks puts into the table.
void AddLoads(Comparison& comparison);
void AddSaves(Comparison& comparison);
void AddEntry(Comparison& comparison);
void AddPainting(Comparison& comparison);
void AddMemory(Comparison& comparison);
void AddStart(Comparison& comparison);
void AddRecording(Comparison& comparison);

}  // namespace orvendal::bench
