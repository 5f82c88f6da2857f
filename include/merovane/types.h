/* Calling convention, linkage, and the constants and records that exported functions take.
 *
 * Records stand in the caller's memory, in this machine's byte order. There is no padding between
 * their fields but what is shown. */
#ifndef MEROVANE_TYPES_H
#define MEROVANE_TYPES_H

#include <stdint.h>

#include "annotations.h"

#if defined(_WIN32)
#define MEROVANE_CALL __stdcall
#if defined(MEROVANE_BUILD)
/* The module definition exports the functions, under their exact names. */
#define MEROVANE_API
#else
#define MEROVANE_API __declspec(dllimport)
#endif
#else
#define MEROVANE_CALL
#define MEROVANE_API __attribute__((visibility("default")))
#endif

/** The bands of a handset, as its commands number them. */
typedef enum QV_BAND {
  QV_BAND_GSM = 0,
  QV_BAND_DCS = 1,
  QV_BAND_PCS = 3,
  QV_BAND_GSM850 = 4
} QV_BAND;

/** The bands of an NV project, as its AGC and APC functions number them. */
typedef enum QV_NV_BAND {
  QV_NV_BAND_GSM = 0,
  QV_NV_BAND_GSM850 = 1,
  QV_NV_BAND_DCS = 2,
  QV_NV_BAND_PCS = 3
} QV_NV_BAND;

/** The modes of QV_ChangeGSMTDCalMode and QV_InitGSMTDCalMode. */
typedef enum QV_CALIBRATION_MODE {
  QV_CALIBRATION_MODE_GSM = 1,
  QV_CALIBRATION_MODE_TD = 7
} QV_CALIBRATION_MODE;

/** The properties of QV_SetProperty and QV_GetProperty. */
typedef enum QV_PROPERTY {
  QV_PROPERTY_USEFUL_LOG = 0,
  QV_PROPERTY_SAVE_RECEIVED_DATA = 1,
  QV_PROPERTY_CHANNEL_SERVER = 2,
  QV_PROPERTY_RECEIVE_MODE = 3,
  QV_PROPERTY_BIG_ENDIAN = 4
} QV_PROPERTY;

/** How a port receives: in the thread of the command that waits, or in a thread of its own. */
typedef enum QV_RECEIVE_MODE {
  QV_RECEIVE_MODE_CALLER = 0,
  QV_RECEIVE_MODE_THREAD = 1
} QV_RECEIVE_MODE;

/** The units in which QV_ReadRegister and QV_WriteRegister access memory. */
typedef enum QV_ACCESS_WIDTH {
  QV_ACCESS_WIDTH_8 = 0,
  QV_ACCESS_WIDTH_16 = 1,
  QV_ACCESS_WIDTH_32 = 2
} QV_ACCESS_WIDTH;

/** What QV_CheckFixedNV asks about. */
typedef enum QV_FIXED_NV { QV_FIXED_NV_ITEMS = 0, QV_FIXED_NV_BLOCK = 10 } QV_FIXED_NV;

/** What QV_WIFI_SetRxStatus does. */
typedef enum QV_WIFI_RX {
  QV_WIFI_RX_OFF = 0,
  QV_WIFI_RX_ON = 1,
  QV_WIFI_RX_CLEAR_COUNTS = 2
} QV_WIFI_RX;

/** What QV_WIFI_OperFactor does. */
typedef enum QV_WIFI_FACTOR_ACTION {
  QV_WIFI_FACTOR_READ = 0,
  QV_WIFI_FACTOR_WRITE = 1,
  QV_WIFI_FACTOR_SET = 2
} QV_WIFI_FACTOR_ACTION;

/** An event of the caller's: on Windows an event's handle, elsewhere an eventfd descriptor. 0
 * counts as null, and so do negative descriptors. Setting one never blocks, even a descriptor that
 * blocks or whose count is full. */
#if defined(_WIN32)
typedef void* QV_EVENT;
#else
typedef intptr_t QV_EVENT;
#endif

/** The eight numbers of the handset's line "+CCED:", in its order; those that it lacks are 0. */
typedef struct QV_CELL_INFO {
  int32_t values[8];
} QV_CELL_INFO;

/* ---- Memory, identity and short-range radios ---- */

/** The fixed-NV information, 168 bytes. Writing takes the fields whose flag is not 0. Reading fills
 * every field and leaves the flags as they were. Texts need no terminating zero when they are
 * written; when they are read, zeros fill what follows them. */
