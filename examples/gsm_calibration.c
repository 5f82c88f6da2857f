#include "gsm_calibration.h"

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

const CALIBRATION_BAND calibration_bands[CALIBRATION_BANDS] = {
    {0, "GSM900", 1, 124, 5, 33.0},
    {4, "GSM850", 128, 251, 5, 33.0},
    {1, "DCS1800", 512, 885, 0, 30.0},
    {3, "PCS1900", 512, 810, 0, 30.0},
};

static const double kInputDbm = -70.0;
static const uint32_t kCommitLimitMs = 20000;

/* Ends the function with the first result that is not 0. */
#define TRY(call)                                        \
  do {                                                   \
    const int32_t try_result = (call);                   \
    if (try_result != PC_ERR_SUCCESS) return try_result; \
  } while (0)

uint16_t group_channel(const CALIBRATION_BAND* band, int group) {
  const double width = (band->last_channel - band->first_channel) / (double)CHANNEL_GROUPS;
  return (uint16_t)(band->first_channel + width * (group + 0.5));
}

double level_power_dbm(const CALIBRATION_BAND* band, int level) {
  return band->highest_power_dbm - 2.0 * level;
}

static uint16_t rounded(double value, double highest) {
  if (value < 0) value = 0;
  if (value > highest) value = highest;
  return (uint16_t)(value + 0.5);
}

int32_t instrument_ask(int32_t port, const char* command, long* numbers, int count) {
  char answer[256];
  uint32_t length = 0;
  char* at;
  int i;

  TRY(QV_SendAtCommand_MT(port, command, (uint32_t)strlen(command), 1, answer, sizeof answer - 1,
                          &length, 2000));
  answer[length] = '\0';
  if (strstr(answer, "ERROR")) return PC_ERR_CAN_NOT_RECV_USEFUL_DATA;
  at = strchr(answer, ':');
  if (count > 0 && !at) return PC_ERR_CAN_NOT_RECV_USEFUL_DATA;
  for (i = 0; i < count; ++i) {
    char* end;
    numbers[i] = strtol(at + 1, &end, 10);
    if (end == at + 1) return PC_ERR_CAN_NOT_RECV_USEFUL_DATA;
    at = end;
  }
  return PC_ERR_SUCCESS;
}

static int32_t ask_scaled(int32_t port, const char* command, double scale, double* value) {
  long number = 0;
  TRY(instrument_ask(port, command, &number, 1));
  *value = (double)number / scale;
  return PC_ERR_SUCCESS;
}

int32_t calibration_begin(int32_t port) {
  TRY(QV_ChangeGSMTDCalMode_MT(port, 1));
  return QV_Active_MT(port, 1);
}

int32_t calibration_end(int32_t port) { return QV_Active_MT(port, 0); }

static int32_t frequency_error(int32_t port, uint16_t dac, double* hz) {
  QV_AFC_PARAMETERS afc = {{0}};
  afc.values[0] = dac;
  afc.values[1] = group_channel(&calibration_bands[0], 2);
  afc.values[2] = calibration_bands[0].first_level;
  TRY(QV_AfcStart_MT(port, 1, &afc));
  return ask_scaled(port, "AT+SIMFREQ?", 100.0, hz);
}

/* Newton's method with the slope between the last two points. */
int32_t calibrate_crystal(int32_t port, GSM_CALIBRATION* found) {
  double before = 3800.0, dac = 4400.0, error_before = 0, error = 0;
  int i;

  TRY(QV_SetPhoneClassmark_MT(port, calibration_bands[0].band));
  TRY(frequency_error(port, rounded(before, 8191), &error_before));
  TRY(frequency_error(port, rounded(dac, 8191), &error));
  found->hz_per_step = (error - error_before) / (dac - before);
  for (i = 0; i < 3; ++i) {
    dac = floor(dac - error / found->hz_per_step + 0.5);
    TRY(frequency_error(port, rounded(dac, 8191), &error));
  }
  found->centre_dac = dac - error / found->hz_per_step;
  /* The slope where it will be used. */
  TRY(frequency_error(port, rounded(dac - 200, 8191), &error_before));
  TRY(frequency_error(port, rounded(dac + 200, 8191), &error));
  found->hz_per_step = (error - error_before) / 400.0;
  return QV_AfcStart_MT(port, 0, NULL);
}

