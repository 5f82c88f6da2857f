// The extended AFC run, whose report comes in blocks.
#include <algorithm>
#include <cstddef>
#include <vector>

#include "commands/calibration/calibration_message.h"
#include "declared/gsm_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kRun = 0xA124;
constexpr std::uint16_t kStopRun = 0xA125;
constexpr std::uint16_t kNextBlock = 0xA126;

constexpr std::uint32_t kFirstBlockTimeoutMs = 3000;
constexpr std::uint32_t kNextBlockTimeoutMs = 1000;
constexpr int kTries = 3;
constexpr std::size_t kBlockHeaderBytes = 20;
constexpr std::size_t kBlockCountOffset = 16;
// After a shorter answer the block may still come; a block of exactly this length is the last.
constexpr std::size_t kShortBlockBytes = 500;

static_assert(offsetof(QV_EXTENDED_AFC, report) == 16 && sizeof(QV_EXTENDED_AFC::report) == 27648);

using Bytes = std::vector<std::uint8_t>;

// One block, or the last that came of several tries. It failed when none brought an answer.
Result ReceiveBlock(PhoneLink& link, Bytes& block, std::uint32_t timeoutMs) {
  Result result = Result::NoAnswer;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    const Answer answer = link.WaitForAnswer(kExtendedCalibration, timeoutMs);
    if (answer.Why() == Result::Refused) return Result::Refused;
    if (!answer) continue;
    result = Result::Success;
    block.assign(answer.Payload().begin(), answer.Payload().end());
    if (block.size() >= kShortBlockBytes) break;
  }
  return result;
}

bool EndsReport(const Bytes& block) { return block.size() <= kShortBlockBytes; }

// False when the report would grow too long.
bool Append(const Bytes& block, Bytes& report) {
  const auto data = std::span(block).subspan(kBlockHeaderBytes);
  if (report.size() + data.size() > sizeof(QV_EXTENDED_AFC::report)) return false;
  report.insert(report.end(), data.begin(), data.end());
  return true;
}

Result CollectReport(PhoneLink& link, Bytes& report) {
  Bytes block;
  Result result = ReceiveBlock(link, block, kFirstBlockTimeoutMs);
  if (!Succeeded(result) || EndsReport(block)) return result;
  const std::uint16_t blocks = link.Order().GetU16(block, kBlockCountOffset);
  if (blocks <= 1) return result;
  if (!Append(block, report)) return Result::MessageTooLong;
  const CalibrationMessage<16> nextBlock(link, kNextBlock);
  for (std::uint16_t received = 1; received < blocks; ++received) {
    result = link.SendFrame(kExtendedCalibration, nextBlock.Payload());
    if (Succeeded(result)) result = ReceiveBlock(link, block, kNextBlockTimeoutMs);
    if (!Succeeded(result) || EndsReport(block)) return result;
    if (!Append(block, report)) return Result::MessageTooLong;
  }
  return result;
}

Result Stop(PhoneLink& link) {
  const CalibrationMessage<16> message(link, kStopRun);
  return link.SendAndWaitSame(kExtendedCalibration, message.Payload(), kCalibrationTimeoutMs).Why();
}

Result Run(PhoneLink& link, QV_EXTENDED_AFC& run) {
  const auto message = CalibrationMessage<24>(link, kRun).U16s(16, run.values);
  Result result = link.SendFrame(kExtendedCalibration, message.Payload());
  if (!Succeeded(result)) return result;
  Bytes report;
  result = CollectReport(link, report);
  if (Succeeded(result)) result = Stop(link);
  if (!Succeeded(result)) return result;
  link.Order().SwapArray16(report);
  std::ranges::copy(report, reinterpret_cast<std::uint8_t*>(run.report));
  run.report_bytes = static_cast<std::uint32_t>(report.size());
  return result;
}

}  // namespace

Result body::AfcStartEx(Operation& operation, bool start, QV_EXTENDED_AFC* run) {
  return operation.Finish(start ? Run(operation.link, *run) : Stop(operation.link));
}

}  // namespace merovane::commands
