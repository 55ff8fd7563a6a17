#include "host/recording/recorder.h"

#include <algorithm>

#include "adapters/headless/robot.h"
#include "host/script/raw_mouse.h"
#include "host/script/script_values.h"
#include "host/script/values.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

// A line is written anew with each of its characters; a key that is held down types without an end.
constexpr std::size_t kMostInALine = 100;

std::string ClockLine(Date moment, int readings) {
  std::string line = "reloj " + Region::English().Format(moment, "yyyy-mm-dd hh:nn:ss");
  if (readings > 0) line += " tras " + std::to_string(readings);
  return line + "\n";
}

}  // namespace

Recorder::Recorder(WindowHost& host, RecordedClock& clock) : host_(host), clock_(clock) {
  host_.Observe(this);
}

Recorder::~Recorder() {
  host_.Observe(nullptr);
}

void Recorder::WriteTo(ScriptSink& sink, Use use) {
  FlushKey();
  last_ = click_before_ = {};
  sinks_.push_back({&sink, std::move(use)});
}

// Events.

void Recorder::BeginOutermost() {
  in_event_ = true;
  before_.clear();
  was_open_ = IsOpen();
  clock_.Listen();
}

bool Recorder::IsOpen() const {
  const std::shared_ptr<FrmOrvendalciales> screen = screen_.lock();
  return screen && screen->IsLoaded();
}

void Recorder::Before(Form& form, const InputEvent& event) {
  const auto screen = std::dynamic_pointer_cast<FrmOrvendalciales>(form.shared_from_this());
  if (screen) screen_ = screen;
  if (going_on_.empty()) BeginOutermost();
  going_on_.push_back(screen ? StepOf(form, event) : Step());
}

void Recorder::After(Form& form, const InputEvent&) {
  // A press that a dialog or an error has ended is a click already: what comes of its release is nothing.
  if (going_on_.back().kind == Step::Kind::kPress) going_on_.back().is_over = form.MouseHolder() == nullptr;
  // What came inside another event is written after it: a handler lets it in as its last act.
  finished_.insert(going_on_.size() > 1 ? finished_.end() : finished_.begin(), std::move(going_on_.back()));
  going_on_.pop_back();
  if (going_on_.empty()) EndOutermost(std::exchange(finished_, {}));
}

void Recorder::EndOutermost(const std::vector<Step>& steps) {
  std::string clock_lines;
  int reading = 0;
  read_clock_ = false;
  for (const RecordedClock::Change& change : clock_.Heard()) {
    read_clock_ = true;
    if (change.reading > 0 || clock_written_ != change.said) {
      clock_lines += ClockLine(change.said, change.reading - reading);
    }
    reading = change.reading;
    clock_written_ = change.said;
  }
  before_.insert(0, clock_lines);
  // What closed the screen has to be shown before it does so again.
  const bool closed = was_open_ && !IsOpen();
  if (closed && std::any_of(sinks_.begin(), sinks_.end(), [](const Sink& each) { return each.use.shows; })) {
    before_ += "mostrar lineas\n";
  }
  // A save that failed on the way out has not kept the lines that its user wanted kept.
  const std::shared_ptr<FrmOrvendalciales> screen = screen_.lock();
  save_failed_ = closed && screen && screen->variables.loads == loads_seen_ &&
                 before_.find("respuesta si\n") != std::string::npos;
  for (const Step& step : steps) Commit(step);
  in_event_ = false;
  LookAfter();
}

void Recorder::RecordCall(const std::string& line, const std::function<void()>& call) {
  FlushKey();
  BeginOutermost();
  Step step;
  step.kind = Step::Kind::kLine;
  step.line = line;
  const auto finish = [&] { EndOutermost({step}); };
  try {
    const UnobservedInput of_the_call(host_);
    call();
  } catch (...) {
    finish();
    throw;
  }
  finish();
}

void Recorder::Note(const std::string& line) {
  FlushKey();
  Put(line + "\n");
  last_ = {};
}

void Recorder::Answer(const std::string& line) {
  before_ += line + "\n";
}

void Recorder::Pasted(const std::string& text) {
  // A filter asks, and then the box.
  const std::string line = "portapapeles " + TextWord(text);
  if (before_.find(line + "\n") == std::string::npos) Answer(line);
}

void Recorder::ChosenFromMenu(std::optional<EditCommand> chosen) {
  if (!chosen) {
    Answer("menu nada");
    return;
  }
  switch (*chosen) {
    case EditCommand::kCut:
      return Answer("menu cortar");
    case EditCommand::kCopy:
      return Answer("menu copiar");
    case EditCommand::kPaste:
      return Answer("menu pegar");
    case EditCommand::kSelectAll:
      return Answer("menu todo");
  }
}

// Writing.

std::string Recorder::TakeBefore() {
  return std::exchange(before_, {});
}

void Recorder::Put(const std::string& entry, std::size_t replaced) {
  ++events_;
  for (const Sink& each : sinks_) {
    if (!(save_failed_ && each.use.begin_anew)) each.sink->Put(entry, replaced);
  }
}

void Recorder::WriteLine(const std::string& line) {
  Put(TakeBefore() + line + "\n");
  last_ = {};
}

void Recorder::Commit(const Step& step) {
  if (step.kind != Step::Kind::kCharacter) FlushKey();
  switch (step.kind) {
    case Step::Kind::kNothing:
      if (!before_.empty()) Put(TakeBefore());
      return;
    case Step::Kind::kLine:
      return WriteLine(step.line);
    case Step::Kind::kKey:
      held_key_ = step;
      before_held_key_ = TakeBefore();
      return;
    case Step::Kind::kCharacter:
      return CommitCharacter(step);
    case Step::Kind::kPress:
      return CommitPress(step);
    case Step::Kind::kRelease:
      return CommitRelease(step);
  }
}

