#include "support/command_fixture.h"

#include <random>

#include "brimwell/brimwell.h"
#include "commands/crc16.h"

namespace merovane::test {

std::int32_t TestPort() {
  static const auto port = static_cast<std::int32_t>(1000 + std::random_device{}() % 900'000'000);
  return port;
}

CommandFixture::CommandFixture() { settings.usefulLog = true; }

CommandFixture::~CommandFixture() { static_cast<void>(phone.link.Close()); }

void CommandFixture::SetUp() {
  ASSERT_EQ(phone.link.Open(port, 115200), Result::Success);
  static_cast<void>(Log());
}

void CommandFixture::SetByteOrder(bool bigEndian) {
  settings.SetOrder(bigEndian ? ByteOrder::Big() : ByteOrder::Little());
  handset.SetBigEndian(bigEndian);
}

void CommandFixture::InBothByteOrders(const std::function<void()>& body) {
  for (const bool bigEndian : {true, false}) {
    SCOPED_TRACE(bigEndian ? "big-endian handset" : "little-endian handset");
    SetByteOrder(bigEndian);
    body();
    handset.Verify();
  }
}

std::uint32_t CommandFixture::OperationOf(Result result) {
  environment.errors.Report(result);
  BRIMWELL_ERROR error{};
  EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
  EXPECT_EQ(error.code, static_cast<std::int32_t>(result));
  return error.operation;
}

std::vector<std::string> CommandFixture::LogNames() {
  std::vector<std::string> lines = LogText();
  std::erase(lines, "Clear Port Buffer");
  return lines;
}

void CommandFixture::ExpectLogged(std::vector<std::string> names, Result result) {
  names.push_back(ResultLine(result));
  EXPECT_EQ(LogNames(), names);
}

void CommandFixture::ExpectTakes(std::uint32_t ms, Result result,
                                 const std::function<Result()>& call) {
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(call(), result);
  EXPECT_EQ(clock.NowMs() - before, ms);
}

Bytes CommandFixture::Checked(const Bytes& block) {
  return commands::WithChecksum(phone.link.Order(), block);
}

std::string ResultLine(Result result) {
  return "Error Code = " + std::to_string(static_cast<int>(result)) + " (" +
         std::string(ResultName(result)) + ")";
}

}  // namespace merovane::test
