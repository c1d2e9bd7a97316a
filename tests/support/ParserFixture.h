// Parses displays that stand in a test as trees.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "frame/TST.h"
#include "frame/TstParser.h"
#include "tests/support/Printers.h"
#include "tests/support/TestToolkit.h"

namespace qorltst::testing {

/// The base of tests that drive the parser.
class ParserFixture : public ::testing::Test {
 protected:
  /// Parses a display that the toolkit reads as a header and these nodes.
  std::int32_t Parse(std::vector<Tree> nodes) { return ParseInto(*tst_, std::move(nodes)); }

  /// The same, failing at the first toolkit call of this name; what climbed out.
  std::int32_t FailureAt(std::string_view call, const std::vector<Tree>& nodes) {
    const Ref<TST> whole = Make<TST>(*toolkit_);
    const std::size_t before = toolkit_->calls.size();
    ParseInto(*whole, nodes);
    const auto start = toolkit_->calls.begin() + static_cast<std::ptrdiff_t>(before);
    const auto found = std::find(start, toolkit_->calls.end(), call);
    EXPECT_NE(found, toolkit_->calls.end()) << call << " was never called";
    toolkit_->FailAt(static_cast<std::size_t>(found - start) + 1, toolkit::RuntimeError(5, u"Toolkit.Node", u""));
    toolkit_->log.clear();
    try {
      Parse(nodes);
    } catch (const toolkit::RuntimeError& error) {
      EXPECT_EQ(error.Source(), u"TstParser:ParseTst Method");
      return error.Number();
    }
    ADD_FAILURE() << "nothing was raised";
    return 0;
  }

  /// What a display with one header and these entries behind it writes.
  static std::vector<Entry> LogOf(std::vector<Entry> entries) {
    return Concat({{TraceEntry(u"Beginning of ParseTst(in TstParser) Function", u"TstParser.ParseTst")},
                   Around(u"SetTextToParse", u"TST"),
                   EmptyHeaderLog(),
                   std::move(entries),
                   {TraceEntry(u"End of ParseTst(in TstParser) Function", u"TstParser.ParseTst")}});
  }

  Parsed parsed_;
  Ref<TestToolkit> toolkit_ = Make<TestToolkit>([this](std::u16string_view) { return parsed_; });
  Ref<TST> tst_ = Make<TST>(*toolkit_);

 private:
  std::int32_t ParseInto(TST& tst, std::vector<Tree> nodes) {
    nodes.insert(nodes.begin(), Tree{602, u"TST"});
    parsed_ = {toolkit::kParseSuccess, std::move(nodes)};
    return TstParser(*toolkit_).ParseTst(u"the text", tst);
  }
};

}  // namespace qorltst::testing
