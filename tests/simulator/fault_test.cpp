#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "simulator/on_the_line.h"

namespace {

using handset::Bytes;
using handset::Frame;
using handset::Handset;
using handset::HandsetOptions;
using handset::Reply;
using handset::TransportKind;
using merovane::test::kQuiet;
using merovane::test::OnTheLine;
using merovane::test::Running;
using merovane::test::StartedHandset;
using merovane::test::WireStation;
using testing::ElementsAre;
using namespace std::chrono_literals;

struct Misbehaving : testing::Test, OnTheLine {};

TEST_F(Misbehaving, FaultsStrikeExactlyTheNextAnswers) {
  phone.SetFault("duplicate=next:1");
  EXPECT_TRUE(line.Ask(28, 0));
  EXPECT_TRUE(line.Receive());

  phone.SetFault("refuse=next:1");
  EXPECT_EQ(line.Ask(12, 7), (Frame{12, 2, {}}));
  EXPECT_EQ(phone.State().mode, 1) << "refused means not carried out";
  phone.SetFault("refuse=next:1");
  EXPECT_EQ(line.Ask(104, 0, {'A', 'T'}), (Frame{213, 2, {}}))
      << "the type that the station waits for";

  phone.SetFault("silent=next:1");
  line.Send(12, 7);
  ASSERT_TRUE(phone.NextFrame(12, 7));
  EXPECT_EQ(phone.State().mode, 1);
  EXPECT_TRUE(line.Ask(28, 0));
}

TEST_F(Misbehaving, SplitAnswersArriveInPiecesAndMergedOnesTogether) {
  phone.SetFault("split=1,pieces:7,gap:2");
  EXPECT_EQ(line.Ask(28, 0).value().type, 28);
  // At once, the pieces would be one read.
  phone.SetFault("split=1,pieces:2,gap:60");
  line.Send(28, 0);
  EXPECT_LT(line.ReadRaw().size(), 14u);
  while (!line.ReadRaw(kQuiet).empty()) {
  }

  phone.SetFault("split=0");
  phone.SetFault("merge=next:1,hold:10000");
  line.Send(28, 0);
  line.Send(28, 1);
  EXPECT_EQ(line.ReadRaw().size(), 28u);
  phone.SetFault("merge=next:1,hold:20");
  EXPECT_TRUE(line.Ask(28, 0)) << "alone when nothing follows";
}

TEST_F(Misbehaving, DelayedAnswersKeepTheirOrder) {
  phone.SetFault("delay=next:1,ms:100");
  const auto before = std::chrono::steady_clock::now();
  line.Send(28, 0);
  line.Send(28, 1);
  EXPECT_EQ(line.Receive().value().subtype, 0);
  EXPECT_GE(std::chrono::steady_clock::now() - before, 100ms);
  EXPECT_EQ(line.Receive().value().subtype, 1);
}

TEST_F(Misbehaving, CorruptAnswersKeepTheirFlags) {
  phone.SetFault("corrupt=next:1,bytes:2");
  line.Send(28, 0);
  const Bytes bytes = line.ReadRaw();
  const Bytes good{0x7E, 0, 0, 0, 0, 0, 12, 28, 0, 0, 0, 0, 1, 0x7E};
  ASSERT_EQ(bytes.size(), good.size());
  EXPECT_NE(bytes, good);
  EXPECT_EQ(bytes.front(), 0x7E);
  EXPECT_EQ(bytes.back(), 0x7E);
}

TEST_F(Misbehaving, DisconnectsInsteadOfAnswering) {
  StartedHandset tcp(Running(TransportKind::Tcp));
  for (Handset* each : {&phone, &tcp}) {
    each->SetFault("disconnect=next:1");
    WireStation cut(each->Address());
    cut.Send(28, 0);
    EXPECT_TRUE(cut.WaitForHangup());
  }
  ASSERT_TRUE(merovane::test::WaitForPort(phone));
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0));
  EXPECT_TRUE(WireStation(tcp.Address()).Ask(28, 0));
}

