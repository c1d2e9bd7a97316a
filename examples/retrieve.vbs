' Retrieves the ticket of a recorded host session and prints the whole record, section by section, and the start of
' the trace. Run it with: cscript //nologo retrieve.vbs <session file>. Its native counterpart is examples/native.
Option Explicit

Const kTraceLines = 8
Const kLabelWidth = 38

Dim depth
depth = 0

' A line of the section; what is empty is left out.
Sub Show(label, value)
  Dim text
  text = Trim(CStr(value))
  If text = "" Or text = "-" Or text = "False" Then Exit Sub
  Dim gap
  gap = kLabelWidth - 2 * depth - Len(label)
  If gap < 1 Then gap = 1
  WScript.Echo Space(2 * depth) & label & Space(gap) & text
End Sub

Sub Begin(title)
  WScript.Echo Space(2 * depth) & title
  depth = depth + 1
End Sub

Sub Finish()
  depth = depth - 1
End Sub

Function MeaningOf(code)
  Select Case code
    Case 0 MeaningOf = "parsed"
    Case 1000 MeaningOf = "not a TST"
    Case 1005 MeaningOf = "parsed with warnings"
    Case 1006 MeaningOf = "parse error"
    Case 3004 MeaningOf = "session problem"
    Case Else MeaningOf = "unknown"
  End Select
End Function

Function DayText(moment)
  DayText = Year(moment) & "-" & Right("0" & Month(moment), 2) & "-" & Right("0" & Day(moment), 2)
End Function

Sub ShowHeader(header)
  Begin "Header"
  Show "Number", header.ElementNumber
  Show "PNR change flag", header.PNRChangeFlag
  Show "Pricing", header.PricingId
  Show "Last modified", header.LastModifDate
  Show "Office and agent", header.OfficeId & " " & header.AgentDutyCode
  If header.LastDateFromTst <> 0 Then Show "Last date", DayText(header.LastDateFromTst)
  Show "Origin and destination", header.OriginDestinationId & " " & header.OriginDestinationData
  Show "International sale", header.InternationalSalesId
  Show "Fare calculation", header.FareCalculationType & " " & header.FareCalculationModeIndicator
  Finish
End Sub

Sub ShowNames(names)
  Dim name
  For Each name In names
    Begin "Passenger " & name.ElementNumber
    Show "Name", name.LastName & "/" & name.Initial
    Show "Type", name.PassengerType
    Show "Identity", name.IdNumber
    Show "Extra seat", name.ExtraSeat
    Show "Cabin baggage", name.CabinBaggage
    Finish
  Next
End Sub

Sub ShowSegments(tst)
  Dim segment
  For Each segment In tst.AirSegments
    Begin "Flight " & segment.AirLine & segment.FlightNumber
    Show "From, class, date, time", segment.BoardPoint & " " & segment.Class & " " & segment.DepartureDate & " " & _
      segment.DepartureTime
    Show "Status", segment.ReservationStatus
    Show "Fare basis", segment.FareBasisId
    Show "Valid", segment.NotValidBefore & "-" & segment.NotValidAfter
    Show "Baggage", segment.BaggageAllowance
    Finish
  Next
  For Each segment In tst.AirOpenSegments
    Show "Open segment", segment.AirLine & " from " & segment.BoardPoint & " " & segment.Class & " " & _
      segment.FareBasisId
  Next
  For Each segment In tst.ARNKSegments
    Show "Surface segment", "from " & segment.BoardPoint
  Next
  Show "Destination", tst.ItineraryLastLine.DestinationCode
End Sub

