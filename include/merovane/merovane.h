/* Merovane: drives mobile handsets on a factory line.
 *
 * This file is made from api/exports; its text is written there.
 *
 * A program opens a port with QV_BeginPhoneTest, sends commands and closes with QV_EndPhoneTest.
 * QV_X works on the default phone object, the one opened last by QV_BeginPhoneTest.
 * QV_X_MT takes the port number ahead of the same arguments and works on that port's object: 4 for a port
 * below 1, 1 for a port that is not open. Without a default object QV_X returns 1.
 *
 * Results are the codes of result_codes.h, 0 for success. Besides those named with a command, each
 * that sends can return: 1 the port is not open; 3 the request was not written; 11 no answer in time;
 * 39 the handset refuses the command.
 * Time limits are milliseconds; the setting "Inc Recv Timeout" is added where a command sends first,
 * except where a function says otherwise.
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
 * @param event          reset at the start, set when the handset was caught
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
 * @param event          set when done; reset at the start when through_port is set
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
 * @param capacity    bytes at `data`, 1 to 2147483647
 * @param length      bytes stored, at most 8
 * @param timeout_ms  0: nothing is read
 * @return 0; 4; 31 when no start frame came in time */
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData(
    uint8_t *data, uint32_t capacity, uint32_t *length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_RecvPhoneStartData_MT(
    int32_t port, uint8_t *data, uint32_t capacity, uint32_t *length, uint32_t timeout_ms);

/** Puts a handset that has sent its start frame into a mode; waits 4000 ms for its acknowledgement,
 * not lengthened by the setting.
 * @param mode  0 to 127; 128 is added, and the sum sent in 8 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_MT(int32_t port, uint32_t mode);

/** QV_RecvPhoneStartData, then QV_SetPhoneStartMode.
 * @param timeout_ms  of the wait for the start frame
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
 * @param capacity  bytes at `data`, 1 to 2147483647 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode(uint8_t *data, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_MT(int32_t port, uint8_t *data, uint32_t capacity);

/** Takes the next whole frame of any type, unescaped, header included.
 * @param data    the frame, cut to the capacity
 * @param length  in: bytes at `data`, 1 to 2147483647; out: bytes stored
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
 * @param capacity        bytes at `answer`, 1 to 2147483647
 * @param answer_length   bytes stored
 * @param timeout_ms      of the answer, above 0, not lengthened by the setting; one further frame is waited for as long
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
 *   acknowledgement (1000 ms) is awaited
 * @param capacity       bytes at `answer`, 1 to 2147483647 unless `answer` or `answer_length` is null
 * @param answer_length  bytes stored; null as `answer`
 * @param timeout_ms     of the answer, above 0, not lengthened by the setting; one further frame is waited for as long
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

/* ---- Flash items, NV items, registers ------------------------------------------------ */

/** Reads a production flash item from its start.
 * @param item         the item's id
 * @param data         the item's bytes, as the handset holds them
 * @param length       bytes wanted and room at `data`, 1 to 65535
 * @param data_length  bytes stored; 0 with code 13, not written when the exchange failed
 * @param timeout_ms   of the answer
 * @return 0, also when the handset sent fewer bytes than wanted; 4; 5 when it sent more (the first `length` are
 *   there); 13 when it sent none */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadFlash(
    uint16_t item, uint8_t *data, int32_t length, uint32_t *data_length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadFlash_MT(
    int32_t port, uint16_t item, uint8_t *data, int32_t length, uint32_t *data_length,
    uint32_t timeout_ms);

/** Writes a production flash item from its start.
 * @param length      bytes at `data`, 1 to 65523
 * @param timeout_ms  of the acknowledgement; 0: 4000
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteFlash(
    uint16_t item, const uint8_t *data, uint32_t length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteFlash_MT(
    int32_t port, uint16_t item, const uint8_t *data, uint32_t length, uint32_t timeout_ms);

/** Erases the production flash area.
 * @param timeout_ms  above 0
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_EraseFlash(uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_EraseFlash_MT(int32_t port, uint32_t timeout_ms);

/** Reads an NV item.
 * @param item         the item's id
 * @param data         the item's bytes, as the handset holds them
 * @param capacity     bytes at `data`, 1 to 2147483647
 * @param data_length  bytes stored; not written when the exchange failed
 * @param timeout_ms   of the answer
 * @return 0; 4; 5 when the item is longer than `capacity` (its start is there). An answer without an item id
 *   gives 5 too, and `capacity` zeros */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNv(
    uint16_t item, uint8_t *data, uint32_t capacity, uint32_t *data_length, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNv_MT(
    int32_t port, uint16_t item, uint8_t *data, uint32_t capacity, uint32_t *data_length,
    uint32_t timeout_ms);

/** Writes an NV item; 1000 ms.
 * @param length  bytes at `data`, 0 to 65525
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteNv(uint16_t item, const uint8_t *data, uint32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteNv_MT(
    int32_t port, uint16_t item, const uint8_t *data, uint32_t length);

/** Reads a part of an NV item; 2000 ms. Nothing but the frames goes to the Useful log.
 * @param offset       of the part in the item
 * @param length       of the part; cut to `capacity` without an error
 * @param capacity     bytes at `data`, 1 to 2147483647
 * @param data_length  bytes stored; written on success only
 * @return 0; 4 for a null pointer or no capacity, and, behind the exchange, for a part that ends more than 2 bytes
 *   behind the item. Bytes behind the item read as 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadNvFromHandset(
    uint16_t item, uint32_t offset, uint32_t length, uint8_t *data, uint32_t capacity,
    uint32_t *data_length);

/** Reads registers; 1000 ms.
 * @param access_width  0 bytes, 1 16-bit units, others 32-bit units
 * @param address       of the first unit
 * @param data          `count` units, in the handset's byte order. Units that did not arrive read as 0
 * @param count         of units, above 0; at most 65519 bytes
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRegister(
    uint32_t access_width, uint32_t address, uint8_t *data, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRegister_MT(
    int32_t port, uint32_t access_width, uint32_t address, uint8_t *data, uint32_t count);

/** Writes registers; 1000 ms. Arguments as QV_ReadRegister.
 * @param data   `count` units, in the handset's byte order
 * @param count  of units, above 0; at most 65511 bytes
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteRegister(
    uint32_t access_width, uint32_t address, const uint8_t *data, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteRegister_MT(
    int32_t port, uint32_t access_width, uint32_t address, const uint8_t *data, uint32_t count);

/* ---- Identification ------------------------------------------------------------------ */

/** Reads the chip's identification word; 1000 ms.
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipID(uint32_t *id);
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipID_MT(int32_t port, uint32_t *id);

/** Reads the chip's type word; 1000 ms.
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipType(uint32_t *type);
MEROVANE_API int32_t MEROVANE_CALL QV_GetChipType_MT(int32_t port, uint32_t *type);

/** Reads the identification of an LCD's controller; 1000 ms.
 * @param second_lcd  0: the first LCD's; otherwise the second's
 * @param id          as it arrived, its first 100 bytes at most
 * @param capacity    bytes at `id`, above 0
 * @param length      of the whole identification, also when it was cut
 * @return 0; 4; 5 when it was cut to `capacity` or 100 bytes */
MEROVANE_API int32_t MEROVANE_CALL QV_GetLcdIcDriverID(
    uint32_t second_lcd, uint8_t *id, int32_t capacity, uint32_t *length);
MEROVANE_API int32_t MEROVANE_CALL QV_GetLcdIcDriverID_MT(
    int32_t port, uint32_t second_lcd, uint8_t *id, int32_t capacity, uint32_t *length);

/** Reads the flash description; 1000 ms.
 * @param info  written on success only
 * @return 0; 4; 15 when it counts more than 31 regions */
MEROVANE_API int32_t MEROVANE_CALL QV_GetFlashInfo(QV_FLASH_INFO *info);
MEROVANE_API int32_t MEROVANE_CALL QV_GetFlashInfo_MT(int32_t port, QV_FLASH_INFO *info);

/** Reads the software version's text; 1000 ms.
 * @param version   as it arrived: terminated by a zero only when the handset sends one, so clear it before
 * @param capacity  bytes at `version`, 1 to 2147483647; a longer text is cut without an error
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetMSVersion(char *version, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_GetMSVersion_MT(
    int32_t port, char *version, uint32_t capacity);

/** Exchanges ten words with the 7310K.
 * @param command         its id, 8 bits
 * @param words           ten
 * @param answered_words  ten. An answer of 20 bytes and more fills all, one of 6 and more the first three, a
 *   shorter one none
 * @param timeout_ms      0: 1000
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_Send7310KCommand(
    uint8_t command, const uint16_t *words, uint16_t *answered_words, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_Send7310KCommand_MT(
    int32_t port, uint8_t command, const uint16_t *words, uint16_t *answered_words,
    uint32_t timeout_ms);

/** Waits for ten words of the 7310K, which it sends unasked. The wait is not lengthened by the setting.
 * @param command         as in QV_Send7310KCommand
 * @param answered_words  as there
 * @param timeout_ms      0: 1000
 * @return 0; 4; 11 when none came in time */
MEROVANE_API int32_t MEROVANE_CALL QV_Recv7310KCommand(
    uint8_t command, uint16_t *answered_words, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_Recv7310KCommand_MT(
    int32_t port, uint8_t command, uint16_t *answered_words, uint32_t timeout_ms);

/* ---- Fixed-NV information ------------------------------------------------------------ */

/** Asks whether the handset's fixed NV is there; 1000 ms. Reported under the operation id of QV_ReadNv.
 * @param mode  10: the information block is asked about, otherwise the NV items
 * @return 0 when the handset acknowledges, whatever it says */
MEROVANE_API int32_t MEROVANE_CALL QV_CheckFixedNV(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_CheckFixedNV_MT(int32_t port, uint32_t mode);

/** Writes IMEI 1 and 2, the Bluetooth address and the parameter block, those whose flags are set, without a
 * checksum; 3000 ms. The other fields' flags are not looked at.
 * @return 0; 4, and nothing sent, for a null record, an IMEI that does not begin with 15 decimal digits or an address
 *   that does not begin with 12 hexadecimal ones */
MEROVANE_API int32_t MEROVANE_CALL QV_NvWriteDirect(const QV_FIXED_NV_INFO *info);
MEROVANE_API int32_t MEROVANE_CALL QV_NvWriteDirect_MT(int32_t port, const QV_FIXED_NV_INFO *info);

/** Writes the fields whose flags are set, in one frame with a checksum; 3000 ms.
 * @return 0; 4, and nothing sent, for a null record and a wrong text in IMEI 1, IMEI 2 or the Bluetooth address. A
 *   wrong text in IMEI 3, IMEI 4 or the second address is not refused: zeros are written for it */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteNvInfo(const QV_FIXED_NV_INFO *info);
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteNvInfo_MT(
    int32_t port, const QV_FIXED_NV_INFO *info);

/** Reads all fields; 3000 ms.
 * @param info  its flags stay as they were. With codes 4, 6 and 34 all of it does; with the link's codes it is filled
 *   as from an empty block: IMEIs and addresses of zeros. A damaged digit of an IMEI reads as a letter a to f
 * @return 0; 4; 5 for a block of more than 108 bytes (read all the same); 6 for an empty one; 34 when its checksum
 *   does not match */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadNvInfo(QV_FIXED_NV_INFO *info);
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadNvInfo_MT(int32_t port, QV_FIXED_NV_INFO *info);

/* ---- Serial numbers, GUID, production data ------------------------------------------- */

/** Reads the serial number from where the handset keeps it: production flash item 0, or the production block when the
 * item begins with the block's magic. 4000 ms for each of two reads (3000 for the block), whose lines and
 * operation ids are those of QV_ReadFlash and QV_FastReadProduct.
 * @param serial_number  24 bytes, padded with zeros
 * @param capacity       bytes at `serial_number`, 1 to 2147483647
 * @return 0; 4; 5 when it was cut to `capacity`, or when the production block has more than 256 bytes (then nothing
 *   is stored); else the code of the read that failed */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN(uint8_t *serial_number, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN_MT(
    int32_t port, uint8_t *serial_number, uint32_t capacity);

/** QV_ReadSN for the second serial number. */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN2(uint8_t *serial_number, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadSN2_MT(
    int32_t port, uint8_t *serial_number, uint32_t capacity);

/** Writes the serial number to where the handset keeps it, and all else there back as it was read. A handset with
 * neither layout gets the one that the settings file names, its other bytes zero.
 * Everything is read before the one frame is sent that carries the whole: interrupted before, the handset is as it was.
 * 4000 ms for the magic, 8000 for the whole item (3000 for the block), 3000 for the write.
 * @param length  bytes at `serial_number`, 1 to 23
 * @return 0; 4; 13 when a flash read came short; else the code of the step that failed, nothing written after a
 *   failed read */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN(const uint8_t *serial_number, uint32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN_MT(
    int32_t port, const uint8_t *serial_number, uint32_t length);

/** QV_WriteSN for the second serial number. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN2(const uint8_t *serial_number, uint32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteSN2_MT(
    int32_t port, const uint8_t *serial_number, uint32_t length);

/** Reads the handset's GUID; 4000 ms. Its lines and operation id are those of QV_ReadFlash.
 * @param guid  16 bytes, as the handset holds them
 * @return 0; 4; else the code of the read */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadGuid(uint8_t *guid);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadGuid_MT(int32_t port, uint8_t *guid);

/** Writes the production block and its checksum; 3000 ms.
 * @param length  bytes at `block`, at most 65525; 256 in handsets that keep their serial numbers there
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteProduct(const uint8_t *block, uint32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_FastWriteProduct_MT(
    int32_t port, const uint8_t *block, uint32_t length);

/** Reads the production block; 3000 ms.
 * @param block     as the handset holds it, without its checksum
 * @param capacity  bytes at `block`, 1 to 2147483647 and all writable
 * @param length    of the whole block, also when it was cut; as it was with code 4, 0 with all other failures
 * @return 0; 4; 5 when it was cut to `capacity`; 13 for an answer below 2 bytes; 34 when its checksum does not match,
 *   as that of a block above 998 bytes does not */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadProduct(
    uint8_t *block, uint32_t capacity, uint32_t *length);
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadProduct_MT(
    int32_t port, uint8_t *block, uint32_t capacity, uint32_t *length);

/** Reads the version block. Arguments and results as QV_FastReadProduct. */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadVerSion(
    uint8_t *block, uint32_t capacity, uint32_t *length);
MEROVANE_API int32_t MEROVANE_CALL QV_FastReadVerSion_MT(
    int32_t port, uint8_t *block, uint32_t capacity, uint32_t *length);

/** Reads how many IMEIs the handset holds. It waits only as long as the setting "Inc Recv Timeout" says: without one
 * it gives 11.
 * @param count  the answer's first word in this machine's byte order, whatever the handset's; written with code 13 too
 * @return 0; 4; 13 for an answer below 10 bytes */
MEROVANE_API int32_t MEROVANE_CALL QV_FastReaIMEICount(uint32_t *count);
MEROVANE_API int32_t MEROVANE_CALL QV_FastReaIMEICount_MT(int32_t port, uint32_t *count);

/* ---- Peripherals --------------------------------------------------------------------- */

/** Switches the LED on (non-zero) or off. Nothing is awaited. Handsets cannot tell it from QV_LcdOn(1), nor
 * QV_LedOn(0) from QV_VibrationOn(0): the codes are the same. */
MEROVANE_API int32_t MEROVANE_CALL QV_LedOn(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_LedOn_MT(int32_t port, uint32_t on);

/** Switches the vibrator on (non-zero) or off. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_VibrationOn(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_VibrationOn_MT(int32_t port, uint32_t on);

/** Switches the LCD on (non-zero) or off. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_LcdOn(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_LcdOn_MT(int32_t port, uint32_t on);

/** Switches the key light on (non-zero) or off. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_keyLightOn(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_keyLightOn_MT(int32_t port, uint32_t on);

/** Switches the camera on (non-zero) or off. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_CameraOn(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_CameraOn_MT(int32_t port, uint32_t on);

/** Measures an ADC channel.
 * @param channel     the handset's number of it
 * @param value       2 bytes, most significant first; written on success only
 * @param timeout_ms  above 0
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_ADCCalibration(
    uint8_t channel, uint8_t *value, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_ADCCalibration_MT(
    int32_t port, uint8_t channel, uint8_t *value, uint32_t timeout_ms);

/** Measures an ADC channel.
 * @param channel      the handset's number of it
 * @param value        written on success only, as the next two
 * @param third_byte   of the answer; null: not wanted
 * @param fourth_byte  of the answer; null: not wanted
 * @param timeout_ms   0: 1000
 * @return 0; 4 when `value` is null */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadAdcValue(
    uint8_t channel, uint16_t *value, uint8_t *third_byte, uint8_t *fourth_byte,
    uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadAdcValue_MT(
    int32_t port, uint8_t channel, uint16_t *value, uint8_t *third_byte, uint8_t *fourth_byte,
    uint32_t timeout_ms);

/** Measures the battery; 1000 ms.
 * @param voltage  in the handset's unit; 0 is stored when the exchange failed
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadPhoneVolt(uint32_t *voltage);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadPhoneVolt_MT(int32_t port, uint32_t *voltage);

/** Makes the handset act as if a key were pressed; 1000 ms.
 * @param key  the handset's code of it
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_PressKeyboard(uint32_t key);
MEROVANE_API int32_t MEROVANE_CALL QV_PressKeyboard_MT(int32_t port, uint32_t key);

/* ---- GPS ----------------------------------------------------------------------------- */

/** Opens (non-zero) or closes the receiver; 1000 ms.
 * @return 0; 30 when the answer does not repeat the command. Answers below 264 bytes are not tested, here and in the
 *   next two */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsOpen(uint32_t open);
MEROVANE_API int32_t MEROVANE_CALL QV_GpsOpen_MT(int32_t port, uint32_t open);

/** Writes the GPS settings; 1000 ms.
 * @param block  44 bytes. The 32-bit word at offset 24 is in this machine's byte order, the rest is the handset's
 * @return 0; 4; 30 when the answer does not repeat the command and length */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsWriteNv(const uint8_t *block);
MEROVANE_API int32_t MEROVANE_CALL QV_GpsWriteNv_MT(int32_t port, const uint8_t *block);

/** Reads the GPS settings; 1000 ms.
 * @param block  44 bytes, as in QV_GpsWriteNv; stored with code 30 too. Bytes that did not arrive read as 0
 * @return 0; 4; 30 when the answer does not repeat the command and length */
MEROVANE_API int32_t MEROVANE_CALL QV_GpsReadNv(uint8_t *block);
MEROVANE_API int32_t MEROVANE_CALL QV_GpsReadNv_MT(int32_t port, uint8_t *block);

/* ---- Bluetooth as equipment under test ----------------------------------------------- */

/** Enters (non-zero) or leaves the Bluetooth test mode; 3000 ms.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterEUTMode(uint32_t enter);
MEROVANE_API int32_t MEROVANE_CALL QV_EnterEUTMode_MT(int32_t port, uint32_t enter);

/** Stores the Bluetooth address; 3000 ms.
 * @param address  6 bytes, most significant first
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBTAddr(const uint8_t *address);
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBTAddr_MT(int32_t port, const uint8_t *address);

/** Reads the Bluetooth address; 1000 ms.
 * @param address  6 bytes, most significant first
 * @return 0; 4; 14 for an answer below 6 bytes, and for none */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBTAddr(uint8_t *address);
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBTAddr_MT(int32_t port, uint8_t *address);

/** Starts (3000 ms) or stops (1000 ms) a radio test.
 * @param start  0: stop; `words` is not looked at
 * @param words  four: the handset's, except the second, which is the channel, 0 to 78
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtRadioTest(uint32_t start, const uint32_t *words);
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtRadioTest_MT(
    int32_t port, uint32_t start, const uint32_t *words);

/** Starts (3000 ms) or stops (1000 ms) a carrier for frequency adjustment.
 * @param start    0: stop; `channel` is not looked at
 * @param channel  0 to 78
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtAFC(uint32_t start, uint32_t channel);
MEROVANE_API int32_t MEROVANE_CALL QV_StartBtAFC_MT(int32_t port, uint32_t start, uint32_t channel);

/** Tries a value of the frequency DAC; 1000 ms.
 * @param value  0 to 63
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetBtDacValue(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetBtDacValue_MT(int32_t port, uint32_t value);

/** Stores the value of the frequency DAC; 3000 ms.
 * @param value  0 to 63
 * @return 0; 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBtDacValue(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SaveBtDacValue_MT(int32_t port, uint32_t value);

/** Reads the stored value of the frequency DAC; 1000 ms.
 * @return 0; 4; 14 for an answer below 4 bytes, and for none */
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBtDacValue(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_LoadBtDacValue_MT(int32_t port, uint32_t *value);

/* ---- WiFi as equipment under test ---------------------------------------------------- */

/** Enters (non-zero) or leaves the WiFi test mode; 3000 ms.
 * @return 0; 38 when the handset reports a failure, as for every WiFi function */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_EnterEUTMode(uint32_t enter);

/** Stores the WiFi address; 3000 ms.
 * @param address  6 bytes. They reach the handset reversed, and QV_WIFI_LoadAddr does not turn them back: what is
 *   saved as 01 02 03 04 05 06 is loaded as 06 05 04 03 02 01
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SaveAddr(const uint8_t *address);

/** Reads the WiFi address; 1000 ms.
 * @param address  6 bytes, as the handset holds them; written on success only
 * @return 0; 4; 38, for an answer without six of them as well */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_LoadAddr(uint8_t *address);

/** Chooses the channel; 3000 ms.
 * @param channel  1 to 13; others choose 6
 * @return 0; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetChannel(uint32_t channel);

/** Chooses the data rate; 3000 ms.
 * @param rate  1, 2, 5, 6, 7, 9, 11, 12, 13, 18, 19, 24, 26, 36, 39, 48, 52, 54, 58 or 65 Mbit/s (rounded down)
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetDateRat(uint32_t rate);

/** Chooses the modulation mode; 3000 ms.
 * @param mode  0 to 6
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetMode(uint32_t mode);

/** Chooses the power control level; 3000 ms.
 * @param level  1 to 5
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetPCL(uint32_t level);

/** Switches the transmitter; 3000 ms.
 * @param enable    0: off
 * @param argument  the handset's
 * @return 0; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetTxStatus(uint32_t enable, uint32_t argument);

/** Switches the receiver; 1000 ms.
 * @param mode  0 off, 1 on; others clear the received counts
 * @return 0; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetRxStatus(uint32_t mode);

/** Reads the received counts; 1000 ms.
 * @param first   the handset's first count; 0 when no answer came
 * @param second  its second
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_ReadRxValue(uint32_t *first, uint32_t *second);

/** Reads, writes or sets a calibration factor.
 * @param operation  0 reads the one that the handset holds (1000 ms), 1 writes it (8000 ms), 2 sets it (8000 ms)
 * @param factor     read: all of it, on success; otherwise index and value are sent
 * @return 0; 4; 38, and nothing sent, for another operation or an index that is not 1 to 5 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_OperFactor(uint32_t operation, QV_WIFI_FACTOR *factor);

/** Stores the crystal's load capacitance; 3000 ms.
 * @param capacitance  2 bytes, sent as they are
 * @return 0; 4; 38 */
MEROVANE_API int32_t MEROVANE_CALL QV_WIFI_SetCrystalCap(const uint8_t *capacitance);

/* ---- DSP debugging ------------------------------------------------------------------- */

/** Resets the DSP's RF parameters; 4000 ms. The DSP functions have no operation ids: results are reported under the one of
 * the command before.
 * @return 0; 35 when the handset reports a failure, as for every DSP function */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_ResetRFparam(void);

/** Reads the DSP's registers or memory; 4000 ms.
 * @param unused   not looked at
 * @param width    bytes of a unit: 1, 2 or 4
 * @param address  of the first unit
 * @param data     `count` units, in the handset's byte order, on success. Units that did not arrive read as 0
 * @param count    of units, above 0
 * @return 0; 4; 35 */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_RdRegMemo(
    uint32_t unused, uint32_t width, uint32_t address, uint8_t *data, uint16_t count);

/** Writes a unit of the DSP's registers or memory; 4000 ms.
 * @param unused  not looked at
 * @param width   bytes of the unit: 1, 2 or 4
 * @return 0; 4; 35 */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_WrRegMemo(
    uint32_t unused, uint32_t width, uint32_t address, uint32_t value);

/** Has the DSP plot a frame; 4000 ms. The arguments are the handset's.
 * @return 0; 35 */
MEROVANE_API int32_t MEROVANE_CALL QV_DspDebug_PlotFrame(
    uint32_t a, uint8_t b, uint8_t c, uint16_t d, uint16_t e);

/* ---- Calibration: modes and activation ----------------------------------------------- */

/** Changes the handset's layer-1 software to GSM (mode 1) or TD-SCDMA (mode 7) calibration. Other modes send nothing.
 * Mode 1 waits 3000 ms for the acknowledgement and then, for the setting "Inc Recv Timeout" alone, for the
 * handset's confirmation; without that setting it ends in 11 though the handset has changed its mode.
 * Mode 7 waits 1000 ms and does not look at the outcome.
 * @return 0; 35 when the handset confirms with a status other than 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ChangeGSMTDCalMode(int32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_ChangeGSMTDCalMode_MT(int32_t port, int32_t mode);

/** Prepares TD-SCDMA (mode 7) or GSM (mode 1) calibration. Other modes send nothing.
 * Mode 7 waits 1000 ms and is confirmed as mode 1 of QV_ChangeGSMTDCalMode is; mode 1 waits 1000 ms and does not look
 * at the outcome.
 * @return 0; 35 when the handset confirms with a status other than 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_InitGSMTDCalMode(int32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_InitGSMTDCalMode_MT(int32_t port, int32_t mode);

/** Activates (non-zero) or deactivates the calibration layer; 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_Active(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MT(int32_t port, uint32_t on);

/** Chooses the band that the following commands work in; 1000 ms.
 * @param band  0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark(uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MT(int32_t port, uint32_t band);

/* ---- Calibration: GSM frequency and receiver ----------------------------------------- */

/** Starts (non-zero) or stops transmitting with a frequency trim; 1000 ms.
 * @param parameters  not used to stop
 * @return 0; 4 when `parameters` is null and would be used */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart(uint32_t start, const QV_AFC_PARAMETERS *parameters);
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MT(
    int32_t port, uint32_t start, const QV_AFC_PARAMETERS *parameters);

/** Runs an extended AFC measurement and collects its report, or, with start 0, stops one. For the default phone object
 * only. Each block of the report is waited for at most 3 times 3000 ms (the first) or 1000 ms; a block of 500 bytes or
 * less ends the report and is not part of it, so that a first one of that length leaves it empty, as does one that
 * announces no further block. A run that fails is not stopped: call again with start 0.
 * @param run  not used to stop. Report and its length are written on success only; up to 27648 bytes, as words
 * @return 0; 4 when `run` is null or its count above 16; 10 when the report is longer than that */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStartEx(uint32_t start, QV_EXTENDED_AFC *run);

/** Starts (non-zero) a receive measurement and takes its report, or stops it. Waits 1000 ms for the acknowledgement,
 * 200 ms for the measurement and 1000 ms for the report.
 * @param parameters, measured  not used to stop. Fields that the report is too short for read 0
 * @return 0; 4 when a pointer is null that would be used; 6 or 9 when no report came; 15 when the report is empty,
 *   and `measured` is zeroed */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart(
    uint32_t start, const QV_AGC_PARAMETERS *parameters, QV_AGC_RESULT *measured);
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MT(
    int32_t port, uint32_t start, const QV_AGC_PARAMETERS *parameters, QV_AGC_RESULT *measured);

/* ---- Calibration: GSM transmit power ------------------------------------------------- */

/** Sets a power step factor; 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MT(int32_t port, const QV_POWER_STEP *step);

/** Sets the power amplifier; 1000 ms. Only the low 16 bits of `fourth` are put into the handset's byte order.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_PASetting(const QV_POWER_STEP *setting);
MEROVANE_API int32_t MEROVANE_CALL QV_PASetting_MT(int32_t port, const QV_POWER_STEP *setting);

/** Sets the ramps of a band; 1000 ms.
 * @param flag       sent as 1 when not 0
 * @param ramp_up    16 points
 * @param ramp_down  16 points
 * @param band       0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting(
    uint32_t flag, const uint16_t *ramp_up, const uint16_t *ramp_down, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_MT(
    int32_t port, uint32_t flag, const uint16_t *ramp_up, const uint16_t *ramp_down,
    uint32_t band);

/** Switches to maximum transmit power. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus(void);
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxTxPowerStatus_MT(int32_t port);

/** Leaves maximum transmit or receive power. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus(void);
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxTxPowerStatus_MT(int32_t port);

/** Switches to maximum receive power. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus(void);
MEROVANE_API int32_t MEROVANE_CALL QV_EnterMaxRxPowerStatus_MT(int32_t port);

/** Leaves maximum transmit or receive power. Nothing is awaited. */
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus(void);
MEROVANE_API int32_t MEROVANE_CALL QV_LeaveMaxRxPowerStatus_MT(int32_t port);

/* ---- Calibration: IMEI --------------------------------------------------------------- */

/** Reads the IMEI from the handset's NV item 5; 1000 ms.
 * @param imei  8 bytes, two digits each, as the handset keeps them
 * @return 0; 4 for a null pointer; 15 when the answer is of another item or has fewer than 8 bytes */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI(uint8_t *imei);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_MT(int32_t port, uint8_t *imei);

/** The same as text.
 * @param text  at least 16 bytes: 15 decimal digits and a zero. A damaged digit shows as its value, 10 to 15, and the
 *   text is cut to 15 characters
 * @return as QV_ReadIMEI */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_ASCII(char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadIMEI_ASCII_MT(int32_t port, char *text);

/* ---- Calibration data: ADC ----------------------------------------------------------- */

/** Reads item 1 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc0(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc0_MT(int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc0(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc0_MT(int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 1. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc1(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Adc1_MT(int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 1. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc1(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Adc1_MT(int32_t port, uint32_t value);

/** Reads item 1 in RAM: one value from offset 2. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery0(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery0_MT(int32_t port, uint32_t *value);

/** Writes item 1 in RAM: one value from offset 2. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery0(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery0_MT(int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 2. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery0(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery0_MT(int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 2. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery0(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery0_MT(int32_t port, uint32_t value);

/** Reads item 1 in RAM: one value from offset 3. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery1(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_ADC_Battery1_MT(int32_t port, uint32_t *value);

/** Writes item 1 in RAM: one value from offset 3. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery1(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_ADC_Battery1_MT(int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 3. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery1(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Battery1_MT(int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 3. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery1(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Battery1_MT(int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 4. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved0(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved0_MT(
    int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 4. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved0(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved0_MT(
    int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 5. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved1(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved1_MT(
    int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 5. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved1(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved1_MT(
    int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset 11. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved7(uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_Reserved7_MT(
    int32_t port, uint32_t *value);

/** Writes item 1 in flash: one value from offset 11. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved7(uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_Reserved7_MT(
    int32_t port, uint32_t value);

/** Reads item 1 in flash: one value from offset `offset`. 1000 ms.
 * @param offset  in elements; 8 bits
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC(uint8_t offset, uint32_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_ADC_MT(
    int32_t port, uint8_t offset, uint32_t *value);

/** Writes item 1 in flash: one value from offset `offset`. 1000 ms.
 * @param offset  in elements; 8 bits */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC(uint8_t offset, uint32_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_ADC_MT(
    int32_t port, uint8_t offset, uint32_t value);

/* ---- Calibration data: AFC ----------------------------------------------------------- */

/** Reads item 2 in RAM: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_center(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_center_MT(int32_t port, uint16_t *value);

/** Writes item 2 in RAM: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_center(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_center_MT(int32_t port, uint16_t value);

/** Reads item 2 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_center(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_center_MT(
    int32_t port, uint16_t *value);

/** Writes item 2 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_center(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_center_MT(
    int32_t port, uint16_t value);

/** Reads item 3 in RAM: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t *value);

/** Writes item 3 in RAM: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t value);

/** Reads item 3 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t *value);

/** Writes item 3 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits_MT(
    int32_t port, uint16_t value);

/** Reads item 5 in RAM: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_length(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_length_MT(
    int32_t port, uint16_t *value);

/** Writes item 5 in RAM: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_length(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_length_MT(
    int32_t port, uint16_t value);

/** Reads item 5 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_length(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_length_MT(
    int32_t port, uint16_t *value);

/** Writes item 5 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_length(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_length_MT(
    int32_t port, uint16_t value);

/** Reads item 6 in RAM: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CDAC(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CDAC_MT(int32_t port, uint16_t *value);

/** Writes item 6 in RAM: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CDAC(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CDAC_MT(int32_t port, uint16_t value);

/** Reads item 6 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CDAC(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CDAC_MT(int32_t port, uint16_t *value);

/** Writes item 6 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CDAC(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CDAC_MT(int32_t port, uint16_t value);

/** Reads item 7 in RAM: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CAFC(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_CAFC_MT(int32_t port, uint16_t *value);

/** Writes item 7 in RAM: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CAFC(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_CAFC_MT(int32_t port, uint16_t value);

/** Reads item 7 in flash: one value. 1000 ms.
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CAFC(uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_CAFC_MT(int32_t port, uint16_t *value);

/** Writes item 7 in flash: one value. 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CAFC(uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_CAFC_MT(int32_t port, uint16_t value);

/** Reads item 14 in RAM: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_value_arr(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_afc_value_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 14 in RAM: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_value_arr(const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_afc_value_arr_MT(
    int32_t port, const uint16_t *values);

/** Reads item 14 in flash: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_value_arr(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_afc_value_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 14 in flash: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_value_arr(const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_afc_value_arr_MT(
    int32_t port, const uint16_t *values);

/** Reads item 4 in RAM: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_arr(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 4 in RAM: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_arr(const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_arr_MT(
    int32_t port, const uint16_t *values);

/** Reads item 4 in flash: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_arr(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 4 in flash: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_arr(const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_arr_MT(
    int32_t port, const uint16_t *values);

/** Reads item 15 in RAM: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_reciprocal_arr(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 15 in RAM: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_reciprocal_arr(
    const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, const uint16_t *values);

/** Reads item 15 in flash: 17 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_reciprocal_arr(
    uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, uint16_t *values);

/** Writes item 15 in flash: 17 values. 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_reciprocal_arr(
    const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AFC_slope_value_reciprocal_arr_MT(
    int32_t port, const uint16_t *values);

/* ---- Calibration data: APC ----------------------------------------------------------- */

/** Reads item 21 of a band in RAM: 80 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 21 of a band in RAM: 80 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/** Reads item 21 of a band in flash: 80 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 21 of a band in flash: 80 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/** Reads item 36 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 36 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads item 36 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 36 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_8Psk(
    uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_APC_RF_ramppwr_step_factor_8Psk_MT(
    int32_t port, uint32_t band, uint16_t value);

/* ---- Calibration data: AGC ----------------------------------------------------------- */

/** Reads item 24 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_max_rf_gain_index(
    uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 24 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_max_rf_gain_index(
    uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads item 24 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_max_rf_gain_index(
    uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 24 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_max_rf_gain_index(
    uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_max_rf_gain_index_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads item 18 of a band in RAM: `count` values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param count   of values, 1 to 32758
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer, another band or another count; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_RX_compensate_value(
    uint32_t band, uint16_t *values, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, uint16_t *values, uint32_t count);

/** Writes item 18 of a band in RAM: `count` values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param count   of values, 1 to 32758
 * @return 0; 4 for a null pointer, another band or another count */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_RX_compensate_value(
    uint32_t band, const uint16_t *values, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, const uint16_t *values, uint32_t count);

/** Reads item 18 of a band in flash: `count` values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param count   of values, 1 to 32758
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer, another band or another count; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_RX_compensate_value(
    uint32_t band, uint16_t *values, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, uint16_t *values, uint32_t count);

/** Writes item 18 of a band in flash: `count` values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param count   of values, 1 to 32758
 * @return 0; 4 for a null pointer, another band or another count */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_RX_compensate_value(
    uint32_t band, const uint16_t *values, uint32_t count);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_RX_compensate_value_MT(
    int32_t port, uint32_t band, const uint16_t *values, uint32_t count);

/** Reads item 23 of a band in RAM: 91 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_agc_ctrl_word(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 23 of a band in RAM: 91 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_agc_ctrl_word(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/** Reads item 23 of a band in flash: 91 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_agc_ctrl_word(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 23 of a band in flash: 91 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_agc_ctrl_word(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_AGC_agc_ctrl_word_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/* ---- Calibration data: ramp tables --------------------------------------------------- */

/** Reads item 8 of a band in RAM: 20 values from offset 20 x `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   at most 3276
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer, another band or a greater index; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Ram(
    uint32_t band, uint16_t index, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *values);

/** Writes item 8 of a band in RAM: 20 values from offset 20 x `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   at most 3276
 * @return 0; 4 for a null pointer, another band or a greater index */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Ram(
    uint32_t band, uint16_t index, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, const uint16_t *values);

/** Reads item 8 of a band in flash: 20 values from offset 20 x `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   at most 3276
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer, another band or a greater index; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Flash(
    uint32_t band, uint16_t index, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTable_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *values);

/** Writes item 8 of a band in flash: 20 values from offset 20 x `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   at most 3276
 * @return 0; 4 for a null pointer, another band or a greater index */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Flash(
    uint32_t band, uint16_t index, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTable_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, const uint16_t *values);

/** Reads item 9 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Ram(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 9 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Ram(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 9 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Flash(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstUp_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 9 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Flash(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstUp_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 10 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Ram(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 10 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Ram(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Ram_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 10 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Flash(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableConstDown_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 10 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Flash(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableConstDown_Flash_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 11 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Ram(uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Ram_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 11 of a band in RAM: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Ram(uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Ram_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads item 11 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Flash(uint32_t band, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampUpParamNum_Flash_MT(
    int32_t port, uint32_t band, uint16_t *value);

/** Writes item 11 of a band in flash: one value. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Flash(uint32_t band, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampUpParamNum_Flash_MT(
    int32_t port, uint32_t band, uint16_t value);

/** Reads item 9 of a band in flash: 16 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstUp_Flash(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstUp_Flash_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 9 of a band in flash: 16 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstUp_Flash(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstUp_Flash_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/** Reads item 10 of a band in flash: 16 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstDown_Flash(
    uint32_t band, uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRampTableAllConstDown_Flash_MT(
    int32_t port, uint32_t band, uint16_t *values);

/** Writes item 10 of a band in flash: 16 values. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstDown_Flash(
    uint32_t band, const uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_SetRampTableAllConstDown_Flash_MT(
    int32_t port, uint32_t band, const uint16_t *values);

/* ---- Calibration data: transmit timing and gain -------------------------------------- */

/** Reads item 12 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 12 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 12 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 12 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 13 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 13 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 13 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 13 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 38 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 38 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 38 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 38 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_8PSK(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Delta_Timing_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 39 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 39 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Ram_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 39 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Writes item 39 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @return 0; 4 for another band */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_8PSK(
    uint32_t band, uint16_t index, uint16_t value);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_Duration_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t value);

/** Reads item 37 of a band in RAM: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_TxGain_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Ram_TxGain_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/** Reads item 37 of a band in flash: one value from offset `index`. 1000 ms.
 * @param band    0, 1, 3 or 4
 * @param index   in elements
 * @param value   bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer or another band; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_TxGain_8PSK(
    uint32_t band, uint16_t index, uint16_t *value);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_TxGain_8PSK_MT(
    int32_t port, uint32_t band, uint16_t index, uint16_t *value);

/* ---- Calibration data: IMEIs in flash ------------------------------------------------ */

/** Reads item 30 in flash, an IMEI. 1000 ms.
 * @param text  at least 16 bytes: 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters; a digit that the answer lacks shows as 0
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_IMEI(char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_IMEI_MT(int32_t port, char *text);

/** Writes item 30 in flash, an IMEI. 3000 ms.
 * @param text  begins with 15 decimal digits; what follows does not matter
 * @return 0; 4 for a null pointer or another character among the first 15 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_IMEI(const char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_IMEI_MT(int32_t port, const char *text);

/** Reads item 35 in flash, an IMEI. 1000 ms.
 * @param text  at least 16 bytes: 15 decimal digits and a zero. A damaged digit shows as its value, 10 to
 *   15, and the text is cut to 15 characters; a digit that the answer lacks shows as 0
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_SecIMEI(char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadData_Flash_SecIMEI_MT(int32_t port, char *text);

/** Writes item 35 in flash, an IMEI. 3000 ms.
 * @param text  begins with 15 decimal digits; what follows does not matter
 * @return 0; 4 for a null pointer or another character among the first 15 */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_SecIMEI(const char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteData_Flash_SecIMEI_MT(int32_t port, const char *text);

/* ---- Calibration data: saving, RF scheme --------------------------------------------- */

/** Saves all items in RAM to flash, through item 32.
 * @param timeout_ms  of the acknowledgement; saving can take many seconds
 * @return 0; 11 when the handset had not acknowledged in time */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToFlash(uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToFlash_MT(int32_t port, uint32_t timeout_ms);

/** Reads item 33 in RAM: 6 values. 1000 ms.
 * @param values  bytes that the answer lacks stay as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_GetRfScheme(uint16_t *values);
MEROVANE_API int32_t MEROVANE_CALL QV_GetRfScheme_MT(int32_t port, uint16_t *values);

/* ---- Calibration data: temperature and EDGE compensation ----------------------------- */

/** Reads or writes item 48: 5 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_OSCI_TEMP_COM_IN_DAC(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 49: 9 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_GSM_TX_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 50: 9 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_EDGE_TX_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 51: 6 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_GSM_TXPOWER_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 52: 6 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_EDGE_TXPOWER_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 53: 4 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TX_COMPENSATE_BOUNDARY_ARFCN_INDEX(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 54: 4 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_RX_COMPENSATE_ADC(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 55: 5 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_RX_LEVEL_COMPENSATE(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 56: 4 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_TX_COMPENSATE_ADC(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 57: 5 values. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 58: one value. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_RF_EDGE_DELTA_TIMING(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/** Reads or writes item 59: one value. 1000 ms. For the default phone object only.
 * @param read    not 0: read; 0: write
 * @param flash   not 0: in flash; 0: in RAM
 * @param band    the band word, unchecked
 * @param values  reading leaves those that the answer lacks as they were
 * @return 0; 4 for a null pointer; 13 when the answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_RW_RF_EDGE_POWER_ON_DURATION(
    uint32_t read, uint32_t flash, uint16_t band, uint16_t *values);

/* ---- Calibration: multi-chip handsets ------------------------------------------------ */

/** Chooses the band word of QV_Active_MChip, QV_TxOn_MChip, QV_AfcStart_MChip, QV_AgcStart_MChip and
 * QV_PwrStepFactorSet_MChip. Nothing is sent. QV_CalDirectCurr sets it to 0.
 * @param band  0, 1, 3 or 4
 * @return 0; 4 for another band, and the old one stays */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MChip(uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneClassmark_MChip_MT(int32_t port, uint32_t band);

/** Chooses how QV_AfcStart_MChip trims: with CDAC and CAFC (not 0) or with the CAFC centre (0). Nothing is sent.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneAfcMode(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneAfcMode_MT(int32_t port, uint32_t mode);

/** Sets the four transmit parameters that go to the handset whenever its transmitter is switched; all are 0 until
 * then. Nothing is sent. For the default phone object only.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetTxParam(
    uint32_t first, uint16_t second, uint16_t third, uint16_t fourth);

/** Activates (non-zero) or deactivates the calibration layer; 1000 ms. */
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MChip(uint32_t on);
MEROVANE_API int32_t MEROVANE_CALL QV_Active_MChip_MT(int32_t port, uint32_t on);

/** Tunes, sets the power control level and switches the transmitter on (non-zero), or switches it off. Ends at the
 * first step that fails; each is waited for 1000 ms. The channel is sent only when it differs from the one sent last on
 * this phone object (0 at first), whatever the band and though the handset was restarted since.
 * @param channel, level  not used to switch off */
MEROVANE_API int32_t MEROVANE_CALL QV_TxOn_MChip(uint32_t on, uint16_t channel, uint16_t level);
MEROVANE_API int32_t MEROVANE_CALL QV_TxOn_MChip_MT(
    int32_t port, uint32_t on, uint16_t channel, uint16_t level);

/** Tunes to values[1], sets the power control level values[2] and the trim, and switches the transmitter on
 * (non-zero); or switches it off. The trim is CAFC centre values[0], or CDAC values[0] and CAFC values[3]: see
 * QV_SetPhoneAfcMode. Ends at the first step that fails; each is waited for 1000 ms. Channel and trims are sent only
 * when they differ from those sent last, as in QV_TxOn_MChip.
 * @param parameters  not used to stop
 * @return 0; 4 when `parameters` is null and would be used */
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MChip(
    uint32_t start, const QV_AFC_PARAMETERS *parameters);
MEROVANE_API int32_t MEROVANE_CALL QV_AfcStart_MChip_MT(
    int32_t port, uint32_t start, const QV_AFC_PARAMETERS *parameters);

/** Tunes to words[0] as QV_TxOn_MChip does, sets the power control level words[3], switches the receiver on with words[1]
 * and [2] and, after 200 ms, reads RSSI and RxLevel; or, with start 0, switches the receiver off with the same words.
 * Ends at the first step that fails; steps are waited for 1000 ms, RSSI by up to six reads of 3000 ms each, RxLevel
 * 3000 ms.
 * @param measured  `value` stays as it was; not used to stop
 * @return 0; 4 for a null pointer that would be used (`parameters` always is); 13; 32 when six reads gave an RSSI of 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MChip(
    uint32_t start, const QV_AGC_PARAMETERS *parameters, QV_AGC_RESULT *measured);
MEROVANE_API int32_t MEROVANE_CALL QV_AgcStart_MChip_MT(
    int32_t port, uint32_t start, const QV_AGC_PARAMETERS *parameters, QV_AGC_RESULT *measured);

/** Measures the receiver's direct-current offset on channel 61 of band 0, which become the current band and the channel
 * tuned to last. The receiver is switched off at the end whatever happened.
 * @param first   the second word of the measurement
 * @param second  the first word of the measurement
 * @return 0; 4 for a null pointer; else the code of the first step that failed */
MEROVANE_API int32_t MEROVANE_CALL QV_CalDirectCurr(uint16_t *first, uint16_t *second);
MEROVANE_API int32_t MEROVANE_CALL QV_CalDirectCurr_MT(
    int32_t port, uint16_t *first, uint16_t *second);

/** Sends a non-signalling command.
 * @param answer      written for command 6 only, also when the handset reports a failure; for others it may be null
 * @param timeout_ms  of the answer
 * @return 0; 4 for a null pointer that would be used; 33 when the answer has fewer than 8 bytes or reports a failure */
MEROVANE_API int32_t MEROVANE_CALL QV_SendNonSignalCmd(
    const QV_NON_SIGNAL_COMMAND *command, QV_NON_SIGNAL_ANSWER *answer, uint32_t timeout_ms);
MEROVANE_API int32_t MEROVANE_CALL QV_SendNonSignalCmd_MT(
    int32_t port, const QV_NON_SIGNAL_COMMAND *command, QV_NON_SIGNAL_ANSWER *answer,
    uint32_t timeout_ms);

/* ---- Calibration: power factors and ramps of multi-chip handsets --------------------- */

/** Writes `third` to item 21 in RAM in the band of QV_SetPhoneClassmark_MChip. 1000 ms.
 * Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`
 * and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted
 * since: the result is 0.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MChip(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_MChip_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Writes `third` to item 36 in flash in the band `first`. 1000 ms.
 * Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`
 * and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted
 * since: the result is 0.
 * @return 0; 4 for a null pointer or a band other than 0, 1, 3 and 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_FACTOR_MChip(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_FACTOR_MChip_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Writes `third` to item 36 in RAM in the band `first`. 1000 ms.
 * Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`
 * and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted
 * since: the result is 0.
 * @return 0; 4 for a null pointer or a band other than 0, 1, 3 and 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_FACTOR_MChip(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_FACTOR_MChip_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Writes `third` to item 37 in flash in the band `first`. 1000 ms.
 * Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`
 * and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted
 * since: the result is 0.
 * @return 0; 4 for a null pointer or a band other than 0, 1, 3 and 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_TX_GAIN_MChip(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Flash_8PSK_PWR_TX_GAIN_MChip_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Writes `third` to item 37 in RAM in the band `first`. 1000 ms.
 * Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`
 * and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted
 * since: the result is 0.
 * @return 0; 4 for a null pointer or a band other than 0, 1, 3 and 4 */
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Writes two ramp tables in RAM: the items 9 and 11 when `flag` is not 0, else 8 and 10. 1000 ms each.
 * @param first   16 points
 * @param second  16 points
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Ram_MChip(
    uint32_t flag, const uint16_t *first, const uint16_t *second, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Ram_MChip_MT(
    int32_t port, uint32_t flag, const uint16_t *first, const uint16_t *second, uint32_t band);

/** Reads two ramp tables in RAM: the items 9 and 11 when `flag` is not 0, else 8 and 10. 1000 ms each.
 * @param first   16 points
 * @param second  16 points; points that an answer lacks stay as they were
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band; 13 when an answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Ram_MChip(
    uint32_t flag, uint16_t *first, uint16_t *second, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Ram_MChip_MT(
    int32_t port, uint32_t flag, uint16_t *first, uint16_t *second, uint32_t band);

/** Writes two ramp tables in flash: the items 9 and 11 when `flag` is not 0, else 8 and 10. 1000 ms each.
 * @param first   16 points
 * @param second  16 points
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band */
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Flash_MChip(
    uint32_t flag, const uint16_t *first, const uint16_t *second, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_RampSetting_Flash_MChip_MT(
    int32_t port, uint32_t flag, const uint16_t *first, const uint16_t *second, uint32_t band);

/** Reads two ramp tables in flash: the items 9 and 11 when `flag` is not 0, else 8 and 10. 1000 ms each.
 * @param first   16 points
 * @param second  16 points; points that an answer lacks stay as they were
 * @param band    0, 1, 3 or 4
 * @return 0; 4 for a null pointer or another band; 13 when an answer has no data */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Flash_MChip(
    uint32_t flag, uint16_t *first, uint16_t *second, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadRamp_Flash_MChip_MT(
    int32_t port, uint32_t flag, uint16_t *first, uint16_t *second, uint32_t band);

/* ---- Calibration: TD-SCDMA ----------------------------------------------------------- */

/** Starts a transmit sweep over a list of points; 1000 ms.
 * @return 0; 4 for a null pointer or more than 8 points */
MEROVANE_API int32_t MEROVANE_CALL QV_TDTxSweep(const QV_TD_TX_SWEEP *sweep);
MEROVANE_API int32_t MEROVANE_CALL QV_TDTxSweep_MT(int32_t port, const QV_TD_TX_SWEEP *sweep);

/** Starts transmitting; 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_TdStartTx(const QV_TD_TX_START *start);
MEROVANE_API int32_t MEROVANE_CALL QV_TdStartTx_MT(int32_t port, const QV_TD_TX_START *start);

/** Sets the power steps to sweep over; 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSweepSet_TD(const QV_TD_POWER_SWEEP *sweep);
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSweepSet_TD_MT(
    int32_t port, const QV_TD_POWER_SWEEP *sweep);

/** Sets a power step factor, with what QV_SetTDContTxRxMode said; 1000 ms.
 * @return 0; 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_TD(const QV_POWER_STEP *step);
MEROVANE_API int32_t MEROVANE_CALL QV_PwrStepFactorSet_TD_MT(
    int32_t port, const QV_POWER_STEP *step);

/** Chooses continuous transmission and reception (not 0) for QV_PwrStepFactorSet_TD. Nothing is sent.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetTDContTxRxMode(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_SetTDContTxRxMode_MT(int32_t port, uint32_t mode);

/** Reads the handset's mode; 1000 ms.
 * @param data      the answer's payload, cut to `capacity`
 * @param capacity  bytes at `data`, above 0
 * @return 0; 4 for a null pointer or capacity 0; 5 when the payload was cut */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_TD(uint8_t *data, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadMode_TD_MT(
    int32_t port, uint8_t *data, uint32_t capacity);

/** Puts a booting handset into a TD-SCDMA start mode and takes the next frame as its acknowledgement; 3000 ms.
 * @param mode  128 is added, and the sum sent in 8 bits
 * @return 0; 6 or 9 when no frame came; 16 when the frame is no acknowledgement */
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_TD(uint32_t mode);
MEROVANE_API int32_t MEROVANE_CALL QV_SetPhoneStartMode_TD_MT(int32_t port, uint32_t mode);

/** Reads calibration parameters; 1000 ms.
 * @param parameters  selector and count are given, the values written, on success only
 * @return 0; 4 for a null pointer or a count above 3073; 13 when the handset returns fewer values; 15 when the answer
 *   is too short for them */
MEROVANE_API int32_t MEROVANE_CALL QV_ReadTDCalParam(QV_TD_PARAMETERS *parameters);
MEROVANE_API int32_t MEROVANE_CALL QV_ReadTDCalParam_MT(int32_t port, QV_TD_PARAMETERS *parameters);

/** Writes calibration parameters; 1000 ms.
 * @return 0; 4 for a null pointer or a count of 0 or above 3073; 13 when the handset took another number of values;
 *   15 when its answer has fewer than 8 bytes */
MEROVANE_API int32_t MEROVANE_CALL QV_WriteTDCalParam(const QV_TD_PARAMETERS *parameters);
MEROVANE_API int32_t MEROVANE_CALL QV_WriteTDCalParam_MT(
    int32_t port, const QV_TD_PARAMETERS *parameters);

/* ---- NV projects --------------------------------------------------------------------- */

/** Opens an NV project in place of the one that the phone object holds, if any. An NV project belongs to a phone
 * object. The functions that work on it give 17 while none is open, and send nothing.
 * @param path  of the project file, in the system's narrow encoding; its module files are read with it. `path` must
 *   have a directory part ("./p.prj"): without one, reading stops at the first TARGET or MODULE line that is not
 *   absolute, and the result is 0 with the modules read so far, mostly none
 * @return 0; 4 when `path` is null; 29 when the project names no module, or when it or one of its modules cannot be
 *   read: no project is open then */
MEROVANE_API int32_t MEROVANE_CALL QV_OpenPrjFile(const char *path);
MEROVANE_API int32_t MEROVANE_CALL QV_OpenPrjFile_MT(int32_t port, const char *path);

/** Closes the phone object's NV project. Changes that were not put into an image are lost.
 * @return 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ClosePrjFile(void);
MEROVANE_API int32_t MEROVANE_CALL QV_ClosePrjFile_MT(int32_t port);

/** Reads an item's content as text.
 * @param module    not used: the first item of that path in load order answers
 * @param path      full dotted path, letter case ignored, such as "calibration_param_T.adc.battery[0]"
 * @param text      exactly `capacity` bytes are written: the text, cut to fit, then zeros. A text of `capacity`
 *   characters or more has no terminating zero
 * @param capacity  bytes at `text`; 256 hold every text
 * @return 0; 4 for a null pointer or a capacity that is 0 or negative; 17; 18 when there is no item of that path
 *   (whatever the code's name says) */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue(
    uint32_t module, const char *path, char *text, uint32_t capacity);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_MT(
    int32_t port, uint32_t module, const char *path, char *text, uint32_t capacity);

/** Replaces an item's content.
 * @param text  a block of 256 bytes; at most 255 characters, up to the first zero, are stored. Numbers are decimal
 *   or, with an "x" in them, hexadecimal
 * @return 0; 4 for a null pointer; 17; 18 when there is no item of that path */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue(
    uint32_t module, const char *path, const char *text);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_MT(
    int32_t port, uint32_t module, const char *path, const char *text);

/** Builds the NV image.
 * @param buffer  65,536 bytes; those behind the image become zero
 * @param length  bytes of the image
 * @return 0; 4 for a null pointer; 17; 5 when the image would pass 65,536 bytes: nothing is written then */
MEROVANE_API int32_t MEROVANE_CALL QV_GenerateNvBianryDataBlockInMemory(
    void *buffer, uint32_t *length);
MEROVANE_API int32_t MEROVANE_CALL QV_GenerateNvBianryDataBlockInMemory_MT(
    int32_t port, void *buffer, uint32_t *length);

/** Builds the NV image into the project's TARGET file. For the default phone object only.
 * @return 0, also when the file cannot be written, which a message box tells; 17; 5 when the image would pass 65,536
 *   bytes: the file is left as it was */
MEROVANE_API int32_t MEROVANE_CALL QV_SaveToBinaryFile(void);

/** Tells where an item's data stand: for a CHAR, SHORT or LONG member or element its place in its top-level item's
 * data; 0 for a top-level scalar or array. For a structure, and for an array inside one, it tells the widest
 * alignment (0, 1, 2 or 4): ask for its first element.
 * @param path    letter case counts
 * @param offset  in bytes. No size is told, whatever the name says
 * @return 0; 4 for a null pointer; 17; 18 when there is no item of that path */
MEROVANE_API int32_t MEROVANE_CALL QV_GetItemOffsetAndSize(const char *path, uint32_t *offset);
MEROVANE_API int32_t MEROVANE_CALL QV_GetItemOffsetAndSize_MT(
    int32_t port, const char *path, uint32_t *offset);

/** Reverses the byte order of 16- and 32-bit values in a block, as the items from `path` on say. Only values that lie
 * without a gap behind one another are converted: convert each run between padding by itself. A structure or array
 * inside the run can count as a byte as well.
 * @param path    of the item where the block begins; letter case counts. A structure or array counts as one byte of
 *   its own: begin at its first member. An unknown path changes nothing
 * @param length  bytes at `data`
 * @return 0; 17 (tested first); 4 for a null pointer or length 0 */
MEROVANE_API int32_t MEROVANE_CALL QV_ConvertDataByDataType(
    const char *path, void *data, uint32_t length);
MEROVANE_API int32_t MEROVANE_CALL QV_ConvertDataByDataType_MT(
    int32_t port, const char *path, void *data, uint32_t length);

/* ---- NV projects: calibration parameters --------------------------------------------- */

/** Reads a band's AGC words, gain index and receive boundaries.
 * @param agc_words    91 values
 * @param gain_index   one value
 * @param rx_boundary  4 values
 * @param band         0 GSM, 1 GSM850, 2 DCS, 3 PCS
 * @return 0, also when the project lacks some of them (a missing element repeats the one before); 4 for a null pointer or
 *   another band; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Agc(
    uint16_t *agc_words, uint16_t *gain_index, uint16_t *rx_boundary, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Agc_MT(
    int32_t port, uint16_t *agc_words, uint16_t *gain_index, uint16_t *rx_boundary, uint32_t band);

/** Writes a band's AGC words, gain index and receive compensation. The gain indices of GSM, DCS and GSM850 are written
 * with it, with the values last read by QV_GetNvValue_Agc or written by QV_SetNvValue_Agc in this project, 0 before
 * that.
 * @param agc_words        91 values
 * @param rx_compensation  5 values
 * @param band             0 GSM, 1 GSM850, 2 DCS, 3 PCS
 * @return 0; 4 for a null pointer or another band; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Agc(
    const uint16_t *agc_words, uint16_t gain_index, const uint16_t *rx_compensation,
    uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Agc_MT(
    int32_t port, const uint16_t *agc_words, uint16_t gain_index, const uint16_t *rx_compensation,
    uint32_t band);

/** Reads a band's ramp tables, transmit boundaries and step factors. For GSM the two ramp-down tables come in each
 * other's place.
 * @param ramp_up_stage0    16 values, as are the next three
 * @param tx_boundary       4 values
 * @param step_factor       80 values
 * @param band              0 GSM, 1 GSM850, 2 DCS, 3 PCS
 * @return 0; 4 for a null pointer or another band; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Apc(
    uint16_t *ramp_up_stage0, uint16_t *ramp_up_stage1, uint16_t *ramp_down_stage0,
    uint16_t *ramp_down_stage1, uint16_t *tx_boundary, uint16_t *step_factor, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Apc_MT(
    int32_t port, uint16_t *ramp_up_stage0, uint16_t *ramp_up_stage1, uint16_t *ramp_down_stage0,
    uint16_t *ramp_down_stage1, uint16_t *tx_boundary, uint16_t *step_factor, uint32_t band);

/** Writes a band's step factors.
 * @param step_factor  80 values
 * @param band         0 GSM, 1 GSM850, 2 DCS, 3 PCS
 * @return 0; 4 for a null pointer or another band; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Apc(const uint16_t *step_factor, uint32_t band);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Apc_MT(
    int32_t port, const uint16_t *step_factor, uint32_t band);

/** Reads a band's step factors. For the default phone object only.
 * @param step_factor  80 values
 * @param band         0 GSM, 1 DCS, 3 PCS, 4 GSM850 (not as elsewhere); another one reads nothing
 * @return 0; 17 (tested first); 4 for a null pointer */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Factor(uint16_t *step_factor, uint32_t band);

/** Reads the version of the calibration parameters.
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion(uint16_t *version);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_MT(int32_t port, uint16_t *version);

/** Reads the same version.
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_TD(uint16_t *version);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_NvVersion_TD_MT(int32_t port, uint16_t *version);

/** Reads the ADC's and the battery's calibration points.
 * @param adc      2 values
 * @param battery  2 values
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_1(uint32_t *adc, uint32_t *battery);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_1_MT(
    int32_t port, uint32_t *adc, uint32_t *battery);

/** Writes the ADC's and the battery's calibration points, 2 values each.
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_1(
    const uint32_t *adc, const uint32_t *battery);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_1_MT(
    int32_t port, const uint32_t *adc, const uint32_t *battery);

/** Reads the charger's voltage table.
 * @param voltage_table  16 values
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_2(uint16_t *voltage_table);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Adc_2_MT(int32_t port, uint16_t *voltage_table);

/** Writes the charger's voltage table, 16 values.
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_2(const uint16_t *voltage_table);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Adc_2_MT(
    int32_t port, const uint16_t *voltage_table);

/** Reads the AFC centre and slope.
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_1(uint16_t *center, uint16_t *slope);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_1_MT(
    int32_t port, uint16_t *center, uint16_t *slope);

/** Writes the AFC centre and slope.
 * @return 0; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_1(uint16_t center, uint16_t slope);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_1_MT(
    int32_t port, uint16_t center, uint16_t slope);

/** Reads the AFC structure.
 * @param afc_range  16 values, as are the next two
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_2(
    uint16_t *slope_length, uint16_t *cdac, uint16_t *cafc, uint16_t *afc_range,
    uint16_t *slope_value, uint16_t *slope_reciprocal);
MEROVANE_API int32_t MEROVANE_CALL QV_GetNvValue_Afc_2_MT(
    int32_t port, uint16_t *slope_length, uint16_t *cdac, uint16_t *cafc, uint16_t *afc_range,
    uint16_t *slope_value, uint16_t *slope_reciprocal);

/** Writes the AFC structure.
 * @param afc_range  16 values, as are the next two
 * @return 0; 4 for a null pointer; 17 */
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_2(
    uint16_t slope_length, uint16_t cdac, uint16_t cafc, const uint16_t *afc_range,
    const uint16_t *slope_value, const uint16_t *slope_reciprocal);
MEROVANE_API int32_t MEROVANE_CALL QV_SetNvValue_Afc_2_MT(
    int32_t port, uint16_t slope_length, uint16_t cdac, uint16_t cafc, const uint16_t *afc_range,
    const uint16_t *slope_value, const uint16_t *slope_reciprocal);

#ifdef __cplusplus
}
#endif

#endif
