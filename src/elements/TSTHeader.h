// The header line of a TST display.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// The header line: indicators, dates, and the office and agent that last touched the TST.
class TSTHeader final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit TSTHeader(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Takes the header node's text and error text; called once, before its children.
  void FillTextWithData(toolkit::ParseNode& node);

  /// Takes one child of the header node; called for each child in display order.
  void FillWithData(toolkit::ParseNode& child);

 private:
  struct Table;

  std::u16string internationalSalesId_;
  std::u16string originDestinationId_;
  std::u16string pricingId_;
  std::u16string fareCalculationType_;
  std::u16string lastModifDate_;
  std::u16string originDestinationData_;
  std::u16string agentDutyCode_;
  std::u16string officeId_;
  std::u16string pnrChangeFlag_;
  std::u16string elementNumber_;
  std::u16string fareCalculationModeIndicator_;
  Date lastDateFromTst_;
};

}  // namespace qorltst
