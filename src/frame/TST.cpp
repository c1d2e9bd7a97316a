// Creation and retrieval of the root object. Its public table is in TSTTable.cpp, its own lines in TSTLines.cpp.
#include "frame/TST.h"

#include "elements/FEElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/TSTHeader.h"
#include "farecalc/FareCalculation.h"
#include "frame/TstCommunication.h"

namespace qorltst {

TST::TST(toolkit::Toolkit& toolkit)
    : Element(toolkit),
      fareCalculation_(Make<FareCalculation>(toolkit)),
      feElement_(Make<FEElement>(toolkit)),
      itineraryLastLine_(Make<ItineraryLastLine>(toolkit)),
      tstHeader_(Make<TSTHeader>(toolkit)) {}

TST::~TST() = default;

std::int32_t TST::RetrieveCurrentTst(toolkit::HostSession* session) {
  return Guarded(u"TST:RetrieveCurrentTST Method", [&] { return Communication().RetrieveCurrentTst(session, *this); });
}

std::int32_t TST::RetrieveSpecificTst(toolkit::HostSession* session, std::u16string_view command) {
  return Guarded(u"TST:RetrieveSpecificTst Method",
                 [&] { return Communication().RetrieveSpecificTst(session, command, *this); });
}

TstCommunication& TST::Communication() {
  if (!communication_) {
    communication_ = std::make_unique<TstCommunication>(Toolkit());
  }
  return *communication_;
}

void TST::SetCollection(CollectionKind kind, Ref<Object> collection) {
  collections_[static_cast<std::size_t>(kind)].Replace(std::move(collection));
}

void TST::SetFareCalculation(Ref<FareCalculation> fareCalculation) { fareCalculation_ = std::move(fareCalculation); }

void TST::SetFEElement(Ref<FEElement> endorsement) { feElement_ = std::move(endorsement); }

void TST::SetItineraryLastLine(Ref<ItineraryLastLine> lastLine) { itineraryLastLine_ = std::move(lastLine); }

void TST::SetTSTHeader(Ref<TSTHeader> header) { tstHeader_ = std::move(header); }

}  // namespace qorltst
