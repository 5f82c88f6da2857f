// A handset on a port, for C++17: a session that ends by itself, values instead of buffers, and
// failures as exceptions that say in words what went wrong. It is made of the functions of
// merovane.h, and works with every version of the library that has them.
//
//   merovane::Phone phone(5);
//   phone.Start(1);  // whether the handset is booting or already in that mode
//   phone.SetImei("490154203237518");
//   std::vector<std::uint8_t> item = phone.ReadFlash(3, 16);
//   phone.Call(QV_PressKeyboard_MT, 27u);  // any other function that takes a port
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "merovane/diagnostics.h"
#include "merovane/merovane.h"

namespace merovane {

// A call that failed.
class Error : public std::runtime_error {
 public:
  Error(std::int32_t code, const Merovane_Failure& failure)
      : std::runtime_error(Describe(code, failure)), code_(code), failure_(failure) {}

  // One of QV_RESULT, and its name.
  std::int32_t Code() const noexcept { return code_; }
  const char* Name() const noexcept { return Merovane_ResultName(code_); }
  // The function, such as "QV_ReadFlash_MT", and the number under which it is reported.
  const char* Function() const noexcept { return failure_.function; }
  std::uint32_t Operation() const noexcept { return failure_.operation; }
  // What happened, and what to check next.
  const char* Advice() const noexcept {
    return failure_.advice[0] != '\0' ? failure_.advice : Merovane_ResultAdvice(code_);
  }
  // All that is known: device, time taken, what came instead of the answer.
  const Merovane_Failure& Failure() const noexcept { return failure_; }

 private:
  static std::string Describe(std::int32_t code, const Merovane_Failure& failure) {
    std::string text = failure.function[0] != '\0' ? failure.function : "call";
    text += std::string(": ") + Merovane_ResultName(code) + " (" + std::to_string(code) + "): ";
    return text + (failure.advice[0] != '\0' ? failure.advice : Merovane_ResultMeaning(code));
  }

  std::int32_t code_;
  Merovane_Failure failure_;
};

// Throws when the call that gave this result, on this thread, has failed.
inline void Check(std::int32_t result) {
  if (result == PC_ERR_SUCCESS) return;
  Merovane_Failure failure{};
  failure.struct_bytes = sizeof failure;
  // Of another call than this one it would tell the wrong story.
  if (Merovane_LastFailure(0, &failure) == 0 || failure.result != result) failure = {};
  throw Error(result, failure);
}

// A session on a port. Several threads may use one phone; their calls run one after another.
class Phone {
 public:
  using Milliseconds = std::chrono::milliseconds;
  using Bytes = std::vector<std::uint8_t>;

  static constexpr std::int32_t kBaudRate = 115200;

  explicit Phone(std::int32_t port, std::int32_t baudRate = kBaudRate) {
    Check(QV_BeginPhoneTest_MT(port, baudRate));
    port_ = port;
  }
  Phone(Phone&& other) noexcept : port_(std::exchange(other.port_, kNoPort)) {}
  Phone& operator=(Phone&& other) noexcept {
    if (this != &other) {
      End();
      port_ = std::exchange(other.port_, kNoPort);
    }
    return *this;
  }
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;
  ~Phone() { End(); }

  // Ends the session, as the destructor does, and tells when that fails.
  void Close() {
    if (port_ != kNoPort) Check(QV_EndPhoneTest_MT(std::exchange(port_, kNoPort)));
  }

  // 0 once it is closed or moved from.
  std::int32_t Port() const noexcept { return port_; }

  // Any function of merovane.h that takes a port: phone.Call(QV_LedOn_MT, 1u).
  template <typename... Parameters, typename... Arguments>
  void Call(std::int32_t(MEROVANE_CALL* function)(std::int32_t, Parameters...),
            Arguments&&... arguments) const {
    Check(function(port_, std::forward<Arguments>(arguments)...));
  }

