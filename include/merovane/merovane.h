/* Merovane: drives mobile handsets on a factory line.
 *
 * This file is made from src/api/exports; its text is written there.
 *
 * A program opens a port with QV_BeginPhoneTest, sends commands and closes with QV_EndPhoneTest.
 * QV_X works on the default phone object, the one opened last by QV_BeginPhoneTest.
 * QV_X_MT takes the port number ahead of the same arguments and works on that port's object: 4 for a port
 * below 1, 1 for a port that is not open. Without a default object QV_X returns 1.
 *
 * Results are the codes of result_codes.h, 0 for success. Besides those named with a command, each
 * that sends can return: 1 the port is not open; 3 the request was not written; 11 no answer in time;
 * 39 the handset refuses the command.
 * Time limits are milliseconds; the setting "Inc Recv Timeout" is added where a command sends first.
 * Numbers in buffers are in this machine's byte order unless a function says otherwise; the
 * library converts to the handset's.
 *
 * Ports may be driven from different threads at the same time; one port takes one command at a
 * time. Opening and closing is for one thread, while no command runs. */
#ifndef MEROVANE_MEROVANE_H
#define MEROVANE_MEROVANE_H

#include "result_codes.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sessions, properties and the mode process --------------------------------------- */

/** Opens a port and makes its phone object the default one.
 * @param port       1 and up
 * @param baud_rate  bits per second, above 0
 * @return 0; 4 for a port or rate below 1; 26 when the port is open already (its object stays);
 *   2 when it cannot be opened. */
MEROVANE_API int32_t MEROVANE_CALL QV_BeginPhoneTest(int32_t port, int32_t baud_rate);

/** Opens a port for the QV_..._MT functions; the default object stays as it is.
 * Arguments and results as QV_BeginPhoneTest. */
MEROVANE_API int32_t MEROVANE_CALL QV_BeginPhoneTest_MT(int32_t port, int32_t baud_rate);

/** Stops mode processes, closes every open port and forgets the default object.
 * @return 0, with nothing open too; 12 when a port did not close (the others are closed all the same). */
MEROVANE_API int32_t MEROVANE_CALL QV_EndPhoneTest(void);

/** Closes one port. Not for the port of the default object while QV_X functions are still to be called:
 * they return 1 from then on.
 * @return 0, whatever the closing of the device says; 4 for a port below 1; 1 when it is not open. */
MEROVANE_API int32_t MEROVANE_CALL QV_EndPhoneTest_MT(int32_t port);

/** Switches a property.
 * @param property  0 Useful log on or off; 1 recording of received data; 2 channel server on or off; 3 receive
 *   mode; 4 handset is big-endian
 * @param value1    property 1: non-zero to record; otherwise not used
 * @param value2    property 1: address of the file's path, as in QV_SaveRecvData; otherwise the value
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetProperty(
    uint32_t property, uintptr_t value1, uintptr_t value2);

/** Reads property 4; for others `value` stays as it was.
 * @param value1  not used
 * @return 0; 4 when `value` is null */
MEROVANE_API int32_t MEROVANE_CALL QV_GetProperty(
    uint32_t property, uintptr_t value1, uint32_t *value);

/** Chooses how ports opened from now on receive: 0 in the caller's thread, 1 through a thread of their own. */
MEROVANE_API void MEROVANE_CALL QV_SetRecvMode(uint32_t mode);

/** Records received bytes, as they come, at the end of a file, on ports opened from now on.
 * @param on    0 ends the recording on every port
 * @param path  the file; null ends the recording too */
MEROVANE_API void MEROVANE_CALL QV_SaveRecvData(uint32_t on, const char *path);

/** Whether the default object's handset has reported an assert since the last call.
 * Needs a channel server. The result is not reported to the error-code library.
 * @return 1 or 0; 0 without a default object */
MEROVANE_API int32_t MEROVANE_CALL QV_IsPhoneAssert(void);

/** Waits, in the background, for a handset to boot and puts it into a mode.
 * @param wait_for_port  0: on the default object's port. Otherwise: on the next serial device that arrives,
 *   with an object of its own; the device is left closed, see QV_GetUsbPort
 * @param mode           start mode, as in QV_SetPhoneStartMode
 * @param event          set when the handset was caught
 * @param time_limit_ms  0: without end
 * @return 0 as soon as the waiting has begun; 4 for a null event; 1 without a default object (wait_for_port 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcess(
    uint32_t wait_for_port, uint32_t mode, QV_EVENT event, uint32_t time_limit_ms);

/** The same for one port. With wait_for_port the port need not exist yet: it is awaited, an object of it that is
 * open is closed first, and the port is open again when the event is set.
 * @return as QV_EnterModeProcess; 4 for a port below 1; 1 when it is not open (wait_for_port 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcess_MT(
    int32_t port, uint32_t wait_for_port, uint32_t mode, QV_EVENT event, uint32_t time_limit_ms);

/** QV_EnterModeProcess that returns when the waiting is over. Messages of the calling thread's queue are dispatched
 * meanwhile.
 * @return 0 when the handset was caught, 16 when not */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcessEx(
    uint32_t wait_for_port, uint32_t mode, uint32_t time_limit_ms);

