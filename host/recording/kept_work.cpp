#include "host/recording/kept_work.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <set>
#include <sstream>
#include <system_error>

#include "host/script/parser.h"
#include "host/script/script_values.h"
#include "host/script/values.h"
#include "host/store/default_store.h"
#include "host/text/utf8_path.h"
#include "platform/base/region.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

constexpr int kMostPrograms = 20;  // on one store, branch and day at a time
constexpr mode_t kOfOwner = S_IRUSR | S_IWUSR;
constexpr const char* kPrint = "# huella ";

std::uint64_t HashOf(std::string_view bytes, std::uint64_t hash = 14695981039346656037ULL) {
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 1099511628211ULL;
  }
  return hash;
}

std::string Hexadecimal(std::uint64_t number) {
  std::ostringstream text;
  text << std::hex << number;
  return text.str();
}

// Letters and digits of a code stand for themselves, anything else by its number.
std::string NameOf(std::string_view code) {
  std::string name;
  for (const char c : code) {
    const bool plain = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    name += plain ? std::string(1, c) : "%" + Hexadecimal(static_cast<unsigned char>(c));
  }
  return name;
}

fs::path PathOfNumber(const WorkPlace& place, int number) {
  std::string name = NameOf(place.branch) + "-" + ValueText(place.day.DayOnly()) + "-" +
                     Hexadecimal(HashOf(place.store) & 0xFFFFFFFFU);
  if (number > 1) name += "-" + std::to_string(number);
  return PathOf(place.folder) / (name + ".guion");
}

// Locked by this program, and still the file of that name; -1 for one that another program writes.
int Locked(int file, const fs::path& path) {
  struct stat opened {};
  struct stat named {};
  const bool locked = flock(file, LOCK_EX | LOCK_NB) == 0 && fstat(file, &opened) == 0 &&
                      stat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino;
  if (locked) return file;
  close(file);
  return -1;
}

std::string ContentOf(int file) {
  std::string content;
  char part[65536];
  off_t place = 0;
  for (;;) {
    const ssize_t read = pread(file, part, sizeof part, place);
    if (read < 0 && errno == EINTR) continue;
    if (read <= 0) return content;
    content.append(part, static_cast<std::size_t>(read));
    place += read;
  }
}

void MakeFolder(const std::string& folder) {
  std::error_code ignored;
  const fs::path path = PathOf(folder);
  fs::create_directories(path.parent_path(), ignored);
  if (mkdir(path.c_str(), S_IRWXU) == 0) return;
  fs::permissions(path, fs::perms::owner_all, ignored);
}

}  // namespace

std::string FolderOfKeptWork() {
  const fs::path store = PathOf(DefaultStore());
  return store.is_absolute() ? TextOf(store.parent_path() / "sin_guardar") : std::string();
}

// One script.

KeptWork::KeptWork(std::string path, int file) : path_(std::move(path)), file_(file) {}

KeptWork::KeptWork(KeptWork&& other) noexcept
    : path_(std::move(other.path_)), file_(std::exchange(other.file_, -1)) {}

KeptWork& KeptWork::operator=(KeptWork&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(file_, other.file_);
  return *this;
}

KeptWork::~KeptWork() {
  if (file_ >= 0) close(file_);
}

std::string KeptWork::Script() const {
  std::string script = ContentOf(file_);
  const std::size_t end = script.rfind('\n');
  script.resize(end == std::string::npos ? 0 : end + 1);
  return script;
}

