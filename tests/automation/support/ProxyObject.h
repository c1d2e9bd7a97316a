// Automation objects in front of others: every call is noted and passed on, and one of them gets an odd answer.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "automation/Com.h"
#include "support/FakeObject.h"
#include "support/OddAnswers.h"

namespace qorltst::automation::test {

/// One call: what was asked ("Text", "_NewEnum", "Next", "names:Text") and how long the log was then.
struct NotedCall {
  const std::string* name = nullptr;
  std::size_t logLength = 0;
};

/// Which call is to get which answer; shared by all that was handed out through one proxy.
class CallPlan {
 public:
  /// The n-th call from now on; 1 is the next.
  void AnswerAt(std::size_t n, const OddAnswer& answer);

  /// What the length of the log is taken from.
  void WatchLog(std::function<std::size_t()> length) { logLength_ = std::move(length); }

  [[nodiscard]] const std::vector<NotedCall>& Calls() const noexcept { return calls_; }

  /// Notes a call; its odd answer, or nothing where it is to be passed on.
  const OddAnswer* Called(const std::string& name);

 private:
  std::vector<NotedCall> calls_;
  std::size_t at_ = 0;
  const OddAnswer* answer_ = nullptr;
  std::function<std::size_t()> logLength_ = [] { return std::size_t{0}; };
};

class ProxyObject final : public IDispatchEx {
 public:
  ProxyObject(std::shared_ptr<CallPlan> plan, Manner manner, ComRef<IDispatch> inner);
  virtual ~ProxyObject();
  ProxyObject(const ProxyObject&) = delete;
  ProxyObject& operator=(const ProxyObject&) = delete;

  /// How many live, enumerators included.
  [[nodiscard]] static int Living() noexcept;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* out) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** out) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* out) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* info, UINT*) noexcept override;
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD, DISPID* out) noexcept override;
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID id, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* info, IServiceProvider*) noexcept override;
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) noexcept override { return E_NOTIMPL; }

 private:
  HRESULT Find(wchar_t* name, DISPID* out);
  HRESULT Run(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT& result, EXCEPINFO* info);

  std::shared_ptr<CallPlan> plan_;
  Manner manner_;
  ComRef<IDispatch> inner_;
  std::map<DISPID, const std::string*> names_;
  ULONG count_ = 0;
};

}  // namespace qorltst::automation::test
