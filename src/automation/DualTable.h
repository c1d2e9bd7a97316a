// The virtual tables of dual interfaces. Every entry is a thunk that knows its row's number only; what the row is,
// the object's own description says. So classes of read-only properties share one table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "automation/Com.h"
#include "frame/ClassDescription.h"
#include "frame/Object.h"

namespace qorltst::automation {

class BoundClass;
struct DualTable;

/// What a client's interface pointer points at: the layout that every language agrees on, and then our own.
struct Dual {
  const DualTable* table;
  const BoundClass* type;
  Object* object;
};

/// An argument as a virtual call passes it. Every argument of a dual interface here fits one machine word; the
/// bits above a narrower type are undefined.
using Word = std::uintptr_t;

inline constexpr std::size_t kMaximumRows = 64;
inline constexpr std::size_t kMaximumWords = 6;

/// One entry, as a pointer of any of the shapes that entries have. On x86 the callee removes the arguments, so each
/// count needs its own shape.
union Slot {
  HRESULT(STDMETHODCALLTYPE* get)(Dual*, void*);
  HRESULT(STDMETHODCALLTYPE* words0)(Dual*);
  HRESULT(STDMETHODCALLTYPE* words1)(Dual*, Word);
  HRESULT(STDMETHODCALLTYPE* words2)(Dual*, Word, Word);
  HRESULT(STDMETHODCALLTYPE* words3)(Dual*, Word, Word, Word);
  HRESULT(STDMETHODCALLTYPE* words4)(Dual*, Word, Word, Word, Word);
  HRESULT(STDMETHODCALLTYPE* words5)(Dual*, Word, Word, Word, Word, Word);
  HRESULT(STDMETHODCALLTYPE* words6)(Dual*, Word, Word, Word, Word, Word, Word);
};

/// The entries of IUnknown and IDispatch; the class's own entries follow.
struct DualTable {
  HRESULT(STDMETHODCALLTYPE* queryInterface)(Dual*, REFIID, void**);
  ULONG(STDMETHODCALLTYPE* addRef)(Dual*);
  ULONG(STDMETHODCALLTYPE* release)(Dual*);
  HRESULT(STDMETHODCALLTYPE* getTypeInfoCount)(Dual*, UINT*);
  HRESULT(STDMETHODCALLTYPE* getTypeInfo)(Dual*, UINT, LCID, ITypeInfo**);
  HRESULT(STDMETHODCALLTYPE* getIdsOfNames)(Dual*, REFIID, LPOLESTR*, UINT, LCID, DISPID*);
  HRESULT(STDMETHODCALLTYPE* invoke)(Dual*, DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*);
};

/// The table for a class: the shared one where all its rows are plain properties, else one made for it, once; it is
/// never freed. Throws where a row does not fit a virtual table.
[[nodiscard]] const DualTable& TableFor(const ClassDescription& description);

}  // namespace qorltst::automation
