// The decimal separator of the user's settings.
#include <gtest/gtest.h>

#include <array>

#include "automation/NumberFormat.h"
#include "automation/Text.h"

namespace qorltst::automation::test {
namespace {

/// The user's setting in this scope.
class Separator {
 public:
  explicit Separator(const wchar_t* text) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_.data(), static_cast<int>(before_.size()));
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text);
  }
  Separator(const Separator&) = delete;
  Separator& operator=(const Separator&) = delete;
  ~Separator() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_.data()); }

 private:
  std::array<wchar_t, 8> before_{};
};

TEST(NumberFormat, TheSeparatorIsThatOfTheUserNow) {
  const Separator comma(L",");
  EXPECT_EQ(SystemDecimalSeparator(), u",");
  const Separator dashes(L"--");
  EXPECT_EQ(SystemDecimalSeparator(), u"--");
}

}  // namespace
}  // namespace qorltst::automation::test
