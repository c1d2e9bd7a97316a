// Pages of tickets; see tools/report/Page.h. That browsers and validators take them is a case of program.sh.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "tests/tools/support/Samples.h"
#include "tests/tools/support/ToolRun.h"
#include "tools/model/ModelWalk.h"
#include "tools/report/Facts.h"
#include "tools/report/Html.h"
#include "tools/report/Page.h"

namespace qorltst::report {
namespace {

using testing::RunTool;
using testing::SamplePath;

std::string PageOf(const std::string& file, const std::string& command = "TQT") {
  return RunTool({"--html", "--command", command, SamplePath(file)}).out;
}

std::string PageOfText(const std::string& display) { return RunTool({"--html"}, display).out; }

std::set<std::string> Found(const std::string& page, const std::string& expression) {
  std::set<std::string> found;
  const std::regex wanted(expression);
  for (std::sregex_iterator match(page.begin(), page.end(), wanted); match != std::sregex_iterator(); ++match) {
    found.insert((*match)[1]);
  }
  return found;
}

std::size_t Count(const std::string& page, const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = page.find(text); at != std::string::npos; at = page.find(text, at + 1)) {
    ++count;
  }
  return count;
}

bool Holds(const std::string& page, const std::string& text) { return Count(page, text) > 0; }

class PageOfSample : public ::testing::TestWithParam<std::pair<const char*, const char*>> {
 protected:
  std::string page_ = PageOf(GetParam().first, GetParam().second);
};

TEST_P(PageOfSample, HasLandmarksAndOneTitle) {
  for (const char* const once :
       {"<!DOCTYPE html>", "<html lang=\"en\">", "<title>", "<main", "<h1>", "<nav", "<header"}) {
    EXPECT_EQ(Count(page_, once), 1U) << once;
  }
  EXPECT_EQ(Count(page_, "<section"), Count(page_, "<h2"));
}

TEST_P(PageOfSample, ReferencesOnlyWhatIsThere) {
  const std::set<std::string> ids = Found(page_, " id=\"([^\"]*)\"");
  EXPECT_EQ(ids.size(), Count(page_, " id=\"")) << "an id is there twice";
  for (const char* const reference :
       {"href=\"#([^\"]*)\"", "aria-labelledby=\"([^\"]*)\"", "aria-describedby=\"([^\"]*)\""}) {
    for (const std::string& id : Found(page_, reference)) {
      EXPECT_TRUE(ids.contains(id)) << id;
    }
  }
}

TEST_P(PageOfSample, GivesEveryTableHeadings) {
  EXPECT_EQ(Count(page_, "<table"), Count(page_, "<thead>"));
  EXPECT_EQ(Count(page_, "<th>"), 0U);
}

TEST_P(PageOfSample, LoadsAndRunsNothing) {
  EXPECT_FALSE(Holds(page_, "<script"));
  EXPECT_FALSE(Holds(page_, "src="));
  EXPECT_FALSE(Holds(page_, "http:"));
  EXPECT_FALSE(Holds(page_, "https:"));
  EXPECT_TRUE(Holds(page_, "default-src 'none'"));
}

TEST_P(PageOfSample, ShowsEveryWarningInItsPlace) {
  const Ref<TST> ticket = testing::SampleTicket(
      GetParam().first,
      std::u16string(std::string_view(GetParam().second).begin(), std::string_view(GetParam().second).end()));
  model::WalkObjects(*ticket, [this](const std::string& path, Object& object) {
    model::ForEachProperty(object, {}, [&](const model::Property& property) {
      const bool isInCalculation = path.starts_with("FareCalculation.");
      if (model::IsErrorText(property.row) && !isInCalculation) {
        for (const std::u16string& error : ErrorsOf(std::get<std::u16string_view>(property.content))) {
          EXPECT_TRUE(Holds(page_, "<li>" + Escaped(error) + "</li>")) << path << ' ' << Escaped(error);
        }
      }
    });
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(Samples, PageOfSample,
                         ::testing::Values(std::pair("rich.txt", "TQT"), std::pair("minimal.txt", "TQT"),
                                           std::pair("minimal.txt", "TQT/T2"), std::pair("warnings.txt", "TQT"),
                                           std::pair("warnings.txt", "TQT/T2"), std::pair("fc-side-trip.txt", "TQT")));

TEST(Page, ShowsTheRouteInTheOrderOfTheSegments) {
  const std::string page = PageOf("rich.txt");
  const std::size_t route = page.find("<ol class=\"route\"");
  std::string places;
  const std::string list = page.substr(route, page.find("</ol>", route) - route);
  const std::regex place("<span class=\"place[a-z ]*\">([A-Z]+)</span>");
  for (std::sregex_iterator match(list.begin(), list.end(), place); match != std::sregex_iterator(); ++match) {
    places += (*match)[1].str() + ' ';
  }
  EXPECT_EQ(places, "LON PAR ROM MIL PAR LON ");
  EXPECT_EQ(Count(list, "<li class=\"surface\">"), 1U);
  EXPECT_EQ(Count(list, "<li class=\"open\">"), 1U);
  EXPECT_EQ(Count(list, "(connection)"), 2U);
}

TEST(Page, SaysWhetherTheFareAddsUp) {
  EXPECT_TRUE(Holds(PageOf("rich.txt"), "Fare and taxes add up to the total."));
  EXPECT_TRUE(Holds(PageOfText("TST 1\nFARE F EUR 10.00\nTOTAL EUR 12.50\n"), "it is 2.50 away from them"));
  EXPECT_TRUE(Holds(PageOfText("TST 1\nFARE F EUR IT\nTOTAL EUR 12.50\n"), "Not added up."));
  EXPECT_FALSE(Holds(PageOfText("TST 1\nDEST LON\n"), "id=\"fare\""));
}

TEST(Page, KeepsTheTextOfTheFareCalculation) {
  const std::string page = PageOf("fc-hip.txt");
  const std::size_t start = page.find("<div class=\"calculation\">");
  std::string line = page.substr(start, page.find("</div>", start) - start);
  line = std::regex_replace(line, std::regex("<span class=\"tip\"[^>]*>[^<]*</span>"), "");
  line = std::regex_replace(line, std::regex("<[^>]*>"), "");
  line = std::regex_replace(line, std::regex(" +"), " ");
  EXPECT_EQ(
      line,
      "FCALC LON QX PAR QX TYO (EH)15M PARTYO/Y1440.75YRT QX OSA LC/SEL F/HEL QX LON M1250.50YRT D LONTYO LONPAR/C "
      "PARTYO/F 5M112.00 D OSALON M/IT 12.00 NUC2815.25END ROE0.856800");
}

TEST(Page, EscapesWhateverADisplayHolds) {
  const std::string evil = "<script>alert(1)</script>\"'&";
  const std::string page = PageOfText("TST 1\nPAYMENT " + evil + "\nENDORSE 4 " + evil + "\nTOUR 11 TX/" + evil + "\n" +
                                      evil + "\nTAX X/<b>/1\n");
  EXPECT_FALSE(Holds(page, "<script>"));
  EXPECT_FALSE(Holds(page, "<b>"));
  EXPECT_TRUE(Holds(page, "&lt;script&gt;alert(1)&lt;/script&gt;&quot;&#39;&amp;"));
}

TEST(Page, EscapesTheNameOfTheFile) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const Origin origin{.source = "<i>\xff", .command = u"<u>", .meaning = "<s>", .brokenOffIn = u"<p>", .log = {}};
  const std::string page = TicketPage(origin, Make<TST>(*toolkit).Get(), *toolkit);
  EXPECT_TRUE(Holds(page, "&lt;i&gt;\\xff"));
  EXPECT_TRUE(Holds(page, "<code>&lt;u&gt;</code>"));
  EXPECT_TRUE(Holds(page, "&lt;s&gt;"));
  EXPECT_TRUE(Holds(page, "&lt;p&gt;"));
}

TEST(Page, IsThereForADisplayThatIsNoTicket) {
  const std::string page = PageOfText("NO TICKET\n");
  EXPECT_TRUE(Holds(page, "<h1>No stored ticket</h1>"));
  EXPECT_TRUE(Holds(page, "Can not retrieve the intended response"));
}

TEST(Page, SaysThatAFailureEndedTheRetrieval) {
  EXPECT_TRUE(
      Holds(PageOfText("TST 1\nTOTAL EUR 922337203685478.00\n"), "A failure ended the retrieval in QorlTST.TST."));
}

TEST(Page, HoldsOneDisplayUnlessThereIsAFolder) {
  const testing::ToolRun run = RunTool({"--html"}, "> TQT\nTST 1\n> TQT\nTST 2\n");
  EXPECT_EQ(run.code, tstdump::ExitCode::Usage);
  EXPECT_TRUE(Holds(run.messages, "a page holds one display"));
}

TEST(Page, TakesNoSelection) {
  EXPECT_EQ(RunTool({"--html", "--class", "TST"}).code, tstdump::ExitCode::Usage);
  EXPECT_EQ(RunTool({"--output", "x"}).code, tstdump::ExitCode::Usage);
  EXPECT_EQ(RunTool({"--html", "--json"}).code, tstdump::ExitCode::Usage);
}

}  // namespace
}  // namespace qorltst::report
