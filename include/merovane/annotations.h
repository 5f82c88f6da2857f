/* What static analysis can know of the arguments of exported functions.
 *
 * MEROVANE_IN, _OUT and _INOUT say how the memory at a pointer is used; with _N how many elements
 * are there, with _OPT that the pointer may be null. They are annotations of the Microsoft
 * compiler's analysis. MEROVANE_READS, _WRITES and _UPDATES say the same to GCC: the number of the
 * argument, from 1, and with _N the one that counts its elements. Other compilers see nothing. A
 * program that hands in null pointers on purpose defines MEROVANE_NO_ANNOTATIONS. */
#ifndef MEROVANE_ANNOTATIONS_H
#define MEROVANE_ANNOTATIONS_H

#if defined(_MSC_VER) && !defined(MEROVANE_NO_ANNOTATIONS)
#include <sal.h>
#define MEROVANE_IN _In_
#define MEROVANE_IN_OPT _In_opt_
#define MEROVANE_IN_N(n) _In_reads_(n)
#define MEROVANE_IN_N_OPT(n) _In_reads_opt_(n)
#define MEROVANE_IN_TEXT _In_z_
#define MEROVANE_IN_TEXT_OPT _In_opt_z_
#define MEROVANE_OUT _Out_
#define MEROVANE_OUT_OPT _Out_opt_
#define MEROVANE_OUT_N(n) _Out_writes_(n)
#define MEROVANE_OUT_N_OPT(n) _Out_writes_opt_(n)
#define MEROVANE_INOUT _Inout_
#define MEROVANE_INOUT_OPT _Inout_opt_
#define MEROVANE_INOUT_N(n) _Inout_updates_(n)
#define MEROVANE_INOUT_N_OPT(n) _Inout_updates_opt_(n)
#else
#define MEROVANE_IN
#define MEROVANE_IN_OPT
#define MEROVANE_IN_N(n)
#define MEROVANE_IN_N_OPT(n)
#define MEROVANE_IN_TEXT
#define MEROVANE_IN_TEXT_OPT
#define MEROVANE_OUT
#define MEROVANE_OUT_OPT
#define MEROVANE_OUT_N(n)
#define MEROVANE_OUT_N_OPT(n)
#define MEROVANE_INOUT
#define MEROVANE_INOUT_OPT
#define MEROVANE_INOUT_N(n)
#define MEROVANE_INOUT_N_OPT(n)
#endif

#if defined(__has_attribute) && !defined(MEROVANE_NO_ANNOTATIONS)
#if __has_attribute(access)
#define MEROVANE_ACCESS(...) __attribute__((access(__VA_ARGS__)))
#endif
#endif
#if !defined(MEROVANE_ACCESS)
#define MEROVANE_ACCESS(...)
#endif

#define MEROVANE_READS(argument) MEROVANE_ACCESS(read_only, argument)
#define MEROVANE_READS_N(argument, count) MEROVANE_ACCESS(read_only, argument, count)
#define MEROVANE_WRITES(argument) MEROVANE_ACCESS(write_only, argument)
#define MEROVANE_WRITES_N(argument, count) MEROVANE_ACCESS(write_only, argument, count)
#define MEROVANE_UPDATES(argument) MEROVANE_ACCESS(read_write, argument)
#define MEROVANE_UPDATES_N(argument, count) MEROVANE_ACCESS(read_write, argument, count)

#endif
