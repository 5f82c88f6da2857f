// merovane: the command-line tool.
#include <functional>
#include <iostream>
#include <string_view>

#include "declared/names.h"
#include "link/result.h"
#include "merovane/listen.h"
#include "merovane/log_tool.h"
#include "merovane/project_tool.h"
#include "platform/console.h"
#include "support/program.h"

namespace {

using namespace merovane;

// What the command line has chosen.
struct Choice {
  std::function<int()> run;
  std::string project, path, value, second, filter;
  bool json = false, littleEndian = false;
  tool::ImageOptions image;
  tool::NewOptions create;
  tool::RenderOptions render;
  tool::ListenOptions listen;
};

int PrintResults() {
  int code = -1;
  for (const std::string_view name : library::kResultNames) {
    const auto result = static_cast<Result>(code);
    std::cout << code << '\t' << name << '\t' << ResultMeaning(result);
    const std::string_view logged = ResultName(result);
    if (code >= 0 && logged != name) {
      std::cout << " (in logs: " << (logged.empty() ? "no name" : logged) << ')';
    }
    std::cout << '\n';
    ++code;
  }
  return tool::kOk;
}

CLI::App* AddProjectCommand(CLI::App& projects, Choice& choice, const char* name,
                            const char* what) {
  auto* command = projects.add_subcommand(name, what);
  command->add_option("project", choice.project, "the project file")->required();
  return command;
}

void AddReadingCommands(CLI::App& projects, Choice& choice) {
  auto* show = AddProjectCommand(projects, choice, "show", "The items with their types and values");
  show->add_option("--path", choice.filter, "only items whose path contains this");
  show->add_flag("--json", choice.json, "as JSON");
  show->callback([&] {
    choice.run = [&] { return tool::Show(choice.project, choice.filter, choice.json, std::cout); };
  });

  auto* get = AddProjectCommand(projects, choice, "get", "One item's value");
  get->add_option("path", choice.path, "its full path")->required();
  get->callback(
      [&] { choice.run = [&] { return tool::Get(choice.project, choice.path, std::cout); }; });

  AddProjectCommand(projects, choice, "check",
                    "Says with file and line what is wrong; exit code 1 when anything is")
      ->callback([&] { choice.run = [&] { return tool::Check(choice.project, std::cout); }; });

  auto* diff = projects.add_subcommand(
      "diff", "Two projects by path, or two images by item; exit code 1 when they differ");
  diff->add_option("first", choice.project, "a project or an image")->required();
  diff->add_option("second", choice.second, "another")->required();
  diff->add_flag("--little-endian", choice.littleEndian, "of images");
  diff->callback([&] {
    choice.run = [&] {
      return tool::Diff(choice.project, choice.second, choice.littleEndian, std::cout);
    };
  });
}

void AddWritingCommands(CLI::App& projects, Choice& choice) {
  auto* set = AddProjectCommand(
      projects, choice, "set",
      "Changes one item's value. The module file is written anew; each time, the descriptions in "
      "it grow by a blank and a line end, as the format has it");
  set->add_option("path", choice.path, "its full path")->required();
  set->add_option("value", choice.value, "one word")->required();
  set->callback([&] {
    choice.run = [&] { return tool::Set(choice.project, choice.path, choice.value, std::cout); };
  });

  auto* build = AddProjectCommand(projects, choice, "image", "Builds the NV image and shows it");
  build->add_option("--output", choice.image.output, "write it to this file");
  build->add_option("--dsp-code", choice.image.dspCode,
                    "put this file's DSP code ahead of the items, and write the image to --output "
                    "or the project's TARGET");
  build->add_flag("--little-endian", choice.image.littleEndian, "least significant byte first");
  build->add_flag("--map", choice.image.map, "offset, length, id and path of every item");
  build->add_option("--time-stamp", choice.image.timeStamp, "the image's first four bytes");
  build->callback(
      [&] { choice.run = [&] { return tool::Image(choice.project, choice.image, std::cout); }; });

  auto* create = AddProjectCommand(projects, choice, "new",
                                   "Writes the file of a project without modules: it can be read "
                                   "once lines \"MODULE = file\" are added");
  create->add_option("--name", choice.create.name, "the project's name; otherwise the file's");
  create->add_option("--target", choice.create.target, "where its image goes");
  create->callback(
      [&] { choice.run = [&] { return tool::New(choice.project, choice.create, std::cout); }; });

  AddProjectCommand(projects, choice, "save",
                    "Writes the project file and all its module files anew, as the library does. "
                    "The project file then names its target and modules by absolute paths, so "
                    "that it no longer moves with its folder; descriptions grow as with set")
      ->callback([&] { choice.run = [&] { return tool::Save(choice.project, std::cout); }; });
}

void AddLogCommands(CLI::App& app, Choice& choice) {
  auto* logs = app.add_subcommand("log", "Writes logs");
  logs->require_subcommand(1);
  auto* render = logs->add_subcommand(
      "render",
      "Writes a raw recording of received data as a readable log, at the end of what is "
      "there. Every 1 MiB of it has offsets of its own");
  tool::RenderOptions& options = choice.render;
  render->add_option("recording", options.recording, "a file; otherwise standard input");
  render->add_option("--directory", options.directory, "where the log goes")->capture_default_str();
  render->add_option("--name", options.name, "the log's name; otherwise the recording's");
  render->add_option("--bytes-per-line", options.bytesPerLine, "1 to 16")
      ->check(CLI::Range(1, 16))
      ->capture_default_str();
  render->add_flag("--time-stamps", options.timeStamps, "of the rendering");
  render->add_flag("!--no-offsets", options.offsets, "without the offset of each line");
  render->add_flag("!--no-characters", options.characters, "without the column of characters");
  render->add_flag("--console", options.console, "show it as well");
  render->add_option("--extension", options.extension,
                     "also copy the bytes to a data file NAME_Rd with this extension");
  render->add_option("--size-limit", options.sizeLimitMb,
                     "in MB: a larger file is followed by NAME_1 and so on; 0: none");
  render->callback([&] { choice.run = [&] { return tool::Render(choice.render, std::cout); }; });
}

void AddListenCommand(CLI::App& app, Choice& choice) {
  auto* listen = app.add_subcommand("listen", "Shows the frames of one kind that come to a port");
  tool::ListenOptions& options = choice.listen;
  listen->add_option("port", options.port, "its number")->required()->check(CLI::PositiveNumber);
  listen->add_option("--type", options.type, "of the frames")->required()->check(CLI::Range(255));
  listen->add_option("--subtype", options.subtype, "of the frames")
      ->check(CLI::Range(255))
      ->capture_default_str();
  listen->add_option("--seconds", options.seconds, "how long")->capture_default_str();
  listen->add_option("--baud", options.baudRate, "bits a second")->capture_default_str();
  listen->callback([&] { choice.run = [&] { return tool::Listen(choice.listen, std::cout); }; });
}

}  // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): want of memory, before anything is done
int main(int argc, char** argv) {
  CLI::App app("Merovane's command-line tool", "merovane");
  app.require_subcommand(1);
  Choice choice;
  app.add_subcommand("results", "Every result code, its name and what it says")->callback([&] {
    choice.run = PrintResults;
  });
  auto* projects = app.add_subcommand("project", "Reads, checks and changes NV projects");
  projects->require_subcommand(1);
  AddReadingCommands(*projects, choice);
  AddWritingCommands(*projects, choice);
  AddLogCommands(app, choice);
  AddListenCommand(app, choice);
  // At a command line a file that cannot be used ends the command instead of opening a box.
  platform::SetMessageBox(
      [](const std::string& text, const std::string& /*caption*/) { throw tool::Trouble(text); });
  return tool::RunProgram(app, argc, argv, [&] { return choice.run(); });
}