static int32_t measure_receiver(int32_t port, uint16_t channel, uint16_t gain_word,
                                QV_AGC_RESULT* measured) {
  QV_AGC_PARAMETERS agc;
  memset(&agc, 0, sizeof agc);
  agc.words[0] = channel;
  agc.words[1] = gain_word;
  return QV_AgcStart_MT(port, 1, &agc, measured);
}

int32_t calibrate_receiver(int32_t port, const CALIBRATION_BAND* band, BAND_CALIBRATION* found) {
  enum { POINTS = 3 };
  static const uint16_t words[POINTS] = {40, 160, 320};
  const uint16_t middle = group_channel(band, 2);
  const uint16_t no_compensation[CHANNEL_GROUPS] = {0};
  double sum_w = 0, sum_g = 0, sum_ww = 0, sum_wg = 0;
  QV_AGC_RESULT measured;
  char command[32];
  int i;

  TRY(QV_SetPhoneClassmark_MT(port, band->band));
  snprintf(command, sizeof command, "AT+SIMGEN=%d", (int)(kInputDbm * 100));
  TRY(instrument_ask(port, command, NULL, 0));
  TRY(QV_WriteData_Ram_AGC_RX_compensate_value_MT(port, band->band, no_compensation,
                                                  CHANNEL_GROUPS));

  /* A line through the gains at three words. */
  for (i = 0; i < POINTS; ++i) {
    double gain;
    TRY(measure_receiver(port, middle, words[i], &measured));
    gain = measured.rssi / 64.0 - 130.0 - kInputDbm;
    sum_w += words[i];
    sum_g += gain;
    sum_ww += (double)words[i] * words[i];
    sum_wg += words[i] * gain;
  }
  found->gain_step_db = (POINTS * sum_wg - sum_w * sum_g) / (POINTS * sum_ww - sum_w * sum_w);
  found->gain_at_zero_db = (sum_g - found->gain_step_db * sum_w) / POINTS;
  for (i = 0; i < GAIN_WORDS; ++i) {
    found->gain_words[i] = rounded((i - found->gain_at_zero_db) / found->gain_step_db, 65535);
  }

  for (i = 0; i < CHANNEL_GROUPS; ++i) {
    double missing;
    TRY(measure_receiver(port, group_channel(band, i), 160, &measured));
    missing = 4 * (kInputDbm + 110.0) - measured.rx_level;
    found->compensation[i] = (uint16_t)(int16_t)floor(missing + 0.5);
  }
  return QV_AgcStart_MT(port, 0, NULL, NULL);
}

static int32_t power_at(int32_t port, const CALIBRATION_BAND* band, int group, int level,
                        uint16_t factor, double* dbm) {
  QV_POWER_STEP step;
  step.first = band->band;
  step.second = (uint16_t)(band->first_level + level);
  step.third = factor;
  step.fourth = (uint32_t)group;
  TRY(QV_PwrStepFactorSet_MT(port, &step));
  return ask_scaled(port, "AT+SIMPOWER?", 100.0, dbm);
}

int32_t calibrate_transmitter(int32_t port, const CALIBRATION_BAND* band, BAND_CALIBRATION* found) {
  int group, level, i;

  TRY(QV_SetPhoneClassmark_MT(port, band->band));
  for (group = 0; group < CHANNEL_GROUPS; ++group) {
    double factor = 2048;
    for (level = 0; level < POWER_LEVELS; ++level) {
      /* The last level's factor is a good start for the next. */
      for (i = 0; i < 4; ++i) {
        double power = 0, error;
        TRY(power_at(port, band, group, level, rounded(factor, 4095), &power));
        error = level_power_dbm(band, level) - power;
        if (i > 0 && fabs(error) < 0.02) break;
        factor = rounded(factor, 4095) * pow(10.0, error / 20.0);
      }
      found->step_factors[group * POWER_LEVELS + level] = rounded(factor, 4095);
      factor *= pow(10.0, -2.0 / 20.0);
    }
  }
  return QV_AfcStart_MT(port, 0, NULL);
}

int32_t calibration_write_ram(int32_t port, const GSM_CALIBRATION* found) {
  int i;
  TRY(QV_WriteData_Ram_AFC_afc_center_MT(port, rounded(found->centre_dac, 8191)));
  TRY(QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits_MT(port,
                                                     rounded(64 * found->hz_per_step, 65535)));
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    const uint32_t band = calibration_bands[i].band;
    const BAND_CALIBRATION* tables = &found->bands[i];
    TRY(QV_WriteData_Ram_AGC_agc_ctrl_word_MT(port, band, tables->gain_words));
    TRY(QV_WriteData_Ram_AGC_RX_compensate_value_MT(port, band, tables->compensation,
                                                    CHANNEL_GROUPS));
    TRY(QV_WriteData_Ram_APC_RF_ramppwr_step_factor_MT(port, band, tables->step_factors));
  }
  return PC_ERR_SUCCESS;
}

