// One flown segment of the itinerary. Its undated counterpart is AirOpenSegment.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A flown segment: carrier, flight, class, date, time, status, fare basis and validity.
class AirSegment final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit AirSegment(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string passengerType_;
  std::u16string flightNumber_;
  std::u16string elementNumber_;
  std::u16string connectId_;
  std::u16string boardPoint_;
  std::u16string airLine_;
  std::u16string class_;
  std::u16string rbdId_;
  std::u16string departureDate_;
  std::u16string departureTime_;
  std::u16string reservationStatus_;
  std::u16string fareBasisId_;
  std::u16string notValidBefore_;
  std::u16string notValidAfter_;
  std::u16string baggageAllowance_;
};

}  // namespace qorltst