  // ---- Modes ----

  // Brings the handset into a start mode: one that boots is caught by its start frame, one that
  // runs already is asked for its mode and told to change it if it is another. The handset has
  // until `limit` to be there; what it is asked last may take as long as it takes.
  void Start(std::uint32_t mode, Milliseconds limit = std::chrono::seconds(15)) const {
    const auto end = std::chrono::steady_clock::now() + limit;
    Milliseconds attempt = std::chrono::milliseconds(300);
    while (true) {
      const auto left =
          std::chrono::duration_cast<Milliseconds>(end - std::chrono::steady_clock::now());
      const std::int32_t caught =
          WaitForStartFrame(std::clamp(left, Milliseconds::zero(), attempt));
      if (caught == PC_ERR_SUCCESS) return Call(QV_SetPhoneStartMode_MT, mode);
      if (caught != PC_ERR_NO_USEFUL_DATA || left <= attempt) Check(caught);

      std::array<std::uint8_t, 4> data{};
      const bool running = QV_ReadMode_MT(port_, data.data(), 4) == PC_ERR_SUCCESS;
      if (running && data[3] == static_cast<std::uint8_t>(mode + 0x80)) return;
      if (running && data[3] >= 0x80)
        return Call(QV_ChangePhoneMode_MT, static_cast<std::uint8_t>(mode));
      // It may need longer than the first attempt to show itself again.
      attempt = std::chrono::seconds(1);
    }
  }

  // Puts the layer-1 software into its GSM or TD-SCDMA calibration mode and switches its
  // calibration layer on. For GSM the setting "Inc Recv Timeout" has to be above 0, as
  // QV_ChangeGSMTDCalMode says.
  void BeginCalibration(QV_CALIBRATION_MODE mode = QV_CALIBRATION_MODE_GSM) const {
    Call(QV_ChangeGSMTDCalMode_MT, static_cast<std::int32_t>(mode));
    Call(QV_Active_MT, 1u);
  }
  void EndCalibration() const { Call(QV_Active_MT, 0u); }

  void Restart(Milliseconds limit = std::chrono::seconds(3)) const {
    Call(QV_RestartPhone_MT, Count(limit));
  }

  // ---- Identity ----

  std::string Imei() const { return FixedText(FixedNv().imei1); }
  // 15 decimal digits.
  void SetImei(std::string_view digits) const {
    QV_FIXED_NV_INFO info{};
    info.write_imei1 = 1;
    CopyText(digits, info.imei1);
    Call(QV_FastWriteNvInfo_MT, &info);
  }

  // 12 hexadecimal digits, most significant byte first.
  std::string BluetoothAddress() const { return FixedText(FixedNv().bluetooth_address); }
  void SetBluetoothAddress(std::string_view digits) const {
    QV_FIXED_NV_INFO info{};
    info.write_bluetooth_address = 1;
    CopyText(digits, info.bluetooth_address);
    Call(QV_FastWriteNvInfo_MT, &info);
  }

  QV_FIXED_NV_INFO FixedNv() const {
    QV_FIXED_NV_INFO info{};
    Call(QV_FastReadNvInfo_MT, &info);
    return info;
  }

  std::string SerialNumber() const {
    std::array<std::uint8_t, 24> text{};
    Call(QV_ReadSN_MT, text.data(), Size(text));
    return {text.begin(), std::find(text.begin(), text.end(), 0)};
  }
  // At most 23 characters.
  void SetSerialNumber(std::string_view text) const {
    const Bytes bytes(text.begin(), text.end());
    Call(QV_WriteSN_MT, bytes.data(), Size(bytes));
  }

  std::array<std::uint8_t, 16> Guid() const {
    std::array<std::uint8_t, 16> guid{};
    Call(QV_ReadGuid_MT, guid.data());
    return guid;
  }

