/* Takes a handset's calibration into an NV project, builds the NV image, sends its items to the
   handset and reads them back. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "station.h"

enum {
  TEST_MODE = 1,
  BAUD_RATE = 115200,
  GAIN_WORDS = 91,
  COMPENSATIONS = 5,
  STEP_FACTORS = 80,
  IMAGE_CAPACITY = 65536,
  TIME_STAMP_BYTES = 4
};

/* A band's number for handset commands and for NV projects. */
typedef struct BAND {
  const char* name;
  uint32_t handset;
  uint32_t project;
} BAND;

static const BAND bands[] = {
    {"GSM900", 0, 0}, {"GSM850", 4, 1}, {"DCS1800", 1, 2}, {"PCS1900", 3, 3}};
enum { BANDS = sizeof bands / sizeof bands[0] };

static uint8_t image[IMAGE_CAPACITY];

static void take_band(const BAND* band) {
  uint16_t words[GAIN_WORDS], gain_index = 0, compensation[COMPENSATIONS], factors[STEP_FACTORS];
  uint16_t words_back[GAIN_WORDS], index_back = 0, boundary[4];
  char name[64];

  snprintf(name, sizeof name, "%s: read flash", band->name);
  station_step(name);
  if (!station_result(QV_ReadData_Flash_AGC_agc_ctrl_word(band->handset, words), PC_ERR_SUCCESS) ||
      QV_ReadData_Flash_AGC_max_rf_gain_index(band->handset, &gain_index) != PC_ERR_SUCCESS ||
      QV_ReadData_Flash_AGC_RX_compensate_value(band->handset, compensation, COMPENSATIONS) !=
          PC_ERR_SUCCESS ||
      QV_ReadData_Flash_APC_RF_ramppwr_step_factor(band->handset, factors) != PC_ERR_SUCCESS) {
    station_check(0, "the rest of flash");
    return;
  }
  snprintf(name, sizeof name, "%s: into the project", band->name);
  station_step(name);
  station_result(QV_SetNvValue_Agc(words, gain_index, compensation, band->project), PC_ERR_SUCCESS);
  station_result(QV_SetNvValue_Apc(factors, band->project), PC_ERR_SUCCESS);
  snprintf(name, sizeof name, "%s: as the project has it", band->name);
  station_step(name);
  if (station_result(QV_GetNvValue_Agc(words_back, &index_back, boundary, band->project),
                     PC_ERR_SUCCESS)) {
    station_check(memcmp(words, words_back, sizeof words) == 0 && index_back == gain_index, "same");
  }
}

static void take_crystal(void) {
  uint16_t centre = 0, slope = 0, centre_back = 0, slope_back = 0;
  char text[256];

  station_step("AFC: handset to project");
  if (!station_result(QV_ReadData_Flash_AFC_afc_center(&centre), PC_ERR_SUCCESS) ||
      !station_result(QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits(&slope), PC_ERR_SUCCESS) ||
      !station_result(QV_SetNvValue_Afc_1(centre, slope), PC_ERR_SUCCESS) ||
      !station_result(QV_GetNvValue_Afc_1(&centre_back, &slope_back), PC_ERR_SUCCESS)) {
    return;
  }
  station_check(centre == centre_back && slope == slope_back, "same");
  station_step("the same by path");
  if (station_result(
          QV_GetNvValue(0,
                        "CALIBRATION_PARAM_T.rf_param_dsp_use.rf_common_param_dsp_use.afc_center",
                        text, sizeof text),
          PC_ERR_SUCCESS)) {
    station_note("afc_center = %s", text);
    station_check(strtol(text, NULL, 0) == centre, "same");
  }
}

static uint32_t u16_at(const uint8_t* bytes, uint32_t big_endian) {
  return big_endian ? (uint32_t)bytes[0] << 8 | bytes[1] : (uint32_t)bytes[1] << 8 | bytes[0];
}

/* The image is a time stamp, then the items: id, length, data, each from a multiple of 4 on. */
static void send_image(uint32_t length) {
  static uint8_t back[IMAGE_CAPACITY];
  uint32_t big_endian = 1, at, items = 0, bytes = 0, different = 0;
  int32_t result = QV_GetProperty(4, 0, &big_endian);

  station_step("send the image's items and read them back");
  for (at = TIME_STAMP_BYTES; result == PC_ERR_SUCCESS && at + 4 <= length;) {
    const uint16_t id = (uint16_t)u16_at(image + at, big_endian);
    const uint32_t data_bytes = u16_at(image + at + 2, big_endian);
    uint32_t back_bytes = 0;
    if (id == 0 && data_bytes == 0) {
      /* A text item has room in the image, and nothing in it. */
      at += 4;
      continue;
    }
    if (data_bytes == 0 || at + 4 + data_bytes > length) break;
    result = QV_WriteNv(id, image + at + 4, data_bytes);
    if (result != PC_ERR_SUCCESS) break;
    result = QV_ReadNv(id, back, data_bytes, &back_bytes, 2000);
    if (result != PC_ERR_SUCCESS) break;
    if (back_bytes != data_bytes || memcmp(back, image + at + 4, data_bytes) != 0) ++different;
    ++items;
    bytes += data_bytes;
    at = (at + 4 + data_bytes + 3) / 4 * 4;
  }
  station_result(result, PC_ERR_SUCCESS);
  station_note("%u items, %u bytes", (unsigned)items, (unsigned)bytes);
  station_check(items > 0 && different == 0 && at == length, "all items, same");
}

int main(int argc, char** argv) {
  const int32_t port = station_port(
      argc, argv, "Second argument: the NV project file to take the handset's calibration into.");
  uint32_t length = 0, offset = 0;
  size_t i;

  if (argc < 3) {
    fprintf(stderr, "usage: %s PORT PROJECT\n", argv[0]);
    return 2;
  }
  printf("station: NV project on port %d\n", (int)port);
  station_step("open the port");
  if (station_result(QV_BeginPhoneTest(port, BAUD_RATE), PC_ERR_SUCCESS)) {
    station_step("catch the booting handset, enter test mode");
    station_result(QV_SetPhoneStartModeEx(TEST_MODE, 15000), PC_ERR_SUCCESS);
    station_step("no project yet");
    station_result(QV_GenerateNvBianryDataBlockInMemory(image, &length),
                   PC_ERR_NV_PRJ_FILE_IS_NOT_OPEN);
    station_step("open the project");
    if (station_result(QV_OpenPrjFile(argv[2]), PC_ERR_SUCCESS)) {
      take_crystal();
      for (i = 0; i < BANDS; ++i) take_band(&bands[i]);
      station_step("build the image");
      if (station_result(QV_GenerateNvBianryDataBlockInMemory(image, &length), PC_ERR_SUCCESS)) {
        station_note("%u bytes", (unsigned)length);
        station_step("offset of the DCS AGC words");
        station_result(
            QV_GetItemOffsetAndSize(
                "calibration_param_T.rf_param_dsp_use.rf_dcs_param_dsp_use.agc_ctrl_word[0x0]",
                &offset),
            PC_ERR_SUCCESS);
        station_note("%u", (unsigned)offset);
        send_image(length);
      }
      station_step("image into the project's target file");
      station_result(QV_SaveToBinaryFile(), PC_ERR_SUCCESS);
      station_step("close the project");
      station_result(QV_ClosePrjFile(), PC_ERR_SUCCESS);
    }
  }
  station_step("close the port");
  station_result(QV_EndPhoneTest(), PC_ERR_SUCCESS);
  return station_summary("NV project");
}
