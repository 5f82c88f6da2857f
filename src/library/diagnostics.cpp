// The functions of diagnostics.h.
#define MEROVANE_BUILD
#include "merovane/diagnostics.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

#include "declared/names.h"
#include "library/call_text.h"
#include "library/library.h"
#include "library/settings_report.h"
#include "link/result.h"
#include "merovane_version/version.h"
#include "platform/files.h"
#include "platform/message_queue.h"

using namespace merovane;

namespace {

// Copies what fits, with a zero after it; says how much room all of it takes.
std::uint32_t CopyText(const std::string& text, char* into, std::uint32_t capacity) {
  if (into && capacity > 0) {
    const std::size_t bytes = std::min<std::size_t>(text.size(), capacity - 1);
    std::memcpy(into, text.data(), bytes);
    into[bytes] = '\0';
  }
  return static_cast<std::uint32_t>(text.size() + 1);
}

std::string SettingsText() {
  const library::Library& library = library::TheLibrary();
  return library::SettingsReport(library.environment, library.recorder);
}

}  // namespace

extern "C" {

const char* MEROVANE_CALL Merovane_Version(void) { return kVersion; }

const char* MEROVANE_CALL Merovane_ResultName(std::int32_t result) {
  return library::ResultNameOf(result);
}

const char* MEROVANE_CALL Merovane_ResultMeaning(std::int32_t result) {
  return ResultMeaning(static_cast<Result>(result)).data();
}

const char* MEROVANE_CALL Merovane_ResultAdvice(std::int32_t result) {
  return ResultAdvice(static_cast<Result>(result)).data();
}

const char* MEROVANE_CALL Merovane_OperationName(std::uint32_t operation) {
  const auto found = std::ranges::lower_bound(library::kOperationNames, operation, {},
                                              &library::OperationName::id);
  return found != library::kOperationNames.end() && found->id == operation ? found->name
                                                                           : "unknown operation";
}

const char* MEROVANE_CALL Merovane_StartModeName(std::uint32_t mode) {
  switch (mode) {
    case QV_CALIBRATION_MODE_GSM:
      return "GSM calibration";
    case QV_CALIBRATION_MODE_TD:
      return "TD-SCDMA calibration";
    default:
      return "mode of the handset's own";
  }
}

std::int32_t MEROVANE_CALL Merovane_LastFailure(std::int32_t port, Merovane_Failure* failure) {
  // Callers of later versions know more, callers of this one no less.
  if (!failure || failure->struct_bytes < sizeof(Merovane_Failure)) return 0;
  const std::uint32_t theirBytes = failure->struct_bytes;
  try {
    const auto call = library::TheLibrary().failures.Find(port, platform::CurrentThreadId());
    if (!call) return 0;
    *failure = library::Describe(*call);
    failure->struct_bytes = theirBytes;
    return 1;
  } catch (...) {
    return 0;
  }
}

void MEROVANE_CALL Merovane_ForgetFailure(std::int32_t port) {
  library::TheLibrary().failures.Forget(port, platform::CurrentThreadId());
}

std::int32_t MEROVANE_CALL Merovane_SetFolder(const char* folder) {
  if (!folder) return PC_ERR_INVALID_PARAM;
  try {
    const std::string_view text = folder;
    const std::filesystem::path path(std::u8string(text.begin(), text.end()));
    std::error_code error;
    if (!std::filesystem::is_directory(path, error)) return PC_ERR_INVALID_PARAM;
    return library::TheLibrary().SetFolder(std::filesystem::absolute(path))
               ? PC_ERR_SUCCESS
               : PC_ERR_PORT_ALREADY_OPENED;
  } catch (...) {
    return PC_ERR_INVALID_PARAM;
  }
}

std::uint32_t MEROVANE_CALL Merovane_Settings(char* text, std::uint32_t capacity) {
  try {
    return CopyText(SettingsText(), text, capacity);
  } catch (...) {
    if (text && capacity > 0) *text = '\0';
    return 0;
  }
}

std::int32_t MEROVANE_CALL Merovane_SetTrace(std::uint32_t trace) {
  if (trace > MEROVANE_TRACE_PAYLOADS) return PC_ERR_INVALID_PARAM;
  return library::TheLibrary().recorder.SetTrace(static_cast<Merovane_Trace>(trace))
             ? PC_ERR_SUCCESS
             : PC_ERR_ENTER_MODE_FAILED;
}

std::int32_t MEROVANE_CALL Merovane_SetListener(Merovane_Listener listener, void* context) {
  return library::TheLibrary().recorder.SetListener(listener, context) ? PC_ERR_SUCCESS
                                                                       : PC_ERR_ENTER_MODE_FAILED;
}

std::int32_t MEROVANE_CALL Merovane_Flush(std::uint32_t timeLimitMs) {
  return library::TheLibrary().recorder.Flush(timeLimitMs) ? 1 : 0;
}

}  // extern "C"
