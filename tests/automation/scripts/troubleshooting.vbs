' The symptoms that docs/troubleshooting.md and docs/result-codes.md name, each provoked. The last line tells that the
' script came to its end.
Option Explicit

Sub Check(what, found, wanted)
  If found <> wanted Then
    WScript.Echo "FAILED: " & what & ": " & found & " instead of " & wanted
  End If
End Sub

Sub CheckError(what, number)
  If Err.Number <> number Then
    WScript.Echo "FAILED: " & what & ": error " & Err.Number & " " & Err.Description & " instead of " & number
  End If
  Err.Clear
End Sub

Dim tst, found, log, session
Set tst = CreateObject("QorlTST.TST")
Set log = CreateObject("QorlHostToolkit.LogReader")

' Error numbers.
On Error Resume Next
Set found = CreateObject("QorlTST.Collection")
CheckError "a collection cannot be created", 429
found = tst.AirSegments.Item(0).Text
CheckError "index 0", 9
found = tst.AirSegments(1).Text
CheckError "index beyond the count", 9
found = tst.AirSegments("x").Text
CheckError "index that is no number", 13
found = tst.AirSegments.Item().Text
CheckError "no index", 450
found = tst.RetrieveCurrentTst(5)
CheckError "number as a session", 13
found = tst.RetrieveSpecificTst(Nothing)
CheckError "no command", 450
Set tst.PublishedAndNetFares = Nothing
CheckError "Nothing as a collection", 91
tst.PublishedAndNetFares = 5
CheckError "number as a collection", 13
Set tst.PublishedAndNetFares = tst
CheckError "object that is no collection", 13
found = tst.NoSuchProperty
CheckError "unknown property", 438
tst.Text = "text"
CheckError "read-only property", 438
found = tst.FareCalculation
CheckError "object without Set", 438
found = tst.AirSegments
CheckError "collection without Set", 450
On Error Goto 0

' Sessions that are none. Nothing is raised.
Class WithoutOptions
  Public Function SendCommand(command, wait)
    Set SendCommand = Nothing
  End Function
End Class

Class GivesText
  Public Function SendCommand(command, wait)
    SendCommand = "TST 00001"
  End Function
  Public Sub SetOption(number, value)
  End Sub
End Class

Class FailingOption
  Public Function SendCommand(command, wait)
    Set SendCommand = Nothing
  End Function
  Public Sub SetOption(number, value)
    Err.Raise 5
  End Sub
End Class

Check "Nothing", tst.RetrieveCurrentTst(Nothing), 3004
Check "Empty", tst.RetrieveCurrentTst(Empty), 3004
Check "Null", tst.RetrieveCurrentTst(Null), 3004
log.Clear
Check "another object", tst.RetrieveCurrentTst(tst), 0
Check "entries of another object", log.Count, 1
Check "no SetOption", tst.RetrieveCurrentTst(New WithoutOptions), 0
Check "no SetOption, none needed", tst.RetrieveSpecificTst(New WithoutOptions, "TQT"), 3004
Check "answer that is a text", tst.RetrieveCurrentTst(New GivesText), 0
Check "failing SetOption", tst.RetrieveCurrentTst(New FailingOption), 0
Check "nothing was read", tst.Text, ""

' The session of docs/retrieval.md.
Class OneScreen
  Public Text
  Public Function SendCommand(command, wait)
    Set SendCommand = Me
  End Function
  Public Sub SetOption(number, value)
  End Sub
End Class

' The function of docs/result-codes.md.
Function IsRetrieved(tst, code)
  IsRetrieved = (code = 0 Or code = 1005) And tst.Text <> "" And _
    tst.NameElements.Count + tst.AirSegments.Count + tst.AirOpenSegments.Count + tst.TaxElements.Count > 0
End Function

Function LineOf(text)
  LineOf = text & Space(80 - Len(text))
End Function

Dim own
Set own = New OneScreen
own.Text = LineOf("TST 00001") & LineOf("NAMES 1.ORRIN/HALE MR (ADT)")
Check "session of one's own", tst.RetrieveCurrentTst(own), 0
Check "it was retrieved", IsRetrieved(tst, 0), True

' A failure in the middle: the code is 0, the log has no end.
Set tst = CreateObject("QorlTST.TST")
Set session = CreateObject("QorlHostToolkit.RecordedSession")
session.Load WScript.Arguments(0) & "/examples/displays/overflow.txt"
Check "a failure in the middle", tst.RetrieveCurrentTst(session), 0
Check "the text is there", tst.Text <> "", True
Check "the line at which it failed", tst.TotalLineText, "TOTAL EUR 1000000000000000.00"
Check "its amount", tst.TotalCollectionAmount, 0
Check "names", tst.NameElements.Count, 0
Check "it is told", IsRetrieved(tst, 0), False
Check "last entry", log(log.Count), "QorlTST TRACE 1 QorlTST.TST.FillTotalWithData: " & _
  "Beginning of FillTotalWithData(in TST) Function"

' Values.
Check "no date", CDbl(tst.TSTHeader.LastDateFromTst), 0
Check "day of no date", Year(tst.TSTHeader.LastDateFromTst), 1899

' Entries of one's own.
Dim entries
Set entries = CreateObject("QorlTST.EtLog")
entries.Source = "MyProgram."
entries.LogTrace "Ticket shown", "Main"
Check "own trace", log(log.Count), "QorlTST TRACE 1 MyProgram.Main: Ticket shown"
entries.LogHostError 3004, "Main"
Check "own error", log(log.Count), _
  "QorlTST ERROR 3004 MyProgram.Main: There is a problem with the connected session."
WScript.Echo "done"
