// Every member of every class with every kind of call: flags, numbers of arguments, types, named arguments. None does
// more than answer with an HRESULT.
#include <gtest/gtest.h>

#include <array>
#include <iostream>
#include <limits>

#include "frame/Collection.h"
#include "support/Client.h"
#include "support/MemoryWatch.h"
#include "support/NoToolkit.h"
#include "support/OddAnswers.h"
#include "support/TestRecord.h"

namespace qorltst::automation::test {
namespace {

constexpr std::array<WORD, 9> kFlags{0,
                                     DISPATCH_METHOD,
                                     DISPATCH_PROPERTYGET,
                                     kRead,
                                     DISPATCH_PROPERTYPUT,
                                     DISPATCH_PROPERTYPUTREF,
                                     DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF,
                                     0xF,
                                     0xFFFF};

constexpr UINT kMostArguments = 7;

/// Ids of named arguments; each list is tried in front of the positional ones as far as there are arguments.
constexpr std::array<std::array<DISPID, 2>, 6> kNamed{
    {{DISPID_PROPERTYPUT, 0}, {0, 1}, {0, 0}, {DISPID_UNKNOWN, 4711}, {1, 0}, {std::numeric_limits<DISPID>::min(), 2}}};

bool IsProper(HRESULT code) {
  constexpr std::array kProper{S_OK,
                               E_POINTER,
                               E_OUTOFMEMORY,
                               DISP_E_MEMBERNOTFOUND,
                               DISP_E_TYPEMISMATCH,
                               DISP_E_BADPARAMCOUNT,
                               DISP_E_PARAMNOTFOUND,
                               DISP_E_PARAMNOTOPTIONAL,
                               DISP_E_BADVARTYPE,
                               DISP_E_OVERFLOW,
                               DISP_E_EXCEPTION,
                               E_INVALIDARG};
  // Where the caller wants no report, the runtime's own number travels in the code.
  return std::ranges::find(kProper, code) != kProper.end() ||
         (code & static_cast<HRESULT>(0xFFFF0000)) == static_cast<HRESULT>(0x800A0000);
}

std::size_t calls = 0;

/// One call; `report` says whether the caller wants a result and a report.
void Call(IDispatch& face, DISPID id, WORD flags, DISPPARAMS parameters, bool report) {
  Variant result;
  EXCEPINFO info{};
  UINT argument = 0;
  const HRESULT code =
      face.Invoke(id, GUID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, report ? &result.Get() : nullptr,
                  report ? &info : nullptr, report ? &argument : nullptr);
  ++calls;
  if (!IsProper(code) || (FAILED(code) && result.Get().vt != VT_EMPTY) ||
      (code != DISP_E_EXCEPTION && info.bstrDescription != nullptr)) {
    ADD_FAILURE() << "member " << id << ", flags " << flags << ", " << parameters.cArgs << " arguments, "
                  << parameters.cNamedArgs << " named: " << std::hex << code;
  }
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
}

/// A member's calls. Where its arguments are looked at, `step` is 1: all types have their turn as the first argument.
void CallInEveryWay(IDispatch& face, DISPID id, std::size_t step) {
  const std::span<const VARIANT> values = OddArguments();
  static std::size_t turn = 0;
  std::array<VARIANT, kMostArguments> arguments{};
  for (const WORD flags : kFlags) {
    for (UINT count = 0; count <= kMostArguments; ++count) {
      for (VARIANT& argument : arguments) {
        argument = values[++turn % values.size()];
      }
      Call(face, id, flags, {arguments.data(), nullptr, count, 0}, turn % 2 == 0);
      for (std::array<DISPID, 2> named : kNamed) {
        const UINT wanted = ++turn % 2 == 0 ? 1 : 2;
        Call(face, id, flags, {arguments.data(), named.data(), count, std::min(count, wanted)}, true);
      }
    }
    DISPID put = DISPID_PROPERTYPUT;
    for (std::size_t i = turn % step; i < values.size(); i += step) {
      arguments[0] = values[i];
      Call(face, id, flags, {arguments.data(), nullptr, 1, 0}, true);
      Call(face, id, flags, {arguments.data(), &put, 1, 1}, i % 2 == 0);
      Call(face, id, flags, {arguments.data(), nullptr, 2, 0}, true);
    }
  }
}

void CallEveryMember(Object& object) {
  const Client client(object);
  for (const Member& row : object.Description().members) {
    const bool takesArguments = std::holds_alternative<Method>(row.access) || row.put.call != nullptr;
    CallInEveryWay(*client.Get(), object.Description().DispatchIdOf(row), takesArguments ? 1 : 97);
  }
  for (const DISPID id :
       std::array<DISPID, 7>{DISPID_UNKNOWN, DISPID_VALUE, DISPID_NEWENUM, DISPID_EVALUATE, 4711,
                             std::numeric_limits<DISPID>::min(), std::numeric_limits<DISPID>::max()}) {
    CallInEveryWay(*client.Get(), id, 97);
  }
}

class InvokeMatrix : public ::testing::Test {
 protected:
  void SetUp() override {
    calls = 0;
    // The arguments themselves are there from their first use on.
    static_cast<void>(OddArguments());
    before_ = CountInUse();
  }
  void TearDown() override {
    EXPECT_EQ(CountInUse(), before_);
    std::cout << "figures: " << calls << " calls of Invoke\n";
  }

 private:
  InUse before_;
};

TEST_F(InvokeMatrix, OfEveryClassAnswersProperly) {
  ForEachNewObject([](Object& object) { CallEveryMember(object); });
}

TEST_F(InvokeMatrix, OfACollectionAnswersProperly) {
  const Ref<Collection> collection = Make<Collection>();
  collection->Add(Make<TestRecord>());
  CallEveryMember(*collection);
}

TEST_F(InvokeMatrix, OfMembersOfEveryKindAnswersProperly) { CallEveryMember(*Make<TestRecord>()); }

TEST_F(InvokeMatrix, WithoutAListOfArgumentsIsRefused) {
  ForEachNewObject([](Object& object) {
    const Client client(object);
    DISPPARAMS promised{nullptr, nullptr, 2, 0};
    DISPPARAMS named{nullptr, nullptr, 0, 2};
    for (DISPPARAMS* const parameters : {static_cast<DISPPARAMS*>(nullptr), &promised, &named}) {
      EXPECT_EQ(client.Get()->Invoke(1, GUID_NULL, 0, kRead, parameters, nullptr, nullptr, nullptr), E_POINTER);
      ++calls;
    }
  });
}

}  // namespace
}  // namespace qorltst::automation::test
