' The same walk by hand: what a script pays that sends the command, reads the parser's tree and writes the log itself,
' against the component called from the same script. Each with objects that are made anew every time, and with objects
' that are kept. Arguments: a display's file, how often.
Option Explicit

Dim session, log, tst, logger, parser, file, times, begun, i, texts(5000), used
file = WScript.Arguments(0)
times = CLng(WScript.Arguments(1))
Set session = CreateObject("QorlHostToolkit.RecordedSession")
Set log = CreateObject("QorlHostToolkit.LogReader")
session.Load file
WScript.Echo Mid(file, InStrRev(file, "\") + 1)

begun = Timer
For i = 1 To times
  Set tst = CreateObject("QorlTST.TST")
  Retrieve
Next
Report "component, a new TST each time"

begun = Timer
For i = 1 To times
  Retrieve
Next
Report "component, one TST"

begun = Timer
For i = 1 To times
  MakeParserAndLogger
  RetrieveByHand
Next
Report "by hand, a new parser and logger each time"

begun = Timer
For i = 1 To times
  RetrieveByHand
Next
Report "by hand, one parser and logger"
WScript.Echo used & " texts"
WScript.Echo "done"

Sub Report(what)
  WScript.Echo "  " & what & ": " & CLng((Timer - begun) / times * 1000000) & " us"
End Sub

Sub Retrieve()
  If tst.RetrieveCurrentTst(session) <> 0 Then WScript.Echo "the retrieval failed"
  log.Clear
End Sub

Sub MakeParserAndLogger()
  Set logger = CreateObject("QorlHostToolkit.HostLogger")
  logger.SetApplication "Script"
  Set parser = CreateObject("QorlHostToolkit.ParseNode")
End Sub

Sub RetrieveByHand()
  Dim response, text, node
  session.SetOption 322, False
  Set response = session.SendCommand("TQT", True)
  text = response.Text
  If parser.Parse(text, 6) <> 10000 Then Exit Sub
  If parser.FindNode(602) Is Nothing Then Exit Sub
  used = 0
  For Each node In parser
    If node.HasWarning Then logger.Write 3, "Script.Walk", 1, "A warning on " & node.TypeId
    logger.Write 3, "Script.Walk", 1, "Beginning of line " & node.TypeId
    Keep node.Text
    Keep node.ErrorText
    Walk node
    logger.Write 3, "Script.Walk", 1, "End of line " & node.TypeId
  Next
  log.Clear
End Sub

Sub Walk(parent)
  Dim child
  For Each child In parent
    If child.TypeId <> 0 Then Keep child.Text
    If child.HasChildren Then Walk child
  Next
End Sub

Sub Keep(text)
  texts(used) = text
  used = used + 1
End Sub
