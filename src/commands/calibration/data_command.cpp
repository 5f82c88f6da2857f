#include "commands/calibration/data_command.h"

#include <algorithm>
#include <array>
#include <vector>

#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::size_t kAnswerHeaderBytes = 6;

void ConvertInPlace(ByteOrder order, std::span<std::uint8_t> data, Element element) {
  if (element == Element::U16) order.SwapArray16(data);
  if (element == Element::U32) order.SwapArray32(data);
}

void PutHeader(ByteOrder order, std::span<std::uint8_t> request, const DataAddress& address,
               std::size_t dataBytes) {
  order.PutU16(request, 0, static_cast<std::uint16_t>(address.storage));
  order.PutU16(request, 2, address.band);
  order.PutU16(request, 4, address.item);
  order.PutU16(request, 6, address.offset);
  order.PutU16(request, 8, static_cast<std::uint16_t>(dataBytes));
}

}  // namespace

Answer AskWritingData(PhoneLink& link, const DataAddress& address,
                      std::span<const std::uint8_t> data, Element element,
                      std::uint32_t timeoutMs) {
  std::vector<std::uint8_t> request(kDataHeaderBytes + data.size());
  PutHeader(link.Order(), request, address, data.size());
  const auto payload = std::span(request).subspan(kDataHeaderBytes);
  std::ranges::copy(data, payload.begin());
  ConvertInPlace(link.Order(), payload, element);
  return link.SendAndWaitSame(kWriteData, request, timeoutMs);
}

Result WriteData(PhoneLink& link, const DataAddress& address, std::span<const std::uint8_t> data,
                 Element element, std::uint32_t timeoutMs) {
  return AskWritingData(link, address, data, element, timeoutMs).Why();
}

Result WriteWord(PhoneLink& link, const DataAddress& address, std::uint16_t value) {
  std::array<std::uint8_t, sizeof(value)> data{};
  link.Order().PutU16(data, 0, value);
  return WriteData(link, address, data, Element::Byte);
}

Result ReadData(PhoneLink& link, const DataAddress& address, std::span<std::uint8_t> data,
                Element element, std::uint32_t timeoutMs) {
  std::array<std::uint8_t, kDataHeaderBytes> request{};
  PutHeader(link.Order(), request, address, data.size());
  const Answer answer = link.SendAndWaitSame(kReadData, request, timeoutMs);
  if (!answer) return answer.Why();
  if (answer.Payload().size() <= kAnswerHeaderBytes) return Result::WrongDataLength;
  const auto received = answer.Payload().subspan(kAnswerHeaderBytes);
  const auto filled = data.first(std::min(data.size(), received.size()));
  std::ranges::copy(received.first(filled.size()), filled.begin());
  ConvertInPlace(link.Order(), filled, element);
  return Result::Success;
}

Result ReadWord(PhoneLink& link, const DataAddress& address, std::uint16_t& value,
                std::uint32_t timeoutMs) {
  std::array<std::uint8_t, sizeof(value)> data{};
  const Result result = ReadData(link, address, data, Element::Byte, timeoutMs);
  if (Succeeded(result)) value = link.Order().GetU16(data, 0);
  return result;
}

}  // namespace merovane::commands
