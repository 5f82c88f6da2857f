// Memory, identity and peripherals through the exported functions, on a simulated handset.
#include <cstring>
#include <filesystem>

#include "support/bytes.h"
#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

constexpr const char* kImei = "490154203237518";

class Provisioning : public StationTest, public ::testing::WithParamInterface<bool> {
 protected:
  Provisioning() { QV_SetProperty(4, 0, GetParam()); }

  // Another handset, or the same one off and on again when the file stays.
  void Connect(HandsetOptions options = Running()) {
    options.stateFile = (directory_ / "handset.json").string();
    options.byteOrder = OrderOf(GetParam());
    SwitchOn(options);
    ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
  }
  static std::string SerialNumber(std::int32_t(MEROVANE_CALL* read)(std::int32_t, std::uint8_t*,
                                                                    std::uint32_t)) {
    char number[25] = {};
    EXPECT_EQ(read(kPort, reinterpret_cast<std::uint8_t*>(number), 24), PC_ERR_SUCCESS);
    return number;
  }
  static std::int32_t WriteSerialNumber(std::int32_t(MEROVANE_CALL* write)(std::int32_t,
                                                                           const std::uint8_t*,
                                                                           std::uint32_t),
                                        const std::string& text) {
    return write(kPort, reinterpret_cast<const std::uint8_t*>(text.data()),
                 static_cast<std::uint32_t>(text.size()));
  }

 private:
  TempDirectory directory_;
};
INSTANTIATE_TEST_SUITE_P(ByteOrders, Provisioning, ::testing::Values(true, false));

TEST_P(Provisioning, WritesWhatABlankHandsetKeeps) {
  HandsetOptions blank = Running();
  blank.blank = true;
  Connect(blank);
  QV_FIXED_NV_INFO info{};
  info.write_imei1 = info.write_imei2 = info.write_imei3 = info.write_imei4 = 1;
  for (char* imei : {info.imei1, info.imei2, info.imei3, info.imei4}) std::strcpy(imei, kImei);
  info.imei4[14] = '0';
  info.write_bluetooth_address = info.write_second_address = info.write_parameter_block = 1;
  std::strcpy(info.bluetooth_address, "0011223344aa");
  std::strcpy(info.second_address, "a0b0c0d0e0f0");
  for (std::uint8_t at = 0; at < 44; ++at) info.parameter_block[at] = at;
  ASSERT_EQ(QV_FastWriteNvInfo(&info), PC_ERR_SUCCESS);
  ASSERT_EQ(WriteSerialNumber(QV_WriteSN_MT, "FIRST-0001"), PC_ERR_SUCCESS);
  ASSERT_EQ(WriteSerialNumber(QV_WriteSN2_MT, "SECOND-0002"), PC_ERR_SUCCESS);
  EXPECT_EQ(phone->Status("identity.layout"), "production") << "as the settings file says";

  Connect();
  EXPECT_EQ(phone->Status("fixed_nv.imei3"), kImei);
  EXPECT_EQ(phone->Status("identity.sn2"), "SECOND-0002");
  QV_FIXED_NV_INFO read{};
  ASSERT_EQ(QV_FastReadNvInfo_MT(kPort, &read), PC_ERR_SUCCESS);
  EXPECT_STREQ(read.imei1, kImei);
  EXPECT_STREQ(read.imei4, info.imei4);
  EXPECT_STREQ(read.bluetooth_address, "0011223344AA");
  EXPECT_STREQ(read.second_address, "A0B0C0D0E0F0");
  EXPECT_EQ(std::memcmp(read.parameter_block, info.parameter_block, 44), 0);
  std::uint8_t block[44];
  EXPECT_EQ(QV_GpsReadNv(block), PC_ERR_SUCCESS);
  EXPECT_EQ(std::memcmp(block, info.parameter_block, 44), 0) << "the same block";
  std::uint32_t imeis = 0;
  EXPECT_EQ(QV_FastReaIMEICount(&imeis), PC_ERR_SUCCESS);
  EXPECT_EQ(imeis, 4u);
  std::uint8_t address[6];
  EXPECT_EQ(QV_LoadBTAddr(address), PC_ERR_SUCCESS);
  EXPECT_THAT(address, ElementsAre(0x00, 0x11, 0x22, 0x33, 0x44, 0xAA));
  EXPECT_EQ(SerialNumber(QV_ReadSN_MT), "FIRST-0001");
  EXPECT_EQ(SerialNumber(QV_ReadSN2_MT), "SECOND-0002");
}

TEST_P(Provisioning, MovesItemsRegistersAndBlocks) {
  Connect();
  const Bytes data{1, 2, 3, 4, 5, 6, 7, 8};
  Bytes read(8);
  std::uint32_t length = 0;
  EXPECT_EQ(QV_WriteFlash(9, data.data(), 8, 0), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadFlash_MT(kPort, 9, read.data(), 8, &length, 1000), PC_ERR_SUCCESS);
  EXPECT_EQ(read, data);
  EXPECT_EQ(QV_WriteNv(300, data.data(), 8), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadNvFromHandset(300, 2, 4, read.data(), 8, &length), PC_ERR_SUCCESS);
  EXPECT_THAT(read, ElementsAre(3, 4, 5, 6, 5, 6, 7, 8));
  EXPECT_EQ(QV_WriteRegister(1, 0x20000000, data.data(), 4), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadRegister(0, 0x20000000, read.data(), 8), PC_ERR_SUCCESS);
  EXPECT_EQ(read, data);
  const std::uint16_t words[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0x12FF};
  std::uint16_t answered[10] = {};
  EXPECT_EQ(QV_Send7310KCommand(77, words, answered, 0), PC_ERR_SUCCESS);
  EXPECT_EQ(answered[9], 0x1300u);
  QV_FLASH_INFO flash{};
  EXPECT_EQ(QV_GetFlashInfo(&flash), PC_ERR_SUCCESS);
  EXPECT_EQ(flash.regions[1].words[1], 0x8000u);
  EXPECT_EQ(QV_FastReadVerSion(read.data(), 8, &length), PC_ERR_IMPORT_BUFFER_SIZE_IS_TOO_SMALL);
  EXPECT_EQ(length, 64u);
  EXPECT_EQ(QV_EraseFlash(1000), PC_ERR_SUCCESS);
}

}  // namespace
}  // namespace merovane::test
