#include "library/failure.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include "link/result.h"
#include "platform/device_holders.h"

namespace merovane::library {
namespace {

// Threads and ports that are remembered; a process that makes more of them loses the lowest.
constexpr std::size_t kMostKept = 1024;

constexpr std::string_view kTcpScheme = "socket://";

template <std::size_t Size>
void Copy(std::string_view text, char (&into)[Size]) {
  const std::size_t bytes = std::min(text.size(), Size - 1);
  std::memcpy(into, text.data(), bytes);
  into[bytes] = '\0';
}

std::string FramesInWords(const Sightings::Wait& wait) {
  std::string text;
  for (std::size_t i = 0; i < wait.kindCount; ++i) {
    const auto& [id, count] = wait.kinds[i];
    if (i > 0) text += ", ";
    text += std::to_string(id.type) + "/" + std::to_string(id.subtype);
    if (count > 1) text += " (" + std::to_string(count) + " times)";
  }
  return text;
}

Merovane_Cause CauseOf(OpenTrouble trouble) {
  switch (trouble) {
    case OpenTrouble::NoDevice:
      return MEROVANE_CAUSE_NO_DEVICE;
    case OpenTrouble::DeviceTaken:
      return MEROVANE_CAUSE_DEVICE_TAKEN;
    case OpenTrouble::DeviceDenied:
      return MEROVANE_CAUSE_DEVICE_DENIED;
    case OpenTrouble::NoSerialDevice:
      return MEROVANE_CAUSE_NO_SERIAL_DEVICE;
    case OpenTrouble::Pipe:
      return MEROVANE_CAUSE_PIPE;
    case OpenTrouble::RateRefused:
      return MEROVANE_CAUSE_RATE_REFUSED;
    case OpenTrouble::AddressMalformed:
      return MEROVANE_CAUSE_ADDRESS_MALFORMED;
    case OpenTrouble::HostUnknown:
      return MEROVANE_CAUSE_HOST_UNKNOWN;
    case OpenTrouble::ConnectionRefused:
      return MEROVANE_CAUSE_CONNECTION_REFUSED;
    case OpenTrouble::None:
    case OpenTrouble::NoReason:
      break;
  }
  return MEROVANE_CAUSE_CHANNEL_LIBRARY;
}

// Why what was awaited did not come.
Merovane_Cause CauseOfSilence(const LinkEvidence& evidence, bool shared) {
  const Sightings& sightings = evidence.sightings;
  const Sightings::Wait& wait = sightings.LastWait();
  if (wait.swappedFrames > 0) return MEROVANE_CAUSE_BYTE_ORDER;
  if (wait.startFrames > 0) return MEROVANE_CAUSE_BOOTING;
  if (evidence.deviceGone) return MEROVANE_CAUSE_DEVICE_GONE;
  if (wait.frames > 0) return MEROVANE_CAUSE_OTHER_FRAMES;
  if (shared) return MEROVANE_CAUSE_SHARED_DEVICE;
  if (wait.bytes > 0) return MEROVANE_CAUSE_NOISE;
  if (sightings.AnswersEver() > 0) return MEROVANE_CAUSE_LATE_OR_LOST;
  const bool socket = evidence.device.starts_with(kTcpScheme) && sightings.BytesEver() == 0;
  return socket ? MEROVANE_CAUSE_SILENT_SOCKET : MEROVANE_CAUSE_SILENT;
}

// Results that a wait without its answer ends in.
bool IsSilence(Result result) {
  constexpr std::array kSilences{
      Result::NoData,       Result::DecodeFailed,    Result::NoFrame,        Result::NoAnswer,
      Result::NoUsefulData, Result::EnterModeFailed, Result::BluetoothFailed};
  return std::ranges::find(kSilences, result) != kSilences.end();
}

Merovane_Cause CauseOf(const FailedCall& call, bool shared) {
  const auto result = static_cast<Result>(call.result);
  switch (result) {
    case Result::InvalidParam:
      return MEROVANE_CAUSE_ARGUMENT;
    case Result::PortNotOpen:
      return call.evidence ? MEROVANE_CAUSE_ENDED : MEROVANE_CAUSE_NO_SESSION;
    case Result::CannotOpenPort:
      return call.evidence ? CauseOf(call.evidence->trouble) : MEROVANE_CAUSE_MEMORY;
    case Result::PortAlreadyOpened:
      return MEROVANE_CAUSE_ARGUMENT;
    case Result::WriteFailed:
      return MEROVANE_CAUSE_DEVICE_GONE;
    case Result::EncodeFailed:
      return MEROVANE_CAUSE_MEMORY;
    case Result::NvProjectNotOpen:
    case Result::PathNotFound:
    case Result::OpenNvProjectFailed:
      return MEROVANE_CAUSE_PROJECT;
    case Result::Refused:
      return MEROVANE_CAUSE_REFUSED;
    case Result::NotSupported:
    case Result::DownloadRegister:
    case Result::DownloadStart:
      // No handset was asked: what these results say by themselves is all.
      return MEROVANE_CAUSE_UNKNOWN;
    default:
      break;
  }
  if (!call.evidence) return MEROVANE_CAUSE_UNKNOWN;
  // A device was awaited, and none has been opened.
  const bool awaitedDevice = result == Result::EnterModeFailed && call.evidence->device.empty();
  if (awaitedDevice) return MEROVANE_CAUSE_NO_DEVICE;
  return IsSilence(result) ? CauseOfSilence(*call.evidence, shared) : MEROVANE_CAUSE_ANSWER;
}

// What happened and what to check next. `device` is in it where one is known.
std::string AdviceFor(Merovane_Cause cause, const FailedCall& call, const std::string& device,
                      const std::string& holders) {
  const std::string what = device.empty() ? "the port's device" : device;
  const std::string first = device.empty() ? "The port's device" : device;
  const auto result = static_cast<Result>(call.result);
  switch (cause) {
    case MEROVANE_CAUSE_ARGUMENT:
      if (result == Result::PortAlreadyOpened) return std::string(ResultAdvice(result));
      return std::string("An argument was refused, and nothing was sent. Refused are: ") +
             call.info->refusals + ".";
    case MEROVANE_CAUSE_NO_SESSION:
      return "The port has not been begun, or was ended. Call QV_BeginPhoneTest or "
             "QV_BeginPhoneTest_MT first, and look at what that returned.";
    case MEROVANE_CAUSE_ENDED:
      return "Another thread ended the port while this call waited.";
    case MEROVANE_CAUSE_MEMORY:
      return "The request was too long, or the process has no memory or threads left.";
    case MEROVANE_CAUSE_NO_DEVICE:
      return (device.empty() ? "No device has arrived" : "There is no " + device) +
             ". Look whether the cable is plugged in, and which device the environment variable "
             "CASSORIND_COM" +
             std::to_string(call.port) + " names.";
    case MEROVANE_CAUSE_DEVICE_TAKEN:
      return "Another program has " + what + (holders.empty() ? "" : ": " + holders) +
             ". End it, or give each its own device.";
    case MEROVANE_CAUSE_DEVICE_DENIED:
      return "This user may not open " + what +
             ". Add the user to the group that owns the device (often dialout), and log in again.";
    case MEROVANE_CAUSE_NO_SERIAL_DEVICE:
      return first +
             " is a file or a folder and no serial device. Look at the environment variable "
             "CASSORIND_COM" +
             std::to_string(call.port) + ".";
    case MEROVANE_CAUSE_PIPE:
      return first +
             " is a pipe and no serial device: a handset needs one that carries both ways. "
             "Name its pseudo-terminal or its socket instead.";
    case MEROVANE_CAUSE_RATE_REFUSED:
      return first + " does not take this baud rate. 115200 is what handsets use at first.";
    case MEROVANE_CAUSE_ADDRESS_MALFORMED:
      return first + " is no address. Write socket://host:port, as in socket://127.0.0.1:5000.";
    case MEROVANE_CAUSE_HOST_UNKNOWN:
      return "The host of " + what +
             " is not known. Look at its spelling and at the name service, "
             "or write the host's number.";
    case MEROVANE_CAUSE_CONNECTION_REFUSED:
      return "Nothing takes connections at " + what +
             ". Look whether the handset's program or the "
             "device server runs there, at this port, and whether a firewall stands between.";
    case MEROVANE_CAUSE_CHANNEL_LIBRARY:
      return "The channel library did not open " + what +
             " and gives no reason. Look whether the "
             "device is there, free, and may be opened by this user.";
    case MEROVANE_CAUSE_DEVICE_GONE:
      return first +
             " is gone or takes no data: it was unplugged, or its connection ended. Plug it "
             "in, then end and begin the port.";
    case MEROVANE_CAUSE_SILENT:
      return "Not one byte came from " + what +
             " since the request. Look whether the handset is "
             "on, in a mode that answers, and on this cable, and whether the baud rate is right.";
    case MEROVANE_CAUSE_SILENT_SOCKET:
      return "Not one byte has ever come over this connection to " + what +
             ". A device server "
             "serves one station at a time: look whether another one holds the handset.";
    case MEROVANE_CAUSE_LATE_OR_LOST:
      return "The handset answered earlier requests, but not this one. Its answer was lost or "
             "comes after the limit: try a longer one, or the setting Timeout of section Inc Recv "
             "Timeout, and look at the cable.";
    case MEROVANE_CAUSE_BOOTING:
      return "The handset sends start frames: it is still booting and waits for a start mode. Send "
             "one with QV_SetPhoneStartModeEx or QV_EnterModeProcess first.";
    case MEROVANE_CAUSE_BYTE_ORDER:
      return "Frames came whose lengths make sense in the other byte order only. Change the "
             "setting Big Endian of section Endian Control, or QV_PROPERTY_BIG_ENDIAN.";
    case MEROVANE_CAUSE_SHARED_DEVICE:
      return "Another program reads " + what + ", too (" + holders +
             "), and takes what the handset "
             "sends. End it.";
    case MEROVANE_CAUSE_NOISE:
      return "Bytes came that are no frames. Look at the baud rate and the cable, and whether the "
             "handset prints its console on this device.";
    case MEROVANE_CAUSE_OTHER_FRAMES:
      return "Whole frames came, but not the awaited answer. The handset may be in a mode that "
             "does not know the command, or this is a late answer to an earlier one.";
    case MEROVANE_CAUSE_REFUSED:
    case MEROVANE_CAUSE_ANSWER:
    case MEROVANE_CAUSE_PROJECT:
    case MEROVANE_CAUSE_UNKNOWN:
      break;
  }
  const std::string meaning(ResultMeaning(result));
  return meaning.empty() ? "" : "It says: " + meaning + ". " + std::string(ResultAdvice(result));
}

}  // namespace

Merovane_Failure Describe(const FailedCall& call) {
  Merovane_Failure failure{};
  failure.struct_bytes = sizeof failure;
  failure.port = call.port;
  failure.result = call.result;
  failure.operation = call.info->operation;
  failure.elapsed_ms = call.elapsedMs;
  failure.limit_ms = call.limitMs;
  Copy(call.info->name, failure.function);
  std::string device;
  std::string holders;
  if (call.evidence) {
    const LinkEvidence& evidence = *call.evidence;
    const Sightings::Wait& wait = evidence.sightings.LastWait();
    device = evidence.device;
    failure.system_error = evidence.systemError;
    failure.bytes_seen = wait.bytes;
    failure.frames_seen = wait.frames;
    failure.start_frames_seen = wait.startFrames;
    failure.swapped_frames_seen = wait.swappedFrames;
    Copy(device, failure.device);
    Copy(FramesInWords(wait), failure.frames);
    if (evidence.systemError != 0) {
      Copy(std::system_category().message(evidence.systemError), failure.system_text);
    }
    // Asking costs some milliseconds: only where the answer may explain something.
    const bool unexplained = evidence.trouble == OpenTrouble::DeviceTaken ||
                             (evidence.trouble == OpenTrouble::None && wait.frames == 0);
    if (unexplained) holders = platform::OtherHoldersOf(device);
  }
  const Merovane_Cause cause = CauseOf(call, !holders.empty());
  failure.cause = cause;
  Copy(AdviceFor(cause, call, device, holders), failure.advice);
  return failure;
}

void FailureLog::Keep(FailedCall call, std::uint32_t thread) {
  const platform::MutexLock lock(mutex_);
  if (call.port >= 1) {
    if (ofPorts_.size() >= kMostKept) ofPorts_.erase(ofPorts_.begin());
    ofPorts_.insert_or_assign(call.port, call);
  }
  if (ofThreads_.size() >= kMostKept) ofThreads_.erase(ofThreads_.begin());
  ofThreads_.insert_or_assign(thread, std::move(call));
}

std::optional<FailedCall> FailureLog::Find(std::int32_t port, std::uint32_t thread) const {
  const platform::MutexLock lock(mutex_);
  const auto look = [](const auto& calls, auto key) {
    const auto found = calls.find(key);
    return found == calls.end() ? std::nullopt : std::optional<FailedCall>(found->second);
  };
  return port == 0 ? look(ofThreads_, thread) : look(ofPorts_, port);
}

void FailureLog::Forget(std::int32_t port, std::uint32_t thread) {
  const platform::MutexLock lock(mutex_);
  if (port == 0) {
    ofThreads_.erase(thread);
  } else {
    ofPorts_.erase(port);
  }
}

}  // namespace merovane::library
