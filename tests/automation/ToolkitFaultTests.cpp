// Whatever a toolkit's object answers at any call of a retrieval: the component gives its code, keeps its model whole
// and lets nothing leak.
#include <gtest/gtest.h>

#include <array>
#include <iostream>

#include "support/EdgeRetrieval.h"
#include "support/MemoryWatch.h"
#include "tests/support/Samples.h"

namespace qorltst::automation::test {
namespace {

struct WantedType {
  std::string_view member;
  /// What the answer is converted to; VT_DISPATCH an object or nothing, VT_UNKNOWN an enumerator, VT_EMPTY nothing.
  VARTYPE type;
};

constexpr std::array kWanted{
    WantedType{"Parse", VT_I4},         WantedType{"FindNode", VT_DISPATCH}, WantedType{"TypeId", VT_I4},
    WantedType{"Text", VT_BSTR},        WantedType{"ErrorText", VT_BSTR},    WantedType{"HasWarning", VT_BOOL},
    WantedType{"HasChildren", VT_BOOL}, WantedType{"DateValue", VT_DATE},    WantedType{"Item", VT_DISPATCH},
    WantedType{"Buffer", VT_BSTR},      WantedType{"_NewEnum", VT_UNKNOWN},  WantedType{"SendCommand", VT_DISPATCH},
    WantedType{"SetOption", VT_EMPTY},
};

/// The interface in a variant, or nothing; false where there is neither.
bool TakeObject(const VARIANT& value, IUnknown*& object) {
  object = nullptr;
  switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return true;
    case VT_DISPATCH:
    case VT_UNKNOWN:
      object = value.punkVal;
      return true;
    case VT_DISPATCH | VT_BYREF:
    case VT_UNKNOWN | VT_BYREF:
      object = value.ppunkVal != nullptr ? *value.ppunkVal : nullptr;
      return true;
    default:
      return false;
  }
}

bool IsObjectOrNothing(const VARIANT& value) {
  IUnknown* object = nullptr;
  return TakeObject(value, object) && (object == nullptr || Query<IDispatch>(object));
}

bool IsNullReference(const VARIANT& value) { return (value.vt & VT_BYREF) != 0 && value.byref == nullptr; }

/// Whether the component can use this value in the place of what it asked for; else it raises a runtime error.
bool Serves(VARTYPE wanted, const VARIANT& answer) {
  const VARIANT& value = answer.vt == (VT_BYREF | VT_VARIANT) && answer.pvarVal != nullptr ? *answer.pvarVal : answer;
  if (wanted == VT_EMPTY) {
    return true;
  }
  if (wanted == VT_DISPATCH) {
    return IsObjectOrNothing(value);
  }
  if (wanted == VT_UNKNOWN) {
    const bool object = value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN;
    return object && Query<IEnumVARIANT>(value.punkVal);
  }
  Variant converted;
  return value.vt == wanted ||
         (!IsNullReference(value) &&
          SUCCEEDED(VariantChangeType(&converted.Get(), const_cast<VARIANT*>(&value), 0, wanted)));
}

/// Whether this answer to a call of this name is a runtime error.
bool Raises(const std::string& name, const OddAnswer& answer) {
  Variant given;
  EXCEPINFO info{};
  const HRESULT code = answer.give(given.Get(), &info);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  if (FAILED(code) || name.starts_with("names:")) {
    return true;
  }
  if (name == "Next") {
    IUnknown* object = nullptr;
    return code == S_OK && !(IsObjectOrNothing(given.Get()) && TakeObject(given.Get(), object) && object != nullptr);
  }
  const auto* const wanted = std::ranges::find(kWanted, name, &WantedType::member);
  EXPECT_NE(wanted, kWanted.end()) << name;
  return wanted != kWanted.end() && !Serves(wanted->type, given.Get());
}

int injected = 0;

/// One retrieval with one odd answer, and what must hold then.
class OddRetrieval {
 public:
  OddRetrieval(const std::string& display, Manner manner, const CleanEdgeRetrieval& clean, std::size_t n,
               const OddAnswer& answer)
      : clean_(clean), call_(clean.calls[n - 1]), raises_(Raises(*call_.name, answer)), retrieval_(display, manner) {
    retrieval_.Plan().AnswerAt(n, answer);
    result_ = retrieval_.Retrieve();
    ++injected;
  }

  void ExpectItsRules() {
    const Log& log = retrieval_.Entries();
    EXPECT_TRUE(StartsWith(log, clean_.log, call_.logLength)) << "the log is another one";
    if (raises_) {
      // No call comes after a code has been settled, and every line that stands behind a raise is never reached.
      EXPECT_EQ(result_, 0);
      EXPECT_EQ(log.size(), call_.logLength);
    } else {
      constexpr std::array kCodes{0, 1000, 1005, 1006, 3004};
      EXPECT_NE(std::ranges::find(kCodes, result_), kCodes.end()) << result_;
    }
    EXPECT_TRUE(MissingObjects(retrieval_.Root()).empty());
  }