int32_t calibration_compare(int32_t port, int flash, const GSM_CALIBRATION* found, int* same) {
  uint16_t centre = 0, slope = 0;
  int i;

  *same = 1;
  TRY(flash ? QV_ReadData_Flash_AFC_afc_center_MT(port, &centre)
            : QV_ReadData_Ram_AFC_afc_center_MT(port, &centre));
  TRY(flash ? QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits_MT(port, &slope)
            : QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits_MT(port, &slope));
  if (centre != rounded(found->centre_dac, 8191) ||
      slope != rounded(64 * found->hz_per_step, 65535)) {
    *same = 0;
  }
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    const uint32_t band = calibration_bands[i].band;
    BAND_CALIBRATION read;
    memset(&read, 0, sizeof read);
    TRY(flash ? QV_ReadData_Flash_AGC_agc_ctrl_word_MT(port, band, read.gain_words)
              : QV_ReadData_Ram_AGC_agc_ctrl_word_MT(port, band, read.gain_words));
    TRY(flash ? QV_ReadData_Flash_AGC_RX_compensate_value_MT(port, band, read.compensation,
                                                             CHANNEL_GROUPS)
              : QV_ReadData_Ram_AGC_RX_compensate_value_MT(port, band, read.compensation,
                                                           CHANNEL_GROUPS));
    TRY(flash ? QV_ReadData_Flash_APC_RF_ramppwr_step_factor_MT(port, band, read.step_factors)
              : QV_ReadData_Ram_APC_RF_ramppwr_step_factor_MT(port, band, read.step_factors));
    if (memcmp(read.gain_words, found->bands[i].gain_words, sizeof read.gain_words) != 0 ||
        memcmp(read.compensation, found->bands[i].compensation, sizeof read.compensation) != 0 ||
        memcmp(read.step_factors, found->bands[i].step_factors, sizeof read.step_factors) != 0) {
      *same = 0;
    }
  }
  return PC_ERR_SUCCESS;
}

int32_t calibration_verify(int32_t port, const CALIBRATION_BAND* band, double* level_error_db,
                           double* power_error_db) {
  QV_AGC_RESULT measured;
  QV_AFC_PARAMETERS afc = {{0}};
  uint16_t centre = 0;
  int group;

  *level_error_db = *power_error_db = 0;
  TRY(QV_SetPhoneClassmark_MT(port, band->band));
  TRY(QV_ReadData_Ram_AFC_afc_center_MT(port, &centre));
  for (group = 0; group < CHANNEL_GROUPS; group += 2) {
    double error;
    TRY(measure_receiver(port, group_channel(band, group), 160, &measured));
    error = fabs(measured.rx_level / 4.0 - 110.0 - kInputDbm);
    if (error > *level_error_db) *level_error_db = error;
  }
  TRY(QV_AgcStart_MT(port, 0, NULL, NULL));
  for (group = 0; group < CHANNEL_GROUPS; ++group) {
    int level;
    for (level = 0; level < POWER_LEVELS; level += 3) {
      double power = 0, error;
      afc.values[0] = centre;
      afc.values[1] = group_channel(band, group);
      afc.values[2] = (uint16_t)(band->first_level + level);
      TRY(QV_AfcStart_MT(port, 1, &afc));
      TRY(ask_scaled(port, "AT+SIMPOWER?", 100.0, &power));
      error = fabs(power - level_power_dbm(band, level));
      if (error > *power_error_db) *power_error_db = error;
    }
  }
  return QV_AfcStart_MT(port, 0, NULL);
}

int32_t calibrate_gsm(int32_t port, GSM_CALIBRATION* found) {
  int same = 0, i;
  TRY(calibration_begin(port));
  TRY(calibrate_crystal(port, found));
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    TRY(calibrate_receiver(port, &calibration_bands[i], &found->bands[i]));
    TRY(calibrate_transmitter(port, &calibration_bands[i], &found->bands[i]));
  }
  TRY(calibration_write_ram(port, found));
  TRY(calibration_compare(port, 0, found, &same));
  if (!same) return PC_ERR_PARSE_REC_DATA_ERR;
  TRY(calibration_end(port));
  return QV_SaveToFlash_MT(port, kCommitLimitMs);
}
