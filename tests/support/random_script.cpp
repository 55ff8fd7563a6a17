#include "tests/support/random_script.h"

#include <algorithm>

#include "host/command_line.h"
#include "host/sample/random.h"
#include "tests/support/random_user.h"

namespace orvendal {
namespace {

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += " " + word;
  return joined;
}

std::vector<std::string> RandomOptions(SampleRandom& random) {
  static constexpr const char* kLanguages[] = {"es", "ca", "en"};
  static constexpr const char* kRegions[] = {"es-ES", "ca-ES", "en-US"};
  static constexpr const char* kBases[] = {"800x600", "1280x1024", "640x480", "15360x11520tw"};
  static constexpr const char* kDisplays[] = {"800x600", "1280x1024", "1920x1080", "1366x768", "640x480"};
  std::vector<std::string> options;
  const auto choose = [&](int percent, const char* option, const auto& values) {
    if (!random.Chance(percent)) return;
    options.push_back(option);
    options.push_back(values[random.Below(std::size(values))]);
  };
  choose(50, "--idioma", kLanguages);
  choose(50, "--region", kRegions);
  choose(20, "--base", kBases);
  choose(40, "--pantalla", kDisplays);
  if (random.Chance(40)) options.insert(options.end(), {"--dialecto", "jet"});
  return options;
}

}  // namespace

RandomScript MakeRandomScript(const RandomScriptSettings& settings) {
  SampleRandom random(settings.seed);
  RandomScript made;
  made.options = RandomOptions(random);
  Options options = ReadCommandLine(made.options, Language::kSpanish, {}).options;
  if (!settings.store.empty()) options.store = settings.store;

  ScriptWriter script(options);
  script.Add("# opciones:" + Joined(made.options));
  script.Add("# Random script " + std::to_string(settings.seed) + ".");
  RandomUser user(script, random, settings.pictures);
  user.Work(settings.steps);
  made.text = script.Text();
  made.carried_out = user.CarriedOut();
  made.refused = user.Refused();
  return made;
}

}  // namespace orvendal
