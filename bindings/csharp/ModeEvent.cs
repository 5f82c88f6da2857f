// The event that a mode process sets: an event of the system's on Windows, an eventfd elsewhere.
using System;
using System.Runtime.InteropServices;
using System.Threading;

namespace Merovane
{
    /// <summary>For EnterModeProcess and ResetModeProcess: they take its Handle, and it is set when the
    /// handset was caught.</summary>
    public sealed class ModeEvent : IDisposable
    {
        private readonly EventWaitHandle windows;
        private int descriptor = -1;

        public ModeEvent()
        {
            if (Environment.OSVersion.Platform == PlatformID.Win32NT)
            {
                windows = new EventWaitHandle(false, EventResetMode.ManualReset);
                return;
            }
            descriptor = eventfd(0, CloseOnExec);
            if (descriptor < 0)
                throw new InvalidOperationException("the system gives no event");
        }

        public IntPtr Handle => windows != null ? windows.SafeWaitHandle.DangerousGetHandle() : (IntPtr)descriptor;

        /// <summary>Whether it is set within the time.</summary>
        public bool Wait(TimeSpan limit)
        {
            if (windows != null)
                return windows.WaitOne(limit);
            var polled = new PollDescriptor { Descriptor = descriptor, Events = Readable };
            return poll(ref polled, (UIntPtr)1, (int)limit.TotalMilliseconds) == 1;
        }

        public void Dispose()
        {
            windows?.Dispose();
            if (descriptor >= 0)
                close(descriptor);
            descriptor = -1;
        }

        private const int CloseOnExec = 0x80000;
        private const short Readable = 1;

        [StructLayout(LayoutKind.Sequential)]
        private struct PollDescriptor
        {
            public int Descriptor;
            public short Events;
            public short Returned;
        }

        [DllImport("libc")]
        private static extern int eventfd(uint count, int flags);

        [DllImport("libc")]
        private static extern int poll(ref PollDescriptor descriptors, UIntPtr count, int milliseconds);

        [DllImport("libc")]
        private static extern int close(int descriptor);
    }
}
