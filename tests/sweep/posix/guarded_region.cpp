#include "sweep/guarded_region.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <new>

namespace merovane::sweep {
namespace {

const auto kPage = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));

}  // namespace

GuardedRegion::GuardedRegion() {
  void* const mapped = mmap(nullptr, kBytes + kPage, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (mapped == MAP_FAILED) throw std::bad_alloc();
  start_ = static_cast<std::byte*>(mapped);
  mprotect(start_ + kBytes, kPage, PROT_NONE);
}

GuardedRegion::~GuardedRegion() { munmap(start_, kBytes + kPage); }

void SetEnvironment(const char* name, const char* value) { setenv(name, value, 1); }

}  // namespace merovane::sweep