typedef struct QV_FIXED_NV_INFO {
  uint32_t write_imei1;
  uint32_t write_imei2;
  uint32_t write_bluetooth_address;
  uint32_t write_parameter_block;
  uint32_t write_imei4;
  uint32_t write_imei3;
  /** 15 decimal digits; what follows them is ignored. */
  char imei1[16];
  char imei2[16];
  /** 12 hexadecimal digits, most significant byte first, without separators; capitals when read. */
  char bluetooth_address[16];
  /** The GPS settings block of QV_GpsWriteNv. */
  uint8_t parameter_block[44];
  char imei3[16];
  char imei4[16];
  /** A second network address, written like the first. */
  char second_address[16];
  uint32_t write_second_address;
} QV_FIXED_NV_INFO;

/** What QV_GetFlashInfo reads, 384 bytes. What the words mean depends on the handset. */
typedef struct QV_FLASH_INFO {
  uint32_t identifier[2];
  /** At most 31. The regions that it does not count are as they arrived. */
  uint32_t region_count;
  struct {
    uint32_t words[3];
  } regions[31];
} QV_FLASH_INFO;

/** One WiFi calibration factor. */
typedef struct QV_WIFI_FACTOR {
  /** 0 when it was read; not used when it is written. */
  uint32_t status;
  /** 1 to 5. */
  uint32_t index;
  uint32_t value;
} QV_WIFI_FACTOR;

/* ---- Radio calibration. What a value means depends on the handset where nothing is said of it. */

/** The trim of a transmission, sent in the order 1, 2, 0, 3. For multi-chip handsets values[1] is
 * the channel, [2] the power control level, [0] the CAFC centre or CDAC, and [3] the CAFC. */
typedef struct QV_AFC_PARAMETERS {
  uint16_t values[4];
} QV_AFC_PARAMETERS;

/** An extended AFC run: the caller gives values and count, and gets the report. */
typedef struct QV_EXTENDED_AFC {
  uint16_t values[4];
  /** At most 16. Checked, but not sent. */
  uint16_t count;
  uint16_t padding;
  /** How much of the report came. */
  uint32_t report_bytes;
  uint16_t report[13824];
} QV_EXTENDED_AFC;

/** The parameters of a receive measurement, sent in this order. For multi-chip handsets words[0] is
 * the channel, [1] and [2] are receive parameters, and [3] is the power control level; the others
 * are not used. */
typedef struct QV_AGC_PARAMETERS {
  uint32_t first;
  uint16_t words[4];
  uint32_t last;
} QV_AGC_PARAMETERS;

/** What a receive measurement found. Multi-chip handsets report no `value`. */
typedef struct QV_AGC_RESULT {
  uint32_t value;
  uint16_t rx_level;
  uint16_t rssi;
} QV_AGC_RESULT;

/** A power step or power amplifier setting. For multi-chip handsets `first` is the band, `second`
 * the power control level, `third` the value to write, and `fourth` the index of a table of 16
 * levels. */
typedef struct QV_POWER_STEP {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  uint32_t fourth;
} QV_POWER_STEP;

/** A non-signalling command. The words are sent, then the low 16 bits of the other three. */
typedef struct QV_NON_SIGNAL_COMMAND {
  uint32_t first;
  uint32_t command_id;
  uint32_t second;
  uint16_t words[4];
} QV_NON_SIGNAL_COMMAND;

/** The answer to non-signalling command 6. */
typedef struct QV_NON_SIGNAL_ANSWER {
  /** 0 when the command succeeded. */
  uint16_t status;
  uint16_t values[3];
} QV_NON_SIGNAL_ANSWER;

/** A TD-SCDMA transmit sweep. */
typedef struct QV_TD_TX_SWEEP {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  /** How many points are given, at most 8. */
  uint16_t count;
  uint16_t points[8][2];
} QV_TD_TX_SWEEP;

/** A TD-SCDMA transmit start. */
typedef struct QV_TD_TX_START {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  uint32_t fourth;
  uint16_t words[5];
} QV_TD_TX_START;

/** TD-SCDMA power steps to sweep over. */
typedef struct QV_TD_POWER_SWEEP {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  uint32_t fourth;
  uint16_t words[4];
} QV_TD_POWER_SWEEP;

/** TD-SCDMA calibration parameters. The caller's memory holds `count` values: it may be shorter
 * than the record and, to read more values than the record declares, longer. Memory for them is
 * that of malloc(6 + 2 * count), and they begin at `values`. */
typedef struct QV_TD_PARAMETERS {
  uint32_t selector;
  /** 1 to 3073 when they are written; when they are read, as many as an answer can carry, 4600. */
  uint16_t count;
  uint16_t values[3073];
} QV_TD_PARAMETERS;

#endif