Sub ShowFares(tst)
  Dim tax, fare
  Begin "Fare"
  Show "Fare line", tst.FareBaseLineText
  Show "Base", tst.FareBaseLineCurrencyCode & " " & tst.FareBaseLineBaseAmount
  Show "Equivalent line", tst.EquivalentLineText
  Show "Net fare line", tst.NetFareBaseLineText
  Show "Net fare", tst.NetFareCurrencyCode & " " & tst.NetFareFareAmount
  For Each tax In tst.TaxElements
    Show "Tax " & tax.TaxId & tax.ISOType & tax.NatureType, tax.CurrencyCode & " " & tax.Amount
  Next
  Show "Total line", tst.TotalLineText
  Show "Total", tst.TotalCurrencyCode & " " & tst.TotalCollectionAmount
  Show "Banker's rate", tst.TotalBankersRateId & " " & tst.TotalRateExchange
  For Each fare In tst.PublishedAndNetFares
    Show "Published or net fare " & fare.PubAndNetFaresId, fare.PubAndNetFaresCurrencyCode & " " & _
      fare.PubAndNetFaresBase
  Next
  Show "Payment restriction", tst.PaymentRestrictionLineFreeFlowText
  Show "ZapOff", tst.ZapOff
  Finish
End Sub

Sub ShowTicketing(tst)
  Dim element
  Begin "Ticketing"
  For Each element In tst.FMElements
    If element.CommissionPercent <> "" Then Show "Commission " & element.ElementNumber, element.CommissionPercent & "%"
    Show "Commission amount " & element.ElementNumber, element.CommissionFlatAmount
  Next
  For Each element In tst.FPElements
    Show "Form of payment " & element.ElementNumber, element.NewFOP
    Show "Old form of payment", element.OldFOP
  Next
  For Each element In tst.FVElements
    Show "Validating carrier " & element.ElementNumber, element.Carrier
  Next
  Show "Endorsement " & tst.FEElement.ElementNumber, tst.FEElement.FreeFlowText
  For Each element In tst.FTElements
    Show "Tour code " & element.ElementNumber, element.TourType & " " & element.TourCode & element.FreeFlowText
  Next
  For Each element In tst.FOElements
    Begin "Original issue " & element.ElementNumber
    Show "Document", element.OriginalIssueNumAirline & "-" & element.OriginalIssueDocumentNumber
    Show "Issued", element.OriginalIssueCity & " " & element.OriginalIssueDate & " " & element.OriginalIssueIata
    Show "Coupons", element.OriginalIssueCoupon
    Show "In exchange, first", element.IssuedInExchangeNumAirline & "-" & element.IssuedInExchangeDocumentNumber
    Show "In exchange, second", element.SecIssuedInExchangeNumAirline & "-" & _
      element.SecIssuedInExchangeDocumentNumber
    Show "Amount", element.CurrencyCode & " " & element.Amount
    Show "Base fare, tax, penalty", element.BaseFare & " " & element.Tax & " " & element.Penalty
    Finish
  Next
  Finish
End Sub

Sub ShowFare(label, fare)
  If fare Is Nothing Then Exit Sub
  Show label, Trim(fare.CurrencyCode & " " & fare.Amount)
  Show label & " less", fare.AmountToSub
  Show label & " stop-overs", fare.NumberStopAllowed & fare.StopOverChargeValue
End Sub

Sub ShowSurcharges(surcharges)
  Dim surcharge
  For Each surcharge In surcharges
    Show "Surcharge", surcharge.OtherSurchargeValue
  Next
End Sub

Sub ShowEqualizations(rules)
  Dim rule
  For Each rule In rules
    Show "Mileage equalization", rule.CityCode & " " & rule.MileageItemPercentage
  Next
End Sub

' What fare components and the items of composite elements name alike.
Sub ShowPoint(point)
  Show "Global routing", point.GlobalRoutingId
  Show "Extra mileage", point.ExtraMileageAllowanceId
  Show "Fictitious point", point.FictitiousCode
  Show "Lowest combination", point.LowestCombinationCityCode
  Show "Higher intermediate point", point.FareHigherClass & point.FareHigherCityPair
  Show "Fare", point.FareAmount
  Show "Less", point.FareAmountToSub
  Show "Inclusive tour", point.InclusiveTourFare
  Show "Bulk tour", point.BulkTourFare
  Show "Stop-over charge", point.StopOverChargeValue
  ShowSurcharges point.OtherSurcharges
  ShowEqualizations point.MileageEqualizationRules
