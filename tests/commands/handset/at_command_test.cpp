#include "declared/phone_mode.h"
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
  // Answers the request with these frames.
  void Give(std::string_view command, std::initializer_list<std::string_view> frames) {
    Exchange& exchange = ExpectAt(command);
    for (const std::string_view frame : frames) exchange.Answer(156, 0, Text(frame));
  }
  Result SendCollected(std::uint32_t capacity = 64) {
    return commands::SendAtCommand(phone, "AT+X", 0, 1, answer.Data(), capacity, &length, 500);
  }
  Result SendFiltered(std::uint32_t capacity = 64) {
    return commands::SendAT(phone, "AT+X\r", 5, answer.Data(), capacity, &length, 500);
  }
  std::string Answered() { return {answer.Data(), length}; }

  GuardedBuffer<char> answer{64};
  std::uint32_t length = 77;
};

TEST_F(AtCommand, CollectsFramesUntilTheFinalOk) {
  ExpectAt("AT+X\r\n")
      .Answer(156, 0, Text("\r\n+X: OK\r\n1\r\n"))
      .Answer(9, 9)
      .Answer(156, 2)  // a failed wait does not end the collecting
      .After(400)
      .Answer(156, 0, Text("a"))
      .After(450)  // a further frame may take the whole limit
      .Answer(156, 0, Text("\r\nOK\r\n"));
  EXPECT_EQ(SendCollected(), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 15u);
  EXPECT_EQ(Answered(), "\r\n+X: OK\r\n1\r\na\r\nOK\r\n");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  EXPECT_THAT(LogText(),
              ElementsAre("SendAtCommand:", "Clear Port Buffer", ResultLine(Result::Success)));
}

TEST_F(AtCommand, TheEndIsSoughtWithoutTestingAMismatchAgain) {
  for (const auto& [text, ends] : {std::pair{"\r\nOK\r\n", true},
                                   {"OOK\r\n", false},
                                   {"OK\r\nx", false},
                                   {"OK\r\nOK\r\n", false},
                                   {"xOK\r\n", true},
                                   {"", false}}) {
    SCOPED_TRACE(text);
    Give("AT+X\r\n", {text});
    const std::uint32_t before = clock.NowMs();
    EXPECT_EQ(SendCollected(), Result::Success);
    EXPECT_EQ(Answered(), text);
    EXPECT_EQ(clock.NowMs() - before < 500, ends);
  }
}

TEST_F(AtCommand, AnAnswerThatDoesNotFitGivesWhatFitted) {
  Give("AT+X\r\n", {"1234", "5678"});
  EXPECT_EQ(SendCollected(7), Result::BufferTooSmall);
  EXPECT_EQ(Answered(), "1234");
  EXPECT_TRUE(answer.UntouchedFrom(4));
  Give("AT+X\r", {"1234\r\n", "5678\r\n"});
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
  EXPECT_EQ(commands::SendAT(phone, "AT", 2, nullptr, 0, &length, 10), Result::Success);
  ExpectAt("AT");
  EXPECT_EQ(commands::SendAT(phone, "AT", 2, answer.Data(), 64, nullptr, 10), Result::Success);
  EXPECT_TRUE(answer.Untouched());
  EXPECT_EQ(length, 77u);
}

TEST_F(AtCommand, TheFilteredAnswerHasNoLineEndsAndNoFinalFrame) {
  using namespace std::string_view_literals;
  Give("AT+X\r", {"\r\n+X: 1\r\n", "2\0three"sv, "rest\r\nOK\r\n"});
  EXPECT_EQ(SendFiltered(), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 219u);
  EXPECT_EQ(Answered(), "+X: 12");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  EXPECT_THAT(LogText(), ElementsAre("SendAT:", "Clear Port Buffer", ResultLine(Result::Success)));
  // A prompt ends it too.
  Give("AT+X\r", {">"});
  EXPECT_EQ(SendFiltered(), Result::Success);
  EXPECT_EQ(length, 0u);
}

TEST_F(AtCommand, TheServingCellReadsAsManyNumbersAsThereAre) {
  GuardedBuffer<QV_CELL_INFO> cell;
  Give("AT+CCED=0,1\r\n", {"ERROR\r\nOK\r\n"});
  EXPECT_EQ(commands::GetCurrCellInfo(phone, cell.Data()), Result::NoUsefulData);
  EXPECT_TRUE(cell.Untouched());
  ExpectAt("AT+CCED=0,1\r\n").Silent();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(commands::GetCurrCellInfo(phone, cell.Data()), Result::NoData);
  EXPECT_EQ(clock.NowMs() - before, 2000u);
  static_cast<void>(Log());
  Give("AT+CCED=0,1\r\n", {"\r\n+CCED:1,-2,3\r\nOK\r\n"});
  EXPECT_EQ(commands::GetCurrCellInfo(phone, cell.Data()), Result::Success);
  EXPECT_THAT(cell[0].values, ElementsAre(1, -2, 3, 0, 0, 0, 0, 0));
  EXPECT_THAT(LogText(),
              ElementsAre("SendAtCommand:", "Clear Port Buffer", ResultLine(Result::Success)));
}

}  // namespace
}  // namespace merovane::test
