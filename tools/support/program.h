// What all tools do alike with their command lines and errors.
#pragma once

#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <iostream>
#include <string>

#include "merovane_version/version.h"
#include "support/exit_codes.h"

namespace merovane::tool {

// Runs the program that the application describes: parses the command line, then does `body`.
// Errors go to standard error, with the program's name.
inline int RunProgram(CLI::App& app, int argc, const char* const* argv,
                      const std::function<int()>& body) {
  app.set_version_flag("--version", kVersion);
  const auto fail = [&](const std::string& text) {
    std::cerr << app.get_name() << ": " << text << '\n';
    return kTrouble;
  };
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& wanted) {
    app.exit(wanted);
    return kOk;
  } catch (const CLI::ParseError& error) {
    // Of an unknown word and a missing one, the unknown one tells what is wrong.
    const auto unknown = app.remaining(true);
    return fail((unknown.empty() ? error.what() : "\"" + unknown.front() + "\" is not known here") +
                std::string("\nRun with --help for more information."));
  }
  try {
    return body();
  } catch (const std::exception& error) {
    return fail(error.what());
  }
}

}  // namespace merovane::tool
