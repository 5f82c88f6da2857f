#include "commands/test/at_command.h"

#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

Bytes Text(std::string_view text) { return Bytes(text.begin(), text.end()); }

struct AtCommand : CommandFixture {
  // The request and its acknowledgement; the lines that answer it are added by the caller.
  Exchange& ExpectAt(std::string_view command) {
    return handset.Expect(104, 0, Text(command)).Answer(213, 0, "00");
  }
  Result SendCollected(std::uint32_t capacity = 64, std::uint32_t timeoutMs = 500) {
    return commands::SendAtCommand(phone, "AT+X", 0, 1, answer.Data(), capacity, &length,
                                   timeoutMs);
  }
  Result SendFiltered(std::uint32_t capacity = 64, std::uint32_t timeoutMs = 500) {
    return commands::SendAT(phone, "AT+X\r", 5, answer.Data(), capacity, &length, timeoutMs);
  }
  std::string Answered() { return {answer.Data(), length}; }

  GuardedBuffer<char> answer{64};
  std::uint32_t length = 77;
};

TEST_F(AtCommand, RefusesArgumentsWithNothingSentOrLogged) {
  using commands::SendAT;
  using commands::SendAtCommand;
  char* const out = answer.Data();
  std::vector<char> longText(9216, 'A');
  longText.back() = '\0';
  for (const Result result : {SendAtCommand(phone, nullptr, 0, 1, out, 64, &length, 10),
                              SendAtCommand(phone, "AT", 2, 1, nullptr, 64, &length, 10),
                              SendAtCommand(phone, "AT", 2, 1, out, 0, &length, 10),
                              SendAtCommand(phone, "AT", 2, 1, out, 64, nullptr, 10),
                              SendAtCommand(phone, "AT", 2, 1, out, 64, &length, 0),
                              SendAtCommand(phone, longText.data(), 2, 0, out, 64, &length, 10)}) {
    EXPECT_EQ(result, Result::InvalidParam);
    EXPECT_EQ(OperationOf(result), 15u);
  }
  for (const Result result : {SendAT(phone, nullptr, 2, out, 64, &length, 10),
                              SendAT(phone, "AT", 0, out, 64, &length, 10),
                              SendAT(phone, "AT", 9217, out, 64, &length, 10),
                              SendAT(phone, "AT", 2, out, 64, &length, 0)}) {
    EXPECT_EQ(result, Result::InvalidParam);
    EXPECT_EQ(OperationOf(result), 219u);
  }
  const Result noRecord = commands::GetCurrCellInfo(phone, nullptr);
  EXPECT_EQ(noRecord, Result::InvalidParam);
  EXPECT_EQ(OperationOf(noRecord), 16u);
  EXPECT_THAT(Log(), ElementsAre());
}

TEST_F(AtCommand, CollectsFramesUntilTheFinalOk) {
  ExpectAt("AT+X\r\n")
      .Answer(156, 0, Text("\r\n+X: OK\r\n1\r\n"))
      .Answer(9, 9)
      .After(400)
      .Answer(156, 0, Text("\r\nOK\r\n"));
  const Result result = SendCollected();
  EXPECT_EQ(result, Result::Success);
  EXPECT_EQ(OperationOf(result), 15u);
  EXPECT_EQ(Answered(), "\r\n+X: OK\r\n1\r\n\r\nOK\r\n");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  EXPECT_THAT(LogText(),
              ElementsAre("SendAtCommand:", "Clear Port Buffer", ResultLine(Result::Success)));
}

TEST_F(AtCommand, TheEndIsSoughtWithoutTestingAMismatchAgain) {
  struct Case {
    const char* text;
    bool ends;
  };
  for (const Case& each : {Case{"\r\nOK\r\n", true}, Case{"OOK\r\n", false}, Case{"OK\r\nx", false},
                           Case{"OK\r\nOK\r\n", false}, Case{"xOK\r\n", true}, Case{"", false}}) {
    SCOPED_TRACE(each.text);
    ExpectAt("AT+X\r\n").Answer(156, 0, Text(each.text));
    const std::uint32_t before = clock.NowMs();
    EXPECT_EQ(SendCollected(), Result::Success);
    EXPECT_EQ(Answered(), each.text);
    EXPECT_EQ(clock.NowMs() - before < 500, each.ends);
  }
}

TEST_F(AtCommand, OneFurtherFrameMayTakeTheWholeLimit) {
  ExpectAt("AT+X\r\n")
      .After(400)
      .Answer(156, 0, Text("a"))
      .After(450)
      .Answer(156, 0, Text("OK\r\n"));
  EXPECT_EQ(SendCollected(), Result::Success);
  EXPECT_EQ(Answered(), "aOK\r\n");
}

TEST_F(AtCommand, AFailedWaitDoesNotEndTheCollecting) {
  ExpectAt("AT+X\r\n").Answer(156, 2).Answer(156, 0, Text("OK\r\n"));
  EXPECT_EQ(SendCollected(), Result::Success);
  EXPECT_EQ(Answered(), "OK\r\n");
}

