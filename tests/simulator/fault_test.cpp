#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "handset/handset.h"
#include "simulator/station.h"

namespace {

using handset::Bytes;
using handset::Frame;
using handset::Handset;
using handset::HandsetOptions;
using handset::Reply;
using handset::TransportKind;
using station::kPatience;
using station::kQuiet;
using station::Station;
using testing::ElementsAre;
using namespace std::chrono_literals;

class Misbehaving : public testing::Test {
 protected:
  Misbehaving() : phone(Options()) { phone.Start(); }

  static HandsetOptions Options() {
    HandsetOptions options;
    options.startMode = 1;
    return options;
  }

  Handset phone;
};

TEST_F(Misbehaving, FaultsStrikeExactlyTheNextAnswers) {
  Station line(phone.Address());
  phone.SetFault("drop=next:1");
  line.Send(28, 0);
  ASSERT_TRUE(phone.NextFrame(28, 0));
  line.Send(28, 1);
  auto answer = line.Receive();
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->subtype, 1) << "the first answer was lost";

  phone.SetFault("duplicate=next:1");
  EXPECT_TRUE(line.Ask(28, 0));
  EXPECT_TRUE(line.Receive());

  phone.SetFault("refuse=next:1");
  answer = line.Ask(12, 7);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->subtype, 2);
  EXPECT_EQ(phone.State().mode, 1) << "refused means not carried out";
  phone.SetFault("refuse=next:1");
  answer = line.Ask(104, 0, {'A', 'T'});
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->type, 213) << "refused by the type that the station waits for";
  EXPECT_EQ(answer->subtype, 2);

  phone.SetFault("silent=next:1");
  line.Send(12, 7);
  ASSERT_TRUE(phone.NextFrame(12, 7));
  EXPECT_EQ(phone.State().mode, 1);
  EXPECT_TRUE(line.Ask(28, 0));
}

TEST_F(Misbehaving, SplitAnswersArriveInPiecesAndMergedOnesTogether) {
  Station line(phone.Address());
  phone.OnFrame(93, 0, Reply::Answer(93, 0, {1, 2, 3, 4}));
  phone.SetFault("split=1,pieces:7,gap:2");
  std::optional<station::Packet> packet = line.Ask(28, 0);
  ASSERT_TRUE(packet);
  EXPECT_EQ(packet->type, 28);

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
  Station line(phone.Address());
  phone.SetFault("delay=next:1,ms:100");
  auto before = std::chrono::steady_clock::now();
  line.Send(28, 0);
  line.Send(28, 1);
  auto first = line.Receive();
  EXPECT_GE(std::chrono::steady_clock::now() - before, 100ms);
  auto second = line.Receive();
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->subtype, 0);
  EXPECT_EQ(second->subtype, 1);
}

TEST_F(Misbehaving, CorruptAnswersKeepTheirFlags) {
  Station line(phone.Address());
  phone.SetFault("corrupt=next:1,bytes:2");
  line.Send(28, 0);
  Bytes bytes = line.ReadRaw();
  const Bytes good{0x7E, 0, 0, 0, 0, 0, 12, 28, 0, 0, 0, 0, 1, 0x7E};
  ASSERT_EQ(bytes.size(), good.size());
  EXPECT_NE(bytes, good);
  EXPECT_EQ(bytes.front(), 0x7E);
  EXPECT_EQ(bytes.back(), 0x7E);
}

TEST_F(Misbehaving, DisconnectsInsteadOfAnswering) {
  HandsetOptions options = Options();
  options.transport = TransportKind::Tcp;
  Handset tcp(options);
  tcp.Start();
  for (Handset* each : {&phone, &tcp}) {
    each->SetFault("disconnect=next:1");
    Station line(each->Address());
    line.Send(28, 0);
    EXPECT_TRUE(line.WaitForHangup());
  }
  ASSERT_TRUE(station::WaitForPath(phone.DevicePath(), true));
  EXPECT_TRUE(Station(phone.Address()).Ask(28, 0));
  EXPECT_TRUE(Station(tcp.Address()).Ask(28, 0));
}

