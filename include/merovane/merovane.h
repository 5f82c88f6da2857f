/* Merovane: drives mobile handsets on a factory line.
 *
 * This file is made from api/exports; its text is written there.
 *
 * A program opens a port with QV_BeginPhoneTest, sends commands and closes with QV_EndPhoneTest.
 * QV_X works on the default phone object, which is that of the port opened last by
 * QV_BeginPhoneTest. QV_X_MT takes a port's number ahead of the same arguments and works on that
 * port's object.
 *
 * Results are the codes of result_codes.h. Each QV_X names those that it gives; those of QV_X_MT are
 * the same. What works on a phone object gives PC_ERR_PORT_NOT_OPEN when there is none, and QV_X_MT
 * gives PC_ERR_INVALID_PARAM for a port below 1. A command that can make no request because memory
 * is short gives PC_ERR_ENCODE_FAILED.
 *
 * Time limits are milliseconds. The setting "Inc Recv Timeout" is added to waits for an answer,
 * except where a function says otherwise, and not to waits that no request precedes; a negative one
 * takes time away, down to none. A device that is gone ends no wait before its limit.
 *
 * Numbers in buffers are in this machine's byte order unless a function says otherwise; the library
 * converts to the handset's. When the exchange with the handset fails, what a function would write
 * stays as it was, except where the function says otherwise.
 *
 * Every function may be called from any thread. Commands on different ports run at the same time.
 * Two calls on one port run one after another, in the order in which they came. QV_EndPhoneTest and
 * QV_EndPhoneTest_MT do not wait for a command that runs: it returns PC_ERR_PORT_NOT_OPEN at once,
 * and so do those that wait for their turn. The operation id under which a result is reported is one
 * for the process: with several threads, or while a mode process runs, it may be that of another
 * command. */
#ifndef MEROVANE_MEROVANE_H
#define MEROVANE_MEROVANE_H

#include "result_codes.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sessions ------------------------------------------------------------------------ */

/** Opens a port and makes its phone object the default one, on which the functions without _MT
 * work. A port that cannot be opened leaves its "Open" line and the result in the Useful log.
 * @param port  1 and up; n stands for the device or the socket://host:port that the environment
 *   variable CASSORIND_COMn names; where that is empty or not set, for COMn on Windows, else for
 *   the n-th of /dev/ttyS0, /dev/ttyS1 and so on
 * @param baud_rate  bits per second (1 and up)
 * @retval PC_ERR_PORT_NOT_OPEN  another thread ended the port while it was being opened
 * @retval PC_ERR_CANNOT_OPEN_PORT  the device cannot be opened, or memory is short
 * @retval PC_ERR_INVALID_PARAM  `port` below 1; `baud_rate` below 1
 * @retval PC_ERR_PORT_ALREADY_OPENED  the port has a phone object already, which stays as it is,
 *   even when that one is not open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_BeginPhoneTest(int32_t port, int32_t baud_rate);

/** Opens a port for the functions with _MT. The default phone object stays the one that it is. A
 * port that cannot be opened leaves its "Open" line and the result in the Useful log.
 * @param port  as in QV_BeginPhoneTest (1 and up)
 * @param baud_rate  bits per second (1 and up)
 * @retval PC_ERR_PORT_NOT_OPEN  another thread ended the port while it was being opened
 * @retval PC_ERR_CANNOT_OPEN_PORT  the device cannot be opened, or memory is short
 * @retval PC_ERR_INVALID_PARAM  `port` below 1; `baud_rate` below 1
 * @retval PC_ERR_PORT_ALREADY_OPENED  the port has a phone object already, which stays as it is,
 *   even when that one is not open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_BeginPhoneTest_MT(int32_t port, int32_t baud_rate);

/** Stops mode processes and closes every port; there is no default phone object afterwards. A
 * command that still runs returns PC_ERR_PORT_NOT_OPEN at once. With nothing open it succeeds.
 * @retval PC_ERR_CANNOT_CLOSE_ALL_PORTS  a port was not open, as after a stopped wait for one; or a
 *   call on it did not return within 3300 ms, and the port closes when it does. The others are
 *   closed all the same
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EndPhoneTest(void);

/** Closes one port; that its device cannot be closed, or was not open, is no failure. A command
 * that still runs on it returns PC_ERR_PORT_NOT_OPEN at once; a call that does not return within
 * 3300 ms closes the port when it does. When it is the port of the default phone object, there is
 * none afterwards, and the functions without _MT return PC_ERR_PORT_NOT_OPEN.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @retval PC_ERR_PORT_NOT_OPEN  it has no phone object
 * @retval PC_ERR_INVALID_PARAM  `port` below 1
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EndPhoneTest_MT(int32_t port);

/* ---- Properties ---------------------------------------------------------------------- */

/** Sets a property of the library. Values are as wide as a pointer. Other properties than the five
 * are ignored. The result is reported under the operation id of the command before.
 * - QV_PROPERTY_USEFUL_LOG: 0 silences the Useful logs of all ports; another value lets them go on,
 *   and gives one to ports opened from then on.
 * - QV_PROPERTY_SAVE_RECEIVED_DATA: as QV_SaveRecvData.
 * - QV_PROPERTY_CHANNEL_SERVER: 0 disconnects the channel server, also from ports that are open;
 *   another value connects it, for ports opened from then on, which receive as with
 *   QV_RECEIVE_MODE_THREAD. What a handset sends goes to the server; what the server sends goes to
 *   the handset as it stands, at most 9216 bytes of one message. A server that cannot be reached is
 *   no failure.
 * - QV_PROPERTY_RECEIVE_MODE: as QV_SetRecvMode.
 * - QV_PROPERTY_BIG_ENDIAN: whether handsets are big-endian (not 0) or little-endian (0), for all
 *   ports at once.
 * @param property  a QV_PROPERTY
 * @param value1  QV_PROPERTY_SAVE_RECEIVED_DATA: not 0 to record; otherwise not used
 * @param value2  QV_PROPERTY_SAVE_RECEIVED_DATA: the address of the file's path; otherwise the
 *   value
 * @return 0 (PC_ERR_SUCCESS) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetProperty(
    uint32_t property, uintptr_t value1, uintptr_t value2);

/** Gets QV_PROPERTY_BIG_ENDIAN. For other properties it succeeds and leaves `value` as it was. The
 * result is reported under the operation id of the command before.
 * @param property  a QV_PROPERTY
 * @param value1  not used
 * @param value  1 or 0 (looked at only when `property == QV_PROPERTY_BIG_ENDIAN`)
 * @retval PC_ERR_INVALID_PARAM  `value` is null when `property == QV_PROPERTY_BIG_ENDIAN`
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetProperty(
    uint32_t property, uintptr_t value1, MEROVANE_OUT_OPT uint32_t *value) MEROVANE_WRITES(3);

/** Chooses how ports that are opened from now on receive.
 * @param mode  a QV_RECEIVE_MODE; others count as QV_RECEIVE_MODE_CALLER. While it is
 *   QV_RECEIVE_MODE_THREAD, or a channel server is connected, no command purges what its device has
 *   received before, not even on a port that was opened without a thread */
MEROVANE_API void MEROVANE_CALL QV_SetRecvMode(uint32_t mode);

/** Appends all received bytes to a file, as they come and without marks, on ports that are opened
 * from now on.
 * @param on  not 0: record; 0: end the recording on every port
 * @param path  may be null; the file, relative to the process's current directory; null or empty
 *   ends the recording too */
MEROVANE_API void MEROVANE_CALL QV_SaveRecvData(uint32_t on, MEROVANE_IN_TEXT_OPT const char *path);

/** Tells whether the default phone object's handset has reported an assert since the last call:
 * returns 1 if it has, else 0, also without a default phone object. Asserts are noticed only while
 * a channel server is connected. Nothing is reported to the error-code library. */
MEROVANE_API int32_t MEROVANE_CALL QV_IsPhoneAssert(void);

/* ---- Mode processes ------------------------------------------------------------------ */

/** Waits, in the background, for a handset to boot and puts it into a mode. A mode process of the
 * same object that still runs is stopped first.
 * - Without `wait_for_port` the start frame is looked for on the default object's open port, in
 *   attempts of 1000 ms each, so that the last one may end up to that much after the time limit.
 *   Then the mode is sent, whose answer does not matter: the handset is caught.
 * - With `wait_for_port` the next serial device that arrives is opened at 115200 baud, told the
 *   mode and closed; the handset is caught when its device comes back. A device that does not take
 *   the mode is let go and the next one awaited; one that cannot be opened ends the process.
 *   QV_GetUsbPort tells the port. A device arrives when the name of a port, 1 to 256, comes to
 *   stand for a device, or for another one than before; a socket never arrives.
 * @param wait_for_port  0: on the default object's port; not 0: on the next serial device that
 *   arrives, with a phone object of its own
 * @param mode  start mode, as in QV_SetPhoneStartMode. After mode 10 a device need not come back
 * @param event  reset at the start, set when the handset was caught
 * @param time_limit_ms  milliseconds; 0: without end
 * @retval PC_ERR_PORT_NOT_OPEN  without a default phone object (`wait_for_port` 0)
 * @retval PC_ERR_INVALID_PARAM  a null `event`
 * @retval PC_ERR_ENTER_MODE_FAILED  the system gives no thread
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcess(
    uint32_t wait_for_port, uint32_t mode, QV_EVENT event, uint32_t time_limit_ms);

/** QV_EnterModeProcess for one port. With `wait_for_port` that port is awaited: it need not exist
 * yet, its phone object is closed and made anew, and it is open again, at 115200 baud, when the
 * event is set. Devices that arrive on other ports are ignored.
 * @param port  the port (1 and up)
 * @param wait_for_port  0: on the port, which is open; not 0: on the port once its device arrives
 * @param mode  start mode, as in QV_SetPhoneStartMode. After mode 10 a device need not come back
 * @param event  reset at the start, set when the handset was caught
 * @param time_limit_ms  milliseconds; 0: without end
 * @retval PC_ERR_PORT_NOT_OPEN  the port is not open (`wait_for_port` 0)
 * @retval PC_ERR_INVALID_PARAM  `port` below 1; a null `event`
 * @retval PC_ERR_ENTER_MODE_FAILED  the system gives no thread
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcess_MT(
    int32_t port, uint32_t wait_for_port, uint32_t mode, QV_EVENT event, uint32_t time_limit_ms);

/** QV_EnterModeProcess that returns when the waiting is over. On Windows it dispatches the messages
 * of the calling thread meanwhile, and keeps a WM_QUIT for the caller's own message loop.
 * @param wait_for_port  0: on the default object's port; not 0: on the next serial device that
 *   arrives
 * @param mode  start mode, as in QV_SetPhoneStartMode. After mode 10 a device need not come back
 * @param time_limit_ms  milliseconds; 0: without end
 * @retval PC_ERR_PORT_NOT_OPEN  without a default phone object (`wait_for_port` 0)
 * @retval PC_ERR_ENTER_MODE_FAILED  the handset was not caught
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcessEx(
    uint32_t wait_for_port, uint32_t mode, uint32_t time_limit_ms);

/** QV_EnterModeProcess_MT that returns when the waiting is over. On Windows it dispatches the
 * messages of the calling thread meanwhile, and keeps a WM_QUIT for the caller's own message loop.
 * @param port  the port (1 and up)
 * @param wait_for_port  0: on the port, which is open; not 0: on the port once its device arrives
 * @param mode  start mode, as in QV_SetPhoneStartMode. After mode 10 a device need not come back
 * @param time_limit_ms  milliseconds; 0: without end
 * @retval PC_ERR_PORT_NOT_OPEN  the port is not open (`wait_for_port` 0)
 * @retval PC_ERR_INVALID_PARAM  `port` below 1
 * @retval PC_ERR_ENTER_MODE_FAILED  the handset was not caught
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterModeProcessEx_MT(
    int32_t port, uint32_t wait_for_port, uint32_t mode, uint32_t time_limit_ms);

/** Stops the mode process that QV_EnterModeProcess or QV_EnterModeProcessEx began last, or that
 * QV_ResetModeProcess began on the same phone object. It ends the wait that the process is in, as a
 * rule within some 20 ms; one that has not ended after 3300 ms is given up: it neither sets its
 * event nor disturbs the next one. With none running it succeeds.
 * @retval PC_ERR_PORT_NOT_OPEN  there is no phone object that could run one
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_StopModeProcess(void);

/** Stops the mode process of one port, as QV_StopModeProcess does.
 * @param port  the port (1 and up)
 * @retval PC_ERR_PORT_NOT_OPEN  it has no phone object
 * @retval PC_ERR_INVALID_PARAM  `port` below 1
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_StopModeProcess_MT(int32_t port);

/** Restarts the default phone object's handset and sets an event once it can be talked to again.
 * With `through_port` the handset may answer that its serial device vanishes: the port is then
 * closed and, in the background, opened at 115200 baud on the next device that arrives, even when
 * that comes back at once; when it cannot be opened, the event is never set. A mode process of the
 * phone object is stopped first. The result is that of QV_RestartPhone or QV_UsbChangePhoneMode,
 * which restarts the handset, and is reported under its operation id.
 * @param through_port  not 0: through its port; 0: a plain restart, after whose answer the event is
 *   set
 * @param reboot_kind  through its port: 1, 5, 6, 7, 8 or 9, as the handset numbers its restarts;
 *   others restart it plainly
 * @param event  set when done; reset at the start when `through_port` is not 0
 * @param time_limit_ms  milliseconds; through its port: of the wait for the device, 0 without end;
 *   otherwise of the answer
 * @retval PC_ERR_INVALID_PARAM  a null `event`; `time_limit_ms` is 0 in a plain restart
 * @retval PC_ERR_ENTER_MODE_FAILED  the handset restarts, but the system gives no thread to wait
 *   for its device
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ResetModeProcess(
    uint32_t through_port, uint32_t reboot_kind, QV_EVENT event, uint32_t time_limit_ms);

/** QV_ResetModeProcess for one port, which is opened again only on a device that arrives under its
 * own number.
 * @param port  the port (1 and up)
 * @param through_port  not 0: through its port; 0: a plain restart, after whose answer the event is
 *   set
 * @param reboot_kind  through its port: 1, 5, 6, 7, 8 or 9, as the handset numbers its restarts;
 *   others restart it plainly
 * @param event  set when done; reset at the start when `through_port` is not 0
 * @param time_limit_ms  milliseconds; through its port: of the wait for the device, 0 without end;
 *   otherwise of the answer
 * @retval PC_ERR_INVALID_PARAM  `port` below 1; a null `event`; `time_limit_ms` is 0 in a plain
 *   restart
 * @retval PC_ERR_ENTER_MODE_FAILED  the handset restarts, but the system gives no thread to wait
 *   for its device
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ResetModeProcess_MT(
    int32_t port, uint32_t through_port, uint32_t reboot_kind, QV_EVENT event,
    uint32_t time_limit_ms);

/** Returns the port on which the last QV_EnterModeProcess or QV_EnterModeProcessEx with
 * `wait_for_port` found a device; 0 when it found none, or was never called. Nothing is reported to
 * the error-code library. */
MEROVANE_API int32_t MEROVANE_CALL QV_GetUsbPort(void);

/** Sets what every mode process from now on puts into the sequence field of the first frame that it
 * sends. The restart of QV_ResetModeProcess carries none. Needs no open port. The result is
 * reported under operation id 0.
 * @param camp_parameter  0 at first, and for none
 * @return 0 (PC_ERR_SUCCESS) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetCampParam(uint32_t camp_parameter);

/* ---- Test-mode start and phone modes ------------------------------------------------- */

/** Waits for the start frame, which a handset sends while it boots. The setting "Inc Recv Timeout"
 * does not lengthen the wait.
 * @param data  the frame's 8-byte header, as it arrived (`capacity` bytes, counted in `length`)
 * @param capacity  room at `data` (1 to 2147483647)
 * @param length  how many bytes were stored, at most 8; written on success only
 * @param timeout_ms  milliseconds; 0: nothing is read
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_NO_USEFUL_DATA  no start frame arrived in time; one in the other byte order does
 *   not count
 * @return 0 (PC_ERR_SUCCESS), one of the above or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData(
    MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity, MEROVANE_OUT uint32_t *length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(1, 2) MEROVANE_WRITES(3);

/** QV_RecvPhoneStartData for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param data  the frame's 8-byte header, as it arrived (`capacity` bytes, counted in `length`)
 * @param capacity  room at `data` (1 to 2147483647)
 * @param length  how many bytes were stored, at most 8; written on success only
 * @param timeout_ms  milliseconds; 0: nothing is read */
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity,
    MEROVANE_OUT uint32_t *length, uint32_t timeout_ms) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** Puts a handset that has sent its start frame into a mode. Waits 4000 ms for the acknowledgement;
 * the setting "Inc Recv Timeout" does not lengthen the wait.
 * @param mode  0 to 127, as the handset numbers its modes; the low 8 bits of mode + 128 are sent
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode(uint32_t mode);

/** QV_SetPhoneStartMode for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  0 to 127, as the handset numbers its modes; the low 8 bits of mode + 128 are sent */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_MT(int32_t port, uint32_t mode);

/** QV_RecvPhoneStartData, then QV_SetPhoneStartMode. The result is reported under the operation id
 * of the last that ran.
 * @param mode  as QV_SetPhoneStartMode takes it
 * @param timeout_ms  milliseconds; of the wait for the start frame; 0: nothing is read
 * @retval PC_ERR_NO_USEFUL_DATA  no start frame arrived in time, and no mode was sent
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartModeEx(uint32_t mode, uint32_t timeout_ms);

/** QV_SetPhoneStartModeEx for the port `port`, with the same results. QV_RecvPhoneStartData, then
 * QV_SetPhoneStartMode. The result is reported under the operation id of the last that ran.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  as QV_SetPhoneStartMode takes it
 * @param timeout_ms  milliseconds; of the wait for the start frame; 0: nothing is read */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartModeEx_MT(
    int32_t port, uint32_t mode, uint32_t timeout_ms);

/** QV_SetPhoneStartMode with camp parameters in the request's sequence field.
 * @param mode  as QV_SetPhoneStartMode takes it
 * @param first_camp_parameter  its low 4 bits are sent
 * @param second_camp_parameter  its low 11 bits are sent
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetModeAndCampParam(
    uint32_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter);

/** QV_SetModeAndCampParam for the port `port`, with the same results. QV_SetPhoneStartMode with
 * camp parameters in the request's sequence field.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  as QV_SetPhoneStartMode takes it
 * @param first_camp_parameter  its low 4 bits are sent
 * @param second_camp_parameter  its low 11 bits are sent */
MEROVANE_API int32_t MEROVANE_CALL QV_SetModeAndCampParam_MT(
    int32_t port, uint32_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter);

/** Switches the handset's ARM trace output on or off.
 * @param enable  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableArmLog(uint32_t enable);

/** QV_EnableArmLog for the port `port`, with the same results. Switches the handset's ARM trace
 * output on or off.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param enable  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableArmLog_MT(int32_t port, uint32_t enable);

/** Switches the handset's DSP trace output on or off. Waits 1000 ms.
 * @param enable  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableDspLog(uint32_t enable);

/** QV_EnableDspLog for the port `port`, with the same results. Switches the handset's DSP trace
 * output on or off. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param enable  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_EnableDspLog_MT(int32_t port, uint32_t enable);

/** Changes the mode of a running handset. Waits 4000 ms.
 * @param mode  as the handset numbers its modes; 0 restarts it
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangePhoneMode(uint8_t mode);

/** QV_ChangePhoneMode for the port `port`, with the same results. Changes the mode of a running
 * handset. Waits 4000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  as the handset numbers its modes; 0 restarts it */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangePhoneMode_MT(int32_t port, uint8_t mode);

/** QV_ChangePhoneMode, which also tells whether the handset stays reachable on its port.
 * @param mode  as QV_ChangePhoneMode takes it
 * @param answered  1 when the answer carries 2 bytes or more: the port stays; else 0. Written on
 *   success only
 * @retval PC_ERR_INVALID_PARAM  `answered` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangePhoneMode(
    uint8_t mode, MEROVANE_OUT uint32_t *answered) MEROVANE_WRITES(2);

/** QV_UsbChangePhoneMode for the port `port`, with the same results. QV_ChangePhoneMode, which also
 * tells whether the handset stays reachable on its port.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  as QV_ChangePhoneMode takes it
 * @param answered  1 when the answer carries 2 bytes or more: the port stays; else 0. Written on
 *   success only */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangePhoneMode_MT(
    int32_t port, uint8_t mode, MEROVANE_OUT uint32_t *answered) MEROVANE_WRITES(3);

/** QV_UsbChangePhoneMode with camp parameters in the request's sequence field.
 * @param mode  as QV_ChangePhoneMode takes it
 * @param first_camp_parameter  its low 4 bits are sent
 * @param second_camp_parameter  its low 11 bits are sent
 * @param answered  as QV_UsbChangePhoneMode stores it
 * @retval PC_ERR_INVALID_PARAM  `answered` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangeModeAndSetCampParam(
    uint8_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter,
    MEROVANE_OUT uint32_t *answered) MEROVANE_WRITES(4);

/** QV_UsbChangeModeAndSetCampParam for the port `port`, with the same results.
 * QV_UsbChangePhoneMode with camp parameters in the request's sequence field.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  as QV_ChangePhoneMode takes it
 * @param first_camp_parameter  its low 4 bits are sent
 * @param second_camp_parameter  its low 11 bits are sent
 * @param answered  as QV_UsbChangePhoneMode stores it */
MEROVANE_API int32_t MEROVANE_CALL QV_UsbChangeModeAndSetCampParam_MT(
    int32_t port, uint8_t mode, uint32_t first_camp_parameter, uint32_t second_camp_parameter,
    MEROVANE_OUT uint32_t *answered) MEROVANE_WRITES(5);

