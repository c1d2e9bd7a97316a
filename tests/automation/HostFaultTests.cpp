// Whatever a host session written by somebody else answers, at any of its screens.
#include <gtest/gtest.h>

#include <iostream>

#include "automation/Text.h"
#include "support/EdgeRetrieval.h"
#include "support/MemoryWatch.h"
#include "tests/support/Samples.h"

namespace qorltst::automation::test {
namespace {

/// The screens of a display.
const std::vector<std::u16string>& ScreensOf(const std::string& display) {
  return testing::SampleNamed(display).recording.at(0).screens;
}

/// A session that gives screens one after another, in objects of this manner; one answer may be another.
class Host {
 public:
  Host(std::vector<std::u16string> screens, Manner manner) : screens_(std::move(screens)), manner_(manner) {
    session_ = Fake(manner);
    session_->Gives(u"SetOption", Typed(VT_EMPTY));
    session_->On(u"SendCommand", [this](const FakeObject::Arguments&, VARIANT& result, EXCEPINFO* info) {
      return Answer(result, info);
    });
  }

  /// The n-th command is answered so, or its response's text is.
  void AnswerAt(std::size_t n, const OddAnswer& answer) { commandAt_ = n, odd_ = &answer; }
  void TextAt(std::size_t n, const OddAnswer& answer) { textAt_ = n, odd_ = &answer; }

  void Rewind() {
    sent_ = 0;
    odd_ = nullptr;
  }
  [[nodiscard]] IDispatch* Session() const { return session_.Get(); }

 private:
  HRESULT Answer(VARIANT& result, EXCEPINFO* info) {
    const std::size_t n = ++sent_;
    if (odd_ != nullptr && n == commandAt_) {
      return odd_->give(result, info);
    }
    if (n > screens_.size()) {
      return S_OK;
    }
    const ComRef<FakeObject> response = Fake(manner_);
    response->On(u"Text", [this, n](const FakeObject::Arguments&, VARIANT& text, EXCEPINFO* report) {
      if (odd_ != nullptr && n == textAt_) {
        return odd_->give(text, report);
      }
      text = Variant(screens_[n - 1]).Detach();
      return S_OK;
    });
    result.vt = VT_DISPATCH;
    result.pdispVal = ComRef<IDispatch>(response.Get()).Detach();
    return S_OK;
  }

  std::vector<std::u16string> screens_;
  Manner manner_;
  ComRef<FakeObject> session_;
  std::size_t sent_ = 0;
  std::size_t commandAt_ = 0;
  std::size_t textAt_ = 0;
  const OddAnswer* odd_ = nullptr;
};

/// A root that retrieves from a host.
class Guest {
 public:
  std::int32_t Retrieve(const Host& host) {
    toolkit_->log.clear();
    const Answer answer = client_.Call(u"RetrieveSpecificTst", {Dispatch(host.Session()), command_.Get()});
    EXPECT_EQ(answer.code, S_OK);
    return answer.Long();
  }
  [[nodiscard]] TST& Root() const { return *tst_; }
  [[nodiscard]] std::u16string Text() const { return client_.Call(u"Text").Text(); }

