// Retrieves the ticket of a recorded host session, late bound, and prints what an agent looks at first.
// Run it with: cscript //nologo retrieve.js <session file>
function forEach(collection, show) {
  for (var items = new Enumerator(collection); !items.atEnd(); items.moveNext()) {
    WScript.Echo(show(items.item()));
  }
}

var session = new ActiveXObject("QorlHostToolkit.RecordedSession");
try {
  session.Load(WScript.Arguments(0));
} catch (error) {
  WScript.Echo("No session: " + error.message);
  WScript.Quit(1);
}

var tst = new ActiveXObject("QorlTST.TST");
var code = tst.RetrieveCurrentTst(session);
if ((code !== 0 && code !== 1005) || tst.Text === "") {
  WScript.Echo("No ticket: result " + code);
  WScript.Quit(1);
}
if (code === 1005) WScript.Echo("Parts of the ticket were not understood");

var header = tst.TSTHeader;
WScript.Echo("TST " + header.ElementNumber + " of " + header.OfficeId + ", changed " + header.LastModifDate);
forEach(tst.NameElements, function (name) {
  return name.LastName + "/" + name.Initial + " " + name.PassengerType;
});
forEach(tst.AirSegments, function (air) {
  return air.AirLine + air.FlightNumber + " from " + air.BoardPoint + " " + air.DepartureDate;
});
WScript.Echo("Fare " + tst.FareBaseLineCurrencyCode + " " + tst.FareBaseLineBaseAmount);
forEach(tst.TaxElements, function (tax) { return "Tax " + tax.ISOType + " " + tax.CurrencyCode + " " + tax.Amount; });
WScript.Echo("Total " + tst.TotalCurrencyCode + " " + tst.TotalCollectionAmount);
WScript.Echo(tst.FareCalculation.Text);
WScript.Echo("done");
