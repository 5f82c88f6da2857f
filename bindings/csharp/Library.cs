// What the process asks of the library itself: version, settings, the words for results, calls as they are made.
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

namespace Merovane
{
    /// <summary>The library that is loaded, and its settings.</summary>
    public static unsafe class Library
    {
        public static string Version => Utf8(Native.Merovane_Version());

        /// <summary>The name of a result in the logs, such as PC_ERR_NO_ANSWER.</summary>
        public static string NameOf(Result result) => Utf8(Native.Merovane_ResultName((int)result));

        /// <summary>What a result says, in one sentence.</summary>
        public static string MeaningOf(Result result) => Utf8(Native.Merovane_ResultMeaning((int)result));

        /// <summary>What to look at when a call gave this result; empty for Success.</summary>
        public static string AdviceFor(Result result) => Utf8(Native.Merovane_ResultAdvice((int)result));

        /// <summary>The function that records an operation id, such as ReadFlash for 23.</summary>
        public static string OperationName(uint operation) => Utf8(Native.Merovane_OperationName(operation));

        public static string StartModeName(uint mode) => Utf8(Native.Merovane_StartModeName(mode));

        /// <summary>Has the settings file read from, and logs written to, a folder that exists. Before the
        /// first session only. Otherwise it is the folder of the program that runs: under Mono and dotnet
        /// that of the runtime.</summary>
        public static void SetFolder(string folder)
        {
            fixed (byte* folderAt = ZeroTerminatedUtf8(folder))
                MerovaneException.Check(Native.Merovane_SetFolder(folderAt));
        }

        /// <summary>The settings in force, where each came from and what is wrong with the file: a JSON
        /// object, as diagnostics.h describes it.</summary>
        public static string Settings()
        {
            // It may grow between asking for its size and asking for it.
            for (var size = Native.Merovane_Settings(null, 0); ;)
            {
                var text = new byte[size];
                uint needed;
                fixed (byte* textAt = text)
                    needed = Native.Merovane_Settings(textAt, size);
                if (needed <= size)
                    return Encoding.UTF8.GetString(text, 0, (int)needed - 1);
                size = needed;
            }
        }

        /// <summary>The last call on a port that failed, 0 for the last one of this thread; null when there
        /// is none.</summary>
        public static Failure LastFailure(int port)
        {
            var failure = new Failure { StructBytes = (uint)Marshal.SizeOf(typeof(Failure)) };
            return Native.Merovane_LastFailure(port, failure) != 0 ? failure : null;
        }

        /// <summary>Switches the trace of all calls, which stands beside the logs.</summary>
        public static void SetTrace(Trace trace) => MerovaneException.Check(Native.Merovane_SetTrace((uint)trace));

        /// <summary>Waits until all calls that have returned are in the trace and told to the listener; false
        /// when they are not within the time.</summary>
        public static bool Flush(TimeSpan limit) => Native.Merovane_Flush((uint)limit.TotalMilliseconds) != 0;

        /// <summary>Tells a listener, in place of the former one, of log lines and of calls as they end: what it
        /// is, the port, and a line of the log or a JSON object. It is called on a thread of the library's own;
        /// what it throws is lost. Null: nobody listens.</summary>
        public static void Listen(Action<Event, int, string> listener)
        {
            Native.Listener told = null;
            if (listener != null)
            {
                told = (context, kind, port, text) => Tell(listener, (Event)kind, port, text);
                Keep(told);
            }
            MerovaneException.Check(Native.Merovane_SetListener(told, IntPtr.Zero));
        }

        private static readonly List<Native.Listener> kept = new List<Native.Listener>();

        // The library cannot keep a listener from being collected, and one that replaces itself is still running.
        private static void Keep(Native.Listener listener)
        {
            lock (kept)
            {
                if (kept.Count == 0)
                    AppDomain.CurrentDomain.ProcessExit += (sender, arguments) => EndListening();
                kept.Add(listener);
            }
        }

        private static void EndListening()
        {
            // Without a listener the thread that called it ends, for which Mono waits.
            Native.Merovane_SetListener(null, IntPtr.Zero);
        }

        private static void Tell(Action<Event, int, string> listener, Event kind, int port, IntPtr text)
        {
            try
            {
                PrepareThread();
                listener(kind, port, Utf8((byte*)text));
            }
            catch (Exception)
            {
                // The library's thread cannot take it.
            }
        }

        [ThreadStatic]
        private static bool prepared;

        // The thread is the library's, which blocks all signals; by those runtimes stop threads to collect garbage.
        private static void PrepareThread()
        {
            if (prepared)
                return;
            const int SetMask = 2;
            if (!IsWindows)
                pthread_sigmask(SetMask, new byte[128], IntPtr.Zero);
            prepared = true;
        }

        private static bool IsWindows => Environment.OSVersion.Platform == PlatformID.Win32NT;

        [DllImport("libc")]
        private static extern int pthread_sigmask(int how, byte[] signals, IntPtr former);

        private static string Utf8(byte* text)
        {
            var length = 0;
            while (text[length] != 0)
                ++length;
            var bytes = new byte[length];
            Marshal.Copy((IntPtr)text, bytes, 0, length);
            return Encoding.UTF8.GetString(bytes);
        }

        private static byte[] ZeroTerminatedUtf8(string text) => Encoding.UTF8.GetBytes(text + "\0");
    }
}
