' A whole retrieval through the simulated toolkit, and sessions written in VBScript.
Option Explicit

Sub Check(what, found, wanted)
  If found <> wanted Then
    WScript.Echo "FAILED: " & what & ": " & found & " instead of " & wanted
  End If
End Sub

Dim session, tst, log
Set log = CreateObject("QorlHostToolkit.LogReader")
Set session = CreateObject("QorlHostToolkit.RecordedSession")
session.Load WScript.Arguments(0) & "/examples/displays/fares.txt"
Set tst = CreateObject("QorlTST.TST")
log.Clear
Check "result", tst.RetrieveCurrentTst(session), 0
Check "currency", tst.FareBaseLineCurrencyCode, "GBP"
Check "amount", tst.FareBaseLineBaseAmount, 120
Check "net fare", tst.NetFareFareAmount, "150"
Check "first command", session.Command(1), "TQT"
If log.Count < 10 Then WScript.Echo "FAILED: " & log.Count & " log entries"
Check "first entry", log(1), "QorlTST TRACE 1 QorlTST.Communication.RetrieveCurrentTST: " & _
  "Beginning RetrieveCurrentTst(in TstCommunication) Function"

' The same screens through a session and a response written here.
Class ScriptResponse
  Public Text
End Class

Class ScriptSession
  Public Screen
  Public Command
  Public WaitFlag
  Public OptionSet
  Public OptionValue
  Public Function SendCommand(commandText, wait)
    Command = commandText
    WaitFlag = wait
    If IsEmpty(Screen) Then
      Set SendCommand = Nothing
    Else
      Dim response
      Set response = New ScriptResponse
      response.Text = Screen
      Set SendCommand = response
    End If
  End Function
  Public Sub SetOption(number, value)
    OptionSet = number
    OptionValue = value
  End Sub
End Class

Dim own, again
Set own = New ScriptSession
own.Screen = session.SendCommand("TQT", True).Text
Set again = CreateObject("QorlTST.TST")
Check "result of the script's session", again.RetrieveCurrentTst(own), 0
Check "command", own.Command, "TQT"
Check "wait flag", own.WaitFlag, True
Check "option", own.OptionSet, 322
Check "option value", own.OptionValue, False
Check "same text", again.FareBaseLineText, tst.FareBaseLineText
Check "specific", again.RetrieveSpecificTst(own, "TQT/T2"), 0
Check "specific command", own.Command, "TQT/T2"

' The text may be a property with code behind it.
Class PropertyResponse
  Public Screen
  Public Property Get Text()
    Text = Screen
  End Property
End Class

Class FixedSession
  Public Response
  Public Function SendCommand(commandText, wait)
    Set SendCommand = Response
  End Function
  Public Sub SetOption(number, value)
  End Sub
End Class

Dim fixed, third
Set fixed = New FixedSession
Set fixed.Response = New PropertyResponse
fixed.Response.Screen = own.Screen
Set third = CreateObject("QorlTST.TST")
Check "result of a response with code", third.RetrieveCurrentTst(fixed), 0
Check "text of a response with code", third.FareBaseLineText, tst.FareBaseLineText

' No response, no ticket, a failing session: result codes, never errors.
own.Screen = Empty
Check "no response", again.RetrieveCurrentTst(own), 3004
own.Screen = "NO TICKET HERE"
Check "no ticket", again.RetrieveCurrentTst(own), 1000

Class FailingSession
  Public Function SendCommand(commandText, wait)
    Err.Raise vbObjectError + 17, "script", "broken line"
  End Function
  Public Sub SetOption(number, value)
  End Sub
End Class
Check "failing session", again.RetrieveCurrentTst(New FailingSession), 0
Check "what was read stays", again.FareBaseLineCurrencyCode, "GBP"
WScript.Echo "done"
