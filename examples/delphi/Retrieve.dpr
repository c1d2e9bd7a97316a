// Retrieves the ticket of a recorded host session, late bound, and prints what an agent looks at first.
program Retrieve;
{$APPTYPE CONSOLE}
uses SysUtils, Variants, ActiveX, ComObj;

procedure PrintTicket(const FileName: string);
var Session, Tst, Item: OleVariant; Code, I: Integer;
begin
  Session := CreateOleObject('QorlHostToolkit.RecordedSession');
  Session.Load(FileName);
  Tst := CreateOleObject('QorlTST.TST');
  Code := Tst.RetrieveCurrentTst(Session);
  if (Code <> 0) and (Code <> 1005) or (Tst.Text = '') then raise Exception.CreateFmt('No ticket: result %d', [Code]);
  if Code = 1005 then Writeln('Parts of the ticket were not understood');

  Item := Tst.TSTHeader;
  Writeln('TST ' + Item.ElementNumber + ' of ' + Item.OfficeId + ', changed ' + Item.LastModifDate);
  for I := 1 to Tst.NameElements.Count do begin
    Item := Tst.NameElements.Item(I);
    Writeln(Item.LastName + '/' + Item.Initial + ' ' + Item.PassengerType);
  end;
  for I := 1 to Tst.AirSegments.Count do begin
    Item := Tst.AirSegments.Item(I);
    Writeln(Item.AirLine + Item.FlightNumber + ' from ' + Item.BoardPoint + ' ' + Item.DepartureDate);
  end;
  Writeln('Fare ' + Tst.FareBaseLineCurrencyCode + ' ' + VarToStr(Tst.FareBaseLineBaseAmount));
  for I := 1 to Tst.TaxElements.Count do begin
    Item := Tst.TaxElements.Item(I);
    Writeln('Tax ' + Item.ISOType + ' ' + Item.CurrencyCode + ' ' + Item.Amount);
  end;
  Writeln('Total ' + Tst.TotalCurrencyCode + ' ' + VarToStr(Tst.TotalCollectionAmount));
  Writeln(VarToStr(Tst.FareCalculation.Text));
end;

begin
  CoInitialize(nil);
  try PrintTicket(ParamStr(1)) except on E: Exception do Writeln(E.Message) end;
  CoUninitialize;
end.
