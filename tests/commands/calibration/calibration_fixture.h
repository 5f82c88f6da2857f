// Scripts of calibration frames.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

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
  // Of the radio's switches, in a band.
  Fields TransmitterRequest(unsigned band, unsigned on) const {
    const auto& sent = phone.calibration.transmit;
    const Fields start = Header({0, band, 28, 0, 20, 0, 0}).U32(sent.first).Zeros(2).U8(on).U8(0);
    return Words(start, {sent.second, sent.third, sent.fourth, 0});
  }
  Fields ReceiverRequest(unsigned band, unsigned on, unsigned first, unsigned second,
                         unsigned directCurrent = 0) const {
    const Fields start = Header({0, band, 29, 0, 20, first, second}).U32(2).U16(18);
    return Fields(start).U8(on).Zeros(7).U8(directCurrent).U8(0);
  }
};

}  // namespace merovane::test
