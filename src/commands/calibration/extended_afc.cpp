// The extended AFC run, whose report comes in blocks.
#include <algorithm>
#include <cstddef>
#include <vector>

#include "commands/calibration/calibration_message.h"
#include "commands/calibration/gsm.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kMaxCount = 16;
constexpr int kTries = 3;
constexpr std::size_t kBlockHeaderBytes = 20;
constexpr std::size_t kBlockCountOffset = 16;
// A shorter answer may be followed by the block; one of this length is the last block.
constexpr std::size_t kShortBlockBytes = 500;

static_assert(offsetof(QV_EXTENDED_AFC, report) == 16 && sizeof(QV_EXTENDED_AFC::report) == 27648);

class BlockCollector {
 public:
  explicit BlockCollector(PhoneLink& link) : link_(link) {}

  // One block, or the last that came of several tries. It failed when none brought an answer.
  Result Receive(std::uint32_t timeoutMs) {
    Result result = Result::NoAnswer;
    for (int attempt = 0; attempt < kTries; ++attempt) {
      std::uint32_t length = 0;
      const Result received =
          link_.WaitForAnswer(kExtendedCalibration, answer_, &length, timeoutMs);
      if (received == Result::Refused) return received;
      if (!Succeeded(received)) continue;
      result = Result::Success;
      length_ = std::min<std::size_t>(length, answer_.size());
      if (length_ >= kShortBlockBytes) break;
    }
    return result;
  }

  bool BlockIsLong() const { return length_ > kShortBlockBytes; }
  std::uint16_t BlockCount() const { return GetU16(answer_, kBlockCountOffset); }

  // False when the report would grow too long.
  bool Append() {
    const auto data =
        std::span<const std::uint8_t>(answer_).first(length_).subspan(kBlockHeaderBytes);
    if (report_.size() + data.size() > sizeof(QV_EXTENDED_AFC::report)) return false;
    report_.insert(report_.end(), data.begin(), data.end());
    return true;
  }

  std::vector<std::uint8_t>& Report() { return report_; }

 private:
  PhoneLink& link_;
  AnswerBuffer answer_;
  std::size_t length_ = 0;
  std::vector<std::uint8_t> report_;
};

Result CollectReport(PhoneLink& link, BlockCollector& blocks) {
  Result result = blocks.Receive(3000);
  if (!Succeeded(result) || !blocks.BlockIsLong()) return result;
  const std::uint16_t count = blocks.BlockCount();
  if (count <= 1) return result;
  if (!blocks.Append()) return Result::MessageTooLong;
  const CalibrationMessage<16> nextBlock(0xA126);
  for (std::uint16_t block = 0; block < count - 1; ++block) {
    result = link.SendFrame(kExtendedCalibration, nextBlock.Payload());
    if (Succeeded(result)) result = blocks.Receive(1000);
    if (!Succeeded(result) || !blocks.BlockIsLong()) return result;
    if (!blocks.Append()) return Result::MessageTooLong;
  }
  return result;
}

Result Stop(PhoneLink& link) {
  const CalibrationMessage<16> message(0xA125);
  return link.SendAndWaitSame(kExtendedCalibration, message.Payload(), kCalibrationTimeoutMs);
}

Result Run(PhoneLink& link, QV_EXTENDED_AFC& run) {
  const auto message = CalibrationMessage<24>(0xA124).U16s(16, run.values);
  Result result = link.SendFrame(kExtendedCalibration, message.Payload());
  if (!Succeeded(result)) return result;
  BlockCollector blocks(link);
  result = CollectReport(link, blocks);
  if (Succeeded(result)) result = Stop(link);
  if (!Succeeded(result)) return result;
  auto& report = blocks.Report();
  SwapArray16(report);
  std::ranges::copy(report, reinterpret_cast<std::uint8_t*>(run.report));
  run.report_bytes = static_cast<std::uint32_t>(report.size());
  return result;
}

}  // namespace

Result AfcStartEx(Phone& phone, std::uint32_t start, QV_EXTENDED_AFC* run) {
  Operation operation(phone, 54);
  if (start && (!run || run->count > kMaxCount)) return Result::InvalidParam;
  operation.Log(start ? "AfcStartEx:" : "AfcStopEx:");
  return operation.Finish(start ? Run(phone.link, *run) : Stop(phone.link));
}

}  // namespace merovane::commands
