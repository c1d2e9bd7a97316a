// A fare minimum check of a fare calculation. Its log lines spell the class otherwise.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

class Fare;

/// A fare minimum check: fare basis, city pair and minimum amount.
class FareMinimun final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FareMinimun(toolkit::Toolkit& toolkit);
  ~FareMinimun() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string fareId_;
  Ref<Fare> fare_;
  std::u16string lowestCombinationCityCode_;
  std::u16string cityPair2_;
  std::u16string cityPair1_;
  std::u16string fareBasis_;
};

}  // namespace qorltst