Date KeptWork::Written() const {
  struct stat state {};
  if (fstat(file_, &state) != 0) return {};
  std::tm local{};
  localtime_r(&state.st_mtime, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
}

std::unique_ptr<RecordFile> KeptWork::GoOn(std::size_t bytes) {
  if (ftruncate(file_, static_cast<off_t>(bytes)) != 0) {
    throw std::system_error(errno, std::generic_category());
  }
  return RecordFile::GoOn(std::exchange(file_, -1));
}

std::string KeptWork::AsidePath(Date now) const {
  const fs::path path = PathOf(path_);
  const std::string time = Region::English().Format(now, "hhnnss");
  return TextOf(path.parent_path() / (TextOf(path.stem()) + "-aparte-" + time + ".guion"));
}

void KeptWork::PutAside(const std::string& path) {
  if (rename(PathOf(path_).c_str(), PathOf(path).c_str()) == 0) path_ = path;
}

// The folder.

std::vector<KeptWork> UnfinishedWork(const WorkPlace& place) {
  MakeFolder(place.folder);
  std::vector<KeptWork> found;
  for (int number = 1; number <= kMostPrograms; ++number) {
    const fs::path path = PathOfNumber(place, number);
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0 || Locked(file, path) < 0) continue;
    KeptWork work(TextOf(path), file);
    if (HoldsWork(work.Script())) {
      found.push_back(std::move(work));
    } else {
      unlink(path.c_str());  // nobody writes it any more
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const KeptWork& one, const KeptWork& other) {
    return other.Written() < one.Written();
  });
  return found;
}

NewWork MakeKeptWork(const WorkPlace& place) {
  MakeFolder(place.folder);
  for (int number = 1; number <= kMostPrograms; ++number) {
    const fs::path path = PathOfNumber(place, number);
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kOfOwner);
    if (file < 0 && errno == EEXIST) continue;
    if (file < 0) throw std::system_error(errno, std::generic_category());
    if (Locked(file, path) < 0) continue;
    return {TextOf(path), RecordFile::GoOn(file)};
  }
  throw std::system_error(EEXIST, std::generic_category());
}

// What a script says.

bool HoldsWork(const std::string& script) {
  static const std::set<std::string> typing = {"teclas", "escribe", "baja", "buscador", "portapapeles"};
  static const std::set<std::string> moving = {"Arriba", "Abajo", "Izquierda", "Derecha", "Inicio", "Fin",
                                               "RePag",  "AvPag", "Tab",       "Enter",   "Esc"};
  const std::size_t begin = script.find(kWorkBeginsHere);
  if (begin == std::string::npos) return false;
  std::istringstream lines(script.substr(begin));
  std::string line;
  while (std::getline(lines, line)) {
    std::istringstream words(line);
    std::string command;
    std::string what;
    words >> command >> what;
    if (what == "\"\\n\"") continue;  // Enter alone
    if (typing.contains(command) || what == "LblBorrar") return true;
    if (command == "tecla" && !moving.contains(what)) return true;
  }
  return false;
}

std::string PrintOfDay(SqliteConnection& store, const std::string& branch, Date day) {
  SqliteStatement rows(
      store,
      "SELECT IdProducto, StockAnterior, StockActual, IdEmpleado, Actualizado FROM "
      "HistOrvendalcial WHERE IdSucursal = ?1 AND Fecha >= ?2 AND Fecha < ?3 ORDER BY rowid");
  const std::int32_t number = day.DayNumber();
  rows.Bind(1, branch).Bind(2, Date::FromDayNumber(number)).Bind(3, Date::FromDayNumber(number + 1));
  std::uint64_t hash = HashOf("");
  int count = 0;
  for (; rows.Step(); ++count) {
    for (int column = 0; column < rows.ColumnCount(); ++column) {
      hash = HashOf("|", HashOf(rows.TextAt(column), hash));
    }
  }
  return std::to_string(count) + " " + Hexadecimal(hash);
}

std::string PrintLine(const std::string& branch, Date day, const std::string& print) {
  return kPrint + CodeWord(branch) + " " + ValueText(day.DayOnly()) + " " + print + "\n";
}

bool HasChangedSince(SqliteConnection& store, const std::string& script) {
  const std::size_t begin = script.find(kPrint);
  if (begin == std::string::npos) return false;
  const std::string line = script.substr(begin + 2, script.find('\n', begin) - begin - 2);
  const std::vector<std::string> words = ParseScriptLine(line);
  constexpr std::size_t kWords = 5;
  if (words.size() != kWords) return false;
  return PrintOfDay(store, words[1], MomentOf(words[2])) != words[3] + " " + words[4];
}

}  // namespace orvendal
