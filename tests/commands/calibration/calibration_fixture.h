// Scripts of calibration frames.
#pragma once

#include <array>
#include <initializer_list>
#include <string>

#include "commands/calibration/data_command.h"
#include "support/command_fixture.h"

namespace merovane::test {

// NOLINTNEXTLINE(google-build-using-namespace)
using namespace commands;

using ::testing::ElementsAre;
using ::testing::IsEmpty;

inline Fields Words(Fields fields, std::initializer_list<unsigned> words) {
  for (const unsigned word : words) fields.U16(word);
  return fields;
}

struct CalibrationFixture : CommandFixture {
  // Of a data command: storage, band, item, offset, byte count.
  Fields Header(std::initializer_list<unsigned> words) const {
    return Words(handset.Message(), words);
  }
  // The beginning of every answer to a read, which means nothing to the station.
  Fields ReadAnswer() const { return handset.Message().Raw("C1 C2 C3 C4 C5 C6"); }
  void ExpectRead(const Fields& request, const Fields& answer) {
    handset.Expect(32, 1, request).Answer(32, 1, answer);
  }
  void ExpectWrite(const Fields& request) { handset.Expect(32, 0, request).Answer(32, 0, "DE AD"); }
  void ExpectWriteRefused() { handset.ExpectAnyPayload(32, 0).Refuse(); }

  // A calibration message's id, length and 12 zeros.
  Fields Message(unsigned id, unsigned length) const {
    return handset.Message().U16(id).U16(length).Zeros(12);
  }
  void ExpectMessage(const Fields& message) { handset.Expect(10, 0, message).Answer(10, 0); }

  void ExpectLogged(const std::string& name, Result result = Result::Success) {
    EXPECT_THAT(LogText(), ElementsAre(name, "Clear Port Buffer", ResultLine(result)));
  }

  // What each call returns is a refusal: nothing sent, nothing logged, its id recorded.
  template <typename... Calls>
  void ExpectRefused(std::uint32_t operation, Calls... calls) {
    static_cast<void>(Log());
    for (const Result result : {calls()...}) {
      EXPECT_EQ(result, Result::InvalidParam);
      EXPECT_EQ(OperationOf(result), operation);
    }
    EXPECT_THAT(Log(), IsEmpty());
  }
};

// A call that is made later.
#define CALL(...) [&] { return __VA_ARGS__; }

}  // namespace merovane::test
