// Smart pointers to the interfaces of QorlTST.h, the header that is made from the type library.
#pragma once

#include <comdef.h>

#include "QorlTST.h"

_COM_SMARTPTR_TYPEDEF(IDispatch, __uuidof(IDispatch));  // some compilers' headers have none
_COM_SMARTPTR_TYPEDEF(_TST, __uuidof(_TST));
_COM_SMARTPTR_TYPEDEF(_Collection, __uuidof(_Collection));
_COM_SMARTPTR_TYPEDEF(_TSTHeader, __uuidof(_TSTHeader));
_COM_SMARTPTR_TYPEDEF(_NameElement, __uuidof(_NameElement));
_COM_SMARTPTR_TYPEDEF(_AirSegment, __uuidof(_AirSegment));
_COM_SMARTPTR_TYPEDEF(_TaxElement, __uuidof(_TaxElement));
_COM_SMARTPTR_TYPEDEF(_FareCalculation, __uuidof(_FareCalculation));
