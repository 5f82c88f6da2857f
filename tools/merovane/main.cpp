#include <CLI/CLI.hpp>
#include <functional>
#include <iostream>

#include "link/result.h"
#include "merovane/project_tool.h"
#include "merovane_version/version.h"

namespace {

using namespace merovane;

int PrintResults() {
  for (int code = 0; code < 40; ++code) {
    const auto result = static_cast<Result>(code);
    std::cout << code << '\t' << (ResultName(result).empty() ? "-" : ResultName(result)) << '\t'
              << ResultMeaning(result) << '\n';
  }
  return tool::kOk;
}

int Run(int argc, char** argv) {
  CLI::App app("Merovane's command-line tool");
  app.require_subcommand(1);
  app.set_version_flag("--version", kVersion);
  std::function<int()> run;
  std::string project, path, value, second, filter;
  bool json = false, littleEndian = false;
  tool::ImageOptions image;

  app.add_subcommand("results", "Every result code, its name and what it says")->callback([&] {
    run = PrintResults;
  });
  auto* projects = app.add_subcommand("project", "Reads, checks and changes NV projects");
  projects->require_subcommand(1);
  const auto add = [&](const char* name, const char* what) {
    auto* command = projects->add_subcommand(name, what);
    command->add_option("project", project, "the project file")->required();
    return command;
  };

  auto* show = add("show", "The items with their types and values");
  show->add_option("--path", filter, "only items whose path contains this");
  show->add_flag("--json", json, "as JSON");
  show->callback([&] { run = [&] { return tool::Show(project, filter, json, std::cout); }; });

  auto* get = add("get", "One item's value");
  get->add_option("path", path, "its full path")->required();
  get->callback([&] { run = [&] { return tool::Get(project, path, std::cout); }; });

  auto* set = add("set",
                  "Changes one item's value. The module file is written anew; each time, the "
                  "descriptions in it "
                  "grow by a blank and a line end, as the format has it");
  set->add_option("path", path, "its full path")->required();
  set->add_option("value", value, "one word")->required();
  set->callback([&] { run = [&] { return tool::Set(project, path, value, std::cout); }; });

  add("check", "Says with file and line what is wrong; exit code 1 when anything is")
      ->callback([&] { run = [&] { return tool::Check(project, std::cout); }; });

  auto* build = add("image", "Builds the NV image and shows it");
  build->add_option("--output", image.output, "write it to this file");
  build->add_flag("--little-endian", image.littleEndian, "least significant byte first");
  build->add_flag("--map", image.map, "offset, length, id and path of every item");
  build->add_option("--time-stamp", image.timeStamp, "the image's first four bytes");
  build->callback([&] { run = [&] { return tool::Image(project, image, std::cout); }; });

  auto* diff = projects->add_subcommand(
      "diff", "Two projects by path, or two images by item; exit code 1 when they differ");
  diff->add_option("first", project, "a project or an image")->required();
  diff->add_option("second", second, "another")->required();
  diff->add_flag("--little-endian", littleEndian, "of images");
  diff->callback(
      [&] { run = [&] { return tool::Diff(project, second, littleEndian, std::cout); }; });

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? tool::kOk : tool::kTrouble;
  }
  return run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "merovane: " << error.what() << '\n';
    return tool::kTrouble;
  }
}
