// Retrieves the ticket of a recorded host session, late bound, and prints what an agent looks at first.
// Build it with: csc LateBound.cs
using System;
using System.Runtime.InteropServices;

static class LateBound {
  static dynamic Create(string name) { return Activator.CreateInstance(Type.GetTypeFromProgID(name, true)); }

  [STAThread]
  static int Main(string[] arguments) {
    dynamic session = Create("QorlHostToolkit.RecordedSession");
    try {
      session.Load(arguments[0]);
    } catch (COMException error) {
      Console.WriteLine("No session: " + error.Message);
      return 1;
    }
    dynamic tst = Create("QorlTST.TST");
    int code = tst.RetrieveCurrentTst(session);
    if ((code != 0 && code != 1005) || tst.Text == "") {
      Console.WriteLine("No ticket: result " + code);
      return 1;
    }
    if (code == 1005) Console.WriteLine("Parts of the ticket were not understood");

    dynamic header = tst.TSTHeader;
    Console.WriteLine("TST {0} of {1}, changed {2}", header.ElementNumber, header.OfficeId, header.LastModifDate);
    foreach (dynamic name in tst.NameElements)
      Console.WriteLine("{0}/{1} {2}", name.LastName, name.Initial, name.PassengerType);
    foreach (dynamic air in tst.AirSegments)
      Console.WriteLine("{0}{1} from {2} {3}", air.AirLine, air.FlightNumber, air.BoardPoint, air.DepartureDate);
    Console.WriteLine("Fare {0} {1}", tst.FareBaseLineCurrencyCode, tst.FareBaseLineBaseAmount);
    foreach (dynamic tax in tst.TaxElements)
      Console.WriteLine("Tax {0} {1} {2}", tax.ISOType, tax.CurrencyCode, tax.Amount);
    Console.WriteLine("Total {0} {1}", tst.TotalCurrencyCode, tst.TotalCollectionAmount);
    Console.WriteLine(tst.FareCalculation.Text);
    return 0;
  }
}
