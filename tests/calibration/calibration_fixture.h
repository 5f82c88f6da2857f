// Scripts of calibration frames.
#pragma once

#include <array>

#include "commands/calibration/data_command.h"
#include "support/command_fixture.h"

namespace merovane::test {

// NOLINTNEXTLINE(google-build-using-namespace)
using namespace commands;

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct CalibrationFixture : CommandFixture {
  // Storage, band, item, offset, byte count.
  Fields Header(const std::array<unsigned, 5>& words) const {
    Fields fields = handset.Message();
    for (const unsigned word : words) fields.U16(word);
    return fields;
  }
  // The beginning of every answer to a read, which means nothing to the station.
  Fields ReadAnswer() const { return handset.Message().Raw("C1 C2 C3 C4 C5 C6"); }
  Exchange& ExpectRead(const std::array<unsigned, 5>& words) {
    return handset.Expect(32, 1, Header(words));
  }
  void ExpectWrite(const Fields& request) { handset.Expect(32, 0, request).Answer(32, 0, "DE AD"); }

  // A message's id, length and 12 zeros.
  Fields Message(unsigned id, unsigned length) const {
    return handset.Message().U16(id).U16(length).Zeros(12);
  }
  void ExpectMessage(const Fields& message) { handset.Expect(10, 0, message).Answer(10, 0); }

  // Refused before anything is sent or logged, under the command's id.
  void ExpectRefused(Result result, std::uint32_t operation) {
    EXPECT_EQ(OperationOf(result), operation);
    EXPECT_EQ(result, Result::InvalidParam);
    EXPECT_THAT(Log(), IsEmpty());
  }
};

}  // namespace merovane::test
