#include "host/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "host/help_text.h"
#include "host/store/default_store.h"
#include "host/text/printed_text.h"

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
  Language asked_for = system_language;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    std::optional<Language> language;
    if (arguments[i] == option && i + 1 < arguments.size()) language = LanguageNamed(arguments[i + 1]);
    if (arguments[i].starts_with(option + "=")) {
      language = LanguageNamed(arguments[i].substr(option.size() + 1));
    }
    if (language) asked_for = *language;
  }
  return asked_for;
}

class Reader {
 public:
  Reader(Language language, const std::vector<Command>& commands, OfferedOptions offered)
      : words_(WordsOf(language)), commands_(commands), app_("", "orvendal") {
    line_.options.language = language;
    app_.allow_extras();
    AddHelp(app_);
    Options& options = line_.options;
    const Words& words = words_;
    Add("--sucursal", options.sucursal, words.value_branch, words.help_branch, nullptr);
    Add("--puesto", options.puesto, words.value_workstation, words.help_workstation, nullptr);
    Add("--turno", options.turno, words.value_shift, words.help_shift, nullptr);
    Add("--idioma", typed_.language, "es|ca|en", words.help_language, &Words::help_language_of_script);
    if (offered.region) {
      Add("--region", typed_.region, words.value_region, words.help_region, &Words::help_region);
    }
    Add("--base", typed_.base, words.value_size, words.help_base, &Words::help_base);
    if (offered.display) {
      Add("--pantalla", typed_.display, words.value_size, words.help_display, &Words::help_display_of_script);
    }
    store_option_ = Add("--db", typed_.store, words.value_file, Fill(words.help_store, {DefaultStore()}),
                        &Words::help_store_of_script);
    app_.add_flag("--crear", options.create)->disable_flag_override();
    Describe("--crear", {}, words.help_create, &Words::help_create);
    Add("--dialecto", typed_.dialect, "sqlserver|jet", words.help_dialect, &Words::help_dialect);
    if (offered.picture) {
      picture_option_ = Add("--captura", options.picture, words.value_picture, words.help_picture, nullptr);
    }
    if (offered.record) {
      record_option_ = Add("--grabar", options.record, words.value_file, words.help_record, nullptr);
    }
    Describe("-h, --help", {}, words.help_help, &Words::help_help);
    for (const Command& command : commands_) AddCommand(command);
  }

  CommandLine Read(std::vector<std::string> arguments) {
    try {
      std::reverse(arguments.begin(), arguments.end());  // which is how the parser wants them
      app_.parse(std::move(arguments));
      CheckExtras();
      Interpret();
    } catch (const CLI::CallForHelp&) {
      const Command* const command = CommandTyped();
      line_.output = command == nullptr ? Help() : HelpOf(*command);
      line_.exit_code = 0;
    } catch (const CLI::ParseError& error) {
      Refuse(SentenceFor(error));
    } catch (const WrongUse& wrong) {
      Refuse(wrong.sentence);
    }
    return std::move(line_);
  }

 private:
  using OwnWord = std::string_view Words::*;

  // What is told of an option; with a command something else may hold, or the option has no use there.
  struct Description {
    std::string option;
    std::string name;
    std::string text;
    OwnWord text_of_command;  // nullptr: not for commands
  };

  void AddHelp(CLI::App& app) { app.set_help_flag("-h,--help"); }

  void Describe(const std::string& option, std::string_view value, std::string_view text,
                OwnWord of_command) {
    const std::string name = value.empty() ? option : option + " " + std::string(value);
    descriptions_.push_back({option, name, std::string(text), of_command});
  }

  CLI::Option* Add(const std::string& name, std::string& value, std::string_view value_name,
                   std::string_view help, OwnWord of_command) {
    Describe(name, value_name, help, of_command);
    return app_.add_option(name, value)->take_last();
  }

  std::string ArgumentOf(const Command& command) const { return std::string(words_.*command.argument); }