/** QV_EnterModeProcess_MT that returns when the waiting is over.
 * @return 0 when the handset was caught, 16 when not; 4 for a port below 1; 1 when it is not open (wait_for_port 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcessEx_MT(
    int32_t port, uint32_t wait_for_port, uint32_t mode, uint32_t time_limit_ms);

/** Ends the mode process begun last by QV_EnterModeProcess, if it still runs, in at most 3300 ms.
 * @return 0; 1 without an object that could run one */
MEROVANE_API int32_t MEROVANE_CALL QV_StopModeProcess(void);

/** The same for one port.
 * @return 0; 4 for a port below 1; 1 when it has no object */
MEROVANE_API int32_t MEROVANE_CALL QV_StopModeProcess_MT(int32_t port);

/** Restarts the handset and sets the event when it can be talked to again.
 * @param through_port   non-zero: the handset's serial device may vanish and come back; the port is then reopened
 *   at 115200 baud, in the background, on the device that arrives. 0: a plain restart
 * @param reboot_kind    what to restart into when through_port is set: 1, 5, 6, 7, 8 or 9; others restart plainly
 * @param event          set when done
 * @param time_limit_ms  of the wait for the device, 0 without end; of the answer when through_port is 0
 * @return 0; 4 for a null event; else the restart command's code */
MEROVANE_API int32_t MEROVANE_CALL QV_ResetModeProcess(
    uint32_t through_port, uint32_t reboot_kind, QV_EVENT event, uint32_t time_limit_ms);

/** The same for one port, which is reopened only on a device of that number. */
MEROVANE_API int32_t MEROVANE_CALL QV_ResetModeProcess_MT(
    int32_t port, uint32_t through_port, uint32_t reboot_kind, QV_EVENT event,
    uint32_t time_limit_ms);

/** The number of the port on which QV_EnterModeProcess with wait_for_port found a device, 0 when none. */
MEROVANE_API int32_t MEROVANE_CALL QV_GetUsbPort(void);

/** Sets the 4-byte camp parameter that goes into the sequence field of the first frame after each start of a
 * mode process.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetCampParam(uint32_t camp_parameter);

/* ---- Test-mode start and phone modes ------------------------------------------------- */

