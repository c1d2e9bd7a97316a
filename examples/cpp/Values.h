// Makes properties easy to read: values that free themselves, failures as exceptions (_com_error).
#pragma once

#include <iostream>
#include <string>
#include <vector>

#include "Pointers.h"

template <class Pointer, class Face, class Raw>
Raw Get(const Pointer& object, HRESULT (STDMETHODCALLTYPE Face::*get)(Raw*)) {
  Raw raw{};
  _com_util::CheckError((object.GetInterfacePtr()->*get)(&raw));
  return raw;
}

template <class Pointer, class Face>
_bstr_t Text(const Pointer& object, HRESULT (STDMETHODCALLTYPE Face::*get)(BSTR*)) {
  return {Get(object, get), false};
}

inline std::vector<IDispatchPtr> Items(const _TSTPtr& tst, HRESULT (STDMETHODCALLTYPE _TST::*get)(_Collection**)) {
  const _CollectionPtr collection(Get(tst, get), false);
  std::vector<IDispatchPtr> items(static_cast<std::size_t>(Get(collection, &_Collection::get_Count)));
  for (LONG i = 1; IDispatchPtr & item : items) {
    _com_util::CheckError(collection->Item(i++, &item));
  }
  return items;
}

/// Prints a line of texts, numbers and amounts. The result is that of a program that stops here.
template <class... Parts>
int Say(const Parts&... parts) {
  (std::wcout << ... << static_cast<const wchar_t*>(_bstr_t(_variant_t(parts)))) << std::endl;
  return EXIT_FAILURE;
}
