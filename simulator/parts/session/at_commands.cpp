// AT commands over the diagnostic link, type 104.
#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "parts/memory/fixed_nv.h"
#include "parts/session/session.h"

namespace handset {
namespace {

constexpr std::uint8_t kCommandType = 104;
constexpr std::uint8_t kAcknowledgeType = 213;
constexpr std::uint8_t kAnswerType = 156;
constexpr std::uint8_t kEndOfMessage = 0x1A;
constexpr std::uint8_t kCancelMessage = 0x1B;

struct Answered {
  std::string_view command;
  std::string_view text;  // before the final OK
};

constexpr std::array kAnswers{
    Answered{"AT", ""},
    Answered{"ATE0", ""},
    Answered{"ATE1", ""},
    Answered{"ATZ", ""},
    Answered{"ATI", "Simulated handset"},
    Answered{"AT+CGMI", "Simulated"},
    Answered{"AT+CGMM", "Handset"},
    Answered{"AT+CFUN?", "+CFUN: 1"},
    Answered{"AT+CPIN?", "+CPIN: READY"},
    Answered{"AT+CSQ", "+CSQ: 23,0"},
    Answered{"AT+CCED=0,1", "+CCED:460,0,6334,1021,62,48,-71,2"},
};

std::string Upper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return upper;
}

class AtPart final : public Part {
 public:
  explicit AtPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "at"; }

  void Register(Registry& registry) override {
    registry_ = &registry;
    registry.SetAnswerType(kCommandType, kAcknowledgeType);
    registry.On(kCommandType, 0, [this](const Frame& frame) {
      firmware_.Answer(kAcknowledgeType, 0, {});
      if (awaitingMessage_) {
        TakeMessage(frame.payload);
      } else {
        TakeCommand({frame.payload.begin(), frame.payload.end()});
      }
    });
  }

  void PowerOn() override { awaitingMessage_ = false; }

  void Describe(StatusMap& status) const override {
    status["messages_sent"] = std::to_string(messagesSent_);
    status["prompt"] = awaitingMessage_ ? "open" : "closed";
  }

 private:
  void TakeCommand(std::string command) {
    command.erase(std::min(command.find_last_not_of("\r\n") + 1, command.size()));
    std::string upper = Upper(command);
    if (upper == "AT+CGSN") return Succeed(ImeiText(ReadFixedNv(firmware_.Flash(), kImei1)));
    if (upper.starts_with("AT+CMGS=")) {
      awaitingMessage_ = true;
      Say("\r\n> ");
      return;
    }
    if (const Registry::AtHandler* handler = registry_->AtHandlerOf(upper)) {
      if (const auto line = (*handler)(upper)) return Succeed(*line);
    }
    for (const Answered& known : kAnswers) {
      if (upper == known.command) return Succeed(std::string(known.text));
    }
    Say("\r\nERROR\r\n");
  }

  // The text of a message may come in several frames, up to its end mark.
  void TakeMessage(const Bytes& text) {
    for (std::uint8_t byte : text) {
      if (byte == kCancelMessage) {
        awaitingMessage_ = false;
        return Succeed("");
      }
      if (byte == kEndOfMessage) {
        awaitingMessage_ = false;
        return Succeed("+CMGS: " + std::to_string(++messagesSent_));
      }
    }
  }

  // Every line is a frame of its own, as the handset's AT task writes them.
  void Succeed(const std::string& line) {
    if (!line.empty()) Say("\r\n" + line + "\r\n");
    Say("\r\nOK\r\n");
  }

  void Say(const std::string& text) { firmware_.Answer(kAnswerType, 0, ToBytes(text)); }

  Firmware& firmware_;
  const Registry* registry_ = nullptr;
  bool awaitingMessage_ = false;
  unsigned messagesSent_ = 0;
};

}  // namespace

std::unique_ptr<Part> MakeAtPart(Firmware& firmware) { return std::make_unique<AtPart>(firmware); }

}  // namespace handset
