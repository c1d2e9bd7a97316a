// Retrieves the ticket of a recorded host session, early bound, and prints what an agent looks at first.
#include "RecordedSession.h"
#include "Values.h"

int Retrieve(const wchar_t* file) {
  _bstr_t reason;
  const IDispatchPtr session = OpenRecording(file, reason);
  if (!session) return Say(L"No session: ", reason);
  const _TSTPtr tst(__uuidof(TST));
  LONG code = 0;
  _com_util::CheckError(tst->RetrieveCurrentTst(session, &code));
  if ((code != 0 && code != 1005) || Text(tst, &_TST::get_Text).length() == 0) return Say(L"No ticket: result ", code);
  if (code == 1005) Say(L"Parts of the ticket were not understood");

  const _TSTHeaderPtr header(Get(tst, &_TST::get_TSTHeader), false);
  Say(L"TST ", Text(header, &_TSTHeader::get_ElementNumber), L" of ", Text(header, &_TSTHeader::get_OfficeId),
      L", changed ", Text(header, &_TSTHeader::get_LastModifDate));
  for (const _NameElementPtr name : Items(tst, &_TST::get_NameElements))
    Say(Text(name, &_NameElement::get_LastName), L"/", Text(name, &_NameElement::get_Initial), L" ",
        Text(name, &_NameElement::get_PassengerType));
  for (const _AirSegmentPtr air : Items(tst, &_TST::get_AirSegments))
    Say(Text(air, &_AirSegment::get_AirLine), Text(air, &_AirSegment::get_FlightNumber), L" from ",
        Text(air, &_AirSegment::get_BoardPoint), L" ", Text(air, &_AirSegment::get_DepartureDate));
  Say(L"Fare ", Text(tst, &_TST::get_FareBaseLineCurrencyCode), L" ", Get(tst, &_TST::get_FareBaseLineBaseAmount));
  for (const _TaxElementPtr tax : Items(tst, &_TST::get_TaxElements))
    Say(L"Tax ", Text(tax, &_TaxElement::get_ISOType), L" ", Text(tax, &_TaxElement::get_CurrencyCode), L" ",
        Text(tax, &_TaxElement::get_Amount));
  Say(L"Total ", Text(tst, &_TST::get_TotalCurrencyCode), L" ", Get(tst, &_TST::get_TotalCollectionAmount));
  const _FareCalculationPtr calculation(Get(tst, &_TST::get_FareCalculation), false);
  Say(Text(calculation, &_FareCalculation::get_Text), L"\ndone");
  return 0;
}

int wmain(int, wchar_t** arguments) try {
  const Apartment apartment;
  return Retrieve(arguments[1]);
} catch (const _com_error& error) {
  return Say(L"Automation failed: ", error.Error());
}
