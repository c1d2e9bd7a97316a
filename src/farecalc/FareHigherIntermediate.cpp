// The public table and the fill. See FareHigherIntermediate.h.
#include "farecalc/FareHigherIntermediate.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The source of the error line is misspelt; both spellings are part of the log.
constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in FareHigherIntermediate) Function",
              u"FareHigherIntermediate.FillWithData"},
    .end = {u"End of FillWithData (in FareHigherIntermediate) Function", u"FareHigherIntermediate.FillWithData"},
    .errorEnd = {u"End of FillWithData (in FareHigherIntermediate) Function with Error",
                 u"FareHigherIntermaediate.FillWithData"}};

}  // namespace

struct FareHigherIntermediate::Table {
  static constexpr MemberTable kMembers{{
      ClassDebugIdMember(),
      {.name = u"Class", .access = Field<&FareHigherIntermediate::class_>(), .help = u"The booking class."},
      {.name = u"CityPair", .access = Field<&FareHigherIntermediate::cityPair_>(), .help = u"The city pair."},
      {.name = u"Text", .access = Field<&FareHigherIntermediate::text_>(), .help = u"The point as displayed."},
      {.name = u"ErrorText",
       .access = Field<&FareHigherIntermediate::errorText_>(),
       .help = u"The parser's error text for the point."},
  }};
};

constinit const ClassDescription FareHigherIntermediate::kDescription =
    Table::kMembers.Describe(u"FareHigherIntermediate", u"An intermediate point: a city pair and a booking class.",
                             &CreateObject<FareHigherIntermediate>);

void FareHigherIntermediate::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::CityPair, Text(cityPair_)),
         On(NodeTypeId::IntermediateClassGroup, Children(On(NodeTypeId::IntermediateClass, Text(class_)))));
  });
}

}  // namespace qorltst
