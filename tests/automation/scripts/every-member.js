// Every member of every class, called as no careful client would. An error that got out of the component would end this
// script.
var succeeded = 0;
var failed = 0;

function attempt(call) {
  try {
    call();
    succeeded++;
  } catch (error) {
    failed++;
  }
}

function callMember(object, name, a, b, c) {
  attempt(function () { return object[name]; });
  attempt(function () { return object[name](); });
  attempt(function () { return object[name](a); });
  attempt(function () { return object[name](a, b); });
  attempt(function () { return object[name](a, b, c); });
  attempt(function () { return object[name](a, b, c, a, b); });
  attempt(function () { return object[name](a, b, c, a, b, c, a, b); });
  attempt(function () { object[name] = a; });
  attempt(function () { object[name](a) = b; });
}

var values = [undefined, null, "", "text", -1, 1e300, NaN, true, new Date(), [1, 2], {}, function () { return 1; },
  new ActiveXObject("QorlHostToolkit.RecordedSession"), new ActiveXObject("QorlTST.TSTHeader")];

var list = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(WScript.Arguments(1));
var members = 0;
while (!list.AtEndOfStream) {
  var words = list.ReadLine().split(" ");
  var object = new ActiveXObject("QorlTST." + words[0]);
  for (var i = 1; i < words.length; i++) {
    for (var turn = members; turn < members + values.length; turn += 5) {
      callMember(object, words[i], values[turn % values.length], values[(turn + 3) % values.length],
        values[(turn + 8) % values.length]);
    }
    members++;
  }
}
if (members < 300) {
  WScript.Echo("FAILED: " + members + " members");
}
if (failed < members || succeeded < members) {
  WScript.Echo("FAILED: too few went one way");
}
WScript.Echo("figures: " + members + " members, " + succeeded + " calls succeeded, " + failed + " raised an error");
WScript.Echo("done");