End Sub

Sub ShowSymbols(symbols)
  Dim symbol
  For Each symbol In symbols
    Show "Symbols", symbol.StopOverNotAllowed & symbol.GapInRoutingIncludedInMileage & _
      symbol.GapInRoutinNotInMileage & symbol.ExtraMileageRoutingPoint & symbol.TicketedPointNotInMileage & _
      symbol.ReducedMileageRoutingPoint & symbol.OtherSymbol
  Next
End Sub

Sub ShowComposites(elements)
  Dim element
  For Each element In elements
    Begin "Composite: " & element.CarrierCode & " " & element.CityCode
    Show "Symbols", element.ItinerarySymbol
    Show "Mileage", element.MileageItemPercent
    ShowPoint element
    Finish
  Next
End Sub

Sub ShowEndLine(endLine)
  Dim charge, digit
  Begin "End"
  Show "Total fare", endLine.TotalFareCurrencyCode & " " & endLine.TotalFareAmount
  Show "Rate of exchange", endLine.RateOfExchange
  Show "End marker", endLine.EndId
  For Each charge In endLine.AnyPFCs
    Begin charge.Text
    For Each digit In charge.CityDigits
      Show digit.CityCode, digit.CityDigit
    Next
    Finish
  Next
  Finish
End Sub

Sub ShowFareCalculation(calculation)
  Dim item, point
  If calculation.Text = "" Then Exit Sub
  Begin "Fare calculation"
  Set point = calculation.DepartureRoutingPoint
  Show "Departure", point.CityCode & " " & point.DepartureRoutingDate
  For Each item In calculation.Itineraries
    Begin "To " & item.CityCode & " with " & item.ItineraryCarrierCode
    ShowSymbols item.AnySymbols
    Show "Mileage", item.MileagePercentage
    ShowPoint item
    ShowComposites item.ItineraryCompositeElements
    Finish
  Next
  ShowComposites calculation.ItineraryCompositeElements
  Show "Common fare", calculation.FareCommonCityCode & " " & calculation.FareCommonAmount
  For Each item In calculation.FareMinimums
    Begin "Fare minimum " & item.FareId & " " & item.CityPair1 & " " & item.CityPair2
    ShowFare "Fare", item.Fare
    Finish
  Next
  For Each item In calculation.HigherClassDifferentials
    Begin "Higher class differential " & item.CityPair
    ShowFare "Fare", item.Fare
    For Each point In item.FareHigherIntermediates
      Show "Point", point.Class & " " & point.CityPair
    Next
    Finish
  Next
  For Each item In calculation.ExtraSeats
    Begin "Extra seat " & item.ExtraSeatId & " " & item.CityCode
    ShowFare "Fare", item.Fare
    Finish
  Next
  ShowEndLine calculation.EndLine
  Finish
End Sub

Sub ShowTrace(log)
  Dim i
  WScript.Echo "Trace (" & log.Count & " entries), the first lines:"
  For i = 1 To log.Count
    If i > kTraceLines Then Exit For
    WScript.Echo "  " & log.Item(i)
  Next
End Sub

Dim session, tst, code
Set session = CreateObject("QorlHostToolkit.RecordedSession")
session.Load WScript.Arguments(0)

Set tst = CreateObject("QorlTST.TST")
code = tst.RetrieveCurrentTst(session)
Show "Result", code & " (" & MeaningOf(code) & ")"
ShowHeader tst.TSTHeader
ShowNames tst.NameElements
ShowSegments tst
ShowFares tst
ShowTicketing tst
ShowFareCalculation tst.FareCalculation
ShowTrace CreateObject("QorlHostToolkit.LogReader")

' Keep this last: whoever runs the script learns from this line alone that it came to its end.
WScript.Echo "done"
