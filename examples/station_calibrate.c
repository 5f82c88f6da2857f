/* Calibrates a handset's GSM radio in four bands, saves it, restarts the handset and compares what
   was found with the handset's true constants, which the simulated one can be asked for. */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "gsm_calibration.h"
#include "station.h"

enum { TEST_MODE = 1, BAUD_RATE = 115200 };

static GSM_CALIBRATION found;

static void print_row(const char* what, double value, double truth, const char* unit,
                      double limit) {
  char name[64];
  snprintf(name, sizeof name, "%s", what);
  station_step(name);
  station_check(fabs(value - truth) <= limit, "");
  station_note("found %11.4f   true %11.4f   error %+9.4f %s", value, truth, value - truth, unit);
}

/* The largest difference, in dB, between what the found tables do and what they should. */
static int32_t table_errors(int32_t port, const CALIBRATION_BAND* band,
                            const BAND_CALIBRATION* tables, double* gain_error,
                            double* factor_error, double* receive_error) {
  char command[40];
  long truth[5], number;
  int i;
  int32_t result;

  *gain_error = *factor_error = *receive_error = 0;
  snprintf(command, sizeof command, "AT+SIMTRUTH=%u", (unsigned)band->band);
  result = instrument_ask(port, command, truth, 5);
  if (result != PC_ERR_SUCCESS) return result;
  for (i = 0; i < GAIN_WORDS; ++i) {
    const double gain = (double)truth[3] / 1e3 - (double)truth[2] / 1e3 +
                        (double)truth[4] / 1e6 * tables->gain_words[i];
    /* The lowest gains are below what the amplifier has. */
    if (tables->gain_words[i] > 0 && fabs(gain - i) > *gain_error) *gain_error = fabs(gain - i);
  }
  for (i = 0; i < STEP_FACTORS; ++i) {
    double error;
    snprintf(command, sizeof command, "AT+SIMFACTOR=%u,%d,%d", (unsigned)band->band,
             i / POWER_LEVELS, i % POWER_LEVELS);
    result = instrument_ask(port, command, &number, 1);
    if (result != PC_ERR_SUCCESS) return result;
    error = fabs(20.0 * log10(tables->step_factors[i] / ((double)number / 100.0)));
    if (error > *factor_error) *factor_error = error;
  }
  for (i = 0; i < CHANNEL_GROUPS; ++i) {
    double error;
    snprintf(command, sizeof command, "AT+SIMTRUERX=%u,%d", (unsigned)band->band, i);
    result = instrument_ask(port, command, &number, 1);
    if (result != PC_ERR_SUCCESS) return result;
    error = fabs((int16_t)tables->compensation[i] - (double)number / 100.0) / 4.0;
    if (error > *receive_error) *receive_error = error;
  }
  return PC_ERR_SUCCESS;
}

static void calibrate(int32_t port) {
  int i, same = 0;

  station_step("GSM calibration mode, calibration layer on");
  station_result(calibration_begin(port), PC_ERR_SUCCESS);
  station_step("AFC: centre and slope");
  station_result(calibrate_crystal(port, &found), PC_ERR_SUCCESS);
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    const CALIBRATION_BAND* band = &calibration_bands[i];
    char name[64];
    snprintf(name, sizeof name, "%s: AGC table, receive level", band->name);
    station_step(name);
    station_result(calibrate_receiver(port, band, &found.bands[i]), PC_ERR_SUCCESS);
    snprintf(name, sizeof name, "%s: APC, %d step factors", band->name, STEP_FACTORS);
    station_step(name);
    station_result(calibrate_transmitter(port, band, &found.bands[i]), PC_ERR_SUCCESS);
  }
  station_step("write RAM");
  station_result(calibration_write_ram(port, &found), PC_ERR_SUCCESS);
  station_step("read RAM back");
  if (station_result(calibration_compare(port, 0, &found, &same), PC_ERR_SUCCESS)) {
    station_check(same, "same");
  }
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    double level_error = 0, power_error = 0;
    char name[64];
    snprintf(name, sizeof name, "%s: verify with the tables in use", calibration_bands[i].name);
    station_step(name);
    if (station_result(calibration_verify(port, &calibration_bands[i], &level_error, &power_error),
                       PC_ERR_SUCCESS)) {
      station_check(level_error <= 0.5 && power_error <= 0.15, "in limits");
      station_note("receive level within %.2f dB, transmit power within %.2f dB", level_error,
                   power_error);
    }
  }
  station_step("calibration layer off");
  station_result(calibration_end(port), PC_ERR_SUCCESS);
}

static void keep(int32_t port) {
  int same = 0;

  station_step("save to flash");
  station_result(QV_SaveToFlash_MT(port, 20000), PC_ERR_SUCCESS);
  station_step("restart");
  station_result(QV_RestartPhone_MT(port, 3000), PC_ERR_SUCCESS);
  station_step("catch it again");
  station_result(QV_SetPhoneStartModeEx_MT(port, TEST_MODE, 20000), PC_ERR_SUCCESS);
  station_step("read flash back");
  if (station_result(calibration_compare(port, 1, &found, &same), PC_ERR_SUCCESS))
    station_check(same, "same");
  station_step("read the RAM that was loaded from it");
  if (station_result(calibration_compare(port, 0, &found, &same), PC_ERR_SUCCESS))
    station_check(same, "same");
}

static void compare_with_truth(int32_t port) {
  long truth[5];
  int i;

  station_step("ask the simulated handset for its true constants");
  if (!station_result(instrument_ask(port, "AT+SIMTRUTH=0", truth, 5), PC_ERR_SUCCESS)) return;
  print_row("AFC centre", found.centre_dac, (double)truth[0] / 100.0, "steps", 1.0);
  print_row("AFC slope", found.hz_per_step, (double)truth[1] / 1000.0, "Hz per step", 0.02);
  for (i = 0; i < CALIBRATION_BANDS; ++i) {
    const CALIBRATION_BAND* band = &calibration_bands[i];
    double gain_error = 0, factor_error = 0, receive_error = 0;
    char name[64];
    snprintf(name, sizeof name, "%s: tables against the truth", band->name);
    station_step(name);
    if (!station_result(
            table_errors(port, band, &found.bands[i], &gain_error, &factor_error, &receive_error),
            PC_ERR_SUCCESS)) {
      continue;
    }
    station_check(gain_error <= 0.3 && factor_error <= 0.15 && receive_error <= 0.3, "in limits");
    station_note(
        "residual: AGC %.3f dB over %d gains, APC %.3f dB over %d factors, receive level %.3f dB",
        gain_error, GAIN_WORDS, factor_error, STEP_FACTORS, receive_error);
  }
}

int main(int argc, char** argv) {
  const int32_t port = station_port(argc, argv, "Calibrates a handset's GSM radio in four bands.");

  printf("station: GSM calibration on port %d\n", (int)port);
  station_step("open the port");
  if (station_result(QV_BeginPhoneTest_MT(port, BAUD_RATE), PC_ERR_SUCCESS)) {
    station_step("catch the booting handset, enter test mode");
    if (station_result(QV_SetPhoneStartModeEx_MT(port, TEST_MODE, 15000), PC_ERR_SUCCESS)) {
      calibrate(port);
      keep(port);
      compare_with_truth(port);
    }
    station_step("close the port");
    station_result(QV_EndPhoneTest_MT(port), PC_ERR_SUCCESS);
  }
  return station_summary("calibration");
}
