/* The first thing a station does with a handset: catch it while it boots, put it into a test
   mode, talk AT to it, restart it, and see every result reported. */
#include <stdio.h>
#include <string.h>

#include "station.h"

enum { TEST_MODE = 1, IDLE_MODE = 4, BAUD_RATE = 115200 };

static void catch_booting_handset(void) {
  uint8_t mode[16];

  station_step("wait for the start frame, enter test mode");
  station_result(QV_SetPhoneStartModeEx(TEST_MODE, 15000), PC_ERR_SUCCESS);

  memset(mode, 0, sizeof mode);
  station_step("read the mode");
  station_result(QV_ReadMode(mode, sizeof mode), PC_ERR_SUCCESS);
  station_note("start mode code 0x%02X", mode[3]);
}

static void at_command(const char* command, const char* awaited) {
  char name[64];
  char answer[2048];
  uint32_t length = 0;
  int32_t result;
  char* at;

  snprintf(name, sizeof name, "%s", command);
  station_step(name);
  result = QV_SendAtCommand(command, (uint32_t)strlen(command), 1, answer, sizeof answer - 1,
                            &length, 1500);
  answer[length < sizeof answer ? length : sizeof answer - 1] = '\0';
  for (at = answer; *at; ++at) {
    if (*at == '\r' || *at == '\n') *at = ' ';
  }
  if (station_result(result, PC_ERR_SUCCESS)) {
    station_note("%u bytes: %s", (unsigned)length, answer);
    station_check(strstr(answer, awaited) != NULL, awaited);
  }
}

static void talk(void) {
  QV_CELL_INFO cell;

  at_command("AT", "OK");
  at_command("AT+CGSN", "OK");
  at_command("AT+NOSUCHCOMMAND", "ERROR");

  station_step("serving cell");
  if (station_result(QV_GetCurrCellInfo(&cell), PC_ERR_SUCCESS)) {
    station_note("%d %d %d %d %d %d %d %d", (int)cell.values[0], (int)cell.values[1],
                 (int)cell.values[2], (int)cell.values[3], (int)cell.values[4], (int)cell.values[5],
                 (int)cell.values[6], (int)cell.values[7]);
  }
}

static void switch_traces(void) {
  uint8_t frame[512];
  uint32_t length = sizeof frame;

  station_step("DSP trace on");
  station_result(QV_EnableDspLog(1), PC_ERR_SUCCESS);
  station_step("take one trace frame");
  if (station_result(QV_Read(frame, &length, 2000), PC_ERR_SUCCESS)) {
    station_note("type %u, subtype %u, %u bytes", frame[6], frame[7], (unsigned)length);
  }
  station_step("DSP trace off");
  station_result(QV_EnableDspLog(0), PC_ERR_SUCCESS);
  station_step("ARM trace on");
  station_result(QV_EnableArmLog(1), PC_ERR_SUCCESS);
  station_step("ARM trace off");
  station_result(QV_EnableArmLog(0), PC_ERR_SUCCESS);
}

static void restart(void) {
  QV_EVENT caught = station_event_create();

  station_step("change the mode");
  station_result(QV_ChangePhoneMode(IDLE_MODE), PC_ERR_SUCCESS);
  station_step("restart the handset");
  station_result(QV_RestartPhone(3000), PC_ERR_SUCCESS);
  station_step("start a mode process");
  station_result(QV_EnterModeProcess(0, TEST_MODE, caught, 20000), PC_ERR_SUCCESS);
  station_step("handset caught while booting again");
  station_check(station_event_wait(caught, 20000), "event");
  station_step("stop the mode process");
  station_result(QV_StopModeProcess(), PC_ERR_SUCCESS);
  station_event_close(caught);

  at_command("AT", "OK");
}

int main(int argc, char** argv) {
  const int32_t port = station_port(
      argc, argv, "Catches a booting handset, enters test mode, talks AT, restarts it.");

  printf("station: session on port %d\n", (int)port);
  station_step("open the port");
  if (station_result(QV_BeginPhoneTest(port, BAUD_RATE), PC_ERR_SUCCESS)) {
    catch_booting_handset();
    talk();
    switch_traces();
    restart();
    uint8_t mode[16];
    station_step("a buffer without room is refused");
    station_result(QV_ReadMode(mode, 0), PC_ERR_INVALID_PARAM);
    station_step("deep sleep");
    station_result(QV_EnterDeepSleepMode(), PC_ERR_SUCCESS);
  }
  station_step("close the port");
  station_result(QV_EndPhoneTest(), PC_ERR_SUCCESS);
  printf(
      "logs: Com%d_UsefulLog.txt and Com%d_AllLog.txt in the day's folder under \"Log\" beside "
      "this program\n",
      (int)port, (int)port);
  return station_summary("session");
}
