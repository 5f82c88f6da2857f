/* Calling convention, linkage and the records that exported functions take.
 *
 * Records stand in the caller's memory, in this machine's byte order, without padding between their
 * fields other than shown. */
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

/** What QV_ChangeGSMTDCalMode and QV_InitGSMTDCalMode can ask for. */
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

/** An event of the caller's: a Win32 event handle on Windows, elsewhere an eventfd descriptor. 0
 * and, elsewhere than on Windows, negative values count as null. */
#if defined(_WIN32)
typedef void* QV_EVENT;
#else
typedef intptr_t QV_EVENT;
#endif

/** The eight numbers of the serving cell line "+CCED:", in its order; those that it lacks are 0. */
typedef struct QV_CELL_INFO {
  int32_t values[8];
} QV_CELL_INFO;

/* ---- Memory, identity and short-range radios ---- */

/** The fixed-NV information: 168 bytes. A write takes the fields whose flag is not 0; a read fills
 * every field and leaves the flags. Texts need no terminating zero when written; when read they are
 * terminated. */
typedef struct QV_FIXED_NV_INFO {
  uint32_t write_imei1;
  uint32_t write_imei2;
  uint32_t write_bluetooth_address;
  uint32_t write_parameter_block;
  uint32_t write_imei4;
  uint32_t write_imei3;
  /** 15 decimal digits; more are ignored. */
  char imei1[16];
  char imei2[16];
  /** 12 hexadecimal digits, most significant byte first, without separators; read in capitals. */
  char bluetooth_address[16];
  /** The GPS settings block of QV_GpsWriteNv. */
  uint8_t parameter_block[44];
  char imei3[16];
  char imei4[16];
  /** A second network address, as bluetooth_address. */
  char second_address[16];
  uint32_t write_second_address;
} QV_FIXED_NV_INFO;

/** What QV_GetFlashInfo reads: 384 bytes. The words' meanings are the handset's. */
typedef struct QV_FLASH_INFO {
  uint32_t identifier[2];
  /** At most 31. Records after these are as they arrived. */
  uint32_t region_count;
  struct {
    uint32_t words[3];
  } regions[31];
} QV_FLASH_INFO;

/** One WiFi calibration factor. */
typedef struct QV_WIFI_FACTOR {
  /** 0 after a read; not used otherwise. */
  uint32_t status;
  /** 1 to 5. */
  uint32_t index;
  uint32_t value;
} QV_WIFI_FACTOR;

/* ---- Radio calibration. What a value means is the handset's where it is not said here. */

/** Parameters of an AFC run. Sent in the order 1, 2, 0, 3. Multi-chip handsets take values[1] as
 * channel, [2] as power control level, [0] as CAFC centre or CDAC and [3] as CAFC. */
typedef struct QV_AFC_PARAMETERS {
  uint16_t values[4];
} QV_AFC_PARAMETERS;

/** An extended AFC run: the first two are given, the last two are what came. */
typedef struct QV_EXTENDED_AFC {
  uint16_t values[4];
  uint16_t count; /**< at most 16 */
  uint16_t padding;
  uint32_t report_bytes;
  uint16_t report[13824];
} QV_EXTENDED_AFC;

/** Parameters of a receive measurement, sent in this order. Multi-chip handsets take words[0] as
 * channel, [1] and [2] as receive parameters and [3] as power control level. */
typedef struct QV_AGC_PARAMETERS {
  uint32_t first;
  uint16_t words[4];
  uint32_t last;
} QV_AGC_PARAMETERS;

/** What a receive measurement found; multi-chip handsets report no `value`. */
typedef struct QV_AGC_RESULT {
  uint32_t value;
  uint16_t rx_level;
  uint16_t rssi;
} QV_AGC_RESULT;

/** A power step or PA setting. The multi-chip commands take `first` as band, `second` as power
 * control level, `third` as the value to write and `fourth` as the index of a table of 16 levels.
 */
typedef struct QV_POWER_STEP {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  uint32_t fourth;
} QV_POWER_STEP;

/** A non-signalling command; sent are the words, then the low 16 bits of the other three. */
typedef struct QV_NON_SIGNAL_COMMAND {
  uint32_t first;
  uint32_t command_id;
  uint32_t second;
  uint16_t words[4];
} QV_NON_SIGNAL_COMMAND;

/** The answer to non-signalling command 6. */
typedef struct QV_NON_SIGNAL_ANSWER {
  uint16_t status; /**< 0 when it succeeded */
  uint16_t values[3];
} QV_NON_SIGNAL_ANSWER;

/** A TD-SCDMA transmit sweep. */
typedef struct QV_TD_TX_SWEEP {
  uint32_t first;
  uint16_t second;
  uint16_t third;
  uint16_t count; /**< of points, at most 8 */
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

/** TD-SCDMA calibration parameters. A caller's memory need not be larger than `count` values ask
 * for. */
typedef struct QV_TD_PARAMETERS {
  uint32_t selector;
  uint16_t count; /**< of values, at most 3073 */
  uint16_t values[3073];
} QV_TD_PARAMETERS;

#endif
