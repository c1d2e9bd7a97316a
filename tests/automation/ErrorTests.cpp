// Failures across the edge, to callers of virtual tables and of `Invoke`.
#include <gtest/gtest.h>

#include <array>

#include "automation/BoundClass.h"
#include "automation/DualEntries.h"
#include "automation/Errors.h"
#include "automation/Text.h"
#include "support/Client.h"
#include "support/MemoryWatch.h"
#include "support/TestRecord.h"

namespace qorltst::automation::test {
namespace {

constexpr HRESULT kUnexpected = static_cast<HRESULT>(0x8004270F);
constexpr HRESULT kInternal = static_cast<HRESULT>(0x800A0033);

/// The first string fails, later ones do not.
int stringsAsked = 0;
BSTR WINAPI NoMemoryAtFirst(const OLECHAR* text, UINT length) {
  return stringsAsked++ == 0 ? nullptr : SysAllocStringLen(text, length);
}

BSTR WINAPI NoMemory(const OLECHAR* /*text*/, UINT /*length*/) { return nullptr; }

/// Strings fail in this scope.
class StringsFail {
 public:
  StringsFail() : before_(ExchangeBstrAllocator(&NoMemory)) {}
  StringsFail(const StringsFail&) = delete;
  StringsFail& operator=(const StringsFail&) = delete;
  ~StringsFail() { ExchangeBstrAllocator(before_); }

 private:
  BstrAllocator before_;
};

class Errors : public testing::Test {
 protected:
  /// Rows of the record.
  enum Row : std::size_t { kText = 0, kUnguarded = 1, kRaise = 15 };

  void SetUp() override { SetErrorInfo(0, nullptr); }

  Dual& Early() { return *reinterpret_cast<Dual*>(client_.Get()); }

  HRESULT RaiseEarly(std::int32_t number, BSTR& text) {
    const std::array<Word, 2> words{static_cast<Word>(static_cast<LONG>(number)), reinterpret_cast<Word>(&text)};
    return CallMethod(Early(), kRaise, words);
  }

  /// Source and description of the thread's error information.
  static std::pair<std::u16string, std::u16string> Information() {
    ComRef<IErrorInfo> info;
    if (GetErrorInfo(0, info.Receive()) != S_OK) {
      return {u"none", u"none"};
    }
    BSTR source = nullptr;
    BSTR description = nullptr;
    info->GetSource(&source);
    info->GetDescription(&description);
    std::pair<std::u16string, std::u16string> texts(View(source), View(description));
    SysFreeString(source);
    SysFreeString(description);
    return texts;
  }

