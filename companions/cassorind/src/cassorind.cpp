// The exported functions.
#include "cassorind/cassorind.h"

#include <new>

#include "channel.h"

std::int32_t CreateChannel(CassorindChannel** channel, std::uint32_t kind) {
  if (!channel || kind != 0) return 0;
  *channel = new (std::nothrow) cassorind::Channel;
  return *channel ? 1 : 0;
}

std::int32_t CassorindLastFailure(CassorindFailure* failure) {
  if (!failure || cassorind::LastFailure().device[0] == '\0') return 0;
  *failure = cassorind::LastFailure();
  return 1;
}

void ReleaseChannel(CassorindChannel* channel) {
  if (!channel) return;
  auto* const own = static_cast<cassorind::Channel*>(channel);
  own->Close();
  // One whose caller was killed inside an operation is left behind.
  if (own->IsIdle()) delete own;
}
