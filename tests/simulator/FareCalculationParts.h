// Short looks at the tree of a fare calculation that stands in a test.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DisplaySupport.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {

/// The first node of the type in a fare calculation, with all below it; "none" where there is none.
inline std::string PartOf(const std::u16string& fareCalculation, std::int32_t type) {
  const Parsed parsed({u"FCALC " + fareCalculation});
  const auto part = parsed.parser->FindNode(NodeTypeId{type});
  return part ? DumpTree(*part) : "none";
}

/// What the line's node says about a fare calculation that is not quite right.
inline std::string WarningsOfLines(const std::vector<std::u16string>& lines) {
  const Parsed parsed(lines);
  const auto line = parsed.parser->FindNode(NodeTypeId::FareCalculationLine);
  EXPECT_EQ(line->HasWarning(), !line->ErrorText().empty());
  return ToUtf8(line->ErrorText());
}

inline std::string WarningsOf(const std::u16string& fareCalculation) {
  return WarningsOfLines({u"FCALC " + fareCalculation});
}

}  // namespace qorltst::simulator
