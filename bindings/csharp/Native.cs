// What the exported functions are called through: the library's name, and the functions of
// diagnostics.h. Those of merovane.h are made by the build.
using System;
using System.Runtime.InteropServices;

namespace Merovane
{
    /// <summary>The functions as the library exports them, with pointers and lengths. QV has the same
    /// with values.</summary>
    public static unsafe partial class Native
    {
        private const string LibraryName = "Merovane";

        private static readonly bool IsWindows = Environment.OSVersion.Platform == PlatformID.Win32NT;

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_Version();

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_ResultName(int result);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_ResultMeaning(int result);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_ResultAdvice(int result);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_OperationName(uint operation);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern byte* Merovane_StartModeName(uint mode);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern int Merovane_LastFailure(int port, [In, Out] Failure failure);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern void Merovane_ForgetFailure(int port);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern int Merovane_SetFolder(byte* folder);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern uint Merovane_Settings(byte* text, uint capacity);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern int Merovane_SetTrace(uint trace);

        /// <summary>On a thread of the library's own; no exception may leave it.</summary>
        [UnmanagedFunctionPointer(CallingConvention.Winapi)]
        public delegate void Listener(IntPtr context, uint kind, int port, IntPtr text);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern int Merovane_SetListener(Listener listener, IntPtr context);

        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi)]
        public static extern int Merovane_Flush(uint timeLimitMs);
    }
}
