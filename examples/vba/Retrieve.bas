Attribute VB_Name = "Retrieve"
' Retrieves the ticket of a recorded host session, early bound, and prints what an agent looks at first.
' For VB6 and VBA; tick "QorlTST" under References. In the immediate window: PrintTicket "C:\displays\rich.txt"
Option Explicit

Public Sub PrintTicket(ByVal path As String)
  Dim session As Object
  Set session = CreateObject("QorlHostToolkit.RecordedSession")
  On Error Resume Next
  session.Load path
  If Err.Number <> 0 Then Debug.Print "No session: " & Err.Description: Exit Sub
  On Error GoTo 0

  Dim tst As New QorlTST.TST, code As Long
  code = tst.RetrieveCurrentTst(session)
  If (code <> 0 And code <> 1005) Or tst.Text = "" Then Debug.Print "No ticket: result " & code: Exit Sub
  If code = 1005 Then Debug.Print "Parts of the ticket were not understood"

  Dim header As QorlTST.TSTHeader, passenger As QorlTST.NameElement, air As QorlTST.AirSegment
  Dim tax As QorlTST.TaxElement
  Set header = tst.TSTHeader
  Debug.Print "TST " & header.ElementNumber & " of " & header.OfficeId & ", changed " & header.LastModifDate
  For Each passenger In tst.NameElements
    Debug.Print passenger.LastName & "/" & passenger.Initial & " " & passenger.PassengerType
  Next
  For Each air In tst.AirSegments
    Debug.Print air.AirLine & air.FlightNumber & " from " & air.BoardPoint & " " & air.DepartureDate
  Next
  Debug.Print "Fare " & tst.FareBaseLineCurrencyCode & " " & tst.FareBaseLineBaseAmount
  For Each tax In tst.TaxElements
    Debug.Print "Tax " & tax.ISOType & " " & tax.CurrencyCode & " " & tax.Amount
  Next
  Debug.Print "Total " & tst.TotalCurrencyCode & " " & tst.TotalCollectionAmount
  Debug.Print tst.FareCalculation.Text
End Sub
