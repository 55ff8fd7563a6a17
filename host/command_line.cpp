#include "host/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "host/default_store.h"

namespace orvendal {
namespace {

constexpr int kTwipsToPixel = 15;
constexpr int kLeastPixels = 100;
constexpr int kMostPixels = 16384;
// No display has so many pixels: such a number means twips, with or without the letters.
constexpr int kSurelyTwips = 8192;

constexpr const char* kLanguages = "es, ca, en";
constexpr const char* kRegions = "es-ES, ca-ES, en-US";
constexpr const char* kDialects = "sqlserver, jet";
constexpr const char* kSizeExample = "1024x768";
constexpr const char* kBaseExample = "1024x768, 15360x11520tw";

// What was typed, before it is known to make sense.
struct Typed {
  std::string language;
  std::string region;
  std::string base;
  std::string display;
  std::string store;
  std::string dialect;
};

struct WrongUse {
  std::string sentence;
};

bool TakeNumber(std::string_view& text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end == text.data()) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return true;
}

// "1024x768", with `unit` taking what follows.
std::optional<PixelSize> ParseSize(std::string_view text, std::string_view& unit) {
  PixelSize size;
  if (!TakeNumber(text, size.width)) return std::nullopt;
  if (text.empty() || (text.front() != 'x' && text.front() != 'X')) return std::nullopt;
  text.remove_prefix(1);
  if (!TakeNumber(text, size.height)) return std::nullopt;
  unit = text;
  return size;
}

bool IsPlausible(int pixels) {
  return pixels >= kLeastPixels && pixels <= kMostPixels;
}

std::optional<PixelSize> ParseDisplay(std::string_view text) {
  std::string_view unit;
  const std::optional<PixelSize> size = ParseSize(text, unit);
  if (!size || !unit.empty() || !IsPlausible(size->width) || !IsPlausible(size->height)) return std::nullopt;
  return size;
}

// In twips.
std::optional<PixelSize> ParseBase(std::string_view text) {
  std::string_view unit;
  std::optional<PixelSize> size = ParseSize(text, unit);
  if (!size || (!unit.empty() && unit != "tw" && unit != "px")) return std::nullopt;
  const bool twips =
      unit == "tw" || (unit.empty() && (size->width >= kSurelyTwips || size->height >= kSurelyTwips));
  if (!twips) {
    if (!IsPlausible(size->width) || !IsPlausible(size->height)) return std::nullopt;
    return PixelSize{size->width * kTwipsToPixel, size->height * kTwipsToPixel};
  }
  if (!IsPlausible(size->width / kTwipsToPixel) || !IsPlausible(size->height / kTwipsToPixel)) {
    return std::nullopt;
  }
  return size;
}

// The help and the errors are in the language that the same command line asks for.
Language LanguageAskedFor(const std::vector<std::string>& arguments, Language system_language) {
  const std::string option = "--idioma";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    std::optional<Language> language;
    if (arguments[i] == option && i + 1 < arguments.size()) language = LanguageNamed(arguments[i + 1]);
    if (arguments[i].starts_with(option + "=")) {
      language = LanguageNamed(arguments[i].substr(option.size() + 1));
    }
    if (language) return *language;
  }
  return system_language;
}

class Reader {
 public:
  Reader(Language language, const std::vector<Command>& commands, OfferedOptions offered)
      : words_(WordsOf(language)), commands_(commands), app_(std::string(words_.help_purpose), "orvendal") {
    line_.options.language = language;
    app_.allow_extras();
    app_.set_help_flag("-h,--help", std::string(words_.help_help))->group(std::string(words_.help_options));
    app_.footer(std::string(words_.help_first_run));
    app_.formatter(std::make_shared<HelpFormatter>(words_));
    Options& options = line_.options;
    Add("--sucursal", options.sucursal, words_.help_branch, "SUC");
    Add("--puesto", options.puesto, words_.help_workstation, "PUESTO");
    Add("--turno", options.turno, words_.help_shift, "TURNO");
    Add("--idioma", typed_.language, words_.help_language, "es|ca|en");
    if (offered.region) Add("--region", typed_.region, words_.help_region, "REGION");
    Add("--base", typed_.base, words_.help_base, "ANCHOxALTO");
    if (offered.display) Add("--pantalla", typed_.display, words_.help_display, "ANCHOxALTO");
    store_option_ = Add("--db", typed_.store, Fill(words_.help_store, {DefaultStore()}), "FICHERO");
    Add("--dialecto", typed_.dialect, words_.help_dialect, "sqlserver|jet");
    if (offered.picture) {
      picture_option_ = Add("--captura", options.picture, words_.help_picture, "FICHERO.png");
    }
    for (const Command& command : commands_) AddCommand(command);
  }