  std::uint32_t ChipId() const {
    std::uint32_t id = 0;
    Call(QV_GetChipID_MT, &id);
    return id;
  }

  std::string SoftwareVersion() const {
    std::array<char, 512> text{};
    Call(QV_GetMSVersion_MT, text.data(), Size(text));
    return {text.begin(), std::find(text.begin(), text.end(), '\0')};
  }

  // ---- AT commands, memory, measurements ----

  // The whole answer, line ends included; ask whether its end is the "OK" that was hoped for.
  std::string SendAt(const std::string& command,
                     Milliseconds limit = std::chrono::seconds(2)) const {
    std::string answer(9216, '\0');
    std::uint32_t length = 0;
    Call(QV_SendAtCommand_MT, command.c_str(), Size(command), 1u, answer.data(), Size(answer),
         &length, Count(limit));
    answer.resize(length);
    return answer;
  }

  // A production flash item from its start; fewer bytes when the handset has no more.
  Bytes ReadFlash(std::uint16_t item, std::uint16_t bytes,
                  Milliseconds limit = std::chrono::seconds(4)) const {
    Bytes data(bytes);
    std::uint32_t length = 0;
    Call(QV_ReadFlash_MT, item, data.data(), static_cast<std::int32_t>(bytes), &length,
         Count(limit));
    data.resize(length);
    return data;
  }
  void WriteFlash(std::uint16_t item, const Bytes& data,
                  Milliseconds limit = std::chrono::seconds(4)) const {
    Call(QV_WriteFlash_MT, item, data.data(), Size(data), Count(limit));
  }

  Bytes ReadNv(std::uint16_t item, Milliseconds limit = std::chrono::seconds(4)) const {
    Bytes data(65535);
    std::uint32_t length = 0;
    Call(QV_ReadNv_MT, item, data.data(), Size(data), &length, Count(limit));
    data.resize(length);
    return data;
  }
  void WriteNv(std::uint16_t item, const Bytes& data) const {
    // An empty item is written too, and a null pointer refused.
    static constexpr std::uint8_t kNothing = 0;
    Call(QV_WriteNv_MT, item, data.empty() ? &kNothing : data.data(), Size(data));
  }

  // In the handset's unit.
  std::uint32_t BatteryVoltage() const {
    std::uint32_t voltage = 0;
    Call(QV_ReadPhoneVolt_MT, &voltage);
    return voltage;
  }

  std::uint16_t ReadAdc(std::uint8_t channel, Milliseconds limit = std::chrono::seconds(1)) const {
    std::uint16_t value = 0;
    Call(QV_ReadAdcValue_MT, channel, &value, nullptr, nullptr, Count(limit));
    return value;
  }

 private:
  static constexpr std::int32_t kNoPort = 0;

  // Ended by a destructor, which has nobody to tell.
  void End() noexcept {
    if (port_ != kNoPort) QV_EndPhoneTest_MT(std::exchange(port_, kNoPort));
  }

  std::int32_t WaitForStartFrame(Milliseconds limit) const {
    std::array<std::uint8_t, 8> frame{};
    std::uint32_t length = 0;
    return QV_RecvPhoneStartData_MT(port_, frame.data(), Size(frame), &length, Count(limit));
  }

  template <typename Container>
  static std::uint32_t Size(const Container& container) {
    return static_cast<std::uint32_t>(container.size());
  }

  static std::uint32_t Count(Milliseconds limit) {
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(limit.count(), 0, UINT32_MAX));
  }

  static std::string FixedText(const char (&text)[16]) {
    return {text, std::find(text, text + 16, '\0')};
  }

  // Cutting a text that is too long would write another one than was asked for.
  static void CopyText(std::string_view from, char (&to)[16]) {
    if (from.size() > 15) throw std::invalid_argument("longer than 15 characters");
    std::copy(from.begin(), from.end(), to);
  }

  std::int32_t port_ = kNoPort;
};

}  // namespace merovane
