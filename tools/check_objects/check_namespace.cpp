#include <regex>
#include <string>

#include "checks.h"
#include "levels.h"

namespace check_objects {
namespace {

// How mangled names of orbs::PART begin. The demangled ones would not tell: those of templates begin with the
// result type.
std::regex NamesIn(std::string_view part) {
  const std::string entity = "_Z(G[VR]|T[VTISHW]|T[hv]n?\\d+_(n?\\d+_)?)?Z*N[rVK]*[RO]?";
  return std::regex(entity + "4orbs" + std::to_string(part.size()) + std::string(part), std::regex::optimize);
}

const char* NameOfBinding(int binding) {
  switch (binding) {
    case STB_WEAK:
      return "weak";
    case STB_GNU_UNIQUE:
      return "unique";
    default:
      return "strong";
  }
}

// Constructors and destructors of static objects.
bool RunsAtLoad(const Section& section) {
  return section.type == SHT_INIT_ARRAY || section.type == SHT_PREINIT_ARRAY ||
         section.type == SHT_FINI_ARRAY || section.name.rfind(".ctors", 0) == 0 ||
         section.name.rfind(".dtors", 0) == 0;
}

}  // namespace

void CheckNamespace(const ElfObject& object, std::string_view part, Report& report) {
  const std::regex own = NamesIn(part);
  const auto isOwn = [&own](std::string_view name) {
    return std::regex_search(name.begin(), name.end(), own, std::regex_constants::match_continuous);
  };
  for (const Symbol& symbol : object.Symbols()) {
    if (!symbol.IsGlobal() || !symbol.IsDefined()) continue;
    ++report.symbols;
    if (part == kCommon || IsPcThunk(symbol.name) || isOwn(symbol.name)) continue;
    report.Add(object.Path(), symbol.name,
               std::string(NameOfBinding(symbol.binding)) + " symbol outside orbs::" + std::string(part));
  }
  if (part == kCommon || LevelOf(object.Target(), part) == BaseLevel(object.Target())) return;
  for (const Section& section : object.Sections()) {
    if (RunsAtLoad(section)) {
      report.Add(object.Path(), section.name, "would run on every processor that loads the library");
    }
  }
}

}  // namespace check_objects
