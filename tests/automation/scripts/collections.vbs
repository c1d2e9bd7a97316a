' Collections, arguments and errors as VBScript clients use them. The last line tells that the script came to its end.
Option Explicit

Sub Check(what, found, wanted)
  If found <> wanted Or VarType(found) <> VarType(wanted) Then
    WScript.Echo "FAILED: " & what & ": " & found & " instead of " & wanted
  End If
End Sub

Sub CheckError(what, number)
  If Err.Number <> number Then
    WScript.Echo "FAILED: " & what & ": error " & Err.Number & " " & Err.Description & " instead of " & number
  End If
  Err.Clear
End Sub

Dim tst, items, item, count, other
Set tst = CreateObject("QorlTST.TST")

' A new ticket: nothing is absent, everything is empty.
Check "segments", tst.AirSegments.Count, CLng(0)
Check "text", tst.Text, ""
Check "amount", tst.FareBaseLineBaseAmount, CCur(0)
Check "header text", tst.TSTHeader.Text, ""
Check "identity", tst.TSTHeader Is tst.TSTHeader, True
count = 0
For Each item In tst.AirSegments
  count = count + 1
Next
Check "enumerated", count, 0

On Error Resume Next
Set item = tst.AirSegments(1)
CheckError "index beyond", 9
Set item = tst.AirSegments.Item(0)
CheckError "index zero", 9
Set item = tst.AirSegments.Item("first")
CheckError "index of a wrong type", 13
Set item = tst.AirSegments.Item()
CheckError "missing index", 450
tst.Text = "x"
CheckError "read-only property", 438
Set tst.TSTHeader = tst
CheckError "read-only object", 438
tst.FillTotalWithData tst
CheckError "internal operation", 438
tst.SetTextToParse "x"
CheckError "internal operation", 438
Set tst.PublishedAndNetFares = Nothing
CheckError "nothing as a collection", 91
tst.RetrieveCurrentTst
CheckError "missing session", 450
tst.RetrieveCurrentTst "session"
CheckError "a text as a session", 13
On Error Goto 0
Check "text is unchanged", tst.Text, ""

' The one collection that callers may replace takes their own object and gives it back.
Class OwnCollection
  Public Property Get Count
    Count = 7
  End Property
  Public Function Item(index)
    Item = index * 2
  End Function
End Class
Set other = New OwnCollection
Set tst.PublishedAndNetFares = other
Check "own collection", tst.PublishedAndNetFares Is other, True
Check "own count", tst.PublishedAndNetFares.Count, 7
Check "own item", tst.PublishedAndNetFares.Item(4), 8
Class NoCollection
  Public Count
End Class
On Error Resume Next
Set tst.PublishedAndNetFares = New NoCollection
CheckError "no collection", 13
On Error Goto 0
Check "still the own one", tst.PublishedAndNetFares Is other, True

Check "no session", tst.RetrieveCurrentTst(Nothing), CLng(3004)
Check "no session", tst.RetrieveSpecificTst(Empty, "TQT/T2"), CLng(3004)
WScript.Echo "done"