/** Restarts the handset and waits for its acknowledgement.
 * @param timeout_ms  of the acknowledgement (above 0, milliseconds)
 * @retval PC_ERR_INVALID_PARAM  `timeout_ms` of 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RestartPhone(uint32_t timeout_ms);

/** QV_RestartPhone for the port `port`, with the same results. Restarts the handset and waits for
 * its acknowledgement.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param timeout_ms  of the acknowledgement (above 0, milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_RestartPhone_MT(int32_t port, uint32_t timeout_ms);

/** Reads the handset's mode. Waits 1000 ms.
 * @param data  `capacity` bytes; the answer, cut to `capacity` with PC_ERR_SUCCESS; its length is
 *   not told. Byte 3 becomes a start mode code, 0x80 to 0x8F, when it arrived
 * @param capacity  room at `data` (1 to 2147483647)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `capacity` outside 1 to 2147483647
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode(
    MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity) MEROVANE_WRITES_N(1, 2);

/** QV_ReadMode for the port `port`, with the same results. Reads the handset's mode. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param data  `capacity` bytes; the answer, cut to `capacity` with PC_ERR_SUCCESS; its length is
 *   not told. Byte 3 becomes a start mode code, 0x80 to 0x8F, when it arrived
 * @param capacity  room at `data` (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *data,
    uint32_t capacity) MEROVANE_WRITES_N(2, 3);

/** Takes the next whole frame of any type. The setting "Inc Recv Timeout" does not lengthen the
 * wait.
 * @param data  `*length` bytes, counted in `length`; the frame without its flags and escapes: 8
 *   bytes of header, then the payload
 * @param length  1 to 2147483647; in: room at `data`; out: how many bytes were stored, 0 without a
 *   frame
 * @param timeout_ms  above 0, milliseconds; of the frame; one that has begun to arrive gets up to
 *   500 ms more
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `length` outside 1 to 2147483647; `timeout_ms` of 0
 * @retval PC_ERR_BUFFER_TOO_SMALL  the frame was cut to the room that there is
 * @retval PC_ERR_DECODE_FAILED  a frame arrived that holds nothing
 * @retval PC_ERR_NO_FRAME  no whole frame arrived in time
 * @return 0 (PC_ERR_SUCCESS), one of the above or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_Read(
    MEROVANE_OUT_N(*length) uint8_t *data, MEROVANE_INOUT uint32_t *length,
    uint32_t timeout_ms) MEROVANE_WRITES(1) MEROVANE_UPDATES(2);

/** QV_Read for the port `port`, with the same results. Takes the next whole frame of any type. The
 * setting "Inc Recv Timeout" does not lengthen the wait.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param data  `*length` bytes, counted in `length`; the frame without its flags and escapes: 8
 *   bytes of header, then the payload
 * @param length  1 to 2147483647; in: room at `data`; out: how many bytes were stored, 0 without a
 *   frame
 * @param timeout_ms  above 0, milliseconds; of the frame; one that has begun to arrive gets up to
 *   500 ms more */
MEROVANE_API int32_t MEROVANE_CALL QV_Read_MT(
    int32_t port, MEROVANE_OUT_N(*length) uint8_t *data, MEROVANE_INOUT uint32_t *length,
    uint32_t timeout_ms) MEROVANE_WRITES(2) MEROVANE_UPDATES(3);

