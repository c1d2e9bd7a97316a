// What the entries of every dual interface do. The tables of them are in DualTable.cpp.
#pragma once

#include <span>

#include "automation/DualTable.h"

namespace qorltst::automation {

HRESULT STDMETHODCALLTYPE QueryInterface(Dual* self, REFIID interfaceId, void** out) noexcept;
ULONG STDMETHODCALLTYPE AddRef(Dual* self) noexcept;
ULONG STDMETHODCALLTYPE Release(Dual* self) noexcept;
HRESULT STDMETHODCALLTYPE GetTypeInfoCount(Dual* self, UINT* out) noexcept;
HRESULT STDMETHODCALLTYPE GetTypeInfo(Dual* self, UINT index, LCID locale, ITypeInfo** out) noexcept;
HRESULT STDMETHODCALLTYPE GetIdsOfNames(Dual* self, REFIID interfaceId, LPOLESTR* names, UINT count, LCID locale,
                                        DISPID* out) noexcept;
HRESULT STDMETHODCALLTYPE Invoke(Dual* self, DISPID member, REFIID interfaceId, LCID locale, WORD flags,
                                 DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                 UINT* argument) noexcept;

/// Reads the plain property in this row into `out`, which has the property's own type.
HRESULT GetProperty(const Dual& self, std::size_t row, void* out) noexcept;

/// Sets the property in this row.
HRESULT PutProperty(const Dual& self, std::size_t row, Word value) noexcept;

/// Calls the method in this row: its arguments, then the place for its result where it has one.
HRESULT CallMethod(const Dual& self, std::size_t row, std::span<const Word> words) noexcept;

}  // namespace qorltst::automation
