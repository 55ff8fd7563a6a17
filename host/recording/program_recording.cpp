#include "host/recording/program_recording.h"

#include <unistd.h>

#include <cmath>
#include <system_error>

#include "adapters/sqlite/sqlite_store.h"
#include "host/recording/work_replay.h"
#include "host/sample/chosen_store.h"
#include "host/script/script_values.h"
#include "host/script/values.h"
#include "host/store/host_store.h"
#include "host/text/printed_text.h"
#include "host/text/utf8_path.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::int32_t kQuestionYesNo = 36;
constexpr int kOfBranch = 2;

std::string NameOf(Language language) {
  return language == Language::kCatalan ? "ca" : language == Language::kEnglish ? "en" : "es";
}

std::string RegionName(const Region& region) {
  for (const char* name : {"es-ES", "ca-ES", "en-US"}) {
    if (Region::Find(name) == &region) return name;
  }
  return "es-ES";
}

}  // namespace

ProgramRecording::ProgramRecording(const RecordedProgram& program)
    : program_(program), recorder_(program.context.window_host, program.clock) {
  program_.library.Record(&recorder_);
  const auto reopened = std::make_shared<int>(0);
  if (program_.context.reopen_store) {
    program_.context.reopen_store = [reopen = program_.context.reopen_store, reopened] {
      ++*reopened;
      return reopen();
    };
  }
  program_.library.times_reopened = [reopened] { return *reopened; };
  recorder_.FindScreenBy([&state = program_.state] { return state.form; });
}

ProgramRecording::~ProgramRecording() {
  program_.library.Record(nullptr);
  if (!kept_) return;
  // Nothing is unsaved: the file has done its work. It goes while it is still locked.
  if (kept_->IsEmpty()) unlink(PathOf(kept_path_).c_str());
}

// What a replay needs before it begins.
std::string ProgramRecording::Head() const {
  const Options& options = program_.options;
  WindowHost& host = program_.context.window_host;
  const auto pixels = [](double twips) {
    return std::to_string(static_cast<int>(std::lround(twips / kTwipsPerPixel)));
  };
  std::string head = "# opciones: --idioma " + NameOf(options.language) + " --region " +
                     RegionName(*options.region) +
                     (options.dialect == Dialect::kJet ? " --dialecto jet\n" : " --dialecto sqlserver\n");
  head += "# " + Fill(program_.words.store_in_use, {PrintedText(program_.context.store_name)}) + "\n";
  head += "pantalla " + pixels(host.ScreenWidth()) + " " + pixels(host.ScreenHeight()) + "\n";
  head += "base " + std::to_string(program_.context.ancho_base) + " " +
          std::to_string(program_.context.alto_base) + "\n";
  return head;
}

void ProgramRecording::RecordInto(const std::string& path) {
  try {
    session_ = RecordFile::Make(path);
  } catch (const std::system_error& error) {
    throw RuntimeError(error_number::kInternal,
                       Fill(program_.words.record_not_made, {path, error.code().message()}));
  }
  session_->on_failure = [this, path](const std::string& reason) {
    program_.tell(Fill(program_.words.record_cut, {path, reason}));
  };
  session_->Put(Head());
  Recorder::Use use;
  use.shows = true;
  recorder_.WriteTo(*session_, use);
}

// Kept work.

void ProgramRecording::KeepWork() {
  const std::string folder = FolderOfKeptWork();
  if (folder.empty() || program_.context.store_name == kStoreInMemory) return;
  place_ = WorkPlace{folder, program_.context.store_name, Mid(program_.options.sucursal, 1, kOfBranch),
                     program_.clock.Inner().Today()};
  for (KeptWork& work : UnfinishedWork(*place_)) {
    const std::string aside = work.AsidePath(program_.clock.Inner().Now());
    if (AskWhetherToBringBack(work, aside)) {
      wanted_back_.emplace(std::move(work));
      return;
    }
    work.PutAside(aside);
  }
}

