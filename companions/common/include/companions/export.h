/* How a companion library publishes its plain exported functions. */
#ifndef COMPANIONS_EXPORT_H
#define COMPANIONS_EXPORT_H

#if defined(_WIN32)
#define COMPANION_EXPORT __declspec(dllexport)
#define COMPANION_IMPORT __declspec(dllimport)
#else
#define COMPANION_EXPORT __attribute__((visibility("default")))
#define COMPANION_IMPORT
#endif

/* Plain functions use the C convention (cdecl on 32-bit Windows): their names
   are exported as they stand here. Interface operations use the compiler's
   default convention for members (thiscall on 32-bit Windows). */
#if defined(_WIN32) && !defined(_WIN64)
#define COMPANION_CALL __cdecl
#else
#define COMPANION_CALL
#endif

#endif