TEST_F(Misbehaving, TheSameSeedRepeatsARun) {
  const auto run = [](std::uint64_t seed) {
    // What was done to each answer, as the transcript tells it.
    std::vector<std::string> answers;
    HandsetOptions options = Running();
    options.seed = seed;
    options.faults = {"drop=0.3", "duplicate=0.2", "corrupt=0.2"};
    options.traceInterval = 1ms;  // Their number differs between runs.
    options.transcript = [&](const std::string& text) {
      const std::size_t answer = text.find("<- 28/");
      if (answer != std::string::npos) answers.push_back(text.substr(answer));
    };
    OnTheLine each(options);
    each.line.Send(2, 6);
    for (int i = 0; i < 60; ++i) {
      each.line.Send(28, static_cast<std::uint8_t>(i % 2));
      EXPECT_TRUE(each.phone.NextFrame(28, static_cast<std::uint8_t>(i % 2)));
    }
    each.phone.State();  // The last one has been carried out.
    each.phone.Stop();
    return answers;
  };
  const auto first = run(11);
  EXPECT_EQ(first, run(11));
  EXPECT_NE(first, run(12));
}

TEST_F(Misbehaving, WordsThatAreNoFaultAreRefused) {
  for (const char* text :
       {"", "drop", "drop=", "drop=2", "drop=-1", "drop=x", "flood=1", "drop=next:", "drop=next:-1",
        "split=1,pieces:0", "split=1,gap", "drop=1,ms:5", "delay=0.5,ms:x"}) {
    EXPECT_THROW(phone.SetFault(text), std::invalid_argument) << text;
  }
  EXPECT_EQ(phone.Status("faults"), "none");
  phone.SetFault("drop=0.25");
  phone.SetFault("delay=next:3,ms:7");
  EXPECT_EQ(phone.Status("faults"), "drop=0.25 delay=next:3");
}

TEST_F(Misbehaving, ScriptsGiveAnyAnswer) {
  phone.ExpectOnce(13, 2, Reply::Answer(13, 0, {1}).InPieces(1, 1ms).Then(14, 9, {2}).After(5ms));
  phone.OnFrame(13, 2, [](const Frame& request) -> std::optional<Reply> {
    return Reply::Answer(13, 0, {request.payload.rbegin(), request.payload.rend()});
  });
  EXPECT_EQ(line.Ask(13, 2), (Frame{13, 0, {1}}));
  EXPECT_EQ(line.Receive(), (Frame{14, 9, {2}}));
  EXPECT_EQ(line.Ask(13, 2, {1, 2, 3}), (Frame{13, 0, {3, 2, 1}}));

  phone.ClearScripts();
  phone.OnFrame(28, 0, [](const Frame&) { return std::optional<Reply>(); });
  EXPECT_TRUE(line.Ask(28, 0)) << "no reply means the usual answer";
  phone.EditAnswers([](const Frame&, Frame& answer) { answer.payload.resize(2); });
  EXPECT_EQ(line.Ask(28, 0).value().payload.size(), 2u);
}

TEST_F(Misbehaving, TheJournalKeepsWhatWasHeard) {
  HandsetOptions options = Running();
  options.journalCapacity = 2;
  OnTheLine other(options);
  Handset& forgetful = other.phone;
  other.line.WriteRaw(handset::FromHex("7e 00 00 00 00 00 99 1c 00 7e"));
  for (std::uint8_t each = 50; each <= 52; ++each) EXPECT_TRUE(other.line.Ask(200, each, {7}));
  EXPECT_EQ(forgetful.ReceivedCount(200, 50), 0u);
  EXPECT_EQ(forgetful.Received().size(), 2u);
  EXPECT_EQ(forgetful.NextFrame(200, 52), (Frame{200, 52, {7}}));
  EXPECT_FALSE(forgetful.NextFrame(200, 52, 1ms)) << "each is given once";
  EXPECT_EQ(forgetful.Rejected().size(), 1u);
  forgetful.ClearJournal();
  EXPECT_TRUE(forgetful.Received().empty());
}

}  // namespace
