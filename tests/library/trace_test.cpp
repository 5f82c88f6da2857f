// Calls are traced and told of as they were, whatever they were given.
// Wrong arguments are handed in on purpose.
#define MEROVANE_NO_ANNOTATIONS

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <nlohmann/json.hpp>
#include <sstream>
#include <thread>

#include "merovane/diagnostics.h"
#include "platform/files.h"
#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

using nlohmann::json;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

struct TraceTest : StationTest {
  TraceTest() { SwitchOn(RunningIn(1)); }
  ~TraceTest() override {
    Merovane_SetTrace(MEROVANE_TRACE_OFF);
    Merovane_SetListener(nullptr, nullptr);
    std::error_code ignored;
    for (const auto& file : {File(kPort), File(0)}) std::filesystem::remove(file, ignored);
  }

  static std::filesystem::path File(std::int32_t port) {
    const auto name = "Com" + std::to_string(port) + "_Trace.jsonl";
    std::error_code error;
    const auto logs = platform::ExecutableDirectory() / "Log";
    for (const auto& day : std::filesystem::directory_iterator(logs, error)) {
      if (std::filesystem::is_symlink(day.path() / name) ||
          std::filesystem::exists(day.path() / name)) {
        return day.path() / name;
      }
    }
    return {};
  }
  static std::vector<json> Traced(std::int32_t port) {
    EXPECT_EQ(Merovane_Flush(20000), 1);
    std::istringstream text(FileText(File(port)));
    std::vector<json> calls;
    for (std::string line; std::getline(text, line);) calls.push_back(json::parse(line));
    return calls;
  }
  static std::string Problems() {
    std::string text(Merovane_Settings(nullptr, 0), '\0');
    Merovane_Settings(text.data(), static_cast<std::uint32_t>(text.size()));
    text.pop_back();
    return json::parse(text)["problems"].dump();
  }
};

TEST_F(TraceTest, HoldsEachCallWithItsArgumentsAndExchanges) {
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_PAYLOADS), PC_ERR_SUCCESS);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
  const std::uint8_t written[] = {1, 2, 0xAB};
  ASSERT_EQ(QV_WriteFlash(700, written, 3, 2000), PC_ERR_SUCCESS);
  std::uint8_t read[8] = {};
  std::uint32_t length = 0;
  ASSERT_EQ(QV_ReadFlash_MT(kPort, 700, read, 3, &length, 2000), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadFlash_MT(kPort, 700, nullptr, -5, &length, 2000), PC_ERR_INVALID_PARAM);
  std::uint8_t mode[4] = {};
  ASSERT_EQ(QV_ReadMode(mode, sizeof mode), PC_ERR_SUCCESS);
  phone->ExpectOnce(12, 0, Reply::Nothing());
  EXPECT_EQ(QV_RestartPhone(50), PC_ERR_NO_ANSWER);
  ASSERT_EQ(QV_EndPhoneTest(), PC_ERR_SUCCESS);

  // The end of a session waits for its calls to be there, its own too.
  std::istringstream text(FileText(File(0)));
  EXPECT_EQ(json::parse(text)["function"], "QV_EndPhoneTest");
  const auto calls = Traced(kPort);
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[0]["function"], "QV_BeginPhoneTest");
  const json& write = calls[1];
  EXPECT_EQ(write["port"], kPort) << "the default object's";
  EXPECT_EQ(write["arguments"], json::parse(R"({"item":700,"data":{"bytes":3,"hex":"0102AB"},
                                                "length":3,"timeout_ms":2000})"));
  const json& answered = calls[2];
  EXPECT_EQ(answered["arguments"]["data"], json::parse(R"({"bytes":3,"hex":"0102AB"})"));
  EXPECT_EQ(answered["arguments"]["data_length"], 3);
  EXPECT_EQ(answered["name"], "PC_ERR_SUCCESS");
  ASSERT_EQ(answered["exchanges"].size(), 1u);
  const json& exchange = answered["exchanges"][0];
  EXPECT_EQ(exchange["request"], "13/2");
  EXPECT_EQ(exchange["bytes"], 4);
  EXPECT_EQ(exchange["answer"], "13/0");
  EXPECT_EQ(exchange["answer_bytes"], 7);
  EXPECT_GE(answered["us"], exchange["at_us"].get<int>() + exchange["us"].get<int>());
  const json& refused = calls[3];
  EXPECT_EQ(refused["result"], PC_ERR_INVALID_PARAM);
  EXPECT_EQ(refused["arguments"]["data"], nullptr);
  EXPECT_EQ(refused["arguments"]["length"], -5);
  EXPECT_THAT(refused["failure"]["advice"], HasSubstr("null pointer"));
  EXPECT_EQ(calls[4]["arguments"]["data"], json::parse(R"({"room":4})"))
      << "how much arrived nothing tells, so the rest may be anything";
  const json& silence = calls[5]["exchanges"][0];
  EXPECT_EQ(silence["answer"], nullptr);
  EXPECT_GE(silence["us"], 49'000);
}

