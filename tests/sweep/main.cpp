// merovane-sweep: see sweep.h. Without options, what fits between other tests.
#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>

#include "merovane/diagnostics.h"
#include "support/temp_directory.h"
#include "sweep/planted.h"
#include "sweep/sweep.h"

namespace {

using namespace merovane::sweep;

// Touching a guard ends the process: the last words name the call.
extern "C" void OnCrash(int) {
  const Call* const call = Call::Running();
  std::printf("%s: touched memory that is not its caller's\n",
              call != nullptr ? call->Text().c_str() : "between calls");
  std::fflush(stdout);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int count, char** arguments) try {
  CLI::App app("Calls every export in every way that its declaration tells apart");
  Plan plan;
  std::string planted;
  bool shortly = false;
  bool traced = false;
  app.add_flag("--short", shortly, "few ports, few lengths, short waits");
  app.add_flag("--receive-thread", plan.receiveThread, "ports receive in threads of their own");
  app.add_flag("--trace", traced, "calls are traced, with all that their pointers lead to");
  app.add_option("--ports", plan.ports, "as many handsets at once")->check(CLI::Range(1, 140));
  app.add_option("--longest-wait", plan.longestWaitMs, "leave out exports that wait longer [ms]");
  app.add_option("--only", plan.only, "exports whose names contain this");
  app.add_option("--plant", planted, "put a fault into one export: overrun, null, limit");
  CLI11_PARSE(app, count, arguments);
  if (shortly) {
    plan.ports = 8;
    plan.everyLength = false;
    plan.longestWaitMs = 100;
  }
  // A sanitizer shows more than the call.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  std::signal(SIGSEGV, OnCrash);
#endif
  std::optional<merovane::test::TempDirectory> traces;
  if (traced) {
    traces.emplace();
    Merovane_SetFolder(traces->Path().string().c_str());
    Merovane_SetTrace(MEROVANE_TRACE_PAYLOADS);
  }
  const std::span<const Export> surface = Surface();
  Sweep sweep(
      planted.empty() ? std::vector<Export>(surface.begin(), surface.end()) : SurfaceWith(planted),
      plan);
  sweep.Run();
  if (traced) {
    Merovane_SetTrace(MEROVANE_TRACE_OFF);
    Merovane_Flush(10'000);
  }
  std::cout << surface.size() << " exports, " << sweep.Calls() << " calls, " << sweep.Answered()
            << " requests answered, " << sweep.Findings().size() << " findings\n";
  return sweep.Findings().empty() && sweep.Calls() > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return EXIT_FAILURE;
}
