/* Provisions a handset: reads what it is, gives it its IMEIs, addresses and serial numbers,
   restarts it, reads everything back, and tests its peripherals and short-range radios. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "station.h"

enum { TEST_MODE = 1, BAUD_RATE = 115200, START_LIMIT_MS = 15000 };
enum { IMEIS = 4, SERIAL_BYTES = 24, GUID_BYTES = 16, ADDRESS_BYTES = 6 };

/* The next step: a call that should give 0. */
#define STEP(name, call) (station_step(name), station_result((call), PC_ERR_SUCCESS))

/* What one handset of a production lot gets. */
typedef struct IDENTITY {
  char imeis[IMEIS][16];
  char bluetooth_address[16];
  char wifi_address[16];
  char serial_numbers[2][SERIAL_BYTES];
  uint8_t gps_settings[44];
} IDENTITY;

/* Fourteen digits, and the one that makes the sum of all digits, every second one doubled, end in
   zero. */
static void make_imei(char imei[16], unsigned long number) {
  int at, sum = 0;
  snprintf(imei, 15, "35209900%06lu", number % 1000000);
  for (at = 0; at < 14; ++at) {
    const int digit = (imei[at] - '0') * (at % 2 ? 2 : 1);
    sum += digit / 10 + digit % 10;
  }
  imei[14] = (char)('0' + (10 - sum % 10) % 10);
  imei[15] = '\0';
}

static void make_identity(IDENTITY* identity, unsigned long unit) {
  unsigned at;
  memset(identity, 0, sizeof *identity);
  for (at = 0; at < IMEIS; ++at) make_imei(identity->imeis[at], unit * IMEIS + at);
  snprintf(identity->bluetooth_address, 16, "02B70000%04lX", unit & 0xFFFF);
  snprintf(identity->wifi_address, 16, "02F10000%04lX", unit & 0xFFFF);
  snprintf(identity->serial_numbers[0], SERIAL_BYTES, "MRV-%08lu-A", unit % 100000000);
  snprintf(identity->serial_numbers[1], SERIAL_BYTES, "MRV-%08lu-B", unit % 100000000);
  for (at = 0; at < sizeof identity->gps_settings; ++at) {
    identity->gps_settings[at] = (uint8_t)(unit + at);
  }
}

static void print_address(char text[16], const uint8_t address[ADDRESS_BYTES]) {
  snprintf(text, 16, "%02X%02X%02X%02X%02X%02X", address[0], address[1], address[2], address[3],
           address[4], address[5]);
}

static void same_text(const char* name, const char* read, const char* written) {
  station_step(name);
  station_check(strcmp(read, written) == 0, read);
}

static void enter_test_mode(void) {
  STEP("wait for the start frame, enter test mode",
       QV_SetPhoneStartModeEx(TEST_MODE, START_LIMIT_MS));
}

static void read_what_it_is(void) {
  uint32_t word = 0, length = 0;
  char version[128];
  uint8_t lcd[100];
  QV_FLASH_INFO flash;

  if (STEP("chip ID", QV_GetChipID(&word))) station_note("0x%08lX", (unsigned long)word);
  if (STEP("chip type", QV_GetChipType(&word))) station_note("0x%08lX", (unsigned long)word);
  memset(version, 0, sizeof version);
  if (STEP("software version", QV_GetMSVersion(version, sizeof version - 1))) {
    station_note("%s", version);
  }
  if (STEP("LCD controller", QV_GetLcdIcDriverID(0, lcd, sizeof lcd, &length))) {
    station_note("%u bytes", (unsigned)length);
  }
  if (STEP("flash", QV_GetFlashInfo(&flash))) {
    station_note("%08lX %08lX, %u regions", (unsigned long)flash.identifier[0],
                 (unsigned long)flash.identifier[1], (unsigned)flash.region_count);
  }
}

static void read_identity(uint8_t guid[GUID_BYTES]) {
  QV_FIXED_NV_INFO info;
  uint8_t serial_number[SERIAL_BYTES + 1];
  uint8_t address[ADDRESS_BYTES];
  char text[16];
  uint32_t imeis = 0;

  memset(&info, 0, sizeof info);
  memset(serial_number, 0, sizeof serial_number);
  if (STEP("IMEIs and addresses so far", QV_FastReadNvInfo(&info))) {
    station_note("%s %s %s %s", info.imei1, info.imei2, info.imei3, info.imei4);
  }
  if (STEP("number of IMEIs", QV_FastReaIMEICount(&imeis))) station_note("%u", (unsigned)imeis);
  if (STEP("Bluetooth address", QV_LoadBTAddr(address))) {
    print_address(text, address);
    station_note("%s", text);
  }
  if (STEP("WiFi address", QV_WIFI_LoadAddr(address))) {
    print_address(text, address);
    station_note("%s", text);
  }
  if (STEP("serial number", QV_ReadSN(serial_number, SERIAL_BYTES))) {
    station_note("\"%s\"", (const char*)serial_number);
  }
  if (STEP("second serial number", QV_ReadSN2(serial_number, SERIAL_BYTES))) {
    station_note("\"%s\"", (const char*)serial_number);
  }
  STEP("GUID", QV_ReadGuid(guid));
}