  /// A retrieval after it on the same root.
  void ExpectAGoodOne() {
    EXPECT_EQ(retrieval_.Retrieve(), clean_.result);
    EXPECT_TRUE(retrieval_.Entries() == clean_.log);
    if (raises_) {
      EXPECT_TRUE(retrieval_.Dump() == clean_.dump);
    }
  }

 private:
  const CleanEdgeRetrieval& clean_;
  const NotedCall& call_;
  bool raises_;
  EdgeRetrieval retrieval_;
  std::int32_t result_ = 0;
};

class EdgeFaults : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override { injected = 0; }
  void TearDown() override { std::cout << "figures: " << injected << " odd answers in " << GetParam() << '\n'; }

  /// Gives each call one of the answers in turn, or in the long form each of them.
  void AnswerEveryCallWith(const std::vector<OddAnswer>& answers, Manner manner) {
    const CleanEdgeRetrieval clean(GetParam(), manner);
    // Each call has its turn in the tests of the portable side; here, in the short form, some 150 to 300 of a display.
    const std::size_t step = testing::LongForm() ? 1 : std::max<std::size_t>(1, clean.calls.size() / 150);
    for (std::size_t n = 1; n <= clean.calls.size(); n += step) {
      const std::size_t count = testing::LongForm() ? answers.size() : 1;
      for (std::size_t i = 0; i < count; ++i) {
        // 31 is no divisor of the number of answers, so that all have their turn.
        const OddAnswer& answer = answers[(n * 31 + i) % answers.size()];
        SCOPED_TRACE("call " + std::to_string(n) + ", " + *clean.calls[n - 1].name + ": " + answer.name);
        const InUse before = CountInUse();
        {
          OddRetrieval retrieval(GetParam(), manner, clean, n, answer);
          retrieval.ExpectItsRules();
          if (n % 8 == 0) {
            retrieval.ExpectAGoodOne();
          }
        }
        EXPECT_EQ(CountInUse(), before);
        ASSERT_FALSE(HasFailure());
      }
    }
  }
};

TEST_P(EdgeFaults, AFailingCallEndsTheRetrievalWithTheCodeHeldThen) { AnswerEveryCallWith(Failures(), Manner::Plain); }

TEST_P(EdgeFaults, AFailingCallOfAScriptsObjectDoesSoToo) { AnswerEveryCallWith(Failures(), Manner::Extended); }

TEST_P(EdgeFaults, NothingInTheAnswerToAnyCallIsTakenForWhatItSays) {
  AnswerEveryCallWith(AbsentAnswers(), Manner::Plain);
}

TEST_P(EdgeFaults, AValueOfAnyTypeInTheAnswerToAnyCallIsConvertedOrRefused) {
  AnswerEveryCallWith(OddValues(), Manner::Plain);
}

TEST_P(EdgeFaults, AnyAnswerToALoggersCallIsNeverNoticed) {
  const CleanEdgeRetrieval clean(GetParam());
  for (std::size_t n = 1; n <= clean.loggerCalls; n += testing::LongForm() ? 1U : 7U) {
    const OddAnswer& answer = OddAnswers()[(n * 31) % OddAnswers().size()];
    SCOPED_TRACE("logger call " + std::to_string(n) + ": " + answer.name);
    const InUse before = CountInUse();
    {
      EdgeRetrieval retrieval(GetParam());
      retrieval.Toolkit().AnswerLoggerAt(n, answer);
      ++injected;
      ASSERT_EQ(retrieval.Retrieve(), clean.result);
      ASSERT_TRUE(retrieval.Dump() == clean.dump);
    }
    ASSERT_EQ(CountInUse(), before);
  }
}

INSTANTIATE_TEST_SUITE_P(Displays, EdgeFaults, ::testing::ValuesIn(DisplaysToWearOut()), [](const auto& display) {
  std::string name = display.param;
  std::erase(name, '-');
  return name;
});

TEST(EdgeFaultKinds, EveryAnswerToEveryMemberHasItsRules) {
  injected = 0;
  const std::string display = "fc-exchange";
  const CleanEdgeRetrieval clean(display);
  std::map<const std::string*, std::size_t> last;
  for (std::size_t n = 1; n <= clean.calls.size(); ++n) {
    last[clean.calls[n - 1].name] = n;
  }
  for (const auto& [name, n] : last) {
    for (std::size_t i = n % 3; i < OddAnswers().size(); i += testing::LongForm() ? 1U : 3U) {
      const OddAnswer& answer = OddAnswers()[i];
      SCOPED_TRACE(*name + ": " + answer.name);
      const InUse before = CountInUse();
      { OddRetrieval(display, Manner::Plain, clean, n, answer).ExpectItsRules(); }
      EXPECT_EQ(CountInUse(), before);
      ASSERT_FALSE(HasFailure());
    }
  }
  std::cout << "figures: " << injected << " odd answers to " << last.size() << " members\n";
}

}  // namespace
}  // namespace qorltst::automation::test
