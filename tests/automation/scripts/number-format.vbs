' The net fare is written in the user's number format: here with a decimal comma, which is put back at the end.
Option Explicit

Const kDecimal = "HKCU\Control Panel\International\sDecimal"

Sub Check(what, found, wanted)
  If found <> wanted Then
    WScript.Echo "FAILED: " & what & ": " & found & " instead of " & wanted
  End If
End Sub

Dim shell, before, session, tst
Set shell = CreateObject("WScript.Shell")
before = shell.RegRead(kDecimal)
shell.RegWrite kDecimal, ","
Set session = CreateObject("QorlHostToolkit.RecordedSession")
session.Load WScript.Arguments(0) & "/examples/displays/rich.txt"
Set tst = CreateObject("QorlTST.TST")
Check "result", tst.RetrieveCurrentTst(session), 0
shell.RegWrite kDecimal, before
Check "net fare", tst.NetFareFareAmount, "790,5"
WScript.Echo "done"
