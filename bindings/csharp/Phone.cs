// A handset on a port: a session that ends with its using block.
using System;
using System.Diagnostics;
using System.Text;

namespace Merovane
{
    /// <summary>A session on a port. Beside what stands here it has every function of the library that
    /// takes a port, with values instead of buffers. Several threads may use one phone; their calls run
    /// one after another.</summary>
    /// <example><code>
    /// using (var phone = new Phone(5))
    /// {
    ///     phone.Start(1);  // whether the handset is booting or already in that mode
    ///     phone.Imei = "490154203237518";
    ///     byte[] item = phone.ReadFlash(3, 16);
    /// }
    /// </code></example>
    public sealed partial class Phone : IDisposable
    {
        private const uint PatienceMs = 4000;
        private const int AnswerRoom = 9216;
        private const int SerialNumberBytes = 24;
        private const int VersionRoom = 512;

        /// <summary>Opens the port.</summary>
        /// <param name="port">n stands for COMn, for /dev/ttyS(n-1), or for what the environment variable
        /// CASSORIND_COMn names.</param>
        /// <param name="baudRate">Bits per second.</param>
        public Phone(int port, int baudRate = 115200)
        {
            QV.BeginPhoneTest_MT(port, baudRate);
            Port = port;
        }

        /// <summary>0 once the session has ended.</summary>
        public int Port { get; private set; }

        /// <summary>Ends the session. Close tells when that fails.</summary>
        public void Dispose()
        {
            var port = Port;
            Port = 0;
            if (port != 0)
                Native.QV_EndPhoneTest_MT(port);
        }

        /// <summary>Ends the session.</summary>
        public void Close()
        {
            var port = Port;
            Port = 0;
            if (port != 0)
                QV.EndPhoneTest_MT(port);
        }

        /// <summary>Brings the handset into a start mode: one that boots is caught by its start frame, one
        /// that runs already is asked for its mode and told to change it if it is another. The handset has
        /// 15 seconds, or the limit, to be there; what it is asked last may take as long as it takes.</summary>
        public void Start(uint mode, TimeSpan? limit = null)
        {
            var clock = Stopwatch.StartNew();
            var limitMs = (long)(limit ?? TimeSpan.FromSeconds(15)).TotalMilliseconds;
            for (long attemptMs = 300; ; attemptMs = 1000)
            {
                var leftMs = Math.Max(0, limitMs - clock.ElapsedMilliseconds);
                try
                {
                    RecvPhoneStartData(8, (uint)Math.Min(leftMs, attemptMs));
                    SetPhoneStartMode(mode);
                    return;
                }
                catch (MerovaneException noFrame) when (noFrame.Code == Result.NoUsefulData && leftMs > attemptMs)
                {
                    // It may be running. If it is not, it may need longer than the first attempt to show itself.
                }
                var running = RunningMode();
                if (running == mode)
                    return;
                if (running != null)
                {
                    ChangePhoneMode((byte)mode);
                    return;
                }
            }
        }

        /// <summary>The start mode that the handset says it runs in; null when it gives no answer or another
        /// one.</summary>
        public uint? RunningMode()
        {
            try
            {
                var data = ReadMode(4);
                return data[3] >= 0x80 ? data[3] - 0x80u : (uint?)null;
            }
            catch (MerovaneException silent) when (silent.Code == Result.NoAnswer)
            {
                return null;
            }
        }

        /// <summary>Puts the layer-1 software into its GSM or TD-SCDMA calibration mode and switches its
        /// calibration layer on. For GSM the setting "Inc Recv Timeout" has to be above 0, as
        /// QV_ChangeGSMTDCalMode says.</summary>
        public void BeginCalibration(CalibrationMode mode = CalibrationMode.Gsm)
        {
            ChangeGSMTDCalMode(mode);
            Active(true);
        }

        public void EndCalibration() => Active(false);

        /// <summary>15 decimal digits.</summary>
        public string Imei
        {
            get => FixedNv().Imei1;
            set => FastWriteNvInfo(new FixedNvInfo { WriteImei1 = 1, Imei1 = Fitting(value) });
        }

        /// <summary>12 hexadecimal digits, most significant byte first.</summary>
        public string BluetoothAddress
        {
            get => FixedNv().BluetoothAddress;
            set => FastWriteNvInfo(new FixedNvInfo { WriteBluetoothAddress = 1, BluetoothAddress = Fitting(value) });
        }

        /// <summary>At most 23 characters.</summary>
        public string SerialNumber
        {
            get => Memory.CharactersToZero(ReadSN(SerialNumberBytes));
            set => WriteSN(Encoding.ASCII.GetBytes(value));
        }

        public uint ChipId => GetChipID();

        public string SoftwareVersion => GetMSVersion(VersionRoom);

        /// <summary>In the handset's unit.</summary>
        public uint BatteryVoltage => ReadPhoneVolt();

        /// <summary>IMEIs, addresses and GPS settings.</summary>
        public FixedNvInfo FixedNv()
        {
            var info = new FixedNvInfo();
            FastReadNvInfo(info);
            return info;
        }

        /// <summary>Sends an AT command. The answer is whole, line ends included; whether its end is the "OK"
        /// that was hoped for the caller sees.</summary>
        public string SendAt(string command, uint timeoutMs = 2000) =>
            SendAtCommand(command, 0, true, AnswerRoom, timeoutMs);

        /// <summary>A production flash item from its start; fewer bytes when the handset has no more.</summary>
        public byte[] ReadFlash(ushort item, int length) => ReadFlash(item, length, PatienceMs);

        public void WriteFlash(ushort item, byte[] data) => WriteFlash(item, data, PatienceMs);

        /// <summary>A whole NV item.</summary>
        public byte[] ReadNv(ushort item) => ReadNv(item, ushort.MaxValue, PatienceMs);

        // Cutting a text that is too long would write another one than was asked for.
        private static string Fitting(string text)
        {
            Memory.Given(text, nameof(text));
            if (text.Length > 15)
                throw new ArgumentException("longer than 15 characters");
            return text;
        }
    }
}
