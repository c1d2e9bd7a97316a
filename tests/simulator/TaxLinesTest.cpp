// The lines of taxes and of published and net fares; see simulator/lines/.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

std::string Dump(const std::u16string& line) { return Parsed(std::vector{line}).Dump(); }

TEST(TaxLine, HoldsAContainerOfTaxes) {
  EXPECT_EQ(Dump(u"TAX X/EUR/22.40/GB/AD O/EUR/7.10/FR"),
            "2853 \"TAX X/EUR/22.40/GB/AD O/EUR/7.10/FR\"\n"
            "  2817 \"X/EUR/22.40/GB/AD O/EUR/7.10/FR\"\n"
            "    11 \"X/EUR/22.40/GB/AD\"\n"
            "      2719 \"X\"\n"
            "      2856 \"EUR/22.40/GB/AD\"\n"
            "        147 \"EUR\"\n"
            "        2720 \"22.40\"\n"
            "        2721 \"GB\"\n"
            "        2722 \"AD\"\n"
            "    11 \"O/EUR/7.10/FR\"\n"
            "      2719 \"O\"\n"
            "      2856 \"EUR/7.10/FR\"\n"
            "        147 \"EUR\"\n"
            "        2720 \"7.10\"\n"
            "        2721 \"FR\"\n");
}

TEST(TaxLine, HasTheSameFormForAdditionalTaxes) {
  EXPECT_EQ(Dump(u"XTAX X/EUR/22.40/G8"),
            "3338 \"XTAX X/EUR/22.40/G8\"\n"
            "  2817 \"X/EUR/22.40/G8\"\n"
            "    11 \"X/EUR/22.40/G8\"\n"
            "      2719 \"X\"\n"
            "      2856 \"EUR/22.40/G8\"\n"
            "        147 \"EUR\"\n"
            "        2720 \"22.40\"\n"
            "        2721 \"G8\"\n");
}

TEST(TaxLine, GoesOnInContinuationLines) {
  const Parsed parsed({u"TAX X/EUR/22.40/GB", u" X/EUR/7.10/FR"});
  const auto taxes = parsed.parser->FindNode(NodeTypeId::TaxContainer)->Children();
  EXPECT_EQ(taxes->Next()->Text(), u"X/EUR/22.40/GB");
  EXPECT_EQ(taxes->Next()->Text(), u"X/EUR/7.10/FR");
  EXPECT_FALSE(taxes->Next());
}

TEST(TaxLine, WarnsOnTheLineAndOnTheTaxConcerned) {
  EXPECT_EQ(Dump(u"TAX X/EUR/22,40/GB X/EUR/7.10/FR X"),
            "2853 \"TAX X/EUR/22,40/GB X/EUR/7.10/FR X\" ! column 11: amount expected; "
            "column 35: currency code expected\n"
            "  2817 \"X/EUR/22,40/GB X/EUR/7.10/FR X\"\n"
            "    11 \"X/EUR/22,40/GB\" ! column 11: amount expected\n"
            "      2719 \"X\"\n"
            "      2856 \"EUR/22,40/GB\"\n"
            "        147 \"EUR\"\n"
            "        2720 \"22,40\"\n"
            "        2721 \"GB\"\n"
            "    11 \"X/EUR/7.10/FR\"\n"
            "      2719 \"X\"\n"
            "      2856 \"EUR/7.10/FR\"\n"
            "        147 \"EUR\"\n"
            "        2720 \"7.10\"\n"
            "        2721 \"FR\"\n"
            "    11 \"X\" ! column 35: currency code expected\n"
            "      2719 \"X\"\n");
}

TEST(TaxLine, WarnsOfEachPartThatDoesNotFit) {
  const auto warnings = [](const std::u16string& line) {
    return Parsed(std::vector{line}).parser->FindNode(NodeTypeId::TaxLine)->ErrorText();
  };
  EXPECT_EQ(warnings(u"TAX"), u"column 4: tax expected");
  EXPECT_EQ(warnings(u"TAX 7/EURO/1/GBR/ADX/1"),
            u"column 5: tax id expected; column 7: currency code expected; column 14: tax code expected; "
            u"column 18: tax nature expected; column 22: unexpected text");
}

TEST(PublishedAndNetFaresLine, HoldsItsFaresSideBySide) {
  EXPECT_EQ(Dump(u"PUBNET P/GBP/845.00 N/GBP/790.50"),
            "2932 \"PUBNET P/GBP/845.00 N/GBP/790.50\"\n"
            "  2849 \"P/GBP/845.00\"\n"
            "    1201 \"P\"\n"
            "    147 \"GBP\"\n"
            "    2717 \"845.00\"\n"
            "  2849 \"N/GBP/790.50\"\n"
            "    1201 \"N\"\n"
            "    147 \"GBP\"\n"
            "    2717 \"790.50\"\n");
}

TEST(PublishedAndNetFaresLine, WarnsOnTheLineAndOnTheFareConcerned) {
  EXPECT_EQ(Dump(u"PUBNET P/GBP/FREE N/GBP/790.50/X"),
            "2932 \"PUBNET P/GBP/FREE N/GBP/790.50/X\" ! column 14: amount expected; column 32: unexpected text\n"
            "  2849 \"P/GBP/FREE\" ! column 14: amount expected\n"
            "    1201 \"P\"\n"
            "    147 \"GBP\"\n"
            "    2717 \"FREE\"\n"
            "  2849 \"N/GBP/790.50/X\" ! column 32: unexpected text\n"
            "    1201 \"N\"\n"
            "    147 \"GBP\"\n"
            "    2717 \"790.50\"\n");
}

TEST(PublishedAndNetFaresLine, WarnsWhenItIsEmpty) {
  EXPECT_EQ(Dump(u"PUBNET"), "2932 \"PUBNET\" ! column 7: fare expected\n");
}

}  // namespace
}  // namespace qorltst::simulator