 private:
  Ref<ProxyToolkit> toolkit_ = Make<ProxyToolkit>(Manner::Plain);
  Ref<TST> tst_ = Make<TST>(*toolkit_);
  Client client_{*tst_};
  Variant command_{std::u16string_view(u"TQT/T1")};
};

void ExpectACodeOfTheList(std::int32_t code) {
  constexpr std::array kCodes{0, 1000, 1005, 1006, 3004};
  EXPECT_NE(std::ranges::find(kCodes, code), kCodes.end()) << code;
}

class Hosts : public ::testing::TestWithParam<Manner> {
 protected:
  /// Retrieves with one odd answer, then without on the same root, and counts what is left.
  template <class Arm>
  void TryEveryAnswer(Arm&& arm) {
    const std::vector<std::u16string>& screens = ScreensOf("fc-two-screens");
    ASSERT_GT(screens.size(), 1U);
    int given = 0;
    for (std::size_t n = 1; n <= screens.size(); ++n) {
      for (std::size_t i = GetParam() == Manner::Plain ? 0 : 1; i < OddAnswers().size(); i += 2) {
        const OddAnswer& answer = OddAnswers()[i];
        SCOPED_TRACE("screen " + std::to_string(n) + ": " + answer.name);
        const InUse before = CountInUse();
        {
          Host host(screens, GetParam());
          Guest guest;
          arm(host, n, answer);
          ExpectACodeOfTheList(guest.Retrieve(host));
          EXPECT_TRUE(MissingObjects(guest.Root()).empty());
          host.Rewind();
          EXPECT_EQ(guest.Retrieve(host), 0);
          ++given;
        }
        EXPECT_EQ(CountInUse(), before);
        ASSERT_FALSE(HasFailure());
      }
    }
    std::cout << "figures: " << given << " odd answers of a host\n";
  }
};

TEST_P(Hosts, MayAnswerAnyCommandWithAnything) {
  TryEveryAnswer([](Host& host, std::size_t n, const OddAnswer& answer) { host.AnswerAt(n, answer); });
}

TEST_P(Hosts, MayGiveAnythingForTheTextOfAnyScreen) {
  TryEveryAnswer([](Host& host, std::size_t n, const OddAnswer& answer) { host.TextAt(n, answer); });
}

TEST_P(Hosts, ThatFallSilentAtTheFirstScreenAreASessionProblem) {
  for (std::size_t i = 0; i + 1 < AbsentAnswers().size(); ++i) {
    Host host(ScreensOf("fc-two-screens"), GetParam());
    Guest guest;
    host.AnswerAt(1, AbsentAnswers()[i]);
    EXPECT_EQ(guest.Retrieve(host), 3004) << AbsentAnswers()[i].name;
  }
}

TEST_P(Hosts, ThatFailKeepWhatWasReadBefore) {
  Host host(ScreensOf("fc-two-screens"), GetParam());
  Guest guest;
  ASSERT_EQ(guest.Retrieve(host), 0);
  const testing::ModelDump whole = testing::DumpOf(guest.Root());
  for (std::size_t n = 1; n <= 2; ++n) {
    for (const OddAnswer& failure : Failures()) {
      host.Rewind();
      host.AnswerAt(n, failure);
      EXPECT_EQ(guest.Retrieve(host), 0) << failure.name;
      EXPECT_TRUE(testing::DumpOf(guest.Root()) == whole);
    }
  }
}

TEST_P(Hosts, MaySendAnyCharacterAtAnyPlace) {
  const std::u16string screen = ScreensOf("fc-hip").at(0);
  int sent = 0;
  int understood = 0;
  for (const char16_t odd : {u'\0', u'\xD800', u'\xDFFF', u'\xFFFF', u'\xFEFF', u'\x0001'}) {
    for (std::size_t at = odd % 5; at < screen.size(); at += testing::LongForm() ? 1U : 41U) {
      SCOPED_TRACE(std::to_string(odd) + " at " + std::to_string(at));
      std::u16string changed = screen;
      changed[at] = odd;
      const InUse before = CountInUse();
      {
        const Host host({changed}, GetParam());
        Guest guest;
        const std::int32_t code = guest.Retrieve(host);
        ExpectACodeOfTheList(code);
        const bool parsed = code == 0 || code == 1005;
        understood += parsed ? 1 : 0;
        // A NUL ends the display (one in front does not), anything else stands where it was.
        if (parsed && odd == u'\0' && at > 0) {
          EXPECT_EQ(guest.Text().find(u'\0'), std::u16string::npos);
        } else if (parsed) {
          EXPECT_EQ(guest.Text().find(odd), at);
        }
        ++sent;
      }
      EXPECT_EQ(CountInUse(), before);
      ASSERT_FALSE(HasFailure());
    }
  }
  EXPECT_GT(understood, sent / 4);
  std::cout << "figures: " << sent << " odd characters sent, " << understood << " displays understood\n";
}

INSTANTIATE_TEST_SUITE_P(Manners, Hosts, ::testing::Values(Manner::Plain, Manner::Extended),
                         [](const auto& manner) { return manner.param == Manner::Plain ? "Plain" : "Extended"; });

}  // namespace
}  // namespace qorltst::automation::test
