// The host session that the example retrieves from: one that plays a recording, late bound as its library wants it.
// A program of yours has a session of its own.
#pragma once

#include "Pointers.h"

/// Automation is there while this object is.
struct Apartment {
  Apartment() { _com_util::CheckError(CoInitialize(nullptr)); }
  ~Apartment() { CoUninitialize(); }
};

/// Nothing where the file cannot be read; `reason` then says why.
inline IDispatchPtr OpenRecording(const wchar_t* file, _bstr_t& reason) {
  IDispatchPtr session;
  _com_util::CheckError(session.CreateInstance(L"QorlHostToolkit.RecordedSession"));
  wchar_t load[] = L"Load";
  LPOLESTR name = load;
  DISPID id = 0;
  _com_util::CheckError(session->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
  _variant_t path(file);
  DISPPARAMS arguments{&path, nullptr, 1, 0};
  EXCEPINFO error{};
  const HRESULT result =
      session->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr, &error, nullptr);
  reason.Attach(error.bstrDescription);
  SysFreeString(error.bstrSource);
  SysFreeString(error.bstrHelpFile);
  return SUCCEEDED(result) ? session : nullptr;
}
