// Collections, arguments and errors as JScript clients use them. The last line tells that the script came to its end.
function check(what, found, wanted) {
  if (found !== wanted) {
    WScript.Echo("FAILED: " + what + ": " + found + " instead of " + wanted);
  }
}

function numberOf(call) {
  try {
    call();
  } catch (error) {
    return error.number & 0xFFFF;
  }
  return 0;
}

var tst = new ActiveXObject("QorlTST.TST");
check("count", tst.AirSegments.Count, 0);
var counted = 0;
for (var items = new Enumerator(tst.AirSegments); !items.atEnd(); items.moveNext()) {
  counted++;
}
check("enumerated", counted, 0);
check("wrong index", numberOf(function () { tst.AirSegments.Item(1); }), 9);
check("header text", tst.TSTHeader.Text, "");
check("session", tst.RetrieveCurrentTst(null), 3004);

// A session written here.
var response = { Text: "NO TICKET HERE" };
var session = {
  commands: "",
  SendCommand: function (command, wait) {
    this.commands += command + (wait ? "+" : "-");
    return response;
  },
  SetOption: function (option, value) {
    this.option = option;
  }
};
check("no ticket", tst.RetrieveCurrentTst(session), 1000);
check("commands", session.commands, "TQT+");
check("option", session.option, 322);

// A recorded one.
var recorded = new ActiveXObject("QorlHostToolkit.RecordedSession");
recorded.Load(WScript.Arguments(0) + "/examples/displays/fares.txt");
check("result", tst.RetrieveCurrentTst(recorded), 0);
check("currency", tst.FareBaseLineCurrencyCode, "GBP");

// Nodes of the simulated toolkit, walked by hand.
var parser = new ActiveXObject("QorlHostToolkit.ParseNode");
check("parsed", parser.Parse(tst.Text, 6), 10000);
var lines = 0;
for (var children = new Enumerator(parser); !children.atEnd(); children.moveNext()) {
  lines += children.item().TypeId > 0 ? 1 : 0;
}
check("lines", lines > 3, true);
check("root", parser.FindNode(602).TypeId, 602);
check("not found", parser.FindNode(9999), null);
check("item", parser.Item(1).Buffer.length > 0, true);
check("no item", parser.Item(1000), null);
check("below a start node", parser.FindNode(2689, parser.FindNode(602)).TypeId, 2689);
WScript.Echo("done");
