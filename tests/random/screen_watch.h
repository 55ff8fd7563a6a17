#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/random/user_world.h"
#include "tests/support/recording_canvas.h"

namespace orvendal {

/// Something holds no longer that always has to.
class BrokenInvariant : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Looks whether the screen is what it has to be between any two events, whatever was done to it.
class ScreenWatch {
 public:
  /// `world` outlives the object.
  explicit ScreenWatch(UserWorld& world) : world_(world) {}

  /// After each event. `moves_only` is an event that must leave everything as it was: the mouse came by.
  /// Raises BrokenInvariant.
  void Look(bool moves_only);
  /// The same for a dialog that is up.
  void LookAtDialog(Form& dialog);

  int loads_compared = 0;
  int pictures_compared = 0;
  int most_lines = 0;

 private:
  void LookAtLines(const FrmOrvendalciales& screen);
  void LookAtCursor(const FrmOrvendalciales& screen);
  void LookAtEditor(const FrmOrvendalciales& screen);
  void LookAtFocus(const Form& form);
  void LookAtFlags(const FrmOrvendalciales& screen);
  void LookAtLoad(const FrmOrvendalciales& screen);
  void LookAtPaint(FrmOrvendalciales& screen, bool moves_only);

  UserWorld& world_;
  int loads_seen_ = 0;
  std::size_t errors_seen_ = 0;
  const void* painted_screen_ = nullptr;  // what the picture below is of
  std::vector<RecordingCanvas::Operation> painted_;
};

}  // namespace orvendal
