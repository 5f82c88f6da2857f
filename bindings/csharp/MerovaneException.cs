// Failures, in the library's own words.
using System;

namespace Merovane
{
    /// <summary>A call that gave another result than Success.</summary>
    public sealed class MerovaneException : Exception
    {
        public MerovaneException(int code, Failure failure)
            : base(Describe((Result)code, failure))
        {
            Code = (Result)code;
            Failure = failure;
        }

        public Result Code { get; }

        /// <summary>The code's name in the logs, such as PC_ERR_NO_ANSWER.</summary>
        public string Name => Library.NameOf(Code);

        /// <summary>The function, such as QV_ReadFlash_MT; empty when it is not known.</summary>
        public string Function => Failure?.Function ?? "";

        /// <summary>The number under which the call is reported; 0: none.</summary>
        public uint Operation => Failure?.Operation ?? 0;

        /// <summary>What happened, and what to check next.</summary>
        public string Advice => Failure?.Advice ?? Library.AdviceFor(Code);

        /// <summary>All that is known: device, time taken, what came instead of the answer. Null when the
        /// library keeps nothing of the call.</summary>
        public Failure Failure { get; }

        /// <summary>Throws when the call that gave this result, on this thread, has failed.</summary>
        public static void Check(int result)
        {
            if (result == (int)Result.Success)
                return;
            var failure = Library.LastFailure(0);
            // Of another call than this one it would tell the wrong story.
            throw new MerovaneException(result, failure?.Result == result ? failure : null);
        }

        private static string Describe(Result code, Failure failure) =>
            $"{failure?.Function ?? "call"}: {Library.NameOf(code)} ({(int)code}): "
            + (failure?.Advice ?? Library.MeaningOf(code));
    }
}
