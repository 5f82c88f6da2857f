// A phone on a scripted handset, both logs, and the error-code library's view of results.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "commands/phone.h"
#include "support/bytes.h"
#include "support/fake_clock.h"
#include "support/guarded_buffer.h"
#include "support/log_reader.h"
#include "support/scripted_handset.h"
#include "support/temp_directory.h"

namespace merovane::test {

// Of this program alone: test programs run side by side and their logs carry the port's number.
std::int32_t TestPort();

class CommandFixture : public ::testing::Test {
 protected:
  CommandFixture();
  ~CommandFixture() override;

  // Opens the phone with the Useful log on, unless a test's own SetUp does otherwise.
  void SetUp() override;

  // For handset and library.
  void SetByteOrder(bool bigEndian);
  // Runs the body twice. Scripts are written inside, with fields from handset.Message().
  void InBothByteOrders(const std::function<void()>& body);

  // Reports the result as an exported function does; the operation that it is reported under.
  std::uint32_t OperationOf(Result result);

  // What the Useful log has gained since it was last asked; see LogReader.
  std::vector<std::string> Log() { return usefulLog.Take(); }
  std::vector<std::string> LogText() { return usefulLog.TakeText(); }
  // The same without the line that every request leaves.
  std::vector<std::string> LogNames();
  // Those, and the result's after them.
  void ExpectLogged(std::vector<std::string> names, Result result = Result::Success);
  // The call gives that result, and takes so long.
  void ExpectTakes(std::uint32_t ms, Result result, const std::function<Result()>& call);
  Bytes Checked(const Bytes& block);

  const std::int32_t port = TestPort();
  TempDirectory directory;
  FakeClock clock;
  LinkEnvironment environment{directory.Path()};
  LinkSettings& settings = environment.settings;
  LogReader usefulLog{port, "UsefulLog", directory.Path()};
  LogReader allLog{port, "AllLog", directory.Path()};
  ScriptedHandset handset{clock};
  std::shared_ptr<Phone> owner = std::make_shared<Phone>(environment, clock, handset.Library());
  Phone& phone = *owner;
};

// The result line of a log.
std::string ResultLine(Result result);

}  // namespace merovane::test
