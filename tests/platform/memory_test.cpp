#include "platform/memory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace merovane::platform {
namespace {

TEST(Memory, IsWritableWhereEveryByteIsMappedSo) {
  static const int kConstants[] = {1, 2, 3};
  std::vector<char> buffer(1U << 20);
  EXPECT_TRUE(IsWritable(buffer.data(), buffer.size()));
  EXPECT_TRUE(IsWritable(buffer.data() + buffer.size() - 1, 1));
  EXPECT_FALSE(IsWritable(kConstants, sizeof kConstants));
  EXPECT_FALSE(IsWritable(nullptr, 1));
  EXPECT_FALSE(IsWritable(buffer.data(), SIZE_MAX / 4)) << "all of it is not mapped";
  EXPECT_FALSE(IsWritable(buffer.data(), SIZE_MAX)) << "beyond the last address";
}

}  // namespace
}  // namespace merovane::platform
