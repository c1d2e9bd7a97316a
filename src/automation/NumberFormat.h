// The user's number format, as the system settings have it.
#pragma once

#include <string>

namespace qorltst::automation {

/// The decimal separator now; a full stop where the system does not tell. Asked anew at each call, for a user may
/// change the setting while a program runs.
[[nodiscard]] std::u16string SystemDecimalSeparator();

}  // namespace qorltst::automation
