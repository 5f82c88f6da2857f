// The C# binding against the library as stations load it:
//   Tests.exe session PORT   a handset that boots is at the port
//   Tests.exe sweep          every function, with no port open
//   Tests.exe layout FILE    what C has to find true of the records, as C
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using Merovane;

static class Tests
{
    static int failures;

    public static void Expect(bool holds, string what)
    {
        if (holds)
            return;
        ++failures;
        Console.Error.WriteLine("FAILED: " + what);
    }

    public static void ExpectEqual<T>(T found, T expected, string what) =>
        Expect(Equals(found, expected), $"{what}: {found} instead of {expected}");

    public static MerovaneException FailureOf(Action action)
    {
        try
        {
            action();
        }
        catch (MerovaneException failure)
        {
            return failure;
        }
        return null;
    }

    static int Main(string[] arguments)
    {
        Library.SetFolder(AppDomain.CurrentDomain.BaseDirectory);
        switch (arguments[0])
        {
            case "session": SessionTests.Run(int.Parse(arguments[1])); break;
            case "sweep": Sweep.Run(); break;
            case "layout": Layout(arguments[1]); break;
            default: return 2;
        }
        return failures == 0 ? 0 : 1;
    }

    // Marshal's sizes and offsets, which C's compiler compares with its own.
    static void Layout(string path)
    {
        Console.WriteLine("#include <stddef.h>\n#include \"merovane/diagnostics.h\"");
        foreach (var row in File.ReadAllLines(path).Select(line => line.Split(' ')))
        {
            var type = typeof(Phone).Assembly.GetType("Merovane." + row[2], true);
            Console.WriteLine($"_Static_assert(sizeof({row[0]}) == {Marshal.SizeOf(type)}, \"{row[0]}\");");
            Console.WriteLine($"_Static_assert(offsetof({row[0]}, {row[1]}) == {Marshal.OffsetOf(type, row[3])}, \"{row[0]}.{row[1]}\");");
        }
    }
}

// Calls of every function, which the build makes.
static partial class Sweep
{
    static readonly HashSet<string> called = new HashSet<string>();

    public static void Run()
    {
        Calls();
        var exports = typeof(Native).GetMethods(BindingFlags.Public | BindingFlags.Static)
            .Select(method => method.Name).Where(name => name.StartsWith("QV_")).ToList();
        Tests.ExpectEqual(exports.Count, 579, "functions");
        Tests.Expect(called.SetEquals(exports), "all of them were called");
        foreach (var name in diagnostics)
            Tests.Expect(typeof(Native).GetMethod(name) != null, name);
    }

    // Without its port a command does nothing, and says that it was this one.
    static void Command(string name, Action call)
    {
        called.Add(name);
        var failure = Tests.FailureOf(call);
        Tests.ExpectEqual(failure?.Code, Result.PortNotOpen, name);
        Tests.ExpectEqual(failure?.Function, name, "the function that failed");
    }

    // Some succeed without one.
    static void Session(string name, Action call)
    {
        called.Add(name);
        var failure = Tests.FailureOf(call);
        Tests.Expect(failure == null || failure.Code == Result.PortNotOpen || failure.Code == Result.InvalidParam
                         || failure.Code == Result.CannotOpenPort,
                     $"{name}: {failure?.Message}");
    }
}

static class SessionTests
{
    public static void Run(int port)
    {
        using (var phone = new Phone(port))
        {
            phone.Start(1);
            Values(phone);
            Failures(phone);
            Listening(phone);
            Events(phone);
        }
        Tests.ExpectEqual(Tests.FailureOf(() => QV.ReadMode_MT(port, 4))?.Code, Result.PortNotOpen, "after the using block");
        // The default port's: there are functions for it alone.
        QV.BeginPhoneTest(port, 115200);
        QV.WIFI_EnterEUTMode(true);
        Tests.ExpectEqual(QV.WIFI_LoadAddr().Length, 6, "WiFi address");
        QV.EndPhoneTest();
        Tests.Expect(Library.Settings().Contains("\"settings\""), "settings");
        Tests.ExpectEqual(Library.NameOf(Result.NoAnswer), Library.NameOf((Result)11), "a result's name");
    }