/** Writes bytes to the port as they are. Neither they nor the result go to the Useful log.
 * @param data  what is written (`length` bytes)
 * @param length  how many bytes (1 and up)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `length` below 1
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_Write(
    MEROVANE_IN_N(length) const uint8_t *data, int32_t length) MEROVANE_READS_N(1, 2);

/** QV_Write for the port `port`, with the same results. Writes bytes to the port as they are.
 * Neither they nor the result go to the Useful log.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param data  what is written (`length` bytes)
 * @param length  how many bytes (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_Write_MT(
    int32_t port, MEROVANE_IN_N(length) const uint8_t *data,
    int32_t length) MEROVANE_READS_N(2, 3);

/** Sends an AT command and collects its answer until that ends in "OK", CR and LF.
 * @param command  CR and LF are added; at most 9214 characters
 * @param command_length  not used
 * @param wait  0: only the acknowledgement is awaited, 1000 ms
 * @param answer  the answer's text, line ends included, without a terminating zero (`capacity`
 *   bytes, counted in `answer_length`, looked at only when `wait` is not 0)
 * @param capacity  room at `answer` (1 to 2147483647 when `wait` is not 0)
 * @param answer_length  looked at only when `wait` is not 0; how many characters were stored; 0
 *   when no answer came, not written without an acknowledgement
 * @param timeout_ms  above 0, milliseconds; of the whole answer. Each frame of it may take this
 *   long, so that the call can last twice the limit; the setting "Inc Recv Timeout" is not added
 * @retval PC_ERR_SUCCESS  also when time ran out after part of an answer: look for the "OK" at its
 *   end
 * @retval PC_ERR_INVALID_PARAM  `command` is null; `answer` or `answer_length` is null when `wait`
 *   is not 0; `capacity` outside 1 to 2147483647 when `wait` is not 0; `timeout_ms` of 0; a
 *   `command` of more than 9214 characters
 * @retval PC_ERR_BUFFER_TOO_SMALL  the answer is longer; `answer` holds the frames that fitted
 * @retval PC_ERR_NO_DATA  no answer came
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAtCommand(
    MEROVANE_IN_TEXT const char *command, uint32_t command_length, uint32_t wait,
    MEROVANE_OUT_N_OPT(capacity) char *answer, uint32_t capacity,
    MEROVANE_OUT_OPT uint32_t *answer_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(4, 5) MEROVANE_WRITES(6);

/** QV_SendAtCommand for the port `port`, with the same results. Sends an AT command and collects
 * its answer until that ends in "OK", CR and LF.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param command  CR and LF are added; at most 9214 characters
 * @param command_length  not used
 * @param wait  0: only the acknowledgement is awaited, 1000 ms
 * @param answer  the answer's text, line ends included, without a terminating zero (`capacity`
 *   bytes, counted in `answer_length`, looked at only when `wait` is not 0)
 * @param capacity  room at `answer` (1 to 2147483647 when `wait` is not 0)
 * @param answer_length  looked at only when `wait` is not 0; how many characters were stored; 0
 *   when no answer came, not written without an acknowledgement
 * @param timeout_ms  above 0, milliseconds; of the whole answer. Each frame of it may take this
 *   long, so that the call can last twice the limit; the setting "Inc Recv Timeout" is not added */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAtCommand_MT(
    int32_t port, MEROVANE_IN_TEXT const char *command, uint32_t command_length, uint32_t wait,
    MEROVANE_OUT_N_OPT(capacity) char *answer, uint32_t capacity,
    MEROVANE_OUT_OPT uint32_t *answer_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(5, 6) MEROVANE_WRITES(7);

/** Sends bytes to the AT command interpreter as they are and collects its answer, line ends
 * removed, up to the frame that holds "OK" or the prompt ">". That frame is not delivered.
 * @param command  without an added line end (`length` bytes)
 * @param length  how many bytes (1 to 9216)
 * @param answer  `capacity` bytes, counted in `answer_length`, may be null; of each frame the text
 *   up to its first zero, and no zero at its end; null: only the acknowledgement is awaited, 1000
 *   ms
 * @param capacity  room at `answer` (1 to 2147483647 when `answer` and `answer_length` are not
 *   null)
 * @param answer_length  may be null; how many characters were stored; 0 when no answer came, not
 *   written without an acknowledgement; null: as for `answer`
 * @param timeout_ms  above 0, milliseconds; of the whole answer. Each frame of it may take this
 *   long, so that the call can last twice the limit; the setting "Inc Recv Timeout" is not added
 * @retval PC_ERR_INVALID_PARAM  `command` is null; `length` outside 1 to 9216; `capacity` outside 1
 *   to 2147483647 when `answer` and `answer_length` are not null; `timeout_ms` of 0
 * @retval PC_ERR_BUFFER_TOO_SMALL  the answer is longer; `answer` holds the frames that fitted
 * @retval PC_ERR_NO_DATA  neither "OK" nor a prompt came in time; `answer` holds what came before
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAT(
    MEROVANE_IN_N(length) const char *command, uint32_t length,
    MEROVANE_OUT_N_OPT(capacity) char *answer, uint32_t capacity,
    MEROVANE_OUT_OPT uint32_t *answer_length,
    uint32_t timeout_ms) MEROVANE_READS_N(1, 2) MEROVANE_WRITES_N(3, 4) MEROVANE_WRITES(5);

/** QV_SendAT for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param command  without an added line end (`length` bytes)
 * @param length  how many bytes (1 to 9216)
 * @param answer  `capacity` bytes, counted in `answer_length`, may be null; of each frame the text
 *   up to its first zero, and no zero at its end; null: only the acknowledgement is awaited, 1000
 *   ms
 * @param capacity  room at `answer` (1 to 2147483647 when `answer` and `answer_length` are not
 *   null)
 * @param answer_length  may be null; how many characters were stored; 0 when no answer came, not
 *   written without an acknowledgement; null: as for `answer`
 * @param timeout_ms  above 0, milliseconds; of the whole answer. Each frame of it may take this
 *   long, so that the call can last twice the limit; the setting "Inc Recv Timeout" is not added */
MEROVANE_API int32_t MEROVANE_CALL QV_SendAT_MT(
    int32_t port, MEROVANE_IN_N(length) const char *command, uint32_t length,
    MEROVANE_OUT_N_OPT(capacity) char *answer, uint32_t capacity,
    MEROVANE_OUT_OPT uint32_t *answer_length,
    uint32_t timeout_ms) MEROVANE_READS_N(2, 3) MEROVANE_WRITES_N(4, 5) MEROVANE_WRITES(6);

/** Reads the serving cell: QV_SendAtCommand with "AT+CCED=0,1", waiting 2000 ms for the answer. The
 * result is reported under that function's operation id.
 * @param cell  written on success only
 * @retval PC_ERR_INVALID_PARAM  `cell` is null
 * @retval PC_ERR_BUFFER_TOO_SMALL  the answer is longer than 9216 characters
 * @retval PC_ERR_NO_DATA  no answer came
 * @retval PC_ERR_NO_USEFUL_DATA  the answer holds no "+CCED"
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetCurrCellInfo(
    MEROVANE_OUT QV_CELL_INFO *cell) MEROVANE_WRITES(1);

/** QV_GetCurrCellInfo for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param cell  written on success only */
MEROVANE_API int32_t MEROVANE_CALL QV_GetCurrCellInfo_MT(
    int32_t port, MEROVANE_OUT QV_CELL_INFO *cell) MEROVANE_WRITES(2);

/** Sends the handset into deep sleep.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterDeepSleepMode(void);

/** QV_EnterDeepSleepMode for the port `port`, with the same results. Sends the handset into deep
 * sleep.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterDeepSleepMode_MT(int32_t port);

/* ---- Flash items, NV items, registers ------------------------------------------------ */

/** Reads a production flash item from its start.
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes, counted in
 *   `data_length`)
 * @param length  how many are wanted (1 to 65535)
 * @param data_length  how many were stored, which may be fewer than wanted with PC_ERR_SUCCESS; not
 *   written when the exchange failed
 * @param timeout_ms  of the answer (milliseconds)
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `length` outside 1 to 65535
 * @retval PC_ERR_BUFFER_TOO_SMALL  the handset sent more; the first `length` bytes are there
 * @retval PC_ERR_WRONG_DATA_LENGTH  the handset sent none; `data_length` is 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadFlash(
    uint16_t item, MEROVANE_OUT_N(length) uint8_t *data, int32_t length,
    MEROVANE_OUT uint32_t *data_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** QV_ReadFlash for the port `port`, with the same results. Reads a production flash item from its
 * start.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes, counted in
 *   `data_length`)
 * @param length  how many are wanted (1 to 65535)
 * @param data_length  how many were stored, which may be fewer than wanted with PC_ERR_SUCCESS; not
 *   written when the exchange failed
 * @param timeout_ms  of the answer (milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadFlash_MT(
    int32_t port, uint16_t item, MEROVANE_OUT_N(length) uint8_t *data, int32_t length,
    MEROVANE_OUT uint32_t *data_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(3, 4) MEROVANE_WRITES(5);

/** Writes a production flash item from its start.
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes)
 * @param length  how many (1 to 65523)
 * @param timeout_ms  milliseconds; of the acknowledgement; 0: 4000
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `length` outside 1 to 65523
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteFlash(
    uint16_t item, MEROVANE_IN_N(length) const uint8_t *data, uint32_t length,
    uint32_t timeout_ms) MEROVANE_READS_N(2, 3);

/** QV_WriteFlash for the port `port`, with the same results. Writes a production flash item from
 * its start.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes)
 * @param length  how many (1 to 65523)
 * @param timeout_ms  milliseconds; of the acknowledgement; 0: 4000 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteFlash_MT(
    int32_t port, uint16_t item, MEROVANE_IN_N(length) const uint8_t *data, uint32_t length,
    uint32_t timeout_ms) MEROVANE_READS_N(3, 4);

/** Erases the production flash area.
 * @param timeout_ms  of the acknowledgement (above 0, milliseconds)
 * @retval PC_ERR_INVALID_PARAM  `timeout_ms` of 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_EraseFlash(uint32_t timeout_ms);

/** QV_EraseFlash for the port `port`, with the same results. Erases the production flash area.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param timeout_ms  of the acknowledgement (above 0, milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_EraseFlash_MT(int32_t port, uint32_t timeout_ms);

/** Reads an NV item.
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`capacity` bytes, counted in
 *   `data_length`)
 * @param capacity  room at `data` (1 to 2147483647)
 * @param data_length  how many bytes were stored; not written when the exchange failed
 * @param timeout_ms  of the answer (milliseconds)
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_BUFFER_TOO_SMALL  the item is longer, and its start is there; or the answer does
 *   not even hold an item id, and `data` is filled with zeros
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNv(
    uint16_t item, MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity,
    MEROVANE_OUT uint32_t *data_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** QV_ReadNv for the port `port`, with the same results. Reads an NV item.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`capacity` bytes, counted in
 *   `data_length`)
 * @param capacity  room at `data` (1 to 2147483647)
 * @param data_length  how many bytes were stored; not written when the exchange failed
 * @param timeout_ms  of the answer (milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNv_MT(
    int32_t port, uint16_t item, MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity,
    MEROVANE_OUT uint32_t *data_length,
    uint32_t timeout_ms) MEROVANE_WRITES_N(3, 4) MEROVANE_WRITES(5);

/** Writes an NV item. Waits 1000 ms.
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes)
 * @param length  0 to 65525; how many; 0 is sent as well
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `length` above 65525
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteNv(
    uint16_t item, MEROVANE_IN_N(length) const uint8_t *data,
    uint32_t length) MEROVANE_READS_N(2, 3);

/** QV_WriteNv for the port `port`, with the same results. Writes an NV item. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param item  the item's id
 * @param data  the item's bytes, as the handset holds them (`length` bytes)
 * @param length  0 to 65525; how many; 0 is sent as well */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteNv_MT(
    int32_t port, uint16_t item, MEROVANE_IN_N(length) const uint8_t *data,
    uint32_t length) MEROVANE_READS_N(3, 4);

/** Reads a part of an NV item. Waits 2000 ms. Neither its name nor its result goes to the Useful
 * log.
 * @param item  the item's id
 * @param offset  of the part in the item
 * @param length  of the part; cut to `capacity` with PC_ERR_SUCCESS
 * @param data  `capacity` bytes, counted in `data_length`; the part's bytes, as the handset holds
 *   them; bytes after the end of the item read as 0
 * @param capacity  room at `data` (1 to 2147483647)
 * @param data_length  how many bytes were stored; written on success only
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647; after the
 *   exchange: the part ends more than 2 bytes after the end of the item
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNvFromHandset(
    uint16_t item, uint32_t offset, uint32_t length, MEROVANE_OUT_N(capacity) uint8_t *data,
    uint32_t capacity,
    MEROVANE_OUT uint32_t *data_length) MEROVANE_WRITES_N(4, 5) MEROVANE_WRITES(6);

/** Reads registers. Waits 1000 ms.
 * @param access_width  a QV_ACCESS_WIDTH; any other value reads 32-bit units
 * @param address  of the first unit
 * @param data  `count * (access_width == 0 ? 1 : access_width == 1 ? 2 : 4)` bytes; in the
 *   handset's byte order; units that did not arrive read as 0. Written on success only
 * @param count  of units (above 0)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `count` of 0; more than 65519 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRegister(
    uint32_t access_width, uint32_t address,
    MEROVANE_OUT_N(count*(access_width==0?1:access_width==1?2:4)) uint8_t *data,
    uint32_t count) MEROVANE_WRITES(3);

/** QV_ReadRegister for the port `port`, with the same results. Reads registers. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param access_width  a QV_ACCESS_WIDTH; any other value reads 32-bit units
 * @param address  of the first unit
 * @param data  `count * (access_width == 0 ? 1 : access_width == 1 ? 2 : 4)` bytes; in the
 *   handset's byte order; units that did not arrive read as 0. Written on success only
 * @param count  of units (above 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRegister_MT(
    int32_t port, uint32_t access_width, uint32_t address,
    MEROVANE_OUT_N(count*(access_width==0?1:access_width==1?2:4)) uint8_t *data,
    uint32_t count) MEROVANE_WRITES(4);

/** Writes registers. Waits 1000 ms.
 * @param access_width  a QV_ACCESS_WIDTH; any other value writes 32-bit units
 * @param address  of the first unit
 * @param data  in the handset's byte order (`count * (access_width == 0 ? 1 : access_width == 1 ? 2
 *   : 4)` bytes)
 * @param count  of units (above 0)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `count` of 0; more than 65511 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteRegister(
    uint32_t access_width, uint32_t address,
    MEROVANE_IN_N(count*(access_width==0?1:access_width==1?2:4)) const uint8_t *data,
    uint32_t count) MEROVANE_READS(3);

/** QV_WriteRegister for the port `port`, with the same results. Writes registers. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param access_width  a QV_ACCESS_WIDTH; any other value writes 32-bit units
 * @param address  of the first unit
 * @param data  in the handset's byte order (`count * (access_width == 0 ? 1 : access_width == 1 ? 2
 *   : 4)` bytes)
 * @param count  of units (above 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteRegister_MT(
    int32_t port, uint32_t access_width, uint32_t address,
    MEROVANE_IN_N(count*(access_width==0?1:access_width==1?2:4)) const uint8_t *data,
    uint32_t count) MEROVANE_READS(4);

/* ---- Identification ------------------------------------------------------------------ */

/** Reads the chip's identification word. Waits 1000 ms.
 * @param id  written on success only; bytes that did not arrive read as 0
 * @retval PC_ERR_INVALID_PARAM  `id` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipID(MEROVANE_OUT uint32_t *id) MEROVANE_WRITES(1);

/** QV_GetChipID for the port `port`, with the same results. Reads the chip's identification word.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param id  written on success only; bytes that did not arrive read as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipID_MT(
    int32_t port, MEROVANE_OUT uint32_t *id) MEROVANE_WRITES(2);

/** Reads the chip's type word. Waits 1000 ms.
 * @param type  written on success only; bytes that did not arrive read as 0
 * @retval PC_ERR_INVALID_PARAM  `type` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipType(MEROVANE_OUT uint32_t *type) MEROVANE_WRITES(1);

/** QV_GetChipType for the port `port`, with the same results. Reads the chip's type word. Waits
 * 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param type  written on success only; bytes that did not arrive read as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipType_MT(
    int32_t port, MEROVANE_OUT uint32_t *type) MEROVANE_WRITES(2);

/** Reads the identification of an LCD's controller. Waits 1000 ms.
 * @param second_lcd  0: of the first LCD, else of the second
 * @param id  `capacity` bytes, counted in `length`; as it arrived; no more than 100 bytes of it
 * @param capacity  room at `id` (1 and up)
 * @param length  of the whole identification, also when it was cut; written when an answer came
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` below 1
 * @retval PC_ERR_BUFFER_TOO_SMALL  it was cut, to `capacity` or to 100 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetLcdIcDriverID(
    uint32_t second_lcd, MEROVANE_OUT_N(capacity) uint8_t *id, int32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** QV_GetLcdIcDriverID for the port `port`, with the same results. Reads the identification of an
 * LCD's controller. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param second_lcd  0: of the first LCD, else of the second
 * @param id  `capacity` bytes, counted in `length`; as it arrived; no more than 100 bytes of it
 * @param capacity  room at `id` (1 and up)
 * @param length  of the whole identification, also when it was cut; written when an answer came */
MEROVANE_API int32_t MEROVANE_CALL QV_GetLcdIcDriverID_MT(
    int32_t port, uint32_t second_lcd, MEROVANE_OUT_N(capacity) uint8_t *id, int32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(3, 4) MEROVANE_WRITES(5);

/** Reads the flash description. Waits 1000 ms.
 * @param info  written on success only; words that did not arrive read as 0
 * @retval PC_ERR_INVALID_PARAM  `info` is null
 * @retval PC_ERR_PARSE_FAILED  it counts more than 31 regions; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetFlashInfo(
    MEROVANE_OUT QV_FLASH_INFO *info) MEROVANE_WRITES(1);

/** QV_GetFlashInfo for the port `port`, with the same results. Reads the flash description. Waits
 * 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param info  written on success only; words that did not arrive read as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetFlashInfo_MT(
    int32_t port, MEROVANE_OUT QV_FLASH_INFO *info) MEROVANE_WRITES(2);

/** Reads the software version's text. Waits 1000 ms.
 * @param version  `capacity` bytes; as it arrived, cut to `capacity` with PC_ERR_SUCCESS. It ends
 *   with a zero only when the handset sends one that fits, and its length is not told: clear the
 *   buffer before
 * @param capacity  room at `version` (1 to 2147483647)
 * @retval PC_ERR_INVALID_PARAM  `version` is null; `capacity` outside 1 to 2147483647
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetMSVersion(
    MEROVANE_OUT_N(capacity) char *version, uint32_t capacity) MEROVANE_WRITES_N(1, 2);

/** QV_GetMSVersion for the port `port`, with the same results. Reads the software version's text.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param version  `capacity` bytes; as it arrived, cut to `capacity` with PC_ERR_SUCCESS. It ends
 *   with a zero only when the handset sends one that fits, and its length is not told: clear the
 *   buffer before
 * @param capacity  room at `version` (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetMSVersion_MT(
    int32_t port, MEROVANE_OUT_N(capacity) char *version,
    uint32_t capacity) MEROVANE_WRITES_N(2, 3);

/** Exchanges ten words with the 7310K.
 * @param command  its id
 * @param words  what is sent (10 values)
 * @param answered_words  an answer of 20 bytes or more fills all, one of 6 or more the first three,
 *   a shorter one none (10 values)
 * @param timeout_ms  milliseconds; of the answer; 0: 1000
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Send7310KCommand(
    uint8_t command, MEROVANE_IN_N(10) const uint16_t *words,
    MEROVANE_OUT_N(10) uint16_t *answered_words,
    uint32_t timeout_ms) MEROVANE_READS(2) MEROVANE_WRITES(3);

/** QV_Send7310KCommand for the port `port`, with the same results. Exchanges ten words with the
 * 7310K.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param command  its id
 * @param words  what is sent (10 values)
 * @param answered_words  an answer of 20 bytes or more fills all, one of 6 or more the first three,
 *   a shorter one none (10 values)
 * @param timeout_ms  milliseconds; of the answer; 0: 1000 */
MEROVANE_API int32_t MEROVANE_CALL QV_Send7310KCommand_MT(
    int32_t port, uint8_t command, MEROVANE_IN_N(10) const uint16_t *words,
    MEROVANE_OUT_N(10) uint16_t *answered_words,
    uint32_t timeout_ms) MEROVANE_READS(3) MEROVANE_WRITES(4);

/** Waits for ten words that the 7310K sends unasked. The setting "Inc Recv Timeout" does not
 * lengthen the wait.
 * @param command  as in QV_Send7310KCommand
 * @param answered_words  as QV_Send7310KCommand fills them (10 values)
 * @param timeout_ms  milliseconds; of the wait; 0: 1000
 * @retval PC_ERR_INVALID_PARAM  `answered_words` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Recv7310KCommand(
    uint8_t command, MEROVANE_OUT_N(10) uint16_t *answered_words,
    uint32_t timeout_ms) MEROVANE_WRITES(2);

/** QV_Recv7310KCommand for the port `port`, with the same results. Waits for ten words that the
 * 7310K sends unasked. The setting "Inc Recv Timeout" does not lengthen the wait.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param command  as in QV_Send7310KCommand
 * @param answered_words  as QV_Send7310KCommand fills them (10 values)
 * @param timeout_ms  milliseconds; of the wait; 0: 1000 */
MEROVANE_API int32_t MEROVANE_CALL QV_Recv7310KCommand_MT(
    int32_t port, uint8_t command, MEROVANE_OUT_N(10) uint16_t *answered_words,
    uint32_t timeout_ms) MEROVANE_WRITES(3);

/* ---- Fixed-NV information ------------------------------------------------------------ */

/** Asks whether the handset's fixed NV is there. Waits 1000 ms. The handset's acknowledgement is a
 * success, whatever it says. The operation id is that of QV_ReadNv.
 * @param mode  QV_FIXED_NV_BLOCK asks about the information block, any other value about the NV
 *   items
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_CheckFixedNV(uint32_t mode);

/** QV_CheckFixedNV for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  QV_FIXED_NV_BLOCK asks about the information block, any other value about the NV
 *   items */
MEROVANE_API int32_t MEROVANE_CALL QV_CheckFixedNV_MT(int32_t port, uint32_t mode);

/** Writes IMEI 1, IMEI 2, the Bluetooth address and the parameter block, those whose flags are set,
 * without a checksum. Waits 3000 ms. The other flags are not looked at.
 * @param info  what is written
 * @retval PC_ERR_INVALID_PARAM  `info` is null; an IMEI to be written does not begin with 15
 *   decimal digits, or the address not with 12 hexadecimal ones; nothing was sent
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_NvWriteDirect(
    MEROVANE_IN const QV_FIXED_NV_INFO *info) MEROVANE_READS(1);

/** QV_NvWriteDirect for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param info  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_NvWriteDirect_MT(
    int32_t port, MEROVANE_IN const QV_FIXED_NV_INFO *info) MEROVANE_READS(2);

/** Writes the fields whose flags are set, in one frame with a checksum. Waits 3000 ms.
 * @param info  what is written. A wrong text in IMEI 3, IMEI 4 or the second address is not
 *   refused: zeros are written for it
 * @retval PC_ERR_INVALID_PARAM  `info` is null; IMEI 1 or 2, to be written, does not begin with 15
 *   decimal digits, or the Bluetooth address not with 12 hexadecimal ones; nothing was sent
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteNvInfo(
    MEROVANE_IN const QV_FIXED_NV_INFO *info) MEROVANE_READS(1);

/** QV_FastWriteNvInfo for the port `port`, with the same results. Writes the fields whose flags are
 * set, in one frame with a checksum. Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param info  what is written. A wrong text in IMEI 3, IMEI 4 or the second address is not
 *   refused: zeros are written for it */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteNvInfo_MT(
    int32_t port, MEROVANE_IN const QV_FIXED_NV_INFO *info) MEROVANE_READS(2);

/** Reads all fields. Waits 3000 ms.
 * @param info  its flags stay as they are. When the exchange failed it is filled as from an empty
 *   block, with IMEIs and addresses of zeros; with PC_ERR_NO_DATA and PC_ERR_CHECKSUM_MISMATCH it
 *   stays as it was. Texts are padded with zeros; a damaged digit of an IMEI reads as a letter a to
 *   f
 * @retval PC_ERR_INVALID_PARAM  `info` is null
 * @retval PC_ERR_BUFFER_TOO_SMALL  the block has more than 108 bytes; it was read all the same
 * @retval PC_ERR_NO_DATA  the block is empty; not logged
 * @retval PC_ERR_CHECKSUM_MISMATCH  the block is damaged; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadNvInfo(
    MEROVANE_INOUT QV_FIXED_NV_INFO *info) MEROVANE_UPDATES(1);

/** QV_FastReadNvInfo for the port `port`, with the same results. Reads all fields. Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param info  its flags stay as they are. When the exchange failed it is filled as from an empty
 *   block, with IMEIs and addresses of zeros; with PC_ERR_NO_DATA and PC_ERR_CHECKSUM_MISMATCH it
 *   stays as it was. Texts are padded with zeros; a damaged digit of an IMEI reads as a letter a to
 *   f */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadNvInfo_MT(
    int32_t port, MEROVANE_INOUT QV_FIXED_NV_INFO *info) MEROVANE_UPDATES(2);

/* ---- Serial numbers, GUID, production data ------------------------------------------- */

/** Reads the serial number from where the handset keeps it: flash item 0, or the production block
 * when the item begins with the block's magic. Waits 4000 ms for each of two reads, 3000 ms for the
 * block. The reads log and report as QV_ReadFlash and QV_FastReadProduct, and the result is
 * reported under the operation id of the last.
 * @param serial_number  `capacity` bytes; its 24 bytes, padded with zeros and cut to `capacity`;
 *   bytes that did not arrive read as 0
 * @param capacity  room at `serial_number` (1 to 2147483647)
 * @retval PC_ERR_INVALID_PARAM  `serial_number` is null; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_BUFFER_TOO_SMALL  it was cut; or, with nothing stored, the handset sent more than
 *   was asked for, or the production block has more than 256 bytes
 * @retval PC_ERR_WRONG_DATA_LENGTH  as QV_ReadFlash and QV_FastReadProduct give it
 * @retval PC_ERR_CHECKSUM_MISMATCH  as QV_FastReadProduct gives it
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN(
    MEROVANE_OUT_N(capacity) uint8_t *serial_number, uint32_t capacity) MEROVANE_WRITES_N(1, 2);

/** QV_ReadSN for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param serial_number  `capacity` bytes; its 24 bytes, padded with zeros and cut to `capacity`;
 *   bytes that did not arrive read as 0
 * @param capacity  room at `serial_number` (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *serial_number,
    uint32_t capacity) MEROVANE_WRITES_N(2, 3);

/** QV_ReadSN for the second serial number.
 * @param serial_number  as QV_ReadSN stores it (`capacity` bytes)
 * @param capacity  room at `serial_number` (1 to 2147483647)
 * @retval PC_ERR_INVALID_PARAM  `serial_number` is null; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_BUFFER_TOO_SMALL  as QV_ReadSN
 * @retval PC_ERR_WRONG_DATA_LENGTH  as QV_ReadSN
 * @retval PC_ERR_CHECKSUM_MISMATCH  as QV_ReadSN
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN2(
    MEROVANE_OUT_N(capacity) uint8_t *serial_number, uint32_t capacity) MEROVANE_WRITES_N(1, 2);

/** QV_ReadSN2 for the port `port`, with the same results. QV_ReadSN for the second serial number.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param serial_number  as QV_ReadSN stores it (`capacity` bytes)
 * @param capacity  room at `serial_number` (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN2_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *serial_number,
    uint32_t capacity) MEROVANE_WRITES_N(2, 3);

/** Writes the serial number to where the handset keeps it, and all else there as it was read. A
 * handset with neither layout gets the one that the setting "MAGIC_NUMBER" names, its other bytes
 * zero. Everything is read before one frame carries the whole: until that frame is complete the
 * handset is as it was, and no write follows a read that failed, came short or was damaged. A
 * production block below 256 bytes counts as whole and is extended with zeros. Waits 4000 ms for
 * the magic, 8000 ms for the whole item (3000 ms for the block), 3000 ms for the write. The steps
 * log and report as QV_ReadFlash, QV_WriteFlash, QV_FastReadProduct and QV_FastWriteProduct, and
 * the result is reported under the operation id of the last.
 * @param serial_number  `length` bytes; what is written; padded with zeros to 24 bytes
 * @param length  how many bytes (1 to 23)
 * @retval PC_ERR_INVALID_PARAM  `serial_number` is null; `length` outside 1 to 23
 * @retval PC_ERR_BUFFER_TOO_SMALL  the handset holds more than the layout; nothing was written
 * @retval PC_ERR_WRONG_DATA_LENGTH  a read came short; nothing was written
 * @retval PC_ERR_CHECKSUM_MISMATCH  the production block is damaged; nothing was written
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN(
    MEROVANE_IN_N(length) const uint8_t *serial_number, uint32_t length) MEROVANE_READS_N(1, 2);

/** QV_WriteSN for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param serial_number  `length` bytes; what is written; padded with zeros to 24 bytes
 * @param length  how many bytes (1 to 23) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN_MT(
    int32_t port, MEROVANE_IN_N(length) const uint8_t *serial_number,
    uint32_t length) MEROVANE_READS_N(2, 3);

/** QV_WriteSN for the second serial number.
 * @param serial_number  as QV_WriteSN takes it (`length` bytes)
 * @param length  how many bytes (1 to 23)
 * @retval PC_ERR_INVALID_PARAM  `serial_number` is null; `length` outside 1 to 23
 * @retval PC_ERR_BUFFER_TOO_SMALL  as QV_WriteSN
 * @retval PC_ERR_WRONG_DATA_LENGTH  as QV_WriteSN
 * @retval PC_ERR_CHECKSUM_MISMATCH  as QV_WriteSN
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN2(
    MEROVANE_IN_N(length) const uint8_t *serial_number, uint32_t length) MEROVANE_READS_N(1, 2);

/** QV_WriteSN2 for the port `port`, with the same results. QV_WriteSN for the second serial number.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param serial_number  as QV_WriteSN takes it (`length` bytes)
 * @param length  how many bytes (1 to 23) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN2_MT(
    int32_t port, MEROVANE_IN_N(length) const uint8_t *serial_number,
    uint32_t length) MEROVANE_READS_N(2, 3);

/** Reads the handset's GUID from flash item 0. Waits 4000 ms. The read logs and reports as
 * QV_ReadFlash.
 * @param guid  16 bytes; as the handset holds it; bytes that did not arrive read as 0. Written on
 *   success only
 * @retval PC_ERR_INVALID_PARAM  `guid` is null
 * @retval PC_ERR_BUFFER_TOO_SMALL  the handset sent more than the item's 1752 bytes
 * @retval PC_ERR_WRONG_DATA_LENGTH  the item is empty
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadGuid(MEROVANE_OUT_N(16) uint8_t *guid) MEROVANE_WRITES(1);

/** QV_ReadGuid for the port `port`, with the same results. Reads the handset's GUID from flash item
 * 0. Waits 4000 ms. The read logs and reports as QV_ReadFlash.
 * On Windows, GetProcAddress finds it as _QV_ReadGuid_MT@8.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param guid  16 bytes; as the handset holds it; bytes that did not arrive read as 0. Written on
 *   success only */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadGuid_MT(
    int32_t port, MEROVANE_OUT_N(16) uint8_t *guid) MEROVANE_WRITES(2);

/** Writes the production block and its checksum. Waits 3000 ms.
 * @param block  `length` bytes; without a checksum; 256 bytes in handsets that keep their serial
 *   numbers there
 * @param length  0 to 65525; how many bytes; 0 is sent as well
 * @retval PC_ERR_INVALID_PARAM  `block` is null; `length` above 65525
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteProduct(
    MEROVANE_IN_N(length) const uint8_t *block, uint32_t length) MEROVANE_READS_N(1, 2);

/** QV_FastWriteProduct for the port `port`, with the same results. Writes the production block and
 * its checksum. Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param block  `length` bytes; without a checksum; 256 bytes in handsets that keep their serial
 *   numbers there
 * @param length  0 to 65525; how many bytes; 0 is sent as well */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteProduct_MT(
    int32_t port, MEROVANE_IN_N(length) const uint8_t *block,
    uint32_t length) MEROVANE_READS_N(2, 3);

/** Reads the production block. Waits 3000 ms.
 * @param block  `capacity` bytes, counted in `length`; as the handset holds it, without its
 *   checksum; must be writable over the whole `capacity`
 * @param capacity  room at `block` (1 to 2147483647)
 * @param length  of the whole block, also when it was cut; 0 with other failures, but for
 *   PC_ERR_INVALID_PARAM
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647; a block that
 *   cannot be written
 * @retval PC_ERR_BUFFER_TOO_SMALL  the block was cut to `capacity`
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has fewer than 2 bytes
 * @retval PC_ERR_CHECKSUM_MISMATCH  the block is damaged, or longer than 998 bytes; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadProduct(
    MEROVANE_OUT_N(capacity) uint8_t *block, uint32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(1, 2) MEROVANE_WRITES(3);

/** QV_FastReadProduct for the port `port`, with the same results. Reads the production block. Waits
 * 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param block  `capacity` bytes, counted in `length`; as the handset holds it, without its
 *   checksum; must be writable over the whole `capacity`
 * @param capacity  room at `block` (1 to 2147483647)
 * @param length  of the whole block, also when it was cut; 0 with other failures, but for
 *   PC_ERR_INVALID_PARAM */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadProduct_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *block, uint32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** Reads the version block. Waits 3000 ms. It logs the name of QV_FastReadProduct.
 * @param block  `capacity` bytes, counted in `length`; as the handset holds it, without its
 *   checksum; must be writable over the whole `capacity`
 * @param capacity  room at `block` (1 to 2147483647)
 * @param length  as QV_FastReadProduct stores it
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647; a block that
 *   cannot be written
 * @retval PC_ERR_BUFFER_TOO_SMALL  the block was cut to `capacity`
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has fewer than 2 bytes
 * @retval PC_ERR_CHECKSUM_MISMATCH  the block is damaged, or longer than 998 bytes; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadVerSion(
    MEROVANE_OUT_N(capacity) uint8_t *block, uint32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(1, 2) MEROVANE_WRITES(3);

/** QV_FastReadVerSion for the port `port`, with the same results. Reads the version block. Waits
 * 3000 ms. It logs the name of QV_FastReadProduct.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param block  `capacity` bytes, counted in `length`; as the handset holds it, without its
 *   checksum; must be writable over the whole `capacity`
 * @param capacity  room at `block` (1 to 2147483647)
 * @param length  as QV_FastReadProduct stores it */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadVerSion_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *block, uint32_t capacity,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES_N(2, 3) MEROVANE_WRITES(4);

/** Reads how many IMEIs the handset holds. It waits only as long as the setting "Inc Recv Timeout"
 * says; without that setting no answer is awaited, and the result is PC_ERR_NO_ANSWER.
 * @param count  the answer's first word in this machine's byte order, whatever the handset's;
 *   written with PC_ERR_WRONG_DATA_LENGTH too
 * @retval PC_ERR_INVALID_PARAM  `count` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has fewer than 10 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReaIMEICount(
    MEROVANE_OUT uint32_t *count) MEROVANE_WRITES(1);

/** QV_FastReaIMEICount for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param count  the answer's first word in this machine's byte order, whatever the handset's;
 *   written with PC_ERR_WRONG_DATA_LENGTH too */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReaIMEICount_MT(
    int32_t port, MEROVANE_OUT uint32_t *count) MEROVANE_WRITES(2);

/* ---- Peripherals --------------------------------------------------------------------- */

/** Switches the LED on or off. The handset has one code for QV_LedOn(1) and QV_LcdOn(1), and one
 * for QV_LedOn(0) and QV_VibrationOn(0).
 * @param on  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LedOn(uint32_t on);

/** QV_LedOn for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_LedOn_MT(int32_t port, uint32_t on);

/** Switches the vibrator on or off.
 * @param on  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_VibrationOn(uint32_t on);

/** QV_VibrationOn for the port `port`, with the same results. Switches the vibrator on or off.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_VibrationOn_MT(int32_t port, uint32_t on);

/** Switches the LCD on or off.
 * @param on  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LcdOn(uint32_t on);

/** QV_LcdOn for the port `port`, with the same results. Switches the LCD on or off.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_LcdOn_MT(int32_t port, uint32_t on);

/** Switches the key light on or off.
 * @param on  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_keyLightOn(uint32_t on);

/** QV_keyLightOn for the port `port`, with the same results. Switches the key light on or off.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_keyLightOn_MT(int32_t port, uint32_t on);

/** Switches the camera on or off.
 * @param on  0: off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_CameraOn(uint32_t on);

/** QV_CameraOn for the port `port`, with the same results. Switches the camera on or off.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  0: off */
MEROVANE_API int32_t MEROVANE_CALL QV_CameraOn_MT(int32_t port, uint32_t on);

/** Measures an ADC channel.
 * @param channel  as the handset numbers its channels
 * @param value  2 bytes; most significant byte first, whatever the handset's byte order; bytes that
 *   did not arrive read as 0. Written on success only
 * @param timeout_ms  of the answer (above 0, milliseconds)
 * @retval PC_ERR_INVALID_PARAM  `value` is null; `timeout_ms` of 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ADCCalibration(
    uint8_t channel, MEROVANE_OUT_N(2) uint8_t *value, uint32_t timeout_ms) MEROVANE_WRITES(2);

/** QV_ADCCalibration for the port `port`, with the same results. Measures an ADC channel.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param channel  as the handset numbers its channels
 * @param value  2 bytes; most significant byte first, whatever the handset's byte order; bytes that
 *   did not arrive read as 0. Written on success only
 * @param timeout_ms  of the answer (above 0, milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_ADCCalibration_MT(
    int32_t port, uint8_t channel, MEROVANE_OUT_N(2) uint8_t *value,
    uint32_t timeout_ms) MEROVANE_WRITES(3);

/** Measures an ADC channel.
 * @param channel  as the handset numbers its channels
 * @param value  written on success only, as are the next two; bytes that did not arrive read as 0
 * @param third_byte  of the answer (may be null)
 * @param fourth_byte  of the answer (may be null)
 * @param timeout_ms  milliseconds; of the answer; 0: 1000
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadAdcValue(
    uint8_t channel, MEROVANE_OUT uint16_t *value, MEROVANE_OUT_OPT uint8_t *third_byte,
    MEROVANE_OUT_OPT uint8_t *fourth_byte,
    uint32_t timeout_ms) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4);

/** QV_ReadAdcValue for the port `port`, with the same results. Measures an ADC channel.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param channel  as the handset numbers its channels
 * @param value  written on success only, as are the next two; bytes that did not arrive read as 0
 * @param third_byte  of the answer (may be null)
 * @param fourth_byte  of the answer (may be null)
 * @param timeout_ms  milliseconds; of the answer; 0: 1000 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadAdcValue_MT(
    int32_t port, uint8_t channel, MEROVANE_OUT uint16_t *value,
    MEROVANE_OUT_OPT uint8_t *third_byte, MEROVANE_OUT_OPT uint8_t *fourth_byte,
    uint32_t timeout_ms) MEROVANE_WRITES(3) MEROVANE_WRITES(4) MEROVANE_WRITES(5);

/** Measures the battery's voltage. Waits 1000 ms.
 * @param voltage  in the handset's unit; 0 is stored when the exchange failed
 * @retval PC_ERR_INVALID_PARAM  `voltage` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadPhoneVolt(
    MEROVANE_OUT uint32_t *voltage) MEROVANE_WRITES(1);

/** QV_ReadPhoneVolt for the port `port`, with the same results. Measures the battery's voltage.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param voltage  in the handset's unit; 0 is stored when the exchange failed */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadPhoneVolt_MT(
    int32_t port, MEROVANE_OUT uint32_t *voltage) MEROVANE_WRITES(2);

/** Makes the handset act as if a key were pressed. Waits 1000 ms.
 * @param key  the handset's code for it
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PressKeyboard(uint32_t key);

/** QV_PressKeyboard for the port `port`, with the same results. Makes the handset act as if a key
 * were pressed. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param key  the handset's code for it */
MEROVANE_API int32_t MEROVANE_CALL QV_PressKeyboard_MT(int32_t port, uint32_t key);

/* ---- GPS ----------------------------------------------------------------------------- */

/** Opens or closes the GPS receiver. Waits 1000 ms.
 * @param open  0: close
 * @retval PC_ERR_GPS_FAILED  the answer does not repeat the command. One below 264 bytes is not
 *   checked and counts as success
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsOpen(uint32_t open);

/** QV_GpsOpen for the port `port`, with the same results. Opens or closes the GPS receiver. Waits
 * 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param open  0: close */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsOpen_MT(int32_t port, uint32_t open);

/** Writes the GPS settings. Waits 1000 ms.
 * @param block  as the handset holds them, but for the 32-bit word at offset 24, which is in this
 *   machine's byte order (44 bytes)
 * @retval PC_ERR_INVALID_PARAM  `block` is null
 * @retval PC_ERR_GPS_FAILED  the answer does not repeat the command and the length. One below 264
 *   bytes is not checked and counts as success
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsWriteNv(
    MEROVANE_IN_N(44) const uint8_t *block) MEROVANE_READS(1);

/** QV_GpsWriteNv for the port `port`, with the same results. Writes the GPS settings. Waits 1000
 * ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param block  as the handset holds them, but for the 32-bit word at offset 24, which is in this
 *   machine's byte order (44 bytes) */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsWriteNv_MT(
    int32_t port, MEROVANE_IN_N(44) const uint8_t *block) MEROVANE_READS(2);

/** Reads the GPS settings. Waits 1000 ms.
 * @param block  44 bytes; as QV_GpsWriteNv takes it; bytes that did not arrive read as 0. Written
 *   with PC_ERR_GPS_FAILED too
 * @retval PC_ERR_INVALID_PARAM  `block` is null
 * @retval PC_ERR_GPS_FAILED  the answer does not repeat the command and the length. One below 264
 *   bytes is not checked and counts as success
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsReadNv(
    MEROVANE_OUT_N(44) uint8_t *block) MEROVANE_WRITES(1);

/** QV_GpsReadNv for the port `port`, with the same results. Reads the GPS settings. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param block  44 bytes; as QV_GpsWriteNv takes it; bytes that did not arrive read as 0. Written
 *   with PC_ERR_GPS_FAILED too */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsReadNv_MT(
    int32_t port, MEROVANE_OUT_N(44) uint8_t *block) MEROVANE_WRITES(2);

/* ---- Bluetooth as equipment under test ----------------------------------------------- */

/** Enters or leaves the Bluetooth test mode. Waits 3000 ms.
 * @param enter  0: leave
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterEUTMode(uint32_t enter);

/** QV_EnterEUTMode for the port `port`, with the same results. Enters or leaves the Bluetooth test
 * mode. Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param enter  0: leave */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterEUTMode_MT(int32_t port, uint32_t enter);

/** Stores the Bluetooth address. Waits 3000 ms.
 * @param address  most significant byte first (6 bytes)
 * @retval PC_ERR_INVALID_PARAM  `address` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBTAddr(
    MEROVANE_IN_N(6) const uint8_t *address) MEROVANE_READS(1);

/** QV_SaveBTAddr for the port `port`, with the same results. Stores the Bluetooth address. Waits
 * 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param address  most significant byte first (6 bytes) */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBTAddr_MT(
    int32_t port, MEROVANE_IN_N(6) const uint8_t *address) MEROVANE_READS(2);

/** Reads the Bluetooth address. Waits 1000 ms.
 * @param address  6 bytes; most significant byte first; written on success only
 * @retval PC_ERR_INVALID_PARAM  `address` is null
 * @retval PC_ERR_BLUETOOTH_FAILED  the answer has fewer than 6 bytes, or the exchange failed for
 *   whatever reason; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBTAddr(
    MEROVANE_OUT_N(6) uint8_t *address) MEROVANE_WRITES(1);

/** QV_LoadBTAddr for the port `port`, with the same results. Reads the Bluetooth address. Waits
 * 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param address  6 bytes; most significant byte first; written on success only */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBTAddr_MT(
    int32_t port, MEROVANE_OUT_N(6) uint8_t *address) MEROVANE_WRITES(2);

/** Starts or stops a radio test. Waits 3000 ms to start, 1000 ms to stop.
 * @param start  0: stop
 * @param words  4 values, looked at only when `start` is not 0; words[1] is the channel, 0 to 78;
 *   the others are sent as they are
 * @retval PC_ERR_INVALID_PARAM  `words` is null when `start` is not 0; a channel above 78
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtRadioTest(
    uint32_t start, MEROVANE_IN_N_OPT(4) const uint32_t *words) MEROVANE_READS(2);

/** QV_StartBtRadioTest for the port `port`, with the same results. Starts or stops a radio test.
 * Waits 3000 ms to start, 1000 ms to stop.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  0: stop
 * @param words  4 values, looked at only when `start` is not 0; words[1] is the channel, 0 to 78;
 *   the others are sent as they are */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtRadioTest_MT(
    int32_t port, uint32_t start, MEROVANE_IN_N_OPT(4) const uint32_t *words) MEROVANE_READS(3);

/** Starts or stops a carrier on which the frequency is adjusted. Waits 3000 ms to start, 1000 ms to
 * stop.
 * @param start  0: stop
 * @param channel  where the carrier is (0 to 78 when `start` is not 0)
 * @retval PC_ERR_INVALID_PARAM  `channel` above 78 when `start` is not 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtAFC(uint32_t start, uint32_t channel);

/** QV_StartBtAFC for the port `port`, with the same results. Starts or stops a carrier on which the
 * frequency is adjusted. Waits 3000 ms to start, 1000 ms to stop.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  0: stop
 * @param channel  where the carrier is (0 to 78 when `start` is not 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtAFC_MT(int32_t port, uint32_t start, uint32_t channel);

/** Tries a value of the frequency DAC. Waits 1000 ms.
 * @param value  what is tried (0 to 63)
 * @retval PC_ERR_INVALID_PARAM  `value` above 63
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetBtDacValue(uint32_t value);

/** QV_SetBtDacValue for the port `port`, with the same results. Tries a value of the frequency DAC.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is tried (0 to 63) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetBtDacValue_MT(int32_t port, uint32_t value);

/** Stores the value of the frequency DAC. Waits 3000 ms.
 * @param value  what is stored (0 to 63)
 * @retval PC_ERR_INVALID_PARAM  `value` above 63
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBtDacValue(uint32_t value);

/** QV_SaveBtDacValue for the port `port`, with the same results. Stores the value of the frequency
 * DAC. Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is stored (0 to 63) */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBtDacValue_MT(int32_t port, uint32_t value);

/** Reads the stored value of the frequency DAC. Waits 1000 ms.
 * @param value  written on success only
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_BLUETOOTH_FAILED  the answer has fewer than 4 bytes, or the exchange failed for
 *   whatever reason; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBtDacValue(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_LoadBtDacValue for the port `port`, with the same results. Reads the stored value of the
 * frequency DAC. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  written on success only */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBtDacValue_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/* ---- WiFi as equipment under test ---------------------------------------------------- */

/** Enters or leaves the WiFi test mode. Waits 3000 ms. Bytes of a status that did not arrive count
 * as 0, here and in the other WiFi functions: an empty answer is a success, except where a function
 * says otherwise.
 * On Windows, GetProcAddress finds it as _QV_WIFI_EnterEUTMode@4.
 * @param enter  0: leave
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_EnterEUTMode(uint32_t enter);

/** Stores the WiFi address. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SaveAddr@4.
 * @param address  6 bytes; reaches the handset reversed, and QV_WIFI_LoadAddr does not turn it
 *   back: what is saved as 01 02 03 04 05 06 is loaded as 06 05 04 03 02 01
 * @retval PC_ERR_INVALID_PARAM  `address` is null
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SaveAddr(
    MEROVANE_IN_N(6) const uint8_t *address) MEROVANE_READS(1);

/** Reads the WiFi address. Waits 1000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_LoadAddr@4.
 * @param address  6 bytes; as the handset holds it; written on success only
 * @retval PC_ERR_INVALID_PARAM  `address` is null
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure or sent fewer than 6 bytes; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_LoadAddr(
    MEROVANE_OUT_N(6) uint8_t *address) MEROVANE_WRITES(1);

/** Chooses the channel. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetChannel@4.
 * @param channel  1 to 13; any other value chooses 6
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetChannel(uint32_t channel);

/** Chooses the data rate. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetDateRat@4.
 * @param rate  Mbit/s, rounded down (1, 2, 5, 6, 7, 9, 11, 12, 13, 18, 19, 24, 26, 36, 39, 48, 52,
 *   54, 58 or 65)
 * @retval PC_ERR_INVALID_PARAM  another `rate`
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetDateRat(uint32_t rate);

/** Chooses the modulation mode. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetMode@4.
 * @param mode  as the handset numbers its modes (0 to 6)
 * @retval PC_ERR_INVALID_PARAM  `mode` above 6
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetMode(uint32_t mode);

/** Chooses the power control level. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetPCL@4.
 * @param level  as the handset numbers its levels (1 to 5)
 * @retval PC_ERR_INVALID_PARAM  `level` outside 1 to 5
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetPCL(uint32_t level);

/** Switches the transmitter on or off. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetTxStatus@8.
 * @param enable  0: off
 * @param argument  sent as it is
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetTxStatus(uint32_t enable, uint32_t argument);

/** Switches the receiver on or off, or clears its counts. Waits 1000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetRxStatus@4.
 * @param mode  a QV_WIFI_RX; any other value clears the counts
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetRxStatus(uint32_t mode);

/** Reads the receiver's counts. Waits 1000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_ReadRxValue@8.
 * @param first  the handset's first count; 0 is stored when no answer came
 * @param second  its second, likewise
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged, and nothing is stored
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_ReadRxValue(
    MEROVANE_OUT uint32_t *first,
    MEROVANE_OUT uint32_t *second) MEROVANE_WRITES(1) MEROVANE_WRITES(2);

/** Reads, writes or sets a calibration factor. Waits 1000 ms to read, else 8000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_OperFactor@8.
 * @param action  a QV_WIFI_FACTOR_ACTION
 * @param factor  to read: filled on success; else its index, 1 to 5, and its value are sent
 * @retval PC_ERR_INVALID_PARAM  `factor` is null
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged. Also, with nothing sent,
 *   for another action or index
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_OperFactor(
    uint32_t action, MEROVANE_INOUT QV_WIFI_FACTOR *factor) MEROVANE_UPDATES(2);

/** Stores the crystal's load capacitance. Waits 3000 ms.
 * On Windows, GetProcAddress finds it as _QV_WIFI_SetCrystalCap@4.
 * @param capacitance  sent as it is (2 bytes)
 * @retval PC_ERR_INVALID_PARAM  `capacitance` is null
 * @retval PC_ERR_WIFI_FAILED  the handset reports a failure; not logged
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetCrystalCap(
    MEROVANE_IN_N(2) const uint8_t *capacitance) MEROVANE_READS(1);

/* ---- DSP debugging ------------------------------------------------------------------- */

/** Resets the DSP's RF parameters. Waits 4000 ms. Bytes of a status that did not arrive count as 0,
 * here and in the other DSP functions: an empty answer is a success. The result is reported under
 * the operation id of the command before.
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset reports a failure
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_ResetRFparam(void);

/** Reads the DSP's registers or memory. Waits 4000 ms. The result is reported under the operation
 * id of the command before.
 * @param unused  not looked at
 * @param width  bytes of a unit (1, 2 or 4)
 * @param address  of the first unit
 * @param data  `count * width` bytes; in the handset's byte order; units that did not arrive read
 *   as 0. Written on success only
 * @param count  of units (above 0)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; another `width`; `count` of 0
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset reports a failure
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_RdRegMemo(
    uint32_t unused, uint32_t width, uint32_t address, MEROVANE_OUT_N(count*width) uint8_t *data,
    uint16_t count) MEROVANE_WRITES(4);

/** Writes a unit of the DSP's registers or memory. Waits 4000 ms. The result is reported under the
 * operation id of the command before.
 * @param unused  not looked at
 * @param width  bytes of the unit (1, 2 or 4)
 * @param address  of the unit
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another `width`
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset reports a failure
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_WrRegMemo(
    uint32_t unused, uint32_t width, uint32_t address, uint32_t value);

/** Has the DSP plot a frame. Waits 4000 ms. The result is reported under the operation id of the
 * command before.
 * @param a  sent as it is, as are the others, in the order d, e, a, b, c
 * @param b  sent as it is
 * @param c  sent as it is
 * @param d  sent as it is
 * @param e  sent as it is
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset reports a failure
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_PlotFrame(
    uint32_t a, uint8_t b, uint8_t c, uint16_t d, uint16_t e);

/* ---- Calibration: modes and activation ----------------------------------------------- */

/** Changes the handset's layer-1 software to another calibration mode. Other values of `mode` send
 * nothing and succeed.
 * - QV_CALIBRATION_MODE_GSM waits 3000 ms for the acknowledgement and then, for the setting "Inc
 *   Recv Timeout" alone, for the handset's confirmation: unless that setting is above 0, the result
 *   is PC_ERR_NO_ANSWER although the handset changes its mode.
 * - QV_CALIBRATION_MODE_TD waits 1000 ms and succeeds whatever comes back, even when nothing does.
 * @param mode  a QV_CALIBRATION_MODE
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset confirms with a status other than 0; a confirmation
 *   that ends before its status counts as 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangeGSMTDCalMode(int32_t mode);

/** QV_ChangeGSMTDCalMode for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  a QV_CALIBRATION_MODE */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangeGSMTDCalMode_MT(int32_t port, int32_t mode);

/** Prepares the handset's layer-1 software for calibration. Other values of `mode` send nothing and
 * succeed.
 * - QV_CALIBRATION_MODE_TD waits 1000 ms for the acknowledgement and then for a confirmation, as
 *   QV_CALIBRATION_MODE_GSM does in QV_ChangeGSMTDCalMode.
 * - QV_CALIBRATION_MODE_GSM waits 1000 ms and succeeds whatever comes back, even when nothing does.
 * @param mode  a QV_CALIBRATION_MODE
 * @retval PC_ERR_DSP_DEBUG_FAILED  the handset confirms with a status other than 0; a confirmation
 *   that ends before its status counts as 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_InitGSMTDCalMode(int32_t mode);

/** QV_InitGSMTDCalMode for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  a QV_CALIBRATION_MODE */
MEROVANE_API int32_t MEROVANE_CALL QV_InitGSMTDCalMode_MT(int32_t port, int32_t mode);

/** Activates or deactivates the handset's calibration layer. Waits 1000 ms.
 * @param on  not 0: activate; 0: deactivate
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Active(uint32_t on);

/** QV_Active for the port `port`, with the same results. Activates or deactivates the handset's
 * calibration layer. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  not 0: activate; 0: deactivate */
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MT(int32_t port, uint32_t on);

/** Chooses the band in which the GSM commands that follow work. Waits 1000 ms.
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark(uint32_t band);

/** QV_SetPhoneClassmark for the port `port`, with the same results. Chooses the band in which the
 * GSM commands that follow work. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MT(int32_t port, uint32_t band);

/* ---- Calibration: GSM frequency and receiver ----------------------------------------- */

/** Starts transmitting with a frequency trim, or stops. Waits 1000 ms.
 * @param start  not 0: start; 0: stop
 * @param parameters  the trim, sent in the order 1, 2, 0, 3 (looked at only when `start` is not 0)
 * @retval PC_ERR_INVALID_PARAM  `parameters` is null when `start` is not 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart(
    uint32_t start, MEROVANE_IN_OPT const QV_AFC_PARAMETERS *parameters) MEROVANE_READS(2);

/** QV_AfcStart for the port `port`, with the same results. Starts transmitting with a frequency
 * trim, or stops. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  not 0: start; 0: stop
 * @param parameters  the trim, sent in the order 1, 2, 0, 3 (looked at only when `start` is not 0) */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MT(
    int32_t port, uint32_t start,
    MEROVANE_IN_OPT const QV_AFC_PARAMETERS *parameters) MEROVANE_READS(3);

/** Runs an extended AFC measurement and collects its report, or stops one. For the default phone
 * object only. The report comes in blocks. For each the handset has up to three times 3000 ms (the
 * first block) or 1000 ms (the others), to which "Inc Recv Timeout" is not added; a refusal ends
 * the run at once. Stopping at the end waits another 1000 ms. A block of 500 bytes or less ends the
 * report and is not part of it, so that the report is empty with PC_ERR_SUCCESS when the first
 * block is that short or announces no other block. A run that fails leaves the handset running:
 * call again with `start` 0.
 * @param start  not 0: run; 0: stop
 * @param run  looked at only when `start` is not 0; its values are sent; its report, as 16-bit
 *   words, and the report's length are written on success only
 * @retval PC_ERR_INVALID_PARAM  `run` is null when `start` is not 0; `run->count` above 16
 * @retval PC_ERR_MESSAGE_TOO_LONG  the report would not fit into the record
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStartEx(
    uint32_t start, MEROVANE_INOUT_OPT QV_EXTENDED_AFC *run) MEROVANE_UPDATES(2);

/** Starts a receive measurement and takes its report, or stops measuring. Waits 1000 ms for the
 * acknowledgement; when it measures, it then lets 200 ms pass and waits 1000 ms, to which "Inc Recv
 * Timeout" is not added, for the report.
 * @param start  not 0: measure; 0: stop
 * @param parameters  what to measure, sent as it stands (looked at only when `start` is not 0)
 * @param measured  looked at only when `start` is not 0; what the handset reports. Fields that the
 *   report is too short for read 0; an empty report zeroes it; without a report it stays as it was
 * @retval PC_ERR_INVALID_PARAM  `parameters` or `measured` is null when `start` is not 0
 * @retval PC_ERR_NO_DATA  acknowledged, but no report came
 * @retval PC_ERR_DECODE_FAILED  a report came that does not decode
 * @retval PC_ERR_NO_FRAME  a report began and did not end
 * @retval PC_ERR_PARSE_FAILED  the report is empty
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart(
    uint32_t start, MEROVANE_IN_OPT const QV_AGC_PARAMETERS *parameters,
    MEROVANE_OUT_OPT QV_AGC_RESULT *measured) MEROVANE_READS(2) MEROVANE_WRITES(3);

/** QV_AgcStart for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  not 0: measure; 0: stop
 * @param parameters  what to measure, sent as it stands (looked at only when `start` is not 0)
 * @param measured  looked at only when `start` is not 0; what the handset reports. Fields that the
 *   report is too short for read 0; an empty report zeroes it; without a report it stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MT(
    int32_t port, uint32_t start, MEROVANE_IN_OPT const QV_AGC_PARAMETERS *parameters,
    MEROVANE_OUT_OPT QV_AGC_RESULT *measured) MEROVANE_READS(3) MEROVANE_WRITES(4);

/* ---- Calibration: GSM transmit power ------------------------------------------------- */

/** Sets a power step factor. Waits 1000 ms.
 * @param step  sent as it stands
 * @retval PC_ERR_INVALID_PARAM  `step` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_PwrStepFactorSet for the port `port`, with the same results. Sets a power step factor. Waits
 * 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  sent as it stands */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Sets the power amplifier. Waits 1000 ms.
 * @param setting  sent as it stands, but for the high 16 bits of `fourth`, which travel in this
 *   machine's byte order
 * @retval PC_ERR_INVALID_PARAM  `setting` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PASetting(
    MEROVANE_IN const QV_POWER_STEP *setting) MEROVANE_READS(1);

/** QV_PASetting for the port `port`, with the same results. Sets the power amplifier. Waits 1000
 * ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param setting  sent as it stands, but for the high 16 bits of `fourth`, which travel in this
 *   machine's byte order */
MEROVANE_API int32_t MEROVANE_CALL QV_PASetting_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *setting) MEROVANE_READS(2);

/** Sets the ramps of a band. Waits 1000 ms.
 * @param flag  sent as 1 when it is not 0
 * @param ramp_up  the points of the ramp up (16 values)
 * @param ramp_down  the points of the ramp down (16 values)
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  a null pointer; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting(
    uint32_t flag, MEROVANE_IN_N(16) const uint16_t *ramp_up,
    MEROVANE_IN_N(16) const uint16_t *ramp_down,
    uint32_t band) MEROVANE_READS(2) MEROVANE_READS(3);

/** QV_RampSetting for the port `port`, with the same results. Sets the ramps of a band. Waits 1000
 * ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param flag  sent as 1 when it is not 0
 * @param ramp_up  the points of the ramp up (16 values)
 * @param ramp_down  the points of the ramp down (16 values)
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_MT(
    int32_t port, uint32_t flag, MEROVANE_IN_N(16) const uint16_t *ramp_up,
    MEROVANE_IN_N(16) const uint16_t *ramp_down,
    uint32_t band) MEROVANE_READS(3) MEROVANE_READS(4);

/** Makes the handset transmit at full power. Waits for nothing: success means that the request was
 * written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus(void);

/** QV_EnterMaxTxPowerStatus for the port `port`, with the same results. Makes the handset transmit
 * at full power. Waits for nothing: success means that the request was written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus_MT(int32_t port);

/** Makes the handset leave full transmit power, or full receive power, whichever it is in:
 * QV_LeaveMaxRxPowerStatus sends the same. Waits for nothing: success means that the request was
 * written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus(void);

/** QV_LeaveMaxTxPowerStatus for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus_MT(int32_t port);

/** Makes the handset receive at full power. Waits for nothing: success means that the request was
 * written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus(void);

/** QV_EnterMaxRxPowerStatus for the port `port`, with the same results. Makes the handset receive
 * at full power. Waits for nothing: success means that the request was written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus_MT(int32_t port);

/** Makes the handset leave full receive power, or full transmit power, whichever it is in:
 * QV_LeaveMaxTxPowerStatus sends the same. Waits for nothing: success means that the request was
 * written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus(void);

/** QV_LeaveMaxRxPowerStatus for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus_MT(int32_t port);

/** Would compute a factor of the transmit power control. Not supported: with its port open it sends
 * nothing, changes nothing and fails. Its arguments are not known: it takes none, and its _MT form
 * none beside the port, and a 32-bit Windows program must not pass any, since they would stay on
 * its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_CalcApcFactor(void);

/** QV_CalcApcFactor for the port `port`, with the same results. Would compute a factor of the
 * transmit power control.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_CalcApcFactor_MT(int32_t port);

/* ---- Calibration: IMEI --------------------------------------------------------------- */

/** Reads the IMEI from the handset's NV item 5. Waits 1000 ms.
 * @param imei  8 bytes; two digits in a byte, as the handset keeps them; written on success only
 * @retval PC_ERR_INVALID_PARAM  `imei` is null
 * @retval PC_ERR_PARSE_FAILED  the answer is that of another item or has fewer than 8 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI(MEROVANE_OUT_N(8) uint8_t *imei) MEROVANE_WRITES(1);

/** QV_ReadIMEI for the port `port`, with the same results. Reads the IMEI from the handset's NV
 * item 5. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param imei  8 bytes; two digits in a byte, as the handset keeps them; written on success only */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_MT(
    int32_t port, MEROVANE_OUT_N(8) uint8_t *imei) MEROVANE_WRITES(2);

/** Reads the IMEI from the handset's NV item 5 as text. Waits 1000 ms.
 * @param text  16 bytes; 15 decimal digits and a zero, written on success only. A damaged digit
 *   shows as its value, 10 to 15, and the text is cut to 15 characters, so that an erased IMEI
 *   reads as 151515151515151 with PC_ERR_SUCCESS
 * @retval PC_ERR_INVALID_PARAM  `text` is null
 * @retval PC_ERR_PARSE_FAILED  the answer is that of another item or has fewer than 8 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_ASCII(
    MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(1);

/** QV_ReadIMEI_ASCII for the port `port`, with the same results. Reads the IMEI from the handset's
 * NV item 5 as text. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param text  16 bytes; 15 decimal digits and a zero, written on success only. A damaged digit
 *   shows as its value, 10 to 15, and the text is cut to 15 characters, so that an erased IMEI
 *   reads as 151515151515151 with PC_ERR_SUCCESS */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_ASCII_MT(
    int32_t port, MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(2);

/* ---- Calibration data: ADC ----------------------------------------------------------- */

/** Reads value Adc0 of the ADC calibration from flash (item 1). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc0(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Adc0 for the port `port`, with the same results. Reads value Adc0 of the
 * ADC calibration from flash (item 1). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc0_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Adc0 of the ADC calibration in flash (item 1). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc0(uint32_t value);

/** QV_WriteData_Flash_ADC_Adc0 for the port `port`, with the same results. Writes value Adc0 of the
 * ADC calibration in flash (item 1). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc0_MT(int32_t port, uint32_t value);

/** Reads value Adc1 of the ADC calibration from flash (item 1 at offset 1). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc1(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Adc1 for the port `port`, with the same results. Reads value Adc1 of the
 * ADC calibration from flash (item 1 at offset 1). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc1_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Adc1 of the ADC calibration in flash (item 1 at offset 1). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc1(uint32_t value);

/** QV_WriteData_Flash_ADC_Adc1 for the port `port`, with the same results. Writes value Adc1 of the
 * ADC calibration in flash (item 1 at offset 1). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc1_MT(int32_t port, uint32_t value);

/** Reads value Battery0 of the ADC calibration from RAM (item 1 at offset 2). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery0(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_ADC_Battery0 for the port `port`, with the same results. Reads value Battery0 of
 * the ADC calibration from RAM (item 1 at offset 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery0_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Battery0 of the ADC calibration in RAM (item 1 at offset 2). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery0(uint32_t value);

/** QV_WriteData_Ram_ADC_Battery0 for the port `port`, with the same results. Writes value Battery0
 * of the ADC calibration in RAM (item 1 at offset 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery0_MT(int32_t port, uint32_t value);

/** Reads value Battery0 of the ADC calibration from flash (item 1 at offset 2). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery0(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Battery0 for the port `port`, with the same results. Reads value Battery0
 * of the ADC calibration from flash (item 1 at offset 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery0_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Battery0 of the ADC calibration in flash (item 1 at offset 2). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery0(uint32_t value);

/** QV_WriteData_Flash_ADC_Battery0 for the port `port`, with the same results. Writes value
 * Battery0 of the ADC calibration in flash (item 1 at offset 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery0_MT(int32_t port, uint32_t value);

/** Reads value Battery1 of the ADC calibration from RAM (item 1 at offset 3). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery1(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_ADC_Battery1 for the port `port`, with the same results. Reads value Battery1 of
 * the ADC calibration from RAM (item 1 at offset 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery1_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Battery1 of the ADC calibration in RAM (item 1 at offset 3). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery1(uint32_t value);

/** QV_WriteData_Ram_ADC_Battery1 for the port `port`, with the same results. Writes value Battery1
 * of the ADC calibration in RAM (item 1 at offset 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery1_MT(int32_t port, uint32_t value);

/** Reads value Battery1 of the ADC calibration from flash (item 1 at offset 3). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery1(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Battery1 for the port `port`, with the same results. Reads value Battery1
 * of the ADC calibration from flash (item 1 at offset 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery1_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Battery1 of the ADC calibration in flash (item 1 at offset 3). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery1(uint32_t value);

/** QV_WriteData_Flash_ADC_Battery1 for the port `port`, with the same results. Writes value
 * Battery1 of the ADC calibration in flash (item 1 at offset 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery1_MT(int32_t port, uint32_t value);

/** Reads value Reserved0 of the ADC calibration from flash (item 1 at offset 4). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved0(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Reserved0 for the port `port`, with the same results. Reads value
 * Reserved0 of the ADC calibration from flash (item 1 at offset 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved0_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Reserved0 of the ADC calibration in flash (item 1 at offset 4). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved0(uint32_t value);

/** QV_WriteData_Flash_ADC_Reserved0 for the port `port`, with the same results. Writes value
 * Reserved0 of the ADC calibration in flash (item 1 at offset 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved0_MT(
    int32_t port, uint32_t value);

/** Reads value Reserved1 of the ADC calibration from flash (item 1 at offset 5). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved1(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Reserved1 for the port `port`, with the same results. Reads value
 * Reserved1 of the ADC calibration from flash (item 1 at offset 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved1_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Reserved1 of the ADC calibration in flash (item 1 at offset 5). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved1(uint32_t value);

/** QV_WriteData_Flash_ADC_Reserved1 for the port `port`, with the same results. Writes value
 * Reserved1 of the ADC calibration in flash (item 1 at offset 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved1_MT(
    int32_t port, uint32_t value);

/** Reads value Reserved7 of the ADC calibration from flash (item 1 at offset 11). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved7(
    MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_ADC_Reserved7 for the port `port`, with the same results. Reads value
 * Reserved7 of the ADC calibration from flash (item 1 at offset 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved7_MT(
    int32_t port, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** Writes value Reserved7 of the ADC calibration in flash (item 1 at offset 11). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved7(uint32_t value);

/** QV_WriteData_Flash_ADC_Reserved7 for the port `port`, with the same results. Writes value
 * Reserved7 of the ADC calibration in flash (item 1 at offset 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved7_MT(
    int32_t port, uint32_t value);

/** Reads any value of the ADC calibration from flash (item 1 at offset `offset`). Waits 1000 ms.
 * The result is reported under the operation id of the command before.
 * @param offset  of the value, in elements
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC(
    uint8_t offset, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(2);

/** QV_ReadData_Flash_ADC for the port `port`, with the same results. Reads any value of the ADC
 * calibration from flash (item 1 at offset `offset`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param offset  of the value, in elements
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_MT(
    int32_t port, uint8_t offset, MEROVANE_OUT uint32_t *value) MEROVANE_WRITES(3);

/** Writes any value of the ADC calibration in flash (item 1 at offset `offset`). Waits 1000 ms. The
 * result is reported under the operation id of the command before.
 * @param offset  of the value, in elements
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC(uint8_t offset, uint32_t value);

/** QV_WriteData_Flash_ADC for the port `port`, with the same results. Writes any value of the ADC
 * calibration in flash (item 1 at offset `offset`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param offset  of the value, in elements
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_MT(
    int32_t port, uint8_t offset, uint32_t value);

/* ---- Calibration data: AFC ----------------------------------------------------------- */

/** Reads the AFC centre from RAM (item 2). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_center(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_afc_center for the port `port`, with the same results. Reads the AFC centre
 * from RAM (item 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_center_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the AFC centre in RAM (item 2). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_center(uint16_t value);

/** QV_WriteData_Ram_AFC_afc_center for the port `port`, with the same results. Writes the AFC
 * centre in RAM (item 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_center_MT(int32_t port, uint16_t value);

/** Reads the AFC centre from flash (item 2). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_center(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_afc_center for the port `port`, with the same results. Reads the AFC
 * centre from flash (item 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_center_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the AFC centre in flash (item 2). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_center(uint16_t value);

/** QV_WriteData_Flash_AFC_afc_center for the port `port`, with the same results. Writes the AFC
 * centre in flash (item 2). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_center_MT(
    int32_t port, uint16_t value);

/** Reads the AFC slope in Hz per 6 bits from RAM (item 3). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits for the port `port`, with the same results. Reads the
 * AFC slope in Hz per 6 bits from RAM (item 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the AFC slope in Hz per 6 bits in RAM (item 3). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits(uint16_t value);

/** QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits for the port `port`, with the same results. Writes
 * the AFC slope in Hz per 6 bits in RAM (item 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t value);

/** Reads the AFC slope in Hz per 6 bits from flash (item 3). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits for the port `port`, with the same results. Reads
 * the AFC slope in Hz per 6 bits from flash (item 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the AFC slope in Hz per 6 bits in flash (item 3). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits(uint16_t value);

/** QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits for the port `port`, with the same results. Writes
 * the AFC slope in Hz per 6 bits in flash (item 3). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t value);

/** Reads the length of the AFC slope from RAM (item 5). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_length(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_slope_length for the port `port`, with the same results. Reads the length of
 * the AFC slope from RAM (item 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_length_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the length of the AFC slope in RAM (item 5). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_length(uint16_t value);

/** QV_WriteData_Ram_AFC_slope_length for the port `port`, with the same results. Writes the length
 * of the AFC slope in RAM (item 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_length_MT(
    int32_t port, uint16_t value);

/** Reads the length of the AFC slope from flash (item 5). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_length(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_slope_length for the port `port`, with the same results. Reads the length
 * of the AFC slope from flash (item 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_length_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the length of the AFC slope in flash (item 5). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_length(uint16_t value);

/** QV_WriteData_Flash_AFC_slope_length for the port `port`, with the same results. Writes the
 * length of the AFC slope in flash (item 5). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_length_MT(
    int32_t port, uint16_t value);

/** Reads the coarse trim CDAC from RAM (item 6). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CDAC(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_CDAC for the port `port`, with the same results. Reads the coarse trim CDAC
 * from RAM (item 6). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CDAC_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the coarse trim CDAC in RAM (item 6). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CDAC(uint16_t value);

/** QV_WriteData_Ram_AFC_CDAC for the port `port`, with the same results. Writes the coarse trim
 * CDAC in RAM (item 6). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CDAC_MT(int32_t port, uint16_t value);

/** Reads the coarse trim CDAC from flash (item 6). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CDAC(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_CDAC for the port `port`, with the same results. Reads the coarse trim
 * CDAC from flash (item 6). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CDAC_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the coarse trim CDAC in flash (item 6). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CDAC(uint16_t value);

/** QV_WriteData_Flash_AFC_CDAC for the port `port`, with the same results. Writes the coarse trim
 * CDAC in flash (item 6). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CDAC_MT(int32_t port, uint16_t value);

/** Reads the fine trim CAFC from RAM (item 7). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CAFC(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_CAFC for the port `port`, with the same results. Reads the fine trim CAFC
 * from RAM (item 7). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CAFC_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the fine trim CAFC in RAM (item 7). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CAFC(uint16_t value);

/** QV_WriteData_Ram_AFC_CAFC for the port `port`, with the same results. Writes the fine trim CAFC
 * in RAM (item 7). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CAFC_MT(int32_t port, uint16_t value);

/** Reads the fine trim CAFC from flash (item 7). Waits 1000 ms.
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CAFC(
    MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_CAFC for the port `port`, with the same results. Reads the fine trim CAFC
 * from flash (item 7). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CAFC_MT(
    int32_t port, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** Writes the fine trim CAFC in flash (item 7). Waits 1000 ms.
 * @param value  what is written
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CAFC(uint16_t value);

/** QV_WriteData_Flash_AFC_CAFC for the port `port`, with the same results. Writes the fine trim
 * CAFC in flash (item 7). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CAFC_MT(int32_t port, uint16_t value);

/** Reads the AFC values from RAM: 17 values (item 14). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_value_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_afc_value_arr for the port `port`, with the same results. Reads the AFC
 * values from RAM: 17 values (item 14). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_value_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the AFC values in RAM: 17 values (item 14). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_value_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Ram_AFC_afc_value_arr for the port `port`, with the same results. Writes the AFC
 * values in RAM: 17 values (item 14). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_value_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/** Reads the AFC values from flash: 17 values (item 14). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_value_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_afc_value_arr for the port `port`, with the same results. Reads the AFC
 * values from flash: 17 values (item 14). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_value_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the AFC values in flash: 17 values (item 14). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_value_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Flash_AFC_afc_value_arr for the port `port`, with the same results. Writes the AFC
 * values in flash: 17 values (item 14). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_value_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/** Reads the AFC slopes from RAM: 17 values (item 4). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_slope_value_arr for the port `port`, with the same results. Reads the AFC
 * slopes from RAM: 17 values (item 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the AFC slopes in RAM: 17 values (item 4). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Ram_AFC_slope_value_arr for the port `port`, with the same results. Writes the AFC
 * slopes in RAM: 17 values (item 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/** Reads the AFC slopes from flash: 17 values (item 4). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_slope_value_arr for the port `port`, with the same results. Reads the AFC
 * slopes from flash: 17 values (item 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the AFC slopes in flash: 17 values (item 4). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Flash_AFC_slope_value_arr for the port `port`, with the same results. Writes the
 * AFC slopes in flash: 17 values (item 4). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/** Reads the reciprocals of the AFC slopes from RAM: 17 values (item 15). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_reciprocal_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Ram_AFC_slope_value_reciprocal_arr for the port `port`, with the same results. Reads
 * the reciprocals of the AFC slopes from RAM: 17 values (item 15). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the reciprocals of the AFC slopes in RAM: 17 values (item 15). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_reciprocal_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Ram_AFC_slope_value_reciprocal_arr for the port `port`, with the same results.
 * Writes the reciprocals of the AFC slopes in RAM: 17 values (item 15). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/** Reads the reciprocals of the AFC slopes from flash: 17 values (item 15). Waits 1000 ms.
 * @param values  17 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_reciprocal_arr(
    MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_AFC_slope_value_reciprocal_arr for the port `port`, with the same results.
 * Reads the reciprocals of the AFC slopes from flash: 17 values (item 15). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  17 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, MEROVANE_OUT_N(17) uint16_t *values) MEROVANE_WRITES(2);

/** Writes the reciprocals of the AFC slopes in flash: 17 values (item 15). Waits 1000 ms.
 * @param values  what is written (17 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_reciprocal_arr(
    MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(1);

/** QV_WriteData_Flash_AFC_slope_value_reciprocal_arr for the port `port`, with the same results.
 * Writes the reciprocals of the AFC slopes in flash: 17 values (item 15). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  what is written (17 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, MEROVANE_IN_N(17) const uint16_t *values) MEROVANE_READS(2);

/* ---- Calibration data: APC ----------------------------------------------------------- */

/** Reads the power step factors of a band from RAM: 80 values (item 21). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  80 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor(
    uint32_t band, MEROVANE_OUT_N(80) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadData_Ram_APC_RF_ramppwr_step_factor for the port `port`, with the same results. Reads the
 * power step factors of a band from RAM: 80 values (item 21). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  80 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(80) uint16_t *values) MEROVANE_WRITES(3);

/** Writes the power step factors of a band in RAM: 80 values (item 21). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (80 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor(
    uint32_t band, MEROVANE_IN_N(80) const uint16_t *values) MEROVANE_READS(2);

/** QV_WriteData_Ram_APC_RF_ramppwr_step_factor for the port `port`, with the same results. Writes
 * the power step factors of a band in RAM: 80 values (item 21). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (80 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(80) const uint16_t *values) MEROVANE_READS(3);

/** Reads the power step factors of a band from flash: 80 values (item 21). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  80 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor(
    uint32_t band, MEROVANE_OUT_N(80) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadData_Flash_APC_RF_ramppwr_step_factor for the port `port`, with the same results. Reads
 * the power step factors of a band from flash: 80 values (item 21). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  80 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(80) uint16_t *values) MEROVANE_WRITES(3);

/** Writes the power step factors of a band in flash: 80 values (item 21). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (80 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor(
    uint32_t band, MEROVANE_IN_N(80) const uint16_t *values) MEROVANE_READS(2);

/** QV_WriteData_Flash_APC_RF_ramppwr_step_factor for the port `port`, with the same results. Writes
 * the power step factors of a band in flash: 80 values (item 21). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (80 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(80) const uint16_t *values) MEROVANE_READS(3);

/** Reads the power step factor for 8PSK of a band from RAM (item 36). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadData_Ram_APC_RF_ramppwr_step_factor_8Psk for the port `port`, with the same results.
 * Reads the power step factor for 8PSK of a band from RAM (item 36). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the power step factor for 8PSK of a band in RAM (item 36). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t value);

/** QV_WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk for the port `port`, with the same results.
 * Writes the power step factor for 8PSK of a band in RAM (item 36). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads the power step factor for 8PSK of a band from flash (item 36). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadData_Flash_APC_RF_ramppwr_step_factor_8Psk for the port `port`, with the same results.
 * Reads the power step factor for 8PSK of a band from flash (item 36). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the power step factor for 8PSK of a band in flash (item 36). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t value);

/** QV_WriteData_Flash_APC_RF_ramppwr_step_factor_8Psk for the port `port`, with the same results.
 * Writes the power step factor for 8PSK of a band in flash (item 36). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t value);

/* ---- Calibration data: AGC ----------------------------------------------------------- */

/** Reads the highest RF gain index of a band from RAM (item 24). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_max_rf_gain_index(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadData_Ram_AGC_max_rf_gain_index for the port `port`, with the same results. Reads the
 * highest RF gain index of a band from RAM (item 24). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the highest RF gain index of a band in RAM (item 24). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_max_rf_gain_index(
    uint32_t band, uint16_t value);

/** QV_WriteData_Ram_AGC_max_rf_gain_index for the port `port`, with the same results. Writes the
 * highest RF gain index of a band in RAM (item 24). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads the highest RF gain index of a band from flash (item 24). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_max_rf_gain_index(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadData_Flash_AGC_max_rf_gain_index for the port `port`, with the same results. Reads the
 * highest RF gain index of a band from flash (item 24). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the highest RF gain index of a band in flash (item 24). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_max_rf_gain_index(
    uint32_t band, uint16_t value);

/** QV_WriteData_Flash_AGC_max_rf_gain_index for the port `port`, with the same results. Writes the
 * highest RF gain index of a band in flash (item 24). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads the receive compensations of a band from RAM: `count` values (item 18). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  `count` values; what was read; what the answer lacks stays as it was
 * @param count  of values (1 to 32758)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `count` outside 1 to 32758
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_RX_compensate_value(
    uint32_t band, MEROVANE_OUT_N(count) uint16_t *values, uint32_t count) MEROVANE_WRITES_N(2, 3);

/** QV_ReadData_Ram_AGC_RX_compensate_value for the port `port`, with the same results. Reads the
 * receive compensations of a band from RAM: `count` values (item 18). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  `count` values; what was read; what the answer lacks stays as it was
 * @param count  of values (1 to 32758) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(count) uint16_t *values,
    uint32_t count) MEROVANE_WRITES_N(3, 4);

/** Writes the receive compensations of a band in RAM: `count` values (item 18). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (`count` values)
 * @param count  of values (1 to 32758)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `count` outside 1 to 32758
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_RX_compensate_value(
    uint32_t band, MEROVANE_IN_N(count) const uint16_t *values,
    uint32_t count) MEROVANE_READS_N(2, 3);

/** QV_WriteData_Ram_AGC_RX_compensate_value for the port `port`, with the same results. Writes the
 * receive compensations of a band in RAM: `count` values (item 18). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (`count` values)
 * @param count  of values (1 to 32758) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(count) const uint16_t *values,
    uint32_t count) MEROVANE_READS_N(3, 4);

/** Reads the receive compensations of a band from flash: `count` values (item 18). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  `count` values; what was read; what the answer lacks stays as it was
 * @param count  of values (1 to 32758)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `count` outside 1 to 32758
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_RX_compensate_value(
    uint32_t band, MEROVANE_OUT_N(count) uint16_t *values, uint32_t count) MEROVANE_WRITES_N(2, 3);

/** QV_ReadData_Flash_AGC_RX_compensate_value for the port `port`, with the same results. Reads the
 * receive compensations of a band from flash: `count` values (item 18). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  `count` values; what was read; what the answer lacks stays as it was
 * @param count  of values (1 to 32758) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(count) uint16_t *values,
    uint32_t count) MEROVANE_WRITES_N(3, 4);

/** Writes the receive compensations of a band in flash: `count` values (item 18). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (`count` values)
 * @param count  of values (1 to 32758)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `count` outside 1 to 32758
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_RX_compensate_value(
    uint32_t band, MEROVANE_IN_N(count) const uint16_t *values,
    uint32_t count) MEROVANE_READS_N(2, 3);

/** QV_WriteData_Flash_AGC_RX_compensate_value for the port `port`, with the same results. Writes
 * the receive compensations of a band in flash: `count` values (item 18). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (`count` values)
 * @param count  of values (1 to 32758) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(count) const uint16_t *values,
    uint32_t count) MEROVANE_READS_N(3, 4);

/** Reads the AGC control words of a band from RAM: 91 values (item 23). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  91 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_agc_ctrl_word(
    uint32_t band, MEROVANE_OUT_N(91) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadData_Ram_AGC_agc_ctrl_word for the port `port`, with the same results. Reads the AGC
 * control words of a band from RAM: 91 values (item 23). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  91 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(91) uint16_t *values) MEROVANE_WRITES(3);

/** Writes the AGC control words of a band in RAM: 91 values (item 23). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (91 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_agc_ctrl_word(
    uint32_t band, MEROVANE_IN_N(91) const uint16_t *values) MEROVANE_READS(2);

/** QV_WriteData_Ram_AGC_agc_ctrl_word for the port `port`, with the same results. Writes the AGC
 * control words of a band in RAM: 91 values (item 23). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (91 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(91) const uint16_t *values) MEROVANE_READS(3);

/** Reads the AGC control words of a band from flash: 91 values (item 23). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  91 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_agc_ctrl_word(
    uint32_t band, MEROVANE_OUT_N(91) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadData_Flash_AGC_agc_ctrl_word for the port `port`, with the same results. Reads the AGC
 * control words of a band from flash: 91 values (item 23). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  91 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(91) uint16_t *values) MEROVANE_WRITES(3);

/** Writes the AGC control words of a band in flash: 91 values (item 23). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (91 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_agc_ctrl_word(
    uint32_t band, MEROVANE_IN_N(91) const uint16_t *values) MEROVANE_READS(2);

/** QV_WriteData_Flash_AGC_agc_ctrl_word for the port `port`, with the same results. Writes the AGC
 * control words of a band in flash: 91 values (item 23). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (91 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(91) const uint16_t *values) MEROVANE_READS(3);

/* ---- Calibration data: ramp tables --------------------------------------------------- */

/** Reads a ramp table of a band from RAM: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  20 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `index` above 3276
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Ram(
    uint32_t band, uint16_t index, MEROVANE_OUT_N(20) uint16_t *values) MEROVANE_WRITES(3);

/** QV_ReadRampTable_Ram for the port `port`, with the same results. Reads a ramp table of a band
 * from RAM: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  20 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Ram_MT(
    int32_t port, uint32_t band, uint16_t index,
    MEROVANE_OUT_N(20) uint16_t *values) MEROVANE_WRITES(4);

/** Writes a ramp table of a band in RAM: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  what is written (20 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `index` above 3276
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Ram(
    uint32_t band, uint16_t index, MEROVANE_IN_N(20) const uint16_t *values) MEROVANE_READS(3);

/** QV_SetRampTable_Ram for the port `port`, with the same results. Writes a ramp table of a band in
 * RAM: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  what is written (20 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Ram_MT(
    int32_t port, uint32_t band, uint16_t index,
    MEROVANE_IN_N(20) const uint16_t *values) MEROVANE_READS(4);

/** Reads a ramp table of a band from flash: 20 values (item 8 at offset 20 x `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  20 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `index` above 3276
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Flash(
    uint32_t band, uint16_t index, MEROVANE_OUT_N(20) uint16_t *values) MEROVANE_WRITES(3);

/** QV_ReadRampTable_Flash for the port `port`, with the same results. Reads a ramp table of a band
 * from flash: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  20 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Flash_MT(
    int32_t port, uint32_t band, uint16_t index,
    MEROVANE_OUT_N(20) uint16_t *values) MEROVANE_WRITES(4);

/** Writes a ramp table of a band in flash: 20 values (item 8 at offset 20 x `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  what is written (20 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band; `index` above 3276
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Flash(
    uint32_t band, uint16_t index, MEROVANE_IN_N(20) const uint16_t *values) MEROVANE_READS(3);

/** QV_SetRampTable_Flash for the port `port`, with the same results. Writes a ramp table of a band
 * in flash: 20 values (item 8 at offset 20 x `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the table (0 to 3276)
 * @param values  what is written (20 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Flash_MT(
    int32_t port, uint32_t band, uint16_t index,
    MEROVANE_IN_N(20) const uint16_t *values) MEROVANE_READS(4);

/** Reads a constant of the ramps up of a band from RAM (item 9 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Ram(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadRampTableConstUp_Ram for the port `port`, with the same results. Reads a constant of the
 * ramps up of a band from RAM (item 9 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a constant of the ramps up of a band in RAM (item 9 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Ram(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_SetRampTableConstUp_Ram for the port `port`, with the same results. Writes a constant of the
 * ramps up of a band in RAM (item 9 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a constant of the ramps up of a band from flash (item 9 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Flash(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadRampTableConstUp_Flash for the port `port`, with the same results. Reads a constant of
 * the ramps up of a band from flash (item 9 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a constant of the ramps up of a band in flash (item 9 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Flash(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_SetRampTableConstUp_Flash for the port `port`, with the same results. Writes a constant of
 * the ramps up of a band in flash (item 9 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a constant of the ramps down of a band from RAM (item 10 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Ram(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadRampTableConstDown_Ram for the port `port`, with the same results. Reads a constant of
 * the ramps down of a band from RAM (item 10 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a constant of the ramps down of a band in RAM (item 10 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Ram(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_SetRampTableConstDown_Ram for the port `port`, with the same results. Writes a constant of
 * the ramps down of a band in RAM (item 10 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a constant of the ramps down of a band from flash (item 10 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Flash(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadRampTableConstDown_Flash for the port `port`, with the same results. Reads a constant of
 * the ramps down of a band from flash (item 10 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a constant of the ramps down of a band in flash (item 10 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Flash(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_SetRampTableConstDown_Flash for the port `port`, with the same results. Writes a constant of
 * the ramps down of a band in flash (item 10 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads the number of ramp-up parameters of a band from RAM (item 11). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Ram(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadRampUpParamNum_Ram for the port `port`, with the same results. Reads the number of
 * ramp-up parameters of a band from RAM (item 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Ram_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the number of ramp-up parameters of a band in RAM (item 11). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Ram(uint32_t band, uint16_t value);

/** QV_SetRampUpParamNum_Ram for the port `port`, with the same results. Writes the number of
 * ramp-up parameters of a band in RAM (item 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Ram_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads the number of ramp-up parameters of a band from flash (item 11). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Flash(
    uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(2);

/** QV_ReadRampUpParamNum_Flash for the port `port`, with the same results. Reads the number of
 * ramp-up parameters of a band from flash (item 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Flash_MT(
    int32_t port, uint32_t band, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** Writes the number of ramp-up parameters of a band in flash (item 11). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Flash(uint32_t band, uint16_t value);

/** QV_SetRampUpParamNum_Flash for the port `port`, with the same results. Writes the number of
 * ramp-up parameters of a band in flash (item 11). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Flash_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads all constants of the ramps up of a band from flash: 16 values (item 9). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  16 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstUp_Flash(
    uint32_t band, MEROVANE_OUT_N(16) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadRampTableAllConstUp_Flash for the port `port`, with the same results. Reads all constants
 * of the ramps up of a band from flash: 16 values (item 9). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  16 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstUp_Flash_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(16) uint16_t *values) MEROVANE_WRITES(3);

/** Writes all constants of the ramps up of a band in flash: 16 values (item 9). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (16 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstUp_Flash(
    uint32_t band, MEROVANE_IN_N(16) const uint16_t *values) MEROVANE_READS(2);

/** QV_SetRampTableAllConstUp_Flash for the port `port`, with the same results. Writes all constants
 * of the ramps up of a band in flash: 16 values (item 9). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstUp_Flash_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(16) const uint16_t *values) MEROVANE_READS(3);

/** Reads all constants of the ramps down of a band from flash: 16 values (item 10). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  16 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstDown_Flash(
    uint32_t band, MEROVANE_OUT_N(16) uint16_t *values) MEROVANE_WRITES(2);

/** QV_ReadRampTableAllConstDown_Flash for the port `port`, with the same results. Reads all
 * constants of the ramps down of a band from flash: 16 values (item 10). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  16 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstDown_Flash_MT(
    int32_t port, uint32_t band, MEROVANE_OUT_N(16) uint16_t *values) MEROVANE_WRITES(3);

/** Writes all constants of the ramps down of a band in flash: 16 values (item 10). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param values  what is written (16 values)
 * @retval PC_ERR_INVALID_PARAM  `values` is null; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstDown_Flash(
    uint32_t band, MEROVANE_IN_N(16) const uint16_t *values) MEROVANE_READS(2);

/** QV_SetRampTableAllConstDown_Flash for the port `port`, with the same results. Writes all
 * constants of the ramps down of a band in flash: 16 values (item 10). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param values  what is written (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstDown_Flash_MT(
    int32_t port, uint32_t band, MEROVANE_IN_N(16) const uint16_t *values) MEROVANE_READS(3);

/* ---- Calibration data: transmit timing and gain -------------------------------------- */

/** Reads a timing difference of transmission of a band from RAM (item 12 at offset `index`). Waits
 * 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Ram_Delta_Timing for the port `port`, with the same results. Reads a timing
 * difference of transmission of a band from RAM (item 12 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a timing difference of transmission of a band in RAM (item 12 at offset `index`). Waits
 * 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Ram_Delta_Timing for the port `port`, with the same results. Writes a timing
 * difference of transmission of a band in RAM (item 12 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a timing difference of transmission of a band from flash (item 12 at offset `index`).
 * Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Flash_Delta_Timing for the port `port`, with the same results. Reads a timing
 * difference of transmission of a band from flash (item 12 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a timing difference of transmission of a band in flash (item 12 at offset `index`). Waits
 * 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Flash_Delta_Timing for the port `port`, with the same results. Writes a timing
 * difference of transmission of a band in flash (item 12 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a duration of transmission of a band from RAM (item 13 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Ram_Duration for the port `port`, with the same results. Reads a duration of
 * transmission of a band from RAM (item 13 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a duration of transmission of a band in RAM (item 13 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Ram_Duration for the port `port`, with the same results. Writes a duration of
 * transmission of a band in RAM (item 13 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a duration of transmission of a band from flash (item 13 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Flash_Duration for the port `port`, with the same results. Reads a duration of
 * transmission of a band from flash (item 13 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a duration of transmission of a band in flash (item 13 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Flash_Duration for the port `port`, with the same results. Writes a duration of
 * transmission of a band in flash (item 13 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a timing difference of 8PSK transmission of a band from RAM (item 38 at offset `index`).
 * Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Ram_Delta_Timing_8PSK for the port `port`, with the same results. Reads a timing
 * difference of 8PSK transmission of a band from RAM (item 38 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a timing difference of 8PSK transmission of a band in RAM (item 38 at offset `index`).
 * Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Ram_Delta_Timing_8PSK for the port `port`, with the same results. Writes a timing
 * difference of 8PSK transmission of a band in RAM (item 38 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a timing difference of 8PSK transmission of a band from flash (item 38 at offset `index`).
 * Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Flash_Delta_Timing_8PSK for the port `port`, with the same results. Reads a timing
 * difference of 8PSK transmission of a band from flash (item 38 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a timing difference of 8PSK transmission of a band in flash (item 38 at offset `index`).
 * Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Flash_Delta_Timing_8PSK for the port `port`, with the same results. Writes a timing
 * difference of 8PSK transmission of a band in flash (item 38 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a duration of 8PSK transmission of a band from RAM (item 39 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Ram_Duration_8PSK for the port `port`, with the same results. Reads a duration of
 * 8PSK transmission of a band from RAM (item 39 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a duration of 8PSK transmission of a band in RAM (item 39 at offset `index`). Waits 1000
 * ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Ram_Duration_8PSK for the port `port`, with the same results. Writes a duration of
 * 8PSK transmission of a band in RAM (item 39 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a duration of 8PSK transmission of a band from flash (item 39 at offset `index`). Waits
 * 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Flash_Duration_8PSK for the port `port`, with the same results. Reads a duration of
 * 8PSK transmission of a band from flash (item 39 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Writes a duration of 8PSK transmission of a band in flash (item 39 at offset `index`). Waits
 * 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written
 * @retval PC_ERR_INVALID_PARAM  another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t value);

/** QV_WriteData_Flash_Duration_8PSK for the port `port`, with the same results. Writes a duration
 * of 8PSK transmission of a band in flash (item 39 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what is written */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads a transmit gain for 8PSK of a band from RAM (item 37 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_TxGain_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Ram_TxGain_8PSK for the port `port`, with the same results. Reads a transmit gain
 * for 8PSK of a band from RAM (item 37 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_TxGain_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/** Reads a transmit gain for 8PSK of a band from flash (item 37 at offset `index`). Waits 1000 ms.
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `value` is null; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_TxGain_8PSK(
    uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(3);

/** QV_ReadData_Flash_TxGain_8PSK for the port `port`, with the same results. Reads a transmit gain
 * for 8PSK of a band from flash (item 37 at offset `index`). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND
 * @param index  of the element
 * @param value  what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_TxGain_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, MEROVANE_OUT uint16_t *value) MEROVANE_WRITES(4);

/* ---- Calibration data: IMEIs in flash ------------------------------------------------ */

/** Reads the first IMEI from flash (item 30). Waits 1000 ms.
 * @param text  16 bytes; 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters, so that an erased IMEI reads as 151515151515151 with
 *   PC_ERR_SUCCESS; a digit that the answer lacks shows as 0
 * @retval PC_ERR_INVALID_PARAM  `text` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_IMEI(
    MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_IMEI for the port `port`, with the same results. Reads the first IMEI from
 * flash (item 30). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param text  16 bytes; 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters, so that an erased IMEI reads as 151515151515151 with
 *   PC_ERR_SUCCESS; a digit that the answer lacks shows as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_IMEI_MT(
    int32_t port, MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(2);

/** Writes the first IMEI in flash (item 30). Waits 3000 ms.
 * @param text  begins with 15 decimal digits; what follows does not matter
 * @retval PC_ERR_INVALID_PARAM  `text` is null; a text that does not begin with 15 decimal digits
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_IMEI(MEROVANE_IN_TEXT const char *text);

/** QV_WriteData_Flash_IMEI for the port `port`, with the same results. Writes the first IMEI in
 * flash (item 30). Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param text  begins with 15 decimal digits; what follows does not matter */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_IMEI_MT(
    int32_t port, MEROVANE_IN_TEXT const char *text);

/** Reads the second IMEI from flash (item 35). Waits 1000 ms.
 * @param text  16 bytes; 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters, so that an erased IMEI reads as 151515151515151 with
 *   PC_ERR_SUCCESS; a digit that the answer lacks shows as 0
 * @retval PC_ERR_INVALID_PARAM  `text` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_SecIMEI(
    MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(1);

/** QV_ReadData_Flash_SecIMEI for the port `port`, with the same results. Reads the second IMEI from
 * flash (item 35). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param text  16 bytes; 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters, so that an erased IMEI reads as 151515151515151 with
 *   PC_ERR_SUCCESS; a digit that the answer lacks shows as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_SecIMEI_MT(
    int32_t port, MEROVANE_OUT_N(16) char *text) MEROVANE_WRITES(2);

/** Writes the second IMEI in flash (item 35). Waits 3000 ms.
 * @param text  begins with 15 decimal digits; what follows does not matter
 * @retval PC_ERR_INVALID_PARAM  `text` is null; a text that does not begin with 15 decimal digits
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_SecIMEI(MEROVANE_IN_TEXT const char *text);

/** QV_WriteData_Flash_SecIMEI for the port `port`, with the same results. Writes the second IMEI in
 * flash (item 35). Waits 3000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param text  begins with 15 decimal digits; what follows does not matter */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_SecIMEI_MT(
    int32_t port, MEROVANE_IN_TEXT const char *text);

/* ---- Calibration data: saving, RF scheme --------------------------------------------- */

/** Saves all items in RAM to flash (item 32).
 * @param timeout_ms  milliseconds; of the acknowledgement; saving can take many seconds
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToFlash(uint32_t timeout_ms);

/** QV_SaveToFlash for the port `port`, with the same results. Saves all items in RAM to flash (item
 * 32).
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param timeout_ms  milliseconds; of the acknowledgement; saving can take many seconds */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToFlash_MT(int32_t port, uint32_t timeout_ms);

/** Reads the RF scheme from RAM: 6 values (item 33). Waits 1000 ms.
 * @param values  6 values; what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_GetRfScheme(
    MEROVANE_OUT_N(6) uint16_t *values) MEROVANE_WRITES(1);

/** QV_GetRfScheme for the port `port`, with the same results. Reads the RF scheme from RAM: 6
 * values (item 33). Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param values  6 values; what was read; what the answer lacks stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_GetRfScheme_MT(
    int32_t port, MEROVANE_OUT_N(6) uint16_t *values) MEROVANE_WRITES(2);

/* ---- Calibration data: temperature and EDGE compensation ----------------------------- */

/** Reads or writes the oscillator's temperature compensation as DAC values: 5 values (item 48).
 * Waits 1000 ms. For the default phone object only. The result is reported under the operation id
 * of the command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  5 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_OSCI_TEMP_COM_IN_DAC(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(5) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the temperature compensation of GSM transmission: 9 values (item 49). Waits 1000
 * ms. For the default phone object only. The result is reported under the operation id of the
 * command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  9 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_GSM_TX_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(9) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the temperature compensation of EDGE transmission: 9 values (item 50). Waits
 * 1000 ms. For the default phone object only. The result is reported under the operation id of the
 * command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  9 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_EDGE_TX_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(9) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the temperature compensation of GSM transmit power: 6 values (item 51). Waits
 * 1000 ms. For the default phone object only. The result is reported under the operation id of the
 * command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  6 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_GSM_TXPOWER_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(6) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the temperature compensation of EDGE transmit power: 6 values (item 52). Waits
 * 1000 ms. For the default phone object only. The result is reported under the operation id of the
 * command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  6 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_EDGE_TXPOWER_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(6) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the ARFCN indices that bound the transmit compensation: 4 values (item 53).
 * Waits 1000 ms. For the default phone object only. The result is reported under the operation id
 * of the command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  4 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TX_COMPENSATE_BOUNDARY_ARFCN_INDEX(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(4) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the ADC values of the receiver's temperature compensation: 4 values (item 54).
 * Waits 1000 ms. For the default phone object only. The result is reported under the operation id
 * of the command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  4 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_RX_COMPENSATE_ADC(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(4) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the temperature compensation of receive levels: 5 values (item 55). Waits 1000
 * ms. For the default phone object only. The result is reported under the operation id of the
 * command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  5 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_RX_LEVEL_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(5) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the ADC values of the transmitter's temperature compensation: 4 values (item
 * 56). Waits 1000 ms. For the default phone object only. The result is reported under the operation
 * id of the command before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  4 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_TX_COMPENSATE_ADC(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(4) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the power step factors by temperature: 5 values (item 57). Waits 1000 ms. For
 * the default phone object only. The result is reported under the operation id of the command
 * before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  5 values; what is written, or what was read; what the answer lacks stays as it was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(5) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the timing difference of EDGE transmission: one value (item 58). Waits 1000 ms.
 * For the default phone object only. The result is reported under the operation id of the command
 * before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  one value; what is written, or what was read; what the answer lacks stays as it
 *   was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_RF_EDGE_DELTA_TIMING(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(1) uint16_t *values) MEROVANE_UPDATES(4);

/** Reads or writes the power-on duration of EDGE transmission: one value (item 59). Waits 1000 ms.
 * For the default phone object only. The result is reported under the operation id of the command
 * before.
 * @param read  not 0: read; 0: write
 * @param flash  not 0: in flash; 0: in RAM
 * @param band  the band word, unchecked
 * @param values  one value; what is written, or what was read; what the answer lacks stays as it
 *   was
 * @retval PC_ERR_INVALID_PARAM  `values` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_RF_EDGE_POWER_ON_DURATION(
    uint32_t read, uint32_t flash, uint16_t band,
    MEROVANE_INOUT_N(1) uint16_t *values) MEROVANE_UPDATES(4);

/* ---- Calibration: multi-chip handsets ------------------------------------------------ */

/** Chooses the band of the commands for multi-chip handsets whose description names it. Nothing is
 * sent. A new phone object begins with QV_BAND_GSM, which QV_CalDirectCurr sets again.
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  another band; the band that was chosen stays
 * @return 0 (PC_ERR_SUCCESS), one of the above or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MChip(uint32_t band);

/** QV_SetPhoneClassmark_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MChip_MT(int32_t port, uint32_t band);

/** Chooses how QV_AfcStart_MChip trims the handset's frequency. Nothing is sent. A new phone object
 * begins with 0. The result is reported under the operation id of the command before.
 * @param mode  not 0: with CDAC and CAFC; 0: with the CAFC centre
 * @return 0 (PC_ERR_SUCCESS) or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneAfcMode(uint32_t mode);

/** QV_SetPhoneAfcMode for the port `port`, with the same results. Chooses how QV_AfcStart_MChip
 * trims the handset's frequency. Nothing is sent. A new phone object begins with 0.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  not 0: with CDAC and CAFC; 0: with the CAFC centre */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneAfcMode_MT(int32_t port, uint32_t mode);

/** Sets the transmit parameters that go to the handset whenever its transmitter is switched.
 * Nothing is sent. A new phone object begins with zeros. For the default phone object only. The
 * result is reported under the operation id of the command before.
 * @param first  sent as it is, as are the others, in this order
 * @param second  sent as it is
 * @param third  sent as it is
 * @param fourth  sent as it is
 * @return 0 (PC_ERR_SUCCESS) or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_SetTxParam(
    uint32_t first, uint16_t second, uint16_t third, uint16_t fourth);

/** Activates or deactivates the handset's calibration layer, in the band of
 * QV_SetPhoneClassmark_MChip. Waits 1000 ms.
 * @param on  not 0: activate; 0: deactivate
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MChip(uint32_t on);

/** QV_Active_MChip for the port `port`, with the same results. Activates or deactivates the
 * handset's calibration layer, in the band of QV_SetPhoneClassmark_MChip. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  not 0: activate; 0: deactivate */
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MChip_MT(int32_t port, uint32_t on);

/** Tunes to a channel, sets the power control level and switches the transmitter on; or switches it
 * off. In the band of QV_SetPhoneClassmark_MChip. Each step waits 1000 ms; the first one that fails
 * ends the command. The channel is sent only when it differs from the one that was sent last on
 * this phone object (0 at first), even when the band has changed or the handset has been restarted
 * since. The result is reported under the operation id of the command before.
 * @param on  not 0: on; 0: off
 * @param channel  not used to switch off
 * @param level  power control level, not used to switch off
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED, PC_ERR_NO_ANSWER or
 *   PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_TxOn_MChip(uint32_t on, uint16_t channel, uint16_t level);

/** QV_TxOn_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param on  not 0: on; 0: off
 * @param channel  not used to switch off
 * @param level  power control level, not used to switch off */
MEROVANE_API int32_t MEROVANE_CALL QV_TxOn_MChip_MT(
    int32_t port, uint32_t on, uint16_t channel, uint16_t level);

/** Tunes to a channel, sets the power control level and the trim, and switches the transmitter on;
 * or switches it off. In the band of QV_SetPhoneClassmark_MChip. Each step waits 1000 ms; the first
 * one that fails ends the command. Channel and trims are sent only when they differ from those that
 * were sent last, as in QV_TxOn_MChip.
 * @param start  not 0: on; 0: off
 * @param parameters  looked at only when `start` is not 0; [1] is the channel and [2] the power
 *   control level; QV_SetPhoneAfcMode says whether [0] is the CAFC centre, or CDAC with [3] as CAFC
 * @retval PC_ERR_INVALID_PARAM  `parameters` is null when `start` is not 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MChip(
    uint32_t start, MEROVANE_IN_OPT const QV_AFC_PARAMETERS *parameters) MEROVANE_READS(2);

/** QV_AfcStart_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  not 0: on; 0: off
 * @param parameters  looked at only when `start` is not 0; [1] is the channel and [2] the power
 *   control level; QV_SetPhoneAfcMode says whether [0] is the CAFC centre, or CDAC with [3] as CAFC */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MChip_MT(
    int32_t port, uint32_t start,
    MEROVANE_IN_OPT const QV_AFC_PARAMETERS *parameters) MEROVANE_READS(3);

/** Tunes to a channel, sets the power control level, switches the receiver on and, after 200 ms,
 * reads RSSI and RxLevel; or switches the receiver off. In the band of QV_SetPhoneClassmark_MChip.
 * Steps wait 1000 ms and reads 3000 ms each; RSSI is read up to six times, 20 ms apart, until it is
 * not 0. The first step that fails ends the command; the receiver then stays on. The channel is
 * sent only when it differs from the one that was sent last, as in QV_TxOn_MChip.
 * @param start  not 0: measure; 0: switch off
 * @param parameters  words[0] is the channel, [1] and [2] are receive parameters, which switching
 *   off needs too, and [3] is the power control level
 * @param measured  looked at only when `start` is not 0; RSSI is there even when reading RxLevel
 *   fails; `value` stays as it was
 * @retval PC_ERR_INVALID_PARAM  `parameters` is null; `measured` is null when `start` is not 0
 * @retval PC_ERR_WRONG_DATA_LENGTH  an answer has no data
 * @retval PC_ERR_INVALID_RSSI  RSSI was 0 in all reads; `measured->rssi` is 0
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MChip(
    uint32_t start, MEROVANE_IN const QV_AGC_PARAMETERS *parameters,
    MEROVANE_OUT_OPT QV_AGC_RESULT *measured) MEROVANE_READS(2) MEROVANE_WRITES(3);

/** QV_AgcStart_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  not 0: measure; 0: switch off
 * @param parameters  words[0] is the channel, [1] and [2] are receive parameters, which switching
 *   off needs too, and [3] is the power control level
 * @param measured  looked at only when `start` is not 0; RSSI is there even when reading RxLevel
 *   fails; `value` stays as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MChip_MT(
    int32_t port, uint32_t start, MEROVANE_IN const QV_AGC_PARAMETERS *parameters,
    MEROVANE_OUT_OPT QV_AGC_RESULT *measured) MEROVANE_READS(3) MEROVANE_WRITES(4);

/** Makes the handset transmit at full power, as QV_EnterMaxTxPowerStatus does. Waits for nothing:
 * success means that the request was written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus_MChip(void);

/** QV_EnterMaxTxPowerStatus_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus_MChip_MT(int32_t port);

/** Makes the handset leave full power, as QV_LeaveMaxTxPowerStatus does. Waits for nothing: success
 * means that the request was written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus_MChip(void);

/** QV_LeaveMaxTxPowerStatus_MChip for the port `port`, with the same results. Makes the handset
 * leave full power, as QV_LeaveMaxTxPowerStatus does. Waits for nothing: success means that the
 * request was written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus_MChip_MT(int32_t port);

/** Makes the handset receive at full power, as QV_EnterMaxRxPowerStatus does. Waits for nothing:
 * success means that the request was written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus_MChip(void);

/** QV_EnterMaxRxPowerStatus_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus_MChip_MT(int32_t port);

/** Makes the handset leave full power, as QV_LeaveMaxRxPowerStatus does. Waits for nothing: success
 * means that the request was written.
 * @return 0 (PC_ERR_SUCCESS), PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus_MChip(void);

/** QV_LeaveMaxRxPowerStatus_MChip for the port `port`, with the same results. Makes the handset
 * leave full power, as QV_LeaveMaxRxPowerStatus does. Waits for nothing: success means that the
 * request was written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus_MChip_MT(int32_t port);

/** Measures the receiver's direct-current offset on channel 61 of QV_BAND_GSM. That band stays
 * chosen for multi-chip handsets, and that channel is the one that was sent last. Steps wait 1000
 * ms, the measurement itself, 100 ms later, 3000 ms. The receiver is switched off at the end
 * whatever failed; a failure of that alone counts as success.
 * @param first  the second word of the handset's answer, written on success only
 * @param second  the first word of the handset's answer, written on success only
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_WRONG_DATA_LENGTH  the answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_CalDirectCurr(
    MEROVANE_OUT uint16_t *first,
    MEROVANE_OUT uint16_t *second) MEROVANE_WRITES(1) MEROVANE_WRITES(2);

/** QV_CalDirectCurr for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param first  the second word of the handset's answer, written on success only
 * @param second  the first word of the handset's answer, written on success only */
MEROVANE_API int32_t MEROVANE_CALL QV_CalDirectCurr_MT(
    int32_t port, MEROVANE_OUT uint16_t *first,
    MEROVANE_OUT uint16_t *second) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** Sends a non-signalling command.
 * @param command  what is sent
 * @param answer  may be null; command 6 fills it, even when the handset reports a failure; other
 *   commands do not use it
 * @param timeout_ms  of the answer (milliseconds)
 * @retval PC_ERR_INVALID_PARAM  `command` is null; `answer` is null for command 6
 * @retval PC_ERR_NON_SIGNAL_FAILED  the handset reports a failure, or its answer has fewer than 8
 *   bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_SendNonSignalCmd(
    MEROVANE_IN const QV_NON_SIGNAL_COMMAND *command, MEROVANE_OUT_OPT QV_NON_SIGNAL_ANSWER *answer,
    uint32_t timeout_ms) MEROVANE_READS(1) MEROVANE_WRITES(2);

/** QV_SendNonSignalCmd for the port `port`, with the same results. Sends a non-signalling command.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param command  what is sent
 * @param answer  may be null; command 6 fills it, even when the handset reports a failure; other
 *   commands do not use it
 * @param timeout_ms  of the answer (milliseconds) */
MEROVANE_API int32_t MEROVANE_CALL QV_SendNonSignalCmd_MT(
    int32_t port, MEROVANE_IN const QV_NON_SIGNAL_COMMAND *command,
    MEROVANE_OUT_OPT QV_NON_SIGNAL_ANSWER *answer,
    uint32_t timeout_ms) MEROVANE_READS(2) MEROVANE_WRITES(3);

/* ---- Calibration: power factors and ramps of multi-chip handsets --------------------- */

/** Writes a power step factor in RAM (item 21): `third`, in the band of QV_SetPhoneClassmark_MChip,
 * at offset 16 x `fourth` + `second`, less 5 when `first` is QV_BAND_GSM or QV_BAND_GSM850; the
 * offset keeps 16 bits. Waits 1000 ms. When `second`, `third` and `fourth` are those that this
 * function wrote last on this phone object, nothing is sent and the result is PC_ERR_SUCCESS, even
 * when the band has changed or the handset has been restarted since.
 * @param step  `first` is the band (here any value), `second` the power control level, `third` the
 *   value and `fourth` the table
 * @retval PC_ERR_INVALID_PARAM  `step` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MChip(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_PwrStepFactorSet_MChip for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  `first` is the band (here any value), `second` the power control level, `third` the
 *   value and `fourth` the table */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MChip_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Writes an 8PSK power step factor in flash (item 36) in the band `first`. Otherwise as
 * QV_PwrStepFactorSet_MChip.
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table
 * @retval PC_ERR_INVALID_PARAM  `step` is null; another band in `step->first`
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_FACTOR_MChip(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_Set_Flash_8PSK_PWR_FACTOR_MChip for the port `port`, with the same results. Writes an 8PSK
 * power step factor in flash (item 36) in the band `first`. Otherwise as QV_PwrStepFactorSet_MChip.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_FACTOR_MChip_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Writes an 8PSK power step factor in RAM (item 36) in the band `first`. Otherwise as
 * QV_PwrStepFactorSet_MChip.
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table
 * @retval PC_ERR_INVALID_PARAM  `step` is null; another band in `step->first`
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_FACTOR_MChip(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_Set_Ram_8PSK_PWR_FACTOR_MChip for the port `port`, with the same results. Writes an 8PSK
 * power step factor in RAM (item 36) in the band `first`. Otherwise as QV_PwrStepFactorSet_MChip.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_FACTOR_MChip_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Writes an 8PSK transmit gain in flash (item 37) in the band `first`. Otherwise as
 * QV_PwrStepFactorSet_MChip.
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table
 * @retval PC_ERR_INVALID_PARAM  `step` is null; another band in `step->first`
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_TX_GAIN_MChip(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_Set_Flash_8PSK_PWR_TX_GAIN_MChip for the port `port`, with the same results. Writes an 8PSK
 * transmit gain in flash (item 37) in the band `first`. Otherwise as QV_PwrStepFactorSet_MChip.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_TX_GAIN_MChip_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Writes an 8PSK transmit gain in RAM (item 37) in the band `first`. Otherwise as
 * QV_PwrStepFactorSet_MChip.
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table
 * @retval PC_ERR_INVALID_PARAM  `step` is null; another band in `step->first`
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip for the port `port`, with the same results. Writes an 8PSK
 * transmit gain in RAM (item 37) in the band `first`. Otherwise as QV_PwrStepFactorSet_MChip.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  `first` is the band, `second` the power control level, `third` the value and
 *   `fourth` the table */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Writes two ramp tables in RAM. Waits 1000 ms for each; when the first fails, the second is not
 * written.
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  the points of the first item (16 values)
 * @param second  the points of the second item (16 values)
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  a null pointer; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Ram_MChip(
    uint32_t flag, MEROVANE_IN_N(16) const uint16_t *first,
    MEROVANE_IN_N(16) const uint16_t *second, uint32_t band) MEROVANE_READS(2) MEROVANE_READS(3);

/** QV_RampSetting_Ram_MChip for the port `port`, with the same results. Writes two ramp tables in
 * RAM. Waits 1000 ms for each; when the first fails, the second is not written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  the points of the first item (16 values)
 * @param second  the points of the second item (16 values)
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Ram_MChip_MT(
    int32_t port, uint32_t flag, MEROVANE_IN_N(16) const uint16_t *first,
    MEROVANE_IN_N(16) const uint16_t *second, uint32_t band) MEROVANE_READS(3) MEROVANE_READS(4);

/** Reads two ramp tables from RAM. Waits 1000 ms for each; when the first fails, the second is not
 * read.
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  16 values; the points of the first item; those that an answer lacks stay as they
 *   were. They are there even when reading the second item fails
 * @param second  16 values; the points of the second item; those that an answer lacks stay as they
 *   were
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  a null pointer; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  an answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Ram_MChip(
    uint32_t flag, MEROVANE_OUT_N(16) uint16_t *first, MEROVANE_OUT_N(16) uint16_t *second,
    uint32_t band) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** QV_ReadRamp_Ram_MChip for the port `port`, with the same results. Reads two ramp tables from
 * RAM. Waits 1000 ms for each; when the first fails, the second is not read.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  16 values; the points of the first item; those that an answer lacks stay as they
 *   were. They are there even when reading the second item fails
 * @param second  16 values; the points of the second item; those that an answer lacks stay as they
 *   were
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Ram_MChip_MT(
    int32_t port, uint32_t flag, MEROVANE_OUT_N(16) uint16_t *first,
    MEROVANE_OUT_N(16) uint16_t *second, uint32_t band) MEROVANE_WRITES(3) MEROVANE_WRITES(4);

/** Writes two ramp tables in flash. Waits 1000 ms for each; when the first fails, the second is not
 * written.
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  the points of the first item (16 values)
 * @param second  the points of the second item (16 values)
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  a null pointer; another band
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Flash_MChip(
    uint32_t flag, MEROVANE_IN_N(16) const uint16_t *first,
    MEROVANE_IN_N(16) const uint16_t *second, uint32_t band) MEROVANE_READS(2) MEROVANE_READS(3);

/** QV_RampSetting_Flash_MChip for the port `port`, with the same results. Writes two ramp tables in
 * flash. Waits 1000 ms for each; when the first fails, the second is not written.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  the points of the first item (16 values)
 * @param second  the points of the second item (16 values)
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Flash_MChip_MT(
    int32_t port, uint32_t flag, MEROVANE_IN_N(16) const uint16_t *first,
    MEROVANE_IN_N(16) const uint16_t *second, uint32_t band) MEROVANE_READS(3) MEROVANE_READS(4);

/** Reads two ramp tables from flash. Waits 1000 ms for each; when the first fails, the second is
 * not read.
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  16 values; the points of the first item; those that an answer lacks stay as they
 *   were. They are there even when reading the second item fails
 * @param second  16 values; the points of the second item; those that an answer lacks stay as they
 *   were
 * @param band  a QV_BAND
 * @retval PC_ERR_INVALID_PARAM  a null pointer; another band
 * @retval PC_ERR_WRONG_DATA_LENGTH  an answer has no data
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Flash_MChip(
    uint32_t flag, MEROVANE_OUT_N(16) uint16_t *first, MEROVANE_OUT_N(16) uint16_t *second,
    uint32_t band) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** QV_ReadRamp_Flash_MChip for the port `port`, with the same results. Reads two ramp tables from
 * flash. Waits 1000 ms for each; when the first fails, the second is not read.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param flag  not 0: items 9 and 11; 0: items 8 and 10
 * @param first  16 values; the points of the first item; those that an answer lacks stay as they
 *   were. They are there even when reading the second item fails
 * @param second  16 values; the points of the second item; those that an answer lacks stay as they
 *   were
 * @param band  a QV_BAND */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Flash_MChip_MT(
    int32_t port, uint32_t flag, MEROVANE_OUT_N(16) uint16_t *first,
    MEROVANE_OUT_N(16) uint16_t *second, uint32_t band) MEROVANE_WRITES(3) MEROVANE_WRITES(4);

/* ---- Calibration: TD-SCDMA ----------------------------------------------------------- */

/** Starts a transmit sweep over a list of points. Waits 1000 ms.
 * @param sweep  sent as it stands, as many points as it counts
 * @retval PC_ERR_INVALID_PARAM  `sweep` is null; more than 8 points
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_TDTxSweep(
    MEROVANE_IN const QV_TD_TX_SWEEP *sweep) MEROVANE_READS(1);

/** QV_TDTxSweep for the port `port`, with the same results. Starts a transmit sweep over a list of
 * points. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param sweep  sent as it stands, as many points as it counts */
MEROVANE_API int32_t MEROVANE_CALL QV_TDTxSweep_MT(
    int32_t port, MEROVANE_IN const QV_TD_TX_SWEEP *sweep) MEROVANE_READS(2);

/** Starts transmitting. Waits 1000 ms.
 * @param start  sent as it stands
 * @retval PC_ERR_INVALID_PARAM  `start` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_TdStartTx(
    MEROVANE_IN const QV_TD_TX_START *start) MEROVANE_READS(1);

/** QV_TdStartTx for the port `port`, with the same results. Starts transmitting. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param start  sent as it stands */
MEROVANE_API int32_t MEROVANE_CALL QV_TdStartTx_MT(
    int32_t port, MEROVANE_IN const QV_TD_TX_START *start) MEROVANE_READS(2);

/** Sets the power steps to sweep over. Waits 1000 ms.
 * @param sweep  sent as it stands
 * @retval PC_ERR_INVALID_PARAM  `sweep` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSweepSet_TD(
    MEROVANE_IN const QV_TD_POWER_SWEEP *sweep) MEROVANE_READS(1);

/** QV_PwrStepFactorSweepSet_TD for the port `port`, with the same results. Sets the power steps to
 * sweep over. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param sweep  sent as it stands */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSweepSet_TD_MT(
    int32_t port, MEROVANE_IN const QV_TD_POWER_SWEEP *sweep) MEROVANE_READS(2);

/** Sets a power step factor. Waits 1000 ms.
 * @param step  sent as it stands, followed by the mode of QV_SetTDContTxRxMode
 * @retval PC_ERR_INVALID_PARAM  `step` is null
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_TD(
    MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(1);

/** QV_PwrStepFactorSet_TD for the port `port`, with the same results. Sets a power step factor.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step  sent as it stands, followed by the mode of QV_SetTDContTxRxMode */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_TD_MT(
    int32_t port, MEROVANE_IN const QV_POWER_STEP *step) MEROVANE_READS(2);

/** Would stop transmitting. Not supported: with its port open it sends nothing, changes nothing and
 * fails. Its arguments are not known: it takes none, and its _MT form none beside the port, and a
 * 32-bit Windows program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_TDStopTx(void);

/** QV_TDStopTx for the port `port`, with the same results. Would stop transmitting.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_TDStopTx_MT(int32_t port);

/** Would start a receive measurement. Not supported: with its port open it sends nothing, changes
 * nothing and fails. Its arguments are not known: it takes none, and its _MT form none beside the
 * port, and a 32-bit Windows program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_TD(void);

/** QV_AgcStart_TD for the port `port`, with the same results. Would start a receive measurement.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_TD_MT(int32_t port);

/** Would turn measured transmit powers into calibration values. Not supported: with its port open
 * it sends nothing, changes nothing and fails. Its arguments are not known: it takes none, and its
 * _MT form none beside the port, and a 32-bit Windows program must not pass any, since they would
 * stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_ProcessTDApcData(void);

/** QV_ProcessTDApcData for the port `port`, with the same results. Would turn measured transmit
 * powers into calibration values.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_ProcessTDApcData_MT(int32_t port);

/** Would turn receive measurements into calibration values. Not supported: with its port open it
 * sends nothing, changes nothing and fails. Its arguments are not known: it takes none, and its _MT
 * form none beside the port, and a 32-bit Windows program must not pass any, since they would stay
 * on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_ProcessTDAGCData(void);

/** QV_ProcessTDAGCData for the port `port`, with the same results. Would turn receive measurements
 * into calibration values.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_ProcessTDAGCData_MT(int32_t port);

/** Chooses what QV_PwrStepFactorSet_TD tells the handset about continuous transmission and
 * reception. Nothing is sent. A new phone object begins with 0. The result is reported under the
 * operation id of the command before.
 * @param mode  not 0: continuous; 0: not
 * @return 0 (PC_ERR_SUCCESS) or PC_ERR_PORT_NOT_OPEN */
MEROVANE_API int32_t MEROVANE_CALL QV_SetTDContTxRxMode(uint32_t mode);

/** QV_SetTDContTxRxMode for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  not 0: continuous; 0: not */
MEROVANE_API int32_t MEROVANE_CALL QV_SetTDContTxRxMode_MT(int32_t port, uint32_t mode);

/** Reads the mode that the handset is in. Waits 1000 ms.
 * @param data  `capacity` bytes; what the handset says, cut to the capacity; what it does not fill
 *   stays as it was. How many bytes came is not told
 * @param capacity  of `data` (1 to 2147483647)
 * @retval PC_ERR_INVALID_PARAM  `data` is null; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_BUFFER_TOO_SMALL  the handset said more; the first `capacity` bytes are there
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_TD(
    MEROVANE_OUT_N(capacity) uint8_t *data, uint32_t capacity) MEROVANE_WRITES_N(1, 2);

/** QV_ReadMode_TD for the port `port`, with the same results. Reads the mode that the handset is
 * in. Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param data  `capacity` bytes; what the handset says, cut to the capacity; what it does not fill
 *   stays as it was. How many bytes came is not told
 * @param capacity  of `data` (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_TD_MT(
    int32_t port, MEROVANE_OUT_N(capacity) uint8_t *data,
    uint32_t capacity) MEROVANE_WRITES_N(2, 3);

/** Puts a booting handset into a TD-SCDMA start mode and takes the next frame as its
 * acknowledgement. Waits 3000 ms, to which "Inc Recv Timeout" is not added.
 * @param mode  the low 8 bits of mode + 128 are sent
 * @retval PC_ERR_NO_DATA  nothing came
 * @retval PC_ERR_DECODE_FAILED  what came does not decode
 * @retval PC_ERR_NO_FRAME  no whole frame came
 * @retval PC_ERR_ENTER_MODE_FAILED  the frame that came is no acknowledgement
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN or PC_ERR_WRITE_FAILED */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_TD(uint32_t mode);

/** QV_SetPhoneStartMode_TD for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param mode  the low 8 bits of mode + 128 are sent */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_TD_MT(int32_t port, uint32_t mode);

/** Reads calibration parameters. Waits 1000 ms.
 * @param parameters  its selector and count are sent; its values are written on success only. The
 *   memory need hold no more than `count` values, and may hold more than the record declares: what
 *   an answer can carry (4600 values) is the only limit
 * @retval PC_ERR_INVALID_PARAM  `parameters` is null
 * @retval PC_ERR_WRONG_DATA_LENGTH  the handset says that it returns fewer values than `count`
 * @retval PC_ERR_PARSE_FAILED  the answer is too short for `count` values
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadTDCalParam(QV_TD_PARAMETERS *parameters);

/** QV_ReadTDCalParam for the port `port`, with the same results. Reads calibration parameters.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param parameters  its selector and count are sent; its values are written on success only. The
 *   memory need hold no more than `count` values, and may hold more than the record declares: what
 *   an answer can carry (4600 values) is the only limit */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadTDCalParam_MT(int32_t port, QV_TD_PARAMETERS *parameters);

/** Writes calibration parameters. Waits 1000 ms.
 * @param parameters  sent as it stands. The memory need hold no more than `count` values
 * @retval PC_ERR_INVALID_PARAM  `parameters` is null; `parameters->count` outside 1 to 3073
 * @retval PC_ERR_WRONG_DATA_LENGTH  the handset says that it took another number of values
 * @retval PC_ERR_PARSE_FAILED  the answer has fewer than 8 bytes
 * @return 0 (PC_ERR_SUCCESS), one of the above, PC_ERR_PORT_NOT_OPEN, PC_ERR_WRITE_FAILED,
 *   PC_ERR_NO_ANSWER or PC_ERR_REFUSED */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteTDCalParam(const QV_TD_PARAMETERS *parameters);

/** QV_WriteTDCalParam for the port `port`, with the same results. Writes calibration parameters.
 * Waits 1000 ms.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param parameters  sent as it stands. The memory need hold no more than `count` values */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteTDCalParam_MT(
    int32_t port, const QV_TD_PARAMETERS *parameters);

/** Would save the calibration parameters to the handset's flash. Not supported: with its port open
 * it sends nothing, changes nothing and fails. Its arguments are not known: it takes none, and its
 * _MT form none beside the port, and a 32-bit Windows program must not pass any, since they would
 * stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_TDSaveToFlash(void);

/** QV_TDSaveToFlash for the port `port`, with the same results. Would save the calibration
 * parameters to the handset's flash.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_TDSaveToFlash_MT(int32_t port);

/** Would send a non-signalling command. Not supported: with its port open it sends nothing, changes
 * nothing and fails. Its arguments are not known: it takes none, and its _MT form none beside the
 * port, and a 32-bit Windows program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN or PC_ERR_NOT_SUPPORTED */
MEROVANE_API int32_t MEROVANE_CALL QV_SendTDNonSignalCmd(void);

/** QV_SendTDNonSignalCmd for the port `port`, with the same results. Would send a non-signalling
 * command.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_SendTDNonSignalCmd_MT(int32_t port);

/* ---- NV projects --------------------------------------------------------------------- */

/** Opens an NV project in place of the one that the phone object holds, if any. An NV project
 * belongs to a phone object. The functions that work on it send nothing.
 * @param path  of the project file, in the system's narrow encoding; its module files are read with
 *   it. It has a directory part ("./p.prj"): without one, reading stops at the first TARGET or
 *   MODULE line that is not absolute, with PC_ERR_SUCCESS and the modules read so far, mostly none.
 *   Absolute is a path with a drive or a share's name on Windows, and one with a leading "/"
 *   elsewhere
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `path` is null
 * @retval PC_ERR_OPEN_NV_PROJECT_FAILED  the project names no module, or it or one of its modules
 *   cannot be read: no project is open then
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_OpenPrjFile(MEROVANE_IN_TEXT const char *path);

/** QV_OpenPrjFile for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param path  of the project file, in the system's narrow encoding; its module files are read with
 *   it. It has a directory part ("./p.prj"): without one, reading stops at the first TARGET or
 *   MODULE line that is not absolute, with PC_ERR_SUCCESS and the modules read so far, mostly none.
 *   Absolute is a path with a drive or a share's name on Windows, and one with a leading "/"
 *   elsewhere */
MEROVANE_API int32_t MEROVANE_CALL QV_OpenPrjFile_MT(
    int32_t port, MEROVANE_IN_TEXT const char *path);

/** Closes the phone object's NV project. Changes that were not put into an image are lost.
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_ClosePrjFile(void);

/** QV_ClosePrjFile for the port `port`, with the same results. Closes the phone object's NV
 * project. Changes that were not put into an image are lost.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up) */
MEROVANE_API int32_t MEROVANE_CALL QV_ClosePrjFile_MT(int32_t port);

/** Reads an item's content as text.
 * @param module  not used: the first item of that path in load order answers
 * @param path  full dotted path, letter case ignored, such as "calibration_param_T.adc.battery[0]"
 * @param text  `capacity` bytes; all of the room is written: the content, cut to fit, then zeros. A
 *   content that fills the room has no terminating zero, and is cut with PC_ERR_SUCCESS
 * @param capacity  1 to 2147483647; room at `text`; 256 hold every content
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `capacity` outside 1 to 2147483647
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @retval PC_ERR_PATH_NOT_FOUND  there is no item of that path
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue(
    uint32_t module, MEROVANE_IN_TEXT const char *path, MEROVANE_OUT_N(capacity) char *text,
    uint32_t capacity) MEROVANE_WRITES_N(3, 4);

/** QV_GetNvValue for the port `port`, with the same results. Reads an item's content as text.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param module  not used: the first item of that path in load order answers
 * @param path  full dotted path, letter case ignored, such as "calibration_param_T.adc.battery[0]"
 * @param text  `capacity` bytes; all of the room is written: the content, cut to fit, then zeros. A
 *   content that fills the room has no terminating zero, and is cut with PC_ERR_SUCCESS
 * @param capacity  1 to 2147483647; room at `text`; 256 hold every content */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_MT(
    int32_t port, uint32_t module, MEROVANE_IN_TEXT const char *path,
    MEROVANE_OUT_N(capacity) char *text, uint32_t capacity) MEROVANE_WRITES_N(4, 5);

/** Replaces an item's content in memory.
 * @param module  not used, as in QV_GetNvValue
 * @param path  as in QV_GetNvValue
 * @param text  up to its zero; of a longer one the first 255 characters. Numbers are decimal or,
 *   with an "x" in them, hexadecimal. What the item's type does not hold is taken all the same
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @retval PC_ERR_PATH_NOT_FOUND  there is no item of that path
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue(
    uint32_t module, MEROVANE_IN_TEXT const char *path, MEROVANE_IN_TEXT const char *text);

/** QV_SetNvValue for the port `port`, with the same results. Replaces an item's content in memory.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param module  not used, as in QV_GetNvValue
 * @param path  as in QV_GetNvValue
 * @param text  up to its zero; of a longer one the first 255 characters. Numbers are decimal or,
 *   with an "x" in them, hexadecimal. What the item's type does not hold is taken all the same */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_MT(
    int32_t port, uint32_t module, MEROVANE_IN_TEXT const char *path,
    MEROVANE_IN_TEXT const char *text);

/** Builds the NV image: a time stamp, then every top-level item with its id, length and data. A
 * number too wide for its item keeps its low bits. A top-level STRING or NONE item has no header,
 * and zeros where it would stand; one inside a structure or an array takes no room.
 * @param buffer  65536 bytes; takes the image; what follows it becomes zero
 * @param length  of the image in bytes
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_BUFFER_TOO_SMALL  the image would be larger: nothing is written
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GenerateNvBianryDataBlockInMemory(
    MEROVANE_OUT_N(65536) void *buffer,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES(1) MEROVANE_WRITES(2);

/** QV_GenerateNvBianryDataBlockInMemory for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param buffer  65536 bytes; takes the image; what follows it becomes zero
 * @param length  of the image in bytes */
MEROVANE_API int32_t MEROVANE_CALL QV_GenerateNvBianryDataBlockInMemory_MT(
    int32_t port, MEROVANE_OUT_N(65536) void *buffer,
    MEROVANE_OUT uint32_t *length) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** Builds the NV image into the project's TARGET file. A read-only file is written, and stays
 * read-only. For the default phone object only.
 * @retval PC_ERR_SUCCESS  also when the file cannot be written, or the project names none: the old
 *   file stays whole, and a message box says so, for whose OK the call waits on Windows; elsewhere
 *   it is a line on standard error
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_BUFFER_TOO_SMALL  the image would pass 65,536 bytes: the file is left as it was
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToBinaryFile(void);

/** Tells where an item's data stand.
 * @param path  letter case counts
 * @param offset  in bytes. For a CHAR, SHORT or LONG member or element the place in its top-level
 *   item's data; 0 for a top-level scalar or array. For a structure, and for an array inside one,
 *   the widest alignment (0, 1, 2 or 4): ask for its first element. No size is told, whatever the
 *   function's name says
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @retval PC_ERR_PATH_NOT_FOUND  there is no item of that path
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetItemOffsetAndSize(
    MEROVANE_IN_TEXT const char *path, MEROVANE_OUT uint32_t *offset) MEROVANE_WRITES(2);

/** QV_GetItemOffsetAndSize for the port `port`, with the same results. Tells where an item's data
 * stand.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param path  letter case counts
 * @param offset  in bytes. For a CHAR, SHORT or LONG member or element the place in its top-level
 *   item's data; 0 for a top-level scalar or array. For a structure, and for an array inside one,
 *   the widest alignment (0, 1, 2 or 4): ask for its first element. No size is told, whatever the
 *   function's name says */
MEROVANE_API int32_t MEROVANE_CALL QV_GetItemOffsetAndSize_MT(
    int32_t port, MEROVANE_IN_TEXT const char *path,
    MEROVANE_OUT uint32_t *offset) MEROVANE_WRITES(3);

/** Reverses the byte order of 16- and 32-bit values in a block, as the items from `path` on say.
 * Only values that lie without a gap between them are converted: convert each run between padding
 * by itself. A structure or array inside the run can count as a byte as well. A value that the end
 * of the block cuts stays as it is.
 * @param path  of the item where the block begins; letter case counts. A structure or array counts
 *   as one byte of its own: begin at its first member. An unknown path changes nothing
 * @param data  converted in place (`length` bytes)
 * @param length  how many bytes (1 to 2147483647)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `length` outside 1 to 2147483647
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_ConvertDataByDataType(
    MEROVANE_IN_TEXT const char *path, MEROVANE_INOUT_N(length) void *data,
    uint32_t length) MEROVANE_UPDATES_N(2, 3);

/** QV_ConvertDataByDataType for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param path  of the item where the block begins; letter case counts. A structure or array counts
 *   as one byte of its own: begin at its first member. An unknown path changes nothing
 * @param data  converted in place (`length` bytes)
 * @param length  how many bytes (1 to 2147483647) */
MEROVANE_API int32_t MEROVANE_CALL QV_ConvertDataByDataType_MT(
    int32_t port, MEROVANE_IN_TEXT const char *path, MEROVANE_INOUT_N(length) void *data,
    uint32_t length) MEROVANE_UPDATES_N(3, 4);

/* ---- NV projects: calibration parameters --------------------------------------------- */

/** Reads a band's AGC words, gain index and receive boundaries. Of an array's elements that the
 * project lacks, each repeats the one before; other values that it lacks are 0. So do the other
 * functions that read calibration parameters.
 * @param agc_words  as the items have them (91 values)
 * @param gain_index  the maximum RF gain index
 * @param rx_boundary  channel numbers (4 values)
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Agc(
    MEROVANE_OUT_N(91) uint16_t *agc_words, MEROVANE_OUT uint16_t *gain_index,
    MEROVANE_OUT_N(4) uint16_t *rx_boundary,
    uint32_t band) MEROVANE_WRITES(1) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** QV_GetNvValue_Agc for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param agc_words  as the items have them (91 values)
 * @param gain_index  the maximum RF gain index
 * @param rx_boundary  channel numbers (4 values)
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Agc_MT(
    int32_t port, MEROVANE_OUT_N(91) uint16_t *agc_words, MEROVANE_OUT uint16_t *gain_index,
    MEROVANE_OUT_N(4) uint16_t *rx_boundary,
    uint32_t band) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4);

/** Writes a band's AGC words, gain index and receive compensation. The gain indices of GSM, DCS and
 * GSM850 are written with it, with the values last read by QV_GetNvValue_Agc or written by
 * QV_SetNvValue_Agc in this project, 0 before that. What the project lacks is not written, here and
 * in the other functions that write calibration parameters.
 * @param agc_words  as QV_GetNvValue_Agc reads them (91 values)
 * @param gain_index  the maximum RF gain index
 * @param rx_compensation  between the receive boundaries (5 values)
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Agc(
    MEROVANE_IN_N(91) const uint16_t *agc_words, uint16_t gain_index,
    MEROVANE_IN_N(5) const uint16_t *rx_compensation,
    uint32_t band) MEROVANE_READS(1) MEROVANE_READS(3);

/** QV_SetNvValue_Agc for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param agc_words  as QV_GetNvValue_Agc reads them (91 values)
 * @param gain_index  the maximum RF gain index
 * @param rx_compensation  between the receive boundaries (5 values)
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Agc_MT(
    int32_t port, MEROVANE_IN_N(91) const uint16_t *agc_words, uint16_t gain_index,
    MEROVANE_IN_N(5) const uint16_t *rx_compensation,
    uint32_t band) MEROVANE_READS(2) MEROVANE_READS(4);

/** Reads a band's ramp tables, transmit boundaries and step factors. For GSM the two ramp-down
 * tables come in each other's place.
 * @param ramp_up_stage0  ramp table (16 values)
 * @param ramp_up_stage1  ramp table (16 values)
 * @param ramp_down_stage0  16 values; ramp table; for GSM that of stage 1
 * @param ramp_down_stage1  16 values; ramp table; for GSM that of stage 0
 * @param tx_boundary  channel numbers (4 values)
 * @param step_factor  as the items have them (80 values)
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Apc(
    MEROVANE_OUT_N(16) uint16_t *ramp_up_stage0, MEROVANE_OUT_N(16) uint16_t *ramp_up_stage1,
    MEROVANE_OUT_N(16) uint16_t *ramp_down_stage0, MEROVANE_OUT_N(16) uint16_t *ramp_down_stage1,
    MEROVANE_OUT_N(4) uint16_t *tx_boundary, MEROVANE_OUT_N(80) uint16_t *step_factor,
    uint32_t band) MEROVANE_WRITES(1) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4) MEROVANE_WRITES(5) MEROVANE_WRITES(6);

/** QV_GetNvValue_Apc for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param ramp_up_stage0  ramp table (16 values)
 * @param ramp_up_stage1  ramp table (16 values)
 * @param ramp_down_stage0  16 values; ramp table; for GSM that of stage 1
 * @param ramp_down_stage1  16 values; ramp table; for GSM that of stage 0
 * @param tx_boundary  channel numbers (4 values)
 * @param step_factor  as the items have them (80 values)
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Apc_MT(
    int32_t port, MEROVANE_OUT_N(16) uint16_t *ramp_up_stage0,
    MEROVANE_OUT_N(16) uint16_t *ramp_up_stage1, MEROVANE_OUT_N(16) uint16_t *ramp_down_stage0,
    MEROVANE_OUT_N(16) uint16_t *ramp_down_stage1, MEROVANE_OUT_N(4) uint16_t *tx_boundary,
    MEROVANE_OUT_N(80) uint16_t *step_factor,
    uint32_t band) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4) MEROVANE_WRITES(5) MEROVANE_WRITES(6) MEROVANE_WRITES(7);

/** Writes a band's step factors.
 * @param step_factor  as QV_GetNvValue_Apc reads them (80 values)
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `step_factor` is null; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Apc(
    MEROVANE_IN_N(80) const uint16_t *step_factor, uint32_t band) MEROVANE_READS(1);

/** QV_SetNvValue_Apc for the port `port`, with the same results. Writes a band's step factors.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param step_factor  as QV_GetNvValue_Apc reads them (80 values)
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Apc_MT(
    int32_t port, MEROVANE_IN_N(80) const uint16_t *step_factor, uint32_t band) MEROVANE_READS(2);

/** Reads a band's step factors. For the default phone object only.
 * @param step_factor  as QV_GetNvValue_Apc reads them (80 values)
 * @param band  not as elsewhere: 0 GSM, 1 DCS, 3 PCS, 4 GSM850; another one reads nothing, with
 *   PC_ERR_SUCCESS
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `step_factor` is null
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Factor(
    MEROVANE_OUT_N(80) uint16_t *step_factor, uint32_t band) MEROVANE_WRITES(1);

/** Reads the version of the calibration parameters.
 * @param version  as the item has it, read as hexadecimal
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `version` is null
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion(
    MEROVANE_OUT uint16_t *version) MEROVANE_WRITES(1);

/** QV_GetNvValue_NvVersion for the port `port`, with the same results. Reads the version of the
 * calibration parameters.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param version  as the item has it, read as hexadecimal */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_MT(
    int32_t port, MEROVANE_OUT uint16_t *version) MEROVANE_WRITES(2);

/** Reads the same version as QV_GetNvValue_NvVersion.
 * @param version  as the item has it, read as hexadecimal
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `version` is null
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_TD(
    MEROVANE_OUT uint16_t *version) MEROVANE_WRITES(1);

/** QV_GetNvValue_NvVersion_TD for the port `port`, with the same results. Reads the same version as
 * QV_GetNvValue_NvVersion.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param version  as the item has it, read as hexadecimal */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_TD_MT(
    int32_t port, MEROVANE_OUT uint16_t *version) MEROVANE_WRITES(2);

/** Reads the calibration points of the ADC and of the battery. A second point that the project
 * lacks is the first one.
 * @param adc  the ADC's points (2 values)
 * @param battery  the battery's points (2 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_1(
    MEROVANE_OUT_N(2) uint32_t *adc,
    MEROVANE_OUT_N(2) uint32_t *battery) MEROVANE_WRITES(1) MEROVANE_WRITES(2);

/** QV_GetNvValue_Adc_1 for the port `port`, with the same results. Reads the calibration points of
 * the ADC and of the battery. A second point that the project lacks is the first one.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param adc  the ADC's points (2 values)
 * @param battery  the battery's points (2 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_1_MT(
    int32_t port, MEROVANE_OUT_N(2) uint32_t *adc,
    MEROVANE_OUT_N(2) uint32_t *battery) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** Writes the calibration points of the ADC and of the battery.
 * @param adc  the ADC's points (2 values)
 * @param battery  the battery's points (2 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_1(
    MEROVANE_IN_N(2) const uint32_t *adc,
    MEROVANE_IN_N(2) const uint32_t *battery) MEROVANE_READS(1) MEROVANE_READS(2);

/** QV_SetNvValue_Adc_1 for the port `port`, with the same results. Writes the calibration points of
 * the ADC and of the battery.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param adc  the ADC's points (2 values)
 * @param battery  the battery's points (2 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_1_MT(
    int32_t port, MEROVANE_IN_N(2) const uint32_t *adc,
    MEROVANE_IN_N(2) const uint32_t *battery) MEROVANE_READS(2) MEROVANE_READS(3);

/** Reads the charger's voltage table.
 * @param voltage_table  as the items have it (16 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `voltage_table` is null
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_2(
    MEROVANE_OUT_N(16) uint16_t *voltage_table) MEROVANE_WRITES(1);

/** QV_GetNvValue_Adc_2 for the port `port`, with the same results. Reads the charger's voltage
 * table.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param voltage_table  as the items have it (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_2_MT(
    int32_t port, MEROVANE_OUT_N(16) uint16_t *voltage_table) MEROVANE_WRITES(2);

/** Writes the charger's voltage table.
 * @param voltage_table  as the items have it (16 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `voltage_table` is null
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_2(
    MEROVANE_IN_N(16) const uint16_t *voltage_table) MEROVANE_READS(1);

/** QV_SetNvValue_Adc_2 for the port `port`, with the same results. Writes the charger's voltage
 * table.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param voltage_table  as the items have it (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_2_MT(
    int32_t port, MEROVANE_IN_N(16) const uint16_t *voltage_table) MEROVANE_READS(2);

/** Reads the AFC centre and slope.
 * @param center  the centre
 * @param slope  in Hz, for a step of 6 bits
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_1(
    MEROVANE_OUT uint16_t *center,
    MEROVANE_OUT uint16_t *slope) MEROVANE_WRITES(1) MEROVANE_WRITES(2);

/** QV_GetNvValue_Afc_1 for the port `port`, with the same results. Reads the AFC centre and slope.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param center  the centre
 * @param slope  in Hz, for a step of 6 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_1_MT(
    int32_t port, MEROVANE_OUT uint16_t *center,
    MEROVANE_OUT uint16_t *slope) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** Writes the AFC centre and slope.
 * @param center  the centre
 * @param slope  in Hz, for a step of 6 bits
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_1(uint16_t center, uint16_t slope);

/** QV_SetNvValue_Afc_1 for the port `port`, with the same results. Writes the AFC centre and slope.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param center  the centre
 * @param slope  in Hz, for a step of 6 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_1_MT(
    int32_t port, uint16_t center, uint16_t slope);

/** Reads the AFC structure, under either spelling that projects have for its name.
 * @param slope_length  how many of the next three arrays' values count
 * @param cdac  the CDAC word
 * @param cafc  the CAFC word
 * @param afc_range  of each slope (16 values)
 * @param slope_value  of each range (16 values)
 * @param slope_reciprocal  of each slope (16 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_2(
    MEROVANE_OUT uint16_t *slope_length, MEROVANE_OUT uint16_t *cdac, MEROVANE_OUT uint16_t *cafc,
    MEROVANE_OUT_N(16) uint16_t *afc_range, MEROVANE_OUT_N(16) uint16_t *slope_value,
    MEROVANE_OUT_N(16) uint16_t *slope_reciprocal) MEROVANE_WRITES(1) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4) MEROVANE_WRITES(5) MEROVANE_WRITES(6);

/** QV_GetNvValue_Afc_2 for the port `port`, with the same results. Reads the AFC structure, under
 * either spelling that projects have for its name.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param slope_length  how many of the next three arrays' values count
 * @param cdac  the CDAC word
 * @param cafc  the CAFC word
 * @param afc_range  of each slope (16 values)
 * @param slope_value  of each range (16 values)
 * @param slope_reciprocal  of each slope (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_2_MT(
    int32_t port, MEROVANE_OUT uint16_t *slope_length, MEROVANE_OUT uint16_t *cdac,
    MEROVANE_OUT uint16_t *cafc, MEROVANE_OUT_N(16) uint16_t *afc_range,
    MEROVANE_OUT_N(16) uint16_t *slope_value,
    MEROVANE_OUT_N(16) uint16_t *slope_reciprocal) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4) MEROVANE_WRITES(5) MEROVANE_WRITES(6) MEROVANE_WRITES(7);

/** Writes the AFC structure.
 * @param slope_length  as QV_GetNvValue_Afc_2 reads it, as are the others
 * @param cdac  the CDAC word
 * @param cafc  the CAFC word
 * @param afc_range  of each slope (16 values)
 * @param slope_value  of each range (16 values)
 * @param slope_reciprocal  of each slope (16 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_2(
    uint16_t slope_length, uint16_t cdac, uint16_t cafc,
    MEROVANE_IN_N(16) const uint16_t *afc_range, MEROVANE_IN_N(16) const uint16_t *slope_value,
    MEROVANE_IN_N(16) const uint16_t *slope_reciprocal) MEROVANE_READS(4) MEROVANE_READS(5) MEROVANE_READS(6);

/** QV_SetNvValue_Afc_2 for the port `port`, with the same results. Writes the AFC structure.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param slope_length  as QV_GetNvValue_Afc_2 reads it, as are the others
 * @param cdac  the CDAC word
 * @param cafc  the CAFC word
 * @param afc_range  of each slope (16 values)
 * @param slope_value  of each range (16 values)
 * @param slope_reciprocal  of each slope (16 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_2_MT(
    int32_t port, uint16_t slope_length, uint16_t cdac, uint16_t cafc,
    MEROVANE_IN_N(16) const uint16_t *afc_range, MEROVANE_IN_N(16) const uint16_t *slope_value,
    MEROVANE_IN_N(16) const uint16_t *slope_reciprocal) MEROVANE_READS(5) MEROVANE_READS(6) MEROVANE_READS(7);

/** Reads the TD-SCDMA parameters. Which they are, their order, and that they stand in a structure
 * "rf_td_param_dsp_use" beside those of the GSM bands, is this library's own choice.
 * @param agc_words  its agc_ctrl_word (91 values)
 * @param gain_index  its max_rf_gain_index
 * @param step_factor  its rf_ramppwr_step_factor (80 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_DSP_Use_TD(
    MEROVANE_OUT_N(91) uint16_t *agc_words, MEROVANE_OUT uint16_t *gain_index,
    MEROVANE_OUT_N(80) uint16_t *step_factor) MEROVANE_WRITES(1) MEROVANE_WRITES(2) MEROVANE_WRITES(3);

/** QV_GetNvValue_DSP_Use_TD for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param agc_words  its agc_ctrl_word (91 values)
 * @param gain_index  its max_rf_gain_index
 * @param step_factor  its rf_ramppwr_step_factor (80 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_DSP_Use_TD_MT(
    int32_t port, MEROVANE_OUT_N(91) uint16_t *agc_words, MEROVANE_OUT uint16_t *gain_index,
    MEROVANE_OUT_N(80) uint16_t *step_factor) MEROVANE_WRITES(2) MEROVANE_WRITES(3) MEROVANE_WRITES(4);

/** Writes the TD-SCDMA parameters.
 * @param agc_words  as QV_GetNvValue_DSP_Use_TD reads them, as are the others (91 values)
 * @param gain_index  the maximum RF gain index
 * @param step_factor  as the items have them (80 values)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  a null pointer
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_DSP_Use_TD(
    MEROVANE_IN_N(91) const uint16_t *agc_words, uint16_t gain_index,
    MEROVANE_IN_N(80) const uint16_t *step_factor) MEROVANE_READS(1) MEROVANE_READS(3);

/** QV_SetNvValue_DSP_Use_TD for the port `port`, with the same results. Writes the TD-SCDMA
 * parameters.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param agc_words  as QV_GetNvValue_DSP_Use_TD reads them, as are the others (91 values)
 * @param gain_index  the maximum RF gain index
 * @param step_factor  as the items have them (80 values) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_DSP_Use_TD_MT(
    int32_t port, MEROVANE_IN_N(91) const uint16_t *agc_words, uint16_t gain_index,
    MEROVANE_IN_N(80) const uint16_t *step_factor) MEROVANE_READS(2) MEROVANE_READS(4);

/** Reads one of a band's ramp tables under "RF_ramp_table_T". A line in the port's Useful log tells
 * of each point that the project lacks. That a table has 20 points, as in the handset, the order of
 * the arguments and the numbers of the bands are this library's own choice.
 * @param points  the table's points (20 values)
 * @param stage  the number in the table's name: 1 is "stage1"
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `points` is null; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Multi_Ramp(
    MEROVANE_OUT_N(20) uint16_t *points, uint32_t stage, uint32_t band) MEROVANE_WRITES(1);

/** QV_GetNvValue_Multi_Ramp for the port `port`, with the same effect and results.
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param points  the table's points (20 values)
 * @param stage  the number in the table's name: 1 is "stage1"
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Multi_Ramp_MT(
    int32_t port, MEROVANE_OUT_N(20) uint16_t *points, uint32_t stage,
    uint32_t band) MEROVANE_WRITES(2);

/** Writes one of a band's ramp tables under "RF_ramp_table_T".
 * @param points  as QV_GetNvValue_Multi_Ramp reads them (20 values)
 * @param stage  the number in the table's name
 * @param band  a QV_NV_BAND (0 to 3)
 * @retval PC_ERR_PORT_NOT_OPEN  the port has no session
 * @retval PC_ERR_INVALID_PARAM  `points` is null; `band` above 3
 * @retval PC_ERR_NV_PROJECT_NOT_OPEN  no NV project is open
 * @return 0 (PC_ERR_SUCCESS) or one of the above */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Multi_Ramp(
    MEROVANE_IN_N(20) const uint16_t *points, uint32_t stage, uint32_t band) MEROVANE_READS(1);

/** QV_SetNvValue_Multi_Ramp for the port `port`, with the same results. Writes one of a band's ramp
 * tables under "RF_ramp_table_T".
 * @param port  opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT (1 and up)
 * @param points  as QV_GetNvValue_Multi_Ramp reads them (20 values)
 * @param stage  the number in the table's name
 * @param band  a QV_NV_BAND (0 to 3) */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Multi_Ramp_MT(
    int32_t port, MEROVANE_IN_N(20) const uint16_t *points, uint32_t stage,
    uint32_t band) MEROVANE_READS(2);

/* ---- Boot mode ----------------------------------------------------------------------- */

/** Would download data from a file to a handset in its boot mode. Looks for the download
 * components, and does no more. Its arguments are not known: it takes none, and a 32-bit Windows
 * program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_DownloadDataFromFileToPhone(void);

/** Would download data from memory to a handset in its boot mode. Looks for the download
 * components, and does no more. Its arguments are not known: it takes none, and a 32-bit Windows
 * program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_DownloadDataFromMemoryToPhone(void);

/** Would read the flash memory of a handset in its boot mode. Looks for the download components,
 * and does no more. Its arguments are not known: it takes none, and a 32-bit Windows program must
 * not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadFlashInBoot(void);

/** Would write the flash memory of a handset in its boot mode. Looks for the download components,
 * and does no more. Its arguments are not known: it takes none, and a 32-bit Windows program must
 * not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteFlashInBoot(void);

/** Would write the NV items of a handset in its boot mode. Looks for the download components, and
 * does no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not
 * pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteNvInBoot(void);

/** Would change NV items of a handset in its boot mode. Looks for the download components, and does
 * no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not pass
 * any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateNvItemInBoot(void);

/** Would change the IMEI of a handset in its boot mode. Looks for the download components, and does
 * no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not pass
 * any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateIMEI_BootMode(void);

/** Would change the IMEI of a handset in its boot mode. Looks for the download components, and does
 * no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not pass
 * any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateIMEI_BootModeEx(void);

/** Would change both IMEIs of a handset in its boot mode. Looks for the download components, and
 * does no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not
 * pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateDoubleIMEI_BootMode(void);

/** Would change both IMEIs of a handset in its boot mode. Looks for the download components, and
 * does no more. Its arguments are not known: it takes none, and a 32-bit Windows program must not
 * pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateDoubleIMEI_BootModeEx(void);

/** Would change IMEI and serial number of a handset in its boot mode. Looks for the download
 * components, and does no more. Its arguments are not known: it takes none, and a 32-bit Windows
 * program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_Update_IMEI_SN_BootMode(void);

/** Would check the Bluetooth address of a handset in its boot mode. Looks for the download
 * components, and does no more. Its arguments are not known: it takes none, and a 32-bit Windows
 * program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_CheckBTAddr_BootMode(void);

/** Would change the Bluetooth address of a handset in its boot mode. Looks for the download
 * components, and does no more. Its arguments are not known: it takes none, and a 32-bit Windows
 * program must not pass any, since they would stay on its stack.
 * @return PC_ERR_PORT_NOT_OPEN, PC_ERR_DOWNLOAD_REGISTER or PC_ERR_DOWNLOAD_START */
MEROVANE_API int32_t MEROVANE_CALL QV_UpdateBTAddr_BootMode(void);

#ifdef __cplusplus
}
#endif

#endif
