// merovane-project-generator: writes a realistic NV project.
#include <cstdio>
#include <string>

#include "project-generator/project_generator.h"
#include "support/program.h"

// NOLINTNEXTLINE(bugprone-exception-escape): want of memory, before anything is done
int main(int argc, char** argv) {
  using namespace merovane;
  projectgen::Options options;
  std::string directory;
  bool aero = false;
  CLI::App app("Writes an NV project with calibration, production and further parameters.",
               "merovane-project-generator");
  app.add_option("directory", directory, "where the project goes; made if need be")->required();
  app.add_option("--items", options.items, "how many items, from about 1,200 on")
      ->capture_default_str();
  app.add_option("--seed", options.seed, "another seed gives other values")->capture_default_str();
  app.add_flag("--aero", aero, "spell the AFC structure aero2_RF_AFC_STRUCT, not areo2_…");
  app.add_flag("--decimal-agc", options.decimalAgcWords,
               "name the AGC words [10] and so on instead of [0xa]");
  return tool::RunProgram(app, argc, argv, [&] {
    options.areoSpelling = !aero;
    const projectgen::Project project = projectgen::Generate(options);
    const auto path = projectgen::Write(project, directory);
    std::printf("%s: %zu items in %zu modules\n", path.string().c_str(), project.items.size(),
                project.files.size() - 1);
    return tool::kOk;
  });
}
