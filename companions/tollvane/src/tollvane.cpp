// The exported function.
#include "tollvane/tollvane.h"

#include <exception>

#include "server_client.h"

TollvaneServer* InitDll() try { return new tollvane::ServerClient; } catch (const std::exception&) {
  return nullptr;
}