bool ProgramRecording::AskWhetherToBringBack(const KeptWork& work, const std::string& aside) {
  const Words& words = program_.words;
  const Region& region = *program_.options.region;
  std::string text =
      Fill(words.unsaved_work_found, {place_->branch, region.Format(work.Written(), "hh:nn")}) + "\r\n\r\n";
  bool has_changed = true;
  try {
    has_changed = HasChangedSince(EmbeddedStore(program_.context.connection), work.Script());
  } catch (const RuntimeError&) {
    // A store that cannot tell is not known to be the same.
  }
  if (has_changed) text += std::string(words.day_changed_meanwhile) + "\r\n\r\n";
  text += Fill(words.bring_work_back, {PrintedText(aside)});
  return program_.context.messages.Present(text, kQuestionYesNo, "") == message::kYes;
}

std::string ProgramRecording::HeadOfKeptWork(FrmOrvendalciales& screen) {
  const DatosComunes& session = program_.state.session;
  if (fresh_.empty()) fresh_ = ValuesOf(screen, session);
  const Date day = screen.Calendario.Value();
  std::string head = Head();
  head += "reloj " + Region::English().Format(program_.clock.Inner().Now(), "yyyy-mm-dd hh:nn:ss") + "\n";
  try {
    const std::string branch = session.ClaveSucursal();
    head += PrintLine(branch, day, PrintOfDay(EmbeddedStore(program_.context.connection), branch, day));
  } catch (const RuntimeError&) {
    // Without it the store counts as unchanged.
  }
  const Options& options = program_.options;
  head += "orvendal " + CodeWord(options.sucursal) + " " + CodeWord(options.puesto) + " " +
          CodeWord(options.turno) + "\n";
  return head + ScreenStateLines(screen, session, fresh_) + kWorkBeginsHere + "\n";
}

void ProgramRecording::Keep(std::unique_ptr<RecordFile> file, const std::string& path) {
  kept_ = std::move(file);
  kept_path_ = path;
  kept_->on_failure = [this](const std::string& reason) {
    program_.tell(Fill(program_.words.work_not_kept, {kept_path_, reason}));
  };
  Recorder::Use use;
  use.begin_anew = [this](FrmOrvendalciales& screen) { return HeadOfKeptWork(screen); };
  recorder_.WriteTo(*kept_, use);
}

void ProgramRecording::Call(const std::function<void()>& call) {
  try {
    if (place_ && !wanted_back_) {
      NewWork made = MakeKeptWork(*place_);
      Keep(std::move(made.file), made.path);
    }
  } catch (const std::system_error& error) {
    program_.tell(Fill(program_.words.work_not_kept, {place_->folder, error.code().message()}));
  }
  const Options& options = program_.options;
  recorder_.RecordCall("orvendal " + CodeWord(options.sucursal) + " " + CodeWord(options.puesto) + " " +
                           CodeWord(options.turno),
                       call);
  if (wanted_back_) BringBack();
}

void ProgramRecording::BringBack() {
  KeptWork work = std::move(*wanted_back_);
  wanted_back_.reset();
  FrmOrvendalciales* const screen = program_.state.form.get();
  if (screen == nullptr || !screen->IsLoaded()) return;  // it stays for the next time
  fresh_ = ValuesOf(*screen, program_.state.session);
  const std::string script = work.Script();
  program_.be_quiet(true);
  const WorkReplay::Result result = WorkReplay{
      program_.context, program_.state, program_.library, program_.stand_in, [this](const std::string& line) {
        recorder_.Note(line);
      }}.Run(script);
  program_.be_quiet(false);
  const std::string path = work.Path();
  std::string whole_script;
  try {
    if (!result.whole) {
      whole_script = work.AsidePath(program_.clock.Inner().Now());
      RecordFile::Make(whole_script)->Put(script);
    }
    Keep(work.GoOn(result.done), path);
  } catch (const std::system_error& error) {
    program_.tell(Fill(program_.words.work_not_kept, {path, error.code().message()}));
  }
  if (!result.whole) {
    program_.tell(result.why);
    program_.context.messages.Present(Fill(program_.words.work_not_all_back, {whole_script}),
                                      message::kInformation, "");
  }
}

}  // namespace orvendal