TEST_F(TraceTest, IsSwitchedWhileRunningAndTakesCallsWithoutAPort) {
  EXPECT_EQ(Merovane_SetTrace(3), PC_ERR_INVALID_PARAM);
  EXPECT_EQ(QV_LedOn_MT(kPort, 1), PC_ERR_PORT_NOT_OPEN);
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_CALLS), PC_ERR_SUCCESS);
  QV_SetRecvMode(0);
  EXPECT_EQ(QV_IsPhoneAssert(), 0);
  // Nothing where its pointer leads is looked at: the property is none that has a value.
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made up on purpose
  auto* const nowhere = reinterpret_cast<std::uint32_t*>(std::uintptr_t{8});
  EXPECT_EQ(QV_GetProperty(1, 0, nowhere), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_OpenPrjFile("/no/such/project.prj"), PC_ERR_PORT_NOT_OPEN);
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_OFF), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_LedOn_MT(kPort, 1), PC_ERR_PORT_NOT_OPEN);
  const auto calls = Traced(0);
  ASSERT_EQ(calls.size(), 4u);
  EXPECT_EQ(calls[0]["function"], "QV_SetRecvMode");
  EXPECT_EQ(calls[1]["result"], 0);
  EXPECT_EQ(calls[1].count("name"), 0u) << "a number that is no result";
  EXPECT_TRUE(File(kPort).empty());
}

TEST_F(TraceTest, TakesCallsOfManyThreadsWhole) {
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_CALLS), PC_ERR_SUCCESS);
  std::vector<std::jthread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] {
      for (int call = 0; call < 250; ++call) QV_LedOn_MT(kPort, 1);
    });
  }
  threads.clear();
  EXPECT_EQ(Traced(kPort).size(), 1000u);
}

TEST_F(TraceTest, TellsOfLinesThatADiskDidNotTake) {
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_CALLS), PC_ERR_SUCCESS);
  QV_LedOn_MT(kPort, 1);
  ASSERT_EQ(Traced(kPort).size(), 1u);
  const auto file = File(kPort);
  std::filesystem::remove(file);
  std::filesystem::create_symlink("/dev/full", file);
  for (int call = 0; call < 3; ++call) EXPECT_EQ(QV_LedOn_MT(kPort, 1), PC_ERR_PORT_NOT_OPEN);
  EXPECT_EQ(Merovane_Flush(20000), 1);
  EXPECT_THAT(Problems(), HasSubstr("3 lines are missing in " + file.string()));

  std::filesystem::remove(file);
  QV_LedOn_MT(kPort, 1);
  const auto lines = Traced(kPort);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0]["missing"], 3);
  EXPECT_EQ(lines[1]["function"], "QV_LedOn_MT");
}

struct Heard {
  std::mutex mutex;
  std::vector<std::string> lines;
  std::vector<std::string> functions;
  std::thread::id thread;

  static void MEROVANE_CALL Tell(void* context, std::uint32_t event, std::int32_t,
                                 const char* text) {
    auto& heard = *static_cast<Heard*>(context);
    const std::lock_guard lock(heard.mutex);
    heard.thread = std::this_thread::get_id();
    if (event == MEROVANE_EVENT_LOG_LINE) heard.lines.emplace_back(text);
    if (event == MEROVANE_EVENT_CALL) heard.functions.push_back(json::parse(text)["function"]);
    // It may call what it likes, and hears nothing of that.
    EXPECT_EQ(Merovane_Flush(20000), 0);
    EXPECT_EQ(QV_LedOn_MT(99, 1), PC_ERR_PORT_NOT_OPEN);
    EXPECT_EQ(QV_LedOn_MT(kPort, 1), PC_ERR_SUCCESS);
  }
};

TEST_F(TraceTest, AListenerHearsLinesAndCallsOnAnotherThread) {
  Heard heard;
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
  ASSERT_EQ(Merovane_SetListener(Heard::Tell, &heard), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_LedOn(1), PC_ERR_SUCCESS);
  EXPECT_EQ(Merovane_Flush(20000), 1);
  EXPECT_EQ(Merovane_SetListener(nullptr, nullptr), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_LedOn(0), PC_ERR_SUCCESS);
  EXPECT_THAT(heard.lines, Contains("LedOn:"));
  EXPECT_THAT(heard.lines, Contains(HasSubstr("--> 7E 00 00 00 00")));
  EXPECT_THAT(heard.lines, Contains("Error Code = 0 (PC_ERR_SUCCESS)"));
  EXPECT_THAT(heard.lines, Not(Contains("LedOff:")));
  EXPECT_THAT(heard.functions, ElementsAre("QV_LedOn"));
  EXPECT_NE(heard.thread, std::this_thread::get_id());
  EXPECT_TRUE(File(kPort).empty()) << "listening writes no trace";
}

TEST_F(TraceTest, AListenerThatHangsHoldsNoCallUpAndTheTraceSaysWhatItCost) {
  struct Hanging {
    std::atomic<bool> released = false;
    std::uint64_t heard = 0;
  } listener;
  const auto hang = [](void* context, std::uint32_t event, std::int32_t, const char* text) {
    auto& self = *static_cast<Hanging*>(context);
    self.released.wait(false);
    self.heard += event == MEROVANE_EVENT_CALL ? 1 : std::strtoull(text, nullptr, 10);
  };
  ASSERT_EQ(Merovane_SetListener(hang, &listener), PC_ERR_SUCCESS);
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_CALLS), PC_ERR_SUCCESS);
  constexpr std::uint64_t kCalls = 30'000;
  const auto start = std::chrono::steady_clock::now();
  for (std::uint64_t call = 0; call < kCalls; ++call) QV_LedOn_MT(kPort, 1);
  EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
  EXPECT_EQ(Merovane_Flush(0), 0);
  listener.released = true;
  listener.released.notify_all();
  const auto lines = Traced(kPort);
  const json& gap = lines.back();
  EXPECT_EQ(lines.size() - 1 + gap["missing"].get<std::uint64_t>(), kCalls);
  EXPECT_EQ(listener.heard, kCalls);
  EXPECT_THAT(Problems(), HasSubstr("calls came faster"));
}

}  // namespace
}  // namespace merovane::test
