// Retrieves the ticket of a recorded host session, early bound, and prints what an agent looks at first.
// Build it with: tlbimp QorlTST.dll /out:Interop.QorlTST.dll /namespace:QorlTST
//                csc EarlyBound.cs /link:Interop.QorlTST.dll
using System;
using System.Runtime.InteropServices;
using QorlTST;

static class EarlyBound {
  [STAThread]
  static int Main(string[] arguments) {
    dynamic session = Activator.CreateInstance(Type.GetTypeFromProgID("QorlHostToolkit.RecordedSession", true));
    try {
      session.Load(arguments[0]);
    } catch (COMException error) {
      Console.WriteLine("No session: " + error.Message);
      return 1;
    }
    TST tst = new TST();
    int code = tst.RetrieveCurrentTst((object)session);
    if ((code != 0 && code != 1005) || tst.Text == "") {
      Console.WriteLine("No ticket: result " + code);
      return 1;
    }
    if (code == 1005) Console.WriteLine("Parts of the ticket were not understood");

    TSTHeader header = (TSTHeader)tst.TSTHeader;
    Console.WriteLine("TST {0} of {1}, changed {2}", header.ElementNumber, header.OfficeId, header.LastModifDate);
    foreach (NameElement name in tst.NameElements)
      Console.WriteLine("{0}/{1} {2}", name.LastName, name.Initial, name.PassengerType);
    foreach (AirSegment air in tst.AirSegments)
      Console.WriteLine("{0}{1} from {2} {3}", air.AirLine, air.FlightNumber, air.BoardPoint, air.DepartureDate);
    Console.WriteLine("Fare {0} {1}", tst.FareBaseLineCurrencyCode, tst.FareBaseLineBaseAmount);
    foreach (TaxElement tax in tst.TaxElements)
      Console.WriteLine("Tax {0} {1} {2}", tax.ISOType, tax.CurrencyCode, tax.Amount);
    Console.WriteLine("Total {0} {1}", tst.TotalCurrencyCode, tst.TotalCollectionAmount);
    Console.WriteLine(tst.FareCalculation.Text);
    return 0;
  }
}
