// A foreign automation object whose members are functions, and which notes every call that reaches it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "automation/Com.h"
#include "automation/Variant.h"
#include "support/Client.h"

namespace qorltst::automation::test {

/// How the object answers names.
enum class Manner {
  Plain,     ///< through IDispatch
  Extended,  ///< through IDispatchEx only, as objects of scripts do
  Typed,     ///< through IDispatch, with a type information
};

class FakeObject final : public IDispatchEx {
 public:
  /// A member gets its arguments in their order, and the flags, and stores its result.
  using Arguments = std::vector<VARIANT>;
  using Body = std::function<HRESULT(const Arguments&, VARIANT&, EXCEPINFO*)>;

  explicit FakeObject(Manner manner = Manner::Plain) : manner_(manner) {}
  virtual ~FakeObject();
  FakeObject(const FakeObject&) = delete;
  FakeObject& operator=(const FakeObject&) = delete;

  /// Adds a member; ids are 100, 101, ... in their order unless one is given.
  FakeObject& On(std::u16string name, Body body, DISPID id = DISPID_UNKNOWN);

  /// The same with a fixed result, which is copied.
  FakeObject& Gives(std::u16string name, const VARIANT& value, DISPID id = DISPID_UNKNOWN);

  /// The type information that a typed object names as its own.
  void SetTypeInfo(ITypeInfo* info) { typeInfo_ = ComRef<ITypeInfo>(info); }

  /// "names:Text", "call:Text/2" (name and flags), "typeinfo", in their order.
  [[nodiscard]] const std::vector<std::string>& Calls() const noexcept { return calls_; }
  [[nodiscard]] std::size_t CountOf(std::string_view prefix) const;
  [[nodiscard]] const Arguments& LastArguments() const noexcept { return lastArguments_; }
  [[nodiscard]] static int Living() noexcept;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* out) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** out) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* out) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* info, UINT*) noexcept override;
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD flags, DISPID* out) noexcept override;
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID id, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* info, IServiceProvider*) noexcept override;
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) noexcept override { return E_NOTIMPL; }

 private:
  struct Member {
    std::u16string name;
    DISPID id;
    Body body;
  };

  [[nodiscard]] HRESULT Find(std::u16string_view name, DISPID* out);
  [[nodiscard]] HRESULT Run(DISPID id, WORD flags, const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* info);

  Manner manner_;
  ULONG count_ = 0;
  std::vector<Member> members_;
  std::vector<std::string> calls_;
  Arguments lastArguments_;
  ComRef<ITypeInfo> typeInfo_;
};

/// A fake object behind its first reference.
[[nodiscard]] ComRef<FakeObject> Fake(Manner manner = Manner::Plain);

/// The object as an argument.
[[nodiscard]] inline VARIANT Dispatch(const ComRef<FakeObject>& object) {
  return Dispatch(static_cast<IDispatch*>(object.Get()));
}

/// An enumerator over these values that fails with `failure` after them, unless that is S_OK.
[[nodiscard]] ComRef<IEnumVARIANT> FakeEnumerator(std::vector<VARIANT> values, HRESULT failure = S_OK);

}  // namespace qorltst::automation::test
