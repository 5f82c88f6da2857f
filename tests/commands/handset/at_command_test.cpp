#include "declared/phone_mode.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

struct AtCommand : CommandFixture {
  // The request and its acknowledgement; the lines that answer it are added by the caller.
  Exchange& ExpectAt(std::string_view command) {
    return handset.Expect(104, 0, handset::ToBytes(command)).Answer(213, 0, "00");
  }
  // Answers the request with these frames.
  void Give(std::string_view command, std::initializer_list<std::string_view> frames) {
    Exchange& exchange = ExpectAt(command);
    for (const std::string_view frame : frames) exchange.Answer(156, 0, handset::ToBytes(frame));
  }
  // With all that comes, or with its lines only.
  Result Send(bool lines, std::uint32_t capacity = 64) {
    return lines ? commands::SendAT(phone, "AT+X\r\n", 6, answer.Data(), capacity, &length, 500)
                 : commands::SendAtCommand(phone, "AT+X", 0, 1, answer.Data(), capacity, &length,
                                           500);
  }
  std::string Answered() { return {answer.Data(), length}; }

  GuardedBuffer<char> answer{64};
  std::uint32_t length = 77;
};

TEST_F(AtCommand, CollectsFramesUntilTheFinalOk) {
  ExpectAt("AT+X\r\n")
      .Answer(156, 0, handset::ToBytes("\r\n+X: OK\r\n1\r\n"))
      .Answer(9, 9)
      .Answer(156, 2)  // a failed wait does not end the collecting
      .After(400)
      .Answer(156, 0, handset::ToBytes("a"))
      .After(450)  // a further frame may take the whole limit
      .Answer(156, 0, handset::ToBytes("\r\nOK\r\n"));
  EXPECT_EQ(Send(false), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 15u);
  EXPECT_EQ(Answered(), "\r\n+X: OK\r\n1\r\na\r\nOK\r\n");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  ExpectLogged({"SendAtCommand:"});
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
    EXPECT_EQ(Send(false), Result::Success);
    EXPECT_EQ(Answered(), text);
    EXPECT_EQ(clock.NowMs() - before < 500, ends);
  }
}

TEST_F(AtCommand, GivesWhatFittedAndNothingWhenNoAnswerComes) {
  for (const bool lines : {false, true}) {
    Give("AT+X\r\n", {"1234", "5678"});
    EXPECT_EQ(Send(lines, 7), Result::BufferTooSmall);
    EXPECT_EQ(Answered(), "1234");
    EXPECT_TRUE(answer.UntouchedFrom(4));
    ExpectAt("AT+X\r\n").Silent();
    EXPECT_EQ(Send(lines), Result::NoData);
    EXPECT_EQ(length, 0u);
  }
}

TEST_F(AtCommand, WithoutAnAcknowledgementNothingElseIsTouched) {
  handset.Expect(104, 0, handset::ToBytes("AT+X\r\n")).Answer(156, 0, handset::ToBytes("OK\r\n"));
  ExpectTakes(1000, Result::NoAnswer, [&] { return Send(false); });
  EXPECT_EQ(length, 77u);
  handset.Expect(104, 0, handset::ToBytes("AT\r\n")).Answer(213, 2);
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
  Give("AT+X\r\n", {"\r\n+X: 1\r\n", "2\0three"sv, "rest\r\nOK\r\n"});
  EXPECT_EQ(Send(true), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 219u);
  EXPECT_EQ(Answered(), "+X: 12");
  EXPECT_TRUE(answer.UntouchedFrom(length));
  ExpectLogged({"SendAT:"});
  // A prompt ends it too.
  Give("AT+X\r\n", {">"});
  EXPECT_EQ(Send(true), Result::Success);
  EXPECT_EQ(length, 0u);
}

TEST_F(AtCommand, TheServingCellReadsAsManyNumbersAsThereAre) {
  GuardedBuffer<QV_CELL_INFO> cell;
  const auto read = [&] { return commands::GetCurrCellInfo(phone, cell.Data()); };
  Give("AT+CCED=0,1\r\n", {"ERROR\r\nOK\r\n"});
  EXPECT_EQ(read(), Result::NoUsefulData);
  EXPECT_TRUE(cell.Untouched());
  ExpectAt("AT+CCED=0,1\r\n").Silent();
  ExpectTakes(2000, Result::NoData, read);
  Give("AT+CCED=0,1\r\n", {"\r\n+CCED:1,-2,3\r\nOK\r\n"});
  static_cast<void>(Log());
  EXPECT_EQ(read(), Result::Success);
  EXPECT_THAT(cell[0].values, ElementsAre(1, -2, 3, 0, 0, 0, 0, 0));
  ExpectLogged({"SendAtCommand:"});
}

}  // namespace
}  // namespace merovane::test
