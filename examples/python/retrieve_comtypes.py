"""Retrieves the ticket of a recorded host session, early bound (comtypes), and prints what an agent looks at first.

Run it with: python retrieve_comtypes.py <session file>
"""
import sys

from comtypes import COMError
from comtypes.client import CreateObject

session = CreateObject("QorlHostToolkit.RecordedSession", dynamic=True)
try:
    session.Load(sys.argv[1])
except COMError as error:
    sys.exit(f"No session: {error.details[0] if error.details else error.text}")

tst = CreateObject("QorlTST.TST")  # the first run writes a module from the type library
code = tst.RetrieveCurrentTst(session._comobj)  # what a late-bound object wraps
if code not in (0, 1005) or not tst.Text:
    sys.exit(f"No ticket: result {code}")
if code == 1005:
    print("Parts of the ticket were not understood")


def items(collection):
    return (collection.Item(i) for i in range(1, collection.Count + 1))  # counted from 1


print(f"TST {tst.TSTHeader.ElementNumber} of {tst.TSTHeader.OfficeId}, changed {tst.TSTHeader.LastModifDate}")
for name in items(tst.NameElements):
    print(f"{name.LastName}/{name.Initial} {name.PassengerType}")
for air in items(tst.AirSegments):
    print(f"{air.AirLine}{air.FlightNumber} from {air.BoardPoint} {air.DepartureDate}")
print(f"Fare {tst.FareBaseLineCurrencyCode} {tst.FareBaseLineBaseAmount}")
for tax in items(tst.TaxElements):
    print(f"Tax {tax.ISOType} {tax.CurrencyCode} {tax.Amount}")
print(f"Total {tst.TotalCurrencyCode} {tst.TotalCollectionAmount}")
print(tst.FareCalculation.Text)
