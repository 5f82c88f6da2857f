#include "sweep/far_end.h"

#include <chrono>

namespace merovane::sweep {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kFloodInterval = 5ms;
constexpr std::size_t kNoiseBytes = 512;
constexpr std::uint8_t kRefusal = 2;
constexpr std::uint8_t kOtherSubtypes[] = {0, 1, 3, 4, 0x80};
// Of a frame that no command awaits.
constexpr std::uint8_t kUnasked = 0x63;

handset::HandsetOptions Options(std::int32_t port) {
  handset::HandsetOptions options;
  options.transport = handset::TransportKind::Tcp;
  options.startMode = 1;
  options.seed = static_cast<std::uint64_t>(port);
  options.journalCapacity = 1;
  return options;
}

// What a refused command changes is nothing, so that each call meets the same handset.
constexpr const char* kRefuse = "refuse=1";

}  // namespace

FarEnd::FarEnd(std::int32_t port)
    : random_(static_cast<std::uint32_t>(port)),
      handset_(Options(port)),
      variable_("CASSORIND_COM" + std::to_string(port)) {
  handset_.SetFault(kRefuse);
  handset_.EditAnswers(
      [this](const handset::Frame& request, handset::Frame& answer) { Edit(request, answer); });
  handset_.Start();
  SetEnvironment(variable_.c_str(), handset_.DevicePath().c_str());
}

FarEnd::~FarEnd() {
  flood_ = {};
  handset_.Stop();
}

void FarEnd::Edit(const handset::Frame& request, handset::Frame& answer) {
  ++answered_;
  if (manner_ != Manner::Answers) return;
  // Most answers have their request's subtype; one that would be a refusal's is answered with 0.
  answer.subtype = request.subtype == kRefusal ? 0 : request.subtype;
  answer.payload = Noise(payloadBytes_);
  // Some requests await another subtype than their own, or a second frame.
  for (const std::uint8_t subtype : kOtherSubtypes) {
    if (subtype != answer.subtype) handset_.SendFrame(answer.type, subtype, answer.payload);
  }
}

handset::Bytes FarEnd::Noise(std::size_t bytes) {
  handset::Bytes noise(bytes);
  for (std::uint8_t& byte : noise) {
    random_ = random_ * 1664525 + 1013904223;
    byte = static_cast<std::uint8_t>(random_ >> 24);
  }
  return noise;
}

void FarEnd::Behave(Manner manner) {
  flood_ = {};
  manner_ = manner;
  handset_.SetFault("none");
  handset_.SetFault(kRefuse);
  if (manner == Manner::Silent || manner == Manner::Floods) handset_.SetFault("silent=1");
  if (manner == Manner::StopsInFrame) handset_.SetFault("split=1,pieces:2,gap:3600000");
  if (manner == Manner::Floods) {
    flood_ = std::jthread([this](const std::stop_token& stop) {
      while (!stop.stop_requested()) {
        const handset::Bytes noise = Noise(kNoiseBytes);
        handset_.SendRaw(noise);
        handset_.SendFrame(kUnasked, 0, noise);
        std::this_thread::sleep_for(kFloodInterval);
      }
    });
  }
}

}  // namespace merovane::sweep
