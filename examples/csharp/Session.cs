// A session in C#: catch the handset, see what it is, talk AT to it, keep something in its flash.
using System;
using System.Linq;
using Merovane;

static class Session
{
    const uint TestMode = 1;
    const ushort StationItem = 200;

    static void Talk(Phone phone)
    {
        phone.Imei = "490154203237518";
        Console.WriteLine($"IMEI {phone.Imei}");
        Console.WriteLine($"software {phone.SoftwareVersion}");
        Console.WriteLine($"battery {phone.BatteryVoltage}");
        Console.Write(phone.SendAt("AT+CGMM"));

        var passed = new byte[] { 2, 0, 2, 6 };
        phone.WriteFlash(StationItem, passed);
        if (!phone.ReadFlash(StationItem, 4).SequenceEqual(passed))
            throw new InvalidOperationException("flash lost the mark");

        // Every function that takes a port is there.
        phone.LedOn(true);
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length != 1)
        {
            Console.Error.WriteLine("usage: Session.exe PORT");
            return 2;
        }
        // Settings and logs stand beside this program, not beside the runtime.
        Library.SetFolder(AppDomain.CurrentDomain.BaseDirectory);
        try
        {
            using (var phone = new Phone(int.Parse(arguments[0])))
            {
                phone.Start(TestMode);
                Talk(phone);
            }
        }
        catch (MerovaneException problem)
        {
            Console.Error.WriteLine(problem.Message);
            return 1;
        }
        Console.WriteLine("done");
        return 0;
    }
}
