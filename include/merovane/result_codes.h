/* The result codes: what every command returns.
 *
 * Every code has the name that the logs show and a short one that says what happened, which
 * merovane.h uses. */
#ifndef MEROVANE_RESULT_CODES_H
#define MEROVANE_RESULT_CODES_H

typedef enum QV_RESULT {
  /** The function is there for programs that link against it, but this library does not know how to do what it is for; nothing was sent. */
  PC_ERR_NOT_SUPPORTED = -1,
  /** Done. */
  PC_ERR_SUCCESS = 0,
  /** The port is not open: it was never opened, or has been closed, perhaps during the command. */
  PC_ERR_PORT_IS_NOT_OPEN = 1,
  PC_ERR_PORT_NOT_OPEN = 1,
  /** The port cannot be opened: the system or the channel library refuses, or memory is short. */
  PC_ERR_CANNOT_OPEN_PORT = 2,
  /** The channel did not take all bytes; the device may be unplugged. */
  PC_ERR_WRITE_DATA_FAIL = 3,
  PC_ERR_WRITE_FAILED = 3,
  /** An argument is null or out of range; nothing was sent, unless the function says otherwise. */
  PC_ERR_INVALID_PARAM = 4,
  /** The data does not fit into the buffer: it was cut, or left out where the function says so. */
  PC_ERR_IMPORT_BUFFER_SIZE_IS_TOO_SMALL = 5,
  PC_ERR_BUFFER_TOO_SMALL = 5,
  /** Nothing arrived in time. */
  PC_ERR_CAN_NOT_REC_DATA = 6,
  PC_ERR_NO_DATA = 6,
  /** The request could not be framed: it is too long, or memory is short. */
  PC_ERR_ENCODE_MESSAGE_ERR = 7,
  PC_ERR_ENCODE_FAILED = 7,
  /** What arrived looks like a frame, but does not decode. */
  PC_ERR_DECODE_MESSAGE_ERR = 8,
  PC_ERR_DECODE_FAILED = 8,
  /** No whole frame arrived in time. */
  PC_ERR_CAN_NOT_REC_TWO_FLAG = 9,
  PC_ERR_NO_FRAME = 9,
  /** The handset's report is longer than the record that takes it. */
  PC_ERR_RETURN_MESSAGE_IS_TOO_LONG = 10,
  PC_ERR_MESSAGE_TOO_LONG = 10,
  /** The awaited answer did not arrive in time; other frames do not count. */
  PC_ERR_REC_CMD_TYPE_OR_SUB_TYPE_ERR = 11,
  PC_ERR_NO_ANSWER = 11,
  /** At least one port did not close, or was not open. */
  PC_ERR_CAN_NOT_CLOSE_ALL_PORT = 12,
  PC_ERR_CANNOT_CLOSE_ALL_PORTS = 12,
  /** The answer has no data, or less or other data than was asked for. */
  PC_ERR_REC_DATA_LENGTH_ERR = 13,
  PC_ERR_WRONG_DATA_LENGTH = 13,
  /** The Bluetooth answer is missing or too short. */
  PC_ERR_BLUETOOTH_OPER_FAIL = 14,
  PC_ERR_BLUETOOTH_FAILED = 14,
  /** The answer is too short, or is no answer to this request. */
  PC_ERR_PARSE_REC_DATA_ERR = 15,
  PC_ERR_PARSE_FAILED = 15,
  /** The handset did not enter the mode. */
  PC_ERR_ENTER_MODE_FAIL = 16,
  PC_ERR_ENTER_MODE_FAILED = 16,
  /** No NV project is open. */
  PC_ERR_NV_PRJ_FILE_IS_NOT_OPEN = 17,
  PC_ERR_NV_PROJECT_NOT_OPEN = 17,
  /** From the NV functions: the project has no item of that path. */
  PC_ERR_DL_USERCANCEL = 18,
  PC_ERR_PATH_NOT_FOUND = 18,
  /** The project does not hold the parameter; this library does not give it. */
  PC_ERR_GET_NV_PARAM_IN_PRJ_FILE_FAIL = 19,
  PC_ERR_GET_NV_PARAM_FAILED = 19,
  /** Boot mode: one of the two download components is not registered, or this is not Windows. */
  PC_ERR_DL_REG_ERR = 20,
  PC_ERR_DOWNLOAD_REGISTER = 20,
  /** Boot mode: the download components are registered, but this library does not know how to use them. */
  PC_ERR_DL_START_ERR = 21,
  PC_ERR_DOWNLOAD_START = 21,
  /** Boot mode: the port failed; this library does not give it. */
  PC_ERR_DL_UART_ERR = 22,
  PC_ERR_DOWNLOAD_UART = 22,
  /** Boot mode: the handset does not connect; this library does not give it. */
  PC_ERR_DL_CONNECT_ERR = 23,
  PC_ERR_DOWNLOAD_CONNECT = 23,
  /** Boot mode: reading failed; this library does not give it. */
  PC_ERR_DL_READ_ERR = 24,
  PC_ERR_DOWNLOAD_READ = 24,
  /** Boot mode: the handset does not restart; this library does not give it. */
  PC_ERR_DL_REBOOT_ERR = 25,
  PC_ERR_DOWNLOAD_REBOOT = 25,
  /** The port is open already. */
  PC_ERR_PORT_IS_ALREADY_OPENED = 26,
  PC_ERR_PORT_ALREADY_OPENED = 26,
  /** The port's driver reports an error; this library does not give it. */
  PC_ERR_COMM_DRIVER_ERR = 27,
  PC_ERR_DRIVER_ERROR = 27,
  /** The port serves an NV project; this library does not give it. */
  PC_ERR_PORT_IS_USED_FOR_NV_PRJ = 28,
  PC_ERR_PORT_USED_FOR_NV_PROJECT = 28,
  /** The NV project or one of its modules cannot be read. */
  PC_ERR_OPEN_NV_PRJ_FILE_FAIL = 29,
  PC_ERR_OPEN_NV_PROJECT_FAILED = 29,
  /** The GPS answer does not repeat the request. */
  PC_ERR_SEND_GPS_CMD_FAIL = 30,
  PC_ERR_GPS_FAILED = 30,
  /** What was waited for is not in what arrived. */
  PC_ERR_CAN_NOT_RECV_USEFUL_DATA = 31,
  PC_ERR_NO_USEFUL_DATA = 31,
  /** The handset reports an RSSI of 0. */
  PC_ERR_INVALID_RSSI_VALUE = 32,
  PC_ERR_INVALID_RSSI = 32,
  /** The handset reports that the non-signalling command failed, or its answer is too short. */
  PC_ERR_SEND_NONSIGNAL_CMD_FAIL = 33,
  PC_ERR_NON_SIGNAL_FAILED = 33,
  /** The block's checksum does not match. */
  PC_ERR_VERIFY_CRC = 34,
  PC_ERR_CHECKSUM_MISMATCH = 34,
  /** The handset reports that the operation failed. */
  PC_ERR_DSP_DEBUG_OPERATION_FAIL = 35,
  PC_ERR_DSP_DEBUG_FAILED = 35,
  /** The handset could not reset its RF parameters; this library does not give it. */
  PC_ERR_DSPDEBUG_RESETRFPARAM_FAIL = 36,
  PC_ERR_DSP_RESET_RF_FAILED = 36,
  /** The production data has an unknown layout; this library does not give it. */
  PC_ERR_INVALID_PHASE_MAGIC_VERSION = 37,
  PC_ERR_INVALID_PHASE_MAGIC = 37,
  /** The handset reports that the WiFi operation failed. */
  PC_ERR_WIFI_OPER_FAIL = 38,
  PC_ERR_WIFI_FAILED = 38,
  /** The handset refuses the command. */
  PC_ERR_REFUSED = 39,
  /** The name that PC_ERR_REFUSED had first. */
  QV_REFUSED = 39
} QV_RESULT;

#endif