  void AddCommand(const Command& command) {
    CLI::App* sub = app_.add_subcommand(command.name);
    AddHelp(*sub);
    sub->fallthrough();
    sub->add_option("argument", line_.argument);
    sub->final_callback([this, sub, &command] {
      line_.command = &command;
      if (sub->count("argument") == 0) {
        throw WrongUse{Fill(words_.argument_missing, {command.name, ArgumentOf(command)})};
      }
    });
  }

  // The command whose word was typed, whatever came of it.
  const Command* CommandTyped() const {
    for (const Command& command : commands_) {
      if (app_.got_subcommand(command.name)) return &command;
    }
    return nullptr;
  }

  std::string Help() const {
    HelpSection options{words_.help_options, {}};
    for (const Description& option : descriptions_) options.lines.push_back({option.name, option.text});
    HelpSection commands{words_.help_commands, {}};
    HelpPage page{
        words_.help_purpose, words_.help_usage, {"orvendal " + std::string(words_.help_of_options)}, {}, {}};
    for (const Command& command : commands_) {
      const std::string call = command.name + " " + ArgumentOf(command);
      page.calls.push_back("orvendal " + call + " " + std::string(words_.help_of_options));
      commands.lines.push_back({call, std::string(words_.*command.help)});
    }
    page.sections = {options, commands};
    page.notes = {words_.help_first_run, words_.help_exit_codes};
    return HelpText(page);
  }

  std::string HelpOf(const Command& command) const {
    HelpSection options{words_.help_options, {}};
    for (const Description& option : descriptions_) {
      if (option.text_of_command == nullptr) continue;
      options.lines.push_back({option.name, std::string(words_.*option.text_of_command)});
    }
    const std::string call =
        "orvendal " + command.name + " " + ArgumentOf(command) + " " + std::string(words_.help_of_options);
    const HelpSection arguments{words_.help_arguments,
                                {{ArgumentOf(command), std::string(words_.*command.argument_help)}}};
    return HelpText({words_.*command.help,
                     words_.help_usage,
                     {call},
                     {arguments, options},
                     {words_.*command.exit_codes}});
  }

  void CheckExtras() {
    for (const std::string& extra : app_.remaining(true)) {
      const bool is_option = extra.size() > 1 && extra.front() == '-';
      throw WrongUse{Fill(is_option ? words_.unknown_option : words_.unexpected_word, {extra})};
    }
    if (line_.command == nullptr) return;
    for (const Description& option : descriptions_) {
      if (option.text_of_command != nullptr || !Given(option.option.c_str())) continue;
      throw WrongUse{Fill(words_.option_not_for, {option.option, line_.command->name})};
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
    // A command shows the same whatever the user's language.
    if (line_.command != nullptr && !Given("--idioma")) options.language = Language::kSpanish;
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
    if (record_option_ != nullptr) RefuseEmpty(record_option_, options.record);
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
      const bool takes_value = option->get_expected_max() > 0;
      // Of an option that takes none it is named without its dashes.
      if (message.find(takes_value ? name : name.substr(2) + " was given") == std::string::npos) continue;
      return Fill(takes_value ? words_.value_missing : words_.value_not_taken, {name});
    }
    return message;
  }

  void Refuse(const std::string& sentence) {
    const Command* const command = CommandTyped();
    line_.command = command;
    const std::string help = command == nullptr ? "orvendal --help" : "orvendal " + command->name + " --help";
    line_.errors = "orvendal: " + PrintedText(sentence) + " " + Fill(words_.see_help, {help}) + "\n";
    line_.exit_code = kExitWrongUse;
  }

  const Words& words_;
  const std::vector<Command>& commands_;
  CLI::App app_;
  std::vector<Description> descriptions_;
  CLI::Option* store_option_ = nullptr;
  CLI::Option* picture_option_ = nullptr;
  CLI::Option* record_option_ = nullptr;
  Typed typed_;
  CommandLine line_;
};

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments, Language system_language,
                            const std::vector<Command>& commands, OfferedOptions offered) {
  return Reader(LanguageAskedFor(arguments, system_language), commands, offered).Read(arguments);
}

}  // namespace orvendal
