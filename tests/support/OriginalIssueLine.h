// Original issue lines for tests, built from their groups.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/TestToolkit.h"

namespace qorltst::testing {

/// An original issue line with these nodes in its body.
[[nodiscard]] inline Tree LineWithBody(std::vector<Tree> body) {
  return {2862, u"", {{736, u"body", std::move(body)}}};
}

/// An original issue line with these document groups.
[[nodiscard]] inline Tree LineWithGroups(std::vector<Tree> groups) {
  return LineWithBody({{738, u"groups", std::move(groups)}});
}

/// An original issue line with these nodes in its issued-in-exchange group.
[[nodiscard]] inline Tree LineWithExchange(std::vector<Tree> nodes) {
  return LineWithGroups({{595, u"exchange", std::move(nodes)}});
}

/// A node whose first item has this buffer.
[[nodiscard]] inline Tree Buffered(std::int32_t type, std::u16string buffer) {
  return {type, u"text", {Tree{1, u"item"}.WithBuffer(std::move(buffer)), Tree{1, u"other"}.WithBuffer(u"other")}};
}

/// A document group with every field once; each value ends with this mark.
[[nodiscard]] inline Tree Document(std::int32_t type, const std::u16string& mark) {
  return {type,
          u"document",
          {{526, u"998" + mark},
           {528, u"2400000001" + mark},
           {534, u"5" + mark},
           Buffered(740, u"12" + mark),
           {741, u"conjunction", {{529, u"02" + mark}, {534, u"6" + mark}, Buffered(742, u"34" + mark)}},
           {92, u"LON" + mark},
           {467, u"12MAR" + mark},
           {743, u"iata", {{544, u"91200001" + mark}}},
           {541, u"V" + mark}}};
}

/// A line with every field once.
[[nodiscard]] inline Tree WholeOriginalIssueLine() {
  return Tree{2862,
              u"FO 998-2400000001",
              {{91, u"9"},
               {736,
                u"body",
                {{738,
                  u"groups",
                  {Document(739, u"-O"),
                   {595, u"exchange", {Document(744, u"-1"), Document(744, u"-2")}},
                   {745, u"amount", {{147, u"EUR"}, {2733, u"120.00"}}},
                   {746, u"tax", {Buffered(747, u"12.30"), Buffered(748, u"50.00"), {2733, u"107.70"}}}}},
                 {749, u"free", {{219, u"FREE"}}}}}}}
      .WithError(u"col 4");
}

}  // namespace qorltst::testing
