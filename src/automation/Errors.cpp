// Translation of failures in both directions. See Errors.h.
#include "automation/Errors.h"

#include <algorithm>
#include <array>
#include <new>

#include "automation/Text.h"

namespace qorltst::automation {
namespace {

using toolkit::RuntimeError;

/// The runtime's own errors travel with this facility.
constexpr HRESULT kRuntimeFacility = static_cast<HRESULT>(0x800A0000);
constexpr std::int32_t kLastRuntimeNumber = 0x7FFF;

struct CodeNumber {
  HRESULT code;
  std::int32_t number;
};

constexpr std::array kNumbers{
    CodeNumber{DISP_E_UNKNOWNNAME, toolkit::kNoSuchMember},
    CodeNumber{DISP_E_MEMBERNOTFOUND, toolkit::kNoSuchMember},
    CodeNumber{DISP_E_TYPEMISMATCH, toolkit::kTypeMismatch},
    CodeNumber{DISP_E_BADVARTYPE, toolkit::kTypeMismatch},
    CodeNumber{DISP_E_OVERFLOW, toolkit::kOverflow},
    CodeNumber{DISP_E_BADINDEX, toolkit::kSubscriptOutOfRange},
    CodeNumber{DISP_E_BADPARAMCOUNT, toolkit::kWrongArgumentCount},
    CodeNumber{DISP_E_PARAMNOTOPTIONAL, toolkit::kArgumentNotOptional},
    CodeNumber{DISP_E_PARAMNOTFOUND, toolkit::kNamedArgumentNotFound},
    CodeNumber{E_OUTOFMEMORY, toolkit::kOutOfMemory},
    CodeNumber{E_INVALIDARG, toolkit::kInvalidCall},
};

/// Tells the caller more than a number, where the system lets us.
void SetErrorInformation(const RuntimeError& error, const IID& interfaceId) noexcept {
  ComRef<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.Receive()))) {
    return;
  }
  const BSTR source = TryNewBstr(error.Source());
  const BSTR description = TryNewBstr(error.Description());
  made->SetGUID(interfaceId);
  made->SetSource(source);
  made->SetDescription(description);
  SysFreeString(source);
  SysFreeString(description);
  if (const ComRef<IErrorInfo> info = Query<IErrorInfo>(made.Get())) {
    SetErrorInfo(0, info.Get());
  }
}

/// Runs `visit` with the runtime error being handled, or returns the code of a dispatch failure.
template <class Visit>
HRESULT VisitCurrent(UINT* argument, Visit&& visit) noexcept {
  try {
    throw;
  } catch (const DispatchFailure& failure) {
    if (argument != nullptr) {
      *argument = failure.argument;
    }
    return failure.code;
  } catch (const RuntimeError& error) {
    return visit(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return HResultOf(toolkit::kInternalError);
  }
}

std::u16string Take(BSTR& text) {
  std::u16string taken(View(text));
  SysFreeString(text);
  text = nullptr;
  return taken;
}

/// Frees the strings of a failure report on every way out.
struct ExceptionInfoGuard {
  EXCEPINFO& info;
  ~ExceptionInfoGuard() {
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrHelpFile);
  }
};

}  // namespace

HRESULT HResultOf(std::int32_t number) noexcept {
  if (number == toolkit::kOutOfMemory) {
    return E_OUTOFMEMORY;
  }
  if (number > 0 && number <= kLastRuntimeNumber) {
    return kRuntimeFacility + number;
  }
  return number < 0 ? number : E_FAIL;
}

HRESULT Translate(const IID& interfaceId) noexcept {
  return VisitCurrent(nullptr, [&](const RuntimeError& error) {
    SetErrorInformation(error, interfaceId);
    return HResultOf(error.Number());
  });
}

HRESULT TranslateForInvoke(EXCEPINFO* info, UINT* argument) noexcept {
  return VisitCurrent(argument, [&](const RuntimeError& error) -> HRESULT {
    const HRESULT code = HResultOf(error.Number());
    if (info == nullptr) {
      // Without a report to fill, the code itself says most.
      return code;
    }
    *info = EXCEPINFO{};
    info->scode = code;
    info->bstrSource = TryNewBstr(error.Source());
    info->bstrDescription = TryNewBstr(error.Description());
    return DISP_E_EXCEPTION;
  });
}

std::int32_t NumberOf(HRESULT code) noexcept {
  const auto* const found = std::ranges::find(kNumbers, code, &CodeNumber::code);
  if (found != kNumbers.end()) {
    return found->number;
  }
  return (code & static_cast<HRESULT>(0xFFFF0000)) == kRuntimeFacility ? code & 0xFFFF : code;
}

void RaiseIfFailed(HRESULT code) {
  if (FAILED(code)) {
    throw RuntimeError(NumberOf(code));
  }
}

void RaiseInvokeFailure(HRESULT code, EXCEPINFO& info) {
  const ExceptionInfoGuard guard{info};  // NOLINT(clang-analyzer-deadcode.DeadStores): its end is what counts
  if (code != DISP_E_EXCEPTION) {
    throw RuntimeError(NumberOf(code));
  }
  if (info.pfnDeferredFillIn != nullptr) {
    info.pfnDeferredFillIn(&info);
  }
  const std::int32_t number = info.scode != 0 ? NumberOf(info.scode) : std::int32_t{info.wCode};
  std::u16string source = Take(info.bstrSource);
  throw RuntimeError(number != 0 ? number : toolkit::kInternalError, source, Take(info.bstrDescription));
}

}  // namespace qorltst::automation