  Ref<TestRecord> record_ = Make<TestRecord>();
  Client client_{*record_};
};

TEST_F(Errors, AFailedVirtualCallLeavesNothingBehind) {
  BSTR text = nullptr;
  RaiseEarly(13, text);
  SetErrorInfo(0, nullptr);
  const InUse before = CountInUse();
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(RaiseEarly(13, text), static_cast<HRESULT>(0x800A000D));
    SetErrorInfo(0, nullptr);
  }
  EXPECT_EQ(CountInUse(), before);
}

TEST_F(Errors, ARuntimeErrorReachesAnEarlyBoundCallerWithItsTexts) {
  BSTR text = reinterpret_cast<BSTR>(1);
  EXPECT_EQ(RaiseEarly(13, text), static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(Information(), (std::pair<std::u16string, std::u16string>(u"Test.Source", u"Test description")));
}

TEST_F(Errors, ErrorInformationNamesTheInterface) {
  BSTR text = nullptr;
  EXPECT_EQ(RaiseEarly(13, text), static_cast<HRESULT>(0x800A000D));
  ComRef<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  GUID id{};
  EXPECT_EQ(info->GetGUID(&id), S_OK);
  EXPECT_TRUE(IsEqualGUID(id, BindingOf(TestRecord::kDescription).InterfaceId()));
}

TEST_F(Errors, ARuntimeErrorReachesALateBoundCallerWithItsTexts) {
  const Answer answer = client_.Call(u"Raise", {Number(13)});
  EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorCode, static_cast<std::int32_t>(0x800A000D));
  EXPECT_EQ(answer.source, u"Test.Source");
  EXPECT_EQ(answer.description, u"Test description");
  EXPECT_EQ(answer.value.Get().vt, VT_EMPTY);
}

TEST_F(Errors, AutomationErrorsKeepTheirNumber) {
  BSTR text = nullptr;
  EXPECT_EQ(RaiseEarly(kUnexpected, text), kUnexpected);
  EXPECT_EQ(client_.Call(u"Raise", {Number(kUnexpected)}).errorCode, kUnexpected);
}

TEST_F(Errors, ACallerWithoutAReportGetsTheCodeItself) {
  VARIANT argument = Number(9);
  DISPPARAMS parameters{&argument, nullptr, 1, 0};
  EXPECT_EQ(client_.Get()->Invoke(client_.IdOf(u"Raise"), GUID_NULL, 0, kRead, &parameters, nullptr, nullptr, nullptr),
            static_cast<HRESULT>(0x800A0009));
}

TEST_F(Errors, WantOfMemoryIsToldAsSuch) {
  BSTR text = nullptr;
  EXPECT_EQ(RaiseEarly(-1, text), E_OUTOFMEMORY);
  EXPECT_EQ(client_.Call(u"Raise", {Number(-1)}).code, E_OUTOFMEMORY);
}

TEST_F(Errors, ForeignExceptionsAreInternalErrors) {
  BSTR text = nullptr;
  EXPECT_EQ(RaiseEarly(-2, text), kInternal);
  EXPECT_EQ(RaiseEarly(-3, text), kInternal);
}

TEST_F(Errors, AGuardedGetterWithoutMemoryRaises9999UnderItsSource) {
  const StringsFail failing;
  const Answer answer = client_.Call(DISPID{1});
  EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorCode, kUnexpected);
}

TEST_F(Errors, AGuardTellsItsSource) {
  BSTR text = nullptr;
  stringsAsked = 0;
  const BstrAllocator before = ExchangeBstrAllocator(&NoMemoryAtFirst);
  const HRESULT code = GetProperty(Early(), kText, &text);
  ExchangeBstrAllocator(before);
  EXPECT_EQ(code, kUnexpected);
  EXPECT_EQ(Information().first, u"TestRecord:Text Property Get");
  EXPECT_EQ(Information().first, u"none");
}

TEST_F(Errors, AnUnguardedGetterWithoutMemoryTellsThat) {
  const StringsFail failing;
  BSTR text = reinterpret_cast<BSTR>(1);
  EXPECT_EQ(GetProperty(Early(), kUnguarded, &text), E_OUTOFMEMORY);
  EXPECT_EQ(text, nullptr);
}

TEST(ErrorNumbers, RuntimeNumbersTravelWithTheirFacility) {
  EXPECT_EQ(HResultOf(5), static_cast<HRESULT>(0x800A0005));
  EXPECT_EQ(HResultOf(0x7FFF), static_cast<HRESULT>(0x800A7FFF));
  EXPECT_EQ(HResultOf(kUnexpected), kUnexpected);
  EXPECT_EQ(HResultOf(toolkit::kOutOfMemory), E_OUTOFMEMORY);
  EXPECT_TRUE(FAILED(HResultOf(0)));
}

TEST(ErrorNumbers, FailedCallsHaveTheRuntimesNumbers) {
  EXPECT_EQ(NumberOf(static_cast<HRESULT>(0x800A000D)), 13);
  EXPECT_EQ(NumberOf(DISP_E_UNKNOWNNAME), 438);
  EXPECT_EQ(NumberOf(DISP_E_MEMBERNOTFOUND), 438);
  EXPECT_EQ(NumberOf(DISP_E_TYPEMISMATCH), 13);
  EXPECT_EQ(NumberOf(E_OUTOFMEMORY), 7);
  EXPECT_EQ(NumberOf(static_cast<HRESULT>(0x80041234)), static_cast<std::int32_t>(0x80041234));
}

}  // namespace
}  // namespace qorltst::automation::test