static void write_identity(const IDENTITY* identity) {
  QV_FIXED_NV_INFO info;

  memset(&info, 0, sizeof info);
  info.write_imei1 = info.write_imei2 = info.write_imei3 = info.write_imei4 = 1;
  memcpy(info.imei1, identity->imeis[0], sizeof info.imei1);
  memcpy(info.imei2, identity->imeis[1], sizeof info.imei2);
  memcpy(info.imei3, identity->imeis[2], sizeof info.imei3);
  memcpy(info.imei4, identity->imeis[3], sizeof info.imei4);
  info.write_bluetooth_address = info.write_second_address = 1;
  memcpy(info.bluetooth_address, identity->bluetooth_address, sizeof info.bluetooth_address);
  memcpy(info.second_address, identity->wifi_address, sizeof info.second_address);
  STEP("write IMEIs and addresses", QV_FastWriteNvInfo(&info));

  info.imei1[3] = '?';
  station_step("a wrong IMEI is not sent");
  station_result(QV_FastWriteNvInfo(&info), PC_ERR_INVALID_PARAM);

  STEP("write the serial number", QV_WriteSN((const uint8_t*)identity->serial_numbers[0],
                                             (uint32_t)strlen(identity->serial_numbers[0])));
  STEP("write the second serial number",
       QV_WriteSN2((const uint8_t*)identity->serial_numbers[1],
                   (uint32_t)strlen(identity->serial_numbers[1])));
  STEP("write the GPS settings", QV_GpsWriteNv(identity->gps_settings));
}

static void compare_identity(const IDENTITY* identity, const uint8_t guid_before[GUID_BYTES]) {
  QV_FIXED_NV_INFO info;
  uint8_t serial_number[SERIAL_BYTES + 1];
  uint8_t address[ADDRESS_BYTES];
  uint8_t guid[GUID_BYTES];
  uint8_t gps_settings[44];
  char text[16];
  uint32_t imeis = 0;

  memset(&info, 0, sizeof info);
  memset(serial_number, 0, sizeof serial_number);
  STEP("read the fixed-NV information", QV_FastReadNvInfo(&info));
  same_text("  IMEI 1", info.imei1, identity->imeis[0]);
  same_text("  IMEI 2", info.imei2, identity->imeis[1]);
  same_text("  IMEI 3", info.imei3, identity->imeis[2]);
  same_text("  IMEI 4", info.imei4, identity->imeis[3]);
  same_text("  Bluetooth address", info.bluetooth_address, identity->bluetooth_address);
  same_text("  WiFi address", info.second_address, identity->wifi_address);
  if (STEP("count the IMEIs", QV_FastReaIMEICount(&imeis))) {
    station_step("  all there");
    station_check(imeis == IMEIS, "");
  }
  if (STEP("load the Bluetooth address", QV_LoadBTAddr(address))) {
    print_address(text, address);
    same_text("  as written", text, identity->bluetooth_address);
  }
  if (STEP("load the WiFi address", QV_WIFI_LoadAddr(address))) {
    print_address(text, address);
    same_text("  as written", text, identity->wifi_address);
  }
  if (STEP("read the serial number", QV_ReadSN(serial_number, SERIAL_BYTES))) {
    same_text("  as written", (const char*)serial_number, identity->serial_numbers[0]);
  }
  if (STEP("read the second serial number", QV_ReadSN2(serial_number, SERIAL_BYTES))) {
    same_text("  as written", (const char*)serial_number, identity->serial_numbers[1]);
  }
  if (STEP("read the GUID", QV_ReadGuid(guid))) {
    station_step("  as before");
    station_check(memcmp(guid, guid_before, GUID_BYTES) == 0, "");
  }
  if (STEP("read the GPS settings", QV_GpsReadNv(gps_settings))) {
    station_step("  as written");
    station_check(memcmp(gps_settings, identity->gps_settings, sizeof gps_settings) == 0, "");
  }
}

static void test_peripherals(void) {
  uint16_t adc = 0;
  uint32_t voltage = 0;
  const struct {
    const char* name;
    int32_t(MEROVANE_CALL* turn)(uint32_t on);
  } switches[] = {{"LED", QV_LedOn},
                  {"vibrator", QV_VibrationOn},
                  {"LCD", QV_LcdOn},
                  {"key light", QV_keyLightOn},
                  {"camera", QV_CameraOn}};
  size_t at;

  for (at = 0; at < sizeof switches / sizeof switches[0]; ++at) {
    char name[32];
    snprintf(name, sizeof name, "%s on", switches[at].name);
    STEP(name, switches[at].turn(1));
    snprintf(name, sizeof name, "%s off", switches[at].name);
    STEP(name, switches[at].turn(0));
  }
  if (STEP("ADC channel 0", QV_ReadAdcValue(0, &adc, NULL, NULL, 0))) station_note("%u", adc);
  if (STEP("battery voltage", QV_ReadPhoneVolt(&voltage))) {
    station_step("  of a lithium cell");
    station_check(voltage > 3000 && voltage < 4500, "");
    station_note("%u mV", (unsigned)voltage);
  }
  STEP("press a key", QV_PressKeyboard(5));
  STEP("GPS on", QV_GpsOpen(1));
  STEP("GPS off", QV_GpsOpen(0));
}