/** Waits for the frame that a handset sends while it boots.
 * @param data        the frame's 8-byte header, as received
 * @param capacity    bytes at `data`, above 0
 * @param length      bytes stored, at most 8
 * @param timeout_ms  above 0
 * @return 0; 4; 31 when no start frame came in time */
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData(
    uint8_t *data, uint32_t capacity, uint32_t *length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData_MT(
    int32_t port, uint8_t *data, uint32_t capacity, uint32_t *length, uint32_t timeout_ms);

/** Puts a handset that has sent its start frame into a mode; waits 4000 ms for its acknowledgement.
 * @param mode  0 to 127; 128 is added, and the sum sent in 8 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_MT(int32_t port, uint32_t mode);

/** QV_RecvPhoneStartData, then QV_SetPhoneStartMode.
 * @param timeout_ms  of the wait for the start frame, above 0
 * @return as those two */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartModeEx(uint32_t mode, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartModeEx_MT(
    int32_t port, uint32_t mode, uint32_t timeout_ms);

/** QV_SetPhoneStartMode with the camp parameters in the request's sequence field.
 * @param first_camp_parameter   4 bits
 * @param second_camp_parameter  11 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_SetModeAndCampParam(
    uint32_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter);
MEROVANE_API int32_t MEROVANE_CALL QV_SetModeAndCampParam_MT(
    int32_t port, uint32_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter);

/** Switches the handset's ARM trace output on (non-zero) or off. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableArmLog(uint32_t enable);
MEROVANE_API int32_t MEROVANE_CALL QV_EnableArmLog_MT(int32_t port, uint32_t enable);

/** Switches the handset's DSP trace output on (non-zero) or off; 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableDspLog(uint32_t enable);
MEROVANE_API int32_t MEROVANE_CALL QV_EnableDspLog_MT(int32_t port, uint32_t enable);

/** Changes the running handset's mode; 4000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangePhoneMode(uint8_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_ChangePhoneMode_MT(int32_t port, uint8_t mode);

/** QV_ChangePhoneMode that tells whether the handset stays reachable on its port.
 * @param answered  1 when the answer's payload has 2 bytes or more, else 0; written on success only
 * @return 0; 4 when `answered` is null */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangePhoneMode(uint8_t mode, uint32_t *answered);
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangePhoneMode_MT(
    int32_t port, uint8_t mode, uint32_t *answered);

/** QV_UsbChangePhoneMode with the camp parameters in the request's sequence field. */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangeModeAndSetCampParam(
    uint8_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter,
    uint32_t *answered);
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangeModeAndSetCampParam_MT(
    int32_t port, uint8_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter,
    uint32_t *answered);

/** Restarts the handset and waits for its acknowledgement.
 * @param timeout_ms  above 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_RestartPhone(uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_RestartPhone_MT(int32_t port, uint32_t timeout_ms);

/** Reads the handset's mode; 1000 ms.
 * @param data      the answer's payload, cut to `capacity`. Byte 3, where there is one, is
 *   turned into a start mode code (0x80 to 0x8F)
 * @param capacity  bytes at `data`, above 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode(uint8_t *data, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_MT(int32_t port, uint8_t *data, uint32_t capacity);

/** Takes the next whole frame of any type, unescaped, header included.
 * @param data    the frame, cut to the capacity
 * @param length  in: bytes at `data`; out: bytes stored
 * @return 0; 4; 5 when the frame was cut; 9 when no whole frame came in time */
MEROVANE_API int32_t MEROVANE_CALL QV_Read(uint8_t *data, uint32_t *length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_Read_MT(
    int32_t port, uint8_t *data, uint32_t *length, uint32_t timeout_ms);

/** Writes bytes to the channel as they are.
 * @param length  above 0
 * @return 0; 4; 1 or 3 */
MEROVANE_API int32_t MEROVANE_CALL QV_Write(const uint8_t *data, int32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_Write_MT(int32_t port, const uint8_t *data, int32_t length);

/** Sends an AT command and collects its answer until that ends in "OK" and a line end.
 * @param command         text up to its terminating zero; CR and LF are added
 * @param command_length  not used
 * @param wait            0: only the acknowledgement (1000 ms) is awaited, and the next three may be null
 * @param answer          the answer's text, without a terminating zero
 * @param capacity        bytes at `answer`
 * @param answer_length   bytes stored
 * @param timeout_ms      of the answer, above 0; one further frame is waited for as long
 * @return 0, also when time ran out behind part of an answer; 4; 5 when the answer does not fit (what fitted is
 *   there); 6 when none came */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAtCommand(
    const char *command, uint32_t command_length, uint32_t wait, char *answer, uint32_t capacity,
    uint32_t *answer_length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_SendAtCommand_MT(
    int32_t port, const char *command, uint32_t command_length, uint32_t wait, char *answer,
    uint32_t capacity, uint32_t *answer_length, uint32_t timeout_ms);

/** Sends AT command bytes as they are and collects the lines before "OK", line ends removed; a prompt ">" ends it too.
 * @param length         of the command, 1 to 9216
 * @param answer         text before the frame with the "OK", without a terminating zero; null: only the
 *   acknowledgement is awaited
 * @param answer_length  bytes stored; null as `answer`
 * @return 0; 4; 5 when the answer does not fit; 6 when no "OK" came */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAT(
    const char *command, uint32_t length, char *answer, uint32_t capacity, uint32_t *answer_length,
    uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_SendAT_MT(
    int32_t port, const char *command, uint32_t length, char *answer, uint32_t capacity,
    uint32_t *answer_length, uint32_t timeout_ms);

/** Reads the serving cell with "AT+CCED=0,1"; 2000 ms.
 * @return 0; 4; 31 when the answer has no "+CCED"; else as QV_SendAtCommand */
MEROVANE_API int32_t MEROVANE_CALL QV_GetCurrCellInfo(QV_CELL_INFO *cell);
MEROVANE_API int32_t MEROVANE_CALL QV_GetCurrCellInfo_MT(int32_t port, QV_CELL_INFO *cell);

/** Sends the handset into deep sleep. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterDeepSleepMode(void);
MEROVANE_API int32_t MEROVANE_CALL QV_EnterDeepSleepMode_MT(int32_t port);

#ifdef __cplusplus
}
#endif

#endif
