#include "host/command_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "platform/base/text.h"

namespace orvendal {
namespace {

using Arguments = std::vector<std::string>;

CommandLine Read(const Arguments& arguments, Language language = Language::kSpanish) {
  static const std::vector<Command> none;
  return ReadCommandLine(arguments, language, none);
}

// The one line that wrong use gives.
std::string Refusal(const Arguments& arguments) {
  const CommandLine line = Read(arguments);
  EXPECT_EQ(line.exit_code, kExitWrongUse);
  EXPECT_EQ(line.output, "");
  EXPECT_EQ(std::count(line.errors.begin(), line.errors.end(), '\n'), 1) << line.errors;
  return line.errors;
}

TEST(CommandLine, WithoutWordsOpensTheFirstBranchAtTheDesignSize) {
  const CommandLine line = Read({});
  EXPECT_FALSE(line.exit_code);
  EXPECT_EQ(line.command, nullptr);
  EXPECT_EQ(line.options.sucursal, "01");
  EXPECT_EQ(line.options.base_width, 15360);
  EXPECT_EQ(line.options.base_height, 11520);
  EXPECT_EQ(line.options.region->Name(), "es-ES");
  EXPECT_EQ(line.options.dialect, Dialect::kSqlServer);
  EXPECT_FALSE(line.options.display);
  EXPECT_FALSE(line.options.store);
  EXPECT_FALSE(line.options.create);
  EXPECT_EQ(line.options.picture, "");
}

TEST(CommandLine, TakesEveryOption) {
  const Options options =
      Read({"--sucursal", "0523",    "--puesto=9", "--turno", "T",          "--idioma", "ca",
            "--region",   "en-US",   "--base",     "800x600", "--pantalla", "1280x800", "--db",
            "x.db",       "--crear", "--dialecto", "jet",     "--captura",  "f.png"})
          .options;
  EXPECT_EQ(options.sucursal, "0523");
  EXPECT_EQ(options.puesto, "9");
  EXPECT_EQ(options.turno, "T");
  EXPECT_EQ(options.language, Language::kCatalan);
  EXPECT_EQ(options.region, &Region::English());
  EXPECT_EQ(options.base_width, 12000);
  EXPECT_EQ(options.base_height, 9000);
  ASSERT_TRUE(options.display);
  EXPECT_EQ(options.display->width, 1280);
  EXPECT_EQ(options.display->height, 800);
  EXPECT_EQ(options.store, "x.db");
  EXPECT_TRUE(options.create);
  EXPECT_EQ(options.dialect, Dialect::kJet);
  EXPECT_EQ(options.picture, "f.png");
}

TEST(CommandLine, TheReferenceSizeMayBeInTwips) {
  for (const char* size : {"15360x11520tw", "15360x11520", "1024x768px"}) {
    EXPECT_EQ(Read({"--base", size}).options.base_width, 15360) << size;
    EXPECT_EQ(Read({"--base", size}).options.base_height, 11520) << size;
  }
}

TEST(CommandLine, TheLanguageIsTheSystemsUnlessAskedFor) {
  EXPECT_EQ(Read({}, Language::kEnglish).options.language, Language::kEnglish);
  EXPECT_EQ(Read({"--idioma", "es"}, Language::kEnglish).options.language, Language::kSpanish);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  EXPECT_EQ(Refusal({"--nada"}), "orvendal: No existe la opción --nada. La ayuda está en orvendal --help.\n");
  EXPECT_EQ(Refusal({"-x"}), "orvendal: No existe la opción -x. La ayuda está en orvendal --help.\n");
  EXPECT_EQ(Refusal({"nada"}), "orvendal: Sobra la palabra nada. La ayuda está en orvendal --help.\n");
}

TEST(CommandLine, RefusesAnOptionWithoutItsValue) {
  for (const char* option : {"--db", "--captura", "--sucursal", "--pantalla", "--base", "--idioma"}) {
    EXPECT_EQ(Refusal({option}), "orvendal: A la opción " + std::string(option) +
                                     " le falta su valor. La ayuda está en orvendal --help.\n");
  }
  EXPECT_EQ(Refusal({"--crear=si"}),
            "orvendal: La opción --crear no lleva ningún valor. La ayuda está en orvendal --help.\n");
  EXPECT_NE(Refusal({"--db", ""}).find("--db le falta su valor"), std::string::npos);
}

TEST(CommandLine, RefusesAValueThatMakesNoSense) {
  EXPECT_NE(Refusal({"--idioma", "fr"}).find("--idioma no admite «fr»; vale es, ca, en."), std::string::npos);
  EXPECT_NE(Refusal({"--region", "xx"}).find("--region no admite «xx»"), std::string::npos);
  EXPECT_NE(Refusal({"--dialecto", "oracle"}).find("--dialecto no admite «oracle»"), std::string::npos);
  for (const char* size : {"", "800", "800x", "x600", "800x600x", "0x600", "800x-600", "99x99", "99999x600",
                           "1e3x600", "99999999999x600", " 800x600"}) {
    EXPECT_NE(Refusal({"--pantalla", size}).find("--pantalla no admite"), std::string::npos) << size;
    EXPECT_NE(Refusal({"--base", size}).find("--base no admite"), std::string::npos) << size;
  }
  EXPECT_NE(Refusal({"--pantalla", "15360x11520tw"}).find("--pantalla no admite"), std::string::npos);
}

TEST(CommandLine, ErrorsAreInTheLanguageAskedFor) {
  EXPECT_EQ(Read({"--idioma=en", "--nada"}).errors,
            "orvendal: There is no option --nada. orvendal --help tells more.\n");
  EXPECT_EQ(Read({"--nada"}, Language::kCatalan).errors,
            "orvendal: No existeix l’opció --nada. L’ajuda és a orvendal --help.\n");
}

TEST(CommandLine, AProgramMayOfferLess) {
  static const std::vector<Command> none;
  const OfferedOptions offered{false, false, false, false};
  for (const char* option : {"--region", "--pantalla", "--captura"}) {
    const CommandLine line = ReadCommandLine({option, "x"}, Language::kSpanish, none, offered);
    EXPECT_EQ(line.exit_code, kExitWrongUse) << option;
    const std::string help = ReadCommandLine({"--help"}, Language::kSpanish, none, offered).output;
    EXPECT_EQ(help.find(option), std::string::npos) << option;
  }
  const CommandLine line = ReadCommandLine({"--base", "800x600"}, Language::kSpanish, none, offered);
  EXPECT_FALSE(line.exit_code);
  EXPECT_EQ(line.options.base_width, 12000);
}

TEST(CommandLine, WhatWasTypedCannotSteerTheTerminalThatShowsTheRefusal) {
  EXPECT_EQ(Refusal({"\x1b[2J"}), "orvendal: Sobra la palabra \\x1b[2J. La ayuda está en orvendal --help.\n");
}

TEST(CommandLine, OfAnOptionGivenTwiceTheLastOneCounts) {
  EXPECT_EQ(Read({"--idioma", "en", "--idioma", "ca"}).options.language, Language::kCatalan);
}

class CommandLineWithCommand : public testing::Test {
 protected:
  CommandLine Read(const Arguments& arguments, Language language = Language::kSpanish) const {
    return ReadCommandLine(arguments, language, commands);
  }
  const std::vector<Command> commands = {{"guion", &Words::value_file, &Words::help_script_file,
                                          &Words::help_script, &Words::help_exit_codes_of_script,
                                          [](const Options&, const std::string&) { return 7; }}};
};

TEST_F(CommandLineWithCommand, TakesItsArgumentAndTheOptionsAroundIt) {
  const CommandLine line = Read({"--idioma", "en", "guion", "dia.txt", "--dialecto", "jet"});
  ASSERT_FALSE(line.exit_code) << line.errors;
  ASSERT_EQ(line.command, &commands[0]);
  EXPECT_EQ(line.argument, "dia.txt");
  EXPECT_EQ(line.options.language, Language::kEnglish);
  EXPECT_EQ(line.options.dialect, Dialect::kJet);
  EXPECT_FALSE(line.options.store);
  EXPECT_EQ(line.command->run(line.options, line.argument), 7);
}

TEST_F(CommandLineWithCommand, ShowsTheSameWhateverTheUsersLanguage) {
  EXPECT_EQ(Read({"guion", "a"}, Language::kEnglish).options.language, Language::kSpanish);
  EXPECT_EQ(Read({"guion", "a", "--idioma", "ca"}, Language::kEnglish).options.language, Language::kCatalan);
}

TEST_F(CommandLineWithCommand, RefusesItWithoutItsArgumentOrWithMoreInTheUsersLanguage) {
  EXPECT_EQ(Read({"guion"}).errors,
            "orvendal: A la orden guion le falta su FICHERO. La ayuda está en orvendal guion --help.\n");
  EXPECT_EQ(Read({"guion"}, Language::kEnglish).errors,
            "orvendal: The command guion lacks its FILE. orvendal guion --help tells more.\n");
  EXPECT_EQ(Read({"guion"}).exit_code, kExitWrongUse);
  EXPECT_EQ(Read({"guion"}).command, &commands[0]);
  EXPECT_NE(Read({"guion", "a", "b"}).errors.find("Sobra la palabra b"), std::string::npos);
  EXPECT_NE(Read({"guion", "a", "--nada"}).errors.find("--nada"), std::string::npos);
}

TEST_F(CommandLineWithCommand, RefusesAnOptionThatItHasNoUseFor) {
  for (const char* option : {"--captura", "--sucursal", "--puesto", "--turno"}) {
    EXPECT_EQ(Read({"guion", "a", option, "x.png"}).errors,
              "orvendal: La opción " + std::string(option) +
                  " no es de la orden guion. La ayuda está en orvendal guion --help.\n");
  }
}

// The options that a help lists, from its lines.
std::vector<std::string> OptionsListed(const std::string& help) {
  std::vector<std::string> listed;
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("  -")) listed.push_back(line.substr(2, line.find(' ', 2) - 2));
  }
  return listed;
}

