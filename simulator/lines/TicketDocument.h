// A ticket or voucher as an exchange line names it. Its reader is ExchangeLine.
#pragma once

#include "simulator/LineReader.h"

namespace qorltst::simulator {

/// "990-4700112233-4/C12/LON/12NOV26/91200015/V7Q/4700112234-5-C3": adds the nodes of number, coupons, city and date
/// of issue, agency, voucher code and the ticket in conjunction to `document`. All but the number may be absent.
void ReadTicketDocument(const LineReader& reader, TreeNode& document, Field item);

}  // namespace qorltst::simulator
