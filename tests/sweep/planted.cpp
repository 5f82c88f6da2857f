#include "sweep/planted.h"

namespace merovane::sweep {
namespace {

// QV_ReadFlash_MT(port, item, data, length, data_length, timeout_ms)
std::uint8_t* Data(Words words) { return FromWord<std::uint8_t*>(words[2]); }
std::size_t Length(Words words) { return words[3]; }

std::int64_t Call(Words words, bool& stackMoved) {
  return CallWith(&QV_ReadFlash_MT, words, stackMoved);
}

std::int64_t WritesOneMore(Words words, bool& stackMoved) {
  const std::int64_t result = Call(words, stackMoved);
  if (result == 0) Data(words)[Length(words)] = 0;
  return result;
}

std::int64_t TakesNull(Words words, bool& stackMoved) {
  *Data(words) = 0;
  return Call(words, stackMoved);
}

std::int64_t WaitsTwice(Words words, bool& stackMoved) {
  const std::int64_t result = Call(words, stackMoved);
  return result == PC_ERR_NO_ANSWER ? Call(words, stackMoved) : result;
}

}  // namespace

std::vector<Export> SurfaceWith(std::string_view kind) {
  const std::span<const Export> surface = Surface();
  std::vector<Export> planted(surface.begin(), surface.end());
  for (Export& each : planted) {
    if (each.name != kPlantedIn) continue;
    if (kind == "overrun") {
      each.call = WritesOneMore;
    } else if (kind == "null") {
      each.call = TakesNull;
    } else if (kind == "limit") {
      each.call = WaitsTwice;
    } else {
      return {};
    }
  }
  return planted;
}

}  // namespace merovane::sweep