TEST_F(CommandLineWithCommand, HelpTellsEveryOptionOfTheProgramAndItsCommands) {
  for (const Language language : {Language::kSpanish, Language::kCatalan, Language::kEnglish}) {
    const CommandLine line = Read({"--help"}, language);
    const Words& words = WordsOf(language);
    EXPECT_EQ(line.exit_code, 0);
    EXPECT_EQ(line.errors, "");
    EXPECT_EQ(OptionsListed(line.output),
              (std::vector<std::string>{"--sucursal", "--puesto", "--turno", "--idioma", "--region", "--base",
                                        "--pantalla", "--db", "--crear", "--dialecto", "--captura",
                                        "--grabar", "-h,"}));
    EXPECT_NE(line.output.find("\n  guion " + std::string(words.value_file)), std::string::npos);
  }
}

TEST_F(CommandLineWithCommand, HelpOfACommandTellsHowItIsCalledAndEveryOptionThatItTakes) {
  for (const Language language : {Language::kSpanish, Language::kCatalan, Language::kEnglish}) {
    for (const Arguments& arguments : {Arguments{"guion", "--help"}, Arguments{"guion", "-h"},
                                       Arguments{"guion", "a", "--help"}, Arguments{"--help", "guion"}}) {
      const CommandLine line = Read(arguments, language);
      const Words& words = WordsOf(language);
      EXPECT_EQ(line.exit_code, 0);
      EXPECT_EQ(line.errors, "");
      EXPECT_NE(
          line.output.find(std::string(words.help_usage) + " orvendal guion " +
                           std::string(words.value_file) + " " + std::string(words.help_of_options) + "\n"),
          std::string::npos)
          << line.output;
      EXPECT_EQ(OptionsListed(line.output),
                (std::vector<std::string>{"--idioma", "--region", "--base", "--pantalla", "--db", "--crear",
                                          "--dialecto", "-h,"}));
    }
  }
}

TEST_F(CommandLineWithCommand, HelpIsInOneLanguageAndFitsATerminal) {
  for (const Arguments& arguments : {Arguments{"--help"}, Arguments{"guion", "--help"}}) {
    const std::string spanish = Read(arguments, Language::kSpanish).output;
    for (const char* english : {"Usage", "Options", "OPTIONS", "Positionals", "TEXT", "Print", "argument"}) {
      EXPECT_EQ(spanish.find(english), std::string::npos) << english;
    }
    const std::string english = Read(arguments, Language::kEnglish).output;
    for (const char* own : {"Uso", "pcion", "FICHERO", "ANCHO", "TURNO", "guion que"}) {
      EXPECT_EQ(english.find(own), std::string::npos) << own;
    }
    for (const std::string& help : {spanish, english, Read(arguments, Language::kCatalan).output}) {
      std::istringstream lines(help);
      for (std::string line; std::getline(lines, line);) {
        // A path is not broken.
        EXPECT_TRUE(Len(line) <= 80 || line.find('/') != std::string::npos) << line;
      }
    }
  }
}

}  // namespace
}  // namespace orvendal