TEST_F(Misbehaving, TheSameSeedRepeatsARun) {
  auto run = [](uint64_t seed) {
    // What was done to each answer, as the transcript tells it.
    std::vector<std::string> answers;
    HandsetOptions options = Options();
    options.seed = seed;
    options.faults = {"drop=0.3", "duplicate=0.2", "corrupt=0.2"};
    options.traceInterval = 1ms;  // Their number differs between runs.
    options.transcript = [&](const std::string& line) {
      size_t answer = line.find("<- 28/");
      if (answer != std::string::npos) answers.push_back(line.substr(answer));
    };
    Handset each(options);
    each.Start();
    Station line(each.Address());
    line.Send(2, 6);
    for (int i = 0; i < 60; ++i) {
      line.Send(28, static_cast<uint8_t>(i % 2));
      EXPECT_TRUE(each.NextFrame(28, static_cast<uint8_t>(i % 2)));
    }
    each.State();  // The last one has been carried out.
    each.Stop();
    return answers;
  };
  auto first = run(11);
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
  Station line(phone.Address());
  phone.ExpectOnce(13, 2, Reply::Answer(13, 0, {1}).InPieces(1, 1ms).Then(14, 9, {2}).After(5ms));
  phone.ExpectOnce(13, 2, Reply::Raw({0x55, 0x7E, 0x7E}));
  phone.OnFrame(13, 2, [](const Frame& request) -> std::optional<Reply> {
    if (request.payload.empty()) return Reply::Nothing();
    return Reply::Answer(13, 0, {request.payload.rbegin(), request.payload.rend()});
  });
  line.Send(13, 2);
  auto first = line.Receive();
  auto second = line.Receive();
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->type, 13);
  EXPECT_EQ(second->type, 14);
  line.Send(13, 2);
  EXPECT_THAT(line.ReadRaw(), ElementsAre(0x55, 0x7E, 0x7E));
  line.Send(13, 2);
  ASSERT_TRUE(phone.NextFrame(13, 2));
  auto echo = line.Ask(13, 2, {1, 2, 3});
  ASSERT_TRUE(echo);
  EXPECT_THAT(echo->payload, ElementsAre(3, 2, 1));

  phone.ClearScripts();
  phone.OnFrame(28, 0, [](const Frame&) { return std::optional<Reply>(); });
  EXPECT_TRUE(line.Ask(28, 0)) << "no reply means the usual answer";
  phone.EditAnswers([](const Frame&, Frame& answer) { answer.payload.resize(2); });
  auto cut = line.Ask(28, 0);
  ASSERT_TRUE(cut);
  EXPECT_EQ(cut->payload.size(), 2u);
}

TEST_F(Misbehaving, TheJournalKeepsWhatWasHeard) {
  Station line(phone.Address());
  line.WriteRaw(handset::FromHex("7e 00 00 00 00 00 99 1c 00 7e"));
  line.Send(17, 77, {7, 8}, 5);
  EXPECT_TRUE(line.Ask(28, 0));
  auto frame = phone.NextFrame(17, 77);
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->sequence, 5u);
  EXPECT_THAT(frame->payload, ElementsAre(7, 8));
  EXPECT_FALSE(phone.NextFrame(17, 77, 1ms)) << "each is given once";
  EXPECT_EQ(phone.ReceivedCount(17, 77), 1u);
  EXPECT_EQ(phone.Rejected().size(), 1u);
  phone.ClearJournal();
  EXPECT_TRUE(phone.Received().empty());

  HandsetOptions options = Options();
  options.journalCapacity = 2;
  Handset forgetful(options);
  forgetful.Start();
  Station other(forgetful.Address());
  EXPECT_TRUE(other.Ask(28, 0));
  EXPECT_TRUE(forgetful.NextFrame(28, 0));
  for (uint8_t subtype = 50; subtype <= 52; ++subtype) EXPECT_TRUE(other.Ask(200, subtype));
  EXPECT_EQ(forgetful.Received().size(), 2u);
  EXPECT_TRUE(forgetful.NextFrame(200, 51));
  EXPECT_TRUE(forgetful.NextFrame(200, 52));
}

}  // namespace
