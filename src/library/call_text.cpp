#include "library/call_text.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "declared/names.h"
#include "link/json.h"
#include "platform/clock.h"

namespace merovane::library {
namespace {

using Kind = ArgumentInfo::Kind;

std::string Hex(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  text.reserve(2 * bytes.size());
  for (const char c : bytes) {
    text += kDigits[static_cast<unsigned char>(c) >> 4];
    text += kDigits[static_cast<unsigned char>(c) & 0xF];
  }
  return text;
}

std::string Time(const platform::CalendarTime& at) {
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d.%03d", at.year, at.month,
                at.day, at.hour, at.minute, at.second, at.millisecond);
  return text.data();
}

std::int64_t Microseconds(Exchange::Clock::duration duration) {
  return std::chrono::duration_cast<std::chrono::microseconds>(duration).count();
}

// As this machine keeps it; at most 4 bytes.
std::uint32_t NumberAt(std::string_view bytes) {
  if (bytes.size() == 1) return static_cast<unsigned char>(bytes[0]);
  if (bytes.size() == sizeof(std::uint16_t)) {
    std::uint16_t number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
  }
  std::uint32_t number = 0;
  std::memcpy(&number, bytes.data(), sizeof number);
  return number;
}

void WritePayload(JsonWriter& json, const ArgumentInfo& info, std::string_view copy) {
  if (info.kind == Kind::Characters) {
    json.Key("text").Text(copy.substr(0, copy.find('\0')));
  } else if (info.kind == Kind::Numbers) {
    json.Key("numbers").BeginArray();
    for (; copy.size() >= info.elementBytes; copy.remove_prefix(info.elementBytes)) {
      json.Number(NumberAt(copy.substr(0, info.elementBytes)));
    }
    json.EndArray();
  } else {
    json.Key("hex").Text(Hex(copy));
  }
}

void WriteValue(JsonWriter& json, const ArgumentInfo& info, std::uintptr_t word) {
  const auto value = static_cast<std::intptr_t>(word);
  const bool narrow = info.kind == Kind::Unsigned && info.elementBytes <= sizeof(std::uint32_t);
  json.Number(narrow ? std::int64_t{static_cast<std::uint32_t>(value)} : std::int64_t{value});
}

void WriteArgument(JsonWriter& json, const ArgumentInfo& info, const CallRecord& record,
                   const CallRecord::Argument& argument) {
  const auto copy = std::string_view(record.copies).substr(argument.copyAt, argument.copiedBytes);
  if (info.use == ArgumentInfo::Use::Value) {
    WriteValue(json, info, argument.word);
  } else if (argument.word == 0) {
    json.Null();
  } else if (argument.followed && info.kind == Kind::Text) {
    json.Text(copy);
  } else if (argument.followed && info.kind == Kind::Number) {
    json.Number(NumberAt(copy));
  } else {
    json.BeginObject();
    if (argument.followed) {
      const auto bytes = static_cast<std::int64_t>(argument.wholeBytes);
      json.Key(info.kind == Kind::Room ? "room" : "bytes").Number(bytes);
    }
    if (!copy.empty()) WritePayload(json, info, copy);
    json.EndObject();
  }
}

std::string Id(FrameId id) { return std::to_string(id.type) + "/" + std::to_string(id.subtype); }

void WriteExchange(JsonWriter& json, const Exchange& exchange, Exchange::Clock::time_point begun) {
  using Outcome = Exchange::Outcome;
  json.BeginObject();
  json.Key("at_us").Number(Microseconds(exchange.begun - begun));
  if (exchange.sent) {
    json.Key("request").Text(Id(exchange.request)).Key("bytes").Number(exchange.requestBytes);
  }
  if (exchange.outcome == Outcome::Silence) {
    json.Key("answer").Null();
  } else if (exchange.outcome != Outcome::Open) {
    json.Key(exchange.outcome == Outcome::Refused ? "refusal" : "answer").Text(Id(exchange.answer));
    json.Key("answer_bytes").Number(exchange.answerBytes);
  }
  if (exchange.sent && exchange.outcome != Outcome::Open) {
    json.Key("us").Number(Microseconds(exchange.ended - exchange.begun));
  }
  json.EndObject();
}

void WriteExchanges(JsonWriter& json, const CallRecord& record) {
  if (!record.exchanges.All().empty()) {
    json.Key("exchanges").BeginArray();
    for (const Exchange& exchange : record.exchanges.All()) {
      WriteExchange(json, exchange, record.begun);
    }
    json.EndArray();
  }
  if (record.exchanges.LeftOut() != 0) {
    json.Key("exchanges_left_out").Number(static_cast<std::int64_t>(record.exchanges.LeftOut()));
  }
}

void WriteFailure(JsonWriter& json, const FailedCall& call) {
  const Merovane_Failure failure = Describe(call);
  json.BeginObject();
  json.Key("cause").Number(failure.cause).Key("limit_ms").Number(failure.limit_ms);
  if (failure.device[0] != '\0') json.Key("device").Text(failure.device);
  if (failure.system_error != 0) {
    json.Key("system_error").Number(failure.system_error);
    json.Key("system_text").Text(failure.system_text);
  }
  if (failure.bytes_seen != 0) json.Key("bytes_seen").Number(failure.bytes_seen);
  if (failure.frames[0] != '\0') json.Key("frames").Text(failure.frames);
  json.Key("advice").Text(failure.advice);
  json.EndObject();
}

}  // namespace

const char* ResultNameOf(std::int32_t result) {
  const auto index = static_cast<std::uint32_t>(result) + 1U;
  return index < kResultNames.size() ? kResultNames[index] : "unknown result";
}

std::string InJson(const CallRecord& record) {
  const ExportInfo& info = *record.info;
  std::string text;
  JsonWriter json(text);
  json.BeginObject();
  json.Key("time").Text(Time(record.returned)).Key("thread").Number(record.thread);
  json.Key("function").Text(info.name).Key("port").Number(record.port);
  json.Key("arguments").BeginObject();
  for (std::size_t i = 0; i < info.arguments.size(); ++i) {
    json.Key(info.arguments[i].name);
    WriteArgument(json, info.arguments[i], record, record.arguments[i]);
  }
  json.EndObject();
  if (info.returns != ExportInfo::Returns::Nothing) json.Key("result").Number(record.result);
  if (info.returns == ExportInfo::Returns::Result) {
    json.Key("name").Text(ResultNameOf(record.result));
  }
  json.Key("us").Number(Microseconds(record.ended - record.begun));
  WriteExchanges(json, record);
  if (record.failure) {
    json.Key("failure");
    WriteFailure(json, *record.failure);
  }
  json.EndObject();
  return text;
}

std::string GapInJson(std::int32_t port, std::uint64_t lines, std::string_view why) {
  std::string text;
  JsonWriter json(text);
  json.BeginObject();
  json.Key("time").Text(Time(platform::LocalTime())).Key("port").Number(port);
  json.Key("missing").Number(static_cast<std::int64_t>(lines)).Key("why").Text(why);
  json.EndObject();
  return text;
}

}  // namespace merovane::library
