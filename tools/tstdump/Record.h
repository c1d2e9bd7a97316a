// A retrieved display as JSON, and the schema of that.
#pragma once

#include "tools/model/Json.h"
#include "tools/model/Selection.h"
#include "tools/tstdump/Retriever.h"

namespace qorltst::tstdump {

/// The display with its ticket, or with the objects of a selection that is not everything.
[[nodiscard]] model::Json ToJson(const Retrieved& retrieved, const model::Selection& selection, model::Filter filter);

/// The JSON Schema of a display as the selection and the filter make it.
[[nodiscard]] model::Json Schema(const model::Selection& selection, model::Filter filter);

}  // namespace qorltst::tstdump