    static void Values(Phone phone)
    {
        phone.Imei = "490154203237518";
        phone.BluetoothAddress = "02B70000AB12";
        phone.SerialNumber = "MRV-1";
        Tests.ExpectEqual(phone.Imei, "490154203237518", "IMEI");
        Tests.ExpectEqual(phone.BluetoothAddress, "02B70000AB12", "address");
        Tests.ExpectEqual(phone.SerialNumber, "MRV-1", "serial number");
        Tests.Expect(phone.SendAt("AT").EndsWith("OK\r\n"), "AT");
        Tests.Expect(phone.SoftwareVersion.Contains("."), "version");
        Tests.Expect(phone.BatteryVoltage > 0 && phone.ChipId != 0, "battery and chip");

        // Decorated in the DLLs, and not here.
        Tests.ExpectEqual(phone.ReadGuid().Length, 16, "GUID");

        var data = new byte[] { 1, 0, 0x7e, 0xff };
        phone.WriteFlash(200, data);
        Tests.Expect(phone.ReadFlash(200, 4).SequenceEqual(data), "flash item");
        phone.WriteNv(300, data);
        Tests.Expect(phone.ReadNv(300).SequenceEqual(data), "NV item, as long as it is");
        phone.WriteNv(301, new byte[0]);
        Tests.ExpectEqual(phone.ReadNv(301).Length, 0, "empty NV item");
        phone.WriteRegister(AccessWidth.Bits16, 0x20000000, data, 2);
        Tests.Expect(phone.ReadRegister(AccessWidth.Bits16, 0x20000000, 2).SequenceEqual(data), "registers");
        var words = Enumerable.Range(1, 10).Select(word => (ushort)word).ToArray();
        Tests.Expect(phone.Send7310KCommand(1, words, 0).SequenceEqual(words.Select(word => (ushort)(word + 1))), "words");
        phone.ReadAdcValue(1, 1000, out var adc, out _, out _);
        Tests.Expect(adc > 0, "ADC");
        var regions = phone.GetFlashInfo();
        Tests.Expect(regions.RegionCount > 0 && regions.Regions[0].Words1 + regions.Regions[0].Words2 > 0, "records in a record");

        var span = new byte[6];
        Tests.ExpectEqual(phone.ReadNv(300, (Span<byte>)span, 1000), 4, "count in a span");
        Tests.Expect(span.Take(4).SequenceEqual(data), "memory of the caller's");
        phone.WriteFlash(200, new ReadOnlySpan<byte>(data, 1, 2), 1000);
        Tests.Expect(phone.ReadFlash(200, 2).SequenceEqual(data.Skip(1).Take(2)), "part of an array");

        phone.BeginCalibration();
        phone.EndCalibration();
        phone.BeginCalibration(CalibrationMode.Td);
        var values = new ushort[] { 7, 8, 9 };
        phone.WriteTDCalParam(2, values);
        Tests.Expect(phone.ReadTDCalParam(2, 3).SequenceEqual(values), "as many values as are counted");
        phone.EndCalibration();
    }

    static void Failures(Phone phone)
    {
        var failure = Tests.FailureOf(() => phone.ReadMode(0));
        Tests.ExpectEqual(failure?.Code, Result.InvalidParam, "no room");
        Tests.ExpectEqual(failure?.Name, "PC_ERR_INVALID_PARAM", "its name");
        Tests.ExpectEqual(failure?.Function, "QV_ReadMode_MT", "its function");
        Tests.ExpectEqual(failure?.Operation, 12u, "its operation");
        Tests.ExpectEqual(failure?.Failure.Port, phone.Port, "its port");
        Tests.Expect(failure != null && failure.Advice.Length > 20 && failure.Message.EndsWith(failure.Advice), "its sentence");

        var span = new byte[2];
        Tests.ExpectEqual(Tests.FailureOf(() => phone.ReadNv(300, (Span<byte>)span, 1000))?.Code, Result.BufferTooSmall, "a cut item");
        Tests.ExpectEqual(span[0], (byte)1, "what there was room for");
        Refused<ArgumentException>(() => phone.SaveBTAddr(new byte[5]));
        Refused<ArgumentNullException>(() => phone.WriteNv(300, null));
        Refused<ArgumentException>(() => phone.Imei = "4901542032375180");
    }

    static void Refused<T>(Action action) where T : Exception
    {
        try
        {
            action();
            Tests.Expect(false, typeof(T).Name);
        }
        catch (T)
        {
        }
    }

    static void Listening(Phone phone)
    {
        var heard = new List<string>();
        Library.Listen((kind, port, text) =>
        {
            lock (heard)
                heard.Add($"{kind} {port} {text}");
            throw new InvalidOperationException("is lost");
        });
        phone.GetChipID();
        Tests.Expect(Library.Flush(TimeSpan.FromSeconds(10)), "all was told");
        // It stops the library's thread, which has been in here now.
        GC.Collect();
        Library.Listen(null);
        phone.GetChipType();
        Tests.Expect(Library.Flush(TimeSpan.FromSeconds(10)), "nothing is left to tell");
        lock (heard)
        {
            Tests.Expect(heard.Any(line => line.StartsWith($"LogLine {phone.Port} ") && line.Contains("GetChipID")), "log line");
            Tests.Expect(heard.Any(line => line.StartsWith($"Call {phone.Port} {{") && line.Contains("\"QV_GetChipID_MT\"")), "call");
            Tests.Expect(!heard.Any(line => line.Contains("GetChipType")), "nobody listens");
        }
    }

    static void Events(Phone phone)
    {
        using (var caught = new ModeEvent())
        {
            phone.RestartPhone(3000);
            QV.EnterModeProcess_MT(phone.Port, false, 1, caught.Handle, 20000);
            Tests.Expect(caught.Wait(TimeSpan.FromSeconds(20)), "event");
            QV.StopModeProcess_MT(phone.Port);
        }
        Tests.ExpectEqual(phone.RunningMode(), 1u, "mode");
    }
}
