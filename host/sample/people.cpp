#include "host/sample/people.h"

#include <array>
#include <cstdio>
#include <set>

namespace orvendal {
namespace {

constexpr std::array kBranchNames = {
    "Madrid Gran Vía",     "Barcelona Eixample", "València Colón",  "Sevilla Nervión",
    "Zaragoza Delicias",   "Málaga Larios",      "Bilbao Indautxu", "Girona Rambla",
    "Lleida Carrer Major", "A Coruña Cantones",  "Cádiz Columela",  "Logroño Gran Vía",
};

constexpr std::array kGivenNames = {
    "María",  "Carmen", "Lucía",  "Ana",      "Laura",   "Marta", "Núria",  "Sílvia", "Elena",  "Begoña",
    "Rocío",  "Inés",   "Montse", "Júlia",    "Paula",   "Sara",  "Mónica", "Iria",   "Ainhoa", "Noelia",
    "Raquel", "Sofía",  "Andrés", "José",     "Iván",    "Óscar", "Jordi",  "Marc",   "Rubén",  "Sergio",
    "Ángel",  "Adrián", "Belén",  "Verónica", "Yolanda", "Jesús", "Tomás",  "Míriam", "Lorena", "Cristina",
};

constexpr std::array kSurnames = {
    "García", "Martínez", "López",     "Sánchez",  "Pérez",   "Gómez",   "Fernández", "Muñoz", "Núñez",
    "Ibáñez", "Vázquez",  "Domínguez", "Álvarez",  "Giménez", "Ferrer",  "Puig",      "Soler", "Vidal",
    "Roca",   "Serra",    "Castaño",   "Peña",     "Ordóñez", "Márquez", "León",      "Cañas", "Etxeberria",
    "Goñi",   "Iglesias", "Pazos",     "Quintana", "Rovira",  "Segura",  "Toledo",    "Uría",  "Vega",
};

std::string Numbered(const char* format, std::size_t number) {
  char text[16];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

template <std::size_t count>
std::string OneOf(SampleRandom& random, const std::array<const char*, count>& texts) {
  return texts[random.Below(count)];
}

}  // namespace

std::vector<SampleBranch> MakeSampleBranches() {
  std::vector<SampleBranch> branches;
  for (const char* name : kBranchNames) branches.push_back({Numbered("%02zu", branches.size() + 1), name});
  return branches;
}

std::vector<SampleEmployee> MakeSampleEmployees(SampleRandom& random, std::size_t count,
                                                std::size_t branch_count) {
  std::vector<SampleEmployee> employees;
  std::set<std::string> names;
  while (employees.size() < count) {
    // One after the other: in a single expression each compiler would draw in an order of its own.
    std::string name = OneOf(random, kGivenNames);
    name += " " + OneOf(random, kSurnames);
    name += " " + OneOf(random, kSurnames);
    if (!names.insert(name).second) continue;
    const std::size_t number = employees.size();
    employees.push_back({Numbered("E%03zu", number + 1), name, number % branch_count});
  }
  return employees;
}

}  // namespace orvendal