  CommandLine Read(std::vector<std::string> arguments) {
    try {
      std::reverse(arguments.begin(), arguments.end());  // which is how the parser wants them
      app_.parse(std::move(arguments));
      CheckExtras();
      Interpret();
    } catch (const CLI::CallForHelp&) {
      line_.output = app_.help();
      line_.exit_code = 0;
    } catch (const CLI::ParseError& error) {
      Refuse(SentenceFor(error));
    } catch (const WrongUse& wrong) {
      Refuse(wrong.sentence);
    }
    return std::move(line_);
  }

 private:
  class HelpFormatter final : public CLI::Formatter {
   public:
    explicit HelpFormatter(const Words& words) : words_(words) { column_width(32); }
    std::string make_usage(const CLI::App* app, std::string) const override {
      std::string usage(words_.help_usage);
      for (const CLI::App* command : app->get_subcommands([](const CLI::App*) { return true; })) {
        usage += "\n     orvendal " + command->get_name() + " " +
                 command->get_option_no_throw("argument")->get_type_name();
      }
      return usage + "\n";
    }

   private:
    const Words& words_;
  };

  CLI::Option* Add(const std::string& name, std::string& value, std::string_view help, const char* type) {
    return app_.add_option(name, value, std::string(help))
        ->type_name(type)
        ->take_last()
        ->group(std::string(words_.help_options));
  }

  void AddCommand(const Command& command) {
    CLI::App* sub = app_.add_subcommand(command.name, std::string(words_.*command.help));
    sub->group(std::string(words_.help_commands));
    sub->set_help_flag("-h,--help", std::string(words_.help_help));
    sub->fallthrough();
    sub->add_option("argument", line_.argument)->type_name(command.argument);
    sub->final_callback([this, sub, &command] {
      line_.command = &command;
      if (sub->count("argument") == 0) {
        throw WrongUse{Fill(words_.argument_missing, {command.name, command.argument})};
      }
    });
  }

  void CheckExtras() {
    for (const std::string& extra : app_.remaining(true)) {
      const bool is_option = extra.size() > 1 && extra.front() == '-';
      throw WrongUse{Fill(is_option ? words_.unknown_option : words_.unexpected_word, {extra})};
    }
  }

  [[noreturn]] void BadValue(const char* option, const std::string& value, const char* allowed) const {
    throw WrongUse{Fill(words_.bad_value, {option, value, allowed})};
  }

  bool Given(const char* name) const {
    const CLI::Option* const option = app_.get_option_no_throw(name);
    return option != nullptr && option->count() > 0;
  }

  void Interpret() {
    Options& options = line_.options;
    if (Given("--idioma") && !LanguageNamed(typed_.language)) {
      BadValue("--idioma", typed_.language, kLanguages);
    }
    if (Given("--region")) {
      options.region = Region::Find(typed_.region);
      if (options.region == nullptr) BadValue("--region", typed_.region, kRegions);
    }
    if (Given("--base")) {
      const std::optional<PixelSize> base = ParseBase(typed_.base);
      if (!base) BadValue("--base", typed_.base, kBaseExample);
      options.base_width = base->width;
      options.base_height = base->height;
    }
    if (Given("--pantalla")) {
      options.display = ParseDisplay(typed_.display);
      if (!options.display) BadValue("--pantalla", typed_.display, kSizeExample);
    }
    if (Given("--dialecto")) {
      if (typed_.dialect == "jet") {
        options.dialect = Dialect::kJet;
      } else if (typed_.dialect != "sqlserver") {
        BadValue("--dialecto", typed_.dialect, kDialects);
      }
    }
    RefuseEmpty(store_option_, typed_.store);
    if (picture_option_ != nullptr) RefuseEmpty(picture_option_, options.picture);
    if (store_option_->count() > 0) options.store = typed_.store;
  }

  void RefuseEmpty(const CLI::Option* option, const std::string& value) const {
    if (option->count() > 0 && value.empty())
      throw WrongUse{Fill(words_.value_missing, {option->get_name()})};
  }

  // The parser names the option that lacks its value somewhere in its own message.
  std::string SentenceFor(const CLI::ParseError& error) const {
    const std::string message = error.what();
    for (const CLI::Option* option : app_.get_options()) {
      const std::string name = option->get_name();
      if (message.find(name) != std::string::npos) return Fill(words_.value_missing, {name});
    }
    return message;
  }

  void Refuse(const std::string& sentence) {
    line_.errors = "orvendal: " + sentence + " " + std::string(words_.see_help) + "\n";
    line_.exit_code = kExitWrongUse;
  }

  const Words& words_;
  const std::vector<Command>& commands_;
  CLI::App app_;
  CLI::Option* store_option_ = nullptr;
  CLI::Option* picture_option_ = nullptr;
  Typed typed_;
  CommandLine line_;
};

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments, Language system_language,
                            const std::vector<Command>& commands, OfferedOptions offered) {
  return Reader(LanguageAskedFor(arguments, system_language), commands, offered).Read(arguments);
}

}  // namespace orvendal
