/* A whole GSM calibration of one handset, as a station program does it: what it sets and measures,
   and what it finds. The instrument at the antenna connector is the simulated handset's, asked
   through AT commands; on a line these few functions drive a box of its own. */
#ifndef GSM_CALIBRATION_H
#define GSM_CALIBRATION_H

#include "merovane/merovane.h"

enum {
  CALIBRATION_BANDS = 4,
  GAIN_WORDS = 91,    /* one per dB of gain */
  CHANNEL_GROUPS = 5, /* of each band */
  POWER_LEVELS = 16,
  STEP_FACTORS = CHANNEL_GROUPS * POWER_LEVELS
};

typedef struct CALIBRATION_BAND {
  uint32_t band; /* as commands name it */
  const char* name;
  uint16_t first_channel;
  uint16_t last_channel;
  uint16_t first_level;
  double highest_power_dbm; /* at the first level; 2 dB less at each further one */
} CALIBRATION_BAND;

extern const CALIBRATION_BAND calibration_bands[CALIBRATION_BANDS];

typedef struct BAND_CALIBRATION {
  uint16_t gain_words[GAIN_WORDS];
  uint16_t compensation[CHANNEL_GROUPS]; /* signed, 1/4 dB */
  uint16_t step_factors[STEP_FACTORS];
  double gain_step_db; /* per gain word */
  double gain_at_zero_db;
} BAND_CALIBRATION;

typedef struct GSM_CALIBRATION {
  double centre_dac;
  double hz_per_step;
  BAND_CALIBRATION bands[CALIBRATION_BANDS];
} GSM_CALIBRATION;

/* Each returns the first result that is not 0. The handset must be in a test mode. */
int32_t calibration_begin(int32_t port);
int32_t calibrate_crystal(int32_t port, GSM_CALIBRATION* found);
int32_t calibrate_receiver(int32_t port, const CALIBRATION_BAND* band, BAND_CALIBRATION* found);
int32_t calibrate_transmitter(int32_t port, const CALIBRATION_BAND* band, BAND_CALIBRATION* found);
int32_t calibration_write_ram(int32_t port, const GSM_CALIBRATION* found);
/* Stores 1 in `same` when RAM (or flash) holds what was found. */
int32_t calibration_compare(int32_t port, int flash, const GSM_CALIBRATION* found, int* same);
/* The largest errors with the handset's own tables in use: of the reported level and of the
 * transmit power. */
int32_t calibration_verify(int32_t port, const CALIBRATION_BAND* band, double* level_error_db,
                           double* power_error_db);
int32_t calibration_end(int32_t port);

/* All of the above but the comparison with flash. */
int32_t calibrate_gsm(int32_t port, GSM_CALIBRATION* found);

/* Asks the instrument: up to `count` numbers of its answer, which is scaled as the simulator's
 * README says. */
int32_t instrument_ask(int32_t port, const char* command, long* numbers, int count);

uint16_t group_channel(const CALIBRATION_BAND* band, int group);
double level_power_dbm(const CALIBRATION_BAND* band, int level);

#endif