static void test_bluetooth(void) {
  const uint32_t words[4] = {0, 39, 0, 0};
  uint32_t dac = 0;

  station_step("no radio test outside the Bluetooth test mode");
  station_result(QV_StartBtRadioTest(1, words), QV_REFUSED);
  STEP("enter the Bluetooth test mode", QV_EnterEUTMode(1));
  STEP("radio test on channel 39", QV_StartBtRadioTest(1, words));
  STEP("stop it", QV_StartBtRadioTest(0, NULL));
  STEP("carrier on channel 0", QV_StartBtAFC(1, 0));
  STEP("try a DAC value", QV_SetBtDacValue(31));
  STEP("save a DAC value", QV_SaveBtDacValue(33));
  if (STEP("load the DAC value", QV_LoadBtDacValue(&dac))) {
    station_step("  as saved");
    station_check(dac == 33, "");
  }
  STEP("stop the carrier", QV_StartBtAFC(0, 0));
  STEP("leave the Bluetooth test mode", QV_EnterEUTMode(0));
}

static void test_wifi(void) {
  QV_WIFI_FACTOR factor = {0, 2, 75};
  uint32_t first = 0, second = 0;

  station_step("no receiver outside the WiFi test mode");
  station_result(QV_WIFI_SetRxStatus(1), PC_ERR_WIFI_OPER_FAIL);
  STEP("enter the WiFi test mode", QV_WIFI_EnterEUTMode(1));
  STEP("channel 11", QV_WIFI_SetChannel(11));
  STEP("54 Mbit/s", QV_WIFI_SetDateRat(54));
  STEP("modulation mode 2", QV_WIFI_SetMode(2));
  STEP("power control level 3", QV_WIFI_SetPCL(3));
  STEP("transmitter on", QV_WIFI_SetTxStatus(1, 0));
  STEP("transmitter off", QV_WIFI_SetTxStatus(0, 0));
  STEP("clear the received counts", QV_WIFI_SetRxStatus(2));
  STEP("receiver on", QV_WIFI_SetRxStatus(1));
  if (STEP("received counts", QV_WIFI_ReadRxValue(&first, &second))) {
    station_note("%u and %u", (unsigned)first, (unsigned)second);
  }
  STEP("receiver off", QV_WIFI_SetRxStatus(0));
  STEP("write a factor", QV_WIFI_OperFactor(1, &factor));
  memset(&factor, 0, sizeof factor);
  if (STEP("read the factor", QV_WIFI_OperFactor(0, &factor))) {
    station_step("  as written");
    station_check(factor.index == 2 && factor.value == 75, "");
  }
  STEP("leave the WiFi test mode", QV_WIFI_EnterEUTMode(0));
}

static void test_dsp(void) {
  enum { SCRATCH = 0x00100000 }; /* the simulated handset's writable DSP memory */
  uint8_t memory[4];

  STEP("reset the DSP's RF parameters", QV_DspDebug_ResetRFparam());
  STEP("write DSP memory", QV_DspDebug_WrRegMemo(0, 4, SCRATCH, 0x5AA55AA5));
  STEP("read DSP memory", QV_DspDebug_RdRegMemo(0, 4, SCRATCH, memory, 1));
  STEP("plot a frame", QV_DspDebug_PlotFrame(1, 0, 0, 0, 1));
}

int main(int argc, char** argv) {
  const int32_t port = station_port(
      argc, argv, "Provisions the handset; a second argument is its number in the lot.");
  const unsigned long unit = argc > 2 ? strtoul(argv[2], NULL, 10) : 1;
  IDENTITY identity;
  uint8_t guid[GUID_BYTES] = {0};

  printf("station: provisioning unit %lu on port %d\n", unit, (int)port);
  make_identity(&identity, unit);
  if (STEP("open the port", QV_BeginPhoneTest(port, BAUD_RATE))) {
    enter_test_mode();
    read_what_it_is();
    read_identity(guid);
    write_identity(&identity);
    STEP("restart the handset", QV_RestartPhone(3000));
    enter_test_mode();
    compare_identity(&identity, guid);
    test_peripherals();
    test_bluetooth();
    test_wifi();
    test_dsp();
  }
  STEP("close the port", QV_EndPhoneTest());
  return station_summary("provisioning");
}
