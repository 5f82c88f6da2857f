// Between C#'s values and the memory that exported functions work on.
using System;
using System.Runtime.InteropServices;
using System.Text;

namespace Merovane
{
    internal static class Memory
    {
        public static void Given(object argument, string name)
        {
            if (argument == null)
                throw new ArgumentNullException(name);
        }

        /// An array must be as long as the function takes it to be.
        public static void Extent(Array argument, int extent, string name)
        {
            Given(argument, name);
            Extent(argument.Length, extent, name);
        }

        public static void Extent(int length, int extent, string name)
        {
            if (length != extent)
                throw new ArgumentException($"has {length} elements, not {extent}", name);
        }

        public static void OptionalExtent(Array argument, int extent, string name)
        {
            if (argument != null)
                Extent(argument.Length, extent, name);
        }

        public static void OptionalExtent(int length, int extent, string name)
        {
            if (length != 0)
                Extent(length, extent, name);
        }

        /// An empty array would be pinned as a null pointer, which functions refuse.
        public static T[] NotEmpty<T>(T[] array) => array != null && array.Length == 0 ? new T[1] : array;

#if NETSTANDARD2_1_OR_GREATER || NETCOREAPP3_0_OR_GREATER
        public static Span<T> NotEmpty<T>(Span<T> span) => span.IsEmpty ? new T[1] : span;

        public static ReadOnlySpan<T> NotEmpty<T>(ReadOnlySpan<T> span) => span.IsEmpty ? new T[1] : span;
#endif

        /// What was stored of an array; a count can be that of the whole, when it did not fit.
        public static T[] Cut<T>(T[] array, uint stored)
        {
            if (stored < array.Length)
                Array.Resize(ref array, (int)stored);
            return array;
        }

        /// A text for the library: in the system's narrow encoding, with a zero at its end.
        public static byte[] Text(string text)
        {
            if (text == null)
                return null;
            var memory = Marshal.StringToHGlobalAnsi(text);
            try
            {
                var length = 0;
                while (Marshal.ReadByte(memory, length) != 0)
                    ++length;
                var bytes = new byte[length + 1];
                Marshal.Copy(memory, bytes, 0, length);
                return bytes;
            }
            finally
            {
                Marshal.FreeHGlobal(memory);
            }
        }

        // Characters that travel to and from a handset are bytes: each stands for one of Latin-1.
        private static readonly Encoding Latin1 = Encoding.GetEncoding(28591);

        public static byte[] Characters(string text)
        {
            Given(text, nameof(text));
            return Latin1.GetBytes(text);
        }

        public static string Characters(byte[] bytes, uint stored) =>
            Latin1.GetString(bytes, 0, (int)Math.Min(stored, (uint)bytes.Length));

        public static string CharactersToZero(byte[] bytes)
        {
            var end = Array.IndexOf(bytes, (byte)0);
            return Latin1.GetString(bytes, 0, end < 0 ? bytes.Length : end);
        }
    }

    /// The record of TD-SCDMA parameters, which holds as many values as it counts: a 32-bit selector, a
    /// 16-bit count, the values.
    internal static class CountedValues
    {
        private const int HeaderBytes = 6;

        public static byte[] Of(uint selector, ushort[] values)
        {
            Memory.Given(values, nameof(values));
            var memory = new byte[HeaderBytes + 2 * values.Length];
            Buffer.BlockCopy(new[] { selector }, 0, memory, 0, 4);
            Buffer.BlockCopy(new[] { checked((ushort)values.Length) }, 0, memory, 4, 2);
            Buffer.BlockCopy(values, 0, memory, HeaderBytes, 2 * values.Length);
            return memory;
        }

        public static ushort[] From(byte[] memory)
        {
            var values = new ushort[(memory.Length - HeaderBytes) / 2];
            Buffer.BlockCopy(memory, HeaderBytes, values, 0, 2 * values.Length);
            return values;
        }
    }
}
