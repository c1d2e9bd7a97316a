// The items that end the lines of air segments and of open ones.
#pragma once

#include <array>

#include "simulator/FieldShape.h"
#include "simulator/HostDate.h"
#include "simulator/KeyedItem.h"

namespace qorltst::simulator {

inline constexpr std::array kFareBasisParts{
    ItemPart{NodeTypeId::SegmentFareBasis, u"fare basis", IsCode},
    ItemPart{NodeTypeId::SegmentPassengerType, u"passenger type", IsPassengerType, true},
};
inline constexpr std::array kValidityParts{
    ItemPart{NodeTypeId::NotValidBefore, u"day and month", IsDayAndMonth, true},
    ItemPart{NodeTypeId::NotValidAfter, u"day and month", IsDayAndMonth, true},
};
inline constexpr std::array kBaggageParts{ItemPart{NodeTypeId::BaggageAllowance, u"baggage allowance", IsCode}};

inline constexpr std::array kSegmentItems{
    KeyedItem{u"FB/", kFareBasisParts},
    KeyedItem{u"NV/", kValidityParts},
    KeyedItem{u"BG/", kBaggageParts},
};

}  // namespace qorltst::simulator
