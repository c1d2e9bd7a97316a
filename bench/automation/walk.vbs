' The same walk by hand: what a script pays that sends the command, reads the parser's tree and writes the log itself,
' against the component called from the same script. Arguments: a display's file, how often.
Option Explicit

Dim session, log, tst, file, times, begun, component, byHand, texts, used
file = WScript.Arguments(0)
times = CLng(WScript.Arguments(1))
Set session = CreateObject("QorlHostToolkit.RecordedSession")
Set log = CreateObject("QorlHostToolkit.LogReader")
session.Load file

begun = Timer
Dim i
For i = 1 To times
  Set tst = CreateObject("QorlTST.TST")
  If tst.RetrieveCurrentTst(session) <> 0 Then WScript.Echo "the retrieval failed"
  log.Clear
Next
component = (Timer - begun) / times

begun = Timer
For i = 1 To times
  RetrieveByHand
  log.Clear
Next
byHand = (Timer - begun) / times

WScript.Echo Mid(file, InStrRev(file, "\") + 1) & "  component " & Microseconds(component) & " us, by hand " & _
             Microseconds(byHand) & " us, " & used & " texts"
WScript.Echo "done"

Function Microseconds(seconds)
  Microseconds = CLng(seconds * 1000000)
End Function

Sub RetrieveByHand()
  Dim logger, response, text, parser, node
  Set logger = CreateObject("QorlHostToolkit.HostLogger")
  logger.SetApplication "Script"
  session.SetOption 322, False
  Set response = session.SendCommand("TQT", True)
  text = response.Text
  Set parser = CreateObject("QorlHostToolkit.ParseNode")
  If parser.Parse(text, 6) <> 10000 Then Exit Sub
  If parser.FindNode(602) Is Nothing Then Exit Sub
  ReDim texts(5000)
  used = 0
  For Each node In parser
    If node.HasWarning Then logger.Write 3, "Script.Walk", 1, "A warning on " & node.TypeId
    logger.Write 3, "Script.Walk", 1, "Beginning of line " & node.TypeId
    Keep node.Text
    Keep node.ErrorText
    Walk node
    logger.Write 3, "Script.Walk", 1, "End of line " & node.TypeId
  Next
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
