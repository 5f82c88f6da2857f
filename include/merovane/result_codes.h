/* The result codes: what every command returns. */
#ifndef MEROVANE_RESULT_CODES_H
#define MEROVANE_RESULT_CODES_H

typedef enum QV_RESULT {
  /** Done. */
  PC_ERR_SUCCESS = 0,
  /** The port was never opened, or has been closed. */
  PC_ERR_PORT_IS_NOT_OPEN = 1,
  /** The system or the channel library cannot open the port. */
  PC_ERR_CANNOT_OPEN_PORT = 2,
  /** The channel did not take all bytes; the device may be unplugged. */
  PC_ERR_WRITE_DATA_FAIL = 3,
  /** An argument is null, zero or out of range; nothing was sent. */
  PC_ERR_INVALID_PARAM = 4,
  /** The data does not fit: it was cut to the buffer, or left out where the export says so. */
  PC_ERR_IMPORT_BUFFER_SIZE_IS_TOO_SMALL = 5,
  /** Nothing arrived in time. */
  PC_ERR_CAN_NOT_REC_DATA = 6,
  /** The request could not be framed. */
  PC_ERR_ENCODE_MESSAGE_ERR = 7,
  /** A frame arrived that does not decode. */
  PC_ERR_DECODE_MESSAGE_ERR = 8,
  /** No whole frame arrived in time. */
  PC_ERR_CAN_NOT_REC_TWO_FLAG = 9,
  /** The handset's report is longer than its limit. */
  PC_ERR_RETURN_MESSAGE_IS_TOO_LONG = 10,
  /** No frame of the awaited type and subtype arrived in time. */
  PC_ERR_REC_CMD_TYPE_OR_SUB_TYPE_ERR = 11,
  /** At least one port did not close. */
  PC_ERR_CAN_NOT_CLOSE_ALL_PORT = 12,
  /** The answer carries too little data. */
  PC_ERR_REC_DATA_LENGTH_ERR = 13,
  /** The Bluetooth answer is missing or too short. */
  PC_ERR_BLUETOOTH_OPER_FAIL = 14,
  /** The answer's content is not plausible. */
  PC_ERR_PARSE_REC_DATA_ERR = 15,
  /** The handset did not enter the mode. */
  PC_ERR_ENTER_MODE_FAIL = 16,
  /** No NV project is open. */
  PC_ERR_NV_PRJ_FILE_IS_NOT_OPEN = 17,
  /** From the NV exports: the project has no item of that path. */
  PC_ERR_DL_USERCANCEL = 18,
  /** The project does not hold the parameter. */
  PC_ERR_GET_NV_PARAM_IN_PRJ_FILE_FAIL = 19,
  /** Boot mode: the download component is not registered. */
  PC_ERR_DL_REG_ERR = 20,
  /** Boot mode: the download does not start. */
  PC_ERR_DL_START_ERR = 21,
  /** Boot mode: the port failed. */
  PC_ERR_DL_UART_ERR = 22,
  /** Boot mode: the handset does not connect. */
  PC_ERR_DL_CONNECT_ERR = 23,
  /** Boot mode: reading failed. */
  PC_ERR_DL_READ_ERR = 24,
  /** Boot mode: the handset does not restart. */
  PC_ERR_DL_REBOOT_ERR = 25,
  /** The port is open already. */
  PC_ERR_PORT_IS_ALREADY_OPENED = 26,
  /** The port's driver reports an error. */
  PC_ERR_COMM_DRIVER_ERR = 27,
  /** The port serves an NV project. */
  PC_ERR_PORT_IS_USED_FOR_NV_PRJ = 28,
  /** The NV project or one of its modules cannot be read. */
  PC_ERR_OPEN_NV_PRJ_FILE_FAIL = 29,
  /** The GPS answer does not repeat the request. */
  PC_ERR_SEND_GPS_CMD_FAIL = 30,
  /** What arrived does not hold what was waited for. */
  PC_ERR_CAN_NOT_RECV_USEFUL_DATA = 31,
  /** The handset reports an RSSI of zero. */
  PC_ERR_INVALID_RSSI_VALUE = 32,
  /** The handset reports that the non-signalling command failed. */
  PC_ERR_SEND_NONSIGNAL_CMD_FAIL = 33,
  /** The block's checksum does not match. */
  PC_ERR_VERIFY_CRC = 34,
  /** The handset reports that the operation failed. */
  PC_ERR_DSP_DEBUG_OPERATION_FAIL = 35,
  /** The handset could not reset its RF parameters. */
  PC_ERR_DSPDEBUG_RESETRFPARAM_FAIL = 36,
  /** The production data has an unknown layout. */
  PC_ERR_INVALID_PHASE_MAGIC_VERSION = 37,
  /** The handset reports that the WiFi operation failed. */
  PC_ERR_WIFI_OPER_FAIL = 38,
  /** The handset refuses the command. */
  QV_REFUSED = 39
} QV_RESULT;

#endif
