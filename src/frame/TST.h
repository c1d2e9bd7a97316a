// The root of the object model: starts a retrieval and holds its result.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "frame/CollectionProperty.h"
#include "frame/Element.h"
#include "toolkit/HostSession.h"
#include "toolkit/ParseNode.h"

namespace qorltst {

class FareCalculation;
class FEElement;
class ItineraryLastLine;
class TstCommunication;
class TSTHeader;

/// The collections of a `TST`, in the order in which a parse hands them over.
enum class CollectionKind : std::uint8_t {
  AirSegments,
  Names,
  ArnkSegments,
  OpenSegments,
  Taxes,
  ValidatingCarriers,
  TourCodes,
  FormsOfPayment,
  PublishedAndNetFares,
  Commissions,
  OriginalIssues,
};

inline constexpr std::size_t kCollectionKinds = 11;

/// One Transitional Stored Ticket. No object or collection of it is ever absent. A retrieval overwrites what the new
/// display holds and keeps the rest; for a clean record make a new `TST`.
class TST final : public Element {
 public:
  static const ClassDescription kDescription;

  explicit TST(toolkit::Toolkit& toolkit);
  ~TST() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Retrieves the current TST of the caller's session, which may be null.
  /// Returns 0 parsed, 1000 not a TST, 1005 parsed with warnings, 1006 parse error or 3004 no session or no answer;
  /// where something unexpected fails, the code held at that moment. Blocks while the host answers.
  std::int32_t RetrieveCurrentTst(toolkit::HostSession* session);

  /// As `RetrieveCurrentTst`, with a display command of the caller's own.
  std::int32_t RetrieveSpecificTst(toolkit::HostSession* session, std::u16string_view command);

  // What the parser calls. Callers of the component do not see these: they stand in no table.

  /// Keeps the whole display text.
  void SetTextToParse(std::u16string text);

  /// Each fills the properties of one line from its node. A failure leaves what was set before it.
  void FillTotalWithData(toolkit::ParseNode& node);
  void FillFareWithData(toolkit::ParseNode& node);
  void FillNetFareLineWithData(toolkit::ParseNode& node);
  void FillEquivWithData(toolkit::ParseNode& node);
  void FillPaymentRestrictionLine(toolkit::ParseNode& node);
  void FillZapOffValue(toolkit::ParseNode& node);

  /// Replaces a collection. Never by nothing.
  void SetCollection(CollectionKind kind, Ref<Object> collection);

  void SetFareCalculation(Ref<FareCalculation> fareCalculation);
  void SetFEElement(Ref<FEElement> endorsement);
  void SetItineraryLastLine(Ref<ItineraryLastLine> lastLine);
  void SetTSTHeader(Ref<TSTHeader> header);

 private:
  struct Table;

  TstCommunication& Communication();

  std::array<CollectionProperty, kCollectionKinds> collections_;
  // In this order: each takes the next debug ids.
  Ref<FareCalculation> fareCalculation_;
  Ref<FEElement> feElement_;
  Ref<ItineraryLastLine> itineraryLastLine_;
  Ref<TSTHeader> tstHeader_;
  std::unique_ptr<TstCommunication> communication_;

  std::u16string text_;
  std::u16string zapOff_;

  std::u16string fareBaseLineText_;
  std::u16string fareBaseLineErrorText_;
  std::u16string fareBaseLineIssueId_;
  std::u16string fareBaseLineCorporateCode_;
  std::u16string fareBaseLineCurrencyCode_;
  std::u16string fareBaseLineBase_;
  Currency fareBaseLineBaseAmount_;

  std::u16string equivalentLineText_;
  std::u16string equivalentLineErrorText_;
  std::u16string equivalentLineCurrencyCode_;
  std::u16string equivalentLineFareBase_;

  std::u16string totalLineText_;
  std::u16string totalErrorText_;
  std::u16string totalCurrencyCode_;
  std::u16string totalCollection_;
  Currency totalCollectionAmount_;
  std::u16string totalBankersRateId_;
  std::u16string totalRateExchange_;
  std::u16string additionalTotalBankersText_;
  std::u16string additionalTotalBankersAmount_;
  std::u16string additionalTotalBankersCur_;

  std::u16string netFareBaseLineText_;
  std::u16string netFareBaseLineErrorText_;
  std::u16string netFareCurrencyCode_;
  std::u16string netFareFareAmount_;

  std::u16string paymentRestrictionLineFreeFlowText_;
  std::u16string paymentRestrictionLineErrorText_;
};

}  // namespace qorltst