void Recorder::CommitPress(const Step& step) {
  const bool follows_click = step.is_second && last_.kind == Entry::Kind::kClick && step.click &&
                             !step.click->twice.empty() && last_.click->line == step.click->line;
  click_before_ = follows_click ? last_ : Entry();
  Entry entry;
  entry.kind = Entry::Kind::kPress;
  entry.before = TakeBefore();
  entry.read_clock = read_clock_;
  entry.click = step.click;
  entry.is_second = step.is_second;
  entry.button = step.button;
  entry.place = step.place;
  if (step.is_over && step.click && !step.is_second) {
    entry.kind = Entry::Kind::kClosed;
    Put(entry.before + step.click->line + "\n");
  } else {
    Put(entry.before + step.line + "\n");
  }
  last_ = std::move(entry);
}

void Recorder::CommitRelease(const Step& step) {
  const bool of_press = last_.kind == Entry::Kind::kPress && last_.button == step.button && last_.click;
  const bool reads_twice = last_.read_clock && read_clock_;
  const bool is_second = of_press && last_.is_second;
  const bool joins = of_press && (step.is_over || step.ends_click) && !reads_twice &&
                     (!is_second || (click_before_.kind == Entry::Kind::kClick && !last_.read_clock));
  if (!joins) {
    if (step.is_over && before_.empty()) return;  // nothing comes of it
    return WriteLine(step.line);
  }
  Entry entry = last_;
  entry.kind = is_second ? Entry::Kind::kClosed : Entry::Kind::kClick;
  entry.before += TakeBefore();
  entry.read_clock = entry.read_clock || read_clock_;
  if (is_second) {
    Put(click_before_.before + entry.before + entry.click->twice + "\n", 2);
  } else {
    Put(entry.before + entry.click->line + "\n", 1);
  }
  last_ = std::move(entry);
}

void Recorder::FlushKey() {
  if (!held_key_) return;
  const Step key = *std::exchange(held_key_, std::nullopt);
  const std::string of_event = std::exchange(before_, std::exchange(before_held_key_, {}));
  WriteLine(key.line + " car0");
  before_ = of_event;
}

void Recorder::CommitCharacter(const Step& step) {
  const std::optional<Step> key = std::exchange(held_key_, std::nullopt);
  before_.insert(0, std::exchange(before_held_key_, {}));
  const char32_t character = step.character;
  constexpr char32_t kDeleteWord = 127;
  const bool is_plain = !key || key->line.starts_with("tecla ");
  const bool is_enter =
      character == U'\r' && (!key || (key->key.code == key::kReturn && key->key.shift == 0));
  if (is_plain && (is_enter || (character >= U' ' && character != kDeleteWord))) {
    CommitTyped(is_enter ? "\n" : FromCharacter(character), key ? key->milliseconds : step.milliseconds);
    return;
  }
  if (!key) {
    WriteLine("baja Cod0 car" + std::to_string(static_cast<std::uint32_t>(character)));
  } else if (is_plain && Robot::CharacterOf(key->key.code, key->key.shift) == character) {
    WriteLine(key->line);
  } else {
    WriteLine(key->line + " car" + std::to_string(static_cast<std::uint32_t>(character)));
  }
}

void Recorder::CommitTyped(const std::string& character, std::optional<int> milliseconds) {
  const bool of_reader = milliseconds.has_value();
  const bool may_join = before_.empty() && last_.kind == Entry::Kind::kText && !last_.text.ends_with('\n') &&
                        last_.characters < kMostInALine;
  const bool joins = may_join && last_.of_reader == of_reader;
  // A single key that was followed fast is the first one of a reader.
  const bool turns_fast = may_join && of_reader && last_.characters == 1;
  if (!joins && !turns_fast) {
    last_ = {};
    last_.kind = Entry::Kind::kText;
    last_.before = TakeBefore();
    last_.milliseconds = milliseconds;
  }
  last_.of_reader = of_reader;
  last_.text += character;
  ++last_.characters;
  std::string line = last_.of_reader ? "teclas " : "escribe ";
  line += TextWord(last_.text);
  if (last_.milliseconds) line += " " + std::to_string(*last_.milliseconds);
  Put(last_.before + line + "\n", joins || turns_fast ? 1 : 0);
}

// What is shown, and where scripts begin anew.

void Recorder::Show(const std::string& line) {
  for (const Sink& each : sinks_) {
    if (each.use.shows) each.sink->Put(line + "\n");
  }
  last_ = {};
}

void Recorder::LookAfter() {
  if (held_key_) return;  // its event is not over
  if (std::exchange(message_shown_, false)) Show("mostrar mensajes");
  if (find_ && !IsOpen()) screen_ = find_();
  const std::shared_ptr<FrmOrvendalciales> screen = screen_.lock();
  if (!IsOpen()) {
    for (const Sink& each : sinks_) {
      if (each.use.begin_anew && loads_seen_ > 0 && !save_failed_) each.sink->BeginAnew("");
    }
    save_failed_ = false;
    loads_seen_ = 0;
    return;
  }
  if (screen->variables.loads == loads_seen_) return;
  loads_seen_ = screen->variables.loads;
  last_ = click_before_ = {};
  for (const Sink& each : sinks_) {
    if (each.use.begin_anew) each.sink->BeginAnew(each.use.begin_anew(*screen));
  }
  Show("mostrar lineas");
}

}  // namespace orvendal
