' Retrieves the ticket of a recorded host session, late bound, and prints what an agent looks at first.
' Run it with: cscript //nologo retrieve.vbs <session file>
Option Explicit
Dim session, tst, code, item

Set session = CreateObject("QorlHostToolkit.RecordedSession")
On Error Resume Next
session.Load WScript.Arguments(0)
If Err.Number <> 0 Then
  WScript.Echo "No session: " & Err.Description
  WScript.Quit 1
End If
On Error GoTo 0

Set tst = CreateObject("QorlTST.TST")
code = tst.RetrieveCurrentTst(session)
If (code <> 0 And code <> 1005) Or tst.Text = "" Then
  WScript.Echo "No ticket: result " & code
  WScript.Quit 1
End If
If code = 1005 Then WScript.Echo "Parts of the ticket were not understood"

With tst.TSTHeader
  WScript.Echo "TST " & .ElementNumber & " of " & .OfficeId & ", changed " & .LastModifDate
End With
For Each item In tst.NameElements
  WScript.Echo item.LastName & "/" & item.Initial & " " & item.PassengerType
Next
For Each item In tst.AirSegments
  WScript.Echo item.AirLine & item.FlightNumber & " from " & item.BoardPoint & " " & item.DepartureDate
Next
WScript.Echo "Fare " & tst.FareBaseLineCurrencyCode & " " & tst.FareBaseLineBaseAmount
For Each item In tst.TaxElements
  WScript.Echo "Tax " & item.ISOType & " " & item.CurrencyCode & " " & item.Amount
Next
WScript.Echo "Total " & tst.TotalCurrencyCode & " " & tst.TotalCollectionAmount
WScript.Echo tst.FareCalculation.Text
WScript.Echo "done"
