// The model as JSON, without loss; see tools/model/Json.h.
#include <gtest/gtest.h>

#include "elements/AirSegment.h"
#include "elements/TSTHeader.h"
#include "farecalc/ExtraSeat.h"
#include "frame/PublicClasses.h"
#include "simulator/Utf.h"
#include "tests/tools/support/Samples.h"
#include "tools/model/Json.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

using namespace std::string_literals;

/// The text that a reader of the JSON gets back.
std::u16string Reread(std::u16string_view text) {
  const Json json = Json::parse(TextJson(text).dump());
  if (json.is_string()) {
    return simulator::ToUtf16(json.get<std::string>());
  }
  const std::string digits = json.at("utf16").get<std::string>();
  std::u16string reread;
  for (std::size_t at = 0; at < digits.size(); at += 4) {
    reread += static_cast<char16_t>(std::stoul(digits.substr(at, 4), nullptr, 16));
  }
  return reread;
}

TEST(Json, KeepsEveryTextExactly) {
  for (const std::u16string& text :
       {u""s, u"ORRIN/HALE"s, u"A\0B\0"s, u"\"\\/\b\f\n\r\t\u001f\u007f"s, u"\u00E9\u20AC"s, u"\U0001F6EB"s, u"\xD800"s,
        u"A\xDC00\xD800"s, u"\uFFFD"s, u"\uFFFF\u2028"s}) {
    EXPECT_EQ(Reread(text), text) << PrintableText(text);
  }
}

TEST(Json, KeepsEveryUnitExactly) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const std::u16string text(1, static_cast<char16_t>(unit));
    ASSERT_EQ(Reread(text), text) << unit;
  }
}

TEST(Json, WritesHalfASurrogatePairAsUnits) { EXPECT_EQ(TextJson(u"A\xD800"s).dump(), R"({"utf16":"0041d800"})"); }

TEST(Json, WritesANameThatIsNotUtf8AsBytes) {
  EXPECT_EQ(BytesJson("f\xff").dump(), R"({"bytes":"66ff"})");
  EXPECT_EQ(BytesJson("f\u00E9").dump(), "\"f\u00E9\"");
}

TEST(Json, WritesAmountsAsExactTexts) {
  const Ref<TST> ticket = testing::SampleTicket("rich.txt");
  EXPECT_EQ(ToJson(*ticket, {}).at("FareBaseLineBaseAmount"), "845.0000");
}

TEST(Json, WritesDatesAndTheirAbsence) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto header = Make<TSTHeader>(*toolkit);
  EXPECT_TRUE(ToJson(*header, {.empty = true}).at("LastDateFromTst").is_null());
  const auto& row = *header->Description().FindByName(u"LastDateFromTst");
  const auto& date = std::get<DateField>(row.access).in(*header) = Date{46376};
  EXPECT_EQ(ToJson(*header, {}).at("LastDateFromTst"), "2026-12-20");
  std::get<DateField>(row.access).in(*header) = Date{1e7};
  EXPECT_EQ(ToJson(*header, {}).at("LastDateFromTst"), date.days);
}

TEST(Json, NestsObjectsAndCollectionsWithTheirClasses) {
  const Json ticket = ToJson(*testing::SampleTicket("rich.txt"), {});
  EXPECT_EQ(ticket.at("className"), "TST");
  ASSERT_EQ(ticket.at("AirSegments").size(), 3U);
  EXPECT_EQ(ticket.at("AirSegments")[1].at("className"), "AirSegment");
  EXPECT_EQ(ticket.at("AirSegments")[1].at("BoardPoint"), "PAR");
  EXPECT_EQ(ticket.at("FareCalculation").at("EndLine").at("EndId"), true);
}

TEST(Json, WritesWhatIsEmptyOnRequest) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto seat = Make<ExtraSeat>(*toolkit);
  EXPECT_EQ(ToJson(*seat, {}).dump(), R"({"className":"ExtraSeat"})");
  const Json all = ToJson(*seat, {.empty = true});
  EXPECT_TRUE(all.at("Fare").is_null());
  EXPECT_EQ(all.at("CityCode"), "");
}

TEST(Json, NamesOfItsOwnMeetNoPropertyWhateverTheCase) {
  for (const ClassDescription* const description : PublicClasses()) {
    EXPECT_EQ(description->FindByName(u"className"), nullptr) << NameText(description->name);
  }
}

}  // namespace
}  // namespace qorltst::model
