"""Retrieves the ticket of a recorded host session, late bound (pywin32), and prints what an agent looks at first.

Run it with: python retrieve_win32com.py <session file>
"""
import sys

import pywintypes
from win32com.client.dynamic import Dispatch

session = Dispatch("QorlHostToolkit.RecordedSession")
try:
    session.Load(sys.argv[1])
except pywintypes.com_error as error:
    sys.exit(f"No session: {error.excepinfo[2] if error.excepinfo else error.strerror}")

tst = Dispatch("QorlTST.TST")
code = tst.RetrieveCurrentTst(session)
if code not in (0, 1005) or not tst.Text:
    sys.exit(f"No ticket: result {code}")
if code == 1005:
    print("Parts of the ticket were not understood")

header = tst.TSTHeader
print(f"TST {header.ElementNumber} of {header.OfficeId}, changed {header.LastModifDate}")
for name in tst.NameElements:
    print(f"{name.LastName}/{name.Initial} {name.PassengerType}")
# Item counts from 1, as in every language. Square brackets are Python's own here and count from 0:
# tst.AirSegments[0] is tst.AirSegments.Item(1).
for i in range(1, tst.AirSegments.Count + 1):
    air = tst.AirSegments.Item(i)
    print(f"{air.AirLine}{air.FlightNumber} from {air.BoardPoint} {air.DepartureDate}")
print(f"Fare {tst.FareBaseLineCurrencyCode} {tst.FareBaseLineBaseAmount}")
for tax in tst.TaxElements:
    print(f"Tax {tax.ISOType} {tax.CurrencyCode} {tax.Amount}")
print(f"Total {tst.TotalCurrencyCode} {tst.TotalCollectionAmount}")
print(tst.FareCalculation.Text)
