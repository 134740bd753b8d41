// Checks what no compiler and no linker checks: that the objects of each variant run on every processor that
// selects it, whoever calls them.
//
//   check_objects --arch x86-64 px=@px.txt h9=first.o,second.o common=@common.txt
//
// Each argument names a variant, or `common` for the code outside the variants, and its objects: paths with
// commas between them, or @FILE with one path a line. The properties are those of checks.h. The result is 0
// if all hold, 1 if not, and 2 if that could not be found out.
#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "checks.h"
#include "elf_object.h"
#include "functions.h"
#include "instruction.h"
#include "levels.h"
#include "report.h"

namespace check_objects {
namespace {

struct Part {
  std::string name;
  std::vector<std::string> paths;
};

Architecture ParseArchitecture(const std::string& name) {
  for (const Architecture architecture : {Architecture::kI386, Architecture::kX86_64}) {
    if (NameOf(architecture) == name) return architecture;
  }
  throw std::runtime_error("there is no architecture " + name);
}

Part ParsePart(const std::string& argument) {
  const size_t equals = argument.find('=');
  Part part = {argument.substr(0, equals), {}};
  if (equals == std::string::npos || !IsPart(part.name)) {
    throw std::runtime_error("'" + argument + "' does not begin with a variant, or common, and =");
  }
  const std::string paths = argument.substr(equals + 1);
  std::istringstream list(paths);
  std::ifstream file;
  if (paths[0] == '@') {
    file.open(paths.substr(1));
    if (!file) throw std::runtime_error(paths.substr(1) + " cannot be read");
  }
  std::istream& stream = file.is_open() ? static_cast<std::istream&>(file) : list;
  for (std::string path; std::getline(stream, path, file.is_open() ? '\n' : ',');) {
    if (!path.empty()) part.paths.push_back(path);
  }
  return part;
}

void CheckObject(const ElfObject& object, std::string_view part, Report& report) {
  CheckNamespace(object, part, report);
  const Decoder decoder(object.Target());
  const CodeContext context = {object, part, decoder, report};
  for (const Function& function : CutIntoFunctions(object, decoder)) {
    report.instructions += function.instructions.size();
    CheckLevel(function, context);
    CheckStackAlignment(function, context);
    CheckUpperHalves(function, context);
  }
}

bool CheckPart(const Part& part, Architecture architecture) {
  Report report(part.name);
  report.objects = part.paths.size();
  for (const std::string& path : part.paths) {
    const ElfObject object(path);
    if (object.Target() == architecture) {
      CheckObject(object, part.name, report);
    } else {
      report.Add(path, {}, "is for another target: " + std::string(NameOf(object.Target())));
    }
  }
  if (report.instructions == 0 || (report.symbols == 0 && part.name != kCommon)) {
    report.Add({}, {}, "nothing to check: no instructions or no symbols");
  }
  return report.Print();
}

int Main(const std::vector<std::string>& arguments) {
  if (arguments.size() < 3 || arguments[0] != "--arch") {
    throw std::runtime_error("usage: --arch i386|x86-64 NAME=OBJECT,... NAME=@FILE ...");
  }
  const Architecture architecture = ParseArchitecture(arguments[1]);
  std::vector<Part> parts;
  for (size_t i = 2; i < arguments.size(); ++i) parts.push_back(ParsePart(arguments[i]));
  bool allHold = true;
  for (const Part& part : parts) allHold = CheckPart(part, architecture) && allHold;
  return allHold ? 0 : 1;
}

}  // namespace

void CodeContext::Add(const Function& function, const Instruction& instruction,
                      std::string_view fault) const {
  char place[32];
  std::snprintf(place, sizeof place, "0x%llx", static_cast<unsigned long long>(instruction.place.offset));
  report.Add(object.Path(), function.symbol, fault, "'" + decoder.Text(instruction) + "' at " + place + " ");
}

}  // namespace check_objects

int main(int count, char** arguments) {
  try {
    return check_objects::Main({arguments + 1, arguments + count});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "check_objects: %s\n", error.what());
    return 2;
  }
}