TEST_F(AtCommand, AnAnswerThatDoesNotFitGivesWhatFitted) {
  ExpectAt("AT+X\r\n").Answer(156, 0, Text("1234")).Answer(156, 0, Text("5678"));
  EXPECT_EQ(SendCollected(7), Result::BufferTooSmall);
  EXPECT_EQ(Answered(), "1234");
  EXPECT_TRUE(answer.UntouchedFrom(4));
  ExpectAt("AT+X\r").Answer(156, 0, Text("1234\r\n")).Answer(156, 0, Text("5678\r\n"));
  EXPECT_EQ(SendFiltered(7), Result::BufferTooSmall);
  EXPECT_EQ(Answered(), "1234");
  EXPECT_TRUE(answer.UntouchedFrom(4));
}

TEST_F(AtCommand, WithoutAnAnswerTheResultIsSixAndTheLengthNone) {
  ExpectAt("AT+X\r\n").Silent();
  EXPECT_EQ(SendCollected(), Result::NoData);
  EXPECT_EQ(length, 0u);
  length = 77;
  ExpectAt("AT+X\r").Silent();
  EXPECT_EQ(SendFiltered(), Result::NoData);
  EXPECT_EQ(length, 0u);
  EXPECT_TRUE(answer.Untouched());
}

TEST_F(AtCommand, WithoutAnAcknowledgementNothingElseIsTouched) {
  handset.Expect(104, 0, Text("AT+X\r\n")).Answer(156, 0, Text("OK\r\n"));
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(SendCollected(), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 1000u);
  EXPECT_EQ(length, 77u);
  handset.Expect(104, 0, Text("AT\r\n")).Answer(213, 2);
  EXPECT_EQ(commands::SendAtCommand(phone, "AT", 2, 0, nullptr, 0, nullptr, 10), Result::Refused);
}

TEST_F(AtCommand, OnlyTheAcknowledgementIsAwaitedWhenNothingElseIsAskedFor) {
  ExpectAt("AT\r\n");
  EXPECT_EQ(commands::SendAtCommand(phone, "AT", 99, 0, nullptr, 0, nullptr, 10), Result::Success);
  ExpectAt("AT");
  EXPECT_EQ(commands::SendAT(phone, "AT", 2, nullptr, 64, &length, 10), Result::Success);
  ExpectAt("AT");
  EXPECT_EQ(commands::SendAT(phone, "AT", 2, answer.Data(), 64, nullptr, 10), Result::Success);
  EXPECT_TRUE(answer.Untouched());
  EXPECT_EQ(length, 77u);
}

TEST_F(AtCommand, TheFilteredAnswerHasNoLineEndsAndNoFinalFrame) {
  ExpectAt("AT+X\r")
      .Answer(156, 0, Text("\r\n+X: 1\r\n"))
      .Answer(156, 0, Text(std::string_view("2\0three", 7)))
      .Answer(156, 0, Text("rest\r\nOK\r\n"));
  const Result result = SendFiltered();
  EXPECT_EQ(result, Result::Success);
  EXPECT_EQ(OperationOf(result), 219u);
  EXPECT_EQ(Answered(), "+X: 12");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  EXPECT_THAT(LogText(), ElementsAre("SendAT:", "Clear Port Buffer", ResultLine(Result::Success)));
}

TEST_F(AtCommand, APromptEndsTheFilteredAnswer) {
  ExpectAt("AT+X\r").Answer(156, 0, Text(">"));
  EXPECT_EQ(SendFiltered(), Result::Success);
  EXPECT_EQ(length, 0u);
}

TEST_F(AtCommand, TheServingCellReadsAsManyNumbersAsThereAre) {
  GuardedBuffer<QV_CELL_INFO> cell;
  ExpectAt("AT+CCED=0,1\r\n").Answer(156, 0, Text("\r\n+CCED:1,-2,3\r\nOK\r\n"));
  const Result result = commands::GetCurrCellInfo(phone, cell.Data());
  EXPECT_EQ(result, Result::Success);
  EXPECT_THAT(cell[0].values, ElementsAre(1, -2, 3, 0, 0, 0, 0, 0));
  EXPECT_THAT(LogText(),
              ElementsAre("SendAtCommand:", "Clear Port Buffer", ResultLine(Result::Success)));
}

TEST_F(AtCommand, AnAnswerWithoutTheServingCellGivesThirtyOne) {
  GuardedBuffer<QV_CELL_INFO> cell;
  ExpectAt("AT+CCED=0,1\r\n").Answer(156, 0, Text("ERROR\r\nOK\r\n"));
  EXPECT_EQ(commands::GetCurrCellInfo(phone, cell.Data()), Result::NoUsefulData);
  EXPECT_TRUE(cell.Untouched());
}

}  // namespace
}  // namespace merovane::test
